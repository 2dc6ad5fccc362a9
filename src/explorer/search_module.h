// The search of a module's code: which of its lines are hits. Needs no window.
#pragma once

#include <functional>
#include <string>

#include "host/code_module.h"

namespace corvane::explorer {

inline constexpr char kProjectTitle[] = "Project Title";

struct ModuleSearch {
  std::string text;            // in any case; one that begins with "project title" finds the lines marked as favourites
  bool wholeWord = false;      // the text is a pattern then: ? * # [list]
  bool headersOnly = false;    // lines that hold the header of a procedure or an event
  bool withComments = false;   // lines that are nothing but a comment, too

  bool IsTitleMode() const;
};

// Takes a hit: its line, its text, and its number, which counts from 1 in each module. In title mode numbers are left
// out: lines that are found and are no titles have one too.
using HitSink = std::function<void(long line, const std::string& text, long number)>;

// Hands the hits of [module] to [found], in line order, one for each line. Costs one call of the host for a line that
// is found, one to read it, and one at the end.
void SearchModule(host::CodeModule& module, const ModuleSearch& search, const HitSink& found);

// Whether a line that holds the mark of a favourite is one: neither a comment of two apostrophes nor, by the look of
// it, a text with two apostrophes in it.
bool IsTitleLine(const std::string& line);
// Whether the first of the header words in [line] begins it or stands behind a blank.
bool HoldsHeader(const std::string& line);

}  // namespace corvane::explorer
