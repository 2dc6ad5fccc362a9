#include "environment/properties.h"

#include "environment/control_classes.h"
#include "environment/frx.h"
#include "tests/environment/designer_fixture.h"

namespace corvane::environment {
namespace {

using runtime::PictureRef;
using runtime::ToText;
using runtime::Variant;

std::vector<std::string> Names(host::Properties& properties) {
  std::vector<std::string> names;
  for (const auto& property : host::Each(properties)) names.push_back(property->Name());
  return names;
}

host::Ref<host::Properties> FontOf(const host::Ref<host::Property>& property) {
  return std::dynamic_pointer_cast<host::Properties>(std::get<std::shared_ptr<runtime::Object>>(property->Value()));
}

TEST(Properties, NameStandsFirstThenTheAlphabet) {
  OpenDesigner open(kStockForm);
  open.owner.files["frmStock.frx"] = StockSibling();
  const std::vector<std::string> names = Names(*open.Control("mnuFileOpen")->Properties());
  EXPECT_EQ(names, (std::vector<std::string>{"Name", "Caption", "Checked", "Enabled", "HelpContextID", "Index",
                                             "NegotiatePosition", "Shortcut", "Tag", "Visible", "WindowList"}));
}

TEST(Properties, AControlListsItsWholeClass) {
  OpenDesigner open(kStockForm);
  const std::vector<std::string> names = Names(*open.Control("txtNote")->Properties());
  for (const char* name :
       {"Alignment", "BackColor", "CausesValidation", "DataField", "Font", "Height", "Index", "LinkItem", "Locked",
        "MultiLine", "TabStop", "Text", "ToolTipText", "WhatsThisHelpID", "Width"})
    EXPECT_TRUE(std::find(names.begin(), names.end(), name) != names.end()) << name;
  EXPECT_TRUE(std::is_sorted(names.begin() + 1, names.end(), [](const std::string& a, const std::string& b) {
    return runtime::UCase(a) < runtime::UCase(b);
  }));
  EXPECT_EQ(names.size(), 43u);
}

TEST(Properties, AControlOfAnotherLibraryListsWhatTheFileHolds) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(Names(*open.Control("sldSize")->Properties()),
            (std::vector<std::string>{"Name", "Height", "Index", "Left", "TabIndex", "TickStyle", "Top", "Width",
                                      "_ExtentX", "_ExtentY", "_Version"}));
  EXPECT_EQ(open.Of("sldSize", "TickStyle")->Value(), Variant(3L));
  EXPECT_EQ(open.Of("sldSize", "Tag")->Value(), Variant(std::string())) << "what it has from its container, by name";
  EXPECT_EQ(ErrorOf([&] { open.Of("sldSize", "Caption"); }), 9);
}

TEST(Properties, AFormListsItsOutsideAndNotItsClientArea) {
  OpenDesigner open(kStockForm);
  const std::vector<std::string> names = Names(*open.designer.Properties());
  EXPECT_TRUE(std::find(names.begin(), names.end(), "Height") != names.end());
  EXPECT_TRUE(std::find(names.begin(), names.end(), "ClientHeight") == names.end());
  EXPECT_TRUE(std::find(names.begin(), names.end(), "Index") == names.end());
}

struct ValueCase {
  host::Index control;
  const char* property;
  Variant value;
};

TEST(Properties, ValuesOfTheFileStandOverTheDefaultsOfTheClass) {
  OpenDesigner open(kStockForm);
  const ValueCase cases[] = {
      {"fraKind", "Name", std::string("fraKind")},
      {"fraKind", "Caption", std::string("Kind")},
      {"fraKind", "Height", 1215.0},
      {"fraKind", "TabIndex", 3L},
      {"fraKind", "BorderStyle", 1L},
      {"fraKind", "BackColor", -2147483633L},
      {"fraKind", "Enabled", true},
      {"fraKind", "Tag", std::string()},
      {"fraKind", "Index", -1L},
      {"fraKind", "DragIcon", PictureRef()},
      {"optKind", "Index", 1L},
      {3L, "Value", true},
      {2L, "Value", false},
      {"mnuFileOpen", "Shortcut", std::string("^O")},
      {"mnuFileBar", "Caption", std::string("-")},
      {"txtNote", "Text", std::string("Note")},
      {"txtNote", "DataFormat", Variant()},
      {"txtNote", "BackColor", -2147483643L},
      {"sldSize", "_ExtentX", 2143L},
  };
  for (const ValueCase& c : cases) EXPECT_EQ(open.Of(c.control, c.property)->Value(), c.value) << c.property;
}

TEST(Properties, ValuesOfAForm) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(open.Of("Name")->Value(), Variant(std::string("Form1"))) << "the component's";
  EXPECT_EQ(open.Of("Caption")->Value(), Variant(std::string("Stock \"A\"")));
  EXPECT_EQ(open.Of("BorderStyle")->Value(), Variant(1L));
  EXPECT_EQ(open.Of("StartUpPosition")->Value(), Variant(3L));
  // A fixed frame of 45 twips, a caption of 285, a menu bar of 285.
  EXPECT_EQ(open.Of("Width")->Value(), Variant(4770.0));
  EXPECT_EQ(open.Of("Height")->Value(), Variant(3855.0));
  EXPECT_EQ(open.Of("Left")->Value(), Variant(0.0));
  EXPECT_EQ(open.Of("Top")->Value(), Variant(0.0));
}

