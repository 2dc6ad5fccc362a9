// The comments of code that runs over many lines, as far as its lines show them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::script {

// The lines of one piece of code, in order. A "=[[" that no "]]" follows stays open over the lines behind it: they are
// left alone up to and with the line that closes it.
class LineComments {
 public:
  // The line that the piece begins in: nothing is taken off it.
  void Begin(std::string_view line) { Heed(line); }
  // A further line without its comment; nothing where it is one altogether.
  std::optional<std::string_view> CodeOf(std::string_view line);
  // Behind the last line given.
  bool InLiteral() const { return literal_open_; }

 private:
  void Heed(std::string_view line);

  bool literal_open_ = false;
};

// A text of many lines, which end in CR LF, as one piece: its lines with lineMark between them, and ":" at the end.
std::string CodeOfLines(std::string_view text);

}  // namespace corvane::script
