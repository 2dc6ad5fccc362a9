// The search of designers: hits in the properties of controls and components.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

environment::SourceFile Form(const std::string& name, const std::string& caption, const std::string& inner) {
  const std::string head = "VERSION 5.00\r\nBegin VB.Form " + name + " \r\n";
  const std::string tail = "End\r\nAttribute VB_Name = \"" + name + "\"\r\nSub A()\r\nEnd Sub\r\n";
  return {name + ".frm", head + "   Caption         =   \"" + caption + "\"\r\n" + inner + tail};
}

std::string Label(const std::string& name, const std::string& caption) {
  return "   Begin VB.Label " + name + " \r\n      Caption         =   \"" + caption + "\"\r\n   End\r\n";
}

class PropertyOfDesigners : public ExplorerTest {
 protected:
  PropertyOfDesigners() {
    OpenWindow({
        Form("frmOne", "Orders", Label("lblA", "Order number") + Label("lblB", "ORDER date")),
        Bas("modOrder", {"Public Order As Long", "Sub B()", "End Sub"}),
        Form("frmTwo", "Order two", Label("lblC", "Name")),
    });
  }
  void SearchFor(const std::string& text) {
    services.prompts.inputs.push_back(text);
    form.tlbr.UserButtonClick(form.tlbr.PositionOf("Find"));
  }
};

TEST_F(PropertyOfDesigners, HitsStandBelowTheNameOfTheirDesigner) {
  SearchFor("order");
  EXPECT_THAT(CodeRows(), ElementsAre("ModuleName = frmOne", "  Component = lblA  Caption = Order number",
                                      "  Component = lblB  Caption = ORDER date", " ", "ModuleName = frmTwo",
                                      "  Caption = Order two"));
  EXPECT_EQ(form.txtCode.StoredText(1), "ModuleName = \2frmOne");
  EXPECT_EQ(form.txtCode.StoredText(2), "  Component = /+\\/+\\lblA/-\\/-\\  /+\\Caption = Order number/-\\");
  EXPECT_EQ(form.txtCode.StoredText(6), "  /+\\Caption = Order two/-\\");
  EXPECT_EQ(form.lblSub.Caption(), explorer::kSearchResult);
  EXPECT_EQ(form.txtCode.ListIndex(), 1);
  EXPECT_TRUE(form.txtCode.pic.HasFocus());
  EXPECT_EQ(services.prompts.input_boxes.back().prompt, "Type SubString for Searching in Properties");
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(PropertyOfDesigners, TheFirstPropertyOfAControlIsReportedAlone) {
  SearchFor("lab");  // the name of a control is no property here
  EXPECT_THAT(Messages(), ElementsAre("Components Properties are not found."));
}

TEST_F(PropertyOfDesigners, AFormIsFoundByItsOwnName) {
  SearchFor("frmtwo");
  EXPECT_THAT(CodeRows(), ElementsAre("ModuleName = frmTwo", "  Name = frmTwo"));
}

TEST_F(PropertyOfDesigners, ATextOfOneCharacterIsNotSought) {
  const auto before = CodeRows();
  SearchFor("o");
  EXPECT_EQ(CodeRows(), before);
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(PropertyOfDesigners, WithoutAHitItSaysSoAndKeepsTheView) {
  const auto before = CodeRows();
  SearchFor("nowhere at all");
  EXPECT_THAT(Messages(), ElementsAre("Components Properties are not found."));
  EXPECT_EQ(CodeRows(), before);
}

TEST_F(PropertyOfDesigners, ADoubleClickOnAHitShowsItsDesigner) {
  SearchFor("two");
  form.txtCode.SetStrPos(2);
  form.txtCode.DblClick();
  EXPECT_TRUE(Component("frmTwo")->HasOpenDesigner());
}

TEST_F(PropertyOfDesigners, AClickStopsItAndKeepsTheHits) {
  services.loop.on_do_events = [this] {
    if (form.txtCode.ListCount() > 0 && form.lblSub.Caption() == explorer::kSearchResult) form.txtCode.Click();
  };
  SearchFor("order");
  EXPECT_THAT(CodeRows(), Contains("ModuleName = frmOne"));
  EXPECT_THAT(CodeRows(), Not(Contains("ModuleName = frmTwo")));
}

TEST_F(PropertyOfDesigners, AClickOnTheWindowStopsItToo) {
  services.loop.on_do_events = [this] {
    if (form.lblSub.Caption() == explorer::kSearchResult) form.UserClick();
  };
  SearchFor("order");
  EXPECT_THAT(CodeRows(), Contains("ModuleName = frmOne"));
  EXPECT_THAT(CodeRows(), Not(Contains("ModuleName = frmTwo")));
}

TEST_F(PropertyOfDesigners, AClickOnAProcedureStopsItAndShowsThat) {
  ChooseComponent("frmOne");
  services.loop.on_do_events = [this] {
    if (form.lblSub.Caption() == explorer::kSearchResult) ChooseProcedure("Sub A()");
  };
  SearchFor("order");
  EXPECT_THAT(CodeRows(), Contains("Sub A()"));
  EXPECT_THAT(CodeRows(), Not(Contains(StartsWith("ModuleName"))));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(PropertyOfDesigners, AnotherSearchEndsTheOneUnderWay) {
  bool again = false;
  services.loop.on_do_events = [&] {
    if (!std::exchange(again, true)) SearchFor("two");
  };
  SearchFor("nowhere at all");
  EXPECT_THAT(CodeRows(), ElementsAre("ModuleName = frmTwo", "  Name = frmTwo"));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(PropertyOfDesigners, ResultsTakeNoRowOfThePointBefore) {
  ChooseComponent("frmOne");
  ChooseProcedure("Sub A()");
  form.txtCode.DblClick();
  SearchFor("order");
  const long points = form.points.Count();
  ASSERT_GT(points, 0);
  const long row = form.points.At(points - 1).row;
  form.txtCode.SetStrPos(3);
  form.txtCode.CodeLostFocus(3);
  EXPECT_EQ(form.points.Count(), points);
  EXPECT_EQ(form.points.At(points - 1).row, row);
}

TEST_F(PropertyOfDesigners, TheListBeforeComesBack) {
  ChooseComponent("frmOne");
  SearchFor("order");
  form.cmdPrev.Click();
  EXPECT_THAT(Components(), Contains("frmOne"));
  EXPECT_NE(form.lblSub.Caption(), explorer::kSearchResult);
}

}  // namespace
}  // namespace corvane::tests
