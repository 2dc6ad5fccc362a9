// The rules that rewrite a statement, in the order in which they are tried.
#include "script/translation.h"

namespace corvane::script {

const Translation::KeywordRule Translation::kRules[] = {
    {"ELSEIF", &Translation::ElseIf},
    {"SELECT CASE", &Translation::SelectCase},
    {"END SELECT:", &Translation::EndSelect},
    {"CASE ELSE:", &Translation::CaseElse},
    {"CASE ", &Translation::Case},
    {"CASE(", &Translation::Case},
    {"EXIT FOR:", &Translation::ExitLoop},
    {"EXIT WHILE:", &Translation::ExitLoop},
    {"END SUB:", &Translation::EndSub},
    {"EXIT FUNCTION", &Translation::ExitFunction},
    {"FUNCTION ", &Translation::Function},
    {"END FUNCTION:", &Translation::EndFunction},
    {"ELSE:", &Translation::Else},
    {"END IF", &Translation::EndIf},
    {"IF(", &Translation::If},
    {"IF ", &Translation::If},
    {"CONTINUE:", &Translation::Continue},
    {"NEXT ", &Translation::EndLoop},
    {"NEXT:", &Translation::EndLoop},
    {"WEND:", &Translation::EndLoop},
    {"LOOP:", &Translation::EndLoop},
    {"WHILE ", &Translation::While},
    {"FOR ", &Translation::For},
    {"", nullptr},
};

}  // namespace corvane::script
