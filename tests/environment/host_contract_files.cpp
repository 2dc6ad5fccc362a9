// HostContract: projects, and the files of their components.
#include "tests/environment/host_contract.h"

namespace corvane::tests {

using host::ComponentType;

TEST_P(HostContract, ProjectsAreFoundByPositionAndByNameInAnyCase) {
  const auto projects = Open({{"Main", false, ""}})->VBProjects();
  EXPECT_EQ(projects->Count(), 1);
  EXPECT_EQ(projects->Item(1L)->Name(), "Contract");
  EXPECT_EQ(projects->Item("CONTRACT")->Name(), "Contract");
  EXPECT_EQ(ErrorOf([&] { projects->Item("Other"); }), 9);
  EXPECT_EQ(ErrorOf([&] { projects->Item(""); }), 9);
  EXPECT_EQ(ErrorOf([&] { projects->Item(0L); }), 9);
  EXPECT_EQ(ErrorOf([&] { projects->Item(2L); }), 9);
}

TEST_P(HostContract, OneOfSeveralProjectsIsActive) {
  Open({{"Main", false, "one"}});
  vbe_ = fixture_->Open("Second", {{"Main", false, "two"}, {"Extra", true, ""}});
  ASSERT_EQ(vbe_->VBProjects()->Count(), 2);
  EXPECT_EQ(vbe_->VBProjects()->Item(1L)->Name(), "Contract");
  EXPECT_EQ(vbe_->VBProjects()->Item("second")->Name(), "Second");
  EXPECT_EQ(vbe_->ActiveVBProject()->Name(), "Second");
  EXPECT_EQ(vbe_->ActiveVBProject()->VBComponents()->Count(), 2);
  const auto first = vbe_->VBProjects()->Item("Contract")->VBComponents();
  EXPECT_EQ(first->Count(), 1);
  EXPECT_EQ(first->Item("Main")->CodeModule()->Lines(1, 1), "one");
  EXPECT_EQ(ErrorOf([&] { first->Item("Extra"); }), 9);
}

TEST_P(HostContract, AProjectIsOpenedFromItsFileBesideTheOthers) {
  const auto projects = Open({{"Main", false, ""}})->VBProjects();
  const std::string path = fixture_->PutFile("Third.vbp", "Type=Exe\r\nName=\"Third\"\r\n");
  projects->AddFromFile(path);
  EXPECT_EQ(projects->Count(), 2);
  EXPECT_EQ(projects->Item("Third")->FileName(), path);
  EXPECT_NE(ErrorOf([&] { projects->AddFromFile(fixture_->PathOf("None.vbp")); }), 0);
  EXPECT_EQ(vbe_->VBProjects()->Count(), 2);
}

TEST_P(HostContract, AControlWhoseLibraryIsUnknownStaysOutOfTheToolbox) {
  const auto project = Open({{"Main", false, ""}})->ActiveVBProject();
  EXPECT_NE(ErrorOf([&] { project->AddToolboxProgID("No.Such"); }), 0);
  EXPECT_NE(ErrorOf([&] { project->AddToolboxProgID("No.Such", "none.ocx"); }), 0);
}

TEST_P(HostContract, AModuleHasNoDesignerOfAnotherMake) {
  EXPECT_EQ(Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents()->Item("Main")->DesignerID(), "");
}

TEST_P(HostContract, ASavedProjectHasAFullPathAndSoHaveItsComponents) {
  const auto project = Open({{"Main", false, ""}})->ActiveVBProject();
  EXPECT_NE(project->FileName().find('\\'), std::string::npos);
  const auto main = project->VBComponents()->Item("Main");
  EXPECT_EQ(main->FileCount(), 1);
  EXPECT_NE(main->FileNames(1).find('\\'), std::string::npos);
  EXPECT_EQ(ErrorOf([&] { main->FileNames(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { main->FileNames(2); }), 9);
}

TEST_P(HostContract, AProjectThatWasNeverSavedHasNoFileName) {
  const auto project = fixture_->OpenNew("Fresh")->ActiveVBProject();
  EXPECT_EQ(project->Name(), "Fresh");
  EXPECT_EQ(project->FileName(), "");
  EXPECT_EQ(project->VBComponents()->Item("Main")->FileNames(1), "");
}

TEST_P(HostContract, AComponentHasNoFileNameBeforeItIsSaved) {
  const auto added = Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents()->Add(ComponentType::StdModule);
  EXPECT_EQ(added->FileNames(1), "");
  const std::string path = fixture_->PathOf("Saved.bas");
  added->SaveAs(path);
  EXPECT_EQ(added->FileNames(1), path);
  EXPECT_EQ(added->Name(), "Module1");
}

TEST_P(HostContract, WhatSaveAsWroteCanBeAdded) {
  const auto main = Open({{"Main", false, "Sub A()\r\nEnd Sub"}})->ActiveVBProject()->VBComponents()->Item("Main");
  main->CodeModule()->InsertLines(2, "  x = 1");
  main->SaveAs(fixture_->PathOf("Copy.bas"));
  EXPECT_EQ(main->FileNames(1), fixture_->PathOf("Copy.bas"));
  const auto others = fixture_->Open("Second", {{"Other", false, ""}})->ActiveVBProject()->VBComponents();
  const auto added = others->AddFile(fixture_->PathOf("Copy.bas"));
  EXPECT_EQ(added->Name(), "Main");
  EXPECT_EQ(All(*added->CodeModule()), "Sub A()|  x = 1|End Sub");
}

TEST_P(HostContract, SaveAsTakesTheComponentsOwnPathAndNoFileOfAnother) {
  const auto main = Open({{"Main", false, "one"}})->ActiveVBProject()->VBComponents()->Item("Main");
  const std::string theirs = fixture_->PutFile("theirs.bas", "theirs\r\n"), own = fixture_->PathOf("Copy.bas");
  EXPECT_EQ(ErrorOf([&] { main->SaveAs(theirs); }), 58);
  main->SaveAs(own);
  main->SaveAs(own);
  EXPECT_EQ(main->FileNames(1), own);
}

TEST_P(HostContract, AnAddedFileIsOfTheKindOfItsExtension) {
  const auto components = Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents();
  const std::string path = fixture_->PutFile("tools.bas", "Attribute VB_Name = \"Tools\"\r\nSub T()\r\nEnd Sub\r\n");
  const auto tools = components->AddFile(path);
  EXPECT_EQ(tools->Name(), "Tools");
  EXPECT_EQ(tools->Type(), ComponentType::StdModule);
  EXPECT_EQ(tools->FileNames(1), path);
  EXPECT_EQ(All(*tools->CodeModule()), "Sub T()|End Sub");
  EXPECT_EQ(components->Item(2)->Name(), "Tools");
  const auto thing = components->AddFile(fixture_->PutFile(
      "thing.cls", "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\nAttribute VB_Name = \"Thing\"\r\n"));
  EXPECT_EQ(thing->Type(), ComponentType::ClassModule);
  EXPECT_EQ(components->Count(), 3);
}

TEST_P(HostContract, AFileThatCannotBeAddedLeavesTheComponentsAlone) {
  const auto components = Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents();
  const std::string again = fixture_->PutFile("again.bas", "Attribute VB_Name = \"MAIN\"\r\n");
  EXPECT_EQ(ErrorOf([&] { components->AddFile(again); }), 32813);
  EXPECT_EQ(ErrorOf([&] { components->AddFile(fixture_->PathOf("missing.bas")); }), 53);
  EXPECT_EQ(components->Count(), 1);
}

TEST_P(HostContract, ARelatedDocumentHasAFileAndNothingElse) {
  const auto components = Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents();
  const std::string path = fixture_->PutFile("readme.txt", "read me\r\n");
  components->AddFile(path);
  ASSERT_EQ(components->Count(), 2);
  const auto document = components->Item(2);
  EXPECT_EQ(document->Type(), ComponentType::RelatedDocument);
  EXPECT_EQ(document->FileNames(1), path);
  EXPECT_EQ(ErrorOf([&] { document->CodeModule(); }), 438);
  EXPECT_EQ(ErrorOf([&] { document->DesignerWindow(); }), 438);
  EXPECT_FALSE(document->Designer());
  EXPECT_FALSE(document->HasOpenDesigner());
}

TEST_P(HostContract, ARemovedComponentsFileStays) {
  const auto components = Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents();
  const std::string path = fixture_->PutFile("tools.bas", "Attribute VB_Name = \"Tools\"\r\n");
  components->Remove(components->AddFile(path));
  EXPECT_EQ(components->Count(), 1);
  EXPECT_EQ(components->AddFile(path)->Name(), "Tools");
}

TEST_P(HostContract, TheSelectedComponentIsTheOneOfTheUser) {
  const auto components = Open({{"Main", false, ""}, {"Thing", true, ""}})->ActiveVBProject()->VBComponents();
  fixture_->Select(nullptr);
  EXPECT_FALSE(vbe_->SelectedVBComponent());
  fixture_->Select(components->Item("Thing"));
  ASSERT_TRUE(vbe_->SelectedVBComponent());
  EXPECT_EQ(vbe_->SelectedVBComponent()->Name(), "Thing");
  components->Remove(components->Item("Thing"));
  EXPECT_FALSE(vbe_->SelectedVBComponent());
}

}  // namespace corvane::tests
