// The texts of the explorer's rows: what is shown stands in front, what the machine reads behind a long run of blanks.
#pragma once

#include <string>
#include <string_view>

namespace corvane::explorer {

// The leading blanks make these rows sort first.
inline constexpr char kProjectGlobals[] = " Project Globals";
inline constexpr char kResult[] = " Result";
inline constexpr char kDeclarations[] = " Declarations";

inline constexpr char kTailMark[] = " +|";         // the component's index follows
inline constexpr char kBookmarkMark[] = " \\+\\";  // a module's name, a tab and a line follow
inline constexpr char kLabelEnd[] = ":    ";       // ends the label in front of a row
inline constexpr char kCurrentLine[] = "A current line";
inline constexpr char kModuleName[] = "ModuleName = ";            // heads the hits of a designer; its name follows
inline constexpr char kSearchResult[] = "    < Search Result >";  // title of the code view

// Title of a standard module in the code view of " Project Globals".
inline constexpr char kTitleMark[] = "Standart Module: ";
std::string TitleOfModule(std::string_view name);
bool IsTitleOfModule(std::string_view text);
// The name in a title: at most 30 characters, up to a blank.
std::string ModuleOfTitle(std::string_view text);

// The tail that tells a row's component; empty for a component below 1.
std::string TailOf(long component);
// First row of the procedures while the current code is shown.
std::string CurrentDeclarations(long component);

// The number behind the last mark, where that stands at position 5 or later; else -1.
long ComponentInTail(std::string_view row);
// What is shown of a row: without its tail, trimmed.
std::string ShownText(std::string_view row);
// The text in front of the first ":"; empty where there is none.
std::string LabelOf(std::string_view row);

struct Bookmark {
  std::string text, module;
  long line = 0;
};
bool IsBookmark(std::string_view row);
Bookmark ReadBookmark(std::string_view row);  // Requires: IsBookmark(row)
std::string BookmarkRow(std::string_view text, std::string_view module, long line);

}  // namespace corvane::explorer
