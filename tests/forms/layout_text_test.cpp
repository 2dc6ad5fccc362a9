#include "forms/layout_text.h"

#include <gtest/gtest.h>

#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct Layout : testing::Test {
  HeadlessToolkit toolkit;
  Form form{toolkit, "frmX"};
  Layout() {
    form.SetCaption("A form");
    form.Move(200, 200, 6000, 4000);
  }
};

TEST_F(Layout, IsOneLinePerControlBelowItsContainer) {
  Frame fra(form, "fra", 2);
  fra.Move(120, 60, 3000, 1500);
  fra.SetCaption("Kinds");
  OptionButton opt(fra, "opt");
  opt.Move(120, 300, 900, 255);
  opt.SetCaption("&All");
  opt.SetVisible(false);
  TextBox txt(form, "txt");
  txt.Move(120, 1700, 1200, 300);
  txt.SetText("two\r\nlines");
  txt.SetEnabled(false);
  Menu file(form, "mnuFile", "&File"), save(file, "mnuSave", "&Save");
  save.SetShortcut("^S");
  EXPECT_EQ(LayoutText(form),
            "Form frmX 200 200 6000 4000 \"A form\"\n"
            "Frame fra (2) 120 60 3000 1500 \"Kinds\"\n"
            "  OptionButton opt 120 300 900 255 \"&All\" hidden tab 1\n"
            "TextBox txt 120 1700 1200 300 \"two\\nlines\" disabled tab 2\n"
            "Menu mnuFile \"&File\"\n"
            "  Menu mnuSave \"&Save\" ^S\n");
}

TEST_F(Layout, ToolbarsListTheirButtons) {
  Toolbar bar(form, "tlb");
  bar.Move(0, 0, 6000, 420);
  ToolButton more{"more", "", "More"};
  more.Style = ToolButtonStyle::DropDown;
  more.Image = 3;
  bar.Add(more);
  EXPECT_EQ(LayoutText(form),
            "Form frmX 200 200 6000 4000 \"A form\"\n"
            "Toolbar tlb 0 0 6000 420\n"
            "  Button 1 more \"\" \"More\" drop-down image 3\n");
}

TEST_F(Layout, OverlapsAreFoundAmongVisibleSiblings) {
  CommandButton a(form, "a"), b(form, "b"), c(form, "c");
  a.Move(0, 0, 1000, 300), b.Move(1000, 0, 1000, 300), c.Move(500, 200, 1000, 300);
  EXPECT_EQ(FindOverlaps(form), (Log{"a and c overlap in frmX", "b and c overlap in frmX"}));
  EXPECT_EQ(FindOverlaps(form, {"b"}), (Log{"a and c overlap in frmX"}));
  c.SetVisible(false);
  EXPECT_EQ(FindOverlaps(form), Log{});
}

TEST_F(Layout, ControlsInFramesAreComparedWithTheirSiblingsAlone) {
  Frame fra(form, "fra");
  fra.Move(0, 0, 3000, 1500);
  CommandButton inner(fra, "inner"), other(fra, "other");
  inner.Move(100, 300, 1000, 300), other.Move(100, 300, 1000, 300);
  EXPECT_EQ(FindOverlaps(form), (Log{"inner and other overlap in fra"}));
}

TEST_F(Layout, CaptionsThatDoNotFitAreFound) {
  Label lbl(form, "lbl");
  lbl.SetCaption("0123456789");  // 830 twips wide, 198 high
  lbl.Move(0, 0, 830, 198);
  EXPECT_EQ(FindClipped(form), Log{});
  lbl.Move(0, 0, 829, 198);
  EXPECT_EQ(FindClipped(form), (Log{"the caption of lbl does not fit"}));
  lbl.Move(0, 0, 830, 197);
  EXPECT_EQ(FindClipped(form), (Log{"the caption of lbl does not fit"}));
  lbl.SetAutoSize(true);
  EXPECT_EQ(FindClipped(form), Log{});
}

TEST_F(Layout, ButtonsNeedRoomBesideTheirCaption) {
  CommandButton cmd(form, "cmd");
  cmd.SetCaption("&OK");
  cmd.Move(0, 0, 166 + 150, 300);
  EXPECT_EQ(FindClipped(form), Log{});
  cmd.SetWidth(166 + 149);
  EXPECT_EQ(FindClipped(form), (Log{"the caption of cmd does not fit"}));
}

TEST_F(Layout, ControlsThatStickOutAreFound) {
  TextBox txt(form, "txt");
  txt.Move(5000, 0, form.ScaleWidth() - 5000, 300);
  EXPECT_EQ(FindClipped(form), Log{});
  txt.SetWidth(txt.Width() + 1);
  EXPECT_EQ(FindClipped(form), (Log{"txt sticks out of frmX"}));
}

}  // namespace
}  // namespace corvane::forms
