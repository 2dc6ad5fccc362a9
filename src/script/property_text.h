// Values of properties as scripts read and write them.
#pragma once

#include <string>

#include "host/designer.h"

namespace corvane::script {

// A list with "|" between its items, a font by its name, all else as text. Throws what reading throws.
std::string ValueText(host::Property& property);
// All but the name: name "." value "|" for each; "Error" for what cannot be read.
std::string AllProperties(host::Properties& properties);

// The value conversion routine: what a name of a value stands for ("True", "vbRed"), as a number; other texts as they
// are.
host::Variant NamedValue(const std::string& text);

}  // namespace corvane::script
