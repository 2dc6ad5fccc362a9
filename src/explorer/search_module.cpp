#include "explorer/search_module.h"

#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kTitleMode[] = "PROJECT TITLE";
constexpr char kFavoriteMark[] = "''";
constexpr const char* kHeaders[] = {"SUB ", "FUNCTION ", "PROPERTY ", "EVENT "};
constexpr long kFewestLines = 2;

}  // namespace

bool ModuleSearch::IsTitleMode() const {
  return BeginsWith(UCase(text), kTitleMode);
}

bool HoldsHeader(const std::string& line) {
  const std::string upper = UCase(line);
  for (const char* word : kHeaders)
    if (const long at = InStr(upper, word)) return at == 1 || Mid(upper, at - 1, 1) == " ";
  return false;
}

bool IsTitleLine(const std::string& line) {
  const std::string text = Trim(line);
  const long mark = InStr(text, kFavoriteMark), behind = mark + Len(kFavoriteMark);
  if (mark == 1) return false;
  return Mid(text, behind, 1) != "\"" || InStr(behind, text, kFavoriteMark) > 0;
}

// The host looks from the line behind the hit on, so that a line is found once; one that is the last is reached only
// from further up.
void SearchModule(host::CodeModule& module, const ModuleSearch& search, const HitSink& found) {
  const bool titles = search.IsTitleMode();
  const std::string target = titles ? kFavoriteMark : UCase(search.text);
  const bool whole = search.wholeWord && !titles;
  const long last = module.CountOfLines();
  if (last < kFewestLines) return;
  long number = 0;
  for (long line = 1; line < last; ++line) {
    long column = 1, end_line = -1, end_column = -1;
    if (!module.Find(target, line, column, end_line, end_column, whole, false, whole)) return;
    const std::string text = module.Lines(line, 1);
    if (!search.withComments && BeginsWith(LTrim(text), "'")) continue;
    if (search.headersOnly && !titles && !HoldsHeader(text)) continue;
    ++number;
    if (titles && !IsTitleLine(text)) continue;
    found(line, text, number);
  }
}

}  // namespace corvane::explorer
