// Kinds and properties by name, controls made by name, and control arrays.
#include <gtest/gtest.h>
#include <sstream>

#include "forms/control_array.h"
#include "forms/icons.h"
#include "tests/forms/error_number.h"
#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct ByName : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
};

TEST_F(ByName, KindsReadTheirNamesWithAndWithoutLibrary) {
  EXPECT_EQ(KindNamed("Label"), ControlKind::Label);
  EXPECT_EQ(KindNamed("vb.checkbox"), ControlKind::CheckBox);
  EXPECT_EQ(KindNamed("MSComctlLib.Toolbar"), ControlKind::Toolbar);
  for (int kind = 0; kind <= static_cast<int>(ControlKind::UserControl); ++kind) {
    EXPECT_EQ(KindNamed(NameOf(static_cast<ControlKind>(kind))), static_cast<ControlKind>(kind));
  }
  EXPECT_EQ(NumberOf([] { KindNamed("VB.Nothing"); }), 380);
  EXPECT_EQ(NumberOf([] { KindNamed("XX.Label"); }), 380);
}

TEST_F(ByName, PropertiesReadTheirNamesWithoutCase) {
  EXPECT_EQ(PropertyNamed("tooltiptext"), Property::ToolTipText);
  EXPECT_EQ(PropertyNamed("Nothing"), Property::All);
  for (int number = 0; number <= static_cast<int>(Property::ZOrder); ++number) {
    EXPECT_EQ(PropertyNamed(NameOf(static_cast<Property>(number))), static_cast<Property>(number)) << number;
  }
}

// Per kind: properties that it has, and some that it has not.
TEST_F(ByName, EachKindHasItsProperties) {
  struct {
    const char *kind, *has, *lacks;
  } const cases[] = {
      {"Label", "Caption Alignment AutoSize WordWrap BackStyle BorderStyle ForeColor FontBold TabIndex UseMnemonic",
       "TabStop Text Value Interval"},
      {"TextBox", "Text MultiLine ScrollBars Locked MaxLength PasswordChar SelStart SelText TabStop", "Caption Value"},
      {"CommandButton", "Caption Default Cancel Value Picture Style FontSize BackColor", "ForeColor Text"},
      {"CheckBox", "Caption Value ForeColor BackColor Enabled", "Text Default"},
      {"OptionButton", "Caption Value ForeColor FontName", "Text Cancel"},
      {"Frame", "Caption BorderStyle ForeColor TabIndex", "TabStop Value"},
      {"ListBox", "ListIndex ListCount Sorted Style MultiSelect Text TopIndex NewIndex", "Caption Locked"},
      {"ComboBox", "ListIndex Text Style Sorted Locked SelStart", "Caption MultiSelect"},
      {"PictureBox", "Picture BorderStyle FillColor FillStyle ScaleWidth ScaleHeight BackColor", "Caption Text"},
      {"Image", "Picture Stretch BorderStyle Left Width ToolTipText", "BackColor FontBold TabIndex"},
      {"Line", "X1 Y1 X2 Y2 BorderColor BorderWidth Visible Tag", "Left Width Enabled ToolTipText"},
      {"Shape", "Shape FillColor FillStyle BorderColor BorderStyle BorderWidth BackColor Width", "Enabled Caption"},
      {"HScrollBar", "Min Max Value SmallChange LargeChange TabStop", "BackColor FontName ToolTipText"},
      {"VScrollBar", "Min Max Value SmallChange LargeChange TabStop", "BackColor FontName ToolTipText"},
      {"Timer", "Interval Enabled Left Top Tag", "Width Visible TabIndex Caption"},
  };
  for (const auto& each : cases) {
    Control& control = window.AddControl(each.kind, std::string("new") + each.kind, window);
    std::istringstream has(each.has), lacks(each.lacks);
    for (std::string name; has >> name;) {
      EXPECT_EQ(NumberOf([&] { control.Get(PropertyNamed(name)); }), 0) << each.kind << "." << name;
    }
    for (std::string name; lacks >> name;) {
      EXPECT_EQ(NumberOf([&] { control.Get(PropertyNamed(name)); }), 438) << each.kind << "." << name;
      EXPECT_EQ(NumberOf([&] { control.Set(PropertyNamed(name), 1L); }), 438) << each.kind << "." << name;
    }
  }
}

