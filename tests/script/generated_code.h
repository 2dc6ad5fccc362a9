// Pieces of code made up from words of the language, well formed and not, the same for the same seed.
#pragma once

#include <cstdint>
#include <iterator>
#include <string>

namespace corvane::script {

class GeneratedCode {
 public:
  explicit GeneratedCode(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15u + 1) {}

  // Up to [lines] lines; mostly whole statements, with stray fragments between them.
  std::string Piece(size_t lines) {
    std::string code;
    for (size_t line = 1 + Below(lines); line > 0; --line) {
      const size_t kind = Below(10);
      if (kind < 6) code += Statement(3);
      if (kind == 6) code += Statement(2) + ":" + Statement(2);
      for (size_t count = kind >= 7 ? 1 + Below(8) : 0; count > 0; --count) code += Fragment();
      code += Below(8) == 0 ? ":" : "\t";
    }
    return code;
  }

  size_t Below(size_t limit) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return state_ % limit;
  }

 private:
  template <size_t count>
  std::string OneOf(const char* const (&texts)[count]) {
    return texts[Below(count)];
  }

  std::string Expression() {
    static const char* const kTexts[] = {"a",       "b+1",     "f(1)",   "\"text\"", "x = y", "(a + b)", "a AND (b)",
                                         "\"(\"",   "n - 1",   "[[l:]]", "\"a:b\"",  "-1",    "i <= 3",  "VAR(x)",
                                         "a, b, 1", "\"TO \"", "'note",  "a OR (b)", "f((1)", "x)THEN",  ""};
    return OneOf(kTexts);
  }

  std::string Statement(int depth) {
    static const char* const kPlain[] = {"END IF",       "ELSE",       "NEXT",       "NEXT i",     "WEND",
                                         "LOOP",         "CONTINUE",   "EXIT FOR",   "EXIT WHILE", "END SELECT",
                                         "CASE ELSE",    "END SUB",    "STOP",       "END CODE",   "EXIT FUNCTION",
                                         "END FUNCTION", "Label1",     "x",          "while",      "FUNCTION f",
                                         "SUB s(a)",     "/* note */", "VAR(x) = 1", "x=[[ a ' b"};
    static const char* const kHeads[] = {"IF ",       "ELSEIF ", "WHILE ", "SELECT CASE ", "CASE ", "CASE(", "x = ",
                                         "FUNCTION ", "y += ",   "PRINT(", "DIM ",         "GOTO ", "a(1)="};
    switch (depth > 0 ? Below(6) : 0) {
      case 0:
        return OneOf(kPlain);
      case 1:
        return "IF " + Expression() + " THEN " + Statement(depth - 1);
      case 2:
        return "FOR i=" + Expression() + " TO " + Expression() + (Below(2) == 0 ? " STEP " + Expression() : "");
      case 3:
        return "IF " + Expression() + " THEN";
      default:
        return OneOf(kHeads) + Expression() + (Below(4) == 0 ? ")" : "");
    }
  }

  std::string Fragment() {
    static const char* const kTexts[] = {" ",
                                         "  ",
                                         ":",
                                         "\t",
                                         "\"",
                                         "(",
                                         ")",
                                         "=",
                                         "=[[",
                                         "]]",
                                         "/*",
                                         "*/",
                                         "'",
                                         " _\t",
                                         "+_\t",
                                         "&_\t",
                                         "+",
                                         "-",
                                         "*",
                                         "/",
                                         "|",
                                         "\\",
                                         ",",
                                         "THEN",
                                         " THEN ",
                                         ")THEN",
                                         "IF ",
                                         "IF(",
                                         "FOR ",
                                         " TO ",
                                         " STEP ",
                                         "a",
                                         "xyz",
                                         "ELSEIF ",
                                         "CASE ",
                                         "1",
                                         "\1",
                                         "VAR(",
                                         "WHILE ",
                                         "NEXT",
                                         "END IF",
                                         "FUNCTION ",
                                         " EXIT FUNCTION",
                                         "i=1",
                                         "SELECT CASE ",
                                         "\xE4",
                                         "AND",
                                         "OR"};
    return OneOf(kTexts);
  }

  uint64_t state_;
};

}  // namespace corvane::script
