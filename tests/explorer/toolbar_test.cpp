// The tables of the toolbar and the menus: each key and entry once, with its texts, and with something to do.
#include "explorer/toolbar.h"

#include <set>

#include "explorer/menus.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

using explorer::MenuEntry;
using explorer::Tool;
using explorer::ToolEntry;

const std::vector<environment::SourceFile> kShop = {
    Bas("modMain", {"Public Sub Main()", "End Sub"}),
    Cls("clsBasket", {"Public Sub Fill()", "End Sub"}),
};

class ToolTables : public ExplorerTest {};

TEST_F(ToolTables, NoKeyStandsTwice) {
  std::set<std::string> keys;
  for (const Tool& tool : explorer::Tools()) {
    if (tool.IsSeparator()) continue;
    EXPECT_TRUE(keys.insert(tool.key).second) << tool.key;
  }
  EXPECT_EQ(explorer::Tools().size(), 25u);
  EXPECT_EQ(keys.size(), 20u);
}

TEST_F(ToolTables, EachKeyHasATipAndItsPlaceOnTheBar) {
  int position = 0;
  for (const Tool& tool : explorer::Tools()) {
    ++position;
    if (tool.IsSeparator()) continue;
    EXPECT_STRNE(tool.tip, "") << tool.key;
    EXPECT_EQ(form.tlbr.PositionOf(tool.key), position);
  }
}

TEST_F(ToolTables, EachKeyAndEntryHasSomethingToDo) {
  for (const Tool& tool : explorer::Tools()) EXPECT_TRUE(tool.IsSeparator() || tool.click || tool.choose) << tool.key;
  for (const ToolEntry& entry : explorer::ToolEntries()) EXPECT_TRUE(entry.act) << entry.text;
  for (const MenuEntry& entry : explorer::MenuEntries()) EXPECT_TRUE(entry.opens || entry.act) << entry.caption;
}

TEST_F(ToolTables, EachFixedEntryStandsUnderAKeyThatDropsDown) {
  std::set<std::string> texts;
  for (const ToolEntry& entry : explorer::ToolEntries()) {
    EXPECT_TRUE(texts.insert(entry.text).second) << entry.text;
    int position = form.tlbr.PositionOf(entry.key);
    ASSERT_GT(position, 0) << entry.key;
    EXPECT_TRUE(explorer::Tools()[static_cast<size_t>(position) - 1].drops) << entry.key;
  }
}

TEST_F(ToolTables, EachMenuEntryStandsOnceAndCarriesItsCaption) {
  std::set<std::string> names;
  for (const MenuEntry& entry : explorer::MenuEntries()) {
    forms::Menu& menu = form.*entry.item;
    EXPECT_TRUE(names.insert(menu.Name()).second) << menu.Name();
    EXPECT_EQ(menu.Caption(), entry.caption) << menu.Name();
    EXPECT_EQ(entry.opens, !menu.Items().empty()) << menu.Name();
  }
  for (forms::Menu* menu : {&form.mnuPLB, &form.mnuCop, &form.mnuIDE})
    for (forms::Menu* item : menu->Items()) EXPECT_TRUE(names.contains(item->Name())) << item->Name();
}

TEST_F(ToolTables, WithoutTheirToolsTheEntriesOfTheMenuAreDisabled) {
  OpenWindow(kShop);
  form.PopupMenu(form.mnuIDE, 0, 0);
  EXPECT_THAT(toolkit.Popups().back(), Contains("(Exec Template)"));
  EXPECT_THAT(toolkit.Popups().back(), Contains("(Declare variable)"));
  EXPECT_THAT(toolkit.Popups().back(), Contains("Current Code"));
}

