#pragma once

namespace corvane::explorer {

// Holds a guard flag for the length of a block; it is clear behind it, also when an error leaves the block.
class SetWhile {
 public:
  explicit SetWhile(bool& flag) : flag_(flag) { flag_ = true; }
  ~SetWhile() { flag_ = false; }
  SetWhile(const SetWhile&) = delete;
  SetWhile& operator=(const SetWhile&) = delete;

 private:
  bool& flag_;
};

}  // namespace corvane::explorer
