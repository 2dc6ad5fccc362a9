// The designer of a form: controls and properties.
#include "tests/stage/members.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

using host::ControlObject;
using host::LateBound;
using host::Properties;
using host::Property;
using host::SelectedVBControls;
using host::VBControl;
using host::VBControls;
using host::VBForm;

template <>
const ObjectTable& TableOf<VBForm>() {
  static const ObjectTable table = {"VBForm",
                                    {
                                        Get("SelectedVBControls", 0x2b, kForward<VBForm, &VBForm::SelectedVBControls>),
                                        Get("VBControls", 0x2f, kForward<VBForm, &VBForm::VBControls>),
                                    },
                                    true};
  return table;
}

namespace {

// Item(VarIndex, [ControlIndex])
void ControlItem(Call& call) {
  auto& controls = call.Target<VBControls>();
  call.Return(call.Has(1) ? controls.Item(call.Text(0), call.Number(1)) : controls.Item(call.Place(0)));
}

}  // namespace

template <>
const ObjectTable& TableOf<VBControls>() {
  static const ObjectTable table = {
      "VBControls",
      CollectionMembers<VBControls>(0x28,
                                    {
                                        // Add(ProgId, [RelativeVBControl], [Before])
                                        Method("Add", 0x2a, kForward<VBControls, &VBControls::Add>, 1, 3),
                                        Method("Remove", 0x2b, kForward<VBControls, &VBControls::Remove>, 1),
                                    },
                                    {&ControlItem, 2}),
      true};
  return table;
}

template <>
const ObjectTable& TableOf<SelectedVBControls>() {
  static const ObjectTable table = {"SelectedVBControls", CollectionMembers<SelectedVBControls>(0x28), true};
  return table;
}

template <>
const ObjectTable& TableOf<VBControl>() {
  static const ObjectTable table = {"VBControl",
                                    {
                                        Get("ClassName", 0x0, kForward<VBControl, &VBControl::ClassName>),
                                        Get("Properties", 0x2a, kForward<VBControl, &VBControl::Properties>),
                                        Get("ControlObject", 0x2d, kForward<VBControl, &VBControl::ControlObject>),
                                        Get("ProgId", 0x30, kForward<VBControl, &VBControl::ProgId>),
                                    },
                                    true};
  return table;
}

template <>
const ObjectTable& TableOf<ControlObject>() {
  static const ObjectTable table = {
      "ControlObject", {Get("Container", 0x68030000, kForward<ControlObject, &ControlObject::Container>)}, true};
  return table;
}

template <>
const ObjectTable& TableOf<Properties>() {
  static const ObjectTable table = {"Properties", CollectionMembers<Properties>(0x28), true};
  return table;
}

namespace {

void AddItem(Call& call) {
  std::vector<runtime::Variant> arguments;
  for (long position = 0; position < call.Count(); ++position)
    arguments.push_back(call.Has(position) ? call.Value(position) : runtime::Variant());
  call.Return(call.Target<LateBound>().Call("Add", arguments));
}

void CountItems(Call& call) {
  call.Return(call.Target<LateBound>().Call("Count", {}));
}

}  // namespace

template <>
const ObjectTable& TableOf<LateBound>() {
  static const ObjectTable table = {
      "Items", {Get("Count", 0x1, &CountItems), Method("Add", 0x2, &AddItem, 0, 5)}, true};
  return table;
}

template <>
const ObjectTable& TableOf<Property>() {
  static const ObjectTable table = {
      "Property",
      {
          GetSet("Value", 0x0, kForward<Property, &Property::Value>, kForward<Property, &Property::SetValue>),
          {"IndexedValue", 0x3, 1, 4, kForward<Property, &Property::IndexedValue>, nullptr,
           kForward<Property, &Property::SetIndexedValue>},
          Get("NumIndices", 0x4,
              [](Call& call) { call.Return(static_cast<short>(call.Target<Property>().NumIndices())); }),
          Get("Name", 0x28, kForward<Property, &Property::Name>),
          GetSet("Object", 0x2d, kForward<Property, &Property::Object>, kForward<Property, &Property::SetObject>),
      },
      true};
  return table;
}

}  // namespace corvane::stage
