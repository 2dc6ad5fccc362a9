// Wizards: which script a row or a key stands for, and what becomes of its result.
#include "explorer/wizard_reference.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

using explorer::ReferenceOfKey;
using explorer::ReferenceOfRow;

const std::string kBlanks(180, ' ');

TEST(WizardReference, OfAFavouritesKey) {
  const struct {
    const char *key, *name, *entry;
  } kCases[] = {
      {"Add a form{FORMS}!", "{FORMS}", ""},
      {"Add a form{FORMS}!main", "{FORMS}", "main"},
      {"Add a form{FORMS}!x\x03main", "{FORMS}", "main"},
      {"Add {braces} too{FORMS}!", "{FORMS}", ""},
      {"No mark{FORMS}", "{FORMS}", ""},
      {"{FORMS}!", "", ""},
      {"Nothing here", "", ""},
      {"", "", ""},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ReferenceOfKey(c.key).name, c.name) << c.key;
    EXPECT_EQ(ReferenceOfKey(c.key).entry, c.entry) << c.key;
  }
}

TEST(WizardReference, OfARowOfTheList) {
  EXPECT_EQ(ReferenceOfRow("Add a form" + kBlanks + "{FORMS}!3").name, "{FORMS}");
  EXPECT_EQ(ReferenceOfRow("Add a form" + kBlanks + "{FORMS}!3").entry, "") << "the number of the group";
  EXPECT_EQ(ReferenceOfRow("Add a form" + kBlanks +
                           "\x01"
                           "form.wvz!2")
                .name,
            "\x01"
            "Wizards\\form.wvz");
  EXPECT_EQ(ReferenceOfRow("Add a form" + kBlanks + "{FORMS}!3\x03main").entry, "main");
  for (const char* row : {"", "x", "Add a form", "Add {a} form"}) EXPECT_EQ(ReferenceOfRow(row).name, "") << row;
}

struct FakeLibrary : explorer::WizardLibrary {
  bool IsWorkshopOpen() override { return open; }
  std::string ChooseWizard(const std::string& title, const std::string& prompt, bool& edit) override {
    did.push_back("choose " + title + ": " + prompt);
    edit = edits;
    return row;
  }
  std::string Execute(const std::string& name, const host::Ref<host::VBE>& vbe, const std::string& entry) override {
    did.push_back("run " + name + " " + entry + (vbe ? "" : " without VBE"));
    return result;
  }
  std::string Display(const host::Ref<host::VBE>&, const std::string& name) override {
    did.push_back("workshop " + name);
    return result;
  }
  bool open = false, edits = false;
  std::string row, result;
  std::vector<std::string> did;
};

class RunWizard : public ExplorerTest {
 protected:
  void SetUp() override {
    OpenWindow({Bas("modMain", {"Public a", "Public b"})});
    tools.library = &library;
    form.SetTools(tools);
  }
  bool PasteIsReady() const { return !form.copiedDesigner.empty(); }
  void Start() { form.tlbr.UserButtonClick(form.tlbr.PositionOf("Start")); }

  FakeLibrary library;
  explorer::ToolWindows tools;
};

TEST_F(RunWizard, ARunHidesTheExplorer) {
  form.RunWizard("Add a form{FORMS}!");
  EXPECT_THAT(library.did, ElementsAre("run {FORMS} "));
  EXPECT_FALSE(form.Visible());
}

TEST_F(RunWizard, WhileTheWorkshopIsOpenNothingRuns) {
  library.open = true;
  form.RunWizard("Add a form{FORMS}!");
  EXPECT_THAT(Messages(), ElementsAre("Close Weaver Workshop window and then run script"));
  EXPECT_EQ(services.prompts.messages[0].style, host::vbExclamation);
  EXPECT_THAT(library.did, IsEmpty());
  EXPECT_TRUE(form.Visible());
}

TEST_F(RunWizard, TheKeyAsksWhichOne) {
  library.row = "Add a form" + kBlanks + "{FORMS}!3";
  Start();
  EXPECT_THAT(library.did, ElementsAre("choose Start Wizard: Choose Wizard for executing", "run {FORMS} "));
}

TEST_F(RunWizard, WithoutAChoiceNothingRuns) {
  for (const char* row : {"", "x", "a group"}) {
    library.row = row;
    Start();
  }
  EXPECT_THAT(library.did, ::testing::Each(StartsWith("choose")));
  EXPECT_TRUE(form.Visible());
}

TEST_F(RunWizard, AChoiceToEditOpensTheWorkshopOnIt) {
  library.row = "Add a form" + kBlanks + "{FORMS}!3";
  library.edits = true;
  Start();
  EXPECT_THAT(library.did, Contains("workshop {FORMS}"));
  EXPECT_THAT(library.did, Not(Contains(StartsWith("run"))));
}

TEST_F(RunWizard, AResultThatBeginsWithAMenuWaitsForBeingPasted) {
  for (const char* result : {"MENU{a", "menu{a}", "Menu{b"}) {
    form.copiedDesigner.clear();
    library.result = result;
    form.RunWizard("Add a menu{MENUS}!");
    EXPECT_EQ(form.copiedDesigner, result);
    EXPECT_TRUE(form.Visible()) << "a menu for pasting waits";
  }
}

TEST_F(RunWizard, AMenuEnablesTheKeyThatPastes) {
  tools.PasteProperties = [](const std::string&, const std::string&) {};
  form.SetTools(tools);
  library.row = "Add a menu" + kBlanks + "{MENUS}!1";
  library.result = "menu{x}";
  const int paste = form.tlbr.PositionOf("aPaste");
  EXPECT_FALSE(form.tlbr.Button(paste).Enabled);
  Start();
  EXPECT_TRUE(form.tlbr.Button(paste).Enabled);
}

TEST_F(RunWizard, OtherResultsWaitForNothing) {
  for (const char* result : {"Good thing", "MENU{", " MENU{a", ""}) {
    form.Show();
    library.result = result;
    form.RunWizard("Add a menu{MENUS}!");
    EXPECT_FALSE(PasteIsReady()) << result;
    EXPECT_FALSE(form.Visible()) << result;
  }
}

TEST_F(RunWizard, TheSecondActionOpensTheWorkshop) {
  library.result = "MENU{a";
  form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Actions"), 2);
  EXPECT_THAT(library.did, ElementsAre("workshop "));
  EXPECT_EQ(form.copiedDesigner, "MENU{a");
  EXPECT_TRUE(form.Visible());
}

}  // namespace
}  // namespace corvane::tests
