// What scripts ask of Windows.
#include "com/script_machine.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

#include "com/com_api.h"
#include "com/texts.h"
#include "runtime/dates.h"

namespace corvane::com {
namespace {

class ScriptMachineTest : public testing::Test {
 protected:
  static std::string TemporaryFile() {
    wchar_t folder[MAX_PATH + 1], name[MAX_PATH + 1];
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"scr", 0, name);
    return ToAnsi(name);
  }
  static bool IsThere(const std::string& file) {
    return GetFileAttributesW(ToWide(file).c_str()) != INVALID_FILE_ATTRIBUTES;
  }
  long ErrorOfKill(const std::string& file) {
    try {
      machine_.Kill(file);
    } catch (const runtime::Error& error) {
      return error.Number();
    }
    return 0;
  }

  ScriptMachine machine_;
};

TEST_F(ScriptMachineTest, KillDeletesAFile) {
  const std::string file = TemporaryFile();
  ASSERT_TRUE(IsThere(file));
  EXPECT_EQ(ErrorOfKill(file), 0);
  EXPECT_FALSE(IsThere(file));
}

TEST_F(ScriptMachineTest, KillOfWhatIsNoFileIsError53) {
  EXPECT_EQ(ErrorOfKill("C:\\no such file.txt"), 53);
  EXPECT_EQ(ErrorOfKill("C:\\no such folder\\file.txt"), 53);
  EXPECT_EQ(ErrorOfKill("C:\\windows"), 53);
}

TEST_F(ScriptMachineTest, KillOfAProtectedFileIsError75) {
  const std::string file = TemporaryFile();
  SetFileAttributesW(ToWide(file).c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ErrorOfKill(file), 75);
  EXPECT_TRUE(IsThere(file));
  SetFileAttributesW(ToWide(file).c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(ErrorOfKill(file), 0);
}

TEST_F(ScriptMachineTest, KillOfAFileInUseIsError70) {
  const std::string file = TemporaryFile();
  const HANDLE open = CreateFileW(ToWide(file).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(ErrorOfKill(file), 70);
  CloseHandle(open);
  EXPECT_EQ(ErrorOfKill(file), 0);
}

TEST_F(ScriptMachineTest, ShellAnswersWithTheNumberOfTheProcess) {
  const auto number = static_cast<DWORD>(machine_.Shell("cmd.exe /c ping -n 2 127.0.0.1 & exit 7"));
  const HANDLE process = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, number);
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(WaitForSingleObject(process, 60000), WAIT_OBJECT_0);
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  CloseHandle(process);
  EXPECT_EQ(code, 7u);
}

TEST_F(ScriptMachineTest, ShellOfAProgramThatIsNotThereIsError53) {
  try {
    machine_.Shell("C:\\no such program.exe");
    ADD_FAILURE();
  } catch (const runtime::Error& error) {
    EXPECT_EQ(error.Number(), 53);
  }
}

TEST_F(ScriptMachineTest, OpenOfWhatIsNotThereIsNotTold) {
  EXPECT_NO_THROW(machine_.Open("C:\\no such file.nosuchkind"));
}

TEST_F(ScriptMachineTest, NowIsTheLocalTime) {
  SYSTEMTIME system;
  GetLocalTime(&system);
  const runtime::DateParts now = runtime::PartsOf(machine_.Now());
  const double since_midnight = system.wHour * 3600.0 + system.wMinute * 60.0 + system.wSecond;
  const double told = now.hour * 3600.0 + now.minute * 60.0 + now.second;
  if (since_midnight > 86390) GTEST_SKIP() << "around midnight";
  EXPECT_EQ(now.year, system.wYear);
  EXPECT_EQ(now.month, system.wMonth);
  EXPECT_EQ(now.day, system.wDay);
  EXPECT_LE(std::fabs(told - since_midnight), 5.0);
}

}  // namespace
}  // namespace corvane::com
