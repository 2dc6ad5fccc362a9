#include <QMouseEvent>

#include "desk/designer_window.h"
#include "desk/property_list.h"
#include "desk/send_keys.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

class DesignerTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    module_ = Module("frmStock");
    canvas_ = &window_->OpenDesigner(module_)->Canvas();
    Settle();
  }
  int Find(const std::string& name) const {
    const auto& controls = canvas_->LayoutOf().controls;
    for (size_t at = 0; at < controls.size(); ++at)
      if (controls[at].name == name) return static_cast<int>(at);
    return -1;
  }
  void Click(const std::string& name, Qt::KeyboardModifiers held = Qt::NoModifier) {
    const QPointF at = canvas_->BoxOf(Find(name)).center();
    Mouse(QEvent::MouseButtonPress, at, held);
    Mouse(QEvent::MouseButtonRelease, at, held);
  }
  void Mouse(QEvent::Type type, QPointF at, Qt::KeyboardModifiers held = Qt::NoModifier) {
    const bool up = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, canvas_->mapToGlobal(at), Qt::LeftButton, up ? Qt::NoButton : Qt::LeftButton, held);
    QCoreApplication::sendEvent(canvas_, &event);
  }
  std::vector<std::string> SelectedInEnvironment() {
    std::vector<std::string> names;
    const auto selected = module_->Designer()->SelectedVBControls();
    for (const auto& control : host::Each(*selected))
      names.push_back(runtime::ToText(control->Properties()->Item(std::string("Name"))->Value()));
    return names;
  }
  double Number(const std::string& control, const std::string& property) {
    return runtime::ToNumber(module_->Designer()->VBControls()->Item(control)->Properties()->Item(property)->Value());
  }

  std::shared_ptr<environment::Module> module_;
  DesignerCanvas* canvas_ = nullptr;
};

TEST_F(DesignerTest, ControlsStandWhereTheFilePutsThem) {
  const Layout& layout = canvas_->LayoutOf();
  EXPECT_EQ(layout.caption, "Stock");
  EXPECT_EQ(layout.client, QSizeF(300, 200));
  EXPECT_EQ(layout.controls.at(Find("cmdSave")).on_form, QRectF(200, 160, 81, 25));
  EXPECT_EQ(layout.controls.at(Find("txtName")).place, QRectF(40, 30, 100, 19));
  EXPECT_EQ(layout.controls.at(Find("txtName")).on_form, QRectF(50, 50, 100, 19)) << "inside its frame";
  EXPECT_TRUE(layout.HasMenuBar());
  EXPECT_EQ(layout.controls.at(Find("mnuFileExit")).container, Find("mnuFile"));
}

TEST_F(DesignerTest, AClickSelectsTheInnermostControlAndCtrlAddsAnother) {
  Click("txtName");
  EXPECT_EQ(SelectedInEnvironment(), (std::vector<std::string>{"txtName"}));
  Click("cmdSave", Qt::ControlModifier);
  EXPECT_EQ(SelectedInEnvironment().size(), 2u);
  Click("cmdSave", Qt::ControlModifier);
  EXPECT_EQ(SelectedInEnvironment(), (std::vector<std::string>{"txtName"}));
  Mouse(QEvent::MouseButtonPress, canvas_->BoxOf(-1).bottomLeft() + QPointF(3, -3));
  EXPECT_TRUE(SelectedInEnvironment().empty());
}

TEST_F(DesignerTest, TabSelectsTheNextAndCtrlArrowsMoveByTheGrid) {
  canvas_->setFocus();
  Settle();
  PressKeys(ParseKeys("{TAB}"));
  ASSERT_EQ(canvas_->Selected().size(), 1u);
  Click("cmdSave");
  PressKeys(ParseKeys("^{RIGHT}^{DOWN}"));
  EXPECT_EQ(Number("cmdSave", "Left"), 3120);
  EXPECT_EQ(Number("cmdSave", "Top"), 2520);
  PressKeys(ParseKeys("+{LEFT}"));
  EXPECT_EQ(Number("cmdSave", "Width"), 1095);
  EXPECT_TRUE(module_->IsDirty());
  EXPECT_NE(module_->WriteToText().find("Left            =   3120"), std::string::npos);
}