TEST(Properties, AMissingTabIndexIsTheEarliestFreeOne) {
  OpenDesigner open(
      "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Label A \n   End\n   Begin VB.Label B \n      TabIndex = 1\n   End\n"
      "   Begin VB.Timer T \n   End\n   Begin VB.Label C \n   End\n   Begin VB.Label D \n      TabIndex = 0\n   "
      "End\nEnd\n");
  EXPECT_EQ(open.Of("A", "TabIndex")->Value(), Variant(2L));
  EXPECT_EQ(open.Of("B", "TabIndex")->Value(), Variant(1L));
  EXPECT_EQ(open.Of("C", "TabIndex")->Value(), Variant(3L));
}

struct Reading {
  const char* line;
  const char* property;
  Variant value;
};

TEST(Properties, AValueIsReadInEveryFormThatFilesHold) {
  const Reading cases[] = {
      {"Visible = 1", "Visible", true},
      {"Visible = 0", "Visible", false},
      {"Left = 12,5", "Left", 12.5},
      {"Left = 1e-4", "Left", 0.0001},
      {"Left = -75000", "Left", -75000.0},
      {"BackColor = QBColor(12)", "BackColor", 0xFFL},
      {"BackColor = &H00C0C0C0&", "BackColor", 0xC0C0C0L},
      {"BackColor = &H8000000F", "BackColor", -2147483633L},
      {"BorderStyle = 1  'Fest Einfach", "BorderStyle", 1L},
      {"Caption = \"a \"\"b\"\" 'c\"", "Caption", std::string("a \"b\" 'c")},
      {"Caption = bare", "Caption", std::string("bare")},
      {"Caption=\"\"", "Caption", std::string()},
      {"TabIndex = 99999999999999", "TabIndex", 2147483647L},
      {"Strange = 0   'False", "Strange", false},
      {"Strange = 2.5", "Strange", 2.5},
      {"Strange = &HFF&", "Strange", 255L},
      {"Strange = word", "Strange", std::string("word")},
  };
  for (const Reading& c : cases) {
    OpenDesigner open(std::string("VERSION 5.00\nBegin VB.Form F \n Begin VB.Label L \n  ") + c.line + "\n End\nEnd\n");
    EXPECT_EQ(open.Of("L", c.property)->Value(), c.value) << c.line;
  }
}

TEST(Properties, AFontIsItsOwnElseItsContainers) {
  OpenDesigner open(kStockForm);
  const auto say = [](const host::Ref<host::Properties>& font) {
    std::string text;
    for (const auto& member : host::Each(*font)) text += member->Name() + "=" + ToText(member->Value()) + " ";
    return text;
  };
  const std::string of_form =
      "Name=Tahoma Bold=True Charset=0 Italic=False Size=9.75 Strikethrough=False Underline=False Weight=700 ";
  EXPECT_EQ(say(FontOf(open.Of("Font"))), of_form);
  EXPECT_EQ(say(FontOf(open.Of("fraKind", "Font"))), of_form);
  EXPECT_EQ(say(FontOf(open.Of(2L, "Font"))), of_form);
  EXPECT_EQ(say(FontOf(open.Of(3L, "Font"))),
            "Name=Arial Bold=False Charset=0 Italic=True Size=8.25 Strikethrough=False Underline=False Weight=400 ");
  OpenDesigner plain("VERSION 5.00\nBegin VB.Form F \nEnd\n");
  EXPECT_EQ(
      say(FontOf(plain.Of("Font"))),
      "Name=MS Sans Serif Bold=False Charset=0 Italic=False Size=8.25 Strikethrough=False Underline=False Weight=400 ");
}

