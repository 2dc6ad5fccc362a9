// usage: generate_project SAMPLE.vbp FOLDER LINES
// Makes a project of at least LINES lines in FOLDER from the modules of SAMPLE.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "bench/generate_project.h"

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: %s SAMPLE.vbp FOLDER LINES\n", argv[0]);
    return 2;
  }
  try {
    const auto made = corvane::bench::GenerateProject(argv[1], argv[2], std::atol(argv[3]));
    std::printf("%s: %zu modules, %ld lines, %llu bytes\n", made.path.c_str(), made.files.size(), made.lines,
                static_cast<unsigned long long>(made.bytes));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