TEST_F(ToolTables, APressOfAKeyEndsASearchOfPropertiesAndPutsThePointerBack) {
  OpenWindow(kShop);
  services.screen.SetMousePointer(host::vbHourglass);
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("CloseWnd"));
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ToolTables, WithoutAnEnvironmentEveryKeyAndEntryEndsQuietly) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  ChooseProcedure("Public Sub Main()");
  form.SetTools({nullptr, [](const std::string&) { return std::string("copied"); },
                 [](const std::string&, const std::string&) {}, [](long, const host::Ref<host::VBE>&) { return true; },
                 [](const host::Ref<host::VBProject>&) { return true; },
                 [](const host::Ref<host::VBComponents>&, const std::string&) {}});
  form.VBInstance = nullptr;
  for (const Tool& tool : explorer::Tools()) {
    if (tool.IsSeparator() || std::string_view(tool.key) == "pExit") continue;
    form.Show();  // some keys hide the window
    const int position = form.tlbr.PositionOf(tool.key);
    if (std::string_view(tool.key) == "About") toolkit.OnModal("frmAbout", [](forms::Form& about) { about.Unload(); });
    toolkit.Guard([&] { form.tlbr.UserButtonClick(position); });
    const int entries = static_cast<int>(form.tlbr.Button(position).ButtonMenus.size());
    for (int entry = 1; entry <= entries; ++entry)
      toolkit.Guard([&] { form.tlbr.UserButtonMenuClick(position, entry); });
    EXPECT_EQ(services.screen.MousePointer(), host::vbDefault) << tool.key;
  }
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  // No list is left filling.
  form.VBInstance = environment;
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_THAT(Components(), Contains("modMain"));
}

TEST_F(ToolTables, RefreshListsTheProjectAnewOutOfTheCurrentCode) {
  Open(kShop);
  Caret("modMain", 1);
  OpenWindow();
  ASSERT_TRUE(form.optCurMod.Value());
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsBasket", "modMain"));
}

class OtherWindows : public ExplorerTest {
 protected:
  std::vector<std::string> OpenPanes() {
    std::vector<std::string> names;
    for (host::Ref<host::CodePane> pane : host::Each(environment->CodePanes()))
      names.push_back(pane->CodeModule()->Name());
    return names;
  }
  void Press(const char* key) { form.tlbr.UserButtonClick(form.tlbr.PositionOf(key)); }
};

TEST_F(OtherWindows, OnlyTheSelectedComponentsPaneStays) {
  Open({Bas("modMain", {"Sub Main()", "End Sub"}), Bas("modTill", {"Sub Ring()", "End Sub"}),
        Cls("clsBasket", {"Sub Fill()", "End Sub"})});
  for (const char* name : {"modMain", "clsBasket", "modTill"}) Caret(name, 1);
  OpenWindow();
  environment->SelectComponent(Component("clsBasket"));
  ASSERT_EQ(OpenPanes().size(), 3u);
  Press("CloseWnd");
  EXPECT_THAT(OpenPanes(), ElementsAre("clsBasket"));
}

TEST_F(OtherWindows, WithoutASelectedComponentAllPanesClose) {
  Open(kShop);
  Caret("modMain", 1);
  Caret("clsBasket", 1);
  OpenWindow();
  environment->SelectComponent(nullptr);
  ASSERT_EQ(environment->SelectedVBComponent(), nullptr);
  Press("CloseWnd");
  EXPECT_THAT(OpenPanes(), IsEmpty());
}

TEST_F(OtherWindows, DesignersCloseButTheSelectedComponents) {
  Open({Frm("frmMain", {"Option Explicit", ""}), Frm("frmTill", {"Option Explicit", ""}),
        Bas("modMain", {"Public a", "Public b"})});
  for (const char* name : {"frmMain", "frmTill"}) Component(name)->DesignerWindow()->SetVisible(true);
  OpenWindow();
  environment->SelectComponent(Component("frmTill"));
  Press("CloseWnd");
  EXPECT_FALSE(Component("frmMain")->HasOpenDesigner());
  EXPECT_TRUE(Component("frmTill")->HasOpenDesigner());
}

TEST_F(OtherWindows, ASelectedComponentOfTwoLettersKeepsItsPaneAlone) {
  Open({Frm("fA", {"Option Explicit", ""}), Bas("modMain", {"Public a", "Public b"})});
  Component("fA")->DesignerWindow()->SetVisible(true);
  Caret("fA", 1);
  Caret("modMain", 1);
  OpenWindow();
  environment->SelectComponent(Component("fA"));
  Press("CloseWnd");
  EXPECT_FALSE(Component("fA")->HasOpenDesigner());
  EXPECT_THAT(OpenPanes(), ElementsAre("fA"));
}

TEST_F(OtherWindows, ClearingTheImmediateWindowTypesItsKeysInOrder) {
  OpenWindow(kShop);
  Press("pImmed");
  EXPECT_THAT(services.loop.keys, ElementsAre("^({Home})", "^a", "{Del}"));
}

}  // namespace
}  // namespace corvane::tests
