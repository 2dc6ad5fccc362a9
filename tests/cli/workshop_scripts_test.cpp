// The scripts that come with Corvane, each run on a copy of the sample project: what it puts out, what its boxes say,
// and how it changes the files, saved, is compared with a golden.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "cli/run_script.h"
#include "cli/script_command.h"
#include "cli/unified_diff.h"
#include "runtime/strings.h"
#include "tests/support/golden.h"

namespace corvane::cli {
namespace {

namespace fs = std::filesystem;

struct Case {
  const char* name;  // of the golden
  const char* script;
  const char* component;
  std::vector<std::string> parameters, answers;
};

void PrintTo(const Case& example, std::ostream* out) {
  *out << example.name;
}

const Case kCases[] = {
    {"PropertyProcedures", "PropertyProcedures.txt", "clsMovement", {}, {}},
    {"PropertyProceduresForObjects", "PropertyProcedures.txt", "frmArticle", {}, {}},
    {"PropertyProceduresAllThere", "PropertyProcedures.txt", "clsArticle", {}, {}},
    {"ClassFromFields",
     "ClassFromFields.txt",
     "mdiMain",
     {"clsInvoice", "Number As String, Total As Currency, Text"},
     {}},
    {"ClassFromFieldsAsks", "ClassFromFields.txt", "mdiMain", {}, {"clsInvoice", "Number As Long"}},
    {"ClassFromFieldsCancelled", "ClassFromFields.txt", "mdiMain", {}, {""}},
    {"EnumWithText", "EnumWithText.txt", "modFormat", {"OrderState", "Open, Sent, Closed"}, {}},
    {"ErrorHandlerOfAFunction", "ErrorHandler.txt", "modFormat", {"WordCount"}, {}},
    {"ErrorHandlerOfAProperty", "ErrorHandler.txt", "clsArticle", {"Number"}, {}},
    {"ErrorHandlerOfALongHeader", "ErrorHandler.txt", "clsStore", {"Book"}, {}},
    {"ErrorHandlerIsThere", "ErrorHandler.txt", "modMain", {"Main"}, {}},
    {"ErrorHandlerOfNothing", "ErrorHandler.txt", "modMain", {"NoSuch"}, {}},
    {"ProcedureHeaders", "ProcedureHeaders.txt", "modCsv", {}, {}},
    {"ProcedureHeadersOfAClass", "ProcedureHeaders.txt", "clsStore", {}, {}},
    {"MessageConstants", "MessageConstants.txt", "mdiMain", {}, {}},
    {"MessageConstantsOfJoinedTexts", "MessageConstants.txt", "frmOrders", {}, {}},
    {"SqlIntoAString", "SqlString.txt", "modCsv", {"SELECT Name FROM Articles\r\nWHERE Number IN (:sNumber)"}, {"ok"}},
    {"SqlIntoAStringNotInserted", "SqlString.txt", "modCsv", {"SELECT 1"}, {"cancel"}},
    {"SqlOutOfAString",
     "SqlString.txt",
     "modCsv",
     {"sSQL = \"SELECT Name FROM Articles\" + vbCrLf _\r\n  + \"WHERE Name = \"\"x\"\"\""},
     {}},
    {"SqlOfNothing", "SqlString.txt", "modCsv", {}, {}},
    {"OptionExplicitIsEverywhere", "OptionExplicit.txt", "modMain", {}, {}},
    {"PublicMembers", "PublicMembers.txt", "modMain", {}, {}},
    {"ControlsTable", "ControlsTable.txt", "frmArticles", {}, {}},
    {"ControlsTableOfAnotherForm", "ControlsTable.txt", "frmAbout", {"frmAbout"}, {}},
    {"LongProcedures", "Wizards/LongProcedures.txt", "modMain", {}, {}},
};

fs::path Data() {
  return fs::path(CORVANE_SOURCE_DIR) / "data";
}

std::string Text(const fs::path& path) {
  return tests::golden::ReadFile(path).value_or("");
}

class SampleCopy {
 public:
  SampleCopy() : folder_(fs::temp_directory_path() / ("corvane-workshop-" + std::to_string(getpid()))) {
    fs::remove_all(folder_);
    fs::copy(Sample(), folder_);
  }
  ~SampleCopy() { fs::remove_all(folder_); }
  fs::path File(const std::string& name) const { return folder_ / name; }

