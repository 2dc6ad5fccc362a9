// The line analyser: rewrites one line of source into its markup.
#pragma once

#include <memory>
#include <string_view>

namespace corvane::codelist {

enum class Language { Vb, Sql };

// What carries from one line to the next.
struct AnalysisState {
  bool inBlockComment = false;  // SQL: the line starts inside a /* comment
  bool sqlInCase = false;       // SQL: between CASE and END
  bool endOfProc = false;       // set where the line ends a procedure; the caller clears it before a line
};

// Room for one marked line, kept from call to call.
class LineBuffer {
 public:
  char* Reserve(size_t size);

 private:
  std::unique_ptr<char[]> bytes_;
  size_t size_ = 0;
};

// The marked line: a view of [buffer], or of [line] itself when nothing had to be written. [line] holds no line end.
std::string_view AnalyseLine(Language language, AnalysisState& state, std::string_view line, LineBuffer& buffer);

// Whether [line] ends a procedure, told without analysing it: its code in front of the first comment or string has at
// least seven characters and holds "End Sub", "End Funct" or "End Prope" in any case, anywhere.
bool EndsProcedure(std::string_view line);

}  // namespace corvane::codelist
