// A project in memory, a window without a display, and what a user does with them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/environment.h"
#include "explorer/frm_add_in.h"
#include "explorer/rows.h"
#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {

class ExplorerTest : public ::testing::Test {
 protected:
  using Sources = std::vector<environment::SourceFile>;

  void Open(const Sources& sources) { environment->OpenFromModules("Shop", sources); }

  // Opens the window as a click on the add-in's button does.
  void OpenWindow() {
    form.VBInstance = environment;
    form.Show();
  }
  void OpenWindow(const Sources& sources) {
    Open(sources);
    OpenWindow();
  }

  host::Ref<host::VBComponent> Component(const std::string& name) {
    return environment->ActiveVBProject()->VBComponents()->Item(name);
  }
  host::CodeModule& Module(const std::string& name) {
    modules.push_back(Component(name)->CodeModule());
    return *modules.back();
  }
  // The user puts the caret on a line of a code pane.
  void Caret(const std::string& module, long line, long column = 1) {
    host::Ref<host::CodePane> pane = Module(module).CodePane();
    pane->Show();
    pane->SetSelection({line, column, line, column});
  }
  host::Selection SelectionOf(const std::string& module) { return Module(module).CodePane()->GetSelection(); }

  static std::vector<std::string> Rows(const forms::ListControl& list) {
    std::vector<std::string> rows;
    for (long row = 0; row < list.ListCount(); ++row) rows.push_back(list.List(row));
    return rows;
  }
  // What is seen of the rows.
  static std::vector<std::string> Shown(const forms::ListControl& list) {
    std::vector<std::string> rows;
    for (const std::string& row : Rows(list)) rows.push_back(explorer::ShownText(row));
    return rows;
  }
  std::vector<std::string> Components() const { return Rows(*form.lbxComp); }
  std::vector<std::string> Procedures() const { return Shown(*form.lbxProc); }
  std::vector<std::string> CodeRows() const {
    std::vector<std::string> rows;
    for (long row = 1; row <= form.txtCode.ListCount(); ++row) rows.push_back(form.txtCode.List(row));
    return rows;
  }

  static long RowOf(const std::vector<std::string>& rows, const std::string& text) {
    for (size_t row = 0; row < rows.size(); ++row)
      if (rows[row].find(text) != std::string::npos) return static_cast<long>(row);
    ADD_FAILURE() << "no row holds " << text;
    return -1;
  }
  void ChooseComponent(const std::string& name) { form.lbxComp->UserSelect(RowOf(Components(), name)); }
  void ChooseProcedure(const std::string& text) { form.lbxProc->UserSelect(RowOf(Procedures(), text)); }
  // The user presses the right button on the end of [word] in the row of the code view that holds [code], and chooses
  // [caption].
  void ChooseOnWord(const std::string& code, const std::string& word, const std::string& caption) {
    const long row = RowOf(CodeRows(), code) + 1;
    form.txtCode.SetStrPos(row);
    const size_t column = form.txtCode.List(row).find(word) + word.size() - 1;
    const forms::Twips x = form.txtCode.GutterWidth() + static_cast<forms::Twips>(column) * 98 + 40;
    const forms::Twips y = static_cast<forms::Twips>(row - form.txtCode.TopLine()) * form.txtCode.RowHeight() + 20;
    toolkit.OnPopup(caption);
    form.txtCode.pic.UserMouseDown(forms::vbRightButton, 0, x, y);
    form.txtCode.pic.UserMouseUp(forms::vbRightButton, 0, x, y);
  }
  // A row as a search makes it.
  void AddHit(const std::string& label, long component, long line, const std::string& text) {
    form.lbxProc->AddItem(label + ":    001   " + text + explorer::TailOf(component));
    form.lbxProc->SetItemData(form.lbxProc->NewIndex(), line);
  }
  static void Press(forms::Control& control, int key_ascii) { control.UserKeyPress(key_ascii); }
  // A press with the mouse, as a toolkit reports it.
  static void ClickOn(forms::OptionButton& option) {
    option.UserMouseDown(forms::vbLeftButton, 0, 10, 10);
    option.UserClick();
    option.UserMouseUp(forms::vbLeftButton, 0, 10, 10);
  }
  std::vector<std::string> Messages() const { return services.prompts.Texts(); }

  FakeServices services;
  forms::HeadlessToolkit toolkit;
  std::shared_ptr<environment::Environment> environment =
      environment::Environment::Create(services.files, &services.clipboard);
  explorer::frmAddIn form{services, toolkit};
  std::vector<host::Ref<host::CodeModule>> modules;
};

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

}  // namespace corvane::tests