TEST_F(DesignerTest, ADragMovesTheControlWhenItIsLetGo) {
  const QPointF at = canvas_->BoxOf(Find("cmdSave")).center();
  Mouse(QEvent::MouseButtonPress, at);
  Mouse(QEvent::MouseMove, at + QPointF(-41, -17));
  EXPECT_EQ(Number("cmdSave", "Left"), 3000);
  Mouse(QEvent::MouseButtonRelease, at + QPointF(-41, -17));
  EXPECT_EQ(Number("cmdSave", "Left"), 3000 - 40 * 15);
  EXPECT_EQ(Number("cmdSave", "Top"), 2400 - 16 * 15);
}

TEST_F(DesignerTest, ThePropertyListShowsAndSetsTheSelectedControl) {
  Click("cmdSave");
  QTableWidget& table = window_->Properties().Table();
  const auto row_of = [&](const QString& name) {
    const auto found = table.findItems(name, Qt::MatchExactly);
    return found.isEmpty() ? -1 : found.first()->row();
  };
  ASSERT_GE(row_of("Caption"), 0);
  EXPECT_EQ(table.item(row_of("Caption"), 1)->text(), "&Save");
  table.item(row_of("Caption"), 1)->setText("&Keep");
  EXPECT_NE(module_->WriteToText().find("\"&Keep\""), std::string::npos);
  EXPECT_EQ(canvas_->LayoutOf().controls.at(Find("cmdSave")).caption, "&Keep");
  EXPECT_EQ(table.item(row_of("Visible"), 1)->text(), "True");
  table.item(row_of("Visible"), 1)->setText("False");
  EXPECT_EQ(table.item(row_of("Visible"), 1)->text(), "False");
  table.item(row_of("BackColor"), 1)->setText("&H80000005&");
  EXPECT_EQ(table.item(row_of("BackColor"), 1)->text(), "&H80000005&");
  EXPECT_NE(module_->WriteToText().find("BackColor       =   &H80000005&"), std::string::npos);
  table.item(row_of("Left"), 1)->setText("not a number");
  EXPECT_EQ(Number("cmdSave", "Left"), 3000);
  EXPECT_EQ(table.item(row_of("Left"), 1)->text(), "3000");
}

TEST_F(DesignerTest, ARenamedControlStaysSelected) {
  Click("cmdSave");
  QTableWidget& table = window_->Properties().Table();
  QTableWidgetItem* value = table.item(table.findItems("Name", Qt::MatchExactly).first()->row(), 1);
  value->setText("cmdKeep");
  Settle();
  EXPECT_EQ(SelectedInEnvironment(), (std::vector<std::string>{"cmdKeep"}));
  EXPECT_EQ(canvas_->Selected(), (std::vector<int>{Find("cmdKeep")}));
  EXPECT_EQ(window_->Properties().Title(), "cmdKeep  CommandButton");
  EXPECT_NE(module_->WriteToText().find("Begin VB.CommandButton cmdKeep"), std::string::npos);
}

TEST_F(DesignerTest, ADoubleClickGoesToTheControlsCode) {
  Mouse(QEvent::MouseButtonDblClick, canvas_->BoxOf(Find("cmdSave")).center());
  Settle();
  ASSERT_TRUE(window_->PaneOf(*module_));
  EXPECT_EQ(module_->PaneSelection().start_line, 3);
}

TEST_F(DesignerTest, AControlTheAddInAddsAppearsOnTop) {
  const size_t before = canvas_->LayoutOf().controls.size();
  module_->Designer()->VBControls()->Add("VB.CheckBox", nullptr);
  EXPECT_EQ(canvas_->LayoutOf().controls.size(), before + 1);
  EXPECT_EQ(canvas_->LayoutOf().FrontToBack(-1).front(), Find("Check1"));
}

