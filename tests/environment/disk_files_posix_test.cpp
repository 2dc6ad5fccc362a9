#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "environment/disk_files.h"
#include "environment/paths.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"
#include "tests/environment/opened.h"
#include "tests/support/processor_time.h"

namespace corvane::environment {
namespace {

namespace fs = std::filesystem;

// The number of the Error that [action] throws for somebody who is not root: where root runs this, a child that gave up
// its rights. Nothing when no such child can be had.
std::optional<long> ErrorWithoutRights(const std::function<void()>& action) {
  constexpr int kNobody = 65534, kKeptItsRights = 255;
  if (::geteuid() != 0) return ErrorOf(action);
  pid_t child = ::fork();
  if (child == 0) {
    bool dropped = ::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0;
    ::_exit(dropped ? static_cast<int>(ErrorOf(action)) : kKeptItsRights);
  }
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return std::nullopt;
  return WEXITSTATUS(status) == kKeptItsRights ? std::nullopt : std::optional<long>(WEXITSTATUS(status));
}

constexpr char kNoChild[] = "root here, and no child can give up its rights";

class DiskFilesTest : public testing::Test {
 protected:
  DiskFilesTest() {
    std::string pattern = (fs::temp_directory_path() / "corvane-XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
  }
  ~DiskFilesTest() override {
    fs::permissions(folder_, fs::perms::owner_all);
    fs::remove_all(folder_);
  }
  void Put(const std::string& name, const std::string& bytes) {
    fs::create_directories((folder_ / name).parent_path());
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
  }
  std::string Disk(const std::string& name) {
    std::stringstream bytes;
    bytes << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
    return bytes.str();
  }
  std::string Path(const std::string& name) { return WindowsPath(folder_.string()) + "\\" + name; }
  size_t Entries() { return static_cast<size_t>(std::distance(fs::directory_iterator(folder_), {})); }

  fs::path folder_;
  std::unique_ptr<host::Files> files_ = NewDiskFiles();
};

TEST_F(DiskFilesTest, FindsEachNameOfAPathWithoutRegardToCase) {
  Put("Classes/Main.Bas", "x");
  EXPECT_EQ(files_->Read(Path("CLASSES\\MAIN.BAS")), "x");
  EXPECT_EQ(files_->Read(Path("classes\\..\\classes\\main.bas")), "x");
}

TEST_F(DiskFilesTest, TheExactNameComesFirst) {
  Put("main.bas", "lower");
  Put("MAIN.BAS", "upper");
  EXPECT_EQ(files_->Read(Path("MAIN.BAS")), "upper");
  EXPECT_EQ(files_->Read(Path("main.bas")), "lower");
}

TEST_F(DiskFilesTest, ReadsNamesOfTheCodePageOnADiskOfUtf8) {
  Put("M\xC3\xB3"
      "dulo.bas",
      "x");
  EXPECT_EQ(files_->Read(Path("M\xF3"
                              "dulo.bas")),
            "x");
  EXPECT_EQ(files_->Read(Path("M\xD3"
                              "DULO.BAS")),
            "x");
  EXPECT_EQ(files_->List(Path(""), "*.bas"), std::vector<std::string>{"M\xF3"
                                                                      "dulo.bas"});
}

TEST_F(DiskFilesTest, APathThatIsTooLongIsNotSoughtNameByName) {
  std::string path = "Z:";
  for (int i = 0; i < 100'000; ++i) path += "\\a";
  const double seconds = tests::SecondsOf([&] {
    EXPECT_EQ(files_->List(path, "*"), std::vector<std::string>());
    EXPECT_THROW(files_->Read(path), runtime::Error);
    EXPECT_THROW(files_->Write(path, "x"), runtime::Error);
  });
  EXPECT_LT(seconds, 1);
}

TEST_F(DiskFilesTest, AFolderIsReadOnceForManyNamesThatItLacks) {
  for (int i = 0; i < 800; ++i) Put("Module" + std::to_string(i) + ".bas", "");
  const auto long_ago = fs::last_write_time(folder_) - std::chrono::hours(1);
  fs::last_write_time(folder_, long_ago);
  const double seconds = tests::SecondsOf([&] {
    for (int i = 0; i < 400; ++i) {
      EXPECT_EQ(files_->Attributes(Path("missing" + std::to_string(i) + ".bas")), host::kNoSuchFile);
      EXPECT_EQ(files_->Stamp(Path("MODULE" + std::to_string(i) + ".BAS")).size, 0);
    }
  });
  RecordProperty("seconds", std::to_string(seconds));
  EXPECT_LT(seconds, 0.5);  // 0.03; one reading of the folder for each name is 1.3
}

// A name that was looked for in vain, and a file that comes right after it: the folder's time may not tell.
TEST_F(DiskFilesTest, ANameThatComesAfterItWasMissedIsFound) {
  for (int i = 0; i < 200; ++i) {
    const std::string name = "Main" + std::to_string(i) + ".bas", upper = runtime::UCase(name);
    ASSERT_EQ(files_->Attributes(Path(upper)), host::kNoSuchFile);
    Put(name, "x");
    ASSERT_EQ(files_->Stamp(Path(upper)).size, 1) << name;
  }
}

TEST_F(DiskFilesTest, ANameIsMissedOnceItsFolderWasReadAgain) {
  Put("Old.bas", "x");
  fs::last_write_time(folder_, fs::last_write_time(folder_) - std::chrono::hours(1));
  EXPECT_EQ(files_->Stamp(Path("OLD.BAS")).size, 1);
  fs::rename(folder_ / "Old.bas", folder_ / "New.bas");
  EXPECT_EQ(files_->Attributes(Path("OLD.bas")), host::kNoSuchFile);
  EXPECT_EQ(files_->Stamp(Path("NEW.BAS")).size, 1);
  fs::rename(folder_ / "New.bas", folder_ / "nEW.bas");
  EXPECT_EQ(files_->Stamp(Path("NEW.BAS")).size, 1);
}

// Names are upper-cased by the page in force.
TEST_F(DiskFilesTest, ATableOfNamesIsThatOfItsCodePage) {
  Put("\xD0\xB6.bas", "x");  // a letter that 1252 lacks
  fs::last_write_time(folder_, fs::last_write_time(folder_) - std::chrono::hours(1));
  EXPECT_EQ(files_->Attributes(Path("\xC6.BAS")), host::kNoSuchFile);
  const int before = runtime::AnsiCodePage().Number();
  runtime::SetAnsiCodePage(1251);
  EXPECT_EQ(files_->Stamp(Path("\xC6.BAS")).size, 1);
  runtime::SetAnsiCodePage(before);
}

TEST_F(DiskFilesTest, AFolderWithoutAPlaceOnThisMachineHoldsNothing) {
  for (const char* folder : {"C:\\", "C:\\Code", "\\\\server\\share"})
    EXPECT_EQ(files_->List(folder, "*"), std::vector<std::string>()) << folder;
  EXPECT_EQ(files_->List("Z:\\no such folder", "*"), std::vector<std::string>());
}

TEST_F(DiskFilesTest, ASecondByteThatLooksLikeABackslashIsNone) {
  runtime::SetAnsiCodePage(932);
  Put("\xE8\xA1\xA8.frm", "x");  // 95 5C in code page 932
  EXPECT_EQ(files_->Read(Path("\x95\x5C.frm")), "x");
  runtime::SetAnsiCodePage(1252);
}

// A folder of this machine whose last byte of UTF-8 is a lead byte of a double-byte code page, and a font that asks for
// this page.
struct FolderCase {
  int charset, page;
  const char* folder;
};

constexpr FolderCase kFolders[] = {{128, 932, "\xE3\x83\x86\xE3\x82\xB9\xE3\x83\x88"},
                                   {128, 932, "Spa\xC3\x9F"},
                                   {134, 936, "\xE6\x96\xB0"},
                                   {134, 936, "\xE5\x8C\x97\xE4\xBA\xAC a \xE6\x96\xB0"}};

TEST_F(DiskFilesTest, AProjectInAFolderOfThisMachineIsReadAndSavedUnderADoubleBytePage) {
  for (const FolderCase& each : kFolders) {
    std::string folder = each.folder;
    Put(folder + "/Form1.frm", "VERSION 5.00\r\nBegin VB.Form Form1 \r\n   BeginProperty Font \r\n      Charset = " +
                                   std::to_string(each.charset) +
                                   "\r\n   EndProperty\r\nEnd\r\nAttribute VB_Name = \"Form1\"\r\nSub A()\r\n");
    Put(folder + "/P.vbp", "Type=Exe\r\nForm=Form1.frm\r\nModule=Main; Main.bas\r\nName=\"P\"\r\n");
    Put(folder + "/Main.bas", "Attribute VB_Name = \"Main\"\r\nSub Main()\r\n");
    std::string form = Disk(folder + "/Form1.frm");
    runtime::SetAnsiCodePage(1252);
    auto files = NewDiskFiles();
    auto environment = Environment::Create(*files);
    environment->Open(Path(folder + "\\P.vbp"));
    ASSERT_EQ(environment->CodePage(), each.page);
    for (const CheckedFile& file : CheckFiles(*environment, *files)) EXPECT_TRUE(file.identical) << file.path;
    EXPECT_EQ(CheckFiles(*environment, *files).size(), 3u) << folder;
    EXPECT_TRUE(environment->Problems().empty()) << environment->Problems()[0].reason;
    auto module = environment->Projects()[0]->Modules()[1];
    EXPECT_FALSE(module->ChangedOnDisk());
    module->CodeModule()->InsertLines(2, "' new");
    environment->Projects()[0]->Modules()[0]->SetName("Renamed");
    EXPECT_TRUE(environment->SaveAll().empty());
    EXPECT_EQ(Disk(folder + "/Main.bas"), "Attribute VB_Name = \"Main\"\r\nSub Main()\r\n' new\r\n") << folder;
    EXPECT_NE(Disk(folder + "/Form1.frm"), form);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / folder), {}), 3) << "files in the folder " << folder;
    EXPECT_EQ(Entries(), 1u) << folder;
    fs::remove_all(folder_ / folder);
  }
  runtime::SetAnsiCodePage(1252);
}

TEST_F(DiskFilesTest, AFileIsWrittenWhereItWasReadWhateverThePageByThen) {
  Put("M\xC3\xB3"
      "d.bas",
      "old");
  std::string path = Path(
      "M\xF3"
      "d.bas");
  files_->Read(path);
  runtime::SetAnsiCodePage(1251);
  EXPECT_EQ(files_->Stamp(path).size, 3);
  files_->Write(path, "new");
  fs::remove(folder_ /
             "M\xC3\xB3"
             "d.bas");
  EXPECT_EQ(files_->Stamp(path).size, -1);
  files_->Write(path, "newer");
  runtime::SetAnsiCodePage(1252);
  EXPECT_EQ(Disk("M\xC3\xB3"
                 "d.bas"),
            "newer");
  EXPECT_EQ(Entries(), 1u);
}

// "Gr\xF6\xDFe.bas" as a dialog of this machine gives it.
const char kSize[] =
    "Gr\xC3\xB6\xC3\x9F"
    "e.bas";

TEST_F(DiskFilesTest, AModuleSavedUnderANameOfThisMachineIsListedInTheCodePage) {
  Put("P.vbp", "Type=Exe\r\nModule=Main; Main.bas\r\n");
  Put("Main.bas", "Attribute VB_Name = \"Main\"\r\n");
  auto environment = Environment::Create(*files_);
  environment->Open(Path("P.vbp"));
  auto module = environment->Projects()[0]->Modules()[0];
  module->SaveAs(Path(kSize));
  EXPECT_EQ(Disk(kSize), Disk("Main.bas"));
  EXPECT_EQ(Entries(), 3u);
  EXPECT_TRUE(environment->SaveAll().empty());
  EXPECT_EQ(Disk("P.vbp"),
            "Type=Exe\r\nModule=Main; Gr\xF6\xDF"
            "e.bas\r\n");
  module->SetName("Other");
  for (const std::string& name : {std::string(kSize), std::string("Gr\xF6\xDF"
                                                                  "e.bas")})
    EXPECT_EQ(ReasonOfFailure([&] { environment->Projects()[0]->VBComponents()->AddFile(Path(name)); }),
              "named twice in the project");
  auto again = Environment::Create(*files_);
  again->Open(Path("P.vbp"));
  EXPECT_TRUE(again->Problems().empty());
  again->Projects()[0]->Modules()[0]->CodeModule()->InsertLines(1, "Dim a");
  EXPECT_TRUE(again->SaveAll().empty());
  EXPECT_EQ(Disk(kSize), "Attribute VB_Name = \"Main\"\r\nDim a\r\n");
  EXPECT_EQ(Entries(), 3u);
}

// What was read under the code page of before does not hide which one the names are in.
TEST_F(DiskFilesTest, AProjectOfAnotherCodePageOpensAsOftenAsOneLikes) {
  const std::string cyrillic = "\xD0\xA1\xD0\xBA\xD0\xBB\xD0\xB0\xD0\xB4.bas";  // of five letters, in UTF-8
  Put("P.vbp", "Type=Exe\r\nModule=Main; \xD1\xEA\xEB\xE0\xE4.bas\r\n");
  Put(cyrillic, "Attribute VB_Name = \"Main\"\r\n");
  for (int time = 1; time <= 3; ++time) {
    auto environment = Environment::Create(*files_);
    environment->Open(Path("P.vbp"));
    EXPECT_TRUE(environment->Problems().empty()) << time;
    ASSERT_EQ(environment->Projects()[0]->Modules().size(), 1u) << time;
    EXPECT_EQ(environment->CodePage(), 1251) << time;
  }
}

TEST_F(DiskFilesTest, AFormSavedUnderANameOfThisMachineNamesItsBinaryFileInTheCodePage) {
  const std::string folder = "j\xC3\xB6/", items("\x01\0\x03\0\x02\0ab", 8);
  Put(folder + "P.vbp", "Type=Exe\r\nForm=F.frm\r\n");
  Put(folder + "F.frm", Text("VERSION 5.00|Begin VB.Form F |   Begin VB.ListBox L |      List            =   "
                             "\"F.frx\":0000|   End|End|Attribute VB_Name = \"F\"|"));
  Put(folder + "F.frx", items);
  auto environment = Environment::Create(*files_);
  environment->Open(Path(folder + "P.vbp"));
  auto project = environment->Projects()[0];
  project->Modules()[0]->SaveAs(FolderOf(project->FileName()) + kSize);
  EXPECT_EQ(project->WriteToText(),
            "Type=Exe\r\nForm=Gr\xF6\xDF"
            "e.bas\r\n");
  EXPECT_NE(Disk(folder + kSize)
                .find("\"Gr\xF6\xDF"
                      "e.frx\":0000"),
            std::string::npos)
      << Disk(folder + kSize);
  EXPECT_EQ(Disk(folder + std::string(kSize).replace(8, 3, "frx")), items);
  EXPECT_EQ(Entries(), 1u);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / folder), {}), 5);
  EXPECT_TRUE(environment->Problems().empty());
}

