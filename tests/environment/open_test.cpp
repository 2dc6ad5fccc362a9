// Opening projects and groups from their files, sound ones and bad ones.
#include <chrono>
#include <gtest/gtest.h>

#include "environment/lookup.h"
#include "environment/statement.h"
#include "runtime/code_page.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

using Lines = std::vector<std::string>;

const char kForm[] =
    "VERSION 5.00|Begin VB.Form Form1 |   Caption         =   \"x\"|End|Attribute VB_Name = \"Form1\"|Sub A()|End Sub|";
const char kMain[] = "Attribute VB_Name = \"Main\"|Sub Main()|End Sub|";

TEST(Opening, TakesTheComponentsInTheOrderOfTheProject) {
  Opened opened;
  opened.PutProject(
      "Type=Exe|Form=sub\\Form1.frm|RelatedDoc=notes.txt|Module=Main; ..\\Main.bas|Class=Thing; "
      "Thing.cls|Name=\"Proj\"|");
  opened.files.Put("C:\\P\\sub\\Form1.frm", Text(kForm));
  opened.files.Put("C:\\Main.bas", Text(kMain));
  opened.Put("Thing.cls", "VERSION 1.0 CLASS|BEGIN|END|Attribute VB_Name = \"Thing\"|");
  opened.Put("notes.txt", "notes");
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), Lines{});
  EXPECT_EQ(opened.Names(), (Lines{"Form1", "notes.txt", "Main", "Thing"}));
  EXPECT_EQ(opened.Project()->Name(), "Proj");
  EXPECT_EQ(opened.Project()->FileName(), "C:\\P\\P.vbp");
  EXPECT_EQ(opened.At(2)->FileNames(1), "C:\\Main.bas");
  EXPECT_EQ(opened.At(1)->Type(), host::ComponentType::RelatedDocument);
  EXPECT_EQ(ErrorOf([&] { opened.At(1)->CodeModule(); }), 438);
  EXPECT_EQ(opened.At(3)->Position(), 4);
}

TEST(Opening, TheNameInTheFileCountsThenTheRootsThenTheProjectsThenTheFiles) {
  Opened opened;
  opened.PutProject("Module=InProject; a.bas|Form=b.frm|Module=c.bas|");
  opened.Put("a.bas", "Sub A()|End Sub|");
  opened.Put("b.frm", "VERSION 4.00|Begin VB.Form Root |End|");
  opened.Put("c.bas", "");
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Names(), (Lines{"InProject", "Root", "c"}));
  EXPECT_EQ(opened.Problems(), (Lines{"C:\\P\\P.vbp:1: a.bas: no line in it says its name: called InProject",
                                      "C:\\P\\b.frm:1: form of an older version of Visual Basic",
                                      "C:\\P\\P.vbp:3: c.bas: no line in it says its name: called c"}));
}

TEST(Opening, AFailureLeavesTheCodePageToWhatIsOpen) {
  runtime::SetAnsiCodePage(1251);
  Opened opened;
  opened.Put("bad.vbp", "no project");
  for (const char* path : {"C:\\P\\none.vbp", "C:\\P\\bad.vbp"}) {
    EXPECT_NE(ErrorOf([&] { opened.environment->Open(path); }), 0) << path;
    EXPECT_EQ(runtime::AnsiCodePage().Number(), 1251) << path;
  }
  runtime::SetAnsiCodePage(1252);
}

TEST(Opening, WhatIsOpenAlreadyIsRefused) {
  Opened opened;
  opened.PutProject("Module=Main; Main.bas|");
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(ErrorOf([&] { opened.environment->Open("c:\\p\\p.VBP"); }), 58);
  EXPECT_EQ(ReasonOfFailure([&] { opened.environment->Open("C:\\P\\P.vbp"); }), "it is open already");
  EXPECT_EQ(opened.environment->Projects().size(), 1u);
  Opened group;
  group.PutProject("Type=Exe|");
  group.Put("G.vbg", "VBGROUP 5.0|Project=P.vbp|");
  group.environment->Open("C:\\P\\G.vbg");
  for (const char* path : {"C:\\P\\G.vbg", "C:\\P\\P.vbp"})
    EXPECT_EQ(ReasonOfFailure([&] { group.environment->Open(path); }), "it is open already") << path;
  EXPECT_EQ(group.environment->Projects().size(), 1u);
  EXPECT_EQ(group.Problems(), Lines{});
}

