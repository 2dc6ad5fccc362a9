#include "desk/code_pane.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QMimeData>
#include <QTextBlock>
#include <random>

#include "desk/ansi_text.h"
#include "desk/qt_services.h"
#include "desk/send_keys.h"
#include "desk/vb_highlighter.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

class CodePaneTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    module_ = Module("modStock");
    pane_ = window_->OpenCode(module_);
    Settle();
  }
  std::string CodeText() { return module_->CodeModule()->Lines(1, module_->CodeModule()->CountOfLines()); }
  // The pane and the module always hold the same lines.
  void ExpectSame() {
    const QTextDocument& document = *pane_->Editor().document();
    const long count = module_->CodeModule()->CountOfLines();
    ASSERT_EQ(document.blockCount(), std::max(1L, count));
    for (long line = 1; line <= count; ++line)
      EXPECT_EQ(document.findBlockByNumber(static_cast<int>(line - 1)).text(), ToShown(module_->LineView(line)));
  }
  void Type(const char* keys) {
    pane_->Editor().setFocus();
    Settle();
    PressKeys(ParseKeys(keys));
  }
  void StandAt(int line, int column) {
    QTextCursor cursor(pane_->Editor().document()->findBlockByNumber(line - 1));
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column - 1);
    pane_->Editor().setTextCursor(cursor);
  }

  std::shared_ptr<environment::Module> module_;
  CodePane* pane_ = nullptr;
};

TEST_F(CodePaneTest, ShowsWhatTheEnvironmentShowsOfTheFile) {
  EXPECT_TRUE(pane_->Editor().toPlainText().startsWith("Option Explicit\nPublic Total As Long\n\nPublic Sub Main()\n"));
  ExpectSame();
}

TEST_F(CodePaneTest, TypingAWordChangesItsLineOnly) {
  StandAt(5, 5);
  Type("x");
  EXPECT_EQ(module_->LineView(5), "    xTotal = 1");
  EXPECT_TRUE(module_->IsDirty());
  const std::string text = module_->WriteToText();
  EXPECT_EQ(text, std::string(kModule).insert(std::string(kModule).find("Total = 1"), "x"));
}

TEST_F(CodePaneTest, NewLinesJoinedLinesAndDeletedLinesReachTheModule) {
  StandAt(5, 5);
  Type("~");
  ExpectSame();
  Type("{BS}");
  ExpectSame();
  StandAt(1, 1);
  Type("+{DOWN}+{DOWN}{DEL}");
  EXPECT_EQ(module_->LineView(1), "");
  ExpectSame();
  Type("^a{DEL}");
  EXPECT_LE(module_->CodeModule()->CountOfLines(), 1);
  Type("Dim x~Dim y");
  EXPECT_EQ(CodeText(), "Dim x\r\nDim y");
  ExpectSame();
}

TEST_F(CodePaneTest, UndoTakesTheTextBackAndTheFileIsAsItWas) {
  StandAt(5, 1);
  Type("abc~def");
  pane_->Editor().undo();
  while (pane_->Editor().document()->isUndoAvailable()) pane_->Editor().undo();
  ExpectSame();
  EXPECT_EQ(module_->WriteToText(), kModule);
}

struct AddInEdit {
  const char* what;
  void (*edit)(host::CodeModule&);
};

