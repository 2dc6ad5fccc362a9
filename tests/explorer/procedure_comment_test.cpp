// The comment above a procedure, edited in a window of its own.
#include "tests/explorer/editing_fixture.h"

namespace corvane::tests {
namespace {

class ProcedureComment : public EditingTest {
 protected:
  void OpenModule(const Code& lines) {
    OpenAnew({Bas("modMain", lines)});
    ChooseComponent("modMain");
  }
  std::string Text() { return Module("modMain").Lines(1, Module("modMain").CountOfLines()); }
  // Types [text] over the comment and confirms it.
  void Write(const std::string& text) {
    WhenAsked([text](workshop::frmResult& window) {
      window.txtRes.UserEdit(text, 0, 0);
      window.OKButton.UserClick();
    });
    Comment();
  }
};

TEST_F(ProcedureComment, TheWindowShowsTheLinesAboveWithoutTheirApostrophes) {
  Show("modFormat", "Public Function ParseBin");
  std::string shown, caption, prompt;
  WhenAsked([&](workshop::frmResult& window) {
    shown = window.txtRes.Text();
    caption = window.Caption();
    prompt = window.lblText.Caption();
    window.CancelButton.UserClick();
  });
  Comment();
  EXPECT_EQ(shown,
            " Reads what BinText writes, and what people write: \"a3/11\", \"A 3 11\", \"a-3-11\".\r\n"
            " False and an empty address if it is no bin of ours.\r\n");
  EXPECT_EQ(caption, "Comments for a Procedure");
  EXPECT_EQ(prompt, "Type comments for a Procedure");
  EXPECT_THAT(ChangedFiles(), IsEmpty()) << "cancelled";
}

TEST_F(ProcedureComment, ANewTextTakesThePlaceOfTheOldOne) {
  Show("modFormat", "Public Function ParseBin");
  Write(" The bin that a text names.\r\n False if it names none.");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  EXPECT_EQ(File("modFormat.bas"),
            Edited("modFormat.bas",
                   "' Reads what BinText writes, and what people write: \"a3/11\", \"A 3 11\", \"a-3-11\".\r\n"
                   "' False and an empty address if it is no bin of ours.\r\n",
                   "' The bin that a text names.\r\n' False if it names none.\r\n"));
}

TEST_F(ProcedureComment, WithoutACommentAboveTheTextStartsEmptyAndNothingIsDeleted) {
  OpenModule({"Option Explicit", "", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  std::string shown = "unseen";
  WhenAsked([&](workshop::frmResult& window) {
    shown = window.txtRes.Text();
    window.txtRes.UserEdit(" Starts here.", 0, 0);
    window.OKButton.UserClick();
  });
  Comment();
  EXPECT_EQ(shown, "");
  EXPECT_EQ(Text(), "Option Explicit\r\n\r\n' Starts here.\r\nSub Main()\r\nEnd Sub");
}

TEST_F(ProcedureComment, BlankLinesBelowTheCommentGoWithIt) {
  OpenModule({"Option Explicit", "' Old.", "", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  Write(" New.");
  EXPECT_EQ(Text(), "Option Explicit\r\n' New.\r\nSub Main()\r\nEnd Sub");
}

TEST_F(ProcedureComment, AnIndentedCommentIsNone) {
  OpenModule({"Option Explicit", "  ' Indented.", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  Write(" New.");
  EXPECT_EQ(Text(), "Option Explicit\r\n  ' Indented.\r\n' New.\r\nSub Main()\r\nEnd Sub");
}

TEST_F(ProcedureComment, UneditedItGetsABlankLineMore) {
  OpenModule({"' Old.", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  WhenAsked([](workshop::frmResult& window) { window.OKButton.UserClick(); });
  Comment();
  EXPECT_EQ(Text(), "' Old.\r\n\r\nSub Main()\r\nEnd Sub");
}

TEST_F(ProcedureComment, AnEmptiedTextTakesNothingAway) {
  for (const char* typed : {"", "a", "ab"}) {
    OpenModule({"' Old.", "Sub Main()", "End Sub"});
    ChooseProcedure("Sub Main()");
    Write(typed);
    EXPECT_EQ(Text(), "' Old.\r\nSub Main()\r\nEnd Sub") << typed;
  }
}

TEST_F(ProcedureComment, AHitInsideTheProcedureCommentsItsHeader) {
  OpenModule({"' Old.", "Sub Main()", "  If a Then Exit Sub", "End Sub"});
  form.lbxProc->Clear();
  AddHit("modMain", 1, 3, "If a Then Exit Sub");
  form.lbxProc->UserSelect(0);
  Write(" New.");
  EXPECT_EQ(Text(), "' New.\r\nSub Main()\r\n  If a Then Exit Sub\r\nEnd Sub");
}

TEST_F(ProcedureComment, AProcedureThatMovedIsFoundByItsHeader) {
  OpenModule({"' Old.", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  Module("modMain").InsertLines(1, "Option Explicit");
  Write(" New.");
  EXPECT_EQ(Text(), "Option Explicit\r\n' New.\r\nSub Main()\r\nEnd Sub");
}

TEST_F(ProcedureComment, AProcedureThatIsGoneIsRefused) {
  OpenModule({"' Old.", "Sub Main()", "End Sub", "Sub Other()", "End Sub"});
  ChooseProcedure("Sub Main()");
  Module("modMain").ReplaceLine(2, "Sub Begin()");
  Comment();
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(Text(), "' Old.\r\nSub Begin()\r\nEnd Sub\r\nSub Other()\r\nEnd Sub");
  EXPECT_THAT(toolkit.Faults(), IsEmpty()) << "no window was opened";
}

TEST_F(ProcedureComment, ACommentThatChangedWhileTheWindowWasOpenIsRefused) {
  OpenModule({"' Old.", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  WhenAsked([&](workshop::frmResult& window) {
    Module("modMain").ReplaceLine(1, "' Other.");
    window.txtRes.UserEdit(" New.", 0, 0);
    window.OKButton.UserClick();
  });
  Comment();
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(Text(), "' Other.\r\nSub Main()\r\nEnd Sub");
}

TEST_F(ProcedureComment, AComponentThatMovedIsFoundByItsName) {
  const Code text{"Option Explicit", "Sub Init()", "End Sub"};
  for (bool meanwhile : {false, true}) {
    OpenAnew({Bas("modA", text), Bas("modB", text), Bas("modC", text)});
    Show("modB", "Sub Init");
    const auto remove = [&] { environment->ActiveVBProject()->VBComponents()->Remove(Component("modA")); };
    if (!meanwhile) remove();
    WhenAsked([&](workshop::frmResult& window) {
      if (meanwhile) remove();
      window.txtRes.UserEdit(" New.", 0, 0);
      window.OKButton.UserClick();
    });
    Comment();
    EXPECT_EQ(Module("modB").Lines(1, 9), "Option Explicit\r\n' New.\r\nSub Init()\r\nEnd Sub");
    EXPECT_EQ(Module("modC").Lines(1, 9), "Option Explicit\r\nSub Init()\r\nEnd Sub");
  }
}

TEST_F(ProcedureComment, AComponentThatWentWhileTheWindowWasOpenIsTold) {
  const Code text{"Option Explicit", "Sub Init()", "End Sub"};
  OpenAnew({Bas("modB", text), Bas("modC", text)});
  Show("modB", "Sub Init");
  WhenAsked([&](workshop::frmResult& window) {
    environment->ActiveVBProject()->VBComponents()->Remove(Component("modB"));
    window.txtRes.UserEdit(" New.", 0, 0);
    window.OKButton.UserClick();
  });
  Comment();
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(Module("modC").Lines(1, 9), "Option Explicit\r\nSub Init()\r\nEnd Sub");
}

TEST_F(ProcedureComment, BehindItAnEditGoesIntoTheRightOneOfTwinLines) {
  OpenModule(
      {"Sub Alpha()", "  If a Then", "    If b Then", "      c = 1", "  End If", "  End If", "  d = 1", "End Sub"});
  ChooseProcedure("Sub Alpha()");
  ASSERT_EQ(RowOf(CodeRows(), "d = 1"), 6);
  Write("hello");
  EXPECT_EQ(Module("modMain").Lines(1, 2), "'hello\r\nSub Alpha()");
  form.txtCode.UpdateString(RowOf(CodeRows(), "d = 1"), "  End If ' outer");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_EQ(Module("modMain").Lines(6, 2), "  End If\r\n  End If ' outer");
  EXPECT_THAT(CodeRows(), Contains("  End If ' outer"));
}

TEST_F(ProcedureComment, BehindItTheRowKnowsItsNewLine) {
  OpenModule({"' Old.", "' Older.", "Sub Main()", "End Sub"});
  ChooseProcedure("Sub Main()");
  Write(" New.");
  EXPECT_EQ(form.lbxProc->ItemData(form.lbxProc->ListIndex()), 2);
}

TEST_F(ProcedureComment, ALastLineDoesNotContinueIntoTheHeader) {
  const struct {
    const char* typed;
    const char* written;
  } kTexts[] = {{" New. _", "' New."},
                {" New. _\r\n", "' New.\r\n"},
                {" New. _ _  ", "' New."},
                {" New.\t_", "' New."},
                {" One _\r\n two _", "' One _\r\n' two"},
                {" New_", "' New_"}};
  for (const auto& text : kTexts) {
    OpenModule({"Option Explicit", "Sub Main()", "End Sub"});
    ChooseProcedure("Sub Main()");
    Write(text.typed);
    EXPECT_EQ(Text(), "Option Explicit\r\n" + std::string(text.written) + "\r\nSub Main()\r\nEnd Sub") << text.typed;
  }
}

TEST_F(ProcedureComment, BehindItARowIsAnOrdinaryOneAgain) {
  OpenModule({"' Old.", "Sub Main()", "Beep", "End Sub"});
  ChooseProcedure("Sub Main()");
  Write(" New.");
  EXPECT_FALSE(form.toProcStart);
  form.txtCode.SetStrPos(RowOf(CodeRows(), "Beep") + 1);
  form.txtCode.DblClick();
  EXPECT_EQ(SelectionOf("modMain").start_line, 3);
}

}  // namespace
}  // namespace corvane::tests
