// The rules that rewrite a statement, in the order in which they are tried.
#include "script/keywords.h"
#include "script/translation.h"

namespace corvane::script {

const Translation::KeywordRule Translation::kRules[] = {
    {"ELSEIF", &Translation::ElseIf, "ELSEIF condition THEN [statement]",
     "Runs if the tests before it failed and the condition is true."},
    {"SELECT CASE", &Translation::SelectCase, "SELECT CASE value", "Runs the CASE that lists the value."},
    {"END SELECT:", &Translation::EndSelect, "END SELECT", "Ends the innermost SELECT CASE."},
    {"CASE ELSE:", &Translation::CaseElse, "CASE ELSE", "Runs if no CASE before it lists the value."},
    {"CASE ", &Translation::Case, "CASE value[, value ...]", "Runs if the value of SELECT CASE is one of these texts."},
    {"CASE(", &Translation::Case, "CASE(value)", "Compares nothing: write a blank behind CASE."},
    {"EXIT FOR:", &Translation::ExitLoop, "EXIT FOR", "Leaves the innermost loop, a WHILE too."},
    {"EXIT WHILE:", &Translation::ExitLoop, "EXIT WHILE", "Leaves the innermost loop, a FOR too."},
    {"END SUB:", &Translation::EndSub, "END SUB", "Ends the definition of a SUB."},
    {"EXIT FUNCTION", &Translation::ExitFunction, "EXIT FUNCTION", "Leaves the function with the value it has so far."},
    {"FUNCTION ", &Translation::Function, "FUNCTION name([argument, ...])",
     "Begins a function, whose value is that of the variable of its name."},
    {"END FUNCTION:", &Translation::EndFunction, "END FUNCTION", "Ends the definition of a function."},
    {"ELSE:", &Translation::Else, "ELSE", "Runs if the tests before it failed."},
    {"END IF", &Translation::EndIf, "END IF", "Ends the innermost IF that has lines of its own."},
    {"IF(", &Translation::If, "IF(condition)THEN [statement]", "As IF with a blank behind it."},
    {"IF ", &Translation::If, "IF condition THEN [statement]",
     "Runs the one statement, or the lines up to ELSEIF, ELSE or END IF, if the condition is true."},
    {"CONTINUE:", &Translation::Continue, "CONTINUE", "Begins the next pass of the innermost loop."},
    {"NEXT ", &Translation::EndLoop, "NEXT variable", "Ends the innermost loop, whatever variable it names."},
    {"NEXT:", &Translation::EndLoop, "NEXT", "Ends the innermost loop, a WHILE too."},
    {"WEND:", &Translation::EndLoop, "WEND", "Ends the innermost loop, a FOR too."},
    {"LOOP:", &Translation::EndLoop, "LOOP", "Ends the innermost loop of either kind."},
    {"WHILE ", &Translation::While, "WHILE condition", "Repeats the lines up to WEND while the condition is true."},
    {"FOR ", &Translation::For, "FOR variable=start TO limit [STEP step]",
     "Repeats the lines up to NEXT while the variable rises to the limit."},
    {"", nullptr, "", ""},
};

std::vector<Keyword> RewrittenKeywords() {
  std::vector<Keyword> keywords;
  for (const auto* rule = Translation::kRules; rule->apply != nullptr; ++rule)
    keywords.push_back(KeywordOf(rule->start, rule->shape, rule->help));
  return keywords;
}

}  // namespace corvane::script
