// Saving, changes on disk, and the components of a project.
#include <gtest/gtest.h>

#include "environment/observer.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

using Lines = std::vector<std::string>;

class Saving : public testing::Test {
 protected:
  Saving() {
    opened_.PutProject("Type=Exe|Module=Main; Main.bas|Class=Thing; Thing.cls|Startup=\"Sub Main\"|Name=\"P\"|");
    opened_.Put("Main.bas", "Attribute VB_Name = \"Main\"|Sub Main()|End Sub|");
    opened_.Put("Thing.cls", "VERSION 1.0 CLASS|BEGIN|  MultiUse = -1  'True|END|Attribute VB_Name = \"Thing\"|Dim x|");
    opened_.environment->Open("C:\\P\\P.vbp");
  }
  host::Ref<host::VBComponents> Components() { return opened_.Project()->VBComponents(); }
  Opened opened_;
};

TEST_F(Saving, WritesWhatWasEditedAndNothingElse) {
  opened_.Code(0)->InsertLines(2, "    x = 1");
  EXPECT_TRUE(opened_.environment->IsDirty());
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_EQ(opened_.Disk("Main.bas"), Text("Attribute VB_Name = \"Main\"|Sub Main()|    x = 1|End Sub|"));
  EXPECT_EQ(opened_.files.writes, 1);
  EXPECT_FALSE(opened_.environment->IsDirty());
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_EQ(opened_.files.writes, 1);
}

TEST_F(Saving, AFullDiskLeavesTheFileAndTheEdit) {
  opened_.Code(0)->DeleteLines(1, 1);
  opened_.files.FailWrites("C:\\P\\Main.bas", 61);
  auto failed = opened_.environment->SaveAll();
  ASSERT_EQ(failed.size(), 1u);
  EXPECT_EQ(failed[0].file + ": " + failed[0].reason, "C:\\P\\Main.bas: Disk full");
  EXPECT_TRUE(opened_.At(0)->IsDirty());
  EXPECT_EQ(opened_.Disk("Main.bas"), Text("Attribute VB_Name = \"Main\"|Sub Main()|End Sub|"));
}

TEST_F(Saving, AFileThatSomebodyElseChangedIsRefusedUntilAsked) {
  opened_.Code(0)->DeleteLines(1, 1);
  opened_.Put("Main.bas", "theirs|");
  EXPECT_TRUE(opened_.At(0)->ChangedOnDisk());
  auto failed = opened_.environment->SaveAll();
  ASSERT_EQ(failed.size(), 1u);
  EXPECT_EQ(failed[0].reason, "changed on disk since it was read");
  EXPECT_EQ(opened_.Disk("Main.bas"), Text("theirs|"));
  opened_.Project()->Save(*opened_.At(0), OnDiskChange::Overwrite);
  EXPECT_EQ(opened_.Disk("Main.bas"), Text("Attribute VB_Name = \"Main\"|End Sub|"));
  EXPECT_FALSE(opened_.At(0)->ChangedOnDisk());
}

TEST_F(Saving, ItsOwnPathIsNoWayRoundAChangeOnDisk) {
  opened_.Put("Main.bas", "theirs|");
  EXPECT_EQ(ReasonOfFailure([&] { opened_.At(0)->SaveAs("main.bas"); }), "changed on disk since it was read");
  EXPECT_EQ(opened_.Disk("Main.bas"), Text("theirs|"));
}

TEST_F(Saving, ACarriageReturnInsideALineStaysInIt) {
  opened_.Code(0)->InsertLines(1, "' a\rb");
  EXPECT_EQ(opened_.Code(0)->CountOfLines(), 3);
  opened_.environment->SaveAll();
  Opened again;
  again.files = opened_.files;
  again.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(again.Code(0)->CountOfLines(), 3);
  EXPECT_EQ(again.Code(0)->Lines(1, 1), "' a\rb");
}

TEST_F(Saving, AProjectFileThatSomebodyElseChangedIsRefusedUntilAsked) {
  opened_.At(0)->SetName("Start");
  EXPECT_FALSE(opened_.Project()->ChangedOnDisk());
  opened_.PutProject("Type=OleDll|");
  EXPECT_TRUE(opened_.Project()->ChangedOnDisk());
  EXPECT_EQ(ErrorOf([&] { opened_.Project()->SaveProjectFile(); }), 70);
  EXPECT_EQ(opened_.Disk("P.vbp"), Text("Type=OleDll|"));
  opened_.Project()->SaveProjectFile(OnDiskChange::Overwrite);
  EXPECT_NE(opened_.Disk("P.vbp").find("Module=Start; Main.bas"), std::string::npos);
  EXPECT_FALSE(opened_.Project()->ChangedOnDisk());
}

