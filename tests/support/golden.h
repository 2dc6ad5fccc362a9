// Goldens: texts that lie beside their test. `EXPECT_TRUE(MatchesGolden(LayoutText(form), "explorer/frmAddIn.layout"))`
// compares with tests/explorer/frmAddIn.layout. A text that differs, or has no golden yet, is written beside it with
// ".new" behind its name, and the test fails; scripts/promote-goldens makes it the golden.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::tests {

namespace golden {

inline std::optional<std::string> ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

// "line 3: expected <a>, is <b>" for the first line that differs.
inline std::string FirstDifference(std::string_view expected, std::string_view actual) {
  for (int line = 1;; ++line) {
    const auto wanted = expected.substr(0, expected.find('\n')), found = actual.substr(0, actual.find('\n'));
    const bool last = wanted.size() == expected.size() || found.size() == actual.size();
    if (wanted != found || last) {
      return "line " + std::to_string(line) + ": expected <" + std::string(wanted) + ">, is <" + std::string(found) +
             ">" + (wanted == found ? ", and the rest of one is missing" : "");
    }
    expected.remove_prefix(wanted.size() + 1);
    actual.remove_prefix(found.size() + 1);
  }
}

}  // namespace golden

inline testing::AssertionResult MatchesGoldenAt(const std::filesystem::path& path, std::string_view actual) {
  const std::filesystem::path proposed = path.string() + ".new";
  const std::optional<std::string> expected = golden::ReadFile(path);
  if (expected && *expected == actual) {
    std::error_code ignored;
    std::filesystem::remove(proposed, ignored);
    return testing::AssertionSuccess();
  }
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  std::ofstream file(proposed, std::ios::binary);
  file << actual;
  const std::string written = file.flush() ? "; the new text is in " + proposed.string() : "; it could not be written";
  if (!expected) return testing::AssertionFailure() << "there is no golden " << path.string() << written;
  return testing::AssertionFailure() << path.string() << " differs, " << golden::FirstDifference(*expected, actual)
                                     << written;
}

// [name] is a path below tests/.
inline testing::AssertionResult MatchesGolden(std::string_view actual, const std::string& name) {
  return MatchesGoldenAt(std::filesystem::path(CORVANE_SOURCE_DIR) / "tests" / name, actual);
}

}  // namespace corvane::tests