TEST_F(CodePaneTest, EveryEditOfTheAddInIsShown) {
  const AddInEdit edits[] = {
      {"a line in front", [](host::CodeModule& m) { m.InsertLines(1, "' first"); }},
      {"lines in the middle", [](host::CodeModule& m) { m.InsertLines(4, "' a\r\n' b\r\n' c"); }},
      {"a line behind the end", [](host::CodeModule& m) { m.InsertLines(m.CountOfLines() + 1, "' last"); }},
      {"another line", [](host::CodeModule& m) { m.ReplaceLine(5, "    Total = 2"); }},
      {"a line by several", [](host::CodeModule& m) { m.ReplaceLine(5, "    Total = 2\r\n    Total = 3"); }},
      {"the first line gone", [](host::CodeModule& m) { m.DeleteLines(1, 1); }},
      {"lines in the middle gone", [](host::CodeModule& m) { m.DeleteLines(2, 3); }},
      {"the last lines gone", [](host::CodeModule& m) { m.DeleteLines(m.CountOfLines() - 1, 2); }},
      {"all gone", [](host::CodeModule& m) { m.DeleteLines(1, m.CountOfLines()); }},
      {"into nothing", [](host::CodeModule& m) { m.InsertLines(1, "Dim a\r\nDim b"); }},
      {"all but one gone", [](host::CodeModule& m) { m.DeleteLines(2, m.CountOfLines() - 1); }},
      {"an empty line in front of the only line", [](host::CodeModule& m) { m.InsertLines(1, ""); }},
      {"the last line by an empty one, behind an empty one", [](host::CodeModule& m) { m.ReplaceLine(2, ""); }},
      {"all but one empty line gone", [](host::CodeModule& m) { m.DeleteLines(2, 1); }},
      {"the only line by another", [](host::CodeModule& m) { m.ReplaceLine(1, "Dim c"); }},
  };
  for (const AddInEdit& each : edits) {
    SCOPED_TRACE(each.what);
    each.edit(*module_->CodeModule());
    ExpectSame();
    Settle();
  }
  while (pane_->Editor().document()->isUndoAvailable()) {
    pane_->Editor().undo();
    ExpectSame();
  }
  EXPECT_EQ(module_->WriteToText(), kModule);
}

TEST_F(CodePaneTest, WhatTheAddInDoesInOneGoIsOneStepOfUndo) {
  const std::string before = CodeText();
  module_->CodeModule()->InsertLines(1, "' one");
  module_->CodeModule()->ReplaceLine(6, "    Total = 7");
  module_->CodeModule()->DeleteLines(2, 1);
  Settle();
  EXPECT_NE(CodeText(), before);
  pane_->Editor().undo();
  EXPECT_EQ(CodeText(), before);
  ExpectSame();
}

TEST_F(CodePaneTest, AnEditOfTheAddInIsNotJoinedToWhatTheUserTyped) {
  StandAt(5, 5);
  Type("x");
  module_->CodeModule()->InsertLines(1, "' one");
  Settle();
  pane_->Editor().undo();
  EXPECT_EQ(module_->LineView(1), "Option Explicit");
  EXPECT_EQ(module_->LineView(5), "    xTotal = 1");
}

TEST_F(CodePaneTest, SelectionsGoBothWays) {
  module_->CodeModule()->CodePane()->SetSelection({5, 5, 5, 10});
  EXPECT_EQ(pane_->Editor().textCursor().selectedText(), "Total");
  StandAt(8, 18);
  const host::Selection selection = module_->CodeModule()->CodePane()->GetSelection();
  EXPECT_EQ(selection, (host::Selection{8, 18, 8, 18}));
}

TEST_F(CodePaneTest, ACharacterOutsideTheCodePageIsRefusedWithAMessage) {
  QString told;
  QObject::connect(pane_, &CodePane::Told, [&](const QString& text) { told = text; });
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("Ж"));
  QCoreApplication::sendEvent(&pane_->Editor(), &key);
  EXPECT_EQ(CodeText().find('?'), std::string::npos);
  EXPECT_FALSE(module_->IsDirty());
  EXPECT_TRUE(told.contains("1252")) << told.toStdString();
  ExpectSame();
}

TEST_F(CodePaneTest, TheComboBoxesTellWhereTheCursorStands) {
  StandAt(9, 1);
  const auto lists = pane_->findChildren<QComboBox*>();
  ASSERT_EQ(lists.size(), 2);
  EXPECT_EQ(lists[0]->currentText(), "(General)");
  EXPECT_EQ(lists[1]->currentText(), "Twice");
  StandAt(1, 1);
  EXPECT_EQ(lists[1]->currentText(), "(Declarations)");
  CodePane* form = window_->OpenCode(Module("frmStock"));
  form->GoToObject("cmdSave");
  const auto of_form = form->findChildren<QComboBox*>();
  EXPECT_EQ(of_form[0]->currentText(), "cmdSave");
  EXPECT_EQ(of_form[1]->currentText(), "Click");
  EXPECT_GE(of_form[0]->findText("txtName"), 0);
}

TEST_F(CodePaneTest, ShiftEnterIsANewLineAndEveryStepCanBeUndone) {
  StandAt(5, 5);
  Type("x");
  Type("+~");
  Settle();
  EXPECT_EQ(module_->LineView(5), "    x");
  EXPECT_EQ(module_->LineView(6), "Total = 1");
  ExpectSame();
  while (pane_->Editor().document()->isUndoAvailable()) pane_->Editor().undo();
  EXPECT_EQ(module_->WriteToText(), kModule);
}

