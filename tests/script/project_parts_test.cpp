// How scripts make and remove components and controls. Each change is saved and its files compared.
#include "tests/script/project_fixture.h"

namespace corvane::script {
namespace {

using host::ComponentType;

struct ProjectParts : ProjectTest {
  host::Ref<host::VBControl> Control(const std::string& form, const std::string& name) {
    return Component(form)->Designer()->VBControls()->Item(name);
  }
  bool Has(const std::string& component) {
    return host::PassOverErrors([&] { Component(component); });
  }
};

struct MadeKind {
  const char* word;
  ComponentType type;
};

class MadeKinds : public ProjectParts, public testing::WithParamInterface<MadeKind> {};

TEST_P(MadeKinds, AreMadeAndNamed) {
  RunCode(std::string("CREATE(\"") + GetParam().word + "\",\"NewOne\")");
  EXPECT_EQ(Errors(), Lines());
  ASSERT_TRUE(Has("NewOne"));
  EXPECT_EQ(Component("NewOne")->Type(), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(, MadeKinds,
                         testing::Values(MadeKind{"VBForm", ComponentType::VBForm},
                                         MadeKind{"ClassModule", ComponentType::ClassModule},
                                         MadeKind{"docobject", ComponentType::DocObject},
                                         MadeKind{"PROPPAGE", ComponentType::PropPage},
                                         MadeKind{"StdModule", ComponentType::StdModule},
                                         MadeKind{"UserControl", ComponentType::UserControl}),
                         [](const auto& info) { return info.param.word; });

TEST_F(ProjectParts, AnMdiFormIsMadeWhereThereIsNone) {
  vbe->OpenFromTexts("C:\\New.vbp", "Type=Exe\r\nName=\"New\"\r\n", {});
  RunCode("CREATE(\"VBMDIForm\",\"mdiNew\")");
  EXPECT_EQ(Component("mdiNew")->Type(), ComponentType::VBMDIForm);
}

TEST_F(ProjectParts, AnEndOfAWordIsNoKind) {
  RunCode("CREATE(\"FORM\",\"NewOne\")");
  EXPECT_EQ(Errors(), Lines{"Control does not created.\nFORM"});
  EXPECT_FALSE(Has("NewOne"));
}

TEST_F(ProjectParts, ANameInUseIsTheEnvironmentsErrorAndEndsThePiece) {
  EXPECT_EQ(RunCode("CREATE(\"StdModule\",\"modCsv\")\n=1"), "");
  EXPECT_EQ(Errors(), Lines());
  struct Silent : ErrorReport {
    void ReportError(const std::string&) override {}
  } silent;
  Select("frmAbout");
  try {
    access.Create(silent, "VB.Label", "lblUser");
    ADD_FAILURE() << "no error";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), runtime::kNameInUse);
  }
}

TEST_F(ProjectParts, APartWhoseNameIsRefusedIsTakenAwayAgain) {
  for (const char* call : {"CREATE(\"StdModule\",\"modCsv\")", "CREATE(\"ClassModule\",\"cls A\")",
                           "CREATE(\"ClassModule\",\"\")", "CREATE(\"VBForm\",\"1\")"})
    EXPECT_EQ(RunCode(std::string(call) + "\n=1"), "") << call;
  Select("frmAbout");
  const long before = Component("frmAbout")->Designer()->VBControls()->Count();
  EXPECT_EQ(RunCode("CREATE(\"VB.Label\",\"lblUser\")\n=1"), "");
  EXPECT_EQ(Component("frmAbout")->Designer()->VBControls()->Count(), before);
  EXPECT_EQ(Errors(), Lines());
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectParts, ALabelInTheSelectedDesignerIsMadeAndNamed) {
  Select("frmAbout");
  RunCode("CREATE(\"VB.Label\",\"lblNew\")\nMe.lblNew.Caption=\"New\"");
  EXPECT_EQ(Errors(), Lines());
  EXPECT_EQ(Control("frmAbout", "lblNew")->ProgId(), "VB.Label");
  EXPECT_FALSE(Control("frmAbout", "lblNew")->ControlObject()->Container());
  const Saved saved = SaveAll();
  ASSERT_EQ(saved.size(), 1u);
  EXPECT_TRUE(
      runtime::Holds(saved.at("frmAbout.frm"), "   Begin VB.Label lblNew \r\n      Caption         =   \"New\"\r\n"));
}

TEST_F(ProjectParts, AControlIsMadeInAContainer) {
  Select("frmMovements");
  const std::string frame = "fraKind";
  RunCode("CREATE(\"VB.Label\",\"lblA\",\"" + frame + "\")\nCREATE(\"VB.Label\",\"" + frame + ".lblB\")");
  EXPECT_EQ(Errors(), Lines());
  for (const char* name : {"lblA", "lblB"}) {
    const auto container = Control("frmMovements", name)->ControlObject()->Container();
    ASSERT_TRUE(container) << name;
    EXPECT_EQ(runtime::ToText(container->Properties()->Item("Name")->Value()), frame);
  }
}

TEST_F(ProjectParts, TheFormItselfMayBeNamedAsTheContainer) {
  Select("frmAbout");
  RunCode("CREATE(\"VB.Label\",\"Me.lblA\")\nCREATE(\"VB.Label\",\"frmAbout.lblB\")");
  EXPECT_EQ(Errors(), Lines());
  EXPECT_FALSE(Control("frmAbout", "lblA")->ControlObject()->Container());
  EXPECT_FALSE(Control("frmAbout", "lblB")->ControlObject()->Container());
}

TEST_F(ProjectParts, AContainerThatIsNotThereIsTold) {
  Select("frmAbout");
  RunCode("CREATE(\"VB.Label\",\"fraNone.lblA\")");
  EXPECT_EQ(Errors(), Lines{"Control does not created.\nVB.Label"});
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectParts, AControlWithoutASelectedDesignerIsTold) {
  RunCode("CREATE(\"VB.Label\",\"lblNew\")");
  EXPECT_EQ(Errors(), Lines{"Control does not created.\nVB.Label"});
  Select("modCsv");
  RunCode("CREATE(\"VB.Label\",\"lblNew\")");
  EXPECT_EQ(Errors(), Lines{"Control does not created.\nVB.Label"});
}

TEST_F(ProjectParts, AClassThatTheToolboxCannotGetIsTold) {
  Select("frmAbout");
  RunCode("CREATE(\"No.Such\",\"x1\")");
  EXPECT_EQ(Errors(), Lines{"Control does not created.\nNo.Such"});
}

TEST_F(ProjectParts, AFileIsAddedByItsPath) {
  world.services.files.Put("Z:\\samples\\stockroom\\modNew.bas",
                           "Attribute VB_Name = \"modNew\"\r\nOption Explicit\r\n");
  RunCode("CREATE(\"" + PathOf("modNew.bas") + "\",\"any\")");
  EXPECT_EQ(Errors(), Lines());
  ASSERT_TRUE(Has("modNew"));
  EXPECT_TRUE(runtime::Holds(SaveAll().at("Stockroom.vbp"), "Module=modNew; modNew.bas\r\n"));
}

TEST_F(ProjectParts, AFileThatIsMissingEndsThePiece) {
  EXPECT_EQ(RunCode("CREATE(\"C:\\none.bas\",\"any\")\n=1"), "");
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectParts, AProjectIsOpenedByItsPath) {
  world.services.files.Put("C:\\Other\\Other.VBP", "Type=Exe\r\nName=\"Other\"\r\n");
  RunCode("CREATE(\"C:\\Other\\Other.VBP\",\"any\")");
  EXPECT_EQ(Errors(), Lines());
  EXPECT_EQ(vbe->VBProjects()->Count(), 2);
  EXPECT_EQ(vbe->VBProjects()->Item(2L)->Name(), "Other");
}

TEST_F(ProjectParts, AControlIsRemoved) {
  RunCode("REMOVE(\"frmAbout.lblUser\")");
  EXPECT_EQ(Errors(), Lines());
  const Saved saved = SaveAll();
  EXPECT_EQ(saved, (Saved{{"frmAbout.frm", With("frmAbout.frm",
                                                "   Begin VB.Label lblUser \n      Caption         =   \"User\"\n"
                                                "      Height          =   255\n      Left            =   720\n"
                                                "      TabIndex        =   3\n      Top             =   1710\n"
                                                "      Width           =   3735\n   End\n",
                                                "")}}));
}

TEST_F(ProjectParts, AControlOfTheSelectedDesignerIsRemovedByItsNameAlone) {
  Select("frmAbout");
  RunCode("REMOVE(\"lblUser\")");
  EXPECT_FALSE(host::PassOverErrors([&] { Control("frmAbout", "lblUser"); }));
}

TEST_F(ProjectParts, AnElementOfAnArrayIsRemoved) {
  RunCode("REMOVE(\"frmArticle.lblField!2\")");
  const std::string list = Value("GETPROP(\"frmArticle.Controls\")");
  EXPECT_FALSE(runtime::Holds(list, "lblField!2|"));
  EXPECT_TRUE(runtime::Holds(list, "lblField!1|"));
  EXPECT_TRUE(runtime::Holds(list, "lblField!3|"));
}

TEST_F(ProjectParts, AComponentIsRemovedByTheProjectAndItsName) {
  RunCode("REMOVE(\"ActiveVBProject.modCsv\")");
  EXPECT_EQ(Errors(), Lines());
  EXPECT_FALSE(Has("modCsv"));
  EXPECT_EQ(SaveAll(), (Saved{{"Stockroom.vbp", With("Stockroom.vbp", "Module=modCsv; modCsv.bas\n", "")}}));
}

TEST_F(ProjectParts, WhatCannotBeRemovedIsTold) {
  Select("modCsv");
  for (const char* address : {"ActiveVBProject.no", "ActiveVBProject.", "frmAbout.no", "modCsv", "frmAbout"}) {
    RunCode(std::string("REMOVE(\"") + address + "\")");
    EXPECT_EQ(Errors(), Lines{std::string("Component does not exists.\n") + address});
  }
  EXPECT_EQ(SaveAll(), Saved());
}

}  // namespace
}  // namespace corvane::script
