// The sample project, opened from files in memory, and what the explorer changes of it.
#pragma once

#include <map>

#include "tests/explorer/explorer_fixture.h"
#include "tests/support/sample_files.h"
#include "workshop/frm_result.h"

namespace corvane::tests {

class EditingTest : public ExplorerTest {
 protected:
  static constexpr char kFolder[] = "Z:\\samples\\stockroom\\";

  EditingTest() {
    PutSample("stockroom", services.files);
    environment = environment::Environment::Create(services.files, &services.clipboard);
    environment->Open(std::string(kFolder) + "Stockroom.vbp");
    before = AllFiles();
    OpenWindow();
  }

  // Another project in place of the sample.
  void OpenAnew(const Sources& sources) {
    environment = environment::Environment::Create(services.files, &services.clipboard);
    Open(sources);
    form.VBInstance = environment;
    Press("Refresh");
  }

  std::map<std::string, std::string> AllFiles() {
    std::map<std::string, std::string> all;
    for (const std::string& name : services.files.List(kFolder, "*")) all[name] = services.files.Read(kFolder + name);
    return all;
  }
  // Saves the project. What is no longer as it was at the start, a file that is new included.
  std::vector<std::string> ChangedFiles() {
    EXPECT_THAT(environment->SaveAll(), IsEmpty());
    std::vector<std::string> changed;
    for (const auto& [name, bytes] : AllFiles()) {
      auto old = before.find(name);
      if (old == before.end() || old->second != bytes) changed.push_back(name);
    }
    return changed;
  }
  std::string File(const std::string& name) { return services.files.Read(kFolder + name); }
  // The file as it was, with the first [old_text] in it replaced.
  std::string Edited(const std::string& name, const std::string& old_text, const std::string& new_text) {
    std::string bytes = before.at(name);
    size_t at = bytes.find(old_text);
    EXPECT_NE(at, std::string::npos) << old_text;
    return at == std::string::npos ? bytes : bytes.replace(at, old_text.size(), new_text);
  }

  void Show(const std::string& component, const std::string& procedure) {
    ChooseComponent(component);
    ChooseProcedure(procedure);
  }
  // The user edits the row of the code view that holds [text].
  void Edit(const std::string& text, const std::string& edited) {
    form.txtCode.UpdateString(RowOf(CodeRows(), text) + 1, edited);
  }
  void Press(const char* key) { form.tlbr.UserButtonClick(form.tlbr.PositionOf(key)); }

  // What the user does when the comment's window is open.
  void WhenAsked(std::function<void(workshop::frmResult&)> act) {
    toolkit.OnModal("frmResult", [act](forms::Form& shown) { act(static_cast<workshop::frmResult&>(shown)); });
  }
  void Comment() {
    toolkit.OnPopup("Comment Procedure");
    form.lbxProc->UserKeyDown(93, 0);
  }

  std::map<std::string, std::string> before;
};

}  // namespace corvane::tests