TEST(Properties, ItemsOfAListAreReadByIndexFromZero) {
  OpenDesigner open(kStockForm);
  open.owner.files["frmStock.frx"] = StockSibling();
  const auto list = open.Of("lstItems", "List"), data = open.Of("lstItems", "ItemData");
  EXPECT_EQ(list->NumIndices(), 1);
  EXPECT_EQ(list->IndexedValue(0), Variant(std::string("one")));
  EXPECT_EQ(list->IndexedValue(1), Variant(std::string("two")));
  EXPECT_EQ(list->IndexedValue(2), Variant(std::string()));
  EXPECT_EQ(list->IndexedValue(-1), Variant(std::string()));
  EXPECT_EQ(data->IndexedValue(0), Variant(7L));
  EXPECT_EQ(open.Of("lstItems", "Tag")->NumIndices(), 0);
  EXPECT_EQ(ErrorOf([&] { open.Of("lstItems", "Tag")->IndexedValue(0); }), 381);
}

TEST(Properties, AMissingSiblingReadsAsEmptyAndIsAProblem) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(open.Of("lstItems", "List")->IndexedValue(0), Variant(std::string()));
  ASSERT_EQ(open.designer.Problems().size(), 2u);
  EXPECT_EQ(open.designer.Problems()[0].line, 61);
  EXPECT_EQ(open.designer.Problems()[0].reason, "ItemData: frmStock.frx: File not found");
  EXPECT_EQ(open.owner.reads, 1);
}

TEST(Properties, AnOffsetBeyondTheEndReadsAsEmptyAndIsAProblem) {
  OpenDesigner open(
      "VERSION 5.00\nBegin VB.Form F \n   Icon            =   \"F.frx\":0005\n   Picture         =   "
      "F.frx:0000\nEnd\n");
  open.owner.files["F.frx"] = "12345";
  ASSERT_EQ(open.designer.Problems().size(), 2u);
  EXPECT_EQ(open.designer.Problems()[0].line, 3);
  EXPECT_EQ(open.designer.Problems()[0].reason, "Icon: beyond the end of F.frx");
  EXPECT_EQ(open.designer.Problems()[1].reason, "Picture: the name of the file F.frx is not in quotes");
  EXPECT_EQ(open.Of("Icon")->Value(), Variant(PictureRef()));
  EXPECT_EQ(open.Of("Picture")->Value(), Variant(PictureRef()));
}

TEST(Properties, TextsAndPicturesComeFromTheSibling) {
  OpenDesigner open(
      "VERSION 5.00\nBegin VB.Form F \n   Caption         =   $\"F.frx\":000F\n   Icon            =   \"F.frx\":0000\n"
      "   Begin VB.TextBox T \n      MultiLine       =   -1  'True\n      Text            =   \"F.frx\":0017\n   "
      "End\nEnd\n");
  open.owner.files["F.frx"] = frx::PictureRecord("BMx") + frx::LongTextRecord("a\r\nb") + frx::TextRecord("c\r\nd");
  EXPECT_EQ(open.Of("Caption")->Value(), Variant(std::string("a\r\nb")));
  EXPECT_EQ(open.Of("T", "Text")->Value(), Variant(std::string("c\r\nd")));
  ASSERT_TRUE(std::get<PictureRef>(open.Of("Icon")->Value()));
  EXPECT_EQ(std::get<PictureRef>(open.Of("Icon")->Object())->bytes, "BMx");
}

