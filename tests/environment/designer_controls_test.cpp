#include "environment/control_classes.h"
#include "environment/designer_part.h"
#include "tests/environment/designer_fixture.h"

namespace corvane::environment {
namespace {

using runtime::ToText;
using runtime::Variant;

const std::string kEmptyForm =
    "VERSION 5.00\nBegin VB.Form F \n   ClientHeight    =   3195\n   ClientWidth     =   4680\nEnd\n";

std::string NamesOf(host::Collection<host::VBControl>& controls) {
  std::string names;
  for (const auto& control : host::Each(controls)) {
    const std::string index = ToText(control->Properties()->Item("Index")->Value());
    names += ToText(control->Properties()->Item("Name")->Value()) + (index == "-1" ? "" : "!" + index) + " ";
  }
  return names;
}

TEST(VBControls, AreFlatInTheOrderOfTheFileMenusToo) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(NamesOf(*open.Controls()),
            "fraKind optKind!1 optKind!0 lstItems sldSize txtNote mnuFile mnuFileOpen mnuFileBar ");
}

TEST(VBControls, AControlIsFoundByPositionOrName) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(open.Control("TXTNOTE")->ClassName(), "TextBox");
  EXPECT_EQ(open.Control("txtNote")->ProgId(), "VB.TextBox");
  EXPECT_EQ(open.Control(5L)->ClassName(), "Slider");
  EXPECT_EQ(open.Control(5L)->ProgId(), "MSComctlLib.Slider");
  for (const host::Index& missing : {host::Index(0L), host::Index(10L), host::Index("none")})
    EXPECT_EQ(ErrorOf([&] { open.Control(missing); }), 9);
}

TEST(VBControls, AnElementOfAControlArrayIsFoundByNameAndIndex) {
  OpenDesigner open(kStockForm);
  const auto caption = [&](const std::string& name, long index) {
    return ToText(open.Controls()->Item(name, index)->Properties()->Item("Caption")->Value());
  };
  EXPECT_EQ(caption("optKind", 0), "A");
  EXPECT_EQ(caption("OPTKIND", 1), "B");
  EXPECT_EQ(ToText(open.Of("optKind", "Caption")->Value()), "B") << "the first in the file";
  for (const auto& [name, index] : {std::pair("optKind", 2L), {"optKind", -1L}, {"txtNote", 0L}, {"txtNote", -1L}})
    EXPECT_EQ(ErrorOf([&] { open.Controls()->Item(name, index); }), 9) << name << " " << index;
  EXPECT_EQ(ErrorOf([&] { open.Control("optKind(1)"); }), 9);
}

TEST(VBControls, AnElementIsFoundByTheNameAndIndexThatItHasNow) {
  OpenDesigner open(kStockForm);
  const auto controls = open.Controls();
  const auto element = controls->Item("optKind", 1);
  element->Properties()->Item("Index")->SetValue(7L);
  EXPECT_EQ(ErrorOf([&] { controls->Item("optKind", 1); }), 9);
  element->Properties()->Item("Name")->SetValue(std::string("optOther"));
  EXPECT_EQ(ErrorOf([&] { controls->Item("optKind", 7); }), 9);
  EXPECT_EQ(ToText(controls->Item("optOther", 7)->Properties()->Item("Caption")->Value()), "B");
  element->Properties()->Item("Index")->SetValue(Variant());
  EXPECT_EQ(ErrorOf([&] { controls->Item("optOther", 7); }), 9);
  EXPECT_TRUE(controls->Item("optOther"));
  controls->Remove(element);
  EXPECT_EQ(ErrorOf([&] { controls->Item("optOther"); }), 9);
}

TEST(VBControls, AContainerIsNothingOnTheFormItself) {
  OpenDesigner open(kStockForm);
  EXPECT_FALSE(open.Control("fraKind")->ControlObject()->Container());
  EXPECT_EQ(ToText(open.Control(2L)->ControlObject()->Container()->Properties()->Item("Name")->Value()), "fraKind");
  EXPECT_EQ(ToText(open.Control("mnuFileBar")->ControlObject()->Container()->Properties()->Item("Name")->Value()),
            "mnuFile");
}

