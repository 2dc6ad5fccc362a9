// Values of properties: from the text of a designer part to a Variant, and back in the environment's own way of
// writing.
#pragma once

#include <string>
#include <string_view>

#include "environment/control_classes.h"
#include "environment/designer_part.h"
#include "runtime/variant.h"

namespace corvane::environment {

// Whether [text] must go to the binary sibling.
bool NeedsSibling(std::string_view text);

// A number as a designer part writes it: with "." or, by controls of other makers, "," before the decimals; &H..&,
// 1e-4, QBColor(n). False when it is none.
bool ReadNumber(std::string_view text, double& number);

// The value of [value] by a row's kind. Kinds that stand elsewhere (pictures, lists, fonts) are Empty.
runtime::Variant ReadValue(PropertyKind kind, const DesignerValue& value);
// The value of a property that no table knows, by its looks.
runtime::Variant GuessValue(const DesignerValue& value);
// The value that a row has when the file does not hold it. [name] is that of the component, for "$".
runtime::Variant DefaultValue(const PropertyRow& row, const std::string& name);

// What stands right of "=", with its comment. Throws Error 13 or 380 for what the kind cannot hold.
std::string WriteValue(PropertyKind kind, std::string_view choices, const runtime::Variant& value);

std::string WriteBoolean(bool value);
std::string WriteLength(double value);

}  // namespace corvane::environment
