// Engine: what one frmLib is made of, as the execution loop and the commands see it.
#pragma once

#include <cstdint>

#include "script/arrays.h"
#include "script/assignment.h"
#include "script/debug_step.h"
#include "script/expressions.h"
#include "script/limits.h"
#include "script/outside.h"
#include "script/piece_labels.h"
#include "script/report_error.h"
#include "script/result_window.h"
#include "script/script_state.h"
#include "script/sub_store.h"
#include "script/translated_pieces.h"
#include "script/variable_store.h"

namespace corvane::script {

class Commands;

struct Engine {
  ScriptState& state;
  ErrorBoxes& errors;
  Outside& outside;
  VariableStore& store;
  Expressions& expressions;
  Assignment& assignment;
  Arrays& arrays;
  SubStore& subs;
  TranslatedPieces& pieces;
  DebugStepper& debugger;
  ResultWindow& result;
  Commands& commands;

  int nested_runs = 0;               // runs of code that are under way
  long statements_unyielded = 0;     // over all of them
  uint32_t yielded_at = 0;           // milliseconds of the host's clock
  bool label_found = false;          // by a search, since the block reader looked
  TranslatedPiece* piece = nullptr;  // takes what the block reader's piece is made into
  size_t longest_text = kLongestText;
  size_t most_memory = kMostMemory;
  size_t unmeasured = 0;  // bytes that may have been added to what the script holds since it was last measured
  size_t measured = 0;
};

}  // namespace corvane::script
