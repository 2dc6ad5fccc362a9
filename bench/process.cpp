#include "bench/process.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "bench/table.h"

namespace corvane::bench {

namespace {

[[noreturn]] void Become(const std::vector<std::string>& arguments, const std::string& folder, int output) {
  std::vector<char*> words;
  for (const auto& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  setenv("LC_ALL", "C", 1);
  if (chdir(folder.c_str()) == 0 && dup2(output, STDOUT_FILENO) >= 0) execvp(words[0], words.data());
  _exit(127);
}

double InSeconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

Finished Run(const std::vector<std::string>& arguments, const std::string& folder, bool keep_output) {
  Finished finished;
  finished.seconds = Seconds([&] {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    if (child == 0) Become(arguments, folder, ends[1]);
    close(ends[1]);
    std::array<char, 1 << 16> block;
    for (ssize_t got; (got = read(ends[0], block.data(), block.size())) > 0;) {
      finished.lines += std::count(block.begin(), block.begin() + got, '\n');
      if (keep_output) finished.output.append(block.data(), static_cast<size_t>(got));
    }
    close(ends[0]);
    int state = 0;
    rusage used{};
    wait4(child, &state, 0, &used);
    finished.processor = InSeconds(used.ru_utime) + InSeconds(used.ru_stime);
    finished.status = WIFEXITED(state) ? WEXITSTATUS(state) : 128;
  });
  if (finished.status == 127) throw std::runtime_error("cannot run " + arguments[0]);
  return finished;
}

}  // namespace corvane::bench