TEST(VBControls, AFormOfAnOlderVersionIsRead) {
  OpenDesigner open("VERSION 2.00\nBegin Form F \n   Begin CommandButton B \n      Caption = \"x\"\n   End\nEnd\n");
  EXPECT_EQ(open.Control("B")->ClassName(), "CommandButton");
  EXPECT_EQ(open.Control("B")->ProgId(), "VB.CommandButton");
  EXPECT_EQ(ToText(open.Of("B", "Caption")->Value()), "x");
}

struct Adding {
  const char* prog_id;
  const char* lines;
};

class VBControlsAdd : public testing::TestWithParam<Adding> {};

TEST_P(VBControlsAdd, WritesANewControlAsTheEnvironmentDoes) {
  OpenDesigner open(kEmptyForm);
  open.Controls()->Add(GetParam().prog_id, nullptr);
  EXPECT_EQ(open.Text(), kEmptyForm.substr(0, kEmptyForm.size() - 4) + GetParam().lines + "End\n");
  EXPECT_EQ(open.owner.changes, 1);
}

const Adding kAddings[] = {
    {"VB.Label",
     "   Begin VB.Label Label1 \n      Caption         =   \"Label1\"\n      Height          =   495\n"
     "      Left            =   1680\n      TabIndex        =   0\n      Top             =   1320\n"
     "      Width           =   1215\n   End\n"},
    {"textbox",
     "   Begin VB.TextBox Text1 \n      Height          =   495\n      Left            =   1680\n      TabIndex        "
     "=   0\n"
     "      Text            =   \"Text1\"\n      Top             =   1320\n      Width           =   1215\n   End\n"},
    {"Timer", "   Begin VB.Timer Timer1 \n      Left            =   2280\n      Top             =   1560\n   End\n"},
    {"VB.Line",
     "   Begin VB.Line Line1 \n      X1              =   1680\n      X2              =   2895\n      Y1              = "
     "  1560\n"
     "      Y2              =   1560\n   End\n"},
    {"VB.PictureBox",
     "   Begin VB.PictureBox Picture1 \n      Height          =   495\n      Left            =   1680\n"
     "      ScaleHeight     =   435\n      ScaleWidth      =   1155\n      TabIndex        =   0\n"
     "      Top             =   1320\n      Width           =   1215\n   End\n"},
    {"VB.HScrollBar",
     "   Begin VB.HScrollBar HScroll1 \n      Height          =   255\n      Left            =   1680\n"
     "      TabIndex        =   0\n      Top             =   1440\n      Width           =   1215\n   End\n"},
    {"VB.Menu", "   Begin VB.Menu Menu1 \n      Caption         =   \"\"\n   End\n"},
    {"VB.Shape",
     "   Begin VB.Shape Shape1 \n      Height          =   495\n      Left            =   1680\n"
     "      Top             =   1320\n      Width           =   1215\n   End\n"},
};

INSTANTIATE_TEST_SUITE_P(Kinds, VBControlsAdd, testing::ValuesIn(kAddings),
                         [](const auto& info) { return runtime::Replace(info.param.prog_id, ".", ""); });

TEST(VBControls, EveryKindIsAddedAndRemovedWithoutATrace) {
  for (const ControlClass& known : ControlClasses()) {
    OpenDesigner open(kStockForm);
    const std::string prog_id(known.prog_id);
    if (!known.unlisted.empty()) {
      EXPECT_EQ(ErrorOf([&] { open.Controls()->Add(prog_id, nullptr); }), 429) << prog_id;
      continue;
    }
    const long before = open.Controls()->Count();
    const auto added = open.Controls()->Add(prog_id, nullptr);
    EXPECT_EQ(open.Controls()->Count(), before + 1);
    EXPECT_EQ(added->ProgId(), prog_id);
    EXPECT_EQ(ToText(added->Properties()->Item("Name")->Value()), std::string(known.base_name) + "1");
    // What was written is read again, and is in the environment's order.
    const DesignerPart again(open.designer.Write());
    EXPECT_TRUE(again.IsUnderstood());
    open.Controls()->Remove(added);
    EXPECT_EQ(open.Text(), kStockForm) << prog_id;
  }
}