TEST_F(DiskFilesTest, AModuleSavedUnderANameThatThePageLacksIsFoundAgain) {
  Put("P.vbp", "Type=Exe\r\nModule=Main; Main.bas\r\n");
  Put("Main.bas", "Attribute VB_Name = \"Main\"\r\n");
  auto environment = Environment::Create(*files_);
  environment->Open(Path("P.vbp"));
  environment->Projects()[0]->Modules()[0]->SaveAs(Path("\xD0\xA1.bas"));
  EXPECT_TRUE(environment->SaveAll().empty());
  EXPECT_EQ(Disk("\xD0\xA1.bas"), Disk("Main.bas"));
  auto again = Environment::Create(*files_);
  again->Open(Path("P.vbp"));
  EXPECT_TRUE(again->Problems().empty());
  EXPECT_EQ(again->Projects()[0]->Modules().size(), 1u);
}

TEST_F(DiskFilesTest, TheNameOfAProjectIsTextOfTheCodePageAndFindsItsFile) {
  const struct {
    int page;
    const char *folder, *shown;
  } kCases[] = {{1252,
                 "j\xC3\xB6"
                 "rg",
                 "j\xF6"
                 "rg"},
                {1251, "\xD0\xA1", "\xD1"},
                {932, "\xE8\xA1\xA8", "\x95\x5C"},
                {936, "\xE6\x96\xB0", "\xD0\xC2"},
                {1252, "\xE6\x96\xB0", "\xE6\x96\xB0"}};
  for (const auto& each : kCases) {
    Put(std::string(each.folder) + "/P.vbp", "Type=Exe\r\n");
    auto environment = Environment::Create(*files_, nullptr, {each.page});
    environment->Open(Path(std::string(each.folder) + "\\P.vbp"));
    auto project = environment->Projects()[0];
    EXPECT_EQ(project->FileName(), Path(std::string(each.shown) + "\\P.vbp"));
    EXPECT_EQ(files_->Read(project->FileName()), "Type=Exe\r\n") << each.folder;
    EXPECT_EQ(ReasonOfFailure([&] { environment->Open(project->FileName()); }), "it is open already") << each.folder;
  }
  runtime::SetAnsiCodePage(1252);
}

