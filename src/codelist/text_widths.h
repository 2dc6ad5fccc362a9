// TextWidths: widths of texts in one font, each measured once. Long texts are measured anew: few come again.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "forms/types.h"

namespace corvane::codelist {

class TextWidths {
 public:
  static constexpr size_t kLongestKept = 256, kBytesKept = 1 << 18;  // of all texts together

  // [measure] gives the width, in twips, of a text that is not known yet.
  template <class Measure>
  forms::Twips Of(std::string_view text, Measure measure) {
    if (text.empty()) return 0;
    if (text.size() > kLongestKept) return measure(text);
    if (auto found = widths_.find(text); found != widths_.end()) return found->second;
    return Keep(text, measure(text));
  }

  void Forget();  // the font is another one
  size_t Bytes() const { return bytes_; }

 private:
  forms::Twips Keep(std::string_view text, forms::Twips width);

  // Finds a text by a view of it.
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  std::unordered_map<std::string, forms::Twips, Hash, std::equal_to<>> widths_;
  size_t bytes_ = 0;
};

}  // namespace corvane::codelist