TEST(VBControls, ANewControlLiesOnTopAndSoStandsFirstAndANewMenuLast) {
  OpenDesigner open(kStockForm);
  const auto added = open.Controls()->Add("VB.CheckBox", nullptr);
  EXPECT_EQ(NamesOf(*open.Controls()),
            "Check1 fraKind optKind!1 optKind!0 lstItems sldSize txtNote mnuFile mnuFileOpen mnuFileBar ");
  EXPECT_EQ(added->Properties()->Item("TabIndex")->Value(), Variant(6L));
  open.Controls()->Add("VB.Menu", nullptr);
  open.Controls()->Add("Menu", open.Control("mnuFile"));
  EXPECT_EQ(NamesOf(*open.Controls()),
            "Check1 fraKind optKind!1 optKind!0 lstItems sldSize txtNote mnuFile mnuFileOpen mnuFileBar Menu2 Menu1 ");
}

TEST(VBControls, ANewControlOfAFormWithMenusAloneStandsBeforeThem) {
  OpenDesigner open("Begin VB.Form F \n   Begin VB.Menu mnuA \n   End\nEnd\n");
  open.Controls()->Add("Label", nullptr);
  open.Controls()->Add("VB.Menu", nullptr);
  EXPECT_EQ(NamesOf(*open.Controls()), "Label1 mnuA Menu1 ");
}

TEST(VBControls, ANewControlGoesIntoItsContainer) {
  OpenDesigner open(kStockForm);
  const auto added = open.Controls()->Add("OptionButton", open.Control("fraKind"));
  EXPECT_EQ(ToText(added->ControlObject()->Container()->Properties()->Item("Name")->Value()), "fraKind");
  EXPECT_EQ(NamesOf(*open.Controls()),
            "fraKind Option1 optKind!1 optKind!0 lstItems sldSize txtNote mnuFile mnuFileOpen mnuFileBar ");
  EXPECT_NE(open.Text().find("      Begin VB.OptionButton Option1 \n         Caption         =   \"Option1\"\n"),
            std::string::npos);
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Add("Label", open.Control("txtNote")); }), 5);
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Add("Label", open.Control("mnuFile")); }), 5);
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Add("Menu", open.Control("fraKind")); }), 5);
}

// A deeper one could not be read again.
TEST(VBControls, AControlIsNotAddedBelowTheDeepestLevel) {
  OpenDesigner open(kEmptyForm);
  host::Ref<host::VBControl> container;
  long added = 0;
  while (added < 1000 && ErrorOf([&] { container = open.Controls()->Add("VB.Frame", container); }) == 0) ++added;
  EXPECT_EQ(added, kDeepestLevel - 2);  // the form is the first, a font in the last frame would be the last
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Add("VB.Label", container); }), 5);
  EXPECT_TRUE(DesignerPart(open.designer.Write()).IsUnderstood());
}

TEST(VBControls, AControlOfAnotherLibraryIsAddedWhereThereIsOneAlready) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Add("MSComctlLib.ListView", nullptr); }), 429);
  open.Controls()->Add("MSComctlLib.Slider", nullptr);
  std::string expected = kStockForm;
  expected.insert(
      expected.find("   Begin VB.Frame fraKind "),
      "   Begin MSComctlLib.Slider Slider1 \n      Height          =   495\n      Left            =   1680\n"
      "      TabIndex        =   6\n      Top             =   1320\n      Width           =   1215\n   End\n");
  EXPECT_EQ(open.Text(), expected);
}

TEST(VBControls, NamesTakeTheFirstFreeNumber) {
  OpenDesigner open(kEmptyForm);
  open.Controls()->Add("Label", nullptr);
  open.Controls()->Add("Label", nullptr);
  open.Controls()->Add("Label", nullptr);
  open.Controls()->Remove(open.Control("Label2"));
  open.Controls()->Add("Label", nullptr);
  EXPECT_EQ(NamesOf(*open.Controls()), "Label2 Label3 Label1 ");
}