TEST(Properties, ModulesWithoutADesignerHaveTheirs) {
  OpenDesigner module("", host::ComponentType::StdModule);
  EXPECT_EQ(Names(*module.designer.Properties()), std::vector<std::string>{"Name"});
  EXPECT_FALSE(module.designer.Form());

  OpenDesigner open("VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\n  Persistable = 0  'NotPersistable\nEND\n",
                    host::ComponentType::ClassModule);
  EXPECT_EQ(Names(*open.designer.Properties()),
            (std::vector<std::string>{"Name", "DataBindingBehavior", "DataSourceBehavior", "Instancing",
                                      "MTSTransactionMode", "Persistable"}));
  EXPECT_EQ(open.Of("Instancing")->Value(), Variant(1L));
  open.owner.attributes = {{"VB_Exposed", "True"}, {"VB_Creatable", "True"}};
  EXPECT_EQ(open.Of("Instancing")->Value(), Variant(5L));
  open.Of("Persistable")->SetValue(1L);
  EXPECT_EQ(open.Text(), "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\n  Persistable = 1  'Persistable\nEND\n");
  EXPECT_FALSE(open.designer.Form());
}

// ---- writing: [line] is what a Label named L holds before, [after] what it holds then.

struct Writing {
  const char* control_class;
  const char* before;
  const char* property;
  Variant value;
  const char* after;
};

class PropertiesWrite : public testing::TestWithParam<Writing> {};

TEST_P(PropertiesWrite, OnlyTheTouchedLineDiffers) {
  const Writing& c = GetParam();
  const auto form = [&](const std::string& lines) {
    return std::string("VERSION 5.00\nBegin VB.Form F \n   Odd = 1   'kept\n   Begin VB.") + c.control_class + " L \n" +
           lines + "      Width           =   1215\n   End\n\nEnd\n";
  };
  OpenDesigner open(form(c.before));
  open.Of("L", c.property)->SetValue(c.value);
  EXPECT_EQ(open.Text(), form(c.after));
  EXPECT_EQ(open.owner.changes, std::string(c.before) == c.after ? 0 : 1);
  EXPECT_EQ(open.designer.IsDirty(), std::string(c.before) != c.after);
}

