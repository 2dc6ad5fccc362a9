// ScriptText: a script under reading. Lines are taken off its front; a text put in front is read next.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::script {

class ScriptText {
 public:
  explicit ScriptText(std::string text = {});

  // The next line without its line end; nothing where no line end is left. Good for as long as a Place of it, or this
  // text without a Push.
  std::optional<std::string_view> NextLine();
  std::string_view Unread() const { return std::string_view(*text_).substr(at_); }
  bool UnreadHolds(std::string_view sought) const;

  void Push(const std::string& text);
  // Reading goes on with [text] alone.
  void Replace(std::string text);

  // Where reading stands, to come back to. Going back restores what was unread there.
  struct Place {
    std::shared_ptr<const std::string> text;
    size_t at = 0;
  };
  Place Here() const { return {text_, at_}; }
  // What was read since [place].
  std::string_view Since(const Place& place) const { return std::string_view(*text_).substr(place.at, at_ - place.at); }
  void GoTo(const Place& place);

 private:
  std::shared_ptr<const std::string> text_;
  size_t at_ = 0;
  mutable std::string last_sought_;  // and where it stands last in text_
  mutable size_t last_place_ = std::string::npos;
};

// The text of a script file: each line that ends in LF alone ends in CR LF, and a UTF-8 mark in front is left out.
std::string WithLineEnds(std::string_view text);

}  // namespace corvane::script
