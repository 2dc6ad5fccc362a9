#include "script/unread_text.h"

#include <algorithm>

#include "runtime/strings.h"

namespace corvane::script {

long UnreadText::Find(std::string_view sought) const {
  return runtime::InStr(Text(), sought);
}

void UnreadText::Cut(size_t count) {
  front_ += std::min(count, Size());
}

void UnreadText::CutAnyOf(std::string_view set) {
  front_ = std::min(buffer_.find_first_not_of(set, front_), buffer_.size());
}

void UnreadText::Push(std::string_view text) {
  if (text.size() > front_) WidenGap(text.size());
  front_ -= text.size();
  text.copy(buffer_.data() + front_, text.size());
}

// As wide again as what is unread: so each character is moved once for each that was pushed, at most.
void UnreadText::WidenGap(size_t wanted) {
  const std::string_view unread = Text();
  const size_t gap = wanted + unread.size();
  std::string wider(gap + unread.size(), ' ');
  unread.copy(wider.data() + gap, unread.size());
  buffer_ = std::move(wider);
  front_ = gap;
}

}  // namespace corvane::script
