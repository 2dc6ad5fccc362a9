// A library of types as an environment has one, made for tests.
#pragma once

#include "com/com_pointer.h"

namespace corvane::com {

// The interface of its events, and the id of EnterRunMode there.
inline constexpr IID kMadeEvents = {0x4A5E4E21, 0x1C7B, 0x4F0A, {0x8D, 0x52, 0x61, 0x0B, 0x7C, 0x9E, 0x33, 0x01}};
inline constexpr DISPID kMadeEventId = 17;
// The later interface "Events2" of its objects.
inline constexpr char kMadeEvents2[] = "{4A5E4E22-1C7B-4F0A-8D52-610B7C9E3302}";

// How that one is called: by name, by its slots, or both.
enum class EventsKind { Names, Slots, Dual };

// One of its types: "Source", "Events2" or "MadeEvents". Null where it could not be made.
ComPointer<ITypeInfo> MadeType(const wchar_t* name, EventsKind kind = EventsKind::Names);

}  // namespace corvane::com
