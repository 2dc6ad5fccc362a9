// Buttons of toolbars and pictures of image lists.
#include "tests/environment/designer_fixture.h"

namespace corvane::environment {
namespace {

const char* const kForm = R"(VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.Form Form1 
   Caption         =   "Form1"
   Begin MSComctlLib.Toolbar tbrEmpty 
      Align           =   1  'Align Top
      _Version        =   393216
      Begin VB.Label lblInside 
         Caption         =   "x"
      End
   End
   Begin MSComctlLib.Toolbar tbrMain 
      ImageList       =   "imlMain"
      _Version        =   393216
      BeginProperty Buttons {66833FE8-8583-11D1-B16A-00C0F0283628} 
         NumButtons      =   2
         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Key             =   "new"
         EndProperty
         BeginProperty Button2 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Style           =   3
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.ImageList imlMain 
      _Version        =   393216
   End
End
)";

struct ControlItems : testing::Test {
  OpenDesigner form{kForm};

  std::shared_ptr<host::LateBound> Items(const char* control, const char* property) {
    const auto object = form.Of(control, property)->Object();
    return std::dynamic_pointer_cast<host::LateBound>(std::get<std::shared_ptr<runtime::Object>>(object));
  }
  static std::string With(const std::string& from, const std::string& to) {
    EXPECT_TRUE(runtime::Holds(kForm, from)) << from;
    return runtime::Replace(kForm, from, to);
  }
};

TEST_F(ControlItems, AButtonIsAddedBehindTheOthers) {
  Items("tbrMain", "Buttons")->Call("Add", {{}, "open", "Open", "0", 2L});
  EXPECT_EQ(form.Text(), With("            Style           =   3\n         EndProperty\n",
                              "            Style           =   3\n         EndProperty\n"
                              "         BeginProperty Button3 {66833FEA-8583-11D1-B16A-00C0F0283628} \n"
                              "            Caption         =   \"Open\"\n            Key             =   \"open\"\n"
                              "            ImageIndex      =   2\n         EndProperty\n")
                             .replace(std::string(kForm).find("NumButtons      =   2"), 21, "NumButtons      =   3"));
  EXPECT_EQ(form.owner.changes, 1);
}

TEST_F(ControlItems, AButtonInBetweenRenumbersThoseBehindIt) {
  Items("tbrMain", "Buttons")->Call("Add", {1L, "first", {}, 3L, "key"});
  const std::string text = form.Text();
  EXPECT_TRUE(runtime::Holds(text,
                             "         NumButtons      =   3\n"
                             "         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} \n"
                             "            Key             =   \"first\"\n            ImageKey        =   \"key\"\n"
                             "            Style           =   3\n         EndProperty\n"
                             "         BeginProperty Button2 {66833FEA-8583-11D1-B16A-00C0F0283628} \n"
                             "            Key             =   \"new\"\n         EndProperty\n"
                             "         BeginProperty Button3 {66833FEA-8583-11D1-B16A-00C0F0283628} \n"
                             "            Style           =   3\n"))
      << text;
}

TEST_F(ControlItems, TheFirstButtonMakesTheBlockBeforeTheControlsInside) {
  Items("tbrEmpty", "Buttons")->Call("Add", {});
  EXPECT_EQ(form.Text(), With("      Begin VB.Label lblInside",
                              "      BeginProperty Buttons {66833FE8-8583-11D1-B16A-00C0F0283628} \n"
                              "         NumButtons      =   1\n"
                              "         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} \n"
                              "         EndProperty\n      EndProperty\n      Begin VB.Label lblInside"));
}

TEST_F(ControlItems, TheFormIsReadAgainWithoutAProblem) {
  Items("tbrEmpty", "Buttons")->Call("Add", {{}, "a", "A"});
  const std::string text = form.Text();
  OpenDesigner again(text);
  EXPECT_TRUE(again.designer.Problems().empty());
  EXPECT_EQ(again.Text(), text);
}

TEST_F(ControlItems, CountTellsHowMany) {
  EXPECT_EQ(runtime::ToLong(Items("tbrEmpty", "Buttons")->Call("Count", {})), 0);
  EXPECT_EQ(runtime::ToLong(Items("tbrMain", "Buttons")->Call("Count", {})), 2);
}

TEST_F(ControlItems, AKeyThatIsThereIsRefused) {
  EXPECT_EQ(ErrorOf([&] { Items("tbrMain", "Buttons")->Call("Add", {{}, "NEW"}); }), 35602);
  EXPECT_EQ(form.Text(), kForm);
}

TEST_F(ControlItems, APlaceThatIsNotThereIsRefused) {
  for (const long index : {0L, 4L})
    EXPECT_EQ(ErrorOf([&] { Items("tbrMain", "Buttons")->Call("Add", {index}); }), 35600) << index;
  EXPECT_EQ(form.Text(), kForm);
}

TEST_F(ControlItems, OtherMembersAreUnknown) {
  EXPECT_EQ(ErrorOf([&] { Items("tbrMain", "Buttons")->Call("Clear", {}); }), runtime::kNoSuchMember);
}

TEST_F(ControlItems, APictureIsAddedToAnImageList) {
  const auto picture = std::make_shared<runtime::Picture>(runtime::Picture{"BM picture"});
  Items("imlMain", "ListImages")->Call("Add", {{}, "new", runtime::PictureRef(picture)});
  EXPECT_EQ(form.Text(), With("   Begin MSComctlLib.ImageList imlMain \n      _Version        =   393216\n",
                              "   Begin MSComctlLib.ImageList imlMain \n      _Version        =   393216\n"
                              "      BeginProperty Images {2C247F25-8591-11D1-B16A-00C0F0283628} \n"
                              "         NumListImages   =   1\n"
                              "         BeginProperty ListImage1 {2C247F27-8591-11D1-B16A-00C0F0283628} \n"
                              "            Picture         =   \"Form1.frx\":0000\n"
                              "            Key             =   \"new\"\n         EndProperty\n      EndProperty\n"));
}

TEST_F(ControlItems, AnImageListTakesPicturesOnly) {
  EXPECT_EQ(ErrorOf([&] { Items("imlMain", "ListImages")->Call("Add", {{}, "new"}); }), runtime::kInvalidPropertyValue);
  EXPECT_EQ(form.Text(), kForm);
}

TEST_F(ControlItems, TheImageListOfAToolbarIsAControl) {
  const auto list = form.Of("tbrMain", "ImageList")->Object();
  const auto control = std::dynamic_pointer_cast<host::VBControl>(std::get<std::shared_ptr<runtime::Object>>(list));
  ASSERT_TRUE(control);
  EXPECT_EQ(runtime::ToText(control->Properties()->Item("Name")->Value()), "imlMain");
  EXPECT_EQ(runtime::ToText(form.Of("tbrMain", "ImageList")->Value()), "imlMain");
  EXPECT_TRUE(std::holds_alternative<std::monostate>(form.Of("tbrEmpty", "ImageList")->Object()));
  form.Of("tbrEmpty", "ImageList")->SetObject(list);
  EXPECT_EQ(form.Text(), With("      Align           =   1  'Align Top\n",
                              "      Align           =   1  'Align Top\n      ImageList       =   \"imlMain\"\n"));
}

TEST_F(ControlItems, AToolbarTakesNoOtherControlForItsImageList) {
  const runtime::Variant label = std::static_pointer_cast<runtime::Object>(form.Control("lblInside"));
  EXPECT_EQ(ErrorOf([&] { form.Of("tbrEmpty", "ImageList")->SetObject(label); }), runtime::kTypeMismatch);
  EXPECT_EQ(form.Text(), kForm);
}

}  // namespace
}  // namespace corvane::environment
