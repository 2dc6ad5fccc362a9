// ModuleHead: what stands in front of the code of a module file, from a light scan: where it ends, names, oddities. The
// designer's contents are left to the designer part.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "environment/environment.h"

namespace corvane::environment {

struct ModuleHead {
  size_t designer_end = 0;  // bytes up to and with the End of the root block, 0 without a VERSION line
  size_t code_start = 0;    // behind the attributes of the module
  bool cut_off = false;     // the designer part takes the whole file and has no end: nothing may be added behind it
  std::string version;      // "5.00", "1.0 CLASS"; empty without a VERSION line
  std::string root_class;   // "VB.Form"; "{...}" of an ActiveX designer
  std::string root_name;
  std::string name;               // VB_Name
  std::vector<long> charsets;     // of the fonts, each once
  std::vector<Problem> problems;  // without a file name
};

// [bytes] is a whole module file.
ModuleHead ReadModuleHead(std::string_view bytes);

// The first mark that a version control left in a file, "<<<<<<<" or ">>>>>>>", in the lines of [bytes] from [at] (the
// start of a line) on; not where a mark is among [problems] already.
void FindConflictMark(std::string_view bytes, size_t at, std::vector<Problem>& problems);

// The lines of a designer part that are such marks, "=======" too.
std::vector<long> ConflictMarkLines(std::string_view designer);

// [head] with its VB_Name, and the name of its root block, changed to [name].
std::string HeadWithName(std::string_view head, const std::string& name);

}  // namespace corvane::environment
