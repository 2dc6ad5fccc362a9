// A clone of a component: two components, two files, nothing else changed.
#include "environment/observer.h"
#include "tests/explorer/editing_fixture.h"

namespace corvane::tests {
namespace {

constexpr char kNotAvailable[] =
    "Can not clone current Component. Component's file is not available\r\n"
    "May be you have not saved the Project yet.";

class CloneComponent : public EditingTest {
 protected:
  void Clone(const std::string& component, const std::string& name) {
    ChooseComponent(component);
    services.prompts.inputs.push_back(name);
    Press("Actions");
  }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (host::Ref<host::VBComponent> component : host::Each(environment->ActiveVBProject()->VBComponents()))
      if (component->Type() != host::ComponentType::RelatedDocument) names.push_back(component->Name());
    return names;
  }
  std::vector<long> Styles() const {
    std::vector<long> styles;
    for (const AskedMessage& message : services.prompts.messages) styles.push_back(message.style);
    return styles;
  }
};

TEST_F(CloneComponent, AModuleStandsTwiceUnderTwoNames) {
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_EQ(services.prompts.input_boxes.at(0).prompt, "Type New name for cloning Component \" modCsv \"");
  EXPECT_THAT(Names(), Contains("modCsv"));
  EXPECT_THAT(Names(), Contains("modTsv"));
  EXPECT_EQ(Component("modTsv")->FileNames(1), std::string(kFolder) + "modTsv.bas");
  EXPECT_EQ(Component("modCsv")->FileNames(1), std::string(kFolder) + "modCsv.bas");
  EXPECT_THAT(Components(), Contains("modTsv"));
}

TEST_F(CloneComponent, TheFilesDifferInTheNameAlone) {
  Clone("modCsv", "modTsv");
  EXPECT_THAT(ChangedFiles(), ElementsAre("Stockroom.vbp", "modTsv.bas"));
}

TEST_F(CloneComponent, TheNewFileIsTheOldOneUnderItsName) {
  Clone("modCsv", "modTsv");
  EXPECT_EQ(File("modTsv.bas"), Edited("modCsv.bas", "VB_Name = \"modCsv\"", "VB_Name = \"modTsv\""));
  EXPECT_EQ(File("modCsv.bas"), before.at("modCsv.bas"));
}

TEST_F(CloneComponent, AFormTakesItsPicturesAlong) {
  Clone("frmAbout", "frmCredits");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_EQ(File("frmCredits.frx"), before.at("frmAbout.frx"));
  EXPECT_EQ(File("frmAbout.frm"), before.at("frmAbout.frm"));
  EXPECT_EQ(File("frmAbout.frx"), before.at("frmAbout.frx"));
  EXPECT_THAT(File("frmCredits.frm"), HasSubstr("Begin VB.Form frmCredits"));
  EXPECT_THAT(File("frmCredits.frm"), HasSubstr("\"frmCredits.frx\""));
}

TEST_F(CloneComponent, TheEntryOfTheDropDownDoesTheSame) {
  ChooseComponent("modCsv");
  services.prompts.inputs.push_back("modTsv");
  form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Actions"), 1);
  EXPECT_THAT(Names(), Contains("modCsv"));
  EXPECT_THAT(Names(), Contains("modTsv"));
}

TEST_F(CloneComponent, OfAComponentThatWasNeverSavedIsNotAvailable) {
  environment->ActiveVBProject()
      ->VBComponents()
      ->Add(host::ComponentType::StdModule)
      ->CodeModule()
      ->InsertLines(1, "Public a\r\nPublic b");
  Press("Refresh");
  std::vector<std::string> names = Names();
  Clone("Module1", "Module2");
  EXPECT_THAT(Messages(), ElementsAre(kNotAvailable));
  EXPECT_THAT(Styles(), ElementsAre(host::vbExclamation));
  EXPECT_EQ(Names(), names);
}

TEST_F(CloneComponent, AReplyOfOneCharacterStopsSilently) {
  for (const char* reply : {"", "x"}) Clone("modCsv", reply);
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(ChangedFiles(), IsEmpty());
  EXPECT_EQ(services.files.writes, 0);
}

TEST_F(CloneComponent, OfAReadOnlyFileIsRefused) {
  services.files.SetReadOnly(std::string(kFolder) + "modCsv.bas", true);
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. Component's file is read only"));
  EXPECT_THAT(Styles(), ElementsAre(host::vbExclamation));
  EXPECT_EQ(services.files.writes, 0);
}

TEST_F(CloneComponent, OfAFileThatIsGoneIsRefusedAsReadOnly) {
  services.files.Remove(std::string(kFolder) + "modCsv.bas");
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. Component's file is read only"));
}

TEST_F(CloneComponent, InAReadOnlyProjectIsRefused) {
  services.files.SetReadOnly(std::string(kFolder) + "Stockroom.vbp", true);
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. Project's file is read only"));
  EXPECT_THAT(Styles(), ElementsAre(host::vbExclamation));
  EXPECT_EQ(File("modCsv.bas"), before.at("modCsv.bas"));
  EXPECT_THAT(Names(), Not(Contains("modTsv")));
}

TEST_F(CloneComponent, ANameInUseIsRefusedAndNothingChanges) {
  services.files.Put(std::string(kFolder) + "other.bas",
                     "Attribute VB_Name = \"modOther\"\r\nPublic a\r\nPublic b\r\n");
  environment->ActiveVBProject()->VBComponents()->AddFile(std::string(kFolder) + "other.bas");
  std::vector<std::string> names = Names();
  Clone("modCsv", "modOther");
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_THAT(Messages()[0], StartsWith("Can not clone current Component. "));
  EXPECT_EQ(Names(), names);
  EXPECT_EQ(File("modCsv.bas"), before.at("modCsv.bas"));
}

TEST_F(CloneComponent, ANameThatIsNoneIsRefused) {
  std::vector<std::string> names = Names();
  for (const char* name : {"two words", "1st", "a-b"}) Clone("modCsv", name);
  EXPECT_EQ(Messages().size(), 3u);
  EXPECT_EQ(Names(), names);
  EXPECT_THAT(ChangedFiles(), IsEmpty());
}

TEST_F(CloneComponent, AnotherFileOfThatNameIsNotLost) {
  services.files.Put(std::string(kFolder) + "modTsv.bas", "precious");
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(),
              ElementsAre("Can not clone current Component. Z:\\samples\\stockroom\\modTsv.bas already exists."));
  EXPECT_EQ(File("modTsv.bas"), "precious");
  EXPECT_THAT(Names(), Not(Contains("modTsv")));
}

