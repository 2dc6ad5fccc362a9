// Files that another program changed, taken over one by one while the project stays open. On a real disk.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <unistd.h>

#include "environment/disk_files.h"
#include "environment/line_differences.h"
#include "environment/observer.h"
#include "environment/paths.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

constexpr char kForm[] =
    "VERSION 5.00|Begin VB.Form F |   Caption         =   \"One\"|   Begin VB.ListBox lst |"
    "      List            =   \"F.frx\":0000|   End|End|Attribute VB_Name = \"F\"|Sub A()|End Sub|";
const std::string kList("\x01\0\x03\0\x02\0ab", 8), kOtherList("\x01\0\x03\0\x02\0cd", 8);

// Keeps a copy of the lines of the modules by the notices alone.
class Follower : public Observer {
 public:
  explicit Follower(Environment& environment) {
    for (const auto& module : environment.Projects()[0]->Modules())
      for (long line = 1; line <= module->CodeModule()->CountOfLines(); ++line)
        shown[module.get()].emplace_back(module->LineView(line));
  }
  void LinesChanged(Module& module, long start, long removed, long inserted) override {
    auto& lines = shown[&module];
    lines.erase(lines.begin() + start - 1, lines.begin() + start - 1 + removed);
    for (long line = start; line < start + inserted; ++line)
      lines.insert(lines.begin() + line - 1, std::string(module.LineView(line)));
    ASSERT_EQ(static_cast<long>(lines.size()), module.CodeModule()->CountOfLines());
    changes.push_back(std::to_string(start) + "-" + std::to_string(removed) + "+" + std::to_string(inserted));
  }
  void ModuleReadAgain(Module& module) override { again.push_back(module.Name()); }
  void DirtyChanged() override { ++dirty_changes; }
  std::map<Module*, Lines> shown;
  Lines changes, again;
  int dirty_changes = 0;
};

