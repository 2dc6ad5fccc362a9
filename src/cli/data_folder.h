// Where the program and the library's own files are: LibCode.txt, corvane.bmp and the rest.
#pragma once

#include <filesystem>

namespace corvane::cli {

// Of the program that runs.
std::filesystem::path ProgramFolder();
// Named by CORVANE_DATA, else data/ of the source tree the program was built in, else share/corvane beside its bin/.
// The program's own folder where none of them is.
std::filesystem::path DataFolder();

}  // namespace corvane::cli