const Writing kWritings[] = {
    {"Label", "", "Caption", std::string("a \"b\""), "      Caption         =   \"a \"\"b\"\"\"\n"},
    {"Label", "      Caption         =   \"a\"\n", "Caption", std::string(), ""},
    {"Label", "      Caption = \"a\" \n", "Caption", std::string("b"), "      Caption = \"b\" \n"},
    {"Label", "      Caption         =   \"a\"\n", "Caption", std::string("a"), "      Caption         =   \"a\"\n"},
    {"Label", "      Height          =   1\n", "AutoSize", true,
     "      AutoSize        =   -1  'True\n      Height          =   1\n"},
    {"Label", "      AutoSize        =   -1  'True\n", "AutoSize", false, ""},
    {"Label", "", "Visible", false, "      Visible         =   0   'False\n"},
    {"Label", "", "Visible", std::string("False"), "      Visible         =   0   'False\n"},
    {"Label", "      Visible         =   0   'Falsch\n", "Visible", 0L, "      Visible         =   0   'Falsch\n"},
    {"Label", "", "Alignment", 2L, "      Alignment       =   2  'Center\n"},
    {"Label", "      Alignment       =   2  'Zentriert\n", "Alignment", 1L,
     "      Alignment       =   1  'Right Justify\n"},
    {"Label", "      Alignment       =   2  'Zentriert\n", "Alignment", 2L,
     "      Alignment       =   2  'Zentriert\n"},
    {"Label", "      Alignment       =   0  'Links\n", "Alignment", 0L, "      Alignment       =   0  'Links\n"},
    {"Label", "      Visible         =   1\n", "Visible", true, "      Visible         =   1\n"},
    {"Image", "      Picture         =   \"gone.frx\":0000\n", "Picture", PictureRef(),
     "      Picture         =   \"gone.frx\":0000\n"},
    {"Label", "", "MousePointer", 99L, "      MousePointer    =   99  'Custom\n"},
    {"Label", "", "BackColor", 255L, "      BackColor       =   &H000000FF&\n"},
    {"Label", "", "ForeColor", -2147483640L, "      ForeColor       =   &H80000008&\n"},
    {"Label", "      BackColor       =   &H000000FF&\n", "BackColor", -2147483633L, ""},
    {"Label", "", "Left", 12.5, "      Left            =   12.5\n"},
    {"Label", "      Left            =   120\n", "Left", 0L, "      Left            =   0\n"},
    {"Label", "      Left            =   120\n", "Left", std::string("120"), "      Left            =   120\n"},
    {"Label", "      TabIndex        =   4\n", "TabIndex", 0L, "      TabIndex        =   0\n"},
    {"Label", "", "Index", 3L, "      Index           =   3\n"},
    {"Label", "      Index           =   3\n", "Index", -1L, ""},
    {"Label", "      _Odd            =   1\n", "Tag", std::string("x"),
     "      _Odd            =   1\n      Tag             =   \"x\"\n"},
    {"Label", "      Height          =   1\n      Top             =   2\n", "Tag", std::string("x"),
     "      Height          =   1\n      Tag             =   \"x\"\n      Top             =   2\n"},
    {"Label", "", "WhatsThisHelpID", 5L, "      WhatsThisHelpID =   5\n"},
    {"CheckBox", "", "Value", 2L, "      Value           =   2  'Grayed\n"},
    {"OptionButton", "", "Value", true, "      Value           =   -1  'True\n"},
    {"ComboBox", "", "Style", 2L, "      Style           =   2  'Dropdown List\n"},
    {"CommandButton", "", "Style", 1L, "      Style           =   1  'Graphical\n"},
    {"Shape", "", "Shape", 3L, "      Shape           =   3  'Circle\n"},
    {"Shape", "", "DrawMode", 6L, "      DrawMode        =   6  'Invert\n"},
    {"Menu", "", "Shortcut", std::string("{F5}"), "      Shortcut        =   {F5}\n"},
    {"Menu", "      Shortcut        =   ^S\n", "Shortcut", std::string(), ""},
    {"Menu", "      Caption         =   \"a\"\n", "Caption", std::string(), "      Caption         =   \"\"\n"},
    {"FileListBox", "", "Pattern", std::string("*.bas"), "      Pattern         =   \"*.bas\"\n"},
    {"FileListBox", "      Pattern         =   \"*.bas\"\n", "Pattern", std::string("*.*"), ""},
    {"PictureBox", "      Appearance      =   0  'Flat\n      ScaleHeight     =   5\n      ScaleWidth      =   5\n",
     "Height", 600L,
     "      Appearance      =   0  'Flat\n      Height          =   600\n      ScaleHeight     =   570\n"
     "      ScaleWidth      =   1185\n"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PropertiesWrite, testing::ValuesIn(kWritings), [](const auto& info) {
  return std::to_string(info.index) + info.param.control_class + info.param.property;
});

TEST(Properties, SettingAFormsSizeMovesItsClientAreaAndScale) {
  OpenDesigner open(kStockForm);
  open.Of("Width")->SetValue(5000L);
  open.Of("Top")->SetValue(100L);
  std::string expected = kStockForm;
  const auto change = [&](const std::string& from, const std::string& to) {
    expected.replace(expected.find(from), from.size(), to);
  };
  change("ClientWidth     =   4680", "ClientWidth     =   4910");
  change("ScaleWidth      =   4680", "ScaleWidth      =   4910");
  change("ClientTop       =   615", "ClientTop       =   715");
  EXPECT_EQ(open.Text(), expected);
  EXPECT_EQ(open.Of("Width")->Value(), Variant(5000.0));
}

TEST(Properties, AScaleModeMovesTheScale) {
  OpenDesigner open("VERSION 5.00\nBegin VB.Form F \n   ClientHeight    =   3195\n   ClientWidth     =   4680\nEnd\n");
  open.Of("ScaleMode")->SetValue(3L);
  EXPECT_EQ(open.Text(),
            "VERSION 5.00\nBegin VB.Form F \n   ClientHeight    =   3195\n   ClientWidth     =   4680\n"
            "   ScaleHeight     =   213\n   ScaleMode       =   3  'Pixel\n   ScaleWidth      =   312\nEnd\n");
}

TEST(Properties, AFontIsWrittenAsABlockInItsPlaceAndLeftOutAgain) {
  const std::string before =
      "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Label L \n      Caption         =   \"x\"\n      Height          =  "
      " 1\n"
      "   End\nEnd\n";
  OpenDesigner open(before);
  FontOf(open.Of("L", "Font"))->Item("Bold")->SetValue(true);
  EXPECT_EQ(
      open.Text(),
      "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Label L \n      Caption         =   \"x\"\n"
      "      BeginProperty Font \n         Name            =   \"MS Sans Serif\"\n         Size            =   8.25\n"
      "         Charset         =   0\n         Weight          =   700\n         Underline       =   0   'False\n"
      "         Italic          =   0   'False\n         Strikethrough   =   0   'False\n      EndProperty\n"
      "      Height          =   1\n   End\nEnd\n");
  FontOf(open.Of("L", "Font"))->Item("Weight")->SetValue(400L);
  EXPECT_EQ(open.Text(), before);
  EXPECT_EQ(open.owner.changes, 2);
}

TEST(Properties, OneMemberOfAWrittenFontChangesOneLine) {
  OpenDesigner open(kStockForm);
  FontOf(open.Of("Font"))->Item("Size")->SetValue(12L);
  std::string expected = kStockForm;
  expected.replace(expected.find("9.75"), 4, "12");
  EXPECT_EQ(open.Text(), expected);
}

TEST(Properties, AFontIsTakenOverFromAnother) {
  OpenDesigner open(kStockForm);
  open.Of("txtNote", "Font")->SetObject(open.Of(3L, "Font")->Object());
  EXPECT_EQ(FontOf(open.Of("txtNote", "Font"))->Item("Name")->Value(), Variant(std::string("Arial")));
  EXPECT_EQ(FontOf(open.Of("txtNote", "Font"))->Item("Italic")->Value(), Variant(true));
  EXPECT_EQ(ErrorOf([&] { open.Of("txtNote", "Font")->SetValue(std::string("Arial")); }), 13);
  EXPECT_EQ(ErrorOf([&] { open.Of("txtNote", "Tag")->Object(); }), 424);
}

TEST(Properties, ALongOrBrokenTextGoesToTheSibling) {
  const std::string before = "VERSION 5.00\nBegin VB.Form F \nEnd\n";
  OpenDesigner open(before);
  open.owner.new_sibling = "F.frx";
  open.Of("Caption")->SetValue(std::string("a\r\nb"));
  EXPECT_EQ(open.Text(), "VERSION 5.00\nBegin VB.Form F \n   Caption         =   $\"F.frx\":0000\nEnd\n");
  EXPECT_EQ(open.Of("Caption")->Value(), Variant(std::string("a\r\nb")));
  open.Of("Tag")->SetValue(std::string(200, 'x'));
  EXPECT_EQ(open.Of("Tag")->Value(), Variant(std::string(200, 'x')));
  ASSERT_EQ(open.designer.Siblings().size(), 1u);
  EXPECT_EQ(open.designer.Siblings()[0].name, "F.frx");
  EXPECT_EQ(open.designer.Siblings()[0].bytes,
            frx::LongTextRecord("a\r\nb") + frx::LongTextRecord(std::string(200, 'x')));
  EXPECT_TRUE(open.designer.Siblings()[0].changed);
  open.designer.SetClean();
  EXPECT_FALSE(open.designer.Siblings()[0].changed);
  open.Of("Caption")->SetValue(std::string());
  open.Of("Tag")->SetValue(std::string());
  EXPECT_EQ(open.Text(), before);
}

TEST(Properties, AMultiLineTextHasARecordOfItsOwn) {
  OpenDesigner open(
      "VERSION 5.00\nBegin VB.Form F \n   Begin VB.TextBox T \n      MultiLine       =   -1  'True\n   End\nEnd\n");
  open.owner.new_sibling = "F.frx";
  open.Of("T", "Text")->SetValue(std::string("ab"));
  EXPECT_EQ(open.designer.Siblings()[0].bytes, frx::TextRecord("ab"));
  EXPECT_NE(open.Text().find("Text            =   \"F.frx\":0000\n"), std::string::npos);
}

TEST(Properties, TheSiblingOnlyGrows) {
  OpenDesigner open(kStockForm);
  const std::string before = StockSibling() + "bytes that nothing refers to";
  open.owner.files["frmStock.frx"] = before;
  open.Of("lstItems", "List")->SetIndexedValue(0, std::string("ONE"));
  const std::string after = open.designer.Siblings()[0].bytes;
  EXPECT_EQ(after.substr(0, before.size()), before);
  EXPECT_EQ(open.Of("lstItems", "List")->IndexedValue(0), Variant(std::string("ONE")));
  EXPECT_EQ(open.Of("lstItems", "List")->IndexedValue(1), Variant(std::string("two")));
  EXPECT_EQ(open.Of("lstItems", "ItemData")->IndexedValue(0), Variant(7L));
  // Setting it again within the session replaces the record that was added last.
  open.Of("lstItems", "List")->SetIndexedValue(2, std::string("three"));
  EXPECT_EQ(open.Of("lstItems", "ItemData")->IndexedValue(2), Variant(0L));
  EXPECT_EQ(ErrorOf([&] { open.Of("lstItems", "List")->SetIndexedValue(9, std::string("x")); }), 381);
  EXPECT_EQ(open.designer.Siblings()[0].bytes.substr(0, before.size()), before);
}

TEST(Properties, APictureIsSetAndTakenAway) {
  const std::string before = "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Image I \n   End\nEnd\n";
  OpenDesigner open(before);
  open.owner.new_sibling = "F.frx";
  open.owner.files["F.frx"] = "older bytes";  // a file of this name that nothing refers to is not overwritten
  open.Of("I", "Picture")->SetObject(std::make_shared<const runtime::Picture>(runtime::Picture{"GIF89a"}));
  EXPECT_EQ(std::get<PictureRef>(open.Of("I", "Picture")->Value())->bytes, "GIF89a");
  EXPECT_EQ(open.designer.Siblings()[0].bytes, "older bytes" + frx::PictureRecord("GIF89a"));
  EXPECT_NE(open.Text().find("Picture         =   \"F.frx\":000B\n"), std::string::npos);
  const long changes = open.owner.changes;
  open.Of("I", "Picture")->SetValue(open.Of("I", "Picture")->Value());
  EXPECT_EQ(open.owner.changes, changes) << "the picture that is there already";
  open.Of("I", "Picture")->SetValue(PictureRef());
  EXPECT_EQ(open.Text(), before);
  EXPECT_EQ(ErrorOf([&] { open.Of("I", "Picture")->SetValue(1L); }), 13);
}

TEST(Properties, NothingIsAddedToASiblingThatIsMissing) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(
      ErrorOf([&] { open.Of("Icon")->SetValue(std::make_shared<const runtime::Picture>(runtime::Picture{"x"})); }), 53);
  EXPECT_EQ(open.Text(), kStockForm);
  EXPECT_EQ(open.owner.changes, 0);
}

