// SecondsOf: the time that this process itself spends, whatever else the machine does.
#pragma once

#ifdef _WIN32
#include <windows.h>
#undef RGB  // a name of forms/
#else
#include <ctime>
#endif

namespace corvane::tests {

// Steps of 10 milliseconds under Wine, finer elsewhere.
inline double ProcessorSeconds() {
#ifdef _WIN32
  FILETIME made, ended, kernel, user;
  if (!GetProcessTimes(GetCurrentProcess(), &made, &ended, &kernel, &user)) return 0;
  const auto ticks = [](const FILETIME& time) { return time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime; };
  return (ticks(kernel) + ticks(user)) / 1e7;  // a tick is 100 nanoseconds
#else
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
#endif
}

template <class Action>
double SecondsOf(const Action& action) {
  const double start = ProcessorSeconds();
  action();
  return ProcessorSeconds() - start;
}

}  // namespace corvane::tests
