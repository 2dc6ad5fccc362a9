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

// The code of a component as a script left it, and what it said, with lines that end in "\n".
struct Left {
  std::string code, out, told;
};

// The file from its last attribute on is [code].
void PutCode(const SampleCopy& copy, const std::string& file, const std::string& code) {
  const std::string text = Text(copy.File(file));
  const size_t head = text.find("\r\n", text.rfind("\r\nAttribute VB_") + 2) + 2;
  std::ofstream(copy.File(file), std::ios::binary) << text.substr(0, head) << runtime::Replace(code, "\n", "\r\n");
}

Left LeaveCode(const SampleCopy& copy, const std::string& file, const Case& example) {
  const Ran ran = RunOn(copy, example);
  const std::string text = Text(copy.File(file));
  const size_t head = text.find("\r\n", text.rfind("\r\nAttribute VB_") + 2) + 2;
  return {runtime::Replace(text.substr(head), "\r", ""), runtime::Replace(ran.out, "\r", ""),
          runtime::Replace(ran.told, "\r", "")};
}

Left RunOnModule(const char* script, const std::string& code, const std::vector<std::string>& parameters = {}) {
  const SampleCopy copy;
  PutCode(copy, "modCsv.bas", code);
  return LeaveCode(copy, "modCsv.bas", {"", script, "modCsv", parameters, {}});
}

constexpr char kOddEnds[] =
    "Public Sub One(): Debug.Print 1: End Sub\n"
    "Public Sub Two()\n"
    "    ' On Error Resume Next was here\n"
    "    With x\n"
    "    End With\n"
    "    x = 1: End Sub\n"
    "Public Function Three()\n"
    "    If x Then\n"
    "    End If\n"
    "10  End Function\n"
    "Public Sub Four()\n"
    "    Print \"On Error GoTo\" ' On Error GoTo\n"
    "End Sub\n";

TEST(ErrorHandlerScript, LeavesAProcedureAloneWhoseEndHasNoLineOfItsOwn) {
  for (const char* name : {"One", "Two", "Three"}) {
    const Left left = RunOnModule("ErrorHandler.txt", kOddEnds, {name});
    EXPECT_EQ(left.code, kOddEnds) << name;
    EXPECT_EQ(left.told,
              std::string("Corvane: The end of ") + name + " does not stand at the start of a line of its own.\n");
  }
}

TEST(ErrorHandlerScript, IsNotMisledByACommentOrAString) {
  const Left left = RunOnModule("ErrorHandler.txt", kOddEnds, {"Four"});
  EXPECT_EQ(left.told, "");
  EXPECT_TRUE(runtime::Holds(left.code,
                             "Public Sub Four()\n    On Error GoTo Four_Error\n"
                             "    Print \"On Error GoTo\" ' On Error GoTo\n    Exit Sub\n\nFour_Error:\n"))
      << left.code;
}

TEST(ErrorHandlerScript, TakesTheNextProcedureOfAProperty) {
  const std::string get = "Property Get Age()\n    On Error Resume Next\nEnd Property\n\n";
  const Left left =
      RunOnModule("ErrorHandler.txt", get + "Property Let Age( _\n    ByVal n)\n    x = n\nEnd Property\n", {"Age"});
  EXPECT_EQ(left.code, get +
                           "Property Let Age( _\n    ByVal n)\n    On Error GoTo Age_Error\n    x = n\n"
                           "    Exit Property\n\nAge_Error:\n"
                           "    MsgBox Err.Number & \": \" & Err.Description, vbExclamation, \"Age\"\nEnd Property\n");
  EXPECT_EQ(RunOnModule("ErrorHandler.txt", left.code, {"Age"}).told, "Corvane: Age handles its errors already.\n");
}

TEST(ClassFromFieldsScript, TellsWhatCannotBeMadeAndMakesNothing) {
  const std::vector<std::vector<std::string>> cases = {
      {"clsOrder", "A", "There is a component clsOrder."},
      {"MODCSV", "A", "There is a component MODCSV."},
      {"cls A", "A", "This cannot be the name of a class: cls A"},
      {"clsA", "C() As String", "This cannot be a field: C() As String"},
      {"clsA", "B, Next", "This cannot be a field: Next As String"}};
  for (const auto& example : cases) {
    const SampleCopy copy;
    const Ran ran = RunOn(copy, {"", "ClassFromFields.txt", "modCsv", {example[0], example[1]}, {}});
    EXPECT_EQ(ran.told, "Corvane: " + example[2] + "\n");
    EXPECT_EQ(copy.Changes(), "");
  }
}