TEST(Opening, AByteOrderMarkInFrontOfAProjectIsReportedAndKept) {
  Opened opened;
  opened.PutProject("\xEF\xBB\xBFModule=Main; Main.bas|Name=\"Proj\"|");
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), Lines{"C:\\P\\P.vbp:1: a UTF-8 byte order mark: what this line says is not understood"});
  EXPECT_EQ(opened.Project()->Name(), "Proj");
  EXPECT_EQ(opened.Project()->WriteToText(), opened.Disk("P.vbp"));
}

TEST(Opening, TheRootTellsAnMdiForm) {
  Opened opened;
  opened.PutProject("Form=m.frm|");
  opened.Put("m.frm", "VERSION 5.00|Begin VB.MDIForm MDI |End|Attribute VB_Name = \"MDI\"|");
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.At()->Type(), host::ComponentType::VBMDIForm);
}

// A project of [bad] and a sound module: the sound one opens, and the one problem is [problem].
struct BadCase {
  const char *name, *line, *file, *bytes, *problem;
  size_t length;  // of bytes; 0: up to its end
};

class BadModules : public testing::TestWithParam<BadCase> {};
TEST_P(BadModules, AreReportedAndTheRestOpens) {
  const BadCase& bad = GetParam();
  Opened opened;
  opened.PutProject(std::string("Type=Exe|") + bad.line + "|Module=Main; Main.bas|");
  opened.Put("Main.bas", kMain);
  if (bad.file) opened.Put(bad.file, std::string(bad.bytes, bad.length ? bad.length : std::string(bad.bytes).size()));
  opened.files.MakeFolder("C:\\P\\folder.bas");
  opened.files.FailReads("C:\\P\\locked.bas", 70);
  opened.files.FailReads("C:\\P\\broken.bas", 75);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), Lines{std::string("C:\\P\\") + bad.problem});
  EXPECT_TRUE(SameName(opened.Names().back(), "Main"));
  EXPECT_EQ(opened.Project()->WriteToText(), opened.Disk("P.vbp"));
  for (const auto& module : opened.Project()->Modules())
    EXPECT_EQ(module->WriteToText(), opened.files.Read(module->Path()));
}

