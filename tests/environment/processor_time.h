// SecondsOf: the time that this process itself spends, whatever else the machine does.
#pragma once

#include <ctime>

namespace corvane::environment {

template <class Action>
double SecondsOf(const Action& action) {
  std::clock_t start = std::clock();
  action();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace corvane::environment
