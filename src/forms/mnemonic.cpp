#include "forms/mnemonic.h"

#include "runtime/strings.h"

namespace corvane::forms {

int AccessKeyOf(std::string_view caption) {
  for (size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != '&') continue;
    if (caption[at + 1] != '&') return static_cast<unsigned char>(runtime::UCase(caption.substr(at + 1, 1))[0]);
    ++at;
  }
  return 0;
}

std::string WithoutMnemonic(std::string_view caption) {
  std::string text;
  for (size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && at + 1 < caption.size()) ++at;
    text += caption[at];
  }
  return text;
}

}  // namespace corvane::forms
