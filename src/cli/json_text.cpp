#include "cli/json_text.h"

#include <cstdio>

#include "runtime/code_page.h"

namespace corvane::cli {

std::string JsonText(std::string_view bytes) {
  std::string json = "\"";
  for (const char c : runtime::AnsiCodePage().ToUtf8(bytes)) {
    if (c == '"' || c == '\\') {
      (json += '\\') += c;
    } else if (static_cast<unsigned char>(c) < ' ') {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      json += escape;
    } else {
      json += c;
    }
  }
  return json += '"';
}

}  // namespace corvane::cli