TEST(VBControls, AControlIsRemovedWithThoseInIt) {
  OpenDesigner open(kStockForm);
  const auto nested = open.Control(2L);
  open.Controls()->Remove(open.Control("fraKind"));
  EXPECT_EQ(NamesOf(*open.Controls()), "lstItems sldSize txtNote mnuFile mnuFileOpen mnuFileBar ");
  EXPECT_EQ(ErrorOf([&] { nested->ClassName(); }), 91) << "a control that is gone";
  std::string expected = kStockForm;
  const size_t from = expected.find("   Begin VB.Frame"), to = expected.find("   Begin VB.ListBox");
  expected.erase(from, to - from);
  EXPECT_EQ(open.Text(), expected);
  open.Controls()->Remove(open.Control("mnuFile"));
  EXPECT_EQ(NamesOf(*open.Controls()), "lstItems sldSize txtNote ");
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Remove(nullptr); }), 91);
}

TEST(VBControls, AControlIsRenamedThroughItsName) {
  OpenDesigner open(kStockForm);
  open.Of("txtNote", "Name")->SetValue(std::string("txtRemark"));
  std::string expected = kStockForm;
  expected.replace(expected.find("txtNote"), 7, "txtRemark");
  EXPECT_EQ(open.Text(), expected);
  EXPECT_EQ(open.Control("txtRemark")->ClassName(), "TextBox");
  for (const char* taken : {"fraKind", "OPTKIND"})
    EXPECT_EQ(ErrorOf([&] { open.Of("txtRemark", "Name")->SetValue(std::string(taken)); }), 32813);
  for (const char* bad : {"", "1a", "a b", "a-b", "_a", "a_name_that_is_longer_than_forty_characters"})
    EXPECT_EQ(ErrorOf([&] { open.Of("txtRemark", "Name")->SetValue(std::string(bad)); }), 380) << bad;
  EXPECT_EQ(open.Text(), expected);
}

TEST(VBControls, AnIndexMakesAnArrayAndIsTakenOnce) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(ErrorOf([&] { open.Of(3L, "Index")->SetValue(1L); }), 32813);
  open.Of(3L, "Index")->SetValue(2L);
  EXPECT_EQ(NamesOf(*open.Controls()).substr(0, 29), "fraKind optKind!1 optKind!2 l");
  EXPECT_EQ(ErrorOf([&] { open.Of(3L, "Index")->SetValue(40000L); }), 380);
}

TEST(VBControls, ElementsOfAnArrayShareItsName) {
  OpenDesigner open(kStockForm);
  const auto name = [&](const std::string& prog_id, const Variant& index) {
    const auto added = open.Controls()->Add(prog_id, nullptr);
    added->Properties()->Item("Index")->SetValue(index);
    return ErrorOf([&] { added->Properties()->Item("Name")->SetValue(std::string("optKind")); });
  };
  EXPECT_EQ(name("VB.OptionButton", 2L), 0);
  EXPECT_EQ(name("VB.OptionButton", 2L), 32813) << "taken";
  EXPECT_EQ(name("VB.OptionButton", Variant()), 32813) << "in no array";
  EXPECT_EQ(name("VB.CheckBox", 4L), 32813) << "another class";
  EXPECT_EQ(open.Controls()->Item("optKind", 2)->ClassName(), "OptionButton");
}

TEST(VBControls, ThePagesOfATabbedDialogFollow) {
  const std::string text = R"form(VERSION 5.00
Begin VB.Form F 
   Begin TabDlg.SSTab tab 
      TabCaption(0)   =   "A"
      Tab(0).ControlEnabled=   -1  'True
      Tab(0).Control(0)=   "lblA"
      Tab(0).Control(0).Enabled=   0   'False
      Tab(0).Control(1)=   "lblB(3)"
      Tab(0).ControlCount=   2
      Begin VB.Label lblB 
         Index           =   3
      End
      Begin VB.Label lblA 
      End
   End
End
)form";
  OpenDesigner open(text);
  open.Of("lblB", "Name")->SetValue(std::string("lblC"));
  EXPECT_NE(open.Text().find("      Tab(0).Control(1)=   \"lblC(3)\"\n"), std::string::npos);
  open.Of("lblC", "Index")->SetValue(4L);
  EXPECT_NE(open.Text().find("      Tab(0).Control(1)=   \"lblC(4)\"\n"), std::string::npos);
  open.Of("lblC", "Index")->SetValue(3L);
  const std::string before = open.Text();
  const auto added = open.Controls()->Add("Label", open.Control("tab"));
  EXPECT_NE(open.Text().find("      Tab(0).Control(2)=   \"Label1\"\n      Tab(0).ControlCount=   3\n"),
            std::string::npos);
  open.Controls()->Remove(added);
  EXPECT_EQ(open.Text(), before);
  open.Controls()->Remove(open.Control("lblA"));
  const std::string expected = R"form(VERSION 5.00
