// What no script can do to its host: use up the memory, run past a stop, end the program.
#include <new>

#include "script/run_code.h"
#include "script/script_check.h"
#include "tests/script/lib_test.h"
#include "tests/script/translated.h"
#include "tests/support/processor_time.h"

namespace corvane::script {
namespace {

using Limits = LibTest;

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST_F(Limits, AChainOfIfsWithoutEndIsToldAndEndsTheRun) {
  EXPECT_EQ(RunCode("=1\n" + Repeated("if a then ", 2'000) + "b=1\n=2"), "");
  EXPECT_EQ(Errors(), Lines{"IFs are nested too deep."});
}

TEST_F(Limits, AChainOfIfsGrowsWithTheLengthOfTheLine) {
  const auto seconds = [](int ifs) {
    return tests::SecondsOf([&] { Translated(Repeated("IF a THEN ", ifs) + "b=1"); });
  };
  EXPECT_LT(seconds(8'000), 10 * seconds(2'000) + 0.1);
}

TEST_F(Limits, TheCheckOfAChainOfIfsGrowsWithTheLengthOfTheLine) {
  const auto seconds = [](int ifs) {
    const std::string code = "CODE{\r\n<%" + Repeated("IF a THEN ", ifs) + "b=1%>\r\n}\r\n";
    return tests::SecondsOf([&] { CheckScript(ReadScriptSource(code, {})); });
  };
  EXPECT_LT(seconds(8'000), 10 * seconds(2'000) + 0.1);
}

TEST_F(Limits, WithoutMemoryForTheTranslationTheRunEndsWithAMessage) {
  world.services.prompts.while_open = [](const tests::AskedMessage& asked) {
    if (runtime::BeginsWith(asked.prompt, "Brackets")) throw std::bad_alloc();
  };
  EXPECT_EQ(RunScript("CODE{\na\n<%(%>\nb\n}\n"), "a\n");
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, WithoutMemoryForAStatementTheRunEndsWithAMessage) {
  world.services.prompts.while_open = [](const tests::AskedMessage& asked) {
    if (runtime::BeginsWith(asked.prompt, "Variable")) throw std::bad_alloc();
  };
  EXPECT_EQ(RunCode("=1\n=nix\n=2"), "1");
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, WithoutMemoryForADialogTheRunEndsWithAMessage) {
  world.forms.while_shown = [](frmLib&) { throw std::bad_alloc(); };
  RunScript("FORM{\n}\nCODE{\nx\n}\n");
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, WithoutMemoryForThePrintBoxTheRunEndsWithAMessage) {
  world.services.prompts.while_open = [](const tests::AskedMessage& asked) {
    if (asked.title == "Print Box") throw std::length_error("too long");
  };
  EXPECT_EQ(RunCode("=1\nprint(2)"), "1");
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, PrintWithoutEndStopsTheScript) {
  lib.Parts().longest_text = 1000;
  RunCode("while 1=1\nprint(\"0123456789\")\nwend");
  EXPECT_EQ(Errors(), Lines{"A text is too long."});
}

TEST_F(Limits, StopMeEndsTheScriptsThatRunInside) {
  world.services.files.Put("C:\\one.txt", "CODE{\r\n<%scriptrun(\"C:\\two.txt\")\tPRINT(2)%>\r\n}\r\n");
  world.services.files.Put("C:\\two.txt", "CODE{\r\n<%while 1=1\twend\tPRINT(3)%>\r\n}\r\n");
  int yields = 0;
  world.services.loop.on_do_events = [&] {
    if (++yields == 3) lib.StopMe();
  };
  RunCode("scriptrun(\"C:\\one.txt\")\nPRINT(1)");
  EXPECT_EQ(yields, 3);
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(Limits, AScriptThatRanInsideIsForgotten) {
  world.services.files.Put("C:\\one.txt", "CODE{\r\n<%=1%>\r\n}\r\n");
  RunCode("scriptrun(\"C:\\one.txt\")");
  lib.StopMe();
  EXPECT_TRUE(lib.Parts().state.stopFlag);
}

// Each box takes 60 milliseconds, and the clock is read at every eighth statement.
TEST_F(Limits, SlowStatementsLetTheUsersActsIn) {
  EXPECT_EQ(world.services.loop.yields, 0);
  RunCode(Repeated("=1\n", 40));
  EXPECT_EQ(world.services.loop.yields, 0);
  world.services.prompts.while_open = [&](const tests::AskedMessage&) { world.services.loop.ticks += 60; };
  RunCode(Repeated("MSGBOX(1)\n", 40));
  EXPECT_EQ(world.services.loop.yields, 5);
}

TEST_F(Limits, BehindALongTextTheClockIsReadAtOnce) {
  world.services.prompts.while_open = [&](const tests::AskedMessage&) { world.services.loop.ticks += 101; };
  RunCode("dim aa\naa=\"0123456789\"\n" + Repeated("aa=aa&aa\n", 13) + Repeated("MSGBOX(aa)\n", 5));
  EXPECT_EQ(world.services.loop.yields, 5);
}

TEST_F(Limits, ArraysOfLongTextsRunOutOfMemory) {
  lib.Parts().most_memory = 40u << 20;
  EXPECT_EQ(RunCode("dim aa,kk,ar()\naa=space(1000000)\nwhile 1=1\nkk++\nar(kk)=aa&kk\n=\".\"\nwend").size() / 10, 4u);
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, NamesWithoutEndRunOutOfMemory) {
  lib.Parts().most_memory = 20u << 20;
  RunCode("while 1=1\ndim ar()\nwend");
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, TextsInTheSlotsOfSelectRunOutOfMemory) {
  lib.Parts().most_memory = 40u << 20;
  RunCode("dim aa,kk\naa=space(1000000)\nwhile 1=1\nkk++\npush(kk,aa&kk)\nwend");
  EXPECT_EQ(Errors(), Lines{"Out of memory."});
}

TEST_F(Limits, WhatIsOverwrittenDoesNotCount) {
  lib.Parts().most_memory = 40u << 20;
  EXPECT_EQ(RunCode("dim aa,bb,kk\naa=space(1000000)\nfor kk=1 to 300\nbb=aa&kk\nnext\n=len(bb)"), "1000003");
  EXPECT_EQ(Errors(), Lines());
}

// What compares the sought text at each place takes minutes, in which no Stop comes in.
TEST_F(Limits, ASearchOfALongTextComesToItsEnd) {
  const std::string texts = "dim aa,bb\naa=space(1000000)\nbb=space(500000)&\"x\"\n";
  for (const char* search :
       {"=instr(aa,bb)", "=instrrev(\"x\"&aa,\"x\"&trim(bb)&aa)", "=len(replace(aa,bb,\"\"))",
        "=len(replace(aa,bb,bb&bb))", "=len(sort(aa,bb))", "select case aa\ncase 1,bb\n=1\nend select"})
    EXPECT_LT(tests::SecondsOf([&] { RunCode(texts + search); }), 2) << search;
}

TEST_F(Limits, ExecuteLeavesARunAlone) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt", "{ONE}\r\nCODE{\r\nfirst\r\n}\r\n");
  world.services.loop.on_do_events = [&] { EXPECT_EQ(lib.Execute("{ONE}", "entry"), ""); };
  EXPECT_EQ(RunCode(Repeated("=1\n", 151)), Repeated("1", 151));
  EXPECT_EQ(world.services.loop.yields, 1);
  EXPECT_EQ(world.services.clipboard.text, "");
  EXPECT_EQ(lib.Parts().state.scriptParams, "");
}

TEST_F(Limits, AnArrayTakesAMillionElements) {
  EXPECT_EQ(RunCode("dim aa()\naa(1000000)=5\n=aa(1000000)\naa(1000001)=6\n=ubound(aa)"), "51000000");
  EXPECT_EQ(Errors(), Lines{"You can use only 1000000 elements of an array."});
}

}  // namespace
}  // namespace corvane::script
