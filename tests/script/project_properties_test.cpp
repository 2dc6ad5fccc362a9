// What scripts read and write of components, controls and their properties.
#include "script/property_text.h"
#include "tests/script/project_fixture.h"

namespace corvane::script {
namespace {

using ProjectProperties = ProjectTest;

TEST_F(ProjectProperties, TheProjectHasANameAndAFolder) {
  EXPECT_EQ(Value("$APPNAME"), "Stockroom");
  EXPECT_EQ(Value("$APPPATH"), "Z:\\samples\\stockroom");
}

TEST_F(ProjectProperties, AProjectThatWasNeverSavedHasNoFolder) {
  vbe->OpenFromTexts("", "Type=Exe\r\nName=\"New\"\r\n", {});
  EXPECT_EQ(Value("$APPPATH"), "");
  EXPECT_EQ(Value("$APPNAME"), "New");
}

TEST_F(ProjectProperties, WithoutAProjectEveryListAndTextIsEmpty) {
  const auto empty = environment::Environment::Create(world.services.files);
  ProjectAccess none(empty, world.services);
  EXPECT_EQ(none.ProjectName() + none.ProjectFileName() + none.Components("ME") + none.Components("x"), "");
}

TEST_F(ProjectProperties, ComponentsAreListedWithTheWordsOfTheirKinds) {
  EXPECT_EQ(Value("COMPONENTS(\"x\")"),
            "VBMDIForm.mdiMain|StdModule.modMain|ClassModule.clsStore|ClassModule.clsArticle|ClassModule.clsArticles|"
            "VBForm.frmArticles|VBForm.frmArticle|UserControl.BinMap|PropPage.RackPage|StdModule.modFormat|"
            "ClassModule.IRecord|ClassModule.clsSupplier|ClassModule.clsMovement|ClassModule.clsOrder|"
            "VBForm.frmMovements|VBForm.frmOrders|VBForm.frmSuppliers|VBForm.frmImport|VBForm.frmLabels|"
            "VBForm.frmAbout|StdModule.modApi|StdModule.modCsv|");
}

TEST_F(ProjectProperties, ComponentsOfAnythingSkipsRelatedDocuments) {
  EXPECT_EQ(Component("notes.txt")->Type(), host::ComponentType::RelatedDocument);
  EXPECT_FALSE(runtime::Holds(Value("COMPONENTS(\"x\")"), "notes"));
  EXPECT_FALSE(runtime::Holds(Value("COMPONENTS()"), "notes"));
}

TEST_F(ProjectProperties, ComponentsOfOtherKindsHaveTheirWords) {
  const std::string designer = "VERSION 5.00\r\nBegin {C0E45035-5775-11D0-B388-00A0C9055D8E} envData \r\nEnd\r\n",
                    document = "VERSION 5.00\r\nBegin VB.UserDocument docMain \r\nEnd\r\n";
  vbe->OpenFromTexts("", "Type=Exe\r\nDesigner=envData.dsr\r\nUserDocument=docMain.dob\r\nName=\"Other\"\r\n",
                     {{"envData.dsr", designer + "Attribute VB_Name = \"envData\"\r\n"},
                      {"docMain.dob", document + "Attribute VB_Name = \"docMain\"\r\n"}});
  EXPECT_EQ(Value("COMPONENTS(\"x\")"), "ActiveXDesigner.envData|DocObject.docMain|");
}

TEST_F(ProjectProperties, ComponentsOfMeIsTheSelectedOne) {
  Select("modCsv");
  EXPECT_EQ(Value("COMPONENTS(Me)"), "StdModule.modCsv|");
  EXPECT_EQ(Value("COMPONENTS(\"me\")"), "StdModule.modCsv|");
}

TEST_F(ProjectProperties, ComponentsOfMeIsEmptyWhileNothingIsSelected) {
  EXPECT_EQ(Value("COMPONENTS(Me)"), "");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectProperties, ComponentsOfMeIsEmptyForARelatedDocument) {
  Select("notes.txt");
  EXPECT_EQ(Value("COMPONENTS(Me)"), "");
}

TEST_F(ProjectProperties, APropertyOfAControlByItsAddress) {
  EXPECT_EQ(Value("GETPROP(\"frmAbout.cmdOk\",\"Caption\")"), "OK");
  EXPECT_EQ(Value("GETPROP(\"frmAbout.cmdOk\",\"Default\")"), "True");
  EXPECT_EQ(Value("GETPROP(\"frmAbout.lblTitle\",\"Height\")"), "375");
}

TEST_F(ProjectProperties, APropertyByItsNameInAnyCase) {
  EXPECT_EQ(Value("GETPROP(\"FRMABOUT.CMDOK\",\"CAPTION\")"), "OK");
}

TEST_F(ProjectProperties, APropertyOfAComponent) {
  EXPECT_EQ(Value("GETPROP(\"frmAbout\",\"Caption\")"), "About Stockroom");
  EXPECT_EQ(Value("GETPROP(\"modCsv\",\"Name\")"), "modCsv");
}

TEST_F(ProjectProperties, AnExpressionReadsThemByTheirDots) {
  Select("frmAbout");
  EXPECT_EQ(Value("frmAbout.cmdOk.Caption"), "OK");
  EXPECT_EQ(Value("Me.cmdOk.Caption"), "OK");
  EXPECT_EQ(Value("Me.Caption"), "About Stockroom");
  EXPECT_EQ(Value("cmdOk.Caption"), "OK");
}

TEST_F(ProjectProperties, AnOmittedComponentIsTheSelectedOne) {
  Select("frmAbout");
  EXPECT_EQ(Value("GETPROP(\"cmdOk\",\"Caption\")"), "OK");
  EXPECT_EQ(Value("GETPROP(\"Me.cmdOk\",\"Caption\")"), "OK");
}

TEST_F(ProjectProperties, ABareNameIsAControlOfTheSelectedDesignerBeforeItIsAComponent) {
  Select("frmAbout");
  RunCode("lblUser.Name=\"modCsv\"");
  EXPECT_EQ(Value("GETPROP(\"modCsv\",\"Caption\")"), "User");
}

TEST_F(ProjectProperties, WhatIsNoControlIsTriedAsAComponent) {
  Select("frmAbout");
  EXPECT_EQ(Value("GETPROP(\"frmOrders\",\"Caption\")"), "Orders");
  EXPECT_EQ(Value("GETPROP(\"ActiveVBProject.frmOrders\",\"Caption\")"), "Orders");
}

TEST_F(ProjectProperties, AnElementOfAControlArrayIsNameMarkIndex) {
  EXPECT_EQ(Value("GETPROP(\"frmArticle.lblField!2\",\"Caption\")"),
            runtime::ToText(
                Component("frmArticle")->Designer()->VBControls()->Item(16L)->Properties()->Item("Caption")->Value()));
  EXPECT_EQ(Value("GETPROP(\"frmArticle.lblField!0\",\"Index\")"), "0");
  EXPECT_EQ(Value("GETPROP(\"frmArticle.lblField!4\",\"Index\")"), "4");
}

TEST_F(ProjectProperties, TheIndexOfAnElementIsANumber) {
  EXPECT_EQ(Value("GETPROP(\"frmArticle.LBLFIELD!03\",\"Index\")"), "3");
  EXPECT_EQ(Errors(), Lines());
  for (const char* index : {"x", "", "-1", "99999999999"}) {
    EXPECT_EQ(Value(std::string("GETPROP(\"frmArticle.lblField!") + index + "\",\"Index\")"), "") << index;
    EXPECT_EQ(Errors(), Lines{std::string("Component does not exists.\nfrmArticle.lblField!") + index});
  }
}

TEST_F(ProjectProperties, AnElementThatIsNotThereIsMissing) {
  EXPECT_EQ(Value("GETPROP(\"frmArticle.lblField!9\",\"Caption\")"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmArticle.lblField!9"});
}

TEST_F(ProjectProperties, ControlsListsTheControlsOfADesigner) {
  EXPECT_EQ(Value("GETPROP(\"frmAbout.Controls\")"),
            "CommandButton.cmdOk|Label.lblUser|Label.lblVersion|Label.lblText|Label.lblTitle|Image.imgCrate|");
}

TEST_F(ProjectProperties, ControlsListsElementsOfArraysByNameMarkIndex) {
  const std::string list = Value("GETPROP(\"frmArticle.CONTROLS\")");
  EXPECT_TRUE(runtime::Holds(list, "TextBox.txtField!4|Label.lblField!4|TextBox.txtField!3|Label.lblField!3|")) << list;
}

TEST_F(ProjectProperties, SelectedVBControlsListsThoseThatAreSelected) {
  EXPECT_EQ(Value("GETPROP(\"frmAbout.SelectedVBControls\")"), "");
  std::dynamic_pointer_cast<environment::Module>(Component("frmAbout"))->UserSelectControls({1, 3});
  EXPECT_EQ(Value("GETPROP(\"frmAbout.SelectedVBControls\")"), "CommandButton.cmdOk|Label.lblVersion|");
  Select("frmAbout");
  EXPECT_EQ(Value("Me.SelectedVBControls"), "CommandButton.cmdOk|Label.lblVersion|");
  EXPECT_EQ(Value("GETPROP(\"me.selectedvbcontrols\")"), "CommandButton.cmdOk|Label.lblVersion|");
}

TEST_F(ProjectProperties, MeWithNoDesignerSelectedGivesAnEmptyListOfControls) {
  EXPECT_EQ(Value("GETPROP(\"Me.Controls\")"), "");
  EXPECT_EQ(Value("GETPROP(\"Me.SelectedVBControls\")"), "");
  Select("modCsv");
  EXPECT_EQ(Value("GETPROP(\"Me.Controls\")"), "");
  EXPECT_EQ(Value("GETPROP(\"Controls\")"), "");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectProperties, WithoutAPropertyAllAreListedButTheName) {
  const std::string all = "|" + Value("GETPROP(\"frmAbout.cmdOk\")");
  for (const char* entry : {"|Caption.OK|", "|Default.True|", "|Height.375|", "|Cancel.True|", "|Font.MS Sans Serif|"})
    EXPECT_TRUE(runtime::Holds(all, entry)) << entry << " in " << all;
  EXPECT_FALSE(runtime::Holds(all, "|Name."));
}

TEST_F(ProjectProperties, AListIsJoined) {
  const std::string all = "|" + Value("GETPROP(\"frmMovements.lstKinds\")");
  EXPECT_TRUE(runtime::Holds(all, "|List." + Value("GETPROP(\"frmMovements.lstKinds\",\"List\")") + "|")) << all;
  const auto list = Component("frmMovements")->Designer()->VBControls()->Item("lstKinds")->Properties()->Item("List");
  const std::string joined = Value("GETPROP(\"frmMovements.lstKinds\",\"List\")");
  EXPECT_TRUE(runtime::BeginsWith(
      joined, runtime::ToText(list->IndexedValue(0)) + "|" + runtime::ToText(list->IndexedValue(1))));
  EXPECT_NE(joined, "|");
}

// A list whose items behind the last one are empty, or fail.
struct ItemsProperty : host::Property {
  Lines items;
  bool fails = false;

  std::string Name() override { return "List"; }
  host::Variant Value() override { return {}; }
  void SetValue(const host::Variant&) override {}
  long NumIndices() override { return 1; }
  host::Variant IndexedValue(long index) override {
    if (index < static_cast<long>(items.size())) return items[static_cast<size_t>(index)];
    if (fails) throw host::Error(runtime::kInvalidPropertyArrayIndex);
    return std::string();
  }
  void SetIndexedValue(long, const host::Variant&) override {}
  host::Variant Object() override { return {}; }
  void SetObject(const host::Variant&) override {}
};

TEST(ListText, AnEmptyItemIsNotTheEndOfTheList) {
  for (const bool fails : {false, true}) {
    ItemsProperty list;
    list.fails = fails;
    list.items = {"a", "", "c"};
    EXPECT_EQ(ValueText(list), "a||c");
    list.items = {"", "b"};
    EXPECT_EQ(ValueText(list), "|b");
    list.items = {"a", "b"};
    EXPECT_EQ(ValueText(list), "a|b");
    list.items = {};
    EXPECT_EQ(ValueText(list), "");
  }
}

// A property whose value cannot be read.
struct DarkProperty : ItemsProperty {
  std::string Name() override { return "Dark"; }
  host::Variant Value() override { throw host::Error(runtime::kInvalidPropertyArrayIndex); }
  long NumIndices() override { return 0; }
};

struct TwoProperties : host::Properties {
  std::shared_ptr<ItemsProperty> list = std::make_shared<ItemsProperty>();
  std::shared_ptr<DarkProperty> dark = std::make_shared<DarkProperty>();

  long Count() override { return 2; }
  host::Ref<host::Property> Item(const host::Index& index) override {
    if (std::get<long>(index) == 1) return dark;
    return list;
  }
};

TEST(AllPropertiesText, AValueThatCannotBeReadIsWrittenError) {
  TwoProperties properties;
  properties.list->items = {"a", "", "c"};
  EXPECT_EQ(AllProperties(properties), "Dark.Error|List.a||c|");
}

TEST_F(ProjectProperties, DocumentsAreListedWithTheirWord) {
  RunCode("CREATE(\"DocObject\",\"docNew\")");
  EXPECT_TRUE(runtime::Holds(Value("COMPONENTS(\"x\")"), "|DocObject.docNew|"));
}

TEST_F(ProjectProperties, APropertyThatIsNotThereIsEmptyWithoutAMessage) {
  EXPECT_EQ(Value("GETPROP(\"frmAbout.cmdOk\",\"Nothing\")"), "");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectProperties, ANameOfAValueIsTakenForTheNumberOfAProperty) {
  const auto properties = Component("frmAbout")->Designer()->VBControls()->Item("cmdOk")->Properties();
  const std::string third = ValueText(*properties->Item(3L));
  EXPECT_NE(third, "");
  EXPECT_EQ(Value("GETPROP(\"frmAbout.cmdOk\",\"vbAlignLeft\")"), third);
  EXPECT_EQ(Value("GETPROP(\"frmAbout.cmdOk\",\"vbFalse\")"), "");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectProperties, AMissingComponentIsTold) {
  EXPECT_EQ(Value("GETPROP(\"frmNone\",\"Caption\")"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmNone"});
  RunCode("frmNone.Caption=\"x\"");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmNone"});
  EXPECT_EQ(Value("GETPROP(\"frmNone.Text1\",\"Text\")"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmNone.Text1"});
  EXPECT_EQ(Value("GETPROP(\"frmAbout.\",\"Text\")"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmAbout."});
}

TEST_F(ProjectProperties, CancelOfTheMessageEndsTheRun) {
  error_answer = host::vbCancel;
  EXPECT_EQ(RunCode("=GETPROP(\"frmNone\",\"Caption\")\n=1"), "");
}

TEST_F(ProjectProperties, OkOfTheMessageLetsTheRunGoOn) {
  EXPECT_EQ(RunCode("=GETPROP(\"frmNone\",\"Caption\")\n=1"), "1");
}

TEST_F(ProjectProperties, MeWithNothingSelectedIsMissing) {
  EXPECT_EQ(Value("GETPROP(Me,\"Caption\")"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nMe"});
}

TEST_F(ProjectProperties, AnAssignmentSetsAPropertyAndSavingWritesThatLineAlone) {
  RunCode("frmAbout.cmdOk.Caption=\"Close\"");
  EXPECT_EQ(SaveAll(), (Saved{{"frmAbout.frm", With("frmAbout.frm", "\"OK\"", "\"Close\"")}}));
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectProperties, AnAssignmentPumpsEvents) {
  const long before = world.services.loop.yields;
  RunCode("frmAbout.cmdOk.Caption=\"Close\"");
  EXPECT_GT(world.services.loop.yields, before);
}

TEST_F(ProjectProperties, AnElementOfAnArrayIsSet) {
  RunCode("frmArticle.lblField!3.Caption=\"New\"");
  EXPECT_EQ(Value("GETPROP(\"frmArticle.lblField!3\",\"Caption\")"), "New");
  EXPECT_NE(Value("GETPROP(\"frmArticle.lblField!2\",\"Caption\")"), "New");
}

TEST_F(ProjectProperties, ANameOfAValueIsTakenForItsNumber) {
  RunCode("frmAbout.lblUser.Alignment=\"vbCenter\"\nfrmAbout.lblUser.BackColor=\"vbButtonFace\"");
  EXPECT_EQ(Value("GETPROP(\"frmAbout.lblUser\",\"Alignment\")"), "2");
  RunCode("frmAbout.lblTitle.ForeColor=\"vbRed\"\nfrmAbout.lblTitle.Visible=\"False\"");
  const Saved saved = SaveAll();
  EXPECT_TRUE(runtime::Holds(saved.at("frmAbout.frm"), "Alignment       =   2  'Center"));
  EXPECT_TRUE(runtime::Holds(saved.at("frmAbout.frm"), "ForeColor       =   &H000000FF&"));
  EXPECT_TRUE(runtime::Holds(saved.at("frmAbout.frm"), "Visible         =   0   'False"));
}

TEST_F(ProjectProperties, ASystemColourIsTheSameByNameAndByNumber) {
  RunCode("frmAbout.lblTitle.ForeColor=\"vbGrayText\"");
  EXPECT_TRUE(runtime::Holds(SaveAll().at("frmAbout.frm"), "ForeColor       =   &H80000011&"));
}

TEST_F(ProjectProperties, AValueThatDoesNotFitIsLostWithoutAMessage) {
  RunCode("frmAbout.cmdOk.Height=\"high\"\nfrmAbout.cmdOk.Nothing=1");
  EXPECT_EQ(SaveAll(), Saved());
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectProperties, AComponentIsRenamed) {
  RunCode("modCsv.Name=\"modTables\"");
  const Saved saved = SaveAll();
  EXPECT_EQ(saved, (Saved{{"Stockroom.vbp", With("Stockroom.vbp", "Module=modCsv;", "Module=modTables;")},
                          {"modCsv.bas", With("modCsv.bas", "\"modCsv\"", "\"modTables\"")}}));
}

TEST_F(ProjectProperties, SetPictureLoadsAFileIntoAControl) {
  world.services.files.Put("C:\\new.bmp", OnePixel());
  EXPECT_EQ(Value("SETPICTURE(\"frmAbout.imgCrate\",\"C:\\new.bmp\")"), "True");
  const auto picture = Component("frmAbout")->Designer()->VBControls()->Item("imgCrate")->Properties()->Item("Picture");
  ASSERT_TRUE(std::get<runtime::PictureRef>(picture->Value()));
  EXPECT_EQ(std::get<runtime::PictureRef>(picture->Value())->bytes.size(), OnePixel().size());
  const Saved saved = SaveAll();
  EXPECT_EQ(saved.size(), 2u);
  EXPECT_TRUE(runtime::BeginsWith(saved.at("frmAbout.frx"), Before("frmAbout.frx")));
  EXPECT_GT(saved.at("frmAbout.frx").size(), Before("frmAbout.frx").size() + OnePixel().size());
}

TEST_F(ProjectProperties, SetPictureOfAMissingFileIsEmpty) {
  EXPECT_EQ(Value("SETPICTURE(\"frmAbout.imgCrate\",\"C:\\none.bmp\")"), "");
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectProperties, SetPictureOfAMissingControlIsTold) {
  EXPECT_EQ(Value("SETPICTURE(\"frmAbout.img\",\"C:\\none.bmp\")"), "False");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmAbout.img"});
}

}  // namespace
}  // namespace corvane::script