TEST(ClassFromFieldsScript, TellsObjectsFromValues) {
  const SampleCopy copy;
  const Ran ran = RunOn(copy, {"",
                               "ClassFromFields.txt",
                               "modCsv",
                               {"clsA", "Owner As clsOrder, Marks As New Collection, Code As String * 5"},
                               {}});
  const std::string code = runtime::Replace(Text(copy.File("clsA.cls")), "\r", "");
  for (const char* text : {"Private mMarks As New Collection\n", "Private mCode As String * 5\n",
                           "Property Get Marks() As Collection\n", "    Set Owner = mOwner\n",
                           "Public Property Set Owner(ByVal newValue As clsOrder)\n    Set mOwner = newValue\n",
                           "Public Property Let Code(ByVal newValue As String)\n    mCode = newValue\n"})
    EXPECT_TRUE(runtime::Holds(code, text)) << text << code;
}

// The headers of the procedures that a script made.
std::string Headers(const std::string& code) {
  std::istringstream lines(code);
  std::string headers;
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with("Public Property ")) headers += line.substr(16) + "\n";
  return headers;
}

std::string MadeProperties(const std::string& code) {
  const SampleCopy copy;
  PutCode(copy, "clsMovement.cls", code);
  return Headers(LeaveCode(copy, "clsMovement.cls", {"", "PropertyProcedures.txt", "clsMovement", {}, {}}).code);
}

TEST(PropertyProceduresScript, LeavesNamesOfProceduresAlone) {
  EXPECT_EQ(MadeProperties("Private mCount As Long, mState, mWrite, mItems As Collection\n"
                           "Public Function Count()\nEnd Function\nPublic Sub State()\nEnd Sub\n"
                           "Property Let Write(x)\nEnd Property\nProperty Set Items(x)\nEnd Property\n"),
            "");
}

TEST(PropertyProceduresScript, ReadsDeclarationsAsTheyAreWritten) {
  EXPECT_EQ(MadeProperties("Private Type tLocal ' a comment\n    mNo As Long\nEnd Type\n"
                           "' the Type String is fine: Private mNot As Long\n"
                           "Private mA As Long: Private mB As Long\n"
                           "Private mC As String * 20, mD@, mE$\n"
                           "Private mF As Long, _\n    mG As StdFont ' it's\n"
                           "Private mLong, mAny, mLocal As tLocal\n"
                           "Dim mH As TextBox\n"
                           "Private mI As clsArticle, mJ As MovementKind, mK As New Collection\n"),
            "Get A() As Long\nLet A(ByVal newValue As Long)\nGet B() As Long\nLet B(ByVal newValue As Long)\n"
            "Get C() As String\nLet C(ByVal newValue As String)\nGet D() As Currency\n"
            "Let D(ByVal newValue As Currency)\nGet E() As String\nLet E(ByVal newValue As String)\n"
            "Get F() As Long\nLet F(ByVal newValue As Long)\nGet G() As StdFont\nSet G(ByVal newValue As StdFont)\n"
            "Get H() As TextBox\nSet H(ByVal newValue As TextBox)\nGet I() As clsArticle\n"
            "Set I(ByVal newValue As clsArticle)\nGet J() As MovementKind\nLet J(ByVal newValue As MovementKind)\n"
            "Get K() As Collection\nSet K(ByVal newValue As Collection)\n");
}

constexpr char kMessages[] =
    "Option Explicit\n"
    "Public Const MSG_SURE As String = \"x\"\n"
    "Private Const MSG_HERE As String = \"Here I am\"\n"
    "Public Sub A()\n"
    "    MsgBox \"Done\", vbInformation: MsgBox \"Done\"\n"
    "    MsgBox (\"Text\")\n"
    "    If MsgBox(\"Go?\") = vbOK Then MsgBox \"gone\" Else MsgBox \"stay\"\n"
    "    Rem MsgBox \"no\"\n"
    "    x = \"a\" ' MsgBox \"no\"\n"
    "    MsgBox \"Sure\"\n"
    "    MsgBox \"Here I am\"\n"
    "    MsgBox \"a\" & \"c\"\n"
    "    YourMsgBox \"no\"\n"
    "    If x = \"b\" Then y \"c\" Else z\n"
    "End Sub\n";

