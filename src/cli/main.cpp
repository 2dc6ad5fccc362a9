#include <iostream>

#include "cli/become_desk.h"
#include "cli/command_line.h"

int main(int argc, char** argv) {
  return corvane::cli::RunCommandLine(argc, argv, corvane::cli::BecomeDesk, std::cout, std::cerr);
}
