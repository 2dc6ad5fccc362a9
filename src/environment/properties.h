// PropertyList: the Properties of a component, a control or a nested object: the full list of its class, values of the
// file over the defaults. Name first, then in the order of the alphabet.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "environment/control_classes.h"
#include "environment/designer_state.h"
#include "host/designer.h"

namespace corvane::environment {

// The properties of a control or, for the root, of the component. Standard modules have no block.
host::Ref<host::Properties> NewPropertyList(std::shared_ptr<DesignerState> state, DesignerBlockRef block);

// The properties of a font: Name, then Bold, Charset, Italic, Size, Strikethrough, Underline, Weight. [name] is that of
// the BeginProperty block, which may not be there yet; a font that is not written is its container's.
host::Ref<host::Properties> NewFontList(std::shared_ptr<DesignerState> state, DesignerBlockRef owner, std::string name);
// Takes over what [font] says of these.
void CopyFont(host::Properties& target, host::Properties& font);

// Error 380 for what is no name, 32813 for one that another control has.
void RenameControl(DesignerState& state, DesignerBlock& block, const std::string& name);

// The part of a property list that knows one value. For the files of the property list.
struct PropertyPlace {
  std::shared_ptr<DesignerState> state;
  DesignerBlockRef block;  // empty for standard modules
  const ControlClass* known = nullptr;

  DesignerPart& Part() const { return state->Part(); }
  // Error 91 for a control that was removed.
  DesignerBlock& Block() const;
  bool IsRoot() const { return !block || block == state->Root(); }
};

// List and ItemData (properties_lists.cpp).
std::vector<std::string> ReadItems(const PropertyPlace& place, std::string_view name);
void WriteItem(const PropertyPlace& place, std::string_view name, long index, const runtime::Variant& value);

// What stands in the binary sibling (properties_siblings.cpp). Empty text and Nothing where it cannot be read.
runtime::Variant ReadSiblingValue(const PropertyPlace& place, PropertyKind kind, const SiblingReference& reference);
// These tell whether anything changed.
bool WriteSiblingText(const PropertyPlace& place, std::string_view name, const std::string& text);
bool WritePicture(const PropertyPlace& place, std::string_view name, const runtime::PictureRef& picture);

}  // namespace corvane::environment
