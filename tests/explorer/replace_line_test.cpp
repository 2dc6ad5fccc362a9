// Edited rows of the code view go into the module, and nothing else does.
#include "tests/explorer/editing_fixture.h"

namespace corvane::tests {
namespace {

class ReplaceLine : public EditingTest {};

TEST_F(ReplaceLine, OneLineOfTheFileIsAnother) {
  Show("modFormat", "Public Function BinText");
  Edit("BinText = \"(none)\"", "        BinText = \"(no bin)\"");
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  EXPECT_EQ(File("modFormat.bas"), Edited("modFormat.bas", "\"(none)\"", "\"(no bin)\""));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ReplaceLine, TheRowShowsWhatTheModuleHolds) {
  Show("modFormat", "Public Function BinText");
  Edit("BinText = \"(none)\"", "        BinText = \"(no bin)\"");
  EXPECT_THAT(CodeRows(), Contains("        BinText = \"(no bin)\""));
  EXPECT_THAT(CodeRows(), Not(Contains(HasSubstr("(none)"))));
}

TEST_F(ReplaceLine, ABlankThatTheListShowsBehindAKeywordStaysOutOfTheModule) {
  Show("modFormat", "Public Function ParseBin");
  const long row = RowOf(CodeRows(), "Loop") + 1;
  ASSERT_EQ(form.txtCode.List(row), "    Loop ");
  form.txtCode.UpdateString(row, "  Loop ");
  EXPECT_EQ(form.txtCode.List(row), "  Loop ");
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  EXPECT_EQ(File("modFormat.bas"), Edited("modFormat.bas", "    Loop\r\n", "  Loop\r\n"));
}

TEST_F(ReplaceLine, BehindATwinOfTheLineTheRightOneIsReplaced) {
  OpenAnew(
      {Bas("modTwins", {"Sub Main()", "If a Then", "  Beep", "End If", "If b Then", "  Beep", "End If", "End Sub"})});
  ChooseComponent("modTwins");
  form.lbxProc->Clear();
  AddHit("modTwins", 1, 5, "If b Then");
  form.lbxProc->UserSelect(0);
  form.txtCode.UpdateString(3, "  Stop");
  EXPECT_EQ(Module("modTwins").Lines(3, 1), "  Stop");
  EXPECT_EQ(Module("modTwins").Lines(6, 1), "  Beep");
}

TEST_F(ReplaceLine, ALineThatWasChangedMeanwhileIsRefused) {
  Show("modFormat", "Public Function BinText");
  long row = RowOf(CodeRows(), "BinText = \"(none)\"") + 1;
  host::CodeModule& module = Module("modFormat");
  long line = form.lbxProc->ItemData(form.lbxProc->ListIndex()) + row - 1;
  module.ReplaceLine(line, "        BinText = \"-\"");
  form.txtCode.UpdateString(row, "        BinText = \"(no bin)\"");
  EXPECT_EQ(module.Lines(line, 1), "        BinText = \"-\"");
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
}

TEST_F(ReplaceLine, ALineThatMovedMeanwhileIsRefused) {
  Show("modFormat", "Public Function BinText");
  long row = RowOf(CodeRows(), "BinText = \"(none)\"") + 1;
  Module("modFormat").InsertLines(1, "' new");
  form.txtCode.UpdateString(row, "Stop");
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_THAT(Module("modFormat").Lines(1, 500), Not(HasSubstr("Stop\r\n")));
}

TEST_F(ReplaceLine, ATwinThatMovedToThePlaceOfALineIsRefused) {
  const Code twins{"Sub Main()", "If a Then", "  If b Then", "    Beep", "End If", "End If", "Stop", "End Sub"};
  const struct {
    const char* what;
    std::function<void(host::CodeModule&)> change;
  } kChanges[] = {
      {"a line above the view", [](host::CodeModule& module) { module.InsertLines(1, "' new"); }},
      {"a line within the view", [](host::CodeModule& module) { module.InsertLines(4, "    Debug.Print"); }},
      {"a line moved from behind", [](host::CodeModule& module) {
         module.DeleteLines(7, 1);
         module.InsertLines(1, "Stop");
       }}};
  for (const auto& change : kChanges) {
    OpenAnew({Bas("modTwins", twins)});
    Show("modTwins", "Sub Main()");
    change.change(Module("modTwins"));
    const std::string changed = Module("modTwins").Lines(1, 99);
    services.prompts = {};
    form.txtCode.UpdateString(6, "End If ' outer");
    EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before")) << change.what;
    EXPECT_EQ(Module("modTwins").Lines(1, 99), changed) << change.what;
  }
}

TEST_F(ReplaceLine, ALineBesideOneThatWasChangedInItsPlaceIsReplaced) {
  OpenAnew({Bas("modMain", {"Sub Main()", "Beep", "Stop", "Debug.Print", "End Sub"})});
  Show("modMain", "Sub Main()");
  Module("modMain").ReplaceLine(2, "a = 1");
  form.txtCode.UpdateString(3, "End");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_EQ(Module("modMain").Lines(2, 2), "a = 1\r\nEnd");
}

TEST_F(ReplaceLine, ALineBehindTheModulesEndIsRefused) {
  OpenAnew({Bas("modShort", {"Sub Main()", "Beep", "End Sub"})});
  ChooseComponent("modShort");
  ChooseProcedure("Sub Main()");
  Module("modShort").DeleteLines(2, 2);
  form.txtCode.UpdateString(3, "Stop");
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
}

TEST_F(ReplaceLine, ARowAboveTheFirstOneWithCodeCannotBeEdited) {
  OpenAnew({Bas("modHead", {"' One.", "' Two.", "Option Explicit", "Sub Main()", "End Sub"})});
  ChooseComponent("modHead");
  ASSERT_EQ(form.txtCode.List(1), "' One.");
  form.txtCode.UpdateString(1, "' 1.");
  EXPECT_THAT(Messages(), ElementsAre("Can't edit this line."));
  EXPECT_EQ(Module("modHead").Lines(1, 1), "' One.");
  form.txtCode.UpdateString(3, "Option Compare Text");
  EXPECT_EQ(Module("modHead").Lines(3, 1), "Option Compare Text") << "the declarations themselves can";
}

TEST_F(ReplaceLine, ATitleAmongTheGlobalsIsNoLine) {
  ChooseComponent(" Project Globals");
  long row = RowOf(CodeRows(), "Standart Module: modFormat") + 1;
  form.txtCode.UpdateString(row, "Stop");
  EXPECT_THAT(Messages(), ElementsAre("Don't select \"Standart Module\" line. It's a title"));
  EXPECT_THAT(ChangedFiles(), IsEmpty());
}

TEST_F(ReplaceLine, ADeclarationAmongTheGlobalsGoesIntoItsOwnModule) {
  ChooseComponent(" Project Globals");
  ASSERT_EQ(form.lbxProc->ListIndex(), 0);
  Edit("Private Const RACKS As String", "Private Const RACKS As String = \"ABCD\"");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  EXPECT_EQ(File("modFormat.bas"), Edited("modFormat.bas", "\"ABCDEFGH\"", "\"ABCD\""));
}

TEST_F(ReplaceLine, AComponentThatIsGoneEndsIt) {
  Show("modFormat", "Public Function BinText");
  long row = RowOf(CodeRows(), "BinText = \"(none)\"") + 1;
  environment->ActiveVBProject()->VBComponents()->Remove(Component("modFormat"));
  form.txtCode.UpdateString(row, "Stop");
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  for (const auto& [name, bytes] : AllFiles()) EXPECT_EQ(bytes, before.at(name)) << name;
}

// Three modules of one text, of which the first goes: the ones behind it move up.
class ReplaceLineOfMovedComponent : public ReplaceLine {
 protected:
  void SetUp() override {
    const Code text{"Option Explicit", "Private n", "Public p", "Sub Init()", "  n = 1", "  n = n + 1", "End Sub"};
    OpenAnew({Bas("modA", text), Bas("modB", text), Bas("modC", text)});
  }
  void RemoveFirst() { environment->ActiveVBProject()->VBComponents()->Remove(Component("modA")); }
  void EditAndCheck() {
    form.txtCode.UpdateString(RowOf(CodeRows(), "n = 1") + 1, "  n = 2");
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Module("modB").Lines(5, 1), "  n = 2");
    EXPECT_EQ(Module("modC").Lines(5, 1), "  n = 1");
  }
};

TEST_F(ReplaceLineOfMovedComponent, OfTheComponentRowIsFoundByItsName) {
  Show("modB", "Sub Init");
  RemoveFirst();
  EditAndCheck();
}

TEST_F(ReplaceLineOfMovedComponent, ChosenAfterItMovedIsFoundByItsName) {
  ChooseComponent("modB");
  RemoveFirst();
  ChooseProcedure("Sub Init");
  EditAndCheck();
}

TEST_F(ReplaceLineOfMovedComponent, OfTheWholeProjectIsTheOneThatIsShown) {
  form.lbxProc->Clear();
  form.lbxProc->AddItem("Sub Init()" + explorer::TailOf(2));
  form.lbxProc->SetItemData(0, 4);
  form.lbxProc->UserSelect(0);
  RemoveFirst();
  EditAndCheck();
}

TEST_F(ReplaceLineOfMovedComponent, OfAHitIsFoundByItsLabel) {
  for (bool chosenBefore : {true, false}) {
    SetUp();
    form.lbxProc->Clear();
    AddHit("modB", 2, 5, "n = 1");
    if (chosenBefore) form.lbxProc->UserSelect(0);
    RemoveFirst();
    if (!chosenBefore) form.lbxProc->UserSelect(0);
    EditAndCheck();
  }
}

TEST_F(ReplaceLineOfMovedComponent, OfTheActiveCodeIsFoundByItsName) {
  Caret("modB", 5);
  ClickOn(form.optCurMod);
  ChooseProcedure("Sub Init");
  RemoveFirst();
  EditAndCheck();
}

TEST_F(ReplaceLineOfMovedComponent, MarkedAsAFavouriteItIsTheRightOne) {
  Show("modB", "Sub Init");
  RemoveFirst();
  form.txtCode.SetStrPos(RowOf(CodeRows(), "n = 1") + 1);
  Press("Favorites");
  EXPECT_EQ(Module("modB").Lines(5, 1), "  n = 1  ''");
  EXPECT_EQ(Module("modC").Lines(5, 1), "  n = 1");
}

TEST_F(ReplaceLineOfMovedComponent, ThatIsGoneItselfIsRefused) {
  Show("modB", "Sub Init");
  environment->ActiveVBProject()->VBComponents()->Remove(Component("modB"));
  form.txtCode.UpdateString(RowOf(CodeRows(), "n = 1") + 1, "  n = 2");
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(Module("modC").Lines(5, 1), "  n = 1");
}

TEST_F(ReplaceLineOfMovedComponent, ShownForARowOfOneThatIsGoneIsRefused) {
  ChooseComponent("modB");
  environment->ActiveVBProject()->VBComponents()->Remove(Component("modB"));
  ChooseProcedure("Sub Init");
  form.txtCode.UpdateString(RowOf(CodeRows(), "n = 1") + 1, "  n = 2");
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(Module("modC").Lines(5, 1), "  n = 1");
}

TEST_F(ReplaceLine, AnEditInPlaceEndsInTheModule) {
  Show("modFormat", "Public Function BinText");
  form.txtCode.SetStrPos(RowOf(CodeRows(), "BinText = \"(none)\"") + 1);
  form.txtCode.EditCodeline();
  forms::TextBox& box = form.txtCode.txtEdit;
  ASSERT_TRUE(box.Visible());
  std::string text = box.Text();
  text.replace(text.find("(none)"), 6, "(no bin)");
  box.UserEdit(text, 0, 0);
  box.UserKeyPress(13);
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  EXPECT_EQ(File("modFormat.bas"), Edited("modFormat.bas", "\"(none)\"", "\"(no bin)\""));
}

}  // namespace
}  // namespace corvane::tests
