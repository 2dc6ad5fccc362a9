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
    Tie(bar, "Controls", controls);
    Tie(menu, "Controls", menu_controls);
    for (auto& own : {controls, menu_controls}) own->Answer("Count", 3L);
    Tie(controls, "Add", button);
    Tie(menu_controls, "Add", item);
    for (const char* member : {"Visible", "State", "Style", "Caption", "PasteFace", "Delete"})
      for (auto& control : {button, item}) control->Answer(member, Value());
    AnswerByArgument();
    Tie(events, "VBBuildEvents", builds);
    clicks->has_events = item_clicks->has_events = builds->has_events = true;
  }

  IDispatch* Root() const { return vbe.Get(); }
  void Click() {
    VARIANT_BOOL handled = VARIANT_FALSE, cancel_default = VARIANT_FALSE;
    VARIANT arguments[3];
    for (VARIANT& argument : arguments) VariantInit(&argument);
    arguments[2].vt = VT_DISPATCH;
    arguments[2].pdispVal = button.Get();
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
  // The button of the "Standard" bar and the item of the "Add-Ins" menu, and the clicks on each.
  ComPointer<ScriptedObject> vbe = New("vbe"), window = New("window"), bars = New("bars"), bar = New("bar"),
                             controls = New("controls"), button = New("button"), menu = New("menu"),
                             menu_controls = New("menu controls"), item = New("item"), events = New("events"),
                             clicks = New("clicks"), item_clicks = New("item clicks"), builds = New("builds");

 private:
  std::vector<ComPointer<ScriptedObject>> Members() const {
    return {vbe, window, bars, bar, controls, button, menu, menu_controls, item, events, clicks, item_clicks, builds};
  }
  // What a call asks for stands in its last argument. Each answer holds one reference, whichever it is.
  void AnswerByArgument() {
    Tie(bars, "Item", bar);
    Tie(events, "CommandBarEvents", clicks);
    bars->Do("Item", [this](DISPPARAMS& asked) {
      const bool is_menu = asked.rgvarg[0].vt == VT_BSTR && std::wstring(asked.rgvarg[0].bstrVal) == L"Add-Ins";
      Tie(bars, "Item", is_menu ? menu : bar);
    });
    events->Do("CommandBarEvents", [this](DISPPARAMS& asked) {
      const bool of_item = asked.rgvarg[0].vt == VT_DISPATCH && Scripted(asked.rgvarg[0].pdispVal) == item.Get();
      Tie(events, "CommandBarEvents", of_item ? item_clicks : clicks);
    });
  }
  ComPointer<ScriptedObject> New(const std::string& name) { return ScriptedObject::New(name, log); }
  static void Tie(const ComPointer<ScriptedObject>& from, const char* member, const ComPointer<ScriptedObject>& to) {
    from->Answer(member, to);
  }
  ULONG held_at_start_ = 0;
};

}  // namespace corvane::com