TEST(MessageConstantsScript, KnowsTheConstantsThatAreThere) {
  const Left left = RunOnModule("MessageConstants.txt", kMessages);
  EXPECT_TRUE(runtime::Holds(left.code, "Private Const MSG_SURE_2 As String = \"Sure\"\n")) << left.code;
  EXPECT_TRUE(runtime::Holds(left.code, "    MsgBox MSG_SURE_2\n    MsgBox MSG_HERE\n")) << left.code;
  EXPECT_EQ(runtime::Replace(left.code, "Const MSG_HERE", "").size() + 14, left.code.size());
  const Left again = RunOnModule("MessageConstants.txt", left.code);
  EXPECT_EQ(again.code, left.code);
  EXPECT_EQ(again.out, "Messages that became constants: 0\n");
}

TEST(MessageConstantsScript, TakesEveryMessageOfALine) {
  const Left left = RunOnModule("MessageConstants.txt", kMessages);
  EXPECT_EQ(left.out, "Messages that became constants: 8\n");
  EXPECT_TRUE(runtime::Holds(left.code,
                             "    MsgBox MSG_DONE, vbInformation: MsgBox MSG_DONE\n"
                             "    MsgBox (MSG_TEXT)\n"
                             "    If MsgBox(MSG_GO) = vbOK Then MsgBox MSG_GONE Else MsgBox MSG_STAY\n"
                             "    Rem MsgBox \"no\"\n"
                             "    x = \"a\" ' MsgBox \"no\"\n"))
      << left.code;
  EXPECT_TRUE(runtime::Holds(left.code,
                             "    MsgBox \"a\" & \"c\"\n    YourMsgBox \"no\"\n    If x = \"b\" Then y \"c\" Else z\n"))
      << left.code;
}

TEST(MessageConstantsScript, FindsTheLinesOfALongModule) {
  std::string code, changed;
  for (int line = 1; line <= 250; ++line) code += line % 100 < 2 ? "    MsgBox \"Text\"\n" : "    x = 1\n";
  changed = runtime::Replace(code, "\"Text\"", "MSG_TEXT");
  EXPECT_EQ(RunOnModule("MessageConstants.txt", code).code, "Private Const MSG_TEXT As String = \"Text\"\n" + changed);
}

TEST(EnumWithTextScript, TellsWhatCannotBeMade) {
  const std::vector<std::vector<std::string>> cases = {
      {"In State", "a", "This cannot be the name of an enumeration: In State"},
      {"State", "a b", "This cannot be a value: a b"},
      {"State", "a,,\"x\"", "This cannot be a value: \"x\""},
      {"State", "a,A", "This cannot be a value: A"},
      {"Size", "a", "There is an enumeration Size, or its function."}};
  const std::string code = "Public Enum Size\n    SizeA\nEnd Enum\n";
  for (const auto& example : cases) {
    const Left left = RunOnModule("EnumWithText.txt", code, {example[0], example[1]});
    EXPECT_EQ(left.told, "Corvane: " + example[2] + "\n");
    EXPECT_EQ(left.code, code);
  }
}

TEST(EnumWithTextScript, PassesOverEmptyValues) {
  const Left left = RunOnModule("EnumWithText.txt", "Option Explicit\n", {"State", "A,, 1 ,"});
  EXPECT_EQ(left.code,
            "Option Explicit\n\nPublic Enum State\n    StateA\n    State1\nEnd Enum\n"
            "\nPublic Function StateText(ByVal value As State) As String\n    Select Case value\n"
            "        Case StateA: StateText = \"A\"\n        Case State1: StateText = \"1\"\n"
            "    End Select\nEnd Function\n");
}

constexpr char kMembers[] =
    "Declare Sub Sleep Lib \"kernel32\" (ByVal n As Long)\n"
    "Public Type Row\n    Event As Long\nEnd Type\n"
    "Private Type Hidden\n    Type As Long\nEnd Type\n"
    "Public Sub A(): End Sub\n"
    "Public Sub B()\n    x = 1: End Sub\n"
    "Public Function C()\n10 End Function\n"
    "Sub D()\nEnd Sub\n";

TEST(PublicMembersScript, ReadsProceduresOfOneLineAndDeclares) {
  EXPECT_TRUE(runtime::Holds(RunOnModule("PublicMembers.txt", kMembers).out,
                             "modCsv\n  Declare Sub Sleep Lib \"kernel32\" (ByVal n As Long)\n  Type Row\n"
                             "  Sub A(): End Sub\n  Sub B()\n  Function C()\n  Sub D()\n"));
}

