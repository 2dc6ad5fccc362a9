// Running a program of this project as a user runs it without a display.
#pragma once

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace corvane::tests {

inline std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (size_t at = 0, end; at < text.size(); at = end + 1) {
    end = std::min(text.find('\n', at), text.size());
    if (end > at) lines.push_back(text.substr(at, end - at));
  }
  return lines;
}

struct Ended {
  int status = -1;  // -1: not by itself
  std::string out, errors;
  std::vector<std::string> OutLines() const { return LinesOf(out); }
  std::vector<std::string> ErrorLines() const { return LinesOf(errors); }
};

// [name] beside the program that runs the tests.
inline std::string ProgramBeside(const std::string& name) {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path() / name;
}

namespace program {

[[noreturn]] inline void Become(const std::string& program, const std::vector<std::string>& arguments, int out,
                                int errors) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const auto& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(name);
  if (dup2(out, STDOUT_FILENO) >= 0 && dup2(errors, STDERR_FILENO) >= 0) execv(words[0], words.data());
  _exit(127);
}

// Reads both ends until they are closed.
inline void ReadAll(std::array<int, 2> ends, std::array<std::string*, 2> texts) {
  std::array<pollfd, 2> waiting = {{{ends[0], POLLIN, 0}, {ends[1], POLLIN, 0}}};
  for (int open = 2; open > 0 && poll(waiting.data(), 2, -1) > 0;)
    for (size_t i = 0; i < 2; ++i) {
      if (waiting[i].fd < 0 || waiting[i].revents == 0) continue;
      std::array<char, 4096> block;
      const ssize_t got = read(waiting[i].fd, block.data(), block.size());
      if (got > 0) texts[i]->append(block.data(), static_cast<size_t>(got));
      if (got <= 0) close(waiting[i].fd), waiting[i].fd = -1, --open;
    }
}

}  // namespace program

// Runs [path] to its end. [output_file]: where its output goes instead of Ended::out.
inline Ended RunProgram(const std::string& path, const std::vector<std::string>& arguments,
                        const std::string& output_file = {}) {
  Ended ended;
  std::array<int, 2> out{}, errors{};
  if (pipe2(out.data(), O_CLOEXEC) != 0 || pipe2(errors.data(), O_CLOEXEC) != 0) return ended;
  const int file = output_file.empty() ? -1 : open(output_file.c_str(), O_WRONLY | O_CLOEXEC);
  const pid_t child = fork();
  if (child == 0) program::Become(path, arguments, file >= 0 ? file : out[1], errors[1]);
  close(out[1]);
  close(errors[1]);
  if (file >= 0) close(file);
  program::ReadAll({out[0], errors[0]}, {&ended.out, &ended.errors});
  int state = 0;
  if (child > 0 && waitpid(child, &state, 0) == child && WIFEXITED(state)) ended.status = WEXITSTATUS(state);
  return ended;
}

// A folder of its own for one test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "corvane-test-XXXXXX").string();
    if (mkdtemp(name.data())) path_ = name;
    EXPECT_FALSE(path_.empty());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  const std::string& Path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

}  // namespace corvane::tests
