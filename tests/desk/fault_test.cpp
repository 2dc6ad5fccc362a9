// What is thrown while an act of the user runs: it ends the act, is told, and leaves no slot of Qt.
#include <QStatusBar>
#include <QTextBlock>
#include <stdexcept>

#include "desk/code_pane.h"
#include "desk/project_tree.h"
#include "desk/property_list.h"
#include "desk/user_act.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

// Faults that are no errors of the environment must not leave the acts of the user either.
struct Fault : std::runtime_error {
  Fault() : std::runtime_error("a fault") {}
};

class FaultyProperty : public host::Property {
 public:
  std::string Name() override { return "Caption"; }
  runtime::Variant Value() override { return std::string("Stock"); }
  void SetValue(const runtime::Variant&) override { throw Fault(); }
  long NumIndices() override { return 0; }
  runtime::Variant IndexedValue(long) override { return {}; }
  void SetIndexedValue(long, const runtime::Variant&) override {}
  runtime::Variant Object() override { return {}; }
  void SetObject(const runtime::Variant&) override {}
};

class FaultyProperties : public host::Properties {
 public:
  long Count() override { return 1; }
  host::Ref<host::Property> Item(const host::Index&) override { return std::make_shared<FaultyProperty>(); }
};

class FaultTest : public DeskTest {
 protected:
  std::string StatusText() const { return window_->statusBar()->currentMessage().toStdString(); }
};

TEST_F(FaultTest, APropertyThatCannotBeSetIsToldWithItsNameAndKeepsItsValue) {
  window_->Properties().Show("frmStock", std::make_shared<FaultyProperties>());
  QTableWidgetItem* value = window_->Properties().Table().item(0, 1);
  EXPECT_NO_THROW(value->setText("Goods"));
  EXPECT_EQ(StatusText(), "Caption was not set: a fault");
  EXPECT_EQ(window_->Properties().Table().item(0, 1)->text(), "Stock");
}

TEST_F(FaultTest, AClickOnAButtonOfTheBarsIsTold) {
  const auto button =
      environment_->CommandBars()->Item(std::string("Standard"))->Controls()->Add(host::ControlType::Button);
  button->SetCaption("Try");
  const auto bound =
      environment_->Events()->CommandBarEvents(button)->OnClick([](auto&, bool&, bool&) { throw Fault(); });
  Settle();
  for (const auto& control : environment_->Bars().Find("Standard")->controls)
    if (control.caption == "Try") {
      EXPECT_NO_THROW(window_->ActionOf(control.id)->trigger());
    }
  EXPECT_EQ(StatusText(), "a fault");
}

TEST_F(FaultTest, ACommandOfTheMenusIsTold) {
  const auto bound = environment_->Events()->VBBuildEvents()->OnEnterRunMode([] { throw Fault(); });
  EXPECT_NO_THROW(window_->Command("start")->trigger());
  EXPECT_EQ(StatusText(), "a fault");
}

TEST_F(FaultTest, AWindowThatCannotAskStaysOpen) {
  Module("modStock")->CodeModule()->InsertLines(1, "' new");
  prompts_.while_open = [](const auto&) { throw Fault(); };
  EXPECT_NO_THROW(EXPECT_FALSE(window_->close()));
  EXPECT_EQ(StatusText(), "a fault");
  prompts_.while_open = nullptr;
}

// An edit comes from the editor's own slot.
TEST_F(FaultTest, AnEditThatIsNotTakenIsToldAndTheTextIsTheModulesAgain) {
  CodeEditor& editor = window_->OpenCode(Module("modStock"))->Editor();
  struct Observer : environment::Observer {
    void LinesChanged(environment::Module&, long, long, long) override { throw Fault(); }
  } observer;
  environment_->Observe(&observer);
  EXPECT_NO_THROW(editor.insertPlainText("' mine\n"));
  environment_->Observe(window_.get());
  EXPECT_EQ(StatusText(), "The module did not take this change: a fault");
  Settle();
  EXPECT_EQ(editor.document()->firstBlock().text().toStdString(), Module("modStock")->CodeModule()->Lines(1, 1));
}

TEST_F(FaultTest, ASaveThatTheTreeAsksForIsTold) {
  files_.Put(Module("modStock")->Path(), kForm);
  prompts_.while_open = [](const auto&) { throw Fault(); };
  EXPECT_NO_THROW(emit window_->Tree().SaveWanted(Module("modStock")));
  EXPECT_EQ(StatusText(), "a fault");
  EXPECT_EQ(files_.Read(Module("modStock")->Path()), kForm);
  prompts_.while_open = nullptr;
}

TEST_F(FaultTest, AnActOfTheUserIsDoneOrTold) {
  QString told;
  const auto tell = [&](const QString& why) { told = why; };
  EXPECT_TRUE(UserAct([] {}, tell));
  EXPECT_EQ(told, "");
  EXPECT_FALSE(UserAct([] { throw host::Error(runtime::kTypeMismatch); }, tell));
  EXPECT_EQ(told, "Type mismatch");
  EXPECT_FALSE(UserAct([] { throw 1; }, tell));
  EXPECT_EQ(told, "unknown error");
  EXPECT_FALSE(UserAct([] { throw Fault(); }, [](const QString&) { throw Fault(); }));
}

}  // namespace
}  // namespace corvane::desk