TEST(Paths, OneOfUtf8AndOneOfTheCodePageAreTheSame) {
  EXPECT_TRUE(SamePath("Z:\\j\xC3\xB6\\A.bas", "z:\\J\xD6\\a.BAS"));
  EXPECT_FALSE(SamePath("Z:\\j\xC3\xB6\\A.bas", "Z:\\j\xF6\\B.bas"));
  EXPECT_FALSE(SamePath("Z:\\j\xC3\xB6\\A.bas", "Z:\\j\xE4\\A.bas"));
  runtime::SetAnsiCodePage(936);
  // One character of the page, though its two bytes would be one of UTF-8 too.
  EXPECT_EQ(InCodePage("Z:\\\xD0\xA1\\\xE6\x96\xB0.bas"), "Z:\\\xD0\xA1\\\xD0\xC2.bas");
  runtime::SetAnsiCodePage(1252);
}

TEST(Paths, TextIsUtf8OrNot) {
  for (const char* text : {"", "abc", "caf\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"})
    EXPECT_TRUE(IsUtf8(text)) << text;
  for (const char* text : {"caf\xE9", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\x80"})
    EXPECT_FALSE(IsUtf8(text)) << text;
}

TEST(Paths, NamesOfThisMachineAndOfTheCodePageStandSideBySide) {
  runtime::SetAnsiCodePage(936);
  // Two characters of the page, of whose four bytes the first three look like UTF-8.
  EXPECT_EQ(FolderOf("Z:\\\xE6\x96\xB0\\\xE1\xB0\xB1\xB1\\a.bas"), "Z:\\\xE6\x96\xB0\\\xE1\xB0\xB1\xB1\\");
  runtime::SetAnsiCodePage(932);
  EXPECT_EQ(FileNameOf("Z:\\\xE3\x83\x86\\\x95\x5C.bas"), "\x95\x5C.bas");
  EXPECT_EQ(JoinPath("Z:/\xE3\x83\x86/", "..\\b.bas"), "Z:\\b.bas");
  runtime::SetAnsiCodePage(1252);
}

TEST_F(DiskFilesTest, SaysWhyAFileCannotBeRead) {
  Put("a.bas", "x");
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("none.bas")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("none\\a.bas")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_->Read("\\\\server\\share\\a.bas"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_->Read("Q:\\a.bas"); }), 76);
  for (const char* path : {"Q:\\a.bas", "\\\\server\\share\\a.bas"}) {
    EXPECT_EQ(ReasonOfFailure([&] { files_->Read(path); }), "No such drive or share on this machine");
    EXPECT_EQ(ReasonOfFailure([&] { files_->Write(path, "x"); }), "No such drive or share on this machine");
  }
}