INSTANTIATE_TEST_SUITE_P(
    Each, BadModules,
    testing::Values(
        BadCase{"missing", "Module=Gone; Gone.bas", nullptr, "", "P.vbp:2: Gone.bas: file not found", 0},
        BadCase{"folder", "Module=F; folder.bas", nullptr, "", "P.vbp:2: folder.bas: a folder, no file", 0},
        BadCase{"permission", "Module=L; locked.bas", nullptr, "",
                "P.vbp:2: locked.bas: no permission to read the file", 0},
        BadCase{"self", "Module=P; P.vbp", nullptr, "", "P.vbp:2: P.vbp: the project file names itself", 0},
        BadCase{"pathless", "Module=P;", nullptr, "", "P.vbp:2: : a line without a path", 0},
        BadCase{"nul", "Module=B; b.bas", "b.bas", "x|\0y", "P.vbp:2: b.bas: no text: NUL byte in line 2", 4},
        BadCase{"language", "UserControl=b.ctl", "b.ctl", "load data|infile x|",
                "P.vbp:2: b.ctl: no UserControl: its first line is not VERSION", 0},
        BadCase{"otherlanguage", "Module=B; b.bas", "b.bas",
                "#include <stdio.h>|/* Sub x() */|static int n;|int main(void) {|  return 0;|}|",
                "b.bas:1: a module of another language? Nothing in it has a name or is declared: called B", 0},
        BadCase{"nameless", "Module=B; b.bas", "b.bas", "Private n As Long|",
                "P.vbp:2: b.bas: no line in it says its name: called B", 0},
        BadCase{"unreadable", "Module=U; broken.bas", nullptr, "", "P.vbp:2: broken.bas: a file that cannot be read",
                0},
        BadCase{"class", "Class=C; c.cls", "c.cls", "using System;|",
                "c.cls:1: class without a VERSION line: all of it is taken for code", 0},
        BadCase{"duplicate", "Module=Main; Other.bas", "Other.bas", "Attribute VB_Name = \"MAIN\"|",
                "P.vbp:3: Main.bas: its name Main is that of Other.bas", 0},
        BadCase{"conflict", "Form=f.frm", "f.frm",
                "VERSION 5.00|Begin VB.Form F |<<<<<<< .working|End|Attribute VB_Name = \"F\"|",
                "f.frm:3: conflict mark of a version control", 0},
        BadCase{"conflictincode", "Module=C; c.bas", "c.bas", "Attribute VB_Name = \"C\"|x|>>>>>>> theirs|",
                "c.bas:3: conflict mark of a version control", 0},
        BadCase{"conflictfirst", "Module=C; c.bas", "c.bas", "<<<<<<< mine|Attribute VB_Name = \"C\"|x|",
                "c.bas:1: conflict mark of a version control", 0},
        BadCase{"conflictbehindend", "Form=f.frm", "f.frm",
                "VERSION 5.00|Begin VB.Form F |End|<<<<<<< mine|Attribute VB_Name = \"F\"|",
                "f.frm:4: conflict mark of a version control", 0},
        BadCase{"conflictbeforeroot", "Form=f.frm", "f.frm",
                "VERSION 5.00|<<<<<<< mine|Begin VB.Form F |End|Attribute VB_Name = \"F\"|",
                "f.frm:2: conflict mark of a version control", 0},
        BadCase{"conflictseveral", "Form=f.frm", "f.frm",
                "VERSION 5.00|Begin VB.Form F |<<<<<<< a|=======|>>>>>>> b|End|Attribute VB_Name = \"F\"|<<<<<<< a|",
                "f.frm:3: conflict mark of a version control", 0},
        BadCase{"junk", "Form=f.frm", "f.frm", "VERSION 5.00|Begin VB.Form F |  what|End|Attribute VB_Name = \"F\"|",
                "f.frm:3: neither a property nor a block", 0},
        BadCase{"cut", "Form=f.frm", "f.frm", "VERSION 5.00|Begin VB.Form F |   Begin VB.Label L |      Capt",
                "f.frm:4: the designer part breaks off before its End", 0},
        BadCase{"cutattribute", "Form=f.frm", "f.frm",
                "VERSION 5.00|Begin VB.Form F |   A = 1|Attribute VB_Name = \"F\"|",
                "f.frm:3: the designer part breaks off before its End", 0},
        BadCase{"stray", "Form=f.frm", "f.frm", "VERSION 5.00|Begin VB.Form F |End|End|Attribute VB_Name = \"F\"|x|",
                "f.frm:4: End without a Begin", 0},
        BadCase{"rootless", "Form=f.frm", "f.frm", "VERSION 5.00|Attribute VB_Name = \"F\"|",
                "f.frm:1: no Begin behind the VERSION line", 0},
        BadCase{"old", "Form=f.frm", "f.frm", "VERSION 2.00|Begin Form F |   Icon = F.FRX:0000|End|Sub A ()|End Sub|",
                "f.frm:1: form of an older version of Visual Basic", 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Opening, FilesThatAreOnlyPassedOnAreLookedFor) {
  Opened opened;
  opened.PutProject("RelatedDoc=notes.txt|ResFile32=\"P.res\"|");
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(),
            (Lines{"C:\\P\\P.vbp:2: P.res: file not found", "C:\\P\\P.vbp:1: notes.txt: file not found"}));
  EXPECT_EQ(opened.Names(), Lines{"notes.txt"});
}

TEST(Opening, ANameThatTheProjectGivesOtherwiseIsReported) {
  Opened opened;
  opened.PutProject("Module=Old; Main.bas|");
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), Lines{"C:\\P\\P.vbp:1: Main.bas: called Old here and Main in its file"});
  EXPECT_EQ(opened.Names(), Lines{"Main"});
}

TEST(Opening, TheSameFileTwiceIsOneModule) {
  Opened opened;
  opened.PutProject("Module=Main; Main.bas|Module=Main; MAIN.BAS|");
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), Lines{"C:\\P\\P.vbp:2: MAIN.BAS: named twice in the project"});
  EXPECT_EQ(opened.Names(), Lines{"Main"});
}