TEST(LongProceduresScript, CountsProceduresOfOneLine) {
  const std::string out = RunOnModule("Wizards/LongProcedures.txt", kMembers).out;
  for (const char* row : {"     1  modCsv.A\n", "     2  modCsv.B\n", "     2  modCsv.C\n", "     2  modCsv.D\n"})
    EXPECT_TRUE(runtime::Holds(out, row)) << row << out;
}

TEST(ProcedureHeadersScript, TakesHeadersApart) {
  const Left left = RunOnModule("ProcedureHeaders.txt",
                                "Public Function A(ByVal x As Long) As String()\nEnd Function\n"
                                "Sub B(Optional s = \"a,b)\", Optional t = \"it's\", v() As Long)\nEnd Sub\n"
                                "Sub C(): Call Foo(1, 2): End Sub\n"
                                "Sub D\nEnd Sub\n"
                                "Property Get P(n) As Long: P = 1: End Property\n");
  EXPECT_EQ(left.code,
            "' A\n'   ByVal x As Long\n'   returns String()\nPublic Function A(ByVal x As Long) As String()\n"
            "End Function\n"
            "' B\n'   Optional s = \"a,b)\"\n'   Optional t = \"it's\"\n'   v() As Long\n"
            "Sub B(Optional s = \"a,b)\", Optional t = \"it's\", v() As Long)\nEnd Sub\n"
            "' C\nSub C(): Call Foo(1, 2): End Sub\n"
            "' D\nSub D\nEnd Sub\n"
            "' Property Get P\n'   n\n'   returns Long\nProperty Get P(n) As Long: P = 1: End Property\n");
}

// What becomes of a text that is not inserted into the code.
Left Sql(const std::string& text) {
  const SampleCopy copy;
  return LeaveCode(copy, "modCsv.bas",
                   {"", "SqlString.txt", "modCsv", {runtime::Replace(text, "\n", "\r\n")}, {"cancel"}});
}

TEST(SqlStringScript, TakesSqlWithAQuotedTextForSql) {
  EXPECT_EQ(Sql("SELECT * FROM A WHERE n = \"Smith\"").out, "sSQL = \"SELECT * FROM A WHERE n = \"\"Smith\"\"\"");
  EXPECT_EQ(Sql("UPDATE T SET a = \"x\" WHERE b = 1").out, "sSQL = \"UPDATE T SET a = \"\"x\"\" WHERE b = 1\"");
}

TEST(SqlStringScript, ReadsStatementsThatAddToTheFirst) {
  EXPECT_EQ(Sql("sSQL = \"A \"\n    sSQL = sSQL & \"B\"\n").out, "A B");
}

TEST(SqlStringScript, RefusesCommentsAndOtherStatements) {
  for (const char* text : {"sSQL = \"A\" ' it", "sSQL = \"A\"\nother = \"B\"", "\"A\"\nCall Run"}) {
    const Left left = Sql(text);
    EXPECT_EQ(left.told, "Corvane: There is more than one string expression.\n") << text;
    EXPECT_EQ(left.out, "") << text;
  }
}

TEST(SqlStringScript, BeginsANewStatementEveryTwentyLinesAndReadsThemBack) {
  std::string sql = "line 1";
  for (int line = 2; line <= 45; ++line) sql += "\nline " + std::to_string(line);
  const std::string source = Sql(sql).out;
  for (const char* line :
       {"19\" + vbCrLf _\n+\"line 20\" + vbCrLf\nsSQL = sSQL & \"line 21", "\nsSQL = sSQL & \"line 41"})
    EXPECT_TRUE(runtime::Holds(source, line)) << source;
  EXPECT_EQ(Sql(source).out, sql);
}

TEST(SavingAScript, KeepsWhatWasDoneBeforeItsErrorBoxWasCancelled) {
  const SampleCopy copy;
  PutCode(copy, "modCsv.bas", "Option Explicit\n");
  ScriptOptions options;
  options.project = copy.File("Stockroom.vbp").string();
  options.component = "modCsv";
  options.save = options.quiet = true;
  std::ostringstream out, errors;
  EXPECT_EQ(RunScriptFile("CODE{\n<%\ninsertcode(Me,\"' one\",1)\nfoo bar\ninsertcode(Me,\"' two\",1)\n%>\n}\n",
                          options, out, errors),
            1);
  EXPECT_TRUE(Text(copy.File("modCsv.bas")).ends_with("\"modCsv\"\r\n' one\r\nOption Explicit\r\n"));
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
    EXPECT_EQ(CheckScriptFile(Text(Data() / "WorkShop" / name), name, {}, out, errors), 0) << out.str() << errors.str();
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
