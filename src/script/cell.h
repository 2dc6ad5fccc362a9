// Cell: a value of the language: text, a double, a boolean, or the integer 0 of a fresh variable.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace corvane::script {

// A text value. Long ones share what they have in common from the first character on: a copy costs nothing, and neither
// does appending to the longest of them, so that a variable, the value of the expression that was stored in it, and
// what it was before are one text in memory.
class Text {
 public:
  Text() = default;
  Text(std::string text);
  Text(std::string_view text) : Text(std::string(text)) {}
  Text(const char* text) : Text(std::string(text)) {}

  // Good until this text or a copy of it is appended to.
  std::string_view Get() const { return shared_ ? std::string_view(*shared_).substr(0, length_) : own_; }
  size_t Size() const { return shared_ ? length_ : own_.size(); }

  // Where a long text is kept, with others that begin like it; nothing for a short one.
  const std::string* SharedText() const { return shared_.get(); }

  // [more] may not stand in this text itself.
  void Append(std::string_view more);

  friend bool operator==(const Text& left, const Text& right) { return left.Get() == right.Get(); }

 private:
  std::string own_;
  std::shared_ptr<std::string> shared_;  // instead of own_, when long
  size_t length_ = 0;                    // of it are this text
};

using Cell = std::variant<int, Text, double, bool>;

// The text form: booleans are "True" and "False", doubles as TextOfNumber writes them.
std::string TextOf(const Cell& cell);

}  // namespace corvane::script
