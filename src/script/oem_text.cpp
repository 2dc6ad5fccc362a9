#include "script/oem_text.h"

#include "runtime/code_page.h"
#include "runtime/code_page_tables.h"

namespace corvane::script {

namespace {

struct Pair {
  int ansi, oem;
};
constexpr Pair kPages[] = {{1250, 852}, {1251, 866}, {1252, 437}, {1253, 737}, {1254, 857},
                           {1255, 862}, {1256, 720}, {1257, 775}, {1258, 1258}};

int OemPage(int ansi) {
  for (const Pair& pair : kPages)
    if (pair.ansi == ansi) return pair.oem;
  return ansi;  // the pages of two-byte characters serve both
}

}  // namespace

std::string OemToChar(std::string_view bytes) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  std::string utf8;
  runtime::AppendAsUtf8(OemPage(page.Number()), bytes, utf8);
  return page.FromUtf8(utf8);
}

}  // namespace corvane::script
