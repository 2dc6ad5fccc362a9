#include "forms/sent_keys.h"

#include <gtest/gtest.h>

#include "forms/types.h"
#include "runtime/code_page.h"
#include "tests/forms/error_number.h"

namespace corvane::forms {
namespace {

TEST(SentKeys, NamedKeysHaveCodesAndCharactersHaveNone) {
  struct Case {
    const char* text;
    std::vector<SentKey> keys;
  };
  const Case cases[] = {
      {"", {}},
      {"aB", {{0, "a", 0}, {0, "B", 0}}},
      {"~", {{13, "", 0}}},
      {"{home}", {{36, "", 0}}},
      {"{BREAK}{F1}{F16}", {{3, "", 0}, {112, "", 0}, {127, "", 0}}},
      {"{LEFT 2}", {{37, "", 0}, {37, "", 0}}},
      {"{x 2}", {{0, "x", 0}, {0, "x", 0}}},
      {"{x 0}", {}},
      {"^+{END}", {{35, "", vbCtrlMask | vbShiftMask}}},
      {"%(fs)x", {{0, "f", vbAltMask}, {0, "s", vbAltMask}, {0, "x", 0}}},
      {"{}}{{}{~}{ }", {{0, "}", 0}, {0, "{", 0}, {0, "~", 0}, {0, " ", 0}}},
  };
  for (const Case& each : cases) EXPECT_EQ(ParseSentKeys(each.text), each.keys) << each.text;
}

TEST(SentKeys, ACharacterOfTwoBytesIsOneKey) {
  runtime::SetAnsiCodePage(932);
  EXPECT_EQ(ParseSentKeys("\x95\x7D{\x95\x5C 2}"),
            (std::vector<SentKey>{{0, "\x95\x7D"}, {0, "\x95\x5C"}, {0, "\x95\x5C"}}));
  runtime::SetAnsiCodePage(1252);
}

TEST(SentKeys, BadSyntaxIsError5) {
  for (const char* text : {"{NOKEY}", "(ab", ")", "}", "{", "{}", "{LEFT -1}", "{LEFT 1001}", "^", "{F17}", "{F0}"})
    EXPECT_EQ(NumberOf([&] { ParseSentKeys(text); }), 5) << text;
}

}  // namespace
}  // namespace corvane::forms