TEST_F(Saving, AFileThatIsGoneIsWrittenAgain) {
  opened_.Code(0)->DeleteLines(1, 1);
  opened_.files.Remove("C:\\P\\Main.bas");
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_EQ(opened_.Disk("Main.bas"), Text("Attribute VB_Name = \"Main\"|End Sub|"));
}

TEST_F(Saving, ANewComponentIsListedOnceItHasAFile) {
  auto added = Components()->Add(host::ComponentType::StdModule);
  EXPECT_EQ(added->FileNames(1), "");
  EXPECT_EQ(opened_.Project()->WriteToText(), opened_.Disk("P.vbp"));
  EXPECT_EQ(opened_.environment->SaveAll().size(), 1u);
  added->CodeModule()->InsertLines(1, "Dim a");
  added->SaveAs("C:\\P\\sub\\Module1.bas");
  EXPECT_EQ(added->FileNames(1), "C:\\P\\sub\\Module1.bas");
  EXPECT_EQ(opened_.Disk("sub\\Module1.bas"), Text("Attribute VB_Name = \"Module1\"|Dim a|"));
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_EQ(opened_.Disk("P.vbp"), Text("Type=Exe|Module=Main; Main.bas|Module=Module1; sub\\Module1.bas|"
                                        "Class=Thing; Thing.cls|Startup=\"Sub Main\"|Name=\"P\"|"));
}

TEST_F(Saving, SaveAsMakesThePathTheFileOfTheComponent) {
  Components()->Item("Thing")->SaveAs("C:\\Other\\T2.cls");
  EXPECT_EQ(opened_.files.Read("C:\\Other\\T2.cls"), opened_.Disk("Thing.cls"));
  EXPECT_NE(opened_.Project()->WriteToText().find("Class=Thing; ..\\Other\\T2.cls\r\n"), std::string::npos);
  EXPECT_EQ(ErrorOf([&] { Components()->Item("Thing")->SaveAs("C:\\P\\Main.bas"); }), 58);
}

TEST_F(Saving, SaveAsLeavesAFileOfSomebodyElseAlone) {
  opened_.Put("Theirs.bas", "theirs|");
  for (const char* path : {"theirs.BAS", "C:\\P\\Theirs.bas"})
    EXPECT_EQ(ReasonOfFailure([&] { opened_.At(0)->SaveAs(path); }),
              std::string("File already exists: C:\\P\\") + (path[0] == 't' ? path : "Theirs.bas"));
  EXPECT_EQ(ErrorOf([&] { opened_.At(0)->SaveAs("theirs.bas"); }), 58);
  EXPECT_EQ(opened_.Disk("Theirs.bas"), Text("theirs|"));
  EXPECT_EQ(opened_.At(0)->Path(), "C:\\P\\Main.bas");
  EXPECT_EQ(opened_.files.writes, 0);
  auto added = Components()->Add(host::ComponentType::StdModule);
  EXPECT_EQ(ErrorOf([&] { added->SaveAs("Theirs.bas"); }), 58) << "never saved";
  EXPECT_EQ(added->FileNames(1), "");
}

// What an action that clones a component does: its own path is its own, and still is once it was brought back.
TEST_F(Saving, AClonedComponentTakesItsOwnPathAndThenANewOne) {
  const auto thing = Components()->Item("Thing");
  const std::string file = thing->FileNames(1);
  thing->SaveAs(file);
  thing->Properties()->Item("Name")->SetValue(std::string("Other"));
  thing->SaveAs("C:\\P\\Other.cls");
  const auto again = Components()->AddFile(file);
  again->SaveAs(file);
  EXPECT_EQ(again->Name() + " " + again->FileNames(1), "Thing C:\\P\\Thing.cls");
  EXPECT_EQ(thing->Name() + " " + thing->FileNames(1), "Other C:\\P\\Other.cls");
}

TEST_F(Saving, AFileInTheWayIsReplacedWhereTheUserSaidSo) {
  opened_.Put("Theirs.bas", "theirs|");
  opened_.Project()->SaveAs(*opened_.At(0), "C:\\P\\Theirs.bas", FileInTheWay::Replace);
  EXPECT_EQ(opened_.Disk("Theirs.bas"), opened_.Disk("Main.bas"));
  for (const char* open : {"Thing.cls", "P.vbp"})
    EXPECT_EQ(ErrorOf([&] { opened_.Project()->SaveAs(*opened_.At(0), open, FileInTheWay::Replace); }), 58) << open;
}