  // How its files differ from those of the sample.
  std::string Changes() const {
    std::set<std::string> names;
    for (const fs::path& folder : {Sample(), folder_})
      for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename().string());
    std::string changes;
    for (const std::string& name : names)
      changes +=
          UnifiedDiff(fs::exists(Sample() / name) ? name : "/dev/null", name, Text(Sample() / name), Text(File(name)));
    return changes;
  }

 private:
  static fs::path Sample() { return fs::path(CORVANE_SOURCE_DIR) / "samples" / "stockroom"; }
  fs::path folder_;
};

struct Ran {
  int status;
  std::string out, told;
};

Ran RunOn(const SampleCopy& copy, const Case& example) {
  ScriptOptions options;
  options.project = copy.File("Stockroom.vbp").string();
  options.component = example.component;
  options.parameters = example.parameters;
  options.answers = example.answers;
  options.library = Data().string();
  options.save = options.quiet = true;
  std::ostringstream out, errors;
  const int status = RunScriptFile(Text(Data() / "WorkShop" / example.script), options, out, errors);
  return {status, out.str(), errors.str()};
}

class WorkshopScripts : public testing::TestWithParam<Case> {};

TEST_P(WorkshopScripts, DoWhatTheySay) {
  const SampleCopy copy;
  const Ran ran = RunOn(copy, GetParam());
  EXPECT_EQ(ran.status, 0);
  const std::string all = ran.out + "---- boxes\n" + ran.told + "---- changes\n" + copy.Changes();
  EXPECT_TRUE(
      tests::MatchesGolden(runtime::Replace(all, "\r", ""), std::string("cli/workshop/") + GetParam().name + ".txt"));
}

INSTANTIATE_TEST_SUITE_P(, WorkshopScripts, testing::ValuesIn(kCases),
                         [](const auto& info) { return info.param.name; });

TEST(OptionExplicitScript, AddsItWhereItLacks) {
  const SampleCopy copy;
  for (const char* name : {"modApi.bas", "clsOrder.cls"}) {
    std::string text = runtime::Replace(Text(copy.File(name)), "Option Explicit\r\n", "");
    std::ofstream(copy.File(name), std::ios::binary) << text;
  }
  const Ran ran = RunOn(copy, {"", "OptionExplicit.txt", "modMain", {}, {}});
  EXPECT_EQ(ran.out, "clsOrder\r\nmodApi\r\n");
  EXPECT_EQ(ran.told, "");
  EXPECT_EQ(copy.Changes(), "");
}

std::set<std::string> ScriptFiles() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(Data() / "WorkShop"))
    if (entry.is_regular_file()) names.insert(entry.path().filename().string());
  return names;
}

TEST(WorkshopFolder, EachOfItsScriptsIsTried) {
  std::set<std::string> tried;
  for (const Case& example : kCases)
    if (!std::string(example.script).starts_with("Wizards/")) tried.insert(example.script);
  EXPECT_EQ(ScriptFiles(), tried);
  EXPECT_EQ(tried.size(), 10u);
}

TEST(WorkshopFolder, NoScriptHasAnOddPlace) {
  for (const std::string& name : ScriptFiles()) {
    std::ostringstream out, errors;
    EXPECT_EQ(CheckScriptFile(Text(Data() / "WorkShop" / name), name, 0, out, errors), 0) << out.str() << errors.str();
  }
}

TEST(WorkshopFolder, EachScriptBeginsWithItsNameAndSaysWhatItDoes) {
  for (const std::string& name : ScriptFiles()) {
    const std::string text = Text(Data() / "WorkShop" / name);
    EXPECT_TRUE(text.starts_with(name + "\r\n\r\n")) << name;
    EXPECT_GT(text.find("CODE{"), name.size() + 80) << name;
  }
}

TEST(WorkshopFolder, AWizardBeginsWithItsItem) {
  EXPECT_TRUE(
      Text(Data() / "WorkShop" / "Wizards" / "LongProcedures.txt").starts_with("ITEM:The longest procedures\r\n"));
}

}  // namespace
}  // namespace corvane::cli
