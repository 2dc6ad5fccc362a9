#include "codelist/text_widths.h"

namespace corvane::codelist {

void TextWidths::Forget() {
  widths_.clear();
  bytes_ = 0;
}

// What does not fit any more takes the place of all that was kept.
forms::Twips TextWidths::Keep(std::string_view text, forms::Twips width) {
  if (bytes_ + text.size() > kBytesKept) Forget();
  widths_.emplace(text, width);
  bytes_ += text.size();
  return width;
}

}  // namespace corvane::codelist