TEST(Opening, AMissingModuleTakesNoNumberAndItsLineStays) {
  Opened opened;
  opened.PutProject("Module=A; A.bas|Module=Main; Main.bas|");
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Project()->VBComponents()->Item(1)->Name(), "Main");
  opened.Project()->VBComponents()->Item(1)->SetName("Start");
  EXPECT_EQ(opened.Project()->WriteToText(), Text("Module=A; A.bas|Module=Start; Main.bas|"));
}

TEST(Opening, LinesOfAMegabyteAndControlCharactersAreLines) {
  Opened opened;
  opened.PutProject("Module=Main; Main.bas|");
  std::string text = "Attribute VB_Name = \"Main\"\n' " + std::string(1 << 20, 'x') + "\nx = \":\x05\x7F\x1B\"\n";
  opened.files.Put("C:\\P\\Main.bas", text);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), Lines{});
  EXPECT_EQ(opened.Code()->CountOfLines(), 2);
  EXPECT_EQ(opened.At()->WriteToText(), text);
}

TEST(Opening, WhatIsNoProjectIsAnError) {
  Opened opened;
  opened.files.Put("C:\\nul.vbp", std::string(50, '\0'));
  opened.files.MakeFolder("C:\\folder.vbp");
  EXPECT_EQ(ErrorOf([&] { opened.environment->Open("C:\\nul.vbp"); }), 321);
  EXPECT_EQ(ErrorOf([&] { opened.environment->Open("C:\\folder.vbp"); }), 75);
  EXPECT_EQ(ErrorOf([&] { opened.environment->Open("C:\\none.vbp"); }), 53);
  EXPECT_EQ(opened.environment->Projects().size(), 0u);
}

TEST(Opening, AGroupOpensItsProjectsAndItsStartupProjectIsActive) {
  Opened opened;
  opened.files.Put("C:\\g.vbg", Text("VBGROUP 5.0|Project=a\\a.vbp|StartupProject=b\\b.vbp|"));
  opened.files.Put("C:\\a\\a.vbp", "Type=Exe\r\nName=\"A\"\r\n");
  opened.files.Put("C:\\b\\b.vbp", "Type=Exe\r\nName=\"B\"\r\n");
  opened.environment->Open("C:\\g.vbg");
  EXPECT_EQ(opened.Problems(), Lines{});
  EXPECT_EQ(opened.environment->VBProjects()->Count(), 2);
  EXPECT_EQ(opened.environment->ActiveVBProject()->Name(), "B");
  EXPECT_EQ(opened.environment->VBProjects()->Item("a")->FileName(), "C:\\a\\a.vbp");
}

TEST(Opening, WhatIsWrongInAGroupIsReported) {
  Opened opened;
  opened.files.Put("C:\\g.vbg",
                   Text("VBGROUP 5.0|Project=a.vbp|Project=none.vbp|Project=g.vbg|Project=nul.vbp|Project=A.VBP|"
                        "Project=h.vbg|Project=same.vbp|Nonsense|"));
  opened.files.Put("C:\\a.vbp", "Type=Exe\nName=\"A\"\n");
  opened.files.Put("C:\\same.vbp", "Type=Exe\nName=\"a\"\n");
  opened.files.Put("C:\\h.vbg", "VBGROUP 5.0\n");
  opened.files.Put("C:\\nul.vbp", std::string(9, '\0'));
  opened.environment->Open("C:\\g.vbg");
  EXPECT_EQ(opened.Problems(),
            (Lines{"C:\\g.vbg:9: neither Project nor StartupProject", "C:\\g.vbg:3: none.vbp: file not found",
                   "C:\\g.vbg:4: g.vbg: the group names itself", "C:\\g.vbg:5: nul.vbp: not a text: it holds NUL bytes",
                   "C:\\g.vbg:6: A.VBP: named twice in the group", "C:\\g.vbg:7: h.vbg: a group inside a group",
                   "C:\\g.vbg:8: same.vbp: its name a is that of another project of the group"}));
  EXPECT_EQ(opened.environment->Projects().size(), 2u);
}

