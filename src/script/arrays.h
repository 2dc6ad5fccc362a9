// The twenty arrays of a run: one-dimensional rows of cells that grow on assignment, addressed from 1.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "script/memory_use.h"
#include "script/script_state.h"

namespace corvane::script {

class Arrays {
 public:
  static constexpr long kSlots = 20;
  // The highest index; beyond it nothing is stored, and that is reported.
  static constexpr double kHighest = 1'000'000;

  Arrays(ScriptState& state, ErrorReport& errors) : state_(state), errors_(errors) {}

  void Clear();

  // [what] is "UBOUND", "ERASE" or an index as text; slots count from 1.
  std::string ArrayAccess(long slot, std::string_view what);
  // The element takes lastValue. Throws Error 9 for an index that rounds to 0.
  void ArrayStore(long slot, double index);

  void AddTo(MemoryUse& use) const;

  long arrayCount = 0;  // arrays declared in the run

 private:
  std::string Element(const std::vector<Cell>& elements, std::string_view index);

  ScriptState& state_;
  ErrorReport& errors_;
  std::array<std::vector<Cell>, kSlots> slots_;  // arraySlots
};

}  // namespace corvane::script
