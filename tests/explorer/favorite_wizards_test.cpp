// The drop-down of the key that starts wizards: which lines of which files are in it, and what they start.
#include "explorer/favorite_wizards.h"

#include "tests/explorer/explorer_fixture.h"
#include "tests/support/sample_files.h"

namespace corvane::tests {
namespace {

using explorer::ReadFavoriteWizards;

TEST(FavoriteWizardFile, TheCaptionOfALine) {
  const struct {
    const char *line, *caption;
  } kCases[] = {
      {"Add a form{FORMS}!", "Add a form"},   {"Add a form{FORMS}!main", "Add a form"},
      {"Add a form {FORMS}!", "Add a form "}, {"Add a form [of mine]{FORMS}!", "Add a form "},
      {"Add a form[{FORMS}!", "Add a form"},  {"a{}!", "a"},
      {"Add {braces}{FORMS}!", "Add "},       {"Form & code{FORMS}!x[y", "Form & code"},
  };
  for (const auto& c : kCases) {
    const auto entries = ReadFavoriteWizards(c.line);
    ASSERT_EQ(entries.size(), 1u) << c.line;
    EXPECT_EQ(entries[0].Text, c.caption) << c.line;
    EXPECT_EQ(entries[0].Key, c.line);
    EXPECT_TRUE(entries[0].Enabled);
  }
}

TEST(FavoriteWizardFile, ALineWithoutTheEndOfAReferenceIsIgnored) {
  for (const char* line : {"Add a form{FORMS}", "Add a form{FORMS !", "Add a form", "", " ", "' a note", "}!"})
    EXPECT_THAT(ReadFavoriteWizards(line), IsEmpty()) << line;
}

TEST(FavoriteWizardFile, ALineWithoutATitleIsIgnored) {
  for (const char* line : {"{FORMS}!", "FORMS}!", "{}!", "}!{FORMS"})
    EXPECT_THAT(ReadFavoriteWizards(line), IsEmpty()) << line;
}

TEST(FavoriteWizardFile, LinesEndAsTheyLike) {
  for (const char* file : {"a{A}!\r\nnothing\r\n\r\nb{B}!\r\n", "a{A}!\nnothing\nb{B}!", "a{A}!\r\rb{B}!\r"}) {
    const auto entries = ReadFavoriteWizards(file);
    ASSERT_EQ(entries.size(), 2u) << file;
    EXPECT_EQ(entries[0].Key, "a{A}!");
    EXPECT_EQ(entries[1].Key, "b{B}!");
  }
}

TEST(FavoriteWizardFile, AnEmptyFileHasNone) {
  EXPECT_THAT(ReadFavoriteWizards(""), IsEmpty());
}

struct FakeLibrary : explorer::WizardLibrary {
  bool IsWorkshopOpen() override { return false; }
  std::string ChooseWizard(const std::string&, const std::string&, bool&) override { return {}; }
  std::string Execute(const std::string& name, const host::Ref<host::VBE>&, const std::string& entry) override {
    did.push_back(name + " " + entry);
    return {};
  }
  std::string Display(const host::Ref<host::VBE>&, const std::string&) override { return {}; }
  std::vector<std::string> did;
};

class FavoriteWizards : public ExplorerTest {
 protected:
  static constexpr char kBesideLibrary[] = "C:\\Corvane\\FavrList.txt";
  static constexpr char kBesideProject[] = "Z:\\samples\\stockroom\\FavrList.txt";

