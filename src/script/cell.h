// Cell: a value of the language: text, a double, a boolean, or the integer 0 of a fresh variable.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace corvane::script {

// A text value. A long one is shared by its copies until one of them is changed, so that a variable and the value of
// the expression that was stored in it are one text, and appending to it costs no copy.
class Text {
 public:
  Text() = default;
  Text(std::string text);
  Text(std::string_view text) : Text(std::string(text)) {}
  Text(const char* text) : Text(std::string(text)) {}

  const std::string& Get() const { return shared_ ? *shared_ : own_; }
  operator const std::string&() const { return Get(); }

  // In place where no other copy shares the text. [more] may not stand in this text itself.
  void Append(std::string_view more);

  friend bool operator==(const Text& left, const Text& right) { return left.Get() == right.Get(); }

 private:
  std::string own_;
  std::shared_ptr<std::string> shared_;  // instead of own_, when long
};

using Cell = std::variant<int, Text, double, bool>;

// The text form: booleans are "True" and "False", doubles as runtime::CStr writes them.
std::string TextOf(const Cell& cell);

}  // namespace corvane::script
