// Enumerator: the items of a collection as For Each walks them.
#pragma once

#include <functional>

#include "tests/stage/call.h"

namespace corvane::stage {

// The items from the first on; [item] gives the one at a position, from 1. With one reference, the caller's.
IUnknown* NewEnumerator(Stage& stage, long count, std::function<void(Call& answer, long position)> item);

// Answers _NewEnum.
template <class Collection>
void Enumerate(Call& call) {
  auto keep = call.Shared<Collection>();
  call.ReturnObject(NewEnumerator(call.stage, keep->Count(),
                                  [keep](Call& answer, long position) { answer.Return(keep->Item(position)); }),
                    VT_UNKNOWN);
}

}  // namespace corvane::stage