TEST_F(DiskFilesTest, WritesAFileAsAWholeAndLeavesNothingElse) {
  Put("a.bas", "old");
  ::chmod((folder_ / "a.bas").c_str(), 0640);
  files_->Write(Path("A.BAS"), "new");
  EXPECT_EQ(Disk("a.bas"), "new");
  EXPECT_EQ(Entries(), 1u);
  EXPECT_EQ(fs::status(folder_ / "a.bas").permissions(), fs::perms(0640));
}

TEST_F(DiskFilesTest, AStampIsThatOfTheFileWhetherItWasReadOrNot) {
  Put("a.bas", "four");
  Put("deep/b.bas", "seven..");
  fs::create_symlink(folder_ / "deep/b.bas", folder_ / "link.bas");
  const auto sizes = [&] {
    std::vector<int64_t> sizes;
    for (const char* name : {"a.bas", "A.BAS", "link.bas", "gone.bas", "deep\\b.bas"})
      sizes.push_back(files_->Stamp(Path(name)).size);
    sizes.push_back(files_->Stamp("C:\\a.bas").size);
    return sizes;
  };
  const std::vector<int64_t> expected = {4, 4, 7, -1, 7, -1};
  EXPECT_EQ(sizes(), expected);
  const host::FileStamp unread = files_->Stamp(Path("a.bas"));
  for (const char* name : {"a.bas", "link.bas", "deep\\b.bas"}) files_->Read(Path(name));
  EXPECT_EQ(sizes(), expected);
  EXPECT_EQ(files_->Stamp(Path("a.bas")), unread);
}

