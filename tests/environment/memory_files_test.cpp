#include "environment/memory_files.h"

#include <gtest/gtest.h>

#include "environment/wildcard.h"
#include "tests/support/fake_services.h"

namespace corvane::environment {
namespace {

long NumberOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const runtime::Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(MemoryFiles, FindsAPathInAnyCase) {
  MemoryFiles files;
  files.Put("C:\\Test\\Main.bas", "x");
  EXPECT_EQ(files.Read("c:\\test\\MAIN.BAS"), "x");
  EXPECT_EQ(NumberOf([&] { files.Read("C:\\Test\\Other.bas"); }), 53);
}

TEST(MemoryFiles, WritingChangesTheStampAndKeepsTheSpelling) {
  MemoryFiles files;
  files.Put("C:\\Main.bas", "x");
  host::FileStamp before = files.Stamp("C:\\Main.bas");
  files.Write("C:\\MAIN.BAS", "y");
  EXPECT_NE(files.Stamp("C:\\Main.bas"), before);
  EXPECT_EQ(files.List("C:", "*.bas"), std::vector<std::string>{"Main.bas"});
  EXPECT_EQ(files.writes, 1);
}

TEST(MemoryFiles, AFailedWriteLeavesTheOldBytes) {
  MemoryFiles files;
  files.Put("C:\\Main.bas", "old");
  files.FailWrites("C:\\Main.bas", runtime::kDiskFull);
  EXPECT_EQ(NumberOf([&] { files.Write("C:\\Main.bas", "new"); }), 61);
  EXPECT_EQ(files.Read("C:\\Main.bas"), "old");
}

TEST(MemoryFiles, AFolderIsNoFile) {
  MemoryFiles files;
  files.MakeFolder("C:\\Test");
  EXPECT_EQ(files.Attributes("C:\\Test\\"), host::kDirectory);
  EXPECT_EQ(files.Attributes("C:\\Other"), host::kNoSuchFile);
  EXPECT_EQ(NumberOf([&] { files.Read("C:\\Test"); }), 75);
}

TEST(MemoryFiles, ListsTheFilesOfOneFolderThatFit) {
  MemoryFiles files;
  for (const char* path : {"C:\\a\\B.txt", "C:\\a\\A.TXT", "C:\\a\\c.ico", "C:\\a\\deep\\d.txt", "C:\\ab.txt"})
    files.Put(path, "");
  EXPECT_EQ(files.List("C:\\a", "*.txt"), (std::vector<std::string>{"A.TXT", "B.txt"}));
}

TEST(Wildcard, FitsAsDirDoes) {
  struct Case {
    const char *name, *pattern;
    bool fits;
  };
  for (const Case& c : {Case{"a.bas", "*.bas", true}, Case{"A.BAS", "*.bas", true}, Case{"a.bas2", "*.bas", false},
                        Case{"noext", "*.*", true}, Case{"ab", "a?", true}, Case{"a", "a?", false},
                        Case{"xaaab", "*aab", true}, Case{"", "*", true}, Case{"x", "", false}})
    EXPECT_EQ(FitsWildcard(c.name, c.pattern), c.fits) << c.name << " against " << c.pattern;
}

TEST(FakeServices, AnswerFromTheirScriptAndRecord) {
  tests::FakeServices fake;
  fake.prompts.answers = {host::vbNo};
  host::Services& services = fake;
  EXPECT_EQ(services.Prompts.MsgBox("Sure?", host::vbYesNo), host::vbNo);
  EXPECT_EQ(services.Prompts.MsgBox("Again?", host::vbYesNo + host::vbDefaultButton2), host::vbNo);
  EXPECT_EQ(services.Prompts.MsgBox("Done"), host::vbOK);
  EXPECT_EQ(fake.prompts.Texts(), (std::vector<std::string>{"Sure?", "Again?", "Done"}));
  services.Settings.SaveSetting("Corvane", "Settings", "Key", "1");
  EXPECT_EQ(services.Settings.GetSetting("corvane", "settings", "KEY", "0"), "1");
  EXPECT_EQ(NumberOf([&] { services.Pictures.LoadPicture("C:\\none.bmp"); }), 53);
  fake.files.Put("C:\\text.bmp", "text");
  EXPECT_EQ(NumberOf([&] { services.Pictures.LoadPicture("C:\\text.bmp"); }), 481);
}

}  // namespace
}  // namespace corvane::environment
