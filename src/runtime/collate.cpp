#include "runtime/collate.h"

#include <algorithm>

#include "runtime/code_page.h"

namespace corvane::runtime {

namespace {

// The symbols of ASCII in the order of a Western locale: "." stands before ":", both before digits.
constexpr std::string_view kSymbols = "_-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";

int Weight(unsigned char byte) {
  if (byte == ' ' || byte == '\t') return 1;
  if (byte == '.') return 10;
  if (byte >= '0' && byte <= '9') return 300 + byte;
  if (byte == '_') return 60;
  if (size_t at = kSymbols.find(static_cast<char>(byte)); at != std::string_view::npos) return 20 + static_cast<int>(at);
  if (byte < 0x80 && !AnsiCodePage().IsWordByte(byte)) return 2;
  return (AnsiCodePage().IsWordByte(byte) ? 1000 : 100) + AnsiCodePage().Upper(byte);
}

}  // namespace

int CompareAsListed(std::string_view left, std::string_view right) {
  size_t shared = std::min(left.size(), right.size());
  for (size_t i = 0; i < shared; ++i) {
    if (left[i] == right[i]) continue;
    if (int difference = Weight(static_cast<unsigned char>(left[i])) - Weight(static_cast<unsigned char>(right[i])))
      return difference;
  }
  return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

}  // namespace corvane::runtime
