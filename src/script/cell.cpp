#include "script/cell.h"

#include <utility>

#include "runtime/strings.h"

namespace corvane::script {

namespace {

constexpr size_t kLong = 64;  // texts of more bytes are shared

}  // namespace

Text::Text(std::string text) {
  if (text.size() > kLong)
    shared_ = std::make_shared<std::string>(std::move(text));
  else
    own_ = std::move(text);
}

void Text::Append(std::string_view more) {
  if (!shared_ && own_.size() + more.size() <= kLong) {
    own_ += more;
  } else if (shared_ && shared_.use_count() == 1) {
    *shared_ += more;
  } else {
    std::string whole;
    whole.reserve(2 * (Get().size() + more.size()));
    whole.append(Get()).append(more);
    shared_ = std::make_shared<std::string>(std::move(whole));
    own_.clear();
  }
}

std::string TextOf(const Cell& cell) {
  if (const auto* text = std::get_if<Text>(&cell)) return text->Get();
  if (const auto* number = std::get_if<double>(&cell)) return runtime::CStr(*number);
  if (const auto* truth = std::get_if<bool>(&cell)) return *truth ? "True" : "False";
  return runtime::CStr(std::get<int>(cell));
}

}  // namespace corvane::script