struct OddText {
  const char* what;
  std::string line;
};

TEST_F(CodePaneTest, WhatIsCutAndPastedKeepsItsBytes) {
  const OddText texts[] = {
      {"a no-break space", "' x\xA0y"},
      {"a byte without a character", "' x\x81y"},
      {"a control byte", "' x\x01y"},
      {"a form feed", "' x\fy"},
      {"a tab", "'\tx"},
      {"letters", "' \xE9\x80 x"},
  };
  for (const OddText& each : texts) {
    SCOPED_TRACE(each.what);
    module_->CodeModule()->ReplaceLine(4, each.line);
    Settle();
    const std::string before = CodeText();
    StandAt(3, 1);
    Type("+{DOWN}+{DOWN}^x");
    EXPECT_EQ(CodeText().find(each.line), std::string::npos);
    Type("^v");
    EXPECT_EQ(CodeText(), before);
    ExpectSame();
  }
}

TEST_F(CodePaneTest, CopiedCodeReachesOtherProgramsAsPlainText) {
  module_->CodeModule()->ReplaceLine(1, "' x\xA0y \xE9");
  Settle();
  StandAt(1, 1);
  Type("+{DOWN}+{END}^c");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("' x\u00A0y é\nPublic Total As Long"));
}

TEST_F(CodePaneTest, TheAddInAndTheEditorShareTheClipboard) {
  QtServices services;
  services.Clipboard().SetText("' one \x81\r\n' two \xA0");
  StandAt(1, 1);
  Type("^v~");
  EXPECT_EQ(module_->LineView(1), "' one \x81");
  EXPECT_EQ(module_->LineView(2), "' two \xA0");
  ExpectSame();
  StandAt(1, 1);
  Type("+{DOWN}+{END}^c");
  EXPECT_EQ(services.Clipboard().GetText(), "' one \x81\r\n' two \xA0");
}

TEST_F(CodePaneTest, PastedControlCharactersAreShownAsThoseOfAFile) {
  QGuiApplication::clipboard()->setText(QString("' a\fb"));
  StandAt(1, 1);
  Type("^v~");
  EXPECT_EQ(module_->LineView(1), "' a\fb");
  ExpectSame();
}

TEST_F(CodePaneTest, BytesWithoutACharacterSurviveAnEditOfTheirLine) {
  module_->CodeModule()->InsertLines(1, "' \x81 odd \x01");
  Settle();
  StandAt(1, 3);
  Type("x");
  EXPECT_EQ(module_->LineView(1), "' x\x81 odd \x01");
}

TEST_F(CodePaneTest, AnEmptyPaneIsWhatTheModuleWas) {
  for (const char* file : {"Attribute VB_Name = \"modOdd\"\r\n", "Attribute VB_Name = \"modOdd\"\r\n\r\n"}) {
    files_.Put("C:\\Work\\modOdd.bas", file);
    environment_->ActiveVBProject()->VBComponents()->AddFile("C:\\Work\\modOdd.bas");
    module_ = Module("modOdd");
    pane_ = window_->OpenCode(module_);
    Type("Dim x~Dim y");
    EXPECT_EQ(CodeText(), "Dim x\r\nDim y");
    while (pane_->Editor().document()->isUndoAvailable()) pane_->Editor().undo();
    EXPECT_EQ(module_->WriteToText(), file);
    ExpectSame();
    environment_->ActiveVBProject()->VBComponents()->Remove(module_);
    Settle();
  }
}

