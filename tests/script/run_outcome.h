// What a run of a script comes to, to be compared between the forms of the engine.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/script/fake_surroundings.h"

namespace corvane::script {

struct Outcome {
  std::string result, store, value;
  std::vector<std::string> boxes;
  int yields = 0;
  size_t steps = 0;
  bool operator==(const Outcome&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  out << "result " << outcome.result << "\nstore " << outcome.store << "\nvalue " << outcome.value << "\nyields "
      << outcome.yields << "\n";
  for (const std::string& box : outcome.boxes) out << "box " << box << "\n";
  return out;
}

// Endless scripts are stopped, boxes answered with OK until there are many.
template <class Lib>
Outcome RunOn(const std::string& script) {
  constexpr int kMostYields = 6, kMostBoxes = 12;
  FakeSurroundings world;
  Lib lib(world.around);
  Outcome outcome;
  world.services.loop.on_do_events = [&] {
    if (++outcome.yields == kMostYields) lib.StopMe();
  };
  for (int box = 0; box < kMostBoxes; ++box) world.services.prompts.answers.push_back(host::vbOK);
  for (int box = 0; box < kMostBoxes; ++box) world.services.prompts.answers.push_back(host::vbCancel);
  lib.RunScriptText(runtime::Replace(script, "\n", runtime::kCrLf));
  outcome.result = Readable(lib.ResultText());
  outcome.store = Readable(lib.Parts().store.Text());
  outcome.value = TextOf(lib.Parts().state.lastValue);
  outcome.steps = world.debug.views.size();
  for (const auto& asked : world.services.prompts.messages) outcome.boxes.push_back(Readable(asked.prompt));
  return outcome;
}

}  // namespace corvane::script
