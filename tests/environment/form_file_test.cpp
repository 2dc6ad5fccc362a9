// Forms as components: their designer, its window, and the binary file beside them.
#include <gtest/gtest.h>

#include "environment/observer.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

const char kForm[] =
    "VERSION 5.00|Begin VB.Form Form1 |   Caption         =   \"Stock\"|   Begin VB.ListBox lst |"
    "      List            =   \"Form1.frx\":0000|      TabIndex        =   0|   End|End|"
    "Attribute VB_Name = \"Form1\"|Attribute VB_Exposed = False|Private Sub Form_Load()|End Sub|";
const std::string kFrx = std::string("\x01\0\x03\0\x02\0ab", 8);

class FormFile : public testing::Test {
 protected:
  FormFile() {
    opened_.PutProject("Type=Exe|Form=Form1.frm|Startup=\"Form1\"|Name=\"P\"|");
    opened_.Put("Form1.frm", kForm);
    opened_.files.Put("C:\\P\\Form1.frx", kFrx);
    opened_.environment->Open("C:\\P\\P.vbp");
    form_ = opened_.At();
  }
  host::Ref<host::Property> Caption() { return form_->Properties()->Item("Caption"); }
  Opened opened_;
  std::shared_ptr<Module> form_;
};

TEST_F(FormFile, ShowsItsControlsAndProperties) {
  EXPECT_EQ(runtime::ToText(Caption()->Value()), "Stock");
  auto form = form_->Designer();
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->VBControls()->Item("lst")->ClassName(), "ListBox");
  EXPECT_EQ(runtime::ToText(form->VBControls()->Item(1)->Properties()->Item("List")->IndexedValue(0)), "ab");
  EXPECT_FALSE(opened_.environment->IsDirty());
  EXPECT_EQ(form_->WriteToText(), opened_.Disk("Form1.frm"));
}

TEST_F(FormFile, APropertyThatIsSetChangesItsLineAlone) {
  Caption()->SetValue(std::string("Goods"));
  EXPECT_TRUE(form_->IsDirty());
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  std::string expected = Text(kForm);
  expected.replace(expected.find("Stock"), 5, "Goods");
  EXPECT_EQ(opened_.Disk("Form1.frm"), expected);
  EXPECT_EQ(opened_.Disk("Form1.frx"), kFrx);
  EXPECT_EQ(opened_.files.writes, 1);
}

TEST_F(FormFile, CodeAndDesignerMayBothBeEdited) {
  form_->CodeModule()->InsertLines(1, "'new");
  Caption()->SetValue(std::string("Goods"));
  form_->CodeModule()->DeleteLines(2);
  std::string written = form_->WriteToText();
  EXPECT_NE(written.find("\"Goods\""), std::string::npos);
  EXPECT_NE(written.find("Attribute VB_Exposed = False\r\n'new\r\nEnd Sub\r\n"), std::string::npos);
}

TEST_F(FormFile, HasTwoFiles) {
  EXPECT_EQ(form_->FileCount(), 2);
  EXPECT_EQ(form_->FileNames(2), "C:\\P\\Form1.frx");
  EXPECT_EQ(ErrorOf([&] { form_->FileNames(3); }), 9);
}

TEST_F(FormFile, ItsNewNameStandsInTheFileAndInTheProject) {
  form_->Properties()->Item("Name")->SetValue(std::string("frmStock"));
  EXPECT_EQ(form_->Name(), "frmStock");
  EXPECT_EQ(form_->CodeModule()->Name(), "frmStock");
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_NE(opened_.Disk("Form1.frm").find("Begin VB.Form frmStock \r\n"), std::string::npos);
  EXPECT_NE(opened_.Disk("Form1.frm").find("Attribute VB_Name = \"frmStock\"\r\n"), std::string::npos);
  EXPECT_EQ(opened_.Disk("P.vbp"), Text("Type=Exe|Form=Form1.frm|Startup=\"frmStock\"|Name=\"P\"|"));
}

TEST_F(FormFile, NamesThatAreNoneAreRefused) {
  for (const char* name : {"", "1a", "a b", "_a", "a-b"})
    EXPECT_EQ(ErrorOf([&] { form_->SetName(name); }), 380) << name;
  EXPECT_EQ(form_->Name(), "Form1");
}

TEST_F(FormFile, SaveAsTakesTheBinaryFileAlong) {
  form_->SaveAs("C:\\New\\frmOther.frm");
  EXPECT_EQ(opened_.files.Read("C:\\New\\frmOther.frx"), kFrx);
  EXPECT_NE(opened_.files.Read("C:\\New\\frmOther.frm").find("\"frmOther.frx\":0000"), std::string::npos);
  EXPECT_EQ(opened_.Disk("Form1.frm"), Text(kForm));
  EXPECT_EQ(form_->FileNames(2), "C:\\New\\frmOther.frx");
}

