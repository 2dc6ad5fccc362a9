// The designer of a form: its controls and their properties, as the Properties window shows them.
#pragma once

#include <vector>

#include "host/base.h"

namespace corvane::host {

class Properties;

// An object of a control that is known by the names of its members alone: the Buttons of a toolbar, the ListImages of
// an image list. An argument that is Empty is left out.
class LateBound : public runtime::Object {
 public:
  virtual Variant Call(const std::string& member, const std::vector<Variant>& arguments) = 0;
};

// A member may fail to be read or written with any Error.
class Property {
 public:
  virtual ~Property() = default;
  virtual std::string Name() = 0;
  virtual Variant Value() = 0;
  virtual void SetValue(const Variant& value) = 0;
  // 1 for lists (List, ItemData), else 0.
  virtual long NumIndices() = 0;
  virtual Variant IndexedValue(long index) = 0;
  virtual void SetIndexedValue(long index, const Variant& value) = 0;
  // The object of an object property (Font, Picture): a Properties collection for a font, a Picture for a picture, a
  // LateBound for what a control has of its own.
  virtual Variant Object() = 0;
  virtual void SetObject(const Variant& object) = 0;
};

class Properties : public Collection<Property>, public runtime::Object {};

class VBControl;

// What a control is at design time, beyond its properties.
class ControlObject {
 public:
  virtual ~ControlObject() = default;
  // The control that holds it; Nothing when the form itself does.
  virtual Ref<VBControl> Container() = 0;
};

class VBControl : public runtime::Object {
 public:
  virtual std::string ClassName() = 0;  // "Label"
  virtual std::string ProgId() = 0;     // "VB.Label"
  virtual Ref<host::Properties> Properties() = 0;
  virtual Ref<host::ControlObject> ControlObject() = 0;
};

// All controls of a designer, nested ones and menus too, in the order of its file.
class VBControls : public Collection<VBControl> {
 public:
  using Collection<VBControl>::Item;
  // The element [index] of the control array [name]. Error 9 where there is none.
  virtual Ref<VBControl> Item(const std::string& name, long index) = 0;
  // [prog_id] is "VB.Label" or "Label"; [container] may be Nothing. A new control gets the first free name of its kind.
  virtual Ref<VBControl> Add(const std::string& prog_id, const Ref<VBControl>& container) = 0;
  virtual void Remove(const Ref<VBControl>& control) = 0;
};

class SelectedVBControls : public Collection<VBControl> {};

class VBForm : public runtime::Object {
 public:
  virtual Ref<host::VBControls> VBControls() = 0;
  virtual Ref<host::SelectedVBControls> SelectedVBControls() = 0;
};

}  // namespace corvane::host
