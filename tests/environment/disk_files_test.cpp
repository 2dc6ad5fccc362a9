#include "environment/disk_files.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/code_page.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

namespace fs = std::filesystem;

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

TEST_F(DiskFilesTest, ASecondByteThatLooksLikeABackslashIsNone) {
  runtime::SetAnsiCodePage(932);
  Put("\xE8\xA1\xA8.frm", "x");  // 95 5C in code page 932
  EXPECT_EQ(files_->Read(Path("\x95\x5C.frm")), "x");
  runtime::SetAnsiCodePage(1252);
}

TEST_F(DiskFilesTest, SaysWhyAFileCannotBeRead) {
  Put("a.bas", "x");
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("none.bas")); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("none\\a.bas")); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_->Read(Path("")); }), 75);
  EXPECT_EQ(ErrorOf([&] { files_->Read("\\\\server\\share\\a.bas"); }), 76);
  EXPECT_EQ(ErrorOf([&] { files_->Read("Q:\\a.bas"); }), 76);
}

TEST_F(DiskFilesTest, WritesAFileAsAWholeAndLeavesNothingElse) {
  Put("a.bas", "old");
  ::chmod((folder_ / "a.bas").c_str(), 0640);
  files_->Write(Path("A.BAS"), "new");
  EXPECT_EQ(Disk("a.bas"), "new");
  EXPECT_EQ(Entries(), 1u);
  EXPECT_EQ(fs::status(folder_ / "a.bas").permissions(), fs::perms(0640));
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
  if (::geteuid() == 0) return;  // root may write everywhere
  Put("a.bas", "old");
  ::chmod((folder_ / "a.bas").c_str(), 0440);
  EXPECT_EQ(ErrorOf([&] { files_->Write(Path("a.bas"), "new"); }), 70);
  fs::permissions(folder_, fs::perms(0500));
  ::chmod((folder_ / "a.bas").c_str(), 0640);
  EXPECT_EQ(ErrorOf([&] { files_->Write(Path("a.bas"), "new"); }), 70);
  EXPECT_EQ(Disk("a.bas"), "old");
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