TEST_F(FormFile, ASaveAsThatFailsLeavesTheFormAsItWas) {
  opened_.files.FailWrites("C:\\New\\frmOther.frm", 61);
  EXPECT_EQ(ErrorOf([&] { form_->SaveAs("C:\\New\\frmOther.frm"); }), 61);
  EXPECT_EQ(form_->FileNames(1), "C:\\P\\Form1.frm");
  EXPECT_EQ(form_->WriteToText(), Text(kForm));
}

TEST_F(FormFile, ABinaryFileThatSomebodyElseChangedIsRefused) {
  form_->Designer()->VBControls()->Item("lst")->Properties()->Item("List")->SetIndexedValue(0, std::string("longer"));
  opened_.files.Put("C:\\P\\Form1.frx", kFrx + "theirs");
  EXPECT_EQ(ErrorOf([&] { opened_.Project()->Save(*form_); }), 70);
  EXPECT_EQ(ReasonOfFailure([&] { opened_.Project()->Save(*form_); }), "Form1.frx: changed on disk since it was read");
  EXPECT_EQ(opened_.Disk("Form1.frx"), kFrx + "theirs");
  EXPECT_FALSE(form_->ChangedOnDisk());
  EXPECT_EQ(form_->ChangedSiblings(), std::vector<std::string>{"C:\\P\\Form1.frx"});
  opened_.Project()->Save(*form_, OnDiskChange::Overwrite);
  EXPECT_EQ(form_->ChangedSiblings(), std::vector<std::string>{});
  EXPECT_NE(opened_.Disk("Form1.frx").find("longer"), std::string::npos);
}

TEST_F(FormFile, ABinaryFileThatIsNotItsOwnIsNeverReplaced) {
  opened_.files.Put("C:\\P\\Old.frx", "of a form that nobody has open");
  EXPECT_EQ(ErrorOf([&] { form_->SaveAs("Old.frm"); }), 58);
  EXPECT_EQ(opened_.Disk("Old.frx"), "of a form that nobody has open");
  EXPECT_EQ(opened_.files.Attributes("C:\\P\\Old.frm"), host::kNoSuchFile);
  EXPECT_EQ(form_->WriteToText(), Text(kForm));
  EXPECT_FALSE(form_->IsDirty());
}

TEST_F(FormFile, ASaveAsThatFailedMayBeTriedAgain) {
  opened_.files.FailWrites("C:\\New\\frmOther.frm", 61);
  EXPECT_EQ(ErrorOf([&] { form_->SaveAs("C:\\New\\frmOther.frm"); }), 61);
  opened_.files.FailWrites("C:\\New\\frmOther.frm", 0);
  form_->SaveAs("C:\\New\\frmOther.frm");
  EXPECT_EQ(opened_.files.Read("C:\\New\\frmOther.frx"), kFrx);
}

TEST_F(FormFile, ItsOwnPathIsNoWayRoundAChangeOfItsBinaryFile) {
  form_->Designer()->VBControls()->Item("lst")->Properties()->Item("List")->SetIndexedValue(0, std::string("longer"));
  opened_.files.Put("C:\\P\\Form1.frx", kFrx + "theirs");
  EXPECT_EQ(ErrorOf([&] { form_->SaveAs("Form1.frm"); }), 70);
  EXPECT_EQ(opened_.Disk("Form1.frx"), kFrx + "theirs");
}

// Two forms, the binary file of the second named after neither.
class TwoForms : public testing::Test {
 protected:
  static std::string Form(const std::string& name, const std::string& sibling) {
    return "VERSION 5.00|Begin VB.Form " + name + " |   Begin VB.ListBox lst |      List            =   \"" + sibling +
           "\":0000|   End|End|Attribute VB_Name = \"" + name + "\"|";
  }
  TwoForms() {
    opened_.PutProject("Type=Exe|Form=A.frm|Form=B.frm|");
    opened_.Put("A.frm", Form("A", "A.frx"));
    opened_.Put("B.frm", Form("B", "Other.frx"));
    opened_.files.Put("C:\\P\\A.frx", kFrx);
    opened_.files.Put("C:\\P\\Other.frx", kFrx + "of B");
    opened_.environment->Open("C:\\P\\P.vbp");
  }
  Opened opened_;
};

