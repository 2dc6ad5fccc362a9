#include "cli/format_command.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>
#include <vector>

#include "environment/disk_files.h"
#include "environment/memory_files.h"
#include "tests/support/golden.h"
#include "tests/support/program.h"

namespace corvane::cli {
namespace {

using testing::HasSubstr;

class FormatCommand : public ::testing::Test {
 protected:
  FormatCommand() {
    files_.Put("Z:\\p\\P.vbp", "Type=Exe\r\nModule=Main; Main.bas\r\nClass=Item; sub\\Item.cls\r\n");
    files_.Put("Z:\\p\\Main.bas", kHead + "Do\r\n    x = \"\xE4\"\r\nLoop\r\n");
    files_.Put("Z:\\p\\sub\\Item.cls", kTidy);
  }
  int Run(const std::string& path, bool check = false, bool write = false) {
    out_.str("");
    errors_.str("");
    return RunFormatCommand(path, {1252, check, write}, files_, out_, errors_);
  }
  std::string BytesOf(const std::string& path) { return files_.Read(path); }

  const std::string kHead = "Attribute VB_Name = \"Main\"\r\n";
  const std::string kTidy =
      "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1\r\nEND\r\nAttribute VB_Name = \"Item\"\r\nPublic a\r\n";
  environment::MemoryFiles files_;
  std::ostringstream out_, errors_;
};

TEST_F(FormatCommand, PutsTheFormattedModuleOut) {
  EXPECT_EQ(Run("/p/Main.bas"), 0);
  EXPECT_EQ(out_.str(), kHead + "Do\r\n  x = \"\xE4\"\r\nLoop\r\n") << "its bytes, not a word of another code page";
  EXPECT_EQ(files_.writes, 0);
}

TEST_F(FormatCommand, CheckTellsWhatWouldChangeAndEndsWithOne) {
  EXPECT_EQ(Run("/p/Main.bas", true), 1);
  EXPECT_EQ(out_.str(), "/p/Main.bas: 1 line to indent\n");
  EXPECT_EQ(Run("/p/P.vbp", true), 1);
  EXPECT_EQ(out_.str(), "Main.bas: 1 line to indent\n");
  EXPECT_EQ(Run("/p/sub/Item.cls", true), 0);
  EXPECT_EQ(out_.str(), "");
  EXPECT_EQ(files_.writes, 0);
}

TEST_F(FormatCommand, WriteChangesWhatHasToChangeAndNothingElse) {
  EXPECT_EQ(Run("/p/P.vbp", false, true), 0);
  EXPECT_EQ(out_.str(), "Main.bas: 1 line indented\n");
  EXPECT_EQ(BytesOf("Z:\\p\\Main.bas"), kHead + "Do\r\n  x = \"\xE4\"\r\nLoop\r\n");
  EXPECT_EQ(files_.writes, 1) << "neither the tidy class nor the project";
  EXPECT_EQ(Run("/p/P.vbp", true), 0) << "nothing is left to change";
  EXPECT_EQ(Run("/p/P.vbp", false, true), 0);
  EXPECT_EQ(files_.writes, 1);
}

TEST_F(FormatCommand, OfAProjectItShowsTheDifference) {
  EXPECT_EQ(Run("/p/P.vbp"), 0);
  EXPECT_THAT(out_.str(), HasSubstr("--- Main.bas\n+++ Main.bas\n"));
  EXPECT_THAT(out_.str(), HasSubstr("\n-    x = \"\xC3\xA4\"\r\n+  x = \"\xC3\xA4\"\r\n"));
  EXPECT_THAT(out_.str(), testing::Not(HasSubstr("Item")));
}

TEST_F(FormatCommand, AModuleThatProjectsShareIsFormattedOnce) {
  files_.Put("Z:\\p\\Q.vbp", "Type=Exe\r\nModule=Main; MAIN.BAS\r\n");
  files_.Put("Z:\\p\\G.vbg", "VBGROUP 5.0\r\nStartupProject=P.vbp\r\nProject=Q.vbp\r\n");
  EXPECT_EQ(Run("/p/G.vbg", true), 1);
  EXPECT_EQ(out_.str(), "Main.bas: 1 line to indent\n");
}

TEST_F(FormatCommand, AFileThatIsNotThereOrNoProjectIsTold) {
  EXPECT_EQ(Run("/p/None.bas"), 1);
  EXPECT_THAT(errors_.str(), testing::StartsWith("/p/None.bas: "));
  files_.Put("Z:\\p\\Bad.vbp", "nothing\r\n");
  EXPECT_EQ(Run("/p/Bad.vbp"), 1);
  EXPECT_THAT(errors_.str(), HasSubstr("/p/Bad.vbp"));
}

TEST_F(FormatCommand, WhatIsNoModuleStaysAsItIs) {
  files_.Put("Z:\\p\\a.frx", std::string("Do\n   x\0", 8));
  files_.Put("Z:\\p\\a.sql", "begin\n'a\n   b'\n");
  for (const char* path : {"/p/a.frx", "/p/a.sql"}) {
    EXPECT_EQ(Run(path, false, true), 1) << path;
    EXPECT_THAT(errors_.str(), testing::StartsWith(path));
  }
  EXPECT_EQ(files_.writes, 0);
}

TEST_F(FormatCommand, AModuleWithTheMarksOfAConflictStaysAsItIs) {
  files_.Put("Z:\\p\\Main.bas", kHead + "Do\r\n<<<<<<< ours\r\n      x\r\n=======\r\ny\r\n>>>>>>> theirs\r\nLoop\r\n");
  for (const char* path : {"/p/Main.bas", "/p/P.vbp"}) {
    EXPECT_EQ(Run(path, false, true), 1) << path;
    EXPECT_THAT(errors_.str(), HasSubstr("conflict mark")) << path;
  }
  EXPECT_EQ(files_.writes, 0);
}

TEST_F(FormatCommand, TheRestOfAProjectIsFormattedWhereAModuleIsMissing) {
  files_.Put("Z:\\p\\P.vbp", "Type=Exe\r\nModule=Gone; Gone.bas\r\nModule=Main; Main.bas\r\n");
  EXPECT_EQ(Run("/p/P.vbp", false, true), 1);
  EXPECT_THAT(errors_.str(), HasSubstr("Gone.bas"));
  EXPECT_EQ(out_.str(), "Main.bas: 1 line indented\n");
}

TEST_F(FormatCommand, AFileThatCannotBeWrittenIsToldAndStaysAsItIs) {
  files_.Put("Z:\\p\\sub\\Item.cls", kTidy + "Do\r\nx\r\n");
  files_.FailWrites("Z:\\p\\Main.bas", 70);
  const std::string before = BytesOf("Z:\\p\\Main.bas");
  EXPECT_EQ(Run("/p/P.vbp", false, true), 1);
  EXPECT_EQ(BytesOf("Z:\\p\\Main.bas"), before);
  EXPECT_THAT(errors_.str(), testing::StartsWith("Main.bas: "));
  EXPECT_EQ(out_.str(), "sub/Item.cls: 1 line indented\n") << "the others are written";
}

// Files on the disk, all of one folder, by their names.
using Bytes = std::map<std::string, std::string>;

Bytes BytesBelow(const std::filesystem::path& folder) {
  Bytes bytes;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    if (entry.is_regular_file())
      bytes[entry.path().lexically_relative(folder)] = tests::golden::ReadFile(entry.path()).value();
  return bytes;
}

// Without the blanks and tabs at the starts of its lines.
std::string WithoutIndents(const std::string& text) {
  return std::regex_replace(text, std::regex("(^|\n)[ \t]+"), "$1");
}

// Every project and group of the samples.
std::vector<std::string> SampleProjects() {
  const std::filesystem::path samples = CORVANE_SOURCE_DIR "/samples";
  std::vector<std::string> projects;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(samples))
    if (entry.path().extension() == ".vbp" || entry.path().extension() == ".vbg")
      projects.push_back(entry.path().lexically_relative(samples));
  std::sort(projects.begin(), projects.end());
  return projects;
}

class FormatSample : public testing::TestWithParam<std::string> {};

TEST_P(FormatSample, ChangesNothingButLeadingBlanksAndASecondTimeNothing) {
  const tests::TemporaryFolder folder;
  const auto sample = std::filesystem::path(CORVANE_SOURCE_DIR) / "samples" / GetParam();
  std::filesystem::copy(sample.parent_path(), folder.Path(), std::filesystem::copy_options::recursive);
  const std::string project = folder / sample.filename();
  const auto run = [&](FormatOptions options) {
    std::ostringstream out, errors;
    RunFormatCommand(project, options, *environment::NewDiskFiles(), out, errors);
    return out.str();
  };
  const Bytes before = BytesBelow(folder.Path());
  const std::string told = run({0, true, false});
  EXPECT_EQ(BytesBelow(folder.Path()), before) << "a check writes nothing";
  run({0, false, true});
  const Bytes after = BytesBelow(folder.Path());
  ASSERT_EQ(after.size(), before.size());
  for (const auto& [name, bytes] : before) {
    EXPECT_EQ(WithoutIndents(after.at(name)), WithoutIndents(bytes)) << name;
    if (told.find(name + ": ") == std::string::npos) {
      EXPECT_EQ(after.at(name), bytes) << name << " was not to be changed";
    } else {
      EXPECT_NE(after.at(name), bytes) << name;
    }
  }
  EXPECT_EQ(run({0, true, false}), "");
  run({0, false, true});
  EXPECT_EQ(BytesBelow(folder.Path()), after);
}

INSTANTIATE_TEST_SUITE_P(Projects, FormatSample, testing::ValuesIn(SampleProjects()));

}  // namespace
}  // namespace corvane::cli
