// Platform: what commands ask of the machine.
#pragma once

#include <string>

namespace corvane::script {

class Platform {
 public:
  virtual ~Platform() = default;
  // Starts [program] in a minimized window with the focus; the number of its task. Throws runtime::Error.
  virtual double Shell(const std::string& program) = 0;
  // Opens [file] with the program that belongs to it, in a window of its normal size.
  virtual void Open(const std::string& file) = 0;
  // Deletes a file. Throws runtime::Error, 53 where there is none.
  virtual void Kill(const std::string& path) = 0;
};

}  // namespace corvane::script
