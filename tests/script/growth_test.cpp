// Costs that grow with the length of a script and no faster.
#include <gtest/gtest.h>

#include "script/plan_cache.h"
#include "tests/script/lib_test.h"
#include "tests/support/processor_time.h"

namespace corvane::script {
namespace {

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::string Numbered(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += runtime::Replace(text, "#", std::to_string(i));
  return all;
}

struct Growth {
  const char* name;
  std::string (*script)(int n);
  int n;
};

double SecondsOfRun(const std::string& script) {
  FakeSurroundings world;
  frmLib lib(world.around);
  const double seconds = tests::SecondsOf([&] { lib.RunScriptText(runtime::Replace(script, "\n", runtime::kCrLf)); });
  EXPECT_TRUE(world.services.prompts.messages.empty());
  return seconds;
}

class Grows : public testing::TestWithParam<Growth> {};

// Four times the length takes about four times as long; what is quadratic takes sixteen times as long.
TEST_P(Grows, WithTheLength) {
  const Growth& growth = GetParam();
  const double once = SecondsOfRun(growth.script(growth.n));
  EXPECT_LT(SecondsOfRun(growth.script(4 * growth.n)), 6.5 * once + 0.15);
}

INSTANTIATE_TEST_SUITE_P(
    , Grows,
    testing::Values(
        Growth{"LoopsInOnePiece",
               [](int n) { return "CODE{\n<%\ndim i1\n" + Repeated("for i1=1 to 1\n=1\nnext\n", n) + "%>\n}\n"; },
               1600},
        Growth{"JumpsInOnePiece",
               [](int n) { return "CODE{\n<%\n" + Numbered("goto lab#\n=1\nlab#:\n", n) + "%>\n}\n"; }, 4000},
        Growth{"PiecesInOneLine", [](int n) { return "CODE{\n" + Repeated("<%=1%>", n) + "\n}\n"; }, 40000},
        Growth{"PiecesUnderCountersOfTheirOwn",
               [](int n) { return "CODE{\n<%dim i1%>\n" + Repeated("<%for i1=1 to 1:next%><%=1%>\n", n) + "}\n"; },
               6000},
        Growth{
            "LoopsOverTemplateText",
            [](int n) { return "CODE{\n<%dim ii%>\n" + Repeated("<%for ii=1 to 2%>\nrow\n<%\nnext\n%>\n", n) + "}\n"; },
            1000},
        Growth{"JumpsBackOverTemplateText",
               [](int n) {
                 return "CODE{\n<%dim jj%>\n" +
                        Numbered("<%\nlab#:\njj++\n%>\nrow\n<%\nif jj<2 then goto lab#\njj=0\n%>\n", n) + "}\n";
               },
               1000},
        Growth{"JumpsDeepInCalls",
               [](int n) {
                 return "CODE{\n<%\ndim k1\nsub deep(nn)\nagain1:\nif nn>0 then\ncall deep(nn-1)\nelse\nk1++\nif k1<" +
                        std::to_string(n) + " then goto again1\nend if\nend sub\ncall deep(" + std::to_string(n) +
                        ")\n%>\n}\n";
               },
               900}),
    [](const auto& info) { return info.param.name; });

size_t Characters(const ExpressionPlan& plan) {
  size_t all = 0;
  for (const PlannedStep& step : plan.steps)
    all += step.part.size() + step.part_before.size() + step.working.size() + step.working_before.size();
  return all;
}

// A plan keeps its texts for each step.
TEST(PlanCache, KeepsNoPlanThatIsMuchLargerThanItsExpression) {
  const std::string shorter = "1" + Repeated("+2*3", 20), longer = "1" + Repeated("+2*3", 450);
  ASSERT_GT(Characters(*PlanExpression(longer)), 1u << 20);
  PlanCache plans;
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ(plans.Find(shorter) != nullptr, times == 1);
    EXPECT_EQ(plans.Find(longer), nullptr);
  }
}

TEST(PlanCache, ForgetsThePlansThatAreTooLargeTogether) {
  PlanCache plans;
  const auto expression = [](int number) { return std::to_string(number) + Repeated("+2*3", 100); };
  size_t kept = 0;
  for (int number = 0; number < 300; ++number) {
    plans.Find(expression(number));
    if (const ExpressionPlan* plan = plans.Find(expression(number))) kept += Characters(*plan);
    plans.Trim();
  }
  ASSERT_GT(kept, 32u << 20);
  int still = 0;
  for (int number = 0; number < 300; ++number) still += plans.Holds(expression(number));
  EXPECT_LT(still, 150);
}

}  // namespace
}  // namespace corvane::script