TEST_F(DiskFilesTest, APipeIsNoFileAndIsNotWaitedFor) {
  Put("a.bas", "four");
  ASSERT_EQ(::mkfifo((folder_ / "pipe.bas").c_str(), 0600), 0);
  files_->Read(Path("a.bas"));
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("pipe.bas")); }), 75);
}

TEST_F(DiskFilesTest, AFileBehindALinkKeepsItsLink) {
  Put("real/a.bas", "old");
  fs::create_symlink(folder_ / "real/a.bas", folder_ / "link.bas");
  files_->Write(Path("link.bas"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link.bas"));
  EXPECT_EQ(Disk("real/a.bas"), "new");
}

TEST_F(DiskFilesTest, AWriteThatFailsLeavesTheOldFile) {
  Put("folder.bas/x", "x");
  EXPECT_EQ(ErrorOf([&] { files_->Write(Path("folder.bas"), "new"); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_->Write(Path("none\\a.bas"), "new"); }), 76);
}

TEST_F(DiskFilesTest, AWriteWithoutPermissionLeavesTheOldFile) {
  Put("a.bas", "old");
  auto write = [&] { files_->Write(Path("a.bas"), "new"); };
  fs::permissions(folder_, fs::perms(0777));
  ::chmod((folder_ / "a.bas").c_str(), 0444);
  std::optional<long> error = ErrorWithoutRights(write);
  if (!error) GTEST_SKIP() << kNoChild;
  EXPECT_EQ(error, 70) << "a file that is read-only";
  ::chmod((folder_ / "a.bas").c_str(), 0666);
  fs::permissions(folder_, fs::perms(0555));
  EXPECT_EQ(ErrorWithoutRights(write), 70) << "a folder that takes no file";
  EXPECT_EQ(Disk("a.bas"), "old");
  EXPECT_EQ(Entries(), 1u);
  fs::permissions(folder_, fs::perms(0777));
  EXPECT_EQ(ErrorWithoutRights(write), 0);
  EXPECT_EQ(Disk("a.bas"), "new");
}

TEST_F(DiskFilesTest, WhatMayNotBeReadSaysSo) {
  Put("a.bas", "x");
  Put("sub/b.bas", "x");
  fs::permissions(folder_, fs::perms(0755));
  ::chmod((folder_ / "a.bas").c_str(), 0);
  ::chmod((folder_ / "sub").c_str(), 0);
  std::optional<long> error = ErrorWithoutRights([&] { files_->Read(Path("a.bas")); });
  if (!error) GTEST_SKIP() << kNoChild;
  EXPECT_EQ(error, 70);
  EXPECT_EQ(ErrorWithoutRights([&] { files_->Read(Path("sub\\b.bas")); }), 70);
  ::chmod((folder_ / "a.bas").c_str(), 0444);
  EXPECT_EQ(ErrorWithoutRights([&] { files_->Read(Path("a.bas")); }), 0);
  ::chmod((folder_ / "sub").c_str(), 0755);
}

// Nobody writes to the pipe: whoever opens it to read waits for good.
TEST_F(DiskFilesTest, APipeIsNoFile) {
  ASSERT_EQ(::mkfifo((folder_ / "pipe.bas").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder_ / "zero.bas");
  for (const char* name : {"pipe.bas", "zero.bas", ""}) {
    EXPECT_EQ(ErrorOf([&] { files_->Read(Path(name)); }), 75) << name;
    EXPECT_EQ(ReasonOfFailure([&] { files_->Read(Path(name)); }), "No file, but a folder or a device") << name;
    EXPECT_EQ(ReasonOfFailure([&] { files_->Write(Path(name), "x"); }), "No file, but a folder or a device") << name;
  }
}

TEST_F(DiskFilesTest, WhatCannotBeAModuleIsReportedAndTheRestOpens) {
  ASSERT_EQ(::mkfifo((folder_ / "pipe.bas").c_str(), 0600), 0);
  Put("large.bas", "");
  fs::resize_file(folder_ / "large.bas", 0x80000000u);  // takes no room on the disk
  Put("folder.bas/x", "");
  Put("Main.bas", "Attribute VB_Name = \"Main\"\n");
  Put("P.vbp",
      "Module=A; pipe.bas\nModule=B; large.bas\nModule=C; folder.bas\nModule=D; Q:\\d.bas\nModule=M; Main.bas\n");
  auto environment = Environment::Create(*files_);
  environment->Open(Path("P.vbp"));
  std::vector<std::string> reasons;
  for (const Problem& problem : environment->Problems())
    reasons.push_back(std::to_string(problem.line) + ": " + problem.reason);
  EXPECT_EQ(reasons,
            (std::vector<std::string>{"1: pipe.bas: a file that cannot be read", "2: large.bas: a file of 2 GB or more",
                                      "3: folder.bas: a folder, no file", "4: Q:\\d.bas: file not found",
                                      "5: Main.bas: called M here and Main in its file"}));
  ASSERT_EQ(environment->Projects()[0]->Modules().size(), 1u);
  auto components = environment->Projects()[0]->VBComponents();
  EXPECT_EQ(ReasonOfFailure([&] { components->AddFile("large.bas"); }), "a file of 2 GB or more");
}

// A limit on the size of files stands in for a full disk: writing breaks off in the middle of the bytes.
TEST_F(DiskFilesTest, AFullDiskLeavesTheOldFile) {
  Put("a.bas", "old");
  rlimit before;
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small{100, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  long error = ErrorOf([&] { files_->Write(Path("a.bas"), std::string(1000, 'x')); });
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(error, 61);
  EXPECT_EQ(Disk("a.bas"), "old");
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(DiskFilesTest, AStampTellsAChange) {
  Put("a.bas", "1");
  host::FileStamp before = files_->Stamp(Path("a.bas"));
  EXPECT_EQ(before.size, 1);
  files_->Write(Path("a.bas"), "2");
  EXPECT_NE(files_->Stamp(Path("a.bas")), before);
  EXPECT_EQ(files_->Stamp(Path("none.bas")).size, -1);
}

TEST_F(DiskFilesTest, AttributesTellFoldersAndWhatIsNotThere) {
  Put("a.bas", "1");
  EXPECT_EQ(files_->Attributes(Path("a.bas")), 0u);
  EXPECT_EQ(files_->Attributes(Path("")), host::kDirectory);
  EXPECT_EQ(files_->Attributes(Path("none")), host::kNoSuchFile);
}

TEST(Paths, OfThisMachineAndWindowsAreTurnedIntoEachOther) {
  EXPECT_EQ(WindowsPath("/a/./b/../c.vbp"), "Z:\\a\\c.vbp");
  EXPECT_EQ(NativePath("Z:\\a\\c.vbp"), "/a/c.vbp");
  EXPECT_EQ(NativePath("z:\\"), "/");
  EXPECT_EQ(NativePath(WindowsPath("x.vbp")), fs::current_path() / "x.vbp");
}

}  // namespace
}  // namespace corvane::environment
