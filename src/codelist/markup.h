// The markup inside the text of a line, and the level that its marks count.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/types.h"

namespace corvane::codelist {

inline constexpr std::string_view kLevelUp = "/+\\", kLevelDown = "/-\\";
inline constexpr char kBold = 2;          // from here to the next level mark
inline constexpr char kPlainEntry = 3;    // first character of a plain tree entry
inline constexpr char kPictureMark = 4;   // around the name of a picture
inline constexpr char kBlockComment = 6;  // the line began inside a block comment
inline constexpr std::string_view kCaption = "::";

// Level of unnested code: a multiple of the ring of colours, so that it is drawn in the first.
inline constexpr long BaseLevel = 33;

// A mark in a text: its place from 0 (npos: there is none) and the step that it makes.
struct Mark {
  size_t place;
  int step;
};
Mark FirstMark(std::string_view text, size_t from = 0);

// What all marks of [text] add to the level.
long SumOfMarks(std::string_view text);

// [text] without its marks; picture marks stay.
std::string CleanText(std::string_view text);

// Characters that are marks by themselves, and the count of the others in [run], a text between two level marks.
bool IsMarkCharacter(char c);
size_t PlainLength(std::string_view run);

// A level as the state of a line holds it: a negative one as 200 less the level.
constexpr int32_t EncodeLevel(long level) {
  return static_cast<int32_t>(level >= 0 ? level : 200 - level);
}

// The ring of eleven colours, black first.
forms::Color LevelColor(long level);
inline constexpr forms::Color kCommentColor = forms::RGB(192, 192, 192);

// What sGrid chooses: 0 is also the value of a control that was given no sGrid yet.
enum ListMode : long { kTreeList = 0, kVbList = 1, kGridList = 2, kSqlList = 3, kTextList = 4 };

// Where the comment of [run], a text between two marks, starts from 0; npos for none. The first run of a line has the
// blank in front with which it is drawn.
size_t CommentStart(long list_mode, std::string_view run);

}  // namespace corvane::codelist
