// The scan that takes one statement off the unread text.
#pragma once

#include <string>
#include <string_view>

#include "script/script_state.h"
#include "script/unread_text.h"

namespace corvane::script {

struct Statement {
  std::string text;          // trimmed, ends in ":"
  long eqPos = 0;            // column of the assignment's "="; -1: an operator came before any; 0: nothing decided
  long parenPos = 0;         // column of the first "(", if no operator came before it
  bool operatorMet = false;  // a character that ends a word
  size_t start = 0;          // place in the unread text behind the comments before it
};

enum class ScanEnd {
  kStatement,
  kDropped,      // its brackets differ; that was reported
  kOpenComment,  // the text ended in a comment
  kStopped,      // an error was answered with Cancel
};

// Takes the statement at the front of [unread], which is not empty and begins with no separator, with what ends it.
// Reports a string that is open at a line end, and brackets that do not match.
ScanEnd ScanStatement(UnreadText& unread, Statement& statement, ScriptState& state, ErrorReport& report);

}  // namespace corvane::script
