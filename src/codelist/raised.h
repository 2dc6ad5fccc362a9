// Raised: a flag that is set as long as an operation runs.
#pragma once

#include <utility>

namespace corvane::codelist {

class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Raised() { flag_ = before_; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace corvane::codelist