TEST_F(Saving, AProjectFileIsNoPlaceForAComponent) {
  EXPECT_EQ(ErrorOf([&] { Components()->Item("Thing")->SaveAs("p.VBP"); }), 58);
}

TEST(SavingAs, AModuleThatCouldNotBeReadKeepsItsFile) {
  Opened opened;
  opened.PutProject("Module=M; M.bas|Module=B; b.bas|");
  opened.Put("M.bas", "Attribute VB_Name = \"M\"|");
  opened.files.Put("C:\\P\\b.bas", std::string("x\0", 2));
  opened.environment->Open("C:\\P\\P.vbp");
  ASSERT_EQ(opened.Names(), Lines{"M"});
  EXPECT_EQ(ErrorOf([&] { opened.At()->SaveAs("B.bas"); }), 58);
  EXPECT_EQ(opened.Disk("b.bas"), std::string("x\0", 2));
}

TEST_F(Saving, AFileIsAddedByItsExtension) {
  opened_.files.Put("C:\\lib\\Tools.bas", "Attribute VB_Name = \"Tools\"\n");
  auto added = Components()->AddFile("C:\\lib\\Tools.bas");
  EXPECT_EQ(added->Name(), "Tools");
  EXPECT_EQ(added->Type(), host::ComponentType::StdModule);
  EXPECT_EQ(Components()->Count(), 3);
  EXPECT_NE(opened_.Project()->WriteToText().find("Module=Tools; ..\\lib\\Tools.bas\r\n"), std::string::npos);
  EXPECT_EQ(ErrorOf([&] { Components()->AddFile("C:\\lib\\Tools.bas"); }), 32813);
  EXPECT_EQ(ErrorOf([&] { Components()->AddFile("C:\\lib\\None.bas"); }), 53);
  opened_.files.Put("C:\\lib\\x.frm", "no form");
  EXPECT_EQ(ErrorOf([&] { Components()->AddFile("C:\\lib\\x.frm"); }), 321);
  EXPECT_EQ(Components()->Count(), 3);
}

TEST_F(Saving, ARemovedComponentLosesItsLineAndKeepsItsFile) {
  auto thing = Components()->Item("Thing");
  opened_.environment->SelectComponent(thing);
  thing->CodeModule()->CodePane()->Show();
  Components()->Remove(thing);
  EXPECT_EQ(opened_.Names(), Lines{"Main"});
  EXPECT_EQ(opened_.Project()->WriteToText(), Text("Type=Exe|Module=Main; Main.bas|Startup=\"Sub Main\"|Name=\"P\"|"));
  EXPECT_NE(opened_.files.Attributes("C:\\P\\Thing.cls"), host::kNoSuchFile);
  EXPECT_EQ(opened_.environment->SelectedVBComponent(), nullptr);
  EXPECT_EQ(opened_.environment->CodePanes()->Count(), 0);
  EXPECT_EQ(ErrorOf([&] { thing->VBE(); }), 91);
}

TEST_F(Saving, ARenamedComponentKeepsItsFileAndItsOtherBytes) {
  Components()->Item("Thing")->SetName("Item");
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_EQ(opened_.Disk("Thing.cls"),
            Text("VERSION 1.0 CLASS|BEGIN|  MultiUse = -1  'True|END|Attribute VB_Name = \"Item\"|Dim x|"));
  EXPECT_NE(opened_.Disk("P.vbp").find("Class=Item; Thing.cls\r\n"), std::string::npos);
}

TEST(Renaming, ANameWithoutItsQuotesIsReplacedAsItStands) {
  const struct {
    const char *before, *after;
  } kCases[] = {{"Attribute VB_Name = Main|", "Attribute VB_Name = Start|"},
                {"Attribute VB_Name=Main  |", "Attribute VB_Name=Start  |"},
                {"Attribute VB_Name = \"Main|", "Attribute VB_Name = \"Start|"},
                {"Attribute VB_Name = \"\"|", "Attribute VB_Name = \"Start\"|"},
                {"Attribute VB_Name =|", "Attribute VB_Name =Start|"},
                {"Attribute VB_Name|", "Attribute VB_Name|"}};
  for (const auto& each : kCases) {
    Opened opened;
    opened.PutProject("Module=Main; Main.bas|");
    opened.Put("Main.bas", std::string(each.before) + "Sub A()|");
    opened.environment->Open("C:\\P\\P.vbp");
    opened.At()->SetName("Start");
    EXPECT_EQ(opened.At()->WriteToText(), Text(std::string(each.after) + "Sub A()|"));
    EXPECT_EQ(opened.Project()->WriteToText(), Text("Module=Start; Main.bas|"));
  }
}

