// UnreadText: a text that is eaten from its front and put back at its front, without copying what is behind.
#pragma once

#include <string>
#include <string_view>

namespace corvane::script {

class UnreadText {
 public:
  explicit UnreadText(std::string text = {}) : buffer_(std::move(text)) {}

  // What is unread, in one piece. Good until the next Cut or Push.
  std::string_view Text() const { return std::string_view(buffer_).substr(front_); }
  size_t Size() const { return buffer_.size() - front_; }
  bool Empty() const { return front_ == buffer_.size(); }
  // The first character; '\0' of an empty text.
  char Front() const { return Empty() ? '\0' : buffer_[front_]; }
  bool BeginsWith(std::string_view start) const { return Text().substr(0, start.size()) == start; }
  // First place of [sought], counted from 1; 0 if there is none.
  long Find(std::string_view sought) const;

  // Takes [count] characters off the front, or all there are.
  void Cut(size_t count);
  // Takes off the characters at the front that are in [set].
  void CutAnyOf(std::string_view set);
  // Puts [text] in front. It is no part of this text. The cost is that of [text], over many calls.
  void Push(std::string_view text);
  void Clear() { Cut(Size()); }

 private:
  void WidenGap(size_t wanted);

  std::string buffer_;  // a gap, then what is unread
  size_t front_ = 0;
};

}  // namespace corvane::script
