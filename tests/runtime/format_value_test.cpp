#include "runtime/format_value.h"

#include <gtest/gtest.h>

namespace corvane::runtime {
namespace {

TEST(FormatValue, WritesNumbersDatesAndTexts) {
  const struct {
    const char* value;
    const char* picture;
    const char* text;
  } cases[] = {
      {"5", "000", "005"},
      {"1234", "000", "1234"},
      {"1234.5", "#,##0.00", "1,234.50"},
      {"1234567", "#,##0", "1,234,567"},
      {"123", "#,##0", "123"},
      {"0", "#", ""},
      {"0", "0.##", "0."},
      {"1.5", "0.##", "1.5"},
      {"1.25", "0.#0", "1.25"},
      {"0.256", "0.0%", "25.6%"},
      {"-5", "0", "-5"},
      {"-5", "0;(0)", "(5)"},
      {"0", "0;(0);none", "none"},
      {"-0.001", "0.00", "0.00"},
      {"12345", "0.00E+00", "1.23E+04"},
      {"0.00012", "0.0E+0", "1.2E-4"},
      {"5551234", "000-0000", "555-1234"},
      {"5", "\"No.\" 0", "No. 5"},
      {"5", "\\0\\:0", "0:5"},
      {"1234.5", "Currency", "$1,234.50"},
      {"-1234.5", "Currency", "($1,234.50)"},
      {"1234.567", "Fixed", "1234.57"},
      {"1234.567", "standard", "1,234.57"},
      {"0.5", "Percent", "50.00%"},
      {"0", "Yes/No", "No"},
      {"7", "True/False", "True"},
      {"1.50", "General Number", "1.5"},
      {"2/14/2026", "dd.mm.yyyy", "14.02.2026"},
      {"36526", "yyyy-mm-dd", "2000-01-01"},
      {"2/14/2026", "Short Date", "2/14/2026"},
      {"text", "dd.mm.yyyy", "text"},
      {"text", "0000", "text"},
      {"text", "", "text"},
      {"12", "@@@@", "  12"},
      {"12", "!@@@@", "12  "},
      {"12", "&&&&", "12"},
      {"12345", "@-@@", "123-45"},
      {"AbC", "<", "abc"},
      {"AbC", ">", "ABC"},
      {"5", "\"open", "open"},
      {"", "0", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatValue(c.value, c.picture), c.text) << c.value << " as " << c.picture;
}

}  // namespace
}  // namespace corvane::runtime
