#include "environment/project_file.h"

#include <gtest/gtest.h>

#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

const char* const kAwkward =
    "type=Exe|Reference=*\\G{00}#2.0#0#..\\x.tlb#A = B|Form=Form1.frm| Module = Main ;  ..\\Shared\\Main.bas |"
    "Class=Thing; Thing.cls|UserControl=x.ctl|RelatedDoc=..\\notes.txt|ResFile32=\"P.res\"|Startup=\"Form1\"|"
    "IconForm=\"form1\"|Name=\"Proj\"|CondComp=\"A = 1 : B = 2\"|Unknown Key=  odd  ||[MS Transaction Server]|"
    "AutoRefresh=1|Form=NotAForm.frm|";

TEST(ProjectFile, KeepsEveryByteOfWhatIsNotEdited) {
  for (const std::string& bytes : {Text(kAwkward), std::string("Type=Exe"), std::string("Type=Exe\nForm=a.frm\n"),
                                   std::string("\r\n\r\nType=Exe\r\n \t\r\nKey=\xE9\x81\r\n")})
    EXPECT_EQ(ProjectFile(bytes).Write(), bytes);
}

TEST(ProjectFile, ListsItsComponentsInOrder) {
  std::string listed;
  for (const ComponentLine& line : ProjectFile(Text(kAwkward)).Components())
    listed += std::string(line.kind->key) + "," + line.name + "," + line.path + "|";
  EXPECT_EQ(listed,
            "Form,,Form1.frm|Module,Main,..\\Shared\\Main.bas|Class,Thing,Thing.cls|UserControl,,x.ctl|"
            "RelatedDoc,,..\\notes.txt|");
}

TEST(ProjectFile, ReadsValuesInFrontOfTheFirstSection) {
  ProjectFile file(Text(kAwkward));
  EXPECT_EQ(file.Value("name"), "Proj");
  EXPECT_EQ(file.Value("AutoRefresh"), "");
}

TEST(ProjectFile, AnEditTouchesItsLineAlone) {
  ProjectFile file(Text(kAwkward));
  auto lines = file.Components();
  file.RenameComponent(lines[1].id, "Start");
  file.SetPath(lines[2].id, "sub\\Thing2.cls");
  file.RemoveLine(lines[3].id);
  std::string expected = Text(kAwkward);
  for (auto [from, to] : {std::pair{"Module = Main ;", "Module = Start ;"},
                          {"Thing; Thing.cls", "Thing; sub\\Thing2.cls"},
                          {"UserControl=x.ctl\r\n", ""}})
    expected.replace(expected.find(from), std::string(from).size(), to);
  EXPECT_EQ(file.Write(), expected);
}

TEST(ProjectFile, ARenamedComponentIsNamedInTheSettingsToo) {
  ProjectFile file("Startup=\"Form1\"\r\nIconForm=\"form1\"\r\nTitle=\"Form1\"\r\nDebugStartupComponent=Form1\r\n");
  file.RenameInSettings("Form1", "frmMain");
  EXPECT_EQ(file.Write(),
            "Startup=\"frmMain\"\r\nIconForm=\"frmMain\"\r\nTitle=\"Form1\"\r\nDebugStartupComponent=frmMain\r\n");
}

TEST(ProjectFile, NewComponentsStandBehindThoseOfTheirKind) {
  ProjectFile file("Type=Exe\nForm=a.frm\nClass=C; C.cls\nName=\"P\"");
  file.AddComponent(KindOf(host::ComponentType::VBForm), "F", "b.frm");
  file.AddComponent(KindOf(host::ComponentType::StdModule), "M", "M.bas");
  EXPECT_EQ(file.Write(), "Type=Exe\nForm=a.frm\nForm=b.frm\nClass=C; C.cls\nModule=M; M.bas\nName=\"P\"");
}

TEST(ProjectFile, ALineAddedAtTheEndKeepsTheFileWithoutAFinalLineEnd) {
  ProjectFile file("Type=Exe\r\nForm=a.frm");
  file.AddComponent(KindOf(host::ComponentType::VBForm), "F", "b.frm");
  EXPECT_EQ(file.Write(), "Type=Exe\r\nForm=a.frm\r\nForm=b.frm");
}

TEST(ProjectFile, RefusesWhatIsNoProject) {
  EXPECT_EQ(ProjectFile(std::string(100, '\0')).Refusal(), "not a text: it holds NUL bytes");
  EXPECT_EQ(ProjectFile("").Refusal(), "an empty file is no project");
  EXPECT_EQ(ProjectFile("hello\nworld\n").Refusal(), "no project file: it has no line with a key and a value");
  EXPECT_EQ(ProjectFile("Type=Exe\nwhat is this\n").Problems().at(0).line, 2);
}

}  // namespace
}  // namespace corvane::environment