TEST_F(TwoForms, TheBinaryFileOfTheOtherIsNotReplaced) {
  for (const char* path : {"Other.frm", "other.FRX", "a.frx"})
    EXPECT_EQ(ErrorOf([&] { opened_.At(0)->SaveAs(path); }), 58) << path;
  opened_.files.Remove("C:\\P\\Other.frx");  // its place stays taken
  EXPECT_EQ(ErrorOf([&] { opened_.At(0)->SaveAs("Other.frm"); }), 58);
  EXPECT_EQ(opened_.At(0)->FileNames(1), "C:\\P\\A.frm");
  EXPECT_EQ(opened_.files.writes, 0);
}

TEST_F(TwoForms, TheOneThatReadsABinaryFileMayBeNamedAfterIt) {
  opened_.At(1)->SaveAs("Other.frm");
  EXPECT_EQ(opened_.At(1)->FileNames(2), "C:\\P\\Other.frx");
  EXPECT_EQ(opened_.Disk("Other.frx"), kFrx + "of B");
}

TEST_F(FormFile, ItsDesignerWindowOpensOnDemand) {
  EXPECT_FALSE(form_->HasOpenDesigner());
  auto window = form_->DesignerWindow();
  EXPECT_TRUE(form_->HasOpenDesigner());
  EXPECT_EQ(window->Caption(), "P - Form1 (Form)");
  window->SetVisible(false);
  EXPECT_FALSE(form_->HasOpenDesigner());
  EXPECT_TRUE((form_->DesignerWindow(), form_->HasOpenDesigner()));
}

TEST_F(FormFile, ADesignerThatWasNotUnderstoodIsNeverWritten) {
  Opened broken;
  broken.PutProject("Form=f.frm|");
  std::string text = "VERSION 5.00|Begin VB.Form F |<<<<<<< .working|End|Attribute VB_Name = \"F\"|Sub A()|End Sub|";
  broken.Put("f.frm", text);
  broken.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(ErrorOf([&] { broken.At()->Properties()->Item("Caption")->SetValue(std::string("x")); }), 75);
  EXPECT_EQ(ErrorOf([&] { broken.At()->SetName("G"); }), 75);
  EXPECT_EQ(broken.At()->Name(), "F");
  EXPECT_EQ(broken.At()->WriteToText(), Text(text));
}

TEST_F(FormFile, NothingIsAddedBehindADesignerThatBreaksOff) {
  Opened broken;
  broken.PutProject("Form=f.frm|");
  broken.Put("f.frm", "VERSION 5.00|Begin VB.Form F |   Caption = \"x");
  broken.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(broken.Code()->CountOfLines(), 0);
  EXPECT_EQ(ErrorOf([&] { broken.Code()->InsertLines(1, "x"); }), 75);
  EXPECT_FALSE(broken.environment->IsDirty());
}

class WindowRecorder : public Observer {
 public:
  std::vector<std::string> log;
  void PaneShown(Module& module) override { log.push_back("pane of " + module.Name()); }
  void PaneClosed(Module& module) override { log.push_back("no pane of " + module.Name()); }
  void DesignerShown(Module& module, bool visible) override {
    log.push_back((visible ? "designer of " : "no designer of ") + module.Name());
  }
  void DesignerFocused(Module& module) override { log.push_back("focus on " + module.Name()); }
  void DesignerChanged(Module& module) override { log.push_back("changed " + module.Name()); }
};

TEST_F(FormFile, ObserversAreToldOfItsWindows) {
  WindowRecorder recorder;
  opened_.environment->Observe(&recorder);
  form_->DesignerWindow()->SetFocus();
  Caption()->SetValue(std::string("Goods"));
  form_->CodeModule()->CodePane()->Show();
  opened_.Project()->VBComponents()->Remove(form_);
  EXPECT_EQ(recorder.log, (std::vector<std::string>{"designer of Form1", "focus on Form1", "changed Form1",
                                                    "pane of Form1", "no pane of Form1", "no designer of Form1"}));
}

TEST(NewForms, AreReadBackWithoutAProblem) {
  Opened opened;
  opened.PutProject("Type=Exe|");
  opened.environment->Open("C:\\P\\P.vbp");
  for (auto type : {host::ComponentType::VBForm, host::ComponentType::VBMDIForm, host::ComponentType::UserControl,
                    host::ComponentType::PropPage, host::ComponentType::DocObject, host::ComponentType::ClassModule}) {
    auto added = opened.Project()->VBComponents()->Add(type);
    added->SaveAs(added->Name() + (type == host::ComponentType::ClassModule ? ".cls" : ".frm"));
  }
  EXPECT_EQ(ErrorOf([&] { opened.Project()->VBComponents()->Add(host::ComponentType::VBMDIForm); }), 5);
  opened.environment->SaveAll();
  Opened again;
  again.files = opened.files;
  again.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(again.Problems(), std::vector<std::string>{});
  EXPECT_EQ(again.Names(), opened.Names());
}

}  // namespace
}  // namespace corvane::environment