TEST_F(CloneComponent, AnotherBinaryFileOfThatNameIsNotLost) {
  services.files.Put(std::string(kFolder) + "frmCredits.frx", "precious");
  std::vector<std::string> names = Names();
  Clone("frmAbout", "frmCredits");
  EXPECT_THAT(Messages(),
              ElementsAre("Can not clone current Component. Z:\\samples\\stockroom\\frmCredits.frx already exists."));
  EXPECT_EQ(Names(), names);
  EXPECT_EQ(Component("frmAbout")->FileNames(1), std::string(kFolder) + "frmAbout.frm");
  EXPECT_THAT(ChangedFiles(), ElementsAre("frmCredits.frx"));
  EXPECT_EQ(File("frmCredits.frx"), "precious");
}

TEST_F(CloneComponent, ABinaryFileOfAnotherKindIsNotInTheWay) {
  for (const char* file : {"frmCredits.ctx", "modTsv.frx"}) services.files.Put(std::string(kFolder) + file, "precious");
  Clone("frmAbout", "frmCredits");
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(Names(), ::testing::AllOf(Contains("frmCredits"), Contains("modTsv")));
}

TEST_F(CloneComponent, UnderItsOwnNameIsRefusedWhereverItsFileLies) {
  services.files.Put("Z:\\common\\modShared.bas", "Attribute VB_Name = \"modShared\"\r\nPublic a\r\nPublic b\r\n");
  environment->ActiveVBProject()->VBComponents()->AddFile("Z:\\common\\modShared.bas");
  Press("Refresh");
  ASSERT_THAT(ChangedFiles(), ElementsAre("Stockroom.vbp"));
  const std::string project = File("Stockroom.vbp");
  const long writes = services.files.writes;
  for (const char* name : {"modShared", "MODSHARED"}) Clone("modShared", name);
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. \"modShared\" is in use already.",
                                      "Can not clone current Component. \"MODSHARED\" is in use already."));
  EXPECT_THAT(Styles(), ElementsAre(host::vbExclamation, host::vbExclamation));
  EXPECT_EQ(Component("modShared")->FileNames(1), "Z:\\common\\modShared.bas");
  EXPECT_EQ(services.files.writes, writes);
  EXPECT_THAT(ChangedFiles(), ElementsAre("Stockroom.vbp"));
  EXPECT_EQ(File("Stockroom.vbp"), project);
}

