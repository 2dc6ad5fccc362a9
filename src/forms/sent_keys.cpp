#include "forms/sent_keys.h"

#include "forms/types.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::forms {

namespace {

struct NamedKey {
  std::string_view name;
  int code;
};

constexpr NamedKey kNamedKeys[] = {
    {"BACKSPACE", vbKeyBack}, {"BS", vbKeyBack},       {"BKSP", vbKeyBack},   {"BREAK", 3},
    {"CAPSLOCK", 20},         {"DELETE", vbKeyDelete}, {"DEL", vbKeyDelete},  {"DOWN", vbKeyDown},
    {"END", vbKeyEnd},        {"ENTER", vbKeyReturn},  {"ESC", vbKeyEscape},  {"HELP", 47},
    {"HOME", vbKeyHome},      {"INSERT", vbKeyInsert}, {"INS", vbKeyInsert},  {"LEFT", vbKeyLeft},
    {"NUMLOCK", 144},         {"PGDN", vbKeyPageDown}, {"PGUP", vbKeyPageUp}, {"PRTSC", 44},
    {"RIGHT", vbKeyRight},    {"SCROLLLOCK", 145},     {"TAB", vbKeyTab},     {"UP", vbKeyUp},
};
constexpr int kFunctionKeys = 16;

constexpr long kMostRepeats = 1000;

SentKey Named(std::string_view name, int shift) {
  const std::string upper = runtime::UCase(name);
  for (const NamedKey& named : kNamedKeys)
    if (named.name == upper) return {named.code, {}, shift};
  for (int number = 1; number <= kFunctionKeys; ++number)
    if (upper == "F" + std::to_string(number)) return {vbKeyF1 + number - 1, {}, shift};
  throw runtime::Error(runtime::kInvalidProcedureCall);
}

SentKey Typed(std::string_view character, int shift) {
  return {0, std::string(character), shift};
}

// Bytes of the first character.
size_t LengthOfFirst(std::string_view text) {
  return text.size() > 1 && runtime::AnsiCodePage().IsLead(static_cast<unsigned char>(text.front())) ? 2 : 1;
}

class Parser {
 public:
  explicit Parser(std::string_view keys) : rest_(keys) {}

  std::vector<SentKey> Parse() {
    while (!rest_.empty()) ParseOne(0);
    return std::move(keys_);
  }

 private:
  void ParseOne(int held) {
    switch (Peek()) {
      case '+':
        return ParseHeld(held | vbShiftMask);
      case '^':
        return ParseHeld(held | vbCtrlMask);
      case '%':
        return ParseHeld(held | vbAltMask);
      case '(':
        return ParseGroup(held);
      case '{':
        return ParseBraces(held);
      case ')':
      case '}':
        throw runtime::Error(runtime::kInvalidProcedureCall);
      case '~':
        rest_.remove_prefix(1);
        return keys_.push_back(Named("ENTER", held));
      default:
        keys_.push_back(Typed(TakeCharacter(), held));
    }
  }

  void ParseHeld(int held) {
    rest_.remove_prefix(1);
    ParseOne(held);
  }

  void ParseGroup(int held) {
    rest_.remove_prefix(1);
    while (Peek() != ')') ParseOne(held);
    rest_.remove_prefix(1);
  }

  // A closing brace right behind the opening one is the key itself: "{}}".
  void ParseBraces(int held) {
    const size_t close = rest_.find('}', 2);
    if (close == std::string_view::npos) throw runtime::Error(runtime::kInvalidProcedureCall);
    std::string_view name = rest_.substr(1, close - 1);
    rest_.remove_prefix(close + 1);
    long repeats = 1;
    if (const size_t blank = name.rfind(' '); blank != std::string_view::npos && blank > 0) {
      repeats = static_cast<long>(runtime::Val(name.substr(blank + 1)));
      name = name.substr(0, blank);
    }
    if (repeats < 0 || repeats > kMostRepeats) throw runtime::Error(runtime::kInvalidProcedureCall);
    const SentKey key = LengthOfFirst(name) == name.size() ? Typed(name, held) : Named(name, held);
    keys_.insert(keys_.end(), static_cast<size_t>(repeats), key);
  }

  char Peek() const {
    if (rest_.empty()) throw runtime::Error(runtime::kInvalidProcedureCall);
    return rest_.front();
  }

  std::string_view TakeCharacter() {
    const std::string_view character = rest_.substr(0, LengthOfFirst(rest_));
    rest_.remove_prefix(character.size());
    return character;
  }

  std::string_view rest_;
  std::vector<SentKey> keys_;
};

}  // namespace

std::vector<SentKey> ParseSentKeys(std::string_view keys) {
  return Parser(keys).Parse();
}

}  // namespace corvane::forms