TEST_F(ByName, ValuesAreConvertedAsVisualBasicDoes) {
  window.txtA.Set(Property::Left, std::string("150"));
  EXPECT_EQ(window.txtA.Left(), 150);
  window.txtA.Set(Property::Locked, -1L);
  EXPECT_TRUE(window.txtA.Locked());
  window.txtA.Set(Property::FontSize, 12.0);
  window.txtA.Set(Property::FontBold, true);
  EXPECT_EQ(window.txtA.Font().Size, 12);
  EXPECT_TRUE(window.txtA.Font().Bold);
  window.cmdOK.Set(Property::Caption, 5L);
  EXPECT_EQ(window.cmdOK.Caption(), "5");
  EXPECT_EQ(NumberOf([&] { window.txtA.Set(Property::Left, std::string("x")); }), 13);
  EXPECT_EQ(NumberOf([&] { window.txtA.Set(Property::MaxLength, -1L); }), 380);
  EXPECT_EQ(NumberOf([&] { window.lst.Set(Property::ListCount, 3L); }), 383);
  EXPECT_EQ(NumberOf([&] { window.lst.Set(Property::Name, std::string("x")); }), 383);
}

TEST_F(ByName, ReadValuesHaveTheirType) {
  EXPECT_EQ(std::get<std::string>(window.txtA.Get(Property::Name)), "txtA");
  EXPECT_EQ(std::get<bool>(window.txtA.Get(Property::Enabled)), true);
  EXPECT_EQ(std::get<double>(window.txtA.Get(Property::Left)), 120);
  EXPECT_EQ(std::get<long>(window.txtA.Get(Property::BackColor)), static_cast<long>(kWindowBackground));
}

TEST_F(ByName, ControlsAreMadeInvisibleAndOwnedByTheForm) {
  window.Show();
  Control& made = window.AddControl("VB.TextBox", "txtNew", window);
  EXPECT_FALSE(made.Visible());
  EXPECT_NE(made.Peer(), nullptr);
  EXPECT_EQ(window.Find("TXTNEW"), &made);
  EXPECT_EQ(made.Kind(), ControlKind::TextBox);
  EXPECT_EQ(NumberOf([&] { window.AddControl("VB.Label", "txtnew", window); }), 727);
  EXPECT_EQ(NumberOf([&] { window.AddControl("VB.Nothing", "x", window); }), 380);
  EXPECT_EQ(NumberOf([&] { window.AddControl("Form", "x", window); }), 380);
  window.RemoveControl(made);
  EXPECT_EQ(window.Find("txtNew"), nullptr);
  EXPECT_EQ(NumberOf([&] { window.RemoveControl(window.txtA); }), 362);
}

TEST_F(ByName, AControlCanRemoveItselfInItsOwnClick) {
  window.Show();
  Control& made = window.AddControl("VB.CommandButton", "cmdNew", window);
  made.SetVisible(true);
  made.Click = [&] { window.RemoveControl(made); };
  EXPECT_TRUE(User(window).Click(made));
  EXPECT_EQ(window.Find("cmdNew"), nullptr);
  EXPECT_EQ(toolkit.Faults(), Log{});
}

TEST_F(ByName, NestedControlsAreListedBehindTheirContainers) {
  Frame fra(window, "fra");
  Label inner(fra, "inner");
  const auto all = window.AllControls();
  EXPECT_EQ(all.back(), &inner);
  EXPECT_EQ(window.Find("inner"), &inner);
  EXPECT_EQ(&inner.FormOf(), &window);
}

TEST_F(ByName, AControlMovesIntoAnotherContainer) {
  Frame fra(window, "fra");
  window.Show();
  window.cmdOK.SetContainer(fra);
  EXPECT_EQ(&window.cmdOK.ContainerOf(), &fra);
  EXPECT_EQ(fra.Controls(), (std::vector<Control*>{&window.cmdOK}));
  fra.SetVisible(false);
  EXPECT_FALSE(window.cmdOK.IsShown());
  SampleWindow other(toolkit, "frmOther");
  EXPECT_EQ(NumberOf([&] { window.cmdOK.SetContainer(other); }), 380);
  window.cmdOK.SetContainer(window);
}

TEST_F(ByName, ZOrderMovesToFrontAndBack) {
  window.txtA.ZOrder(0);
  EXPECT_EQ(window.Controls().back(), &window.txtA);
  window.txtA.ZOrder(1);
  EXPECT_EQ(window.Controls().front(), &window.txtA);
}

TEST_F(ByName, ToolkitsHearOfEachChange) {
  window.Show();
  window.cmdOK.SetCaption("x");
  window.cmdOK.SetCaption("x");
  window.cmdOK.SetEnabled(false);
  EXPECT_EQ(toolkit.Notices(window.cmdOK),
            (std::vector<Property>{Property::All, Property::Caption, Property::Enabled}));
}

struct Arrays : ByName {
  ControlArray<CheckBox> achk{window, "achk"};
};

