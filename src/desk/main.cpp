#include <iostream>

#include "cli/command_line.h"
#include "desk/run_desk.h"

int main(int argc, char** argv) {
  return corvane::cli::RunCommandLine(argc, argv, corvane::desk::RunDesk, std::cout, std::cerr);
}