TEST(Properties, WhatDoesNotFitIsRefused) {
  OpenDesigner open(kStockForm);
  EXPECT_EQ(ErrorOf([&] { open.Of("txtNote", "Left")->SetValue(std::string("wide")); }), 13);
  EXPECT_EQ(ErrorOf([&] { open.Of("txtNote", "Alignment")->SetValue(-1L); }), 380);
  EXPECT_EQ(ErrorOf([&] { open.Of("txtNote", "DataFormat")->SetValue(1L); }), 383);
  EXPECT_EQ(ErrorOf([&] { open.Of("mnuFile", "Shortcut")->SetValue(std::string("two words")); }), 380);
  EXPECT_EQ(ErrorOf([&] { open.Of("txtNote", "Nothing"); }), 9);
  EXPECT_EQ(open.Text(), kStockForm);
  EXPECT_FALSE(open.designer.IsDirty());
}

TEST(Properties, APropertyThatNoTableKnowsKeepsItsKind) {
  OpenDesigner open(kStockForm);
  open.Of("sldSize", "TickStyle")->SetValue(std::string("1"));
  open.Of("sldSize", "Tag")->SetValue(std::string("x"));
  std::string expected = kStockForm;
  expected.replace(expected.find("TickStyle       =   3"), 21, "TickStyle       =   1");
  const std::string index = "      TabIndex        =   1\n";
  expected.insert(expected.find(index) + index.size(), "      Tag             =   \"x\"\n");
  EXPECT_EQ(open.Text(), expected);
}

