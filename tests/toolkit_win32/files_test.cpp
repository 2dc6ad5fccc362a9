// host::Files on Windows.
#include "toolkit_win32/files.h"

#include <gtest/gtest.h>

#include "runtime/code_page.h"
#include "tests/toolkit_win32/scratch_folder.h"
#include "toolkit_win32/file_names.h"

namespace corvane::toolkit_win32 {
namespace {

template <class Act>
long NumberOf(Act&& act) {
  try {
    act();
  } catch (const runtime::Error& error) {
    return error.Number();
  }
  return 0;
}

class FilesTest : public testing::Test {
 protected:
  ScratchFolder folder;
  std::unique_ptr<host::Files> files = NewFiles();
};

TEST_F(FilesTest, AFileIsReadByteForByte) {
  const std::string bytes("a\r\nb\n\x1A\0\xFF", 8);
  folder.Put(L"a.bas", bytes);
  folder.Put(L"empty.bas", "");
  EXPECT_EQ(files->Read(folder.Path("A.BAS")), bytes);
  EXPECT_EQ(files->Read(folder.Path("empty.bas")), "");
}

TEST_F(FilesTest, WhatCannotBeReadHasItsNumber) {
  CreateDirectoryW(folder.Wide(L"sub").c_str(), nullptr);
  const struct {
    std::string path;
    long number;
  } cases[] = {
      {folder.Path("none.bas"), 53},      {folder.Path("none\\none.bas"), 76}, {folder.Path("sub"), 75},
      {"Q:\\none\\none.bas", 76},         {folder.Path("a?b*.bas"), 53},       {"", 76},
      {"\\\\no-such-host\\share\\f", 76},
  };
  for (const auto& each : cases) EXPECT_EQ(NumberOf([&] { files->Read(each.path); }), each.number) << each.path;
}

TEST_F(FilesTest, AFileThatAnotherProgramKeepsForItselfIsError70) {
  folder.Put(L"kept.bas", "old");
  const HANDLE kept = CreateFileW(folder.Wide(L"kept.bas").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(NumberOf([&] { files->Read(folder.Path("kept.bas")); }), 70);
  EXPECT_EQ(NumberOf([&] { files->Write(folder.Path("kept.bas"), "new"); }), 70);
  CloseHandle(kept);
  EXPECT_EQ(folder.Bytes(L"kept.bas"), "old");
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(FilesTest, AFileIsMadeAndReplacedAsAWhole) {
  const std::string large(3000000, 'x');
  files->Write(folder.Path("new.bas"), "one");
  EXPECT_EQ(folder.Bytes(L"new.bas"), "one");
  files->Write(folder.Path("NEW.bas"), large);
  EXPECT_EQ(folder.Bytes(L"new.bas"), large);
  files->Write(folder.Path("new.bas"), "");
  EXPECT_EQ(folder.Bytes(L"new.bas"), "");
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(FilesTest, AReadOnlyFileStaysAsItWas) {
  folder.Put(L"fixed.bas", "old");
  SetFileAttributesW(folder.Wide(L"fixed.bas").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(NumberOf([&] { files->Write(folder.Path("fixed.bas"), "new"); }), 70);
  EXPECT_EQ(folder.Bytes(L"fixed.bas"), "old");
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(FilesTest, WhatCannotBeWrittenHasItsNumber) {
  CreateDirectoryW(folder.Wide(L"sub").c_str(), nullptr);
  EXPECT_EQ(NumberOf([&] { files->Write(folder.Path("none\\a.bas"), "x"); }), 76);
  EXPECT_EQ(NumberOf([&] { files->Write(folder.Path("sub"), "x"); }), 75);
  EXPECT_EQ(NumberOf([&] { files->Write("Q:\\a.bas", "x"); }), 76);
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(FilesTest, AttributesTellReadOnlyFoldersAndWhatIsMissing) {
  folder.Put(L"a.bas", "x");
  EXPECT_EQ(files->Attributes(folder.Path("a.bas")) & host::kReadOnly, 0u);
  SetFileAttributesW(folder.Wide(L"a.bas").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(files->Attributes(folder.Path("a.bas")) & host::kReadOnly, 1u);
  EXPECT_NE(files->Attributes(folder.Path("")) & host::kDirectory, 0u);
  EXPECT_EQ(files->Attributes(folder.Path("none")), host::kNoSuchFile);
}

TEST_F(FilesTest, AStampTellsAnotherFileFromTheOneThatWasRead) {
  folder.Put(L"a.bas", "one");
  const host::FileStamp before = files->Stamp(folder.Path("a.bas"));
  EXPECT_EQ(before.size, 3);
  EXPECT_EQ(files->Stamp(folder.Path("a.bas")), before);
  Sleep(20);
  folder.Put(L"a.bas", "two");
  EXPECT_NE(files->Stamp(folder.Path("a.bas")), before);
  EXPECT_EQ(files->Stamp(folder.Path("none.bas")).size, -1);
}

TEST_F(FilesTest, TheFilesOfAFolderAreListedByPattern) {
  for (const wchar_t* name : {L"b.bas", L"a.BAS", L"c.bas2", L"d.frm", L"plain", L"x.y.bas"}) folder.Put(name, "");
  CreateDirectoryW(folder.Wide(L"sub.bas").c_str(), nullptr);
  using Names = std::vector<std::string>;
  EXPECT_EQ(files->List(folder.Path(""), "*.bas"), (Names{"a.BAS", "b.bas", "x.y.bas"}));
  EXPECT_EQ(files->List(folder.Path(""), "?.*"), (Names{"a.BAS", "b.bas", "c.bas2", "d.frm", "x.y.bas"}));
  EXPECT_EQ(files->List(folder.Path(""), "*.*").size(), 6u);
  EXPECT_EQ(files->List(folder.Path(""), "*").size(), 6u);
  EXPECT_EQ(files->List(folder.Path(""), "*a*.*a*").size(), 1u);
  EXPECT_EQ(files->List(folder.Path("none"), "*"), Names{});
}

TEST_F(FilesTest, NamesOfTheCodePageAreUnicodeOnTheDisk) {
  files->Write(folder.Path("M\xF3"
                           "dulo.bas"),
               "x");
  EXPECT_EQ(folder.Bytes(L"M\u00F3dulo.bas"), "x");
  EXPECT_EQ(files->Read(folder.Path("M\xD3"
                                    "DULO.BAS")),
            "x");
  EXPECT_EQ(files->List(folder.Path(""), "m\xF3*.bas"), std::vector<std::string>{"M\xF3"
                                                                                 "dulo.bas"});
}

TEST_F(FilesTest, NamesOutsideTheCodePageAreFoundAgain) {
  const std::wstring name = L"\u041F\u0440\u043E\u0435\u043A\u0442.bas";
  folder.Put(name, "x");
  const std::vector<std::string> names = files->List(folder.Path(""), "*.bas");
  ASSERT_EQ(names.size(), 1u);
  EXPECT_EQ(files->Read(folder.Path(names[0])), "x");
  files->Write(folder.Path(names[0]), "new");
  EXPECT_EQ(folder.Bytes(name), "new");
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(FilesTest, AFolderOutsideTheCodePageTakesNamesOfIt) {
  const ScratchFolder strange(L"\u65B0\u3057\u3044");
  const std::string path = PathFromSystem(strange.Wide());
  files->Write(path + "\\caf\xE9.bas", "x");
  EXPECT_EQ(strange.Bytes(L"caf\u00E9.bas"), "x");
  EXPECT_EQ(files->List(path, "*.bas"), std::vector<std::string>{"caf\xE9.bas"});
  EXPECT_EQ(PathFromSystem(PathForSystem(path)), path);
}

TEST_F(FilesTest, ASecondByteThatLooksLikeABackslashIsNone) {
  runtime::SetAnsiCodePage(932);
  folder.Put(L"\u8868.frm", "x");  // 95 5C in code page 932
  EXPECT_EQ(files->Read(folder.Path("\x95\x5C.frm")), "x");
  runtime::SetAnsiCodePage(1252);
}

TEST_F(FilesTest, AFileIsWrittenWhereItWasReadWhateverThePageByThen) {
  folder.Put(L"M\u00F3.bas", "old");
  const std::string path = folder.Path("M\xF3.bas");
  EXPECT_EQ(files->Read(path), "old");
  runtime::SetAnsiCodePage(1251);
  files->Write(path, "new");
  runtime::SetAnsiCodePage(1252);
  EXPECT_EQ(folder.Bytes(L"M\u00F3.bas"), "new");
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(FilesTest, PathsMayBeLong) {
  std::wstring deep = L"\\\\?\\" + folder.Wide();
  std::string path = folder.Path("");
  for (int level = 0; level < 4; ++level) {
    deep += L"\\" + std::wstring(80, L'd');
    path += std::string(80, 'd') + "\\";
    CreateDirectoryW(deep.c_str(), nullptr);
  }
  files->Write(path + "a.bas", "x");
  EXPECT_EQ(files->Read(path + "a.bas"), "x");
  EXPECT_EQ(files->List(path, "*.bas"), std::vector<std::string>{"a.bas"});
  DeleteFileW((deep + L"\\a.bas").c_str());
  for (int level = 0; level < 4; ++level) {
    RemoveDirectoryW(deep.c_str());
    deep.resize(deep.size() - 81);
  }
}

}  // namespace
}  // namespace corvane::toolkit_win32
