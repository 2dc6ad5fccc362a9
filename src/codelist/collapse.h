// Folding: which lines of a code list are hidden, and how its block levels are walked along. The levels are those of
// the marks inside the lines; nothing here draws or asks. Lines count from 1.
#pragma once

#include "codelist/line_store.h"

namespace corvane::codelist {

// The level under the pointer must be at least this for a block to be there.
inline constexpr long kFirstBlockLevel = 34;

// On line 1 and on the last line there is nothing to fold.
bool CanFold(const LineStore& store, long line);

// Folds the block of level [target] around [line].
void CollapseHere(LineStore& store, long line, long target);
// Folds all that is at least at level [target].
void CollapseOnLevel(LineStore& store, long target);
// Leaves the lines with a keyword and the outermost ones.
void LogicalCollapse(LineStore& store);
void CollapseSelected(LineStore& store);
// Shows every line; selections go as well.
void ResetCollapse(LineStore& store);

// Whether a folded stretch follows [line], and its opening.
bool CanExpand(const LineStore& store, long line);
void Expand(LineStore& store, long line);

// The next line, down or up, where a block of level [target] opens or closes; else the last line or line 1.
long GoDown(const LineStore& store, long line, long target);
long GoUp(const LineStore& store, long line, long target);

}  // namespace corvane::codelist
