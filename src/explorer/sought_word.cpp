#include "explorer/sought_word.h"

#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr std::string_view kHeaderWords[] = {"SUB ", "FUNCTION ", "PROPERTY "};

// The first line from [line] on that holds [target], 0 if there is none. The target is a pattern.
long FindFrom(host::CodeModule& module, long line, const std::string& target) {
  if (line > module.CountOfLines()) return 0;
  long column = 1, endLine = -1, endColumn = -1;
  return module.Find(target, line, column, endLine, endColumn, false, false, true) ? line : 0;
}

std::string UpperCode(host::CodeModule& module, long line) {
  std::string text = UCase(module.Lines(line, 1));
  return text.substr(0, text.find('\''));
}

bool HoldsHeaderWordBefore(std::string_view row, long position) {
  for (std::string_view word : kHeaderWords)
    if (long at = InStr(row, word); at > 0 && at < position) return true;
  return false;
}

// A function with its result: "name(" and a ")" behind it that begins ") AS ".
bool HoldsFunctionOfType(std::string_view row, const std::string& bare) {
  constexpr std::string_view kType = ") AS ";
  long open = InStr(row, bare + "(");
  if (open == 0) return false;
  long close = InStr(open, row, ")");
  return close > 0 && Mid(row, close, Len(kType)) == kType;
}

long ProcedureLine(host::CodeModule& module, const std::string& name) {
  for (long line = FindFrom(module, 1, name); line > 0; line = FindFrom(module, line + 1, name)) {
    const std::string code = UpperCode(module, line);
    for (std::string_view word : kHeaderWords)
      if (Holds(code, word)) return line;
  }
  return 0;
}

// A hit in a comment is passed over, one behind the declarations ends the search. [counts] must still stand there.
long DeclarationLine(host::CodeModule& module, const std::string& target, const std::string& counts) {
  const long last = module.CountOfDeclarationLines();
  for (long line = FindFrom(module, 1, target); line > 0 && line <= last; line = FindFrom(module, line + 1, target))
    if (Holds(UpperCode(module, line), counts)) return line;
  return 0;
}

}  // namespace

SoughtWord SoughtIn(std::string_view text) {
  SoughtWord word;
  word.declared = BeginsWith(text, " ");
  word.name = UCase(text);
  if (word.declared) {
    long bracket = InStr(word.name, "(");
    word.bare = bracket >= 2 ? Left(word.name, bracket - 1) : word.name;
  } else {
    word.name = " " + word.name + "(";
  }
  if (long dot = InStr(word.name, "."); dot > 0) {
    word.dotted = true;
    word.object = Trim(Left(word.name, dot - 1));
    word.name = Mid(word.name, dot + 1);
  }
  return word;
}

bool SoughtWord::IsIn(std::string_view row) const {
  if (!declared) {
    long at = InStr(row, name);
    return at > 0 && HoldsHeaderWordBefore(row, at);
  }
  return Holds(row, name + " AS ") || Holds(row, "CONST" + name + " =") || Holds(row, name + " LIB \"") ||
         HoldsFunctionOfType(row, bare);
}

long SoughtWord::LineIn(host::CodeModule& module) const {
  if (!declared) return ProcedureLine(module, name);
  const struct {
    std::string target, counts;
  } kSearches[] = {{name + " AS ", name + " AS "},
                   {"CONST" + name + " =", "CONST" + name + " ="},
                   {name + " LIB \"", name + " LIB "},
                   {bare + "(", bare + "("}};
  for (const auto& search : kSearches)
    if (long line = DeclarationLine(module, search.target, search.counts)) return line;
  return 0;
}

std::string TypeOfVariable(host::CodeModule& module, const std::string& name) {
  const std::string as = name + " AS ", asNew = name + " AS NEW ";
  long line = FindFrom(module, 1, as);
  if (line == 0 || line > module.CountOfDeclarationLines()) return {};
  const std::string code = UpperCode(module, line);
  if (!Holds(code, as)) return {};
  const std::string& mark = Holds(code, asNew) ? asNew : as;
  const std::string type = Trim(Mid(code, InStr(code, mark) + Len(mark)));
  size_t end = type.find(',');
  if (end == std::string::npos) end = type.find(" _");
  return type.substr(0, end);
}

}  // namespace corvane::explorer
