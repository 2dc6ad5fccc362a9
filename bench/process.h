// Process: another program, run to its end with its output taken in.
#pragma once

#include <string>
#include <vector>

namespace corvane::bench {

struct Finished {
  double seconds = 0;    // from before it was started until its output had ended and it was gone
  double processor = 0;  // seconds that it used of the processor
  int status = 0;
  long lines = 0;      // of its standard output
  std::string output;  // its standard output, as far as it was asked for
};

// Runs [arguments] (the first is the program, looked for in the PATH) in [folder] with the C locale.
Finished Run(const std::vector<std::string>& arguments, const std::string& folder, bool keep_output = false);

}  // namespace corvane::bench