TEST_F(CloneComponent, TheNameOfAnotherComponentIsRefusedInAnyCase) {
  std::vector<std::string> names = Names();
  Clone("modCsv", "FRMABOUT");
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. \"FRMABOUT\" is in use already."));
  EXPECT_EQ(services.files.writes, 0);
  EXPECT_EQ(Names(), names);
}

TEST_F(CloneComponent, AFullDiskIsToldWithTheNameAndTheFileThatAreLeft) {
  services.files.FailWrites(std::string(kFolder) + "modTsv.bas", 61);
  Clone("modCsv", "modTsv");
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. Disk full\r\n"
                                      "The Component's name is \"modTsv\" now, but its file is still "
                                      "Z:\\samples\\stockroom\\modCsv.bas\r\n"
                                      "Give it the name \"modCsv\" again before you save the Project."));
  EXPECT_THAT(Styles(), ElementsAre(host::vbExclamation));
  EXPECT_THAT(Names(), Contains("modTsv"));
  EXPECT_THAT(Names(), Not(Contains("modCsv")));
  EXPECT_EQ(Component("modTsv")->FileNames(1), std::string(kFolder) + "modCsv.bas");
  EXPECT_EQ(File("modCsv.bas"), before.at("modCsv.bas"));
}

TEST_F(CloneComponent, AfterAFullDiskTheOldNameMakesItTheOldComponent) {
  services.files.FailWrites(std::string(kFolder) + "modTsv.bas", 61);
  Clone("modCsv", "modTsv");
  Component("modTsv")->SetName("modCsv");
  EXPECT_THAT(ChangedFiles(), IsEmpty());
}

TEST_F(CloneComponent, AFirstComponentThatDoesNotComeBackIsTold) {
  services.files.FailReads(std::string(kFolder) + "modCsv.bas", 75);
  Clone("modCsv", "modTsv");
  services.files.FailReads(std::string(kFolder) + "modCsv.bas", 0);
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. Path/File access error\r\n"
                                      "The first Component is no longer in the Project. Its file is "
                                      "Z:\\samples\\stockroom\\modCsv.bas"));
  EXPECT_THAT(Styles(), ElementsAre(host::vbExclamation));
  EXPECT_EQ(form.pendingComponent, "");
  EXPECT_THAT(Components(), Contains("modTsv"));
  EXPECT_THAT(Components(), Not(Contains("modCsv")));
  EXPECT_EQ(Component("modTsv")->FileNames(1), std::string(kFolder) + "modTsv.bas");
  EXPECT_EQ(File("modCsv.bas"), before.at("modCsv.bas"));
}

TEST_F(CloneComponent, AFirstComponentThatCanNotBeSavedIsBackNevertheless) {
  struct LocksTheFirstFile : environment::Observer {
    explicit LocksTheFirstFile(environment::MemoryFiles& files) : files(files) {}
    void ComponentsChanged() override {
      if (files.Attributes(std::string(kFolder) + "modTsv.bas") != host::kNoSuchFile)
        files.FailWrites(std::string(kFolder) + "modCsv.bas", 70);
    }
    environment::MemoryFiles& files;
  } locks(services.files);
  environment->Observe(&locks);
  Clone("modCsv", "modTsv");
  environment->Observe(nullptr);
  EXPECT_THAT(Messages(), ElementsAre("Can not clone current Component. Permission denied"));
  EXPECT_EQ(form.pendingComponent, "");
  EXPECT_THAT(Components(), ::testing::IsSupersetOf({"modCsv", "modTsv"}));
}

TEST_F(CloneComponent, AComponentThatIsNotThereIsPassedOver) {
  form.lbxProc->Clear();
  ChooseComponent("modCsv");
  Component("modCsv")->SetName("modGone");
  services.prompts.inputs.push_back("modTsv");
  Press("Actions");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(Names(), Not(Contains("modTsv")));
}

}  // namespace
}  // namespace corvane::tests
