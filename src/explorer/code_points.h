// CodePoints: the places in code the user came through, oldest first, and the place among them that is shown. Needs no
// window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::explorer {

struct CodePoint {
  std::string text;  // module's name, ":", four blanks, snippet, row of the procedures with its tail
  long line = 0;     // of the module, as the row tells it
  long row = 0;      // of the code view
};

class CodePoints {
 public:
  static constexpr long kMost = 14;

  // Remembers [point] behind the newest and stands past it; at the most of them the oldest goes. One in the same
  // procedure as the newest only gives that its line and row, and the place stays.
  void Push(const CodePoint& point);
  void Clear();

  long Count() const { return static_cast<long>(points_.size()); }
  const CodePoint& At(long index) const { return points_[static_cast<size_t>(index)]; }  // from 0
  const CodePoint* Current() const { return IsPastNewest() ? nullptr : &At(index_); }    // null past the newest
  // What a menu shows of it: at most 95 characters, without the tail.
  std::string Caption(long index) const;

  long Index() const { return index_; }  // Count(): past the newest
  bool IsPastNewest() const { return index_ == Count(); }
  bool HasLower() const { return index_ > 0; }
  bool HasHigher() const { return index_ + 1 < Count(); }
  void GoPastNewest() { index_ = Count(); }
  void GoTo(long index) { index_ = index; }  // Requires: 0 <= index < Count()
  // To the next entry in that direction whose text does not hold [title]; false, and the place stays, if there is none.
  bool StepBack(std::string_view title) { return Step(-1, title); }
  bool StepOn(std::string_view title) { return Step(+1, title); }

 private:
  bool Step(long direction, std::string_view title);
  std::vector<CodePoint> points_;
  long index_ = 0;
};

// The first 25 characters of a code line and "... "; empty for one of the first 2 rows of the code view and for one
// with fewer than 4 characters.
std::string SnippetOf(std::string_view codeLine, long row);
// The text of a point for a row of the procedures: a label of the caret's line gives way, one that is a module's name
// already is not repeated, and a row that does not tell its component gets the tail that does.
std::string PointText(std::string_view module, std::string_view snippet, std::string_view row, long component);
// The row that a point was made from, labelled with its module: the text without its snippet.
std::string RowOfPoint(std::string_view text);

}  // namespace corvane::explorer