class ReadingAgain : public testing::Test {
 protected:
  ReadingAgain() {
    std::string pattern = (fs::temp_directory_path() / "corvane-XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
    Put("P.vbp", "Type=Exe|Module=Main; Main.bas|Form=F.frm|Name=\"P\"|");
    Put("Main.bas", "Attribute VB_Name = \"Main\"|one|two|three|four|five|");
    Put("F.frm", kForm);
    PutBytes("F.frx", kList);
    environment_->Open(WindowsPath((folder_ / "P.vbp").string()));
    follower_ = std::make_unique<Follower>(*environment_);
    environment_->Observe(follower_.get());
  }
  ~ReadingAgain() override {
    environment_.reset();
    fs::remove_all(folder_);
  }
  void PutBytes(const std::string& name, const std::string& bytes) {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
    // Later than whatever was read, however coarse the clock of the disk.
    fs::last_write_time(folder_ / name, fs::file_time_type::clock::now() + std::chrono::seconds(++writes_));
  }
  void Put(const std::string& name, const std::string& lines) { PutBytes(name, Text(lines)); }
  std::string Disk(const std::string& name) {
    std::stringstream bytes;
    bytes << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
    return bytes.str();
  }
  std::shared_ptr<Module> Main() { return environment_->Projects()[0]->Modules()[0]; }
  std::shared_ptr<Module> Form() { return environment_->Projects()[0]->Modules()[1]; }
  std::string Item() {
    auto list = Form()->Designer()->VBControls()->Item("lst")->Properties()->Item("List");
    return runtime::ToText(list->IndexedValue(0));
  }
  Lines Changed(Module& module) {
    Lines names;
    for (const ChangedFile& file : module.FilesChangedOnDisk()) names.push_back(FileNameOf(file.path));
    return names;
  }

  fs::path folder_;
  int writes_ = 0;
  std::unique_ptr<host::Files> files_ = NewDiskFiles();
  std::shared_ptr<Environment> environment_ = Environment::Create(*files_);
  std::unique_ptr<Follower> follower_;
};

TEST_F(ReadingAgain, TakesTheTextAndKeepsSelectionsOnTheirLines) {
  Main()->UserActivatePane();
  Main()->UserSelection({4, 2, 4, 3});
  EXPECT_EQ(Changed(*Main()), Lines{});
  Put("Main.bas", "Attribute VB_Name = \"Main\"|zero|one|2|three|four|five|six|");
  EXPECT_EQ(Changed(*Main()), Lines{"Main.bas"});
  Main()->ReadAgain();
  EXPECT_EQ(Changed(*Main()), Lines{});
  EXPECT_EQ(Main()->CodeModule()->Lines(1, 99), "zero\r\none\r\n2\r\nthree\r\nfour\r\nfive\r\nsix");
  EXPECT_TRUE(Main()->HasPane());
  EXPECT_EQ(Main()->PaneSelection().start_line, 5);
  EXPECT_EQ(Main()->PaneSelection().start_column, 2);
  EXPECT_EQ(Main()->PaneSelection().end_column, 3);
  EXPECT_EQ(follower_->changes, (Lines{"6-0+1", "2-1+1", "1-0+1"}));
  EXPECT_EQ(follower_->shown[Main().get()].size(), 7u);
  EXPECT_EQ(follower_->again, Lines{"Main"});
  EXPECT_FALSE(environment_->IsDirty());
  EXPECT_EQ(Main()->WriteToText(), Disk("Main.bas"));
}

TEST_F(ReadingAgain, LeavesTheOtherModulesAsTheyAre) {
  Form()->CodeModule()->InsertLines(1, "' mine");
  Put("Main.bas", "Attribute VB_Name = \"Main\"|else|");
  Main()->ReadAgain();
  EXPECT_TRUE(Form()->IsDirty());
  EXPECT_FALSE(Main()->IsDirty());
  EXPECT_EQ(Form()->CodeModule()->Lines(1, 1), "' mine");
}

TEST_F(ReadingAgain, WhatWasEditedHereGoes) {
  Main()->CodeModule()->InsertLines(1, "' mine");
  int before = follower_->dirty_changes;
  Put("Main.bas", "Attribute VB_Name = \"Main\"|one|theirs|");
  Main()->ReadAgain();
  EXPECT_EQ(Main()->CodeModule()->Lines(1, 9), "one\r\ntheirs");
  EXPECT_FALSE(environment_->IsDirty());
  EXPECT_EQ(follower_->dirty_changes, before + 1);
}

TEST_F(ReadingAgain, AFileThatWasOnlyTouchedChangesNothing) {
  auto designer = Form()->Designer();
  fs::last_write_time(folder_ / "F.frm", fs::file_time_type::clock::now() + std::chrono::hours(1));
  EXPECT_EQ(Changed(*Form()), Lines{"F.frm"});
  Form()->ReadAgain();
  EXPECT_EQ(Changed(*Form()), Lines{});
  EXPECT_EQ(follower_->again, Lines{});
  EXPECT_EQ(designer->VBControls()->Count(), 1) << "still the same one";
}

TEST_F(ReadingAgain, AFormHasANewDesignerAndItsWindowStaysOpen) {
  Form()->UserOpenDesigner(true);
  auto old = Form()->Designer();
  std::string text = Text(kForm);
  text.replace(text.find("\"One\""), 5, "\"Two\"");
  PutBytes("F.frm", text);
  Form()->ReadAgain();
  EXPECT_EQ(runtime::ToText(Form()->Properties()->Item("Caption")->Value()), "Two");
  EXPECT_TRUE(Form()->HasOpenDesigner());
  EXPECT_EQ(ErrorOf([&] { old->VBControls()->Item("lst")->Properties()->Item("Height")->SetValue(1L); }), 91);
  EXPECT_EQ(follower_->changes, Lines{}) << "no line of code";
}

TEST_F(ReadingAgain, ABinaryFileAloneIsTakenToo) {
  EXPECT_EQ(Item(), "ab");
  PutBytes("F.frx", kOtherList);
  EXPECT_EQ(Changed(*Form()), Lines{"F.frx"});
  Form()->ReadAgain();
  EXPECT_EQ(Item(), "cd");
  EXPECT_EQ(Changed(*Form()), Lines{});
}

TEST_F(ReadingAgain, HiddenAttributesAreThoseOfTheFile) {
  Put("Main.bas",
      "Attribute VB_Name = \"Main\"|one|two|three|four|five|Sub A()|Attribute A.VB_Description = \"x\"|End Sub|");
  Main()->ReadAgain();
  Put("Main.bas",
      "Attribute VB_Name = \"Main\"|one|two|three|four|five|Sub A()|Attribute A.VB_Description = \"y\"|End Sub|");
  Main()->ReadAgain();
  EXPECT_EQ(follower_->changes, Lines{"6-0+2"}) << "the second time no line that is shown";
  EXPECT_EQ(Main()->WriteToText(), Disk("Main.bas"));
  // The user takes the first change back and repeats it.
  Main()->CodeModule()->DeleteLines(6, 2);
  Main()->ReplaceLines(6, 0, "Sub A()\r\nEnd Sub");
  EXPECT_EQ(Main()->WriteToText(), Disk("Main.bas"));
}

TEST_F(ReadingAgain, UndoingItBringsBackWhatItHid) {
  std::string bare = "Attribute VB_Name = \"Main\"|one|";
  std::string with_sub = bare + "Sub A()|Attribute A.VB_Description = \"x\"|End Sub|";
  Put("Main.bas", with_sub);
  Main()->ReadAgain();
  Put("Main.bas", bare);
  Main()->ReadAgain();
  Main()->ReplaceLines(2, 0, "Sub A()\r\nEnd Sub");
  EXPECT_EQ(Main()->WriteToText(), Text(with_sub));
}

TEST_F(ReadingAgain, ItsNewNameStandsInTheProject) {
  Put("Main.bas", "Attribute VB_Name = \"Start\"|one|");
  Main()->ReadAgain();
  EXPECT_EQ(Main()->Name(), "Start");
  EXPECT_TRUE(environment_->Projects()[0]->IsDirty());
  EXPECT_NE(environment_->Projects()[0]->WriteToText().find("Module=Start; Main.bas"), std::string::npos);
}

TEST_F(ReadingAgain, WhatIsNotUnderstoodIsReportedAnew) {
  Put("Main.bas", "Attribute VB_Name = \"Main\"|one|<<<<<<< mine|>>>>>>> theirs|");
  Main()->ReadAgain();
  ASSERT_EQ(environment_->Problems().size(), 1u);
  EXPECT_EQ(environment_->Problems()[0].line, 3);
  Put("Main.bas", "Attribute VB_Name = \"Main\"|one|");
  Main()->ReadAgain();
  EXPECT_TRUE(environment_->Problems().empty());
}

struct Refused {
  const char *file, *lines, *reason;
};
constexpr Refused kRefused[] = {
    {"Main.bas", "Attribute VB_Name = \"F\"|", "its name F is that of another component"},
    {"Main.bas", "a|b\1", "no text: NUL byte in line 2"},
    {"F.frm", "theirs|", "no Form: its first line is not VERSION"},
    {"F.frm", "VERSION 5.00|Begin VB.Form F |   Caption = \"x\"|", "the file breaks off in its designer part"},
    {"F.frm", "VERSION 5.00|Begin VB.UserControl F |End|Attribute VB_Name = \"F\"|",
     "it is a component of another kind now"}};

TEST_F(ReadingAgain, WhatCannotTakeItsPlaceChangesNothing) {
  for (const Refused& each : kRefused) {
    auto module = std::string(each.file) == "F.frm" ? Form() : Main();
    std::string before = module->WriteToText(), bytes = Text(each.lines);
    std::replace(bytes.begin(), bytes.end(), '\1', '\0');
    PutBytes(each.file, bytes);
    EXPECT_EQ(ReasonOfFailure([&] { module->ReadAgain(); }), each.reason);
    EXPECT_EQ(module->WriteToText(), before);
    EXPECT_EQ(Changed(*module), Lines{each.file}) << "still, so that it is not written over";
    EXPECT_EQ(follower_->changes, Lines{});
  }
}

TEST_F(ReadingAgain, AFileThatIsGoneIsNoChange) {
  fs::remove(folder_ / "Main.bas");
  EXPECT_EQ(Changed(*Main()), Lines{});
  EXPECT_EQ(ErrorOf([&] { Main()->ReadAgain(); }), 53);
  EXPECT_EQ(Main()->CodeModule()->Lines(1, 1), "one");
}

// The differences lead from one text to the other.
TEST(LineDifferencesOf, LeadFromTheOldTextToTheNewOne) {
  std::mt19937 random(5);
  auto text = [&](size_t lines, unsigned kinds) {
    std::string bytes;
    for (; lines > 0; --lines) bytes += "line " + std::to_string(random() % kinds) + "\n";
    return bytes;
  };
  for (int round = 0; round < 3000; ++round) {
    unsigned kinds = 2 + random() % 60;
    ModuleText old_text(text(random() % 40, kinds), 0), new_text(text(random() % 40, kinds), 0);
    std::vector<LineDifference> differences = DifferencesOf(old_text, new_text);
    for (size_t i = differences.size(); i-- > 0;) {
      const LineDifference& each = differences[i];
      std::vector<std::string_view> lines;
      for (long line = each.first; line < each.first + each.inserted; ++line) lines.push_back(new_text.Line(line));
      old_text.Replace(each.start, each.removed, lines);
    }
    ASSERT_EQ(old_text.Lines(1, 99), new_text.Lines(1, 99)) << "round " << round;
    ASSERT_EQ(old_text.Count(), new_text.Count()) << "round " << round;
  }
}

TEST(LineDifferencesOf, TextsWithLittleInCommonAreOneDifference) {
  std::string mine, theirs;
  for (int line = 0; line < 400; ++line) {
    mine += (line % 2 ? "mine " : "both ") + std::to_string(line) + "\n";
    theirs += (line % 2 ? "theirs " : "both ") + std::to_string(line) + "\n";
  }
  std::vector<LineDifference> differences = DifferencesOf(ModuleText(mine, 0), ModuleText(theirs, 0));
  ASSERT_EQ(differences.size(), 1u);
  EXPECT_EQ(differences[0].start, 2);
  EXPECT_EQ(differences[0].removed, 399);
  EXPECT_EQ(differences[0].inserted, 399);
}

}  // namespace
}  // namespace corvane::environment
