#include "cli/search_command.h"

#include <gtest/gtest.h>
#include <sstream>

#include "environment/environment.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {
namespace {

using cli::SearchOptions;

class SearchCommand : public ::testing::Test {
 protected:
  SearchCommand() {
    environment->OpenFromModules(
        "Shop", {Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "    Total = 1", "End Sub"}),
                 Bas("modMain", {"Public Total As Long", "' total", "Public Function SubTotal()", "End Function"})});
  }
  std::string Search(const SearchOptions& options) {
    std::ostringstream out;
    any = cli::RunSearchCommand(*environment, options, out);
    return out.str();
  }

  FakeServices services;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(services.files);
  bool any = false;
};

TEST_F(SearchCommand, WritesComponentLineAndTextOfEachHit) {
  EXPECT_EQ(Search({.search = {.text = "total"}, .module = {}}),
            "frmMain\t4\tTotal = 1\nmodMain\t1\tPublic Total As Long\nmodMain\t3\tPublic Function SubTotal()\n");
  EXPECT_TRUE(any);
}

TEST_F(SearchCommand, TakesTheOptionsOfTheExplorer) {
  EXPECT_EQ(Search({.search = {.text = "total", .wholeWord = true}, .module = "modMain"}),
            "modMain\t1\tPublic Total As Long\n");
  EXPECT_EQ(Search({.search = {.text = "total", .headersOnly = true}, .module = {}}),
            "modMain\t3\tPublic Function SubTotal()\n");
  EXPECT_EQ(Search({.search = {.text = "' total", .withComments = true}, .module = {}}), "modMain\t2\t' total\n");
}

TEST_F(SearchCommand, TellsWhetherThereIsAHit) {
  EXPECT_EQ(Search({.search = {.text = "nowhere"}, .module = {}}), "");
  EXPECT_FALSE(any);
}

TEST_F(SearchCommand, AModuleThatIsNotThereIsAnError) {
  EXPECT_THROW(Search({.search = {.text = "total"}, .module = "modGone"}), host::Error);
  EXPECT_THROW(Search({.search = {.text = "total"}, .module = "MODMAIN"}), host::Error);
}

TEST_F(SearchCommand, FindsProperties) {
  EXPECT_EQ(Search({.search = {.text = "frmmain"}, .module = {}, .properties = true}), "frmMain\t\tName\tfrmMain\n");
  EXPECT_EQ(Search({.search = {.text = "modmain"}, .module = {}, .properties = true}), "");
}

}  // namespace
}  // namespace corvane::tests