// Users, add-ins and undo at random places.
class RandomEdits : public CodePaneTest {
 protected:
  void Open(const std::string& text) {
    files_.Put("C:\\Work\\modOdd.bas", text);
    environment_->ActiveVBProject()->VBComponents()->AddFile("C:\\Work\\modOdd.bas");
    module_ = Module("modOdd");
    pane_ = window_->OpenCode(module_);
    Settle();
  }
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  void Select() {
    QTextCursor cursor(pane_->Editor().document());
    const int length = pane_->Editor().document()->characterCount();
    cursor.setPosition(Below(length));
    if (Below(2)) cursor.setPosition(std::min(length - 1, cursor.position() + Below(60)), QTextCursor::KeepAnchor);
    pane_->Editor().setTextCursor(cursor);
  }
  void TryOut(unsigned seed, const std::string& text);
  void Step() {
    const auto held = module_->CodeModule();
    host::CodeModule& code = *held;
    const long count = code.CountOfLines(), line = 1 + Below(static_cast<int>(std::max(1L, count)));
    switch (Below(10)) {
      case 0:
        return pane_->Editor().undo();
      case 1:
        return pane_->Editor().redo();
      case 2:
        return code.InsertLines(1 + Below(static_cast<int>(count + 1)), kTexts[Below(4)]);
      case 3:
        if (count > 0) code.DeleteLines(line, 1 + Below(static_cast<int>(std::min(4L, count - line + 1))));
        return;
      case 4:
        if (count > 0) code.ReplaceLine(line, kTexts[Below(4)]);
        return;
      case 5:
        Select();
        return pane_->Editor().cut();
      case 6:
        Select();
        return pane_->Editor().paste();
      default:
        Select();
        pane_->Editor().insertPlainText(kTyped[Below(4)]);
    }
  }

  static constexpr const char* kTexts[] = {"' one", "Dim m\r\nDim n\r\n", "", "Sub New_\xA0()\r\nEnd Sub"};
  static constexpr const char* kTyped[] = {"x", "\n", "", "Public Sub T()\n\nEnd Sub\n"};
  std::minstd_rand random_;
};

TEST_F(RandomEdits, ThePaneAndItsModuleHoldTheSameLinesAndUndoGoesBackToTheFile) {
  const struct {
    const char* what;
    const char* text;
  } files[] = {
      {"hidden lines",
       "Attribute VB_Name = \"modOdd\"\r\nPublic Total As Long\r\nAttribute Total.VB_VarDescription = \"all\"\r\n"
       "Sub A()\r\nAttribute A.VB_Description = \"does a\"\r\nEnd Sub\r\nSub B()\r\nEnd Sub\r\n"},
      {"line feeds and no last line end", "Attribute VB_Name = \"modOdd\"\nOption Explicit\n\nSub A()\nEnd Sub"},
  };
  for (const auto& file : files) {
    SCOPED_TRACE(file.what);
    Open(file.text);
    for (unsigned seed = 1; seed <= 20 && !HasFailure(); ++seed) TryOut(seed, file.text);
    environment_->ActiveVBProject()->VBComponents()->Remove(module_);
    Settle();
  }
}
void RandomEdits::TryOut(unsigned seed, const std::string& text) {
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  random_.seed(seed);
  for (int step = 0; step < 40 && !HasFailure(); ++step) {
    SCOPED_TRACE(testing::Message() << "step " << step);
    Step();
    if (Below(2)) Settle();
    ExpectSame();
  }
  while (pane_->Editor().document()->isUndoAvailable()) pane_->Editor().undo();
  Settle();
  ExpectSame();
  EXPECT_EQ(module_->WriteToText(), text);
  pane_->Editor().document()->clearUndoRedoStacks();
}

TEST(VbHighlighter, ColoursKeywordsStringsAndComments) {
  using Part = VbHighlighter::Part;
  struct Case {
    const char* line;
    std::vector<VbHighlighter::Run> runs;
  };
  const Case cases[] = {
      {"Dim x As Long", {{0, 3, Part::Keyword}, {6, 2, Part::Keyword}, {9, 4, Part::Keyword}}},
      {"a = \"End \"\"Sub\"", {{4, 6, Part::String}, {10, 5, Part::String}}},
      {"x = 1 ' Dim", {{6, 5, Part::Comment}}},
      {"Rem all of it", {{0, 13, Part::Comment}}},
      {"frm.Print y", {}},
      {"#If Debugging Then", {{0, 3, Part::Keyword}, {14, 4, Part::Keyword}}},
      {"Remark = 1", {}},
  };
  for (const Case& each : cases) {
    bool in_comment = false;
    EXPECT_EQ(VbHighlighter::Runs(QString(each.line), in_comment), each.runs) << each.line;
  }
}

TEST(VbHighlighter, ACommentGoesOnBehindALineThatIsContinued) {
  bool in_comment = false;
  VbHighlighter::Runs(QString("' first _"), in_comment);
  EXPECT_TRUE(in_comment);
  const auto runs = VbHighlighter::Runs(QString("Dim x"), in_comment);
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_EQ(runs[0].part, VbHighlighter::Part::Comment);
  EXPECT_FALSE(in_comment);
}

}  // namespace
}  // namespace corvane::desk
