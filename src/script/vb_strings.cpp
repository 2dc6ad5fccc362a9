#include "script/vb_strings.h"

#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/limits.h"

namespace corvane::script {

namespace {

constexpr size_t kCutAtBlank = 55;  // columns of a piece from which a blank or comma ends it
constexpr size_t kCutAnyway = 66;
constexpr size_t kLongestName = 16;

// What is mended in the whole output, in this order. The third row takes the "+" in front of what follows a name of a
// text with it, so that such a name is joined well at the end of the text alone. Scripts know these results.
constexpr struct {
  std::string_view found, replacement;
} kTidying[] = {
    {R"(+"")", ""},
    {R"(="+"'"+)", R"(='"+)"},
    {R"(+"'"+")", R"("')"},
    {R"(+""+")", ""},
};

bool StartsText(const std::string& name) {
  const std::string upper = runtime::UCase(name);
  if (!runtime::BeginsWith(upper, "S") && !runtime::BeginsWith(upper, "TXT")) return false;
  return runtime::Holds(upper, ".TEXT") || !(runtime::Holds(upper, "INDEX") || runtime::Holds(upper, ".VALUE"));
}

class Writer {
 public:
  std::string Write(std::string_view text, bool substitution) {
    if (text.empty()) return "\"\"";
    if (text[0] == '"')
      text.remove_prefix(1);
    else
      output_ = "\"";
    while (!text.empty()) {
      if (runtime::BeginsWith(text, runtime::kCrLf)) {
        text.remove_prefix(2);
        Cut(" + vbCrLf _");
      } else if (substitution && text[0] == ':' && TakeName(text)) {
      } else {
        WriteCharacter(text[0]);
        text.remove_prefix(1);
      }
    }
    output_ += '"';
    for (const auto& row : kTidying) output_ = runtime::Replace(output_, row.found, row.replacement);
    return output_;
  }

 private:
  void WriteCharacter(char c) {
    output_ += c;
    if (c == '"') output_ += c;
    columns_ += c == '"' ? 2 : 1;
    if (((c == ' ' || c == ',') && columns_ >= kCutAtBlank) || columns_ >= kCutAnyway) Cut(" _");
  }

  void Cut(std::string_view end) {
    output_.append("\"").append(end).append(runtime::kCrLf).append("+\"");
    columns_ = 0;
    if (output_.size() > kLongestText) throw TooLong();
  }

  // ":name": the piece is closed, the name joined to it, and the piece opened again.
  bool TakeName(std::string_view& text) {
    if (output_.size() <= 2) return false;
    const size_t length = LengthOfExprPart(text.substr(1, kLongestName + 1), false);
    if (length < 1 || length > kLongestName) return false;
    const std::string name(text.substr(1, length));
    const std::string joined = StartsText(name) ? R"("+"'"+)" + name + R"(+"'"+")" : R"("+CStr()" + name + R"()+")";
    output_ += joined;
    columns_ += joined.size();
    text.remove_prefix(1 + length);
    return true;
  }

  std::string output_;
  size_t columns_ = 0;
};

}  // namespace

std::string VBSTR(std::string_view text, bool substitution) {
  return Writer().Write(text, substitution);
}

std::string UNVBSTR(std::string_view source) {
  constexpr std::string_view kLineEnd = "VBCRLF";
  std::string text;
  bool inside = false;
  for (size_t at = 0; at < source.size(); ++at) {
    const char c = source[at];
    if (inside) {
      if (c != '"') {
        text += c;
      } else if (source.substr(at + 1, 1) == "\"") {
        text += source[++at];
      } else {
        inside = false;
      }
    } else if (c == '"') {
      inside = true;
    } else if (runtime::UCase(source.substr(at, kLineEnd.size())) == kLineEnd) {
      text += runtime::kCrLf;
      at += kLineEnd.size() - 1;
    } else if (c == '_' && source.substr(at + 1, 2) == runtime::kCrLf) {
      at += 2;
    } else if (c != ' ' && c != '+' && c != '&' && c != '_') {
      text += c;
    }
  }
  return text;
}

}  // namespace corvane::script
