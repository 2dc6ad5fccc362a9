// MarkScan: the level along one line, counted from mark to mark as the folding commands count it. Of two marks that
// stand directly behind one another the first is passed without being counted.
#pragma once

#include <cstddef>
#include <string_view>

namespace corvane::codelist {

class MarkScan {
 public:
  enum class Step {
    kBehindMark,
    kJumping,  // to the old position plus the mark's own, counted from 1: from the second mark on some may be jumped
               // over
  };

  MarkScan(std::string_view text, long level, Step step) : level_(level), text_(text), step_(step) {}

  // Goes on behind the next mark; false when there is none.
  bool Next();
  long Level() const { return level_; }
  bool Opens() const { return opens_; }          // the mark passed last was one that raises the level
  size_t SoughtFrom() const { return sought_; }  // position from 1 at which the search for that mark began

 private:
  long level_;
  std::string_view text_;
  Step step_;
  size_t at_ = 0, sought_ = 0;
  bool opens_ = false;
};

// A mark at which the level falls below [target].
bool FallsBelow(long target, std::string_view text, long level, MarkScan::Step step);

}  // namespace corvane::codelist
