#include "explorer/rows.h"

#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kTitleStars[] = " ****************************** ";
constexpr long kFirstTailPosition = 5, kLongestTitleName = 30, kRowBlanks = 160, kDeclarationsBlanks = 200;

}  // namespace

std::string TitleOfModule(std::string_view name) {
  return std::string(kTitleStars) + kTitleMark + std::string(name) + kTitleStars;
}

bool IsTitleOfModule(std::string_view text) {
  return BeginsWith(text, std::string(kTitleStars) + kTitleMark);
}

std::string ModuleOfTitle(std::string_view text) {
  long mark = InStr(text, kTitleMark);
  if (mark == 0) return {};
  std::string name = Mid(text, mark + Len(kTitleMark), kLongestTitleName);
  return name.substr(0, name.find(' '));
}

std::string TailOf(long component) {
  return component > 0 ? Space(kRowBlanks) + kTailMark + CStr(component) : std::string();
}

std::string CurrentDeclarations(long component) {
  return " " + std::string(kDeclarations) + Space(kDeclarationsBlanks) + kTailMark + CStr(component);
}

long ComponentInTail(std::string_view row) {
  long mark = InStrRev(row, kTailMark);
  return mark < kFirstTailPosition ? -1 : static_cast<long>(Val(Mid(row, mark + Len(kTailMark))));
}

std::string ShownText(std::string_view row) {
  if (ComponentInTail(row) >= 0) row = row.substr(0, static_cast<size_t>(InStrRev(row, kTailMark)) - 1);
  return Trim(row);
}

std::string LabelOf(std::string_view row) {
  long colon = InStr(row, ":");
  return colon == 0 ? std::string() : Left(row, colon - 1);
}

bool IsBookmark(std::string_view row) {
  return InStrRev(row, kBookmarkMark) >= kFirstTailPosition;
}

Bookmark ReadBookmark(std::string_view row) {
  long mark = InStrRev(row, kBookmarkMark);
  std::string place = Mid(row, mark + Len(kBookmarkMark));
  size_t tab = std::min(place.find('\t'), place.size());
  return {Left(row, mark - 1), place.substr(0, tab), static_cast<long>(Val(std::string_view(place).substr(tab)))};
}

std::string BookmarkRow(std::string_view text, std::string_view module, long line) {
  return std::string(text) + Space(kRowBlanks - 1) + kBookmarkMark + std::string(module) + "\t" + CStr(line);
}

}  // namespace corvane::explorer