TEST_F(Saving, NewComponentsAreReadBackAsTheyWereMade) {
  for (auto type : {host::ComponentType::StdModule, host::ComponentType::ClassModule}) {
    auto added = Components()->Add(type);
    added->SaveAs("C:\\P\\" + added->Name());
    std::string text = opened_.Disk(added->Name());
    Opened again;
    again.files.Put("C:\\n.vbp", "Type=Exe\n");
    again.files.Put("C:\\a" + std::string(type == host::ComponentType::StdModule ? ".bas" : ".cls"), text);
    again.environment->Open("C:\\n.vbp");
    auto read = again.Project()->VBComponents()->AddFile(type == host::ComponentType::StdModule ? "a.bas" : "a.cls");
    EXPECT_EQ(read->Name(), added->Name());
    EXPECT_EQ(read->Type(), type);
    EXPECT_EQ(again.Problems(), Lines{});
  }
}

TEST_F(Saving, KindsThatNobodyCanMakeAreRefused) {
  EXPECT_EQ(ErrorOf([&] { Components()->Add(host::ComponentType::RelatedDocument); }), 5);
  EXPECT_EQ(ErrorOf([&] { Components()->Add(host::ComponentType::ActiveXDesigner); }), 5);
}

// A module of two projects in a group is one file: what one saves the other shows, unless it was edited there too.
class SharedModule : public testing::Test {
 protected:
  SharedModule() {
    opened_.files.Put("C:\\P\\g.vbg", Text("VBGROUP 5.0|StartupProject=a.vbp|Project=b.vbp|"));
    opened_.Put("a.vbp", "Name=\"A\"|Module=M; M.bas|");
    opened_.Put("b.vbp", "Name=\"B\"|Module=M; m.BAS|");
    opened_.Put("M.bas", "Attribute VB_Name = \"M\"|one|");
    opened_.environment->Open("C:\\P\\g.vbg");
    first_ = opened_.Project(0)->Modules().at(0);
    second_ = opened_.Project(1)->Modules().at(0);
  }
  Opened opened_;
  std::shared_ptr<Module> first_, second_;
};

TEST_F(SharedModule, ShowsWhatTheOtherProjectSaved) {
  first_->ReplaceLines(1, 1, "two");
  EXPECT_EQ(second_->CodeModule()->Lines(1, 1), "one");
  opened_.Project(0)->Save(*first_);
  EXPECT_EQ(second_->CodeModule()->Lines(1, 1), "two");
  EXPECT_FALSE(second_->ChangedOnDisk());
}

TEST_F(SharedModule, AnEditIsNeverLostSilently) {
  first_->ReplaceLines(1, 1, "two");
  second_->ReplaceLines(1, 1, "three");
  auto failed = opened_.environment->SaveAll();
  ASSERT_EQ(failed.size(), 1u);
  EXPECT_EQ(failed[0].reason, "changed on disk since it was read");
  EXPECT_EQ(second_->CodeModule()->Lines(1, 1), "three");
  EXPECT_TRUE(second_->IsDirty());
}

TEST_F(SharedModule, ItsNewNameStandsInBothProjects) {
  first_->SetName("Fresh");
  EXPECT_EQ(opened_.environment->SaveAll().size(), 0u);
  EXPECT_EQ(second_->Name(), "Fresh");
  EXPECT_EQ(opened_.Disk("a.vbp"), Text("Name=\"A\"|Module=Fresh; M.bas|"));
  EXPECT_EQ(opened_.Disk("b.vbp"), Text("Name=\"B\"|Module=Fresh; m.BAS|"));
  EXPECT_FALSE(opened_.environment->IsDirty());
}

TEST_F(SharedModule, KeepsItsNameWhereAnotherComponentHasTheNewOne) {
  auto added = opened_.Project(1)->VBComponents()->Add(host::ComponentType::StdModule);
  added->SetName("Fresh");
  first_->SetName("Fresh");
  opened_.Project(0)->Save(*first_);
  EXPECT_EQ(second_->Name(), "M");
  EXPECT_EQ(opened_.Problems(), Lines{"C:\\P\\m.BAS:0: its name Fresh is that of another component of B"});
}