TEST(Properties, APartThatWasNotUnderstoodRefusesEdits) {
  const std::string text = "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Label L \n<<<<<<< mine\n   End\nEnd\n";
  OpenDesigner open(text);
  EXPECT_EQ(ErrorOf([&] { open.Of("L", "Caption")->SetValue(std::string("x")); }), 75);
  EXPECT_EQ(ErrorOf([&] { open.Of("L", "Name")->SetValue(std::string("x")); }), 75);
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Add("Label", nullptr); }), 75);
  EXPECT_EQ(ErrorOf([&] { open.Controls()->Remove(open.Control("L")); }), 75);
  EXPECT_EQ(ErrorOf([&] { FontOf(open.Of("L", "Font"))->Item("Bold")->SetValue(true); }), 75);
  EXPECT_EQ(open.Of("L", "Name")->Value(), Variant(std::string("L"))) << "reading goes on";
  EXPECT_EQ(open.Text(), text);
  try {
    open.Of("L", "Caption")->SetValue(std::string("x"));
  } catch (const host::Error& error) {
    EXPECT_EQ(
        error.Description(),
        "The designer part of Form1 cannot be changed: line 4: neither a property nor Begin or End: <<<<<<< mine");
  }
}

TEST(Properties, AChoiceTakesTheValuesOfItsOwnListAlone) {
  const auto error = [](const std::string& control, const std::string& property, const Variant& value) {
    OpenDesigner open(kStockForm);
    const long number = ErrorOf([&] {
      const auto of = control.empty() ? open.Of(property) : open.Of(control, property);
      of->SetValue(value);
    });
    EXPECT_EQ(open.Text() == kStockForm, number != 0) << property;
    return number;
  };
  EXPECT_EQ(error("", "BorderStyle", std::string("99")), 380);
  EXPECT_EQ(error("", "BorderStyle", 6L), 380);
  EXPECT_EQ(error("", "BorderStyle", 5L), 0);
  EXPECT_EQ(error("", "MousePointer", 16L), 380);
  EXPECT_EQ(error("", "MousePointer", 99L), 0);
  EXPECT_EQ(error("", "DrawMode", 0L), 380);
  EXPECT_EQ(error("", "DrawMode", 16L), 0);
  EXPECT_EQ(error("", "WindowState", -1L), 380);
  EXPECT_EQ(error("", "WindowState", std::string("2")), 0);
  EXPECT_EQ(error("fraKind", "BorderStyle", 2L), 380);
  EXPECT_EQ(error("txtNote", "Alignment", 3L), 380);
  EXPECT_EQ(error("txtNote", "ScrollBars", 4L), 380);
  EXPECT_EQ(error("sldSize", "DragMode", 2L), 380) << "of its container";
}

