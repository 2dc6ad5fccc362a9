// The items that a toolbar and an image list of the common controls keep in the designer part: buttons and pictures,
// and the image list that a toolbar takes its pictures from.
#pragma once

#include <string>

#include "environment/properties.h"

namespace corvane::environment {

// The property "Buttons" or "ImageList" of a toolbar, or "ListImages" of an image list: its Object has Add and Count,
// or is the control. Nothing for all others. What is there already is not looked into; it only makes room.
host::Ref<host::Property> ItemsProperty(const PropertyPlace& place, const std::string& name);

}  // namespace corvane::environment
