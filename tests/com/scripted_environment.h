// ScriptedEnvironment: the objects of an environment that an add-in meets when it connects.
#pragma once

#include "tests/com/scripted_object.h"

namespace corvane::com {

struct ScriptedEnvironment {
  explicit ScriptedEnvironment(std::shared_ptr<Log> log) : log(std::move(log)) {
    Tie(vbe, "MainWindow", window);
    Tie(vbe, "CommandBars", bars);
    Tie(vbe, "Events", events);
    window->Answer("HWnd", 0L);
    Tie(bars, "Item", bar);
    Tie(bar, "Controls", controls);
    controls->Answer("Count", 3L);
    Tie(controls, "Add", control);
    for (const char* member : {"Visible", "State", "Style", "Caption", "PasteFace", "Delete"})
      control->Answer(member, Value());
    Tie(events, "CommandBarEvents", clicks);
    Tie(events, "VBBuildEvents", builds);
    clicks->has_events = builds->has_events = true;
  }

  IDispatch* Root() const { return vbe.Get(); }
  void Click() {
    VARIANT_BOOL handled = VARIANT_FALSE, cancel_default = VARIANT_FALSE;
    VARIANT arguments[3];
    for (VARIANT& argument : arguments) VariantInit(&argument);
    arguments[2].vt = VT_DISPATCH;
    arguments[2].pdispVal = control.Get();
    arguments[1].vt = arguments[0].vt = VT_BYREF | VT_BOOL;
    arguments[1].pboolVal = &handled;
    arguments[0].pboolVal = &cancel_default;
    clicks->Raise(1, {arguments[0], arguments[1], arguments[2]});
  }
  void EnterRunMode() { builds->Raise(2, {}); }
  // References that somebody else holds on any of the objects.
  ULONG Held() const {
    ULONG held = 0;
    for (const auto& object : Members()) held += object->References();
    return held - held_at_start_;
  }
  void StartCounting() {
    held_at_start_ = 0;
    held_at_start_ = Held();
  }

  std::shared_ptr<Log> log;
  ComPointer<ScriptedObject> vbe = New("vbe"), window = New("window"), bars = New("bars"), bar = New("bar"),
                             controls = New("controls"), control = New("control"), events = New("events"),
                             clicks = New("clicks"), builds = New("builds");

 private:
  std::vector<ComPointer<ScriptedObject>> Members() const {
    return {vbe, window, bars, bar, controls, control, events, clicks, builds};
  }
  ComPointer<ScriptedObject> New(const std::string& name) { return ScriptedObject::New(name, log); }
  static void Tie(const ComPointer<ScriptedObject>& from, const char* member, const ComPointer<ScriptedObject>& to) {
    from->Answer(member, to);
  }
  ULONG held_at_start_ = 0;
};

}  // namespace corvane::com
