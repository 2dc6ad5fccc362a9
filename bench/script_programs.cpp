#include "bench/script_programs.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace corvane::bench {

namespace {

constexpr char kEmptyProgram[] = "start";
// Less than this whole processes do not tell.
constexpr double kLeast = 1e-4;

}  // namespace

Finished ScriptLanguage::Run(const std::string& program, long size, bool keep_output) const {
  std::vector<std::string> arguments = command_;
  for (auto& argument : arguments) {
    if (argument == "FILE") argument = program + extension_;
    if (argument == "SIZE") argument = std::to_string(size);
  }
  Finished run = bench::Run(arguments, folder_, keep_output);
  if (run.status != 0)
    throw std::runtime_error(name_ + ": " + program + extension_ + " ended with " + std::to_string(run.status));
  return run;
}

std::string ScriptLanguage::Output(const std::string& program, long size) const {
  std::string output = Run(program, size, true).output;
  std::erase(output, '\r');
  return output;
}

Pair BeyondStart(const ScriptLanguage& ours, const ScriptLanguage& peer, const std::string& program, long size,
                 int rounds) {
  std::array<std::vector<double>, 4> times;
  for (int round = -1; round < rounds; ++round) {
    const std::array<double, 4> now = {ours.Run(program, size).seconds, ours.Run(kEmptyProgram, 0).seconds,
                                       peer.Run(program, size).seconds, peer.Run(kEmptyProgram, 0).seconds};
    for (size_t i = 0; round >= 0 && i < now.size(); ++i) times[i].push_back(now[i]);
  }
  return {std::max(kLeast, Median(times[0]) - Median(times[1])), std::max(kLeast, Median(times[2]) - Median(times[3]))};
}

}  // namespace corvane::bench