TEST_F(Arrays, LoadClonesTheLowestElementInvisibly) {
  achk[0].Move(10, 20, 1500, 300);
  achk[0].SetCaption("Zero");
  achk[0].SetValue(vbChecked);
  achk[0].SetTag("tag");
  window.Show();
  CheckBox& made = achk.Load(3);
  EXPECT_EQ(made.Caption(), "Zero");
  EXPECT_EQ(made.Value(), vbChecked);
  EXPECT_EQ(made.Place(), achk[0].Place());
  EXPECT_EQ(made.Tag(), "tag");
  EXPECT_EQ(made.Index(), 3);
  EXPECT_EQ(made.Name(), "achk");
  EXPECT_FALSE(made.Visible());
  EXPECT_NE(made.Peer(), nullptr);
  EXPECT_EQ(window.Find("achk", 3), &made);
}

TEST_F(Arrays, ClonesStandInTheContainerOfTheLowestElement) {
  Frame fra(window, "fra");
  achk[0].SetContainer(fra);
  EXPECT_EQ(&achk.Load(1).ContainerOf(), &fra);
  achk[0].SetContainer(window);
  achk.Unload(1);
}

TEST_F(Arrays, TellTheirBoundsAndCount) {
  achk.Load(5);
  achk.Load(2);
  EXPECT_EQ(achk.Count(), 3);
  EXPECT_EQ(achk.LBound(), 0);
  EXPECT_EQ(achk.UBound(), 5);
  achk.Unload(5);
  EXPECT_EQ(achk.UBound(), 2);
}

TEST_F(Arrays, FailInVisualBasicsWay) {
  EXPECT_EQ(NumberOf([&] { achk.Item(1); }), 340);
  EXPECT_EQ(NumberOf([&] { achk.Load(0); }), 360);
  EXPECT_EQ(NumberOf([&] { achk.Unload(0); }), 362);
  EXPECT_EQ(NumberOf([&] { achk.Unload(7); }), 340);
}

TEST_F(Arrays, HandlersKnowTheirElement) {
  std::vector<int> clicked;
  achk.ForEachElement(
      [&](CheckBox& element) { element.Click = [&clicked, &element] { clicked.push_back(element.Index()); }; });
  achk.Load(1);
  achk[0].SetValue(vbChecked);
  achk[1].SetValue(vbChecked);
  EXPECT_EQ(clicked, (std::vector<int>{0, 1}));
}

TEST_F(Arrays, LoadedElementsGoWithTheForm) {
  window.Show();
  achk.Load(1);
  window.Unload();
  EXPECT_EQ(achk.Count(), 1);
  EXPECT_FALSE(achk.Has(1));
  window.Show();
  achk.Load(1);
  EXPECT_EQ(achk.Count(), 2);
}

TEST_F(Arrays, AClonedOptionTakesTheGroupsSelection) {
  ControlArray<OptionButton> arbtn(window, "arbtn");
  arbtn[0].SetValue(true);
  arbtn.Load(1);
  EXPECT_TRUE(arbtn[1].Value());
  EXPECT_FALSE(arbtn[0].Value());
}

TEST(Icons, ThatAreNotThereAreNothing) {
  EXPECT_EQ(Icon("no such icon"), nullptr);
}

// A drawing, or on Windows an icon file: kind 1, of four sizes at least, the last of which ends with the file.
TEST(Icons, ThatAreThereAreWhole) {
  for (const EmbeddedFile* file = kIconFiles; file->name; ++file) {
    ASSERT_NE(Icon(file->name), nullptr) << file->name;
    const std::string bytes = Icon(file->name)->bytes;
#ifdef _WIN32
    const auto number = [&](size_t at) { return static_cast<unsigned char>(bytes.at(at)); };
    ASSERT_EQ(bytes.substr(0, 4), std::string("\0\0\1\0", 4)) << file->name;
    const size_t sizes = number(4), last = 6 + 16 * (sizes - 1);
    EXPECT_GE(sizes, 4u) << file->name;
    const size_t length = number(last + 8) + number(last + 9) * 256u,
                 start = number(last + 12) + number(last + 13) * 256u;
    EXPECT_EQ(start + length, bytes.size()) << file->name;
#else
    EXPECT_NE(bytes.find("<svg"), std::string::npos) << file->name;
    EXPECT_TRUE(bytes.ends_with("</svg>\n") || bytes.ends_with("</svg>")) << file->name;
#endif
  }
}

TEST(Colors, QBColorHasSixteen) {
  EXPECT_EQ(QBColor(1), RGB(0, 0, 128));
  EXPECT_EQ(QBColor(15), RGB(255, 255, 255));
  EXPECT_EQ(NumberOf([] { QBColor(16); }), 5);
  EXPECT_EQ(NumberOf([] { QBColor(-1); }), 5);
}

}  // namespace
}  // namespace corvane::forms
