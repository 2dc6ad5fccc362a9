// Commands of the code's menu that rewrite several lines, down to the files of the sample project.
#include "codelist/reading_commands.h"
#include "tests/explorer/editing_fixture.h"

namespace corvane::tests {
namespace {

using codelist::ListEntry;

class RewriteLines : public EditingTest {
 protected:
  void Select(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
      form.txtCode.SetStrPos(RowOf(CodeRows(), text) + 1);
      form.txtCode.ToggleSelect();
    }
  }
  // Chooses an entry of the menu of the code.
  void Choose(ListEntry entry) {
    codelist::ReadingCommands& commands = form.txtCode.Reading();
    toolkit.OnPopup(commands.menu[entry].Caption());
    commands.OpenMenu(600, 300);
  }
  static std::string WithoutLeadingBlanks(const std::string& text) {
    std::string stripped;
    bool start = true;
    for (char c : text) {
      if (start && c == ' ') continue;
      start = c == '\n';
      stripped += c;
    }
    return stripped;
  }
};

TEST_F(RewriteLines, CommentedLinesAreCommentsInTheFile) {
  Show("modFormat", "Public Function ParseBin");
  Select({"bin.Shelf = numbers", "bin.Place = numbers"});
  Choose(ListEntry::mnuComnt);
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  const std::string text = File("modFormat.bas");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\''),
            std::count(before["modFormat.bas"].begin(), before["modFormat.bas"].end(), '\'') + 2);
  std::string without = text;
  for (const char* line : {"bin.Shelf = numbers(1)", "bin.Place = numbers(2)"}) {
    size_t mark = without.rfind('\'', without.find(line));
    ASSERT_NE(mark, std::string::npos);
    without.erase(mark, 1);
  }
  EXPECT_EQ(without, before["modFormat.bas"]) << "nothing but the two apostrophes";
}

TEST_F(RewriteLines, UncommentedTheFileIsAsItWas) {
  Show("modFormat", "Public Function ParseBin");
  Select({"bin.Shelf = numbers", "bin.Place = numbers"});
  Choose(ListEntry::mnuComnt);
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  for (const char* line : {"bin.Shelf = numbers", "bin.Place = numbers"})
    if (!form.txtCode.IsSelected(RowOf(CodeRows(), line) + 1)) Select({line});
  Choose(ListEntry::mnuUncomnt);
  EXPECT_THAT(ChangedFiles(), IsEmpty());
}

TEST_F(RewriteLines, FormattingChangesLeadingBlanksAloneAndTwiceNothingMore) {
  Show("modFormat", "Public Function ParseBin");
  Choose(ListEntry::mnuFormat);
  EXPECT_THAT(Messages(), IsEmpty());
  for (const std::string& name : ChangedFiles()) {
    EXPECT_EQ(name, "modFormat.bas");
    EXPECT_EQ(WithoutLeadingBlanks(File(name)), WithoutLeadingBlanks(before[name]));
  }
  const std::map<std::string, std::string> once = AllFiles();
  Show("modFormat", "Public Function ParseBin");
  Choose(ListEntry::mnuFormat);
  ChangedFiles();
  EXPECT_EQ(AllFiles(), once);
}

TEST_F(RewriteLines, FormattingTheWholeSampleChangesLeadingBlanksAloneAndTwiceNothingMore) {
  std::map<std::string, std::string> once;
  for (int round : {1, 2}) {
    for (const std::string& component : Components()) {
      if (component.starts_with(' ')) continue;
      ChooseComponent(component);
      for (long row = 0; row < form.lbxProc->ListCount(); ++row) {
        form.lbxProc->UserSelect(row);
        if (form.txtCode.ListCount() > 1) Choose(ListEntry::mnuFormat);
      }
    }
    const std::vector<std::string> changed = ChangedFiles();
    EXPECT_THAT(changed, Not(IsEmpty()));
    for (const std::string& name : changed)
      EXPECT_EQ(WithoutLeadingBlanks(File(name)), WithoutLeadingBlanks(before[name])) << name;
    if (round == 1) once = AllFiles();
  }
  EXPECT_EQ(AllFiles(), once);
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(RewriteLines, AProcedureChosenMeanwhileIsNotFormatted) {
  OpenAnew({Bas("modMain", {"Option Explicit", "Public a", "Public b", "Sub One()", "If a Then", "Beep", "End If",
                            "End Sub", "Sub Two()", "If a Then", "Beep", "End If", "End Sub"})});
  Show("modMain", "Sub One()");
  services.loop.on_do_events = [this] {
    services.loop.on_do_events = nullptr;
    ChooseProcedure("Sub Two()");
  };
  Choose(ListEntry::mnuFormat);
  ASSERT_EQ(form.txtCode.List(1), "Sub Two()");
  EXPECT_EQ(Module("modMain").Lines(9, 5), "Sub Two()\r\nIf a Then\r\nBeep\r\nEnd If\r\nEnd Sub");
}

TEST_F(RewriteLines, ALineThatChangedMeanwhileIsLeftAlone) {
  Show("modFormat", "Public Function ParseBin");
  host::CodeModule& module = Module("modFormat");
  const long row = RowOf(CodeRows(), "bin.Shelf = numbers") + 1;
  const long line = form.lbxProc->ItemData(form.lbxProc->ListIndex()) + row - 1;
  ASSERT_THAT(module.Lines(line, 1), HasSubstr("bin.Shelf = numbers"));
  module.ReplaceLine(line, "        bin.Shelf = 1");
  Select({"bin.Shelf = numbers", "bin.Place = numbers"});
  Choose(ListEntry::mnuComnt);
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(module.Lines(line, 1), "        bin.Shelf = 1");
  EXPECT_THAT(module.Lines(line + 1, 1), HasSubstr("'"));
}

}  // namespace
}  // namespace corvane::tests
