#include "explorer/project_access.h"
#include "runtime/code_page.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class WordAtCaret : public ExplorerTest {
 protected:
  std::string Word(const std::string& line, long column) { return Word(line, {1, column, 1, column}); }
  std::string Word(const std::string& line, const host::Selection& selection) {
    Open({Bas("modMain", {line, "Dim other"})});
    host::Ref<host::CodePane> pane = Module("modMain").CodePane();
    pane->Show();
    pane->SetSelection(selection);
    return explorer::CurrentWord(environment);
  }
};

TEST_F(WordAtCaret, EndsAtSeparators) {
  const struct {
    const char* line;
    long column;
    const char* word;
  } kCases[] = {
      {"Public Total As Long", 9, "Total"},
      {"Public Total As Long", 8, "Total"},
      {"Public Total As Long", 1, "Public"},
      {"Const X = \"it's\"", 13, "\"it's\""},
      {"Dim a%, bc&", 10, "bc"},
  };
  for (const auto& c : kCases) EXPECT_EQ(Word(c.line, c.column), c.word) << c.line << " at " << c.column;
}

// The character at the caret's column is the first one looked at.
TEST_F(WordAtCaret, OnASeparatorItIsTheWordBehindIt) {
  EXPECT_EQ(Word("Public Total As Long", 7), "Total");
}

TEST_F(WordAtCaret, BehindTheLastCharacterThereIsNone) {
  EXPECT_EQ(Word("Dim total", 10), "");
}

TEST_F(WordAtCaret, ALineOfOneCharacterHasNone) {
  EXPECT_EQ(Word("'", 1), "");
}

TEST_F(WordAtCaret, ASelectionOnOneLineIsTakenAsItIs) {
  EXPECT_EQ(Word("Dim a, total", {1, 5, 1, 8}), "a, ");
}

TEST_F(WordAtCaret, ASelectionOfSeveralLinesCountsByItsStart) {
  EXPECT_EQ(Word("Dim total", {1, 6, 2, 3}), "total");
}

// The second byte of the first character is that of a backslash.
TEST_F(WordAtCaret, ASecondByteOfACharacterIsNoSeparator) {
  Open({Bas("modMain", {"Dim \x83\x5C\x83\x43x As Long", "a = b\\c + 1"})});
  const auto word_at = [this](long line, long column) {
    Caret("modMain", line, column);
    return explorer::CurrentWord(environment);
  };
  runtime::SetAnsiCodePage(932);
  for (long column : {5, 7, 9}) EXPECT_EQ(word_at(1, column), "\x83\x5C\x83\x43x") << column;
  EXPECT_EQ(word_at(2, 7), "c");
  runtime::SetAnsiCodePage(1252);
  EXPECT_EQ(word_at(1, 7), "\x83\x43x");
}

TEST_F(WordAtCaret, WithoutACodePaneThereIsNone) {
  Open({Bas("modMain", {"Dim total"})});
  EXPECT_EQ(explorer::CurrentWord(environment), "");
  EXPECT_EQ(explorer::CurrentWord(nullptr), "");
}

class NamedComponent : public ExplorerTest {};

TEST_F(NamedComponent, IsFoundByPositionWithoutCase) {
  Open({Frm("frmMain", {"Dim a", ""}), Bas("modMain", {"Dim b"})});
  EXPECT_EQ(explorer::FindComponentIndex(environment, "MODMAIN"), 2);
  EXPECT_EQ(explorer::FindComponentIndex(environment, "modMai"), 0);
}

TEST_F(NamedComponent, IsFoundByItsExactName) {
  Open({Frm("frmMain", {"Dim a", ""}), Bas("modMain", {"Dim b"})});
  long index = 0;
  EXPECT_TRUE(explorer::FindComponent(environment, "modMain", &index));
  EXPECT_EQ(index, 2);
  EXPECT_FALSE(explorer::FindComponent(environment, "MODMAIN"));
}

TEST_F(NamedComponent, RelatedDocumentsAreCountedButNeverMeant) {
  environment->OpenFromTexts("C:\\Test\\Shop.vbp",
                             "Type=Exe\r\nRelatedDoc=notes.txt\r\nModule=modMain; modMain.bas\r\nName=\"Shop\"\r\n",
                             {{"notes.txt", "words"}, Bas("modMain", {"Dim b"})});
  EXPECT_EQ(explorer::FindComponentIndex(environment, "modMain"), 2);
  EXPECT_EQ(explorer::FindComponentIndex(environment, "notes.txt"), 0);
}

}  // namespace
}  // namespace corvane::tests
