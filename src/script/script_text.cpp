#include "script/script_text.h"

#include "runtime/strings.h"

namespace corvane::script {

ScriptText::ScriptText(std::string text) : text_(std::make_shared<const std::string>(std::move(text))) {}

std::optional<std::string_view> ScriptText::NextLine() {
  const size_t end = text_->find(runtime::kCrLf, at_);
  if (end == std::string::npos) return std::nullopt;
  const std::string_view line = std::string_view(*text_).substr(at_, end - at_);
  at_ = end + 2;
  return line;
}

// The last place in the whole text answers for every rest of it.
bool ScriptText::UnreadHolds(std::string_view sought) const {
  if (last_sought_ != sought) {
    last_sought_ = sought;
    last_place_ = text_->rfind(sought);
  }
  return last_place_ != std::string::npos && last_place_ >= at_;
}

void ScriptText::Push(const std::string& text) {
  Replace(text + std::string(Unread()));
}

void ScriptText::Replace(std::string text) {
  GoTo({std::make_shared<const std::string>(std::move(text)), 0});
}

void ScriptText::GoTo(const Place& place) {
  if (place.text != text_) last_sought_.clear();
  text_ = place.text;
  at_ = place.at;
}

std::string WithLineEnds(std::string_view text) {
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  if (runtime::BeginsWith(text, kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
  std::string result;
  result.reserve(text.size() + text.size() / 16);
  for (size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n' && (at == 0 || text[at - 1] != '\r')) result += '\r';
    result += text[at];
  }
  return result;
}

}  // namespace corvane::script