  void OpenUnsaved() {
    environment->OpenFromTexts("", "Type=Exe\r\nName=\"Shop\"\r\nModule=modMain; modMain.bas\r\n",
                               {Bas("modMain", {"Public a", "Public b"})});
    OpenWindow();
  }
  void OpenSaved() {
    PutSample("stockroom", services.files);
    environment->Open("Z:\\samples\\stockroom\\Stockroom.vbp");
    OpenWindow();
  }
  void SetUp() override {
    tools.library = &library;
    form.SetTools(tools);
  }
  int Start() const { return form.tlbr.PositionOf("Start"); }
  std::vector<std::string> Dropped() {
    form.tlbr.UserButtonDropDown(Start());
    std::vector<std::string> captions;
    for (const forms::ButtonMenu& entry : form.tlbr.Button(Start()).ButtonMenus) captions.push_back(entry.Text);
    return captions;
  }
  FakeLibrary library;
  explorer::ToolWindows tools;
};

TEST_F(FavoriteWizards, ThoseOfTheLibraryComeBeforeThoseOfTheProject) {
  services.files.Put(kBesideLibrary, "Library{A}!\r\n");
  services.files.Put(kBesideProject, "Project{B}!\r\n");
  OpenSaved();
  EXPECT_THAT(Dropped(), ElementsAre("Library", "Project"));
}

TEST_F(FavoriteWizards, AnUnsavedProjectHasOnlyThoseOfTheLibrary) {
  services.files.Put(kBesideLibrary, "Library{A}!\r\n");
  services.files.Put("FavrList.txt", "Elsewhere{C}!\r\n");
  OpenUnsaved();
  ASSERT_EQ(environment->ActiveVBProject()->FileName(), "");
  EXPECT_THAT(Dropped(), ElementsAre("Library"));
}

TEST_F(FavoriteWizards, AFileThatIsMissingIsPassedOver) {
  services.files.Put(kBesideProject, "Project{B}!\r\n");
  OpenSaved();
  EXPECT_THAT(Dropped(), ElementsAre("Project"));
  services.files.Remove(kBesideProject);
  EXPECT_THAT(Dropped(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FavoriteWizards, AFileThatCannotBeReadIsPassedOver) {
  services.files.Put(kBesideLibrary, "Library{A}!\r\n");
  services.files.Put(kBesideProject, "Project{B}!\r\n");
  services.files.FailReads(kBesideLibrary, 70);
  OpenSaved();
  EXPECT_THAT(Dropped(), ElementsAre("Project"));
}

TEST_F(FavoriteWizards, EachDropDownReadsThemAgain) {
  OpenUnsaved();
  EXPECT_THAT(Dropped(), IsEmpty());
  services.files.Put(kBesideLibrary, "One{A}!\r\n");
  EXPECT_THAT(Dropped(), ElementsAre("One"));
  services.files.Put(kBesideLibrary, "Two{A}!\r\n");
  EXPECT_THAT(Dropped(), ElementsAre("Two"));
}

TEST_F(FavoriteWizards, WithoutAProjectThoseOfTheLibraryAreThere) {
  services.files.Put(kBesideLibrary, "Library{A}!\r\n");
  OpenUnsaved();
  form.VBInstance = environment::Environment::Create(services.files, &services.clipboard);
  EXPECT_THAT(Dropped(), ElementsAre("Library"));
  form.VBInstance = nullptr;
  EXPECT_THAT(Dropped(), ElementsAre("Library"));
}

TEST_F(FavoriteWizards, AnEntryRunsItsWizard) {
  services.files.Put(kBesideLibrary, "One [first]{A}!\r\nTwo{B}!main\r\n");
  OpenUnsaved();
  ASSERT_THAT(Dropped(), ElementsAre("One ", "Two"));
  form.tlbr.UserButtonMenuClick(Start(), 2);
  EXPECT_THAT(library.did, ElementsAre("{B} main"));
  EXPECT_FALSE(form.Visible());
}

TEST_F(FavoriteWizards, AnEntryThatHasGoneRunsNothing) {
  services.files.Put(kBesideLibrary, "One{A}!\r\n");
  OpenUnsaved();
  Dropped();
  form.tlbr.UserButtonMenuClick(Start(), 2);
  form.tlbr.UserButtonMenuClick(Start(), 0);
  EXPECT_THAT(library.did, IsEmpty());
}

TEST_F(FavoriteWizards, TheMenuOfAllKeysHasThemToo) {
  services.files.Put(kBesideLibrary, "One{A}!\r\n");
  OpenUnsaved();
  toolkit.OnPopup("One");
  int key = forms::vbKeyA + 19;
  form.KeyDown(key, forms::vbCtrlMask);
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  EXPECT_THAT(library.did, ElementsAre("{A} "));
}

TEST_F(FavoriteWizards, OnlyReadingHappensToTheFiles) {
  services.files.Put(kBesideLibrary, "One{A}!\r\n");
  services.files.Put(kBesideProject, "Project{B}!\r\n");
  OpenSaved();
  Dropped();
  form.tlbr.UserButtonMenuClick(Start(), 1);
  EXPECT_EQ(services.files.writes, 0);
}

}  // namespace
}  // namespace corvane::tests
