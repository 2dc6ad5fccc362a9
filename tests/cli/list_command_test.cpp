#include "cli/list_command.h"

#include <gtest/gtest.h>
#include <sstream>

#include "environment/environment.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {
namespace {

using cli::ListOptions;
using explorer::ProcedureKind;
using explorer::Visibility;

class ListCommand : public ::testing::Test {
 protected:
  ListCommand() {
    environment->OpenFromModules(
        "Shop", {Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "End Sub", "",
                                 "    Public Sub Fill(n As String)", "End Sub"}),
                 Bas("modMain", {"Public Total As Long", "", "Public Function Sum()", "End Function", "",
                                 "Static Sub Say()", "  MsgBox \"a\\b\"", "End Sub"}),
                 Cls("clsEmpty", {})});
  }
  std::string List(const ListOptions& options) {
    std::ostringstream out;
    cli::RunListCommand(*environment, options, out);
    return out.str();
  }
  static ListOptions Rows(ProcedureKind kind, Visibility visibility = Visibility::All, const std::string& name = {}) {
    ListOptions options;
    options.procedures = true;
    options.filter = {kind, visibility, name};
    return options;
  }

  FakeServices services;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(services.files);
};

TEST_F(ListCommand, TellsNameKindAndCountsOfEachComponent) {
  EXPECT_EQ(List({}),
            "frmMain\tform\t7\t1\t2\n"
            "modMain\tmodule\t8\t1\t2\n"
            "clsEmpty\tclass\t0\t0\t0\n");
}

TEST_F(ListCommand, TellsComponentLineAndTextOfEachRow) {
  EXPECT_EQ(List(Rows(ProcedureKind::All)),
            "frmMain\t3\tPrivate Sub Form_Load()\n"
            "frmMain\t6\tPublic Sub Fill(n As String)\n"
            "modMain\t3\tPublic Function Sum()\n"
            "modMain\t6\tStatic Sub Say()\n");
}

TEST_F(ListCommand, ScansEachComponentWithTheFilters) {
  EXPECT_EQ(List(Rows(ProcedureKind::Events)), "frmMain\t3\tPrivate Sub Form_Load()\n");
  EXPECT_EQ(List(Rows(ProcedureKind::All, Visibility::Public)),
            "frmMain\t6\tPublic Sub Fill(n As String)\nmodMain\t3\tPublic Function Sum()\n");
  EXPECT_EQ(List(Rows(ProcedureKind::All, Visibility::All, "s")),
            "frmMain\t3\tPrivate Sub Form_Load()\n"
            "frmMain\t6\tPublic Sub Fill(n As String)\n"
            "modMain\t3\tPublic Function Sum()\n"
            "modMain\t6\tStatic Sub Say()\n");
  EXPECT_EQ(List(Rows(ProcedureKind::Functions, Visibility::All, "sum")), "modMain\t3\tPublic Function Sum()\n");
}

TEST_F(ListCommand, WritesJsonLines) {
  ListOptions options = Rows(ProcedureKind::Functions);
  options.json = true;
  EXPECT_EQ(List(options), "{\"component\":\"modMain\",\"line\":3,\"text\":\"Public Function Sum()\"}\n");
  options.procedures = false;
  options.filter = {};
  EXPECT_EQ(List(options).substr(0, List(options).find('\n')),
            "{\"component\":\"frmMain\",\"kind\":\"form\",\"lines\":7,\"declarations\":1,\"procedures\":2}");
}

TEST_F(ListCommand, WritesUtf8AndEscapesForJson) {
  environment->OpenFromModules("Shop", {Bas("modMain", {"Dim a", "",
                                                        "Sub Gr\xFC\xDF"
                                                        "e(Optional s = \"a\tb\")",
                                                        "End Sub"})});
  environment->ActivateProject(environment->Projects().back());
  EXPECT_EQ(List(Rows(ProcedureKind::All)),
            "modMain\t3\tSub Gr\xC3\xBC\xC3\x9F"
            "e(Optional s = \"a\tb\")\n");
  ListOptions options = Rows(ProcedureKind::All);
  options.json = true;
  EXPECT_EQ(List(options),
            "{\"component\":\"modMain\",\"line\":3,\"text\":\"Sub Gr\xC3\xBC\xC3\x9F"
            "e(Optional s = \\\"a\\u0009b\\\")\"}\n");
}

TEST_F(ListCommand, WithoutAProjectItFails) {
  environment = environment::Environment::Create(services.files);
  EXPECT_THROW(List({}), host::Error);
}

TEST(ListWords, OfTheOptions) {
  std::vector<std::string> kinds, visibilities;
  for (const auto& [word, kind] : cli::KindWords()) kinds.push_back(word);
  for (const auto& [word, visibility] : cli::VisibilityWords()) visibilities.push_back(word);
  EXPECT_EQ(kinds, (std::vector<std::string>{"all", "subs", "functions", "properties", "events"}));
  EXPECT_EQ(visibilities, (std::vector<std::string>{"all", "public", "private", "static"}));
}

}  // namespace
}  // namespace corvane::tests
