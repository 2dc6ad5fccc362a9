// The programs of bench/programs in the script language and in those it is measured beside. A program takes its size as
// its argument and prints its result.
#pragma once

#include <string>
#include <vector>

#include "bench/process.h"
#include "bench/table.h"

namespace corvane::bench {

class ScriptLanguage {
 public:
  // [command] runs a program: FILE in it stands for the program's file, SIZE for its size. The file is [folder]/NAME
  // [extension].
  ScriptLanguage(std::string name, std::string extension, std::vector<std::string> command, std::string folder)
      : name_(std::move(name)),
        extension_(std::move(extension)),
        command_(std::move(command)),
        folder_(std::move(folder)) {}

  const std::string& Name() const { return name_; }
  // Throws where the program fails.
  Finished Run(const std::string& program, long size, bool keep_output = false) const;
  // What the program prints, its line ends as "\n".
  std::string Output(const std::string& program, long size) const;

 private:
  std::string name_, extension_;
  std::vector<std::string> command_;
  std::string folder_;
};

// Seconds that [program] takes beyond the start of each language, which an empty program tells. Medians of runs in
// turn.
Pair BeyondStart(const ScriptLanguage& ours, const ScriptLanguage& peer, const std::string& program, long size,
                 int rounds);

}  // namespace corvane::bench
