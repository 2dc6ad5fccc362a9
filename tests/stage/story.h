// Story: one run of the environment with the add-in in it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/command_bar_model.h"
#include "environment/memory_files.h"
#include "tests/stage/add_in_host.h"
#include "tests/stage/add_in_windows.h"
#include "tests/stage/box_watch.h"
#include "tests/stage/installed_library.h"
#include "tests/stage/main_window.h"
#include "tests/stage/sample_files.h"
#include "tests/stage/stage.h"
#include "tests/stage/system_clipboard.h"

namespace corvane::stage {

constexpr char kExplorer[] = "Corvane V 1.0", kButton[] = "Corvane - 2000", kMenuItem[] = "&Corvane - 2000";

// The one setting of the add-in in the registry; empty where there is none.
std::string Setting();
void SetSetting(const std::string& value);
void ForgetSetting();

class Story : public testing::Test {
 protected:
  Story();
  // A small project is active in place of the sample.
  void OpenSmallProject();
  void TearDown() override;

  const environment::BarControl* FindOnBar(const std::string& bar, const std::string& caption) const;
  // Clicks on a control of a command bar, as the user does, and waits until the environment is at rest.
  bool Click(const std::string& bar, const std::string& caption);
  std::vector<std::string> Captions(const std::string& bar) const;
  HWND Explorer() const { return FindShown(kExplorer); }
  // Controls of the explorer, by their places in its design.
  HWND Toolbar() const { return ControlAt(Explorer(), 0, 0); }
  HWND Components() const { return ControlAt(Explorer(), 75, 900); }
  HWND Procedures() const { return ControlAt(Explorer(), 75, 1635); }
  HWND ComponentFilter() const { return ControlAt(Explorer(), 7140, 900); }
  HWND ProcedureFilter() const { return ControlAt(Explorer(), 75, 2775); }
  HWND CodeView() const { return ControlAt(ControlAt(Explorer(), 75, 3510), 0, 0); }
  HWND DesignerButton() const { return ControlAt(Explorer(), 10275, 3150); }
  // The user presses keys in a control.
  void Press(HWND control, std::initializer_list<WORD> keys);
  // The same where the focus is, with other keys held down.
  void Key(WORD key, Modifiers with = {});
  // Clicks on a button of the explorer's toolbar, from 1, separators included. Returns at once.
  void PressTool(int position) const;
  // Its modal window comes up.
  void OpenAbout() const { PressTool(23); }
  static void RegisterUsualLibrary();
  // Ends the add-in and looks at what it left behind.
  void ExpectNothingLeft();

  MainWindow window;
  environment::MemoryFiles files;
  SystemClipboard clipboard;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(files, &clipboard);
  Stage stage{environment, window.Handle()};
  BoxWatch boxes;
  AddInHost host{stage};
};

}  // namespace corvane::stage
