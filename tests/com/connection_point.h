// The one connection point of a scripted object.
#pragma once

#include "tests/com/scripted_object.h"

namespace corvane::com {

IEnumConnectionPoints* NewConnectionPoints(ScriptedObject& object);

}  // namespace corvane::com
