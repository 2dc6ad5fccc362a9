#include "cli/headless_list.h"

namespace corvane::cli {

std::string WithCrLf(const std::string& text) {
  std::string result;
  result.reserve(text.size() + text.size() / 16);
  for (size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n' && (at == 0 || text[at - 1] != '\r')) result += '\r';
    result += text[at];
  }
  return result;
}

}  // namespace corvane::cli
