// Command bars, their controls, and events.
#include "tests/stage/members.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

using host::CommandBar;
using host::CommandBarControl;
using host::CommandBarControls;
using host::CommandBars;
using host::Events;

namespace {

constexpr DISPID kControls = 0x60030000, kBars = 0x60040000, kButtons = 0x60050000;

// Add([Type], [Id], [Parameter], [Before], [Temporary])
void AddControl(Call& call) {
  const long type = call.Has(0) ? call.Number(0) : 1, before = call.Has(3) ? call.Number(3) : 0;
  call.Return(call.Target<CommandBarControls>().Add(static_cast<host::ControlType>(type), before));
}

}  // namespace

template <>
const ObjectTable& TableOf<CommandBars>() {
  static const ObjectTable table = {"CommandBars", CollectionMembers<CommandBars>(kControls + 0x3)};
  return table;
}

template <>
const ObjectTable& TableOf<CommandBar>() {
  static const ObjectTable table = {"CommandBar",
                                    {
                                        Get("Controls", kBars + 0x3, kForward<CommandBar, &CommandBar::Controls>),
                                        Get("Name", kBars + 0xe, kForward<CommandBar, &CommandBar::Name>),
                                    }};
  return table;
}

template <>
const ObjectTable& TableOf<CommandBarControls>() {
  static const ObjectTable table = {
      "CommandBarControls",
      CollectionMembers<CommandBarControls>(kControls + 0x1, {Method("Add", kControls + 0x0, &AddControl, 0, 5)})};
  return table;
}

template <>
const ObjectTable& TableOf<CommandBarControl>() {
  using C = CommandBarControl;
  static const ObjectTable table = {
      "CommandBarControl",
      {
          GetSet("Caption", kBars + 0x3, kForward<C, &C::Caption>, kForward<C, &C::SetCaption>),
          Method("Delete", kBars + 0x7, kForward<C, &C::Delete>, 0, 1),
          GetSet("Visible", kBars + 0x29, nullptr, kForward<C, &C::SetVisible>),
          Method("PasteFace", kButtons + 0x5, kForward<C, &C::PasteFace>),
          GetSet("State", kButtons + 0x8, nullptr, kForward<C, &C::SetState>),
          GetSet("Style", kButtons + 0xa, nullptr, kForward<C, &C::SetStyle>),
      }};
  return table;
}

template <>
const ObjectTable& TableOf<Events>() {
  static const ObjectTable table = {
      "Events",
      {
          Get("CommandBarEvents", 0xcd, kForward<Events, &Events::CommandBarEvents>, 1),
          {"VBBuildEvents", 0xd2, 0, 0, kForward<Events, &Events::VBBuildEvents>, nullptr, nullptr, true},
      }};
  return table;
}

const ObjectTable& TableOfLaterEvents() {
  static const ObjectTable table = {"Events2", {Get("VBBuildEvents", 0xd2, kForward<Events, &Events::VBBuildEvents>)}};
  return table;
}

template <>
const ObjectTable& TableOf<host::CommandBarEvents>() {
  static const ObjectTable table = {"CommandBarEvents", {}};
  return table;
}

template <>
const ObjectTable& TableOf<host::VBBuildEvents>() {
  static const ObjectTable table = {"VBBuildEvents", {}};
  return table;
}

}  // namespace corvane::stage