// A value is being typed into the property list, and nothing has taken it yet.
class TypingAValue : public DesignerTest {
 protected:
  void Type(const char* property, const char* keys) {
    QTableWidget& table = window_->Properties().Table();
    QTableWidgetItem* value = table.item(table.findItems(property, Qt::MatchExactly).first()->row(), 1);
    table.setFocus();
    table.setCurrentItem(value);
    Settle();
    PressKeys(ParseKeys(keys));
  }
  std::string Written() { return files_.Read("C:\\Work\\frmStock.frm"); }
};

TEST_F(TypingAValue, SavingTakesItFirst) {
  Click("cmdSave");
  Type("Caption", "Keep");
  window_->Command("save")->trigger();
  EXPECT_NE(Written().find("\"Keep\""), std::string::npos);
  EXPECT_FALSE(module_->IsDirty());
  Type("Caption", "Store");
  window_->Command("save-all")->trigger();
  EXPECT_NE(Written().find("\"Store\""), std::string::npos);
}

TEST_F(TypingAValue, LeavingAsksAboutIt) {
  Click("cmdSave");
  Type("Caption", "Keep");
  prompts_.answers = {host::vbCancel};
  EXPECT_FALSE(window_->close());
  EXPECT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(module_->WriteToText().find("\"Keep\""), std::string::npos);
}

TEST_F(TypingAValue, ItIsThatOfTheControlItWasTypedFor) {
  Click("cmdSave");
  Type("Caption", "Keep");
  canvas_->Select({Find("fraItem")});
  Settle();
  EXPECT_EQ(canvas_->LayoutOf().controls.at(Find("cmdSave")).caption, "Keep");
  EXPECT_EQ(canvas_->LayoutOf().controls.at(Find("fraItem")).caption, "Item");
  EXPECT_EQ(window_->Properties().Title(), "fraItem  Frame");
  Type("Left", "300");
  window_->OpenCode(Module("modStock"));
  Settle();
  EXPECT_EQ(Number("fraItem", "Left"), 300);
  EXPECT_EQ(window_->Properties().Title(), "modStock  Module");
}

TEST_F(TypingAValue, ANameThatCannotBeIsToldAndNothingChanges) {
  QString told;
  QObject::connect(&window_->Properties(), &PropertyList::Told, [&](const QString& text) { told = text; });
  canvas_->Select({});
  for (const char* name : {"modStock~", "1st~", "a b~"}) {
    told.clear();
    Type("Name", name);
    Settle();
    EXPECT_TRUE(told.startsWith("Name was not set: ")) << name << told.toStdString();
    EXPECT_EQ(module_->Name(), "frmStock");
    EXPECT_EQ(module_->WriteToText(), kForm);
  }
}

TEST(PropertyValues, AreShownAndReadBackByTheirKind) {
  EXPECT_EQ(PropertyList::Shown("BackColor", runtime::Variant(0xC0C0C0L)), "&H00C0C0C0&");
  EXPECT_EQ(PropertyList::Shown("BackColor", runtime::Variant(-2147483633L)), "&H8000000F&");
  EXPECT_EQ(std::get<long>(PropertyList::Typed("BackColor", "&H00FF0000&", runtime::Variant(0L))), 0xFF0000L);
  EXPECT_EQ(std::get<long>(PropertyList::Typed("BackColor", "&H80000005&", runtime::Variant(0L))), -2147483643L);
  EXPECT_EQ(std::get<bool>(PropertyList::Typed("Visible", "false", runtime::Variant(true))), false);
  EXPECT_EQ(std::get<double>(PropertyList::Typed("Left", "12.5", runtime::Variant(1.0))), 12.5);
  EXPECT_EQ(PropertyList::Shown("Picture", runtime::Variant(runtime::PictureRef())), "(None)");
  EXPECT_THROW(PropertyList::Typed("BackColor", "&Hxyz&", runtime::Variant(0L)), runtime::Error);
  EXPECT_THROW(PropertyList::Typed("Caption", QString::fromUtf8("Ж"), runtime::Variant(std::string())), runtime::Error);
}

}  // namespace
}  // namespace corvane::desk
