// Bookmarks: the latest code lines that the user put a mark on. Needs no window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::explorer {

class Bookmarks {
 public:
  static constexpr long kMost = 10;

  // Remembers a line of [module] as a row of the bookmark list; at the most of them the oldest goes. The line that is
  // the newest already is not remembered again: the row of that one must begin the new row, so that the same text at
  // line 12 is lost behind that at line 1.
  void Put(std::string_view text, std::string_view module, long line);
  void Clear() { rows_.clear(); }

  long Count() const { return static_cast<long>(rows_.size()); }
  const std::string& Row(long index) const { return rows_[static_cast<size_t>(index)]; }  // from 0, oldest first

 private:
  std::vector<std::string> rows_;
};

}  // namespace corvane::explorer
