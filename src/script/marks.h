// The control characters that the engine's texts use as marks. No script text should hold them.
#pragma once

namespace corvane::script {

inline constexpr char labelMark =
    1;                              // starts a label of the flat program; separates entries of objectNames, parameters
inline constexpr char listSep = 2;  // between the values of a list; before a cell number in varStore
inline constexpr char paramMark = 3;   // first of an Execute argument that carries parameters
inline constexpr char quoteMark = 4;   // around a text value put back into an expression
inline constexpr char deadMark = 5;    // disables an old entry of savedDialogValues
inline constexpr char valueEnd = 6;    // ends an entry of dialogValues
inline constexpr char lineMark = 9;    // a line end inside code over many lines
inline constexpr char itemMark = 10;   // inside a list control's value in dialogValues
inline constexpr char indexMark = 11;  // the same

}  // namespace corvane::script
