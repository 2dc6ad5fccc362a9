// What is not certain of the environment's behaviour, each as one switch with what is known about it.
#pragma once

namespace corvane::environment::doubtful {

// "#Const X = 1" alone is no declaration line: it belongs to the first procedure when nothing is declared below it.
inline constexpr bool kConstDirectiveIsDeclaration = false;

// Comments directly below "End Sub" belong to the next procedure, as the documentation of ProcStartLine has it. One
// observer saw them stay with the procedure above up to the first blank line.
inline constexpr bool kCommentsBelowEndStay = false;

// The name of "Function Mid1$()" is "Mid1": without its type sign.
inline constexpr bool kTypeSignIsPartOfName = false;

// Lines(start, ...) and ProcOfLine with a line number outside the module are Error 9. An empty module has no lines:
// Lines(1, n) of it is empty text.
inline constexpr bool kLinesOfEmptyModuleFail = false;

// DeleteLines with a count past the end deletes what there is.
inline constexpr bool kDeletePastTheEndFails = false;

// InsertLines behind the end appends, without blank lines in between.
inline constexpr bool kInsertBehindTheEndPads = false;

// Find that starts behind the last line finds nothing; it does not fail.
inline constexpr bool kFindBehindTheEndFails = false;

// The end column of the range that Find searches is the last one that a hit may touch; the one that it returns is one
// past the last character.
inline constexpr bool kFindEndColumnIsInclusive = true;

// matchcase and patternsearch together are an error by the documentation; its number is not given there.
inline constexpr bool kCaseAndPatternFail = true;

// A pattern with an unclosed "[" takes it literally; Error 93 is the other possibility.
inline constexpr bool kUnclosedListFails = false;

// FileCount of a form without an .frx.
inline constexpr long kFileCountWithoutFrx = 1;

// A control that is added lies on top of the others of its container, and the file has the topmost one first: it stands
// before all others. Menus have no depth: a new one comes last, and all of them behind the controls.
inline constexpr bool kNewControlStandsFirst = true;

// Texts up to this length without control bytes stand in the designer part itself, longer ones in the binary sibling.
// The longest that was seen inline has 121 bytes, the shortest in a sibling 134.
inline constexpr unsigned kLongestInlineText = 127;

// The Index of a control that is in no array.
inline constexpr long kIndexOfNoArray = -1;

}  // namespace corvane::environment::doubtful