TEST_F(SharedModule, MayBeSavedUnderItsOwnPath) {
  first_->ReplaceLines(1, 1, "two");
  first_->SaveAs("m.bas");
  EXPECT_EQ(second_->CodeModule()->Lines(1, 1), "two");
}

// What another project of the group has open is not overwritten.
TEST(SavingInAGroup, TheFilesOfTheOtherProjectsAreTheirs) {
  Opened opened;
  opened.files.Put("C:\\P\\g.vbg", Text("VBGROUP 5.0|StartupProject=a.vbp|Project=b.vbp|"));
  opened.Put("a.vbp", "Name=\"A\"|Module=M; M.bas|");
  opened.Put("b.vbp", "Name=\"B\"|Module=N; N.bas|");
  opened.Put("M.bas", "Attribute VB_Name = \"M\"|one|");
  opened.Put("N.bas", "Attribute VB_Name = \"N\"|");
  opened.environment->Open("C:\\P\\g.vbg");
  for (const char* path : {"n.BAS", "b.vbp", "g.vbg"})
    EXPECT_EQ(ErrorOf([&] { opened.At()->SaveAs(path); }), 58) << path;
  EXPECT_EQ(opened.Disk("N.bas"), Text("Attribute VB_Name = \"N\"|"));
  EXPECT_EQ(opened.files.writes, 0);
}

class Recorder : public Observer {
 public:
  Lines log;
  void LinesChanged(Module& module, long start, long removed, long inserted) override {
    log.push_back(module.Name() + " " + std::to_string(start) + " -" + std::to_string(removed) + " +" +
                  std::to_string(inserted));
  }
  void PaneShown(Module& module) override { log.push_back("pane " + module.Name()); }
  void PaneClosed(Module& module) override { log.push_back("closed " + module.Name()); }
  void SelectionSet(Module& module) override { log.push_back("selection " + module.Name()); }
  void ComponentsChanged() override { log.push_back("components"); }
  void MainWindowFocused() override { log.push_back("main window"); }
  void DirtyChanged() override { log.push_back("dirty"); }
};

TEST_F(Saving, ObserversAreToldOfEveryChange) {
  Recorder recorder;
  opened_.environment->Observe(&recorder);
  opened_.Code(0)->InsertLines(1, "a\r\nb");
  opened_.At(0)->ReplaceLines(1, 2, "c\nd\ne");
  opened_.Code(0)->DeleteLines(1, 3);
  opened_.Code(0)->CodePane()->Show();
  opened_.Code(0)->CodePane()->SetSelection({1, 1, 1, 1});
  opened_.At(0)->UserSelection({2, 1, 2, 1});
  opened_.environment->MainWindow()->SetFocus();
  opened_.At(1)->SetName("Item");
  opened_.At(0)->UserClosePane();
  opened_.environment->SaveAll();
  opened_.environment->Observe(nullptr);
  opened_.Code(0)->InsertLines(1, "x");
  EXPECT_EQ(recorder.log,
            (Lines{"Main 1 -0 +2", "dirty", "Main 1 -2 +3", "Main 1 -3 +0", "pane Main", "selection Main",
                   "main window", "dirty", "dirty", "components", "closed Main", "dirty", "dirty", "dirty"}));
}

