// Look-ups between edits: what is patched equals what is built anew, and many of them cost no more than their number.
#include <gtest/gtest.h>
#include <random>

#include "environment/procedure_index.h"
#include "tests/environment/opened.h"
#include "tests/support/processor_time.h"

namespace corvane::environment {
namespace {

std::string Outline(const ProcedureIndex& index) {
  std::string outline = std::to_string(index.DeclarationLines());
  for (const Procedure& procedure : index.Procedures())
    outline += "; " + std::string(index.NameOf(procedure)) + " " + std::to_string(procedure.start) + "-" +
               std::to_string(procedure.body) + "-" + std::to_string(procedure.name_line) + "-" +
               std::to_string(index.LineCountOf(procedure)) + (procedure.behind_end ? "e" : "");
  return outline;
}

constexpr const char* kLines[] = {"",
                                  "  ",
                                  "' comment",
                                  "x = 1",
                                  "Print x: y = 2",
                                  "End If",
                                  "Rem : End Sub",
                                  "Sub A()",
                                  "Sub B()",
                                  "End Sub",
                                  "Sub C(): End Sub",
                                  "Function _",
                                  "  F()",
                                  "Private _",
                                  "x: End Sub",
                                  "#If X Then",
                                  "#Else",
                                  "#End If",
                                  "Type T",
                                  "End Type",
                                  "Enum E: a: End Enum",
                                  "Dim x",
                                  "' goes on _",
                                  "Set x = y",
                                  "Property Get P()",
                                  "End Property",
                                  "Rem remark",
                                  "10 End Sub",
                                  "x = 1 _",
                                  "  Sub As Long",
                                  "Type T: End Type: x",
                                  "Exit Sub",
                                  "\tEnd",
                                  "For Each x In y: Next"};

std::vector<std::string_view> SomeLines(std::mt19937& random, size_t most) {
  std::vector<std::string_view> lines;
  for (size_t count = random() % (most + 1); count > 0; --count) {
    // Plain ones more often, so that many edits are followed.
    size_t among = random() % 3 == 0 ? std::size(kLines) : 7;
    lines.emplace_back(kLines[random() % among]);
  }
  return lines;
}

struct RandomEdit {
  long start, count;
  std::vector<std::string_view> lines;
  RandomEdit(std::mt19937& random, long total) {
    start = 1 + static_cast<long>(random() % static_cast<unsigned long>(total + 1));
    count = std::min(static_cast<long>(random() % 3), total - start + 1);
    lines = SomeLines(random, 2);
  }
};

ModuleText SomeModule(std::mt19937& random) {
  std::string bytes;
  for (std::string_view line : SomeLines(random, 5)) (bytes += line) += "\r\n";
  for (size_t count = random() % 5; count > 0; --count) {
    for (std::string_view line : SomeLines(random, 2)) (bytes += line) += "\r\n";
    (bytes += kLines[7 + count]) += "\r\n";
    for (std::string_view line : SomeLines(random, 4)) (bytes += line) += "\r\n";
    if (random() % 4 != 0) bytes += "End Sub\r\n";
  }
  return ModuleText(bytes, 0);
}

TEST(ManyEdits, AnIndexThatFollowedEqualsOneBuiltAnew) {
  std::mt19937 random(17);
  long followed = 0, moved = 0;
  for (int round = 0; round < 4000; ++round) {
    ModuleText text = SomeModule(random);
    ProcedureIndex index(text);
    for (int edit_number = 0; edit_number < 8; ++edit_number) {
      RandomEdit edit(random, text.Count());
      std::string before = Outline(index);
      bool follows = index.Follow(edit.start, edit.count, edit.lines);
      text.Replace(edit.start, edit.count, edit.lines);
      ProcedureIndex anew(text);
      if (!follows) {
        index = ProcedureIndex(text);
        continue;
      }
      ++followed;
      moved += before != Outline(index);
      ASSERT_EQ(Outline(index), Outline(anew)) << "round " << round << ", " << text.Lines(1, text.Count());
      for (const Procedure& procedure : anew.Procedures())
        ASSERT_EQ(index.Find(anew.NameOf(procedure), procedure.kind)->body,
                  anew.Find(anew.NameOf(procedure), procedure.kind)->body);
    }
  }
  EXPECT_GT(followed, 3000);
  EXPECT_GT(moved, 1500);
}

TEST(ManyEdits, PatchedStretchesEqualThoseBuiltAnew) {
  std::mt19937 random(19);
  for (int round = 0; round < 1000; ++round) {
    std::string bytes;
    for (size_t count = random() % 12; count > 0; --count)
      bytes += (const char*[]){"a\n", "b\r\n", "Attribute a.VB_X = 1\n", "Dim a\n", "\r\n"}[random() % 5];
    ModuleText patched(bytes, 0), anew(bytes, 0);
    for (int edit_number = 0; edit_number < 12; ++edit_number) {
      RandomEdit edit(random, patched.Count());
      patched.Stretches();
      patched.Replace(edit.start, edit.count, edit.lines);
      anew.Replace(edit.start, edit.count, edit.lines);
    }
    ASSERT_EQ(patched.Stretches(), anew.Stretches()) << "round " << round;
    long next = 0;
    for (const Stretch& stretch : anew.Stretches()) {
      ASSERT_EQ(stretch.first_line, next);
      next = static_cast<long>(stretch.last_line) + 1;
    }
    ASSERT_EQ(next, anew.Count());
  }
}

TEST(ManyEdits, ReplacingEveryHitCostsNoMoreThanTheHits) {
  std::string lines;
  for (int i = 0; i < 20000; ++i) lines += "x = 1|y = needle|";
  auto opened = Opened::Module(lines);
  auto code = opened->Code();
  long hits = 0;
  double seconds = tests::SecondsOf([&] {
    for (long line = 1, column = 1, end_line = -1, end_column = -1;
         code->Find("needle", line, column, end_line, end_column, false, false, false);
         ++line, column = 1, end_line = end_column = -1, ++hits)
      code->ReplaceLine(line, "y = pin");
  });
  EXPECT_EQ(hits, 20000);
  EXPECT_LT(seconds, 3);
}

TEST(ManyEdits, ASearchStartsAtItsFirstLine) {
  auto opened = Opened::Module("x");
  auto code = opened->Code();
  std::string inserted;
  for (int i = 0; i < 100000; ++i) inserted += "needle\r\n";
  code->InsertLines(1, inserted);
  long hits = 0;
  double seconds = tests::SecondsOf([&] {
    for (long line = 1, column = 1, end_line = -1, end_column = -1;
         code->Find("needle", line, column, end_line, end_column, false, false, false);
         ++line, column = 1, end_line = end_column = -1)
      ++hits;
  });
  EXPECT_EQ(hits, 100000);
  EXPECT_LT(seconds, 3);
}

TEST(ManyEdits, ALineInEveryProcedureCostsNoMoreThanTheProcedures) {
  std::string lines = "Option Explicit|";
  for (int i = 0; i < 4000; ++i)
    lines += "|Sub P" + std::to_string(i) + "()|  a = 1|  b = 2|  c = 3|  If a Then|    d = 4|  End If|End Sub|";
  auto opened = Opened::Module(lines);
  auto code = opened->Code();
  double seconds = tests::SecondsOf([&] {
    for (int i = 0; i < 4000; ++i) {
      std::string name = "P" + std::to_string(i);
      code->InsertLines(code->ProcBodyLine(name, host::ProcKind::Proc), "' above");
      code->InsertLines(code->ProcBodyLine(name, host::ProcKind::Proc) + 1, "  Debug.Print 1");
    }
  });
  EXPECT_EQ(code->ProcBodyLine("P3999", host::ProcKind::Proc), 2 + 3999L * 11 + 2);
  EXPECT_LT(seconds, 3);
}

}  // namespace
}  // namespace corvane::environment
