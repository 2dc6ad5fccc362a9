// Runs a fuzz target without a fuzzer: on every file below the folders named on the command line, and on copies of them
// that were damaged in a fixed way, so that a failure comes back with the next run.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

constexpr int kCopies = 12;           // damaged ones of each file
constexpr size_t kLongest = 1 << 16;  // longer files are cut: the point is odd bytes, not many

// A small generator of numbers, the same on every machine.
class Numbers {
 public:
  explicit Numbers(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15u + 1) {}
  size_t Below(size_t limit) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return limit == 0 ? 0 : state_ % limit;
  }

 private:
  uint64_t state_;
};

std::string Damaged(std::string bytes, Numbers& numbers) {
  static const std::string kWords[] = {"End\r\n",
                                       "Begin VB.Label L \r\n",
                                       "\"",
                                       "\r",
                                       "\n",
                                       "_\r\n",
                                       "If x Then\r\n",
                                       "End Sub\r\n",
                                       "BeginProperty Font \r\n",
                                       std::string(1, '\0'),
                                       "=",
                                       "'",
                                       "#If 1 Then\r\n",
                                       "\xFF"};
  for (size_t changes = 1 + numbers.Below(4); changes > 0; --changes) {
    const size_t at = numbers.Below(bytes.size() + 1), length = numbers.Below(40);
    switch (numbers.Below(5)) {
      case 0:
        bytes.erase(at, length);
        break;
      case 1:
        bytes.insert(at, kWords[numbers.Below(std::size(kWords))]);
        break;
      case 2:
        bytes.insert(numbers.Below(bytes.size() + 1), bytes.substr(at, length));
        break;
      case 3:
        bytes.resize(at);
        break;
      default:
        if (at < bytes.size()) bytes[at] = static_cast<char>(numbers.Below(256));
    }
  }
  return bytes;
}

void Run(const std::string& bytes) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

std::string Read(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(in), {}};
  if (bytes.size() > kLongest) bytes.resize(kLongest);
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  std::set<std::filesystem::path> files;  // in a fixed order
  for (int i = 1; i < argc; ++i)
    for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i]))
      if (entry.is_regular_file()) files.insert(entry.path());

  size_t runs = 0;
  for (const auto& file : files) {
    const std::string bytes = Read(file);
    Run(bytes);
    Numbers numbers(runs);
    for (int copy = 0; copy < kCopies; ++copy, ++runs) Run(Damaged(bytes, numbers));
    ++runs;
  }
  std::printf("%zu inputs from %zu files\n", runs, files.size());
  return runs > 0 ? 0 : 1;
}
