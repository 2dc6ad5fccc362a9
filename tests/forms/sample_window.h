// A window for tests: two text boxes, two buttons, a list. It writes down what happens to it.
#pragma once

#include <string>
#include <vector>

#include "forms/headless_toolkit.h"
#include "forms/user.h"

namespace corvane::forms {

class SampleWindow : public Form {
 public:
  explicit SampleWindow(forms::Toolkit& toolkit, std::string name = "frmSample") : Form(toolkit, std::move(name)) {
    Form::Move(0, 0, 6000, 4000);
    const auto place = [](Control& control, Twips top) { control.Move(120, top, 1200, 300); };
    place(txtA, 100), place(txtB, 500), place(cmdOK, 900), place(cmdCancel, 1300), place(lst, 1700);
    for (Control* control : AllControls()) Note(*control);
    Load = [this] { log.push_back("Load"); };
    Resize = [this] { log.push_back("Resize"); };
    Activate = [this] { log.push_back("Activate"); };
    Deactivate = [this] { log.push_back("Deactivate"); };
    QueryUnload = [this](bool&, UnloadMode mode) { log.push_back("QueryUnload " + std::to_string(int(mode))); };
    UnloadEvent = [this](bool&) { log.push_back("Unload"); };
  }

  // Writes the events of [control] down.
  void Note(Control& control) {
    const std::string name = control.Name();
    control.Click = [this, name] { log.push_back(name + "_Click"); };
    control.DblClick = [this, name] { log.push_back(name + "_DblClick"); };
    control.GotFocus = [this, name] { log.push_back(name + "_GotFocus"); };
    control.LostFocus = [this, name] { log.push_back(name + "_LostFocus"); };
    control.Validate = [this, name](bool&) { log.push_back(name + "_Validate"); };
    control.KeyDown = [this, name](int& key, int shift) {
      log.push_back(name + "_KeyDown " + std::to_string(key) + " " + std::to_string(shift));
    };
    control.KeyPress = [this, name](int& key) { log.push_back(name + "_KeyPress " + std::to_string(key)); };
    control.KeyUp = [this, name](int& key, int shift) {
      log.push_back(name + "_KeyUp " + std::to_string(key) + " " + std::to_string(shift));
    };
    control.MouseDown = [this, name](int, int, Twips, Twips) { log.push_back(name + "_MouseDown"); };
    control.MouseUp = [this, name](int, int, Twips, Twips) { log.push_back(name + "_MouseUp"); };
  }

  // What was written down since the last call.
  std::vector<std::string> Taken() { return std::exchange(log, {}); }

  std::vector<std::string> log;
  TextBox txtA{*this, "txtA"}, txtB{*this, "txtB"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"};
  ListBox lst{*this, "lst"};
};

using Log = std::vector<std::string>;

}  // namespace corvane::forms