Begin VB.Form F 
   Begin TabDlg.SSTab tab 
      TabCaption(0)   =   "A"
      Tab(0).ControlEnabled=   -1  'True
      Tab(0).Control(0)=   "lblC(3)"
      Tab(0).ControlCount=   1
      Begin VB.Label lblC 
         Index           =   3
      End
   End
End
)form";
  EXPECT_EQ(open.Text(), expected);
}

TEST(VBControls, TheSelectedOnesAreThoseOfTheUser) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(open.designer.Form()->SelectedVBControls()->Count(), 0);
  open.designer.Select({6, 1, 99, 0});
  EXPECT_EQ(NamesOf(*open.designer.Form()->SelectedVBControls()), "txtNote fraKind ");
  open.Controls()->Remove(open.Control("txtNote"));
  EXPECT_EQ(NamesOf(*open.designer.Form()->SelectedVBControls()), "fraKind ");
}

TEST(Designer, AComponentIsRenamedThroughItsName) {
  OpenDesigner open(kEmptyForm);
  open.Of("Name")->SetValue(std::string("frmNew"));
  EXPECT_EQ(open.owner.name, "frmNew");
  std::string expected = kEmptyForm;
  expected.replace(expected.find("Form F "), 7, "Form frmNew ");
  EXPECT_EQ(open.Text(), expected);
}

TEST(Designer, NothingIsReadBeforeItIsAskedFor) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(open.Text(), kStockForm);
  open.Of("txtNote", "Text")->Value();
  EXPECT_EQ(open.owner.reads, 0);
}

TEST(Designer, ObjectsOfAClosedComponentAreGone) {
  OpenDesigner open(kStockForm);
  const auto controls = open.Controls();
  const auto control = open.Control("txtNote");
  const auto properties = control->Properties();
  open.designer.Detach();
  EXPECT_EQ(ErrorOf([&] { controls->Count(); }), 91);
  EXPECT_EQ(ErrorOf([&] { control->ClassName(); }), 91);
  EXPECT_EQ(ErrorOf([&] { properties->Item("Text")->SetValue(std::string("x")); }), 91);
}

TEST(Designer, ASiblingMovesWithItsComponent) {
  OpenDesigner open(kStockForm);
  open.owner.files["frmStock.frx"] = StockSibling();
  open.designer.MoveSibling("Other.frx");
  std::string expected = runtime::Replace(kStockForm, "frmStock.frx", "Other.frx");
  EXPECT_EQ(open.Text(), expected);
  ASSERT_EQ(open.designer.Siblings().size(), 1u);
  EXPECT_EQ(open.designer.Siblings()[0].name, "Other.frx");
  EXPECT_EQ(open.designer.Siblings()[0].bytes, StockSibling());
  EXPECT_TRUE(open.designer.Siblings()[0].changed);

  OpenDesigner missing(kStockForm);
  EXPECT_EQ(ErrorOf([&] { missing.designer.MoveSibling("Other.frx"); }), 53);
  EXPECT_EQ(missing.Text(), kStockForm);
}

TEST(Designer, NewComponentsAreUnderstood) {
  using enum host::ComponentType;
  for (const auto kind : {VBForm, VBMDIForm, PropPage, UserControl, DocObject}) {
    const std::string text = NewDesignerText(kind, "New1");
    const DesignerPart part(text);
    EXPECT_TRUE(part.IsUnderstood()) << text;
    EXPECT_EQ(part.Root()->name, "New1");
    EXPECT_EQ(DesignerPartLength(text + "Attribute VB_Name = \"New1\"\r\n"), text.size());
  }
  EXPECT_EQ(DesignerPart(NewDesignerText(ClassModule, "Class1")).Problems().size(), 0u);
  EXPECT_EQ(NewDesignerText(StdModule, "Module1"), "");
}

}  // namespace
}  // namespace corvane::environment
