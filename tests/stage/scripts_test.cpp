// Scripts that the library runs inside the environment: on its project, with its boxes, its objects, its files.
#include <cstdio>

#include "tests/stage/late.h"
#include "tests/stage/script_library.h"
#include "tests/stage/story.h"

namespace corvane::stage {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Scripts : public Story {
 protected:
  Scripts() { OpenSmallProject(); }
  void Start() { ASSERT_EQ(host.StartUp(), S_OK); }

  Late AddIn() const { return Late(ComPointer<IDispatch>::Shared(host.AddIn())); }
  std::string RunText(const std::string& script) const { return AddIn().Get("RunScript", {script.c_str()}).Text(); }
  // A piece of code; lines end in "\n", here and in the result.
  std::string Run(const std::string& code) const {
    std::string result = RunText("CODE{\n<%\n" + code + "\n%>\n}\n");
    std::erase(result, '\r');
    return result;
  }
  std::string Line(const std::string& component, long line) const {
    return environment->ActiveVBProject()->VBComponents()->Item(component)->CodeModule()->Lines(line, 1);
  }
};

constexpr char kEndless[] = "dim n\nn=0\nwhile n<1\n  n=0\nwend\n=\"over\"";

TEST_F(Scripts, OneReadsAComponent) {
  Start();
  EXPECT_EQ(Run("=readcode(\"modMain\",1,1)"), "Private count As Long");
  EXPECT_EQ(Run("=components(\"all\")"), "StdModule.modMain|VBForm.frmMain|");
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(Scripts, OneInsertsCode) {
  Start();
  Run("insertcode(\"modMain\",\"Option Explicit\",1)");
  EXPECT_EQ(Line("modMain", 1), "Option Explicit");
  EXPECT_EQ(Line("modMain", 2), "Private count As Long");
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(Scripts, OneTellsInABox) {
  Start();
  bool was_disabled = false;
  std::string title;
  boxes.instead = [&](HWND box) {
    title = CaptionOf(box);
    was_disabled = !IsWindowEnabled(window.Handle());
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  };
  EXPECT_EQ(Run("msgbox(\"Half done\")\n=\"more\"\nmsgbox(\"Done\")"), "more");
  EXPECT_EQ(title, "Corvane");
  EXPECT_TRUE(was_disabled);
  EXPECT_THAT(boxes.Boxes(), ElementsAre("Done"));
}

TEST_F(Scripts, OneAsksAndActsOnTheAnswer) {
  Start();
  boxes.instead = [](HWND box) { PostMessageW(box, WM_COMMAND, IDCANCEL, 0); };
  EXPECT_EQ(Run("if msgbox(\"Go on?\") then\n=\"yes\"\nelse\n=\"no\"\nend if"), "no");
  EXPECT_EQ(Run("if msgbox(\"Go on?\") then\n=\"yes\"\nelse\n=\"no\"\nend if"), "yes");
  boxes.instead = [](HWND box) {
    SetWindowTextW(Below(box, "edit").front(), L"clsTyped");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  };
  EXPECT_EQ(Run("=inputbox(\"Name?\",\"New class\",\"clsItem\")"), "clsTyped");
}

TEST_F(Scripts, AnErrorIsToldAndCancelEndsTheRun) {
  Start();
  std::string title;
  boxes.instead = [&](HWND box) {
    title = CaptionOf(box);
    PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
  };
  EXPECT_EQ(Run("=\"before\"\ndim x\nx=createobject(\"NoSuchLibrary\",\"act\")\n=\"behind\""), "before");
  EXPECT_EQ(title, "Weaver");
  EXPECT_EQ(Run("dim x\nx=createobject(\"NoSuchLibrary\",\"act\")\n=\"behind\""), "behind");
  ASSERT_EQ(boxes.Boxes().size(), 1u);
  EXPECT_THAT(boxes.Boxes()[0], HasSubstr("Can not create object NoSuchLibrary.clsAction"));
}

TEST_F(Scripts, OneCallsAnObjectOfALibrary) {
  Start();
  ScriptLibrary library(L"StageLibrary.clsAction");
  EXPECT_EQ(Run("dim x\nx=createobject(\"StageLibrary\",\"act\")\n=x\n=act(\"go\")\n=act(\"number\")\n=act(\"truth\")"),
            "1go!7True");
  EXPECT_THAT(library.Calls(), ElementsAre("Command(VBE, go)", "Command(VBE, number)", "Command(VBE, truth)"));
  EXPECT_EQ(Run("dim x\nx=createobject(\"StageLibrary\",\"act\")\n=\"[\" & act(\"error\") & \"]\""), "[]");
  EXPECT_EQ(library.Objects(), 1);
  host.ShutDown();
  EXPECT_EQ(library.Objects(), 0);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(Scripts, AnObjectGetsTheConnectionOfTheDatabaseLibrary) {
  Start();
  ScriptLibrary database(L"Sernith.clsAction"), library(L"StageLibrary.clsAction");
  EXPECT_EQ(Run("=dbtask(\"open\")\ndim x\nx=createobject(\"StageLibrary\",\"act\")\n=act(\"SetConnection\")"),
            "open!");
  ASSERT_EQ(database.Calls().size(), 3u);
  EXPECT_THAT(database.Calls()[0], HasSubstr("Command(VBE, INIT:"));
  EXPECT_EQ(database.Calls()[1], "Command(VBE, open)");
  EXPECT_EQ(database.Calls()[2], "GetConnection()");
  EXPECT_THAT(library.Calls(), ElementsAre("SetConnection(connection)"));
}

TEST_F(Scripts, AStopRequestEndsOneThatRuns) {
  Start();
  bool stopped = false;
  window.Later(300, [&] {
    stopped = true;
    AddIn().Get("StopScript");
  });
  EXPECT_EQ(Run("=\"begun\"\n" + std::string(kEndless)), "begun");
  EXPECT_TRUE(stopped);
  EXPECT_EQ(Run("=\"next\""), "next") << "the next one runs";
}

TEST_F(Scripts, WhileOneRunsNoOtherDoes) {
  Start();
  std::string second = "not asked";
  window.Later(200, [&] {
    second = Run("=\"second\"");
    AddIn().Get("StopScript");
  });
  EXPECT_EQ(Run("=\"first\"\n" + std::string(kEndless)), "first");
  EXPECT_EQ(second, "");
}

TEST_F(Scripts, ADisconnectionStopsTheOneThatRuns) {
  Start();
  bool gone = false;
  const Late add_in = AddIn();
  window.Later(300, [&] {
    EXPECT_EQ(host.UnloadByUser(), S_OK);
    gone = true;
  });
  Run(kEndless);
  EXPECT_TRUE(gone);
}

TEST_F(Scripts, NothingRunsWhileTheAddInIsNotConnected) {
  ASSERT_EQ(host.Create(), S_OK);
  EXPECT_EQ(AddIn().Get("RunScript", {"CODE{\n<%\nmsgbox(\"hi\")\n%>\n}"}).vt, VT_EMPTY);
  EXPECT_EQ(AddIn().Get("StopScript").vt, VT_EMPTY);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(Scripts, AClosedProjectIsToldAndTheRunGoesOn) {
  Start();
  EXPECT_EQ(Run("=$appname"), "Small");
  stage.CloseProject();
  EXPECT_EQ(Run("=\"on \"\n=readcode(\"modMain\",1,1)\n=\"and on\""), "on and on");
}

// Its library stands beside the DLL, as it is installed.
TEST_F(Scripts, OneOfTheLibraryIsFoundBesideTheAddIn) {
  {
    InstalledLibrary installed(L"scripts");
    const auto write = [&](const std::wstring& name, const std::string& text) {
      FILE* file = _wfopen((installed.Folder() + name).c_str(), L"wb");
      ASSERT_NE(file, nullptr);
      fwrite(text.data(), 1, text.size(), file);
      fclose(file);
    };
    CreateDirectoryW((installed.Folder() + L"\\WorkShop").c_str(), nullptr);
    write(L"\\LibCode.txt", "+Samples\r\n++Hello{HELLO}\r\n\r\n{COMMON}\r\n$AUTHOR=Somebody\r\n}\r\n");
    write(L"\\WorkShop\\Hello.txt", "CODE{\r\n<%\r\n=\"Hello, \" & $author\r\n%>\r\n}\r\n");
    ASSERT_EQ(installed.Register(), S_OK);
    Start();
    EXPECT_EQ(RunText("FILE:Hello.txt\r\n}\r\n"), "Hello, Somebody");
    EXPECT_EQ(host.ShutDown(), S_OK);
  }
  RegisterUsualLibrary();
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

}  // namespace
}  // namespace corvane::stage
