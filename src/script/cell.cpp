#include "script/cell.h"

#include <utility>

#include "runtime/strings.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

constexpr size_t kLong = 64;  // texts of more bytes may be shared

}  // namespace

Text::Text(std::string text) : length_(text.size()) {
  if (text.size() > kLong)
    shared_ = std::make_shared<std::string>(std::move(text));
  else
    own_ = std::move(text);
}

void Text::Append(std::string_view more) {
  if (!shared_ && own_.size() + more.size() <= kLong) {
    own_ += more;
    return;
  }
  if (!shared_ || shared_->size() != length_) {  // a longer text goes on otherwise
    std::string whole;
    whole.reserve(2 * (Size() + more.size()));
    whole.append(Get());
    shared_ = std::make_shared<std::string>(std::move(whole));
    own_.clear();
  }
  shared_->append(more);
  length_ = shared_->size();
}

std::string TextOf(const Cell& cell) {
  if (const auto* text = std::get_if<Text>(&cell)) return std::string(text->Get());
  if (const auto* number = std::get_if<double>(&cell)) return TextOfNumber(*number);
  if (const auto* truth = std::get_if<bool>(&cell)) return *truth ? "True" : "False";
  return runtime::CStr(std::get<int>(cell));
}

}  // namespace corvane::script
