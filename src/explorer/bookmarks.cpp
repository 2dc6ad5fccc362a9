#include "explorer/bookmarks.h"

#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

void Bookmarks::Put(std::string_view text, std::string_view module, long line) {
  std::string row = BookmarkRow(text, module, line);
  if (!rows_.empty() && runtime::BeginsWith(row, rows_.back())) return;
  rows_.push_back(std::move(row));
  if (Count() > kMost) rows_.erase(rows_.begin());
}

}  // namespace corvane::explorer