TEST(ControlClasses, EveryClassIsComplete) {
  EXPECT_EQ(ControlClasses().size(), 27u);
  for (const ControlClass& known : ControlClasses()) {
    EXPECT_EQ(FindControlClass(known.prog_id), &known);
    EXPECT_EQ(FindControlClass(known.ClassName()), &known);
    EXPECT_FALSE(known.properties.empty());
    EXPECT_TRUE(std::is_sorted(known.properties.begin(), known.properties.end(), [](const auto& a, const auto& b) {
      return runtime::UCase(a.name) < runtime::UCase(b.name);
    }));
    for (const PropertyRow& row : known.properties) {
      const std::string where = std::string(known.prog_id) + "." + std::string(row.name);
      if (row.kind == PropertyKind::Choice) {
        EXPECT_FALSE(row.choices.empty()) << where;
      }
      if (row.kind == PropertyKind::Choice && !row.default_value.empty()) {
        EXPECT_FALSE(ChoiceText(row.choices, std::stol(std::string(row.default_value))).empty()) << where;
      }
      if (row.kind == PropertyKind::Colour) {
        EXPECT_EQ(row.default_value.size(), 11u) << where;
      }
      if (row.kind == PropertyKind::Boolean && row.rule == PropertyRule::Plain) {
        EXPECT_TRUE(row.default_value == "True" || row.default_value == "False") << where;
      }
    }
  }
  EXPECT_EQ(FindControlClass("MSComctlLib.Slider"), nullptr);
  EXPECT_EQ(FindControlClass("vb.label")->default_event, "Click");
}

}  // namespace
}  // namespace corvane::environment
