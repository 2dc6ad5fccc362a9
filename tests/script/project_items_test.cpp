// Buttons and pictures that scripts add to toolbars and image lists.
#include "tests/script/project_fixture.h"

namespace corvane::script {
namespace {

constexpr char kForm[] =
    "VERSION 5.00\r\n"
    "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"\r\n"
    "Begin VB.Form frmBar \r\n"
    "   Caption         =   \"Bar\"\r\n"
    "   Begin MSComctlLib.Toolbar tbrMain \r\n"
    "      _Version        =   393216\r\n"
    "   End\r\n"
    "   Begin MSComctlLib.ImageList imlMain \r\n"
    "      _Version        =   393216\r\n"
    "   End\r\n"
    "End\r\n"
    "Attribute VB_Name = \"frmBar\"\r\n";

struct ProjectItems : ProjectTest {
  void SetUp() override {
    ProjectTest::SetUp();
    world.services.files.Put(PathOf("frmBar.frm"), kForm);
    world.services.files.Put("C:\\new.bmp", OnePixel());
    vbe->ActiveVBProject()->VBComponents()->AddFile(PathOf("frmBar.frm"));
    vbe->SaveAll();
  }
  std::string FormNow() {
    EXPECT_TRUE(vbe->SaveAll().empty());
    return runtime::Replace(FileText("frmBar.frm"), "\r\n", "\n");
  }
};

TEST_F(ProjectItems, AButtonIsAddedToAToolbar) {
  EXPECT_EQ(Value("ADD(\"frmBar.tbrMain\",\"\",\"open\",\"Open\",\"\",2)"), "True");
  EXPECT_TRUE(runtime::Holds(FormNow(),
                             "         NumButtons      =   1\n"
                             "         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} \n"
                             "            Caption         =   \"Open\"\n            Key             =   \"open\"\n"
                             "            ImageIndex      =   2\n         EndProperty\n"))
      << FormNow();
}

TEST_F(ProjectItems, AButtonHasItsStyleAndPlace) {
  Value("ADD(\"frmBar.tbrMain\",\"\",\"a\")");
  EXPECT_EQ(Value("ADD(\"frmBar.tbrMain\",1,\"b\",\"\",3)"), "True");
  const std::string form = FormNow();
  EXPECT_TRUE(runtime::Holds(form, "            Key             =   \"b\"\n            Style           =   3\n"))
      << form;
  EXPECT_LT(form.find("\"b\""), form.find("\"a\""));
}

TEST_F(ProjectItems, TheImageListIsSetWhereThereIsNone) {
  Value("ADD(\"frmBar.tbrMain\",\"\",\"a\",\"\",\"\",1,\"imlMain\")");
  EXPECT_TRUE(runtime::Holds(FormNow(), "      ImageList       =   \"imlMain\"\n"));
  Value("ADD(\"frmBar.tbrMain\",\"\",\"b\",\"\",\"\",1,\"imlOther\")");
  EXPECT_TRUE(runtime::Holds(FormNow(), "      ImageList       =   \"imlMain\"\n"));
}

TEST_F(ProjectItems, APictureIsAddedToAnImageList) {
  EXPECT_EQ(Value("ADD(\"frmBar.imlMain\",\"C:\\new.bmp\",\"\",\"new\")"), "True");
  EXPECT_TRUE(runtime::Holds(FormNow(),
                             "         NumListImages   =   1\n"
                             "         BeginProperty ListImage1 {2C247F27-8591-11D1-B16A-00C0F0283628} \n"
                             "            Picture         =   \"frmBar.frx\":0000\n"
                             "            Key             =   \"new\"\n"));
  EXPECT_GT(FileText("frmBar.frx").size(), OnePixel().size());
}

TEST_F(ProjectItems, WhatFailsIsFalse) {
  EXPECT_EQ(Value("ADD(\"frmBar.imlMain\",\"C:\\none.bmp\",\"\",\"new\")"), "False");
  EXPECT_EQ(Value("ADD(\"frmBar.tbrMain\",7,\"a\")"), "False");
  EXPECT_EQ(runtime::Replace(FormNow(), "\n", "\r\n"), kForm);
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectItems, OtherControlsAreLeftAloneAndTheResultIsTrue) {
  EXPECT_EQ(Value("ADD(\"frmAbout.cmdOk\",1,\"a\")"), "True");
  EXPECT_FALSE(vbe->IsDirty());
}

TEST_F(ProjectItems, AMissingControlIsTold) {
  EXPECT_EQ(Value("ADD(\"frmBar.tbrNone\",1,\"a\")"), "False");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nfrmBar.tbrNone"});
}

}  // namespace
}  // namespace corvane::script