TEST_F(Saving, AnEditorsEditIsOneChangeAndEmptyTextIsABlankLine) {
  opened_.At(0)->ReplaceLines(1, 2, "");
  EXPECT_EQ(opened_.Code(0)->CountOfLines(), 1);
  EXPECT_EQ(ErrorOf([&] { opened_.At(0)->ReplaceLines(1, 2, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { opened_.At(0)->ReplaceLines(0, 0, "x"); }), 9);
  opened_.At(0)->ReplaceLines(2, 0, "end");
  EXPECT_EQ(opened_.Code(0)->Lines(1, 9), "\r\nend");
}

TEST(Environment, AnEmptyOneHasNothing) {
  MemoryFiles files;
  auto environment = Environment::Create(files);
  EXPECT_EQ(environment->ActiveVBProject(), nullptr);
  EXPECT_EQ(environment->ActiveCodePane(), nullptr);
  EXPECT_EQ(environment->SelectedVBComponent(), nullptr);
  EXPECT_EQ(environment->VBProjects()->Count(), 0);
  EXPECT_EQ(ErrorOf([&] { environment->VBProjects()->Item(1); }), 9);
}

TEST(Environment, AProjectThatWasNeverSavedHasNoFileName) {
  MemoryFiles files;
  auto environment = Environment::Create(files);
  environment->OpenFromTexts("", "Type=Exe\r\nName=\"New\"\r\nModule=M; M.bas\r\n", {{"M.bas", "x\r\n"}});
  EXPECT_EQ(environment->ActiveVBProject()->FileName(), "");
  EXPECT_EQ(environment->ActiveVBProject()->Name(), "New");
  EXPECT_EQ(ErrorOf([&] { environment->Projects()[0]->SaveProjectFile(); }), 75);
}

TEST(Environment, ComponentsOfAProjectThatWasNeverSavedHaveNoFileYet) {
  MemoryFiles files;
  files.Put("M.bas", "beside the program\r\n");
  files.Put("Gone.bas", "beside the program\r\n");
  auto environment = Environment::Create(files);
  environment->OpenFromTexts(
      "", "Type=Exe\r\nModule=M; M.bas\r\nModule=N; C:\\P\\N.bas\r\nModule=G; Gone.bas\r\n",
      {{"M.bas", "Attribute VB_Name = \"M\"\r\n"}, {"C:\\P\\N.bas", "Attribute VB_Name = \"N\"\r\n"}});
  auto project = environment->Projects()[0];
  ASSERT_EQ(project->Modules().size(), 2u);
  auto module = project->Modules()[0];
  EXPECT_EQ(module->FileNames(1), "");
  EXPECT_EQ(module->Path(), "");
  EXPECT_EQ(project->Modules()[1]->FileNames(1), "C:\\P\\N.bas");
  ASSERT_EQ(environment->Problems().size(), 1u);
  EXPECT_EQ(environment->Problems()[0].reason, "Gone.bas: no folder to look in: the project was never saved");
  const std::string refused = "a relative path, and the project has no folder: it was never saved";
  EXPECT_EQ(ReasonOfFailure([&] { project->Save(*module); }), "never saved: it has no file yet");
  EXPECT_EQ(ReasonOfFailure([&] { project->SaveProjectFile(); }), "never saved: it has no file yet");
  EXPECT_EQ(ReasonOfFailure([&] { module->SaveAs("M.bas"); }), refused);
  EXPECT_EQ(ReasonOfFailure([&] { project->VBComponents()->AddFile("Gone.bas"); }), refused);
  module->SaveAs("C:\\Q\\M.bas");
  EXPECT_EQ(module->FileNames(1), "C:\\Q\\M.bas");
  EXPECT_EQ(files.Read("M.bas"), "beside the program\r\n");
  EXPECT_NE(project->WriteToText().find("Module=M; C:\\Q\\M.bas\r\n"), std::string::npos);
}

// Its binary files are found among the texts that it was made from.
TEST(Environment, AFormOfAProjectThatWasNeverSavedReadsItsBinaryFile) {
  MemoryFiles files;
  auto environment = Environment::Create(files);
  environment->OpenFromTexts(
      "", "Type=Exe\r\nForm=sub\\F.frm\r\n",
      {{"sub\\F.frm", Text("VERSION 5.00|Begin VB.Form F |   Begin VB.ListBox l |      List            =   "
                           "\"F.frx\":0000|   End|End|Attribute VB_Name = \"F\"|")},
       {"sub\\F.frx", std::string("\x01\0\x03\0\x02\0ab", 8)}});
  auto form = environment->Projects()[0]->Modules()[0];
  EXPECT_EQ(form->FileCount(), 1);
  EXPECT_EQ(form->FileNames(1), "");
  EXPECT_EQ(runtime::ToText(form->Designer()->VBControls()->Item(1)->Properties()->Item("List")->IndexedValue(0)),
            "ab");
  form->SaveAs("C:\\Q\\F.frm");
  EXPECT_EQ(files.Read("C:\\Q\\F.frx"), std::string("\x01\0\x03\0\x02\0ab", 8));
}

TEST(Environment, ObjectsOutliveItAndFail) {
  auto opened = Opened::Module("Sub A()|End Sub");
  auto code = opened->Code();
  auto component = opened->Project()->VBComponents()->Item(1);
  auto project = opened->environment->ActiveVBProject();
  opened->environment.reset();
  EXPECT_EQ(ErrorOf([&] { component->VBE(); }), 91);
  EXPECT_EQ(ErrorOf([&] { code->CodePane(); }), 91);
  EXPECT_EQ(project->Name(), "P");
  EXPECT_EQ(code->Lines(1, 1), "Sub A()");
}

}  // namespace
}  // namespace corvane::environment
