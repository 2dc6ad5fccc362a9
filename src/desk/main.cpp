#include <iostream>

#include "desk/command_line.h"

int main(int argc, char** argv) {
  return corvane::desk::RunCommandLine(argc, argv, std::cout, std::cerr);
}