// A count of lines from the start for each of them would take minutes.
TEST(Opening, ConflictMarksCostNoMoreThanTheirLines) {
  Opened opened;
  opened.PutProject("Module=M; M.bas|Form=F.frm|");
  std::string marks;
  for (int i = 0; i < 100000; ++i) marks += "<<<<<<< mine\r\n>>>>>>> theirs\r\n";
  opened.files.Put("C:\\P\\M.bas", Text("Attribute VB_Name = \"M\"|") + marks);
  opened.files.Put("C:\\P\\F.frm",
                   Text("VERSION 5.00|Begin VB.Form F |") + marks + Text("End|Attribute VB_Name = \"F\"|"));
  auto start = std::chrono::steady_clock::now();
  opened.environment->Open("C:\\P\\P.vbp");
  opened.At(1)->Designer();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_EQ(opened.Problems(), (Lines{"C:\\P\\M.bas:2: conflict mark of a version control",
                                      "C:\\P\\F.frm:3: conflict mark of a version control"}));
}

TEST(Opening, TwoProjectsOfOneNameAreBothReachable) {
  Opened opened;
  opened.files.Put("C:\\g.vbg", Text("VBGROUP 5.0|Project=a.vbp|Project=b.vbp|"));
  opened.files.Put("C:\\a.vbp", "Name=\"Same\"\n");
  opened.files.Put("C:\\b.vbp", "Name=\"same\"\n");
  opened.environment->Open("C:\\g.vbg");
  auto projects = opened.environment->VBProjects();
  ASSERT_EQ(projects->Count(), 2);
  EXPECT_EQ(projects->Item(1)->FileName(), "C:\\a.vbp");
  EXPECT_EQ(projects->Item(2)->FileName(), "C:\\b.vbp");
  for (const char* name : {"Same", "same"}) EXPECT_EQ(projects->Item(name)->FileName(), "C:\\a.vbp") << name;
}

// The code page in force is one for the whole program: each test puts it back.
class CodePages : public testing::Test {
 protected:
  ~CodePages() override { runtime::SetAnsiCodePage(1252); }
  static std::string FormWith(const char* name, const char* charset) {
    return std::string("VERSION 5.00|Begin VB.Form ") + name +
           " |   BeginProperty Font |      Charset         =   " + charset +
           "|   EndProperty|End|Attribute VB_Name = \"" + name + "\"|";
  }
};

TEST_F(CodePages, AreGuessedFromTheFontsOfMostForms) {
  Opened opened;
  opened.PutProject("Form=a.frm|Form=b.frm|Form=c.frm|Form=d.frm|");
  opened.Put("a.frm", FormWith("A", "204"));
  opened.Put("b.frm", FormWith("B", "136"));
  opened.Put("c.frm", FormWith("C", "136"));
  opened.Put("d.frm", FormWith("D", "0"));
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.environment->CodePage(), 950);
}

TEST_F(CodePages, TheUsersChoiceComesFirst) {
  Opened opened;
  opened.environment = Environment::Create(opened.files, nullptr, {1250});
  opened.PutProject("Form=a.frm|");
  opened.Put("a.frm", FormWith("A", "204"));
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.environment->CodePage(), 1250);
}

TEST_F(CodePages, WithoutAHintItIs1252) {
  runtime::SetAnsiCodePage(1251);  // of a project that was open before
  Opened opened;
  opened.PutProject("Module=Main; Main.bas|");
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.environment->CodePage(), 1252);
}

TEST_F(CodePages, ModulesKeepTheirOrderWhenSomeWaitForTheCodePage) {
  Opened opened;
  opened.PutProject("Module=\xC4; \xC4.bas|Form=a.frm|Module=Main; Main.bas|");
  opened.files.Put("C:\\P\\\xC4.bas", "Attribute VB_Name = \"\xC4\"\n");
  opened.Put("a.frm", FormWith("A", "204"));
  opened.Put("Main.bas", kMain);
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Names(), (Lines{"\xC4", "A", "Main"}));
  EXPECT_TRUE(SameName("\xC4", "\xE4"));  // letters of 1251
  EXPECT_EQ(opened.At(0)->Path(), "C:\\P\\\xC4.bas");
}

}  // namespace
}  // namespace corvane::environment
