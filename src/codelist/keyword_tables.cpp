#include "codelist/keyword_tables.h"

namespace corvane::codelist {

namespace {

using enum Marking;
using enum Condition;

// Any character may follow.
constexpr std::string_view kAny;

// clang-format off
constexpr KeywordRow kVbKeywords[] = {
    // match          next    marking  form               last  consumed
    {"END IF",        kAny,   Closing, "End If/-\\/+",     '\\', 6},
    {"END WITH",      kAny,   Closing, "End With/-\\/+",   '\\', 8},
    {"END SELECT",    kAny,   Closing, "End Select/-\\/+", '\\', 10},
    {"END SUB",       kAny,   Plain,   "",                 0,    0, None, Effect::EndsProcedure},
    {"END FUNCT",     kAny,   Plain,   "",                 0,    0, None, Effect::EndsProcedure},
    {"END PROPE",     kAny,   Plain,   "",                 0,    0, None, Effect::EndsProcedure},
    {"ELSEIF",        " :'",  Closing, "ElseIf/+",         '\\', 6},
    {"ELSE",          " :'",  Closing, "Else/+",           '\\', 4},
    {"EXIT FOR",      kAny,   Plain,   "Exit Fo",          'r',  8},
    {"EXIT DO",       kAny,   Plain,   "Exit D",           'o',  7},
    {"EXIT WHILE",    kAny,   Plain,   "Exit Whil",        'e',  10},
    {"IF",            " (",   Opening, "If/+",             '\\', 2},
    {"IN ",           kAny,   Closing, "In/+\\",           ' ',  3},
    {"THEN",          " '",   Closing, "Then/+",           '\\', 4, None, Effect::MeetsThen},
    {"TO ",           kAny,   Closing, "To/+\\",           ' ',  3},
    {"FOR EACH ",     kAny,   Opening, "For Each/+\\",     ' ',  9},
    {"FOR ",          kAny,   Opening, "For/+\\",          ' ',  4, NoOpenBefore},
    {"WITH ",         kAny,   Opening, "With/+\\",         ' ',  5},
    {"WHILE ",        kAny,   Opening, "While/+\\",        ' ',  6},
    {"WEND",          " ':",  Closing, "Wend/-\\/+",       '\\', 4},
    {"RESUME N",      kAny,   Plain,   "Resume ",          'N',  8},
    {"NEXT ",         kAny,   Closing, "Next/-\\/+\\",     ' ',  5},
    {"<%",            kAny,   Opening, "<%/-\\/+",         '\\', 2},
    {"%>",            kAny,   Opening, "%>/-\\/+",         '\\', 2},
    {"SELECT CASE ",  kAny,   Opening, "Select Case/+\\",  ' ',  12},
    {"STEP",          " '",   Closing, "Step/+",           '\\', 4},
    {"CASE ELSE ",    kAny,   Closing, "Case Else/+\\",    ' ',  10},
    {"CASE ",         kAny,   Closing, "Case/+\\",         ' ',  5},
    {"DO WHILE",      kAny,   Opening, "Do While/+",       '\\', 8},
    {"DO UNTIL",      kAny,   Opening, "Do Until/+",       '\\', 8},
    {"DO ",           kAny,   Opening, "Do/+\\",           ' ',  3},
    {"LOOP WHILE",    kAny,   Closing, "Loop While/-\\/+", '\\', 10},
    {"LOOP UNTIL",    kAny,   Closing, "Loop Until/-\\/+", '\\', 10},
    {"LOOP ",         kAny,   Closing, "Loop/-\\/+\\",     ' ',  5},
};

// "BEGIN TRAN " takes one character less than it matches and "BEGIN TRANSACTION" writes a blank that it did not take,
// so both leave a blank more; "END" writes a blank for the comma that may follow it.
constexpr KeywordRow kSqlKeywords[] = {
    // match               next   marking  form                       last  consumed
    {"SELECT ",            kAny,  Opening, "Select/-\\/+\\",            ' ',  7, None, Effect::None, true},
    {"SET ",               kAny,  Opening, "Set/-\\/+\\",               ' ',  4},
    {"CURSOR ",            kAny,  Opening, "Cursor/-\\/+\\",            ' ',  7},
    {"COMMIT ",            kAny,  Opening, "Commit/-\\/+\\",            ' ',  7, None, Effect::None, true},
    {"CLOSE ",             kAny,  Opening, "Close/-\\/+\\",             ' ',  6},
    {"CASE ",              kAny,  Opening, "Case/+\\",                  ' ',  5, None, Effect::EntersCase},
    {"END",                " ,",  Closing, "End/-\\/+\\",               ' ',  4, None, Effect::LeavesCase, true},
    {"ELSE ",              kAny,  Opening, "Else/-\\/+\\",              ' ',  5, OutsideCase, Effect::None, true},
    {"ELSE ",              kAny,  Closing, "Else/+\\",                  ' ',  5, InCase, Effect::None, true},
    {"EXECUTE ",           kAny,  Opening, "Execute/-\\/+\\",           ' ',  8},
    {"EXEC ",              kAny,  Opening, "Exec/-\\/+\\",              ' ',  5},
    {"DECLARE ",           kAny,  Opening, "Declare/-\\/+\\",           ' ',  8},
    {"DEALLOCATE",         kAny,  Opening, "Deallocate/-\\/+",          '\\', 10},
    {"DELETE ",            kAny,  Opening, "Delete/-\\/+\\",            ' ',  7},
    {"FROM ",              kAny,  Opening, "From/-\\/+\\",              ' ',  5},
    {"FETCH ",             kAny,  Opening, "Fetch/-\\/+\\",             ' ',  6},
    {"WHERE ",             kAny,  Opening, "Where/-\\/+\\",             ' ',  6},
    {"WHILE ",             kAny,  Opening, "While/-\\/+\\",             ' ',  6},
    {"WHEN ",              kAny,  Closing, "When/+\\",                  ' ',  5},
    {"OPEN ",              kAny,  Opening, "Open/-\\/+\\",              ' ',  5},
    {"ORDER BY",           kAny,  Opening, "Order By/-\\/+",            '\\', 8},
    {"UPDATE ",            kAny,  Opening, "Update/-\\/+\\",            ' ',  7},
    {"UNION ",             kAny,  Opening, "Union/-\\/+\\",             ' ',  6},
    {"BEGIN TRAN ",        kAny,  Opening, "Begin Tran/-\\/+\\",        ' ',  10},
    {"BEGIN TRANSACTION",  kAny,  Opening, "Begin Transaction/-\\/+\\", ' ',  17},
    {"BEGIN ",             kAny,  Opening, "Begin/+\\",                 ' ',  6},
    {"VALUES",             kAny,  Opening, "Values/-\\/+",              '\\', 6},
    {"GOTO ",              kAny,  Opening, "GoTo/-\\/+\\",              ' ',  5},
    {"GROUP BY",           kAny,  Opening, "Group By/-\\/+",            '\\', 8},
    {"RETURN",             kAny,  Opening, "Return/-\\/+",              '\\', 6},
    {"ROLLBACK ",          kAny,  Opening, "Rollback/-\\/+\\",          ' ',  9, None, Effect::None, true},
    {"THEN ",              kAny,  Closing, "Then/+\\",                  ' ',  5},
    {"TRANS ",             kAny,  Opening, "Trans/-\\/+\\",             ' ',  6},
    {"TRANSACTION ",       kAny,  Opening, "Transaction/-\\/+\\",       ' ',  12},
    {"IS ",                kAny,  Opening, "Is/-\\/+\\",                ' ',  3, None, Effect::None, true},
    {"INSERT ",            kAny,  Opening, "Insert/-\\/+\\",            ' ',  7, None, Effect::None, true},
    {"IF",                 " (",  Opening, "If/-\\/+",                  '\\', 2, None, Effect::LeavesCase},
    {"INTO ",              kAny,  Opening, "Into/-\\/+\\",              ' ',  5},
};
// clang-format on

}  // namespace

std::span<const KeywordRow> VbKeywords() {
  return kVbKeywords;
}
std::span<const KeywordRow> SqlKeywords() {
  return kSqlKeywords;
}

}  // namespace corvane::codelist
