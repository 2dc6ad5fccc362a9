// The two-way search: the word is cut in two where its largest ending begins. Its right part is compared forwards, then
// its left part backwards, and a difference tells how far to go on.
#include "runtime/find_text.h"

#include <algorithm>

namespace corvane::runtime {

namespace {

using std::string_view;

// The standard search compares a word at each place, which is fast as long as the word is short.
constexpr size_t kLongWord = 32;

class Backwards {
 public:
  explicit Backwards(string_view text) : text_(text) {}
  size_t size() const { return text_.size(); }
  char operator[](size_t at) const { return text_[text_.size() - 1 - at]; }

 private:
  string_view text_;
};

struct Ending {
  size_t start;
  size_t period;  // each character of it is the one so many before it
};

// The largest ending of [word], where the smaller character counts as the larger if [turned].
template <class Word>
Ending LargestEnding(const Word& word, bool turned) {
  Ending largest{0, 1};
  size_t rival = 1, same = 0;
  while (rival + same < word.size()) {
    const char ours = word[largest.start + same], theirs = word[rival + same];
    if (ours == theirs) {
      if (++same < largest.period) continue;
      rival += largest.period;
    } else if ((theirs < ours) != turned) {
      rival += same + 1;
      largest.period = rival - largest.start;
    } else {
      largest = {rival, 1};
      ++rival;
    }
    same = 0;
  }
  return largest;
}

template <class Word>
bool RepeatsWhole(const Word& word, const Ending& ending) {
  for (size_t at = 0; at < ending.start; ++at)
    if (word[at] != word[at + ending.period]) return false;
  return true;
}

template <class Word>
size_t TwoWay(const Word& text, const Word& word) {
  const Ending one = LargestEnding(word, false), other = LargestEnding(word, true);
  const Ending right = one.start > other.start ? one : other;
  const size_t size = word.size();
  const bool repeats = RepeatsWhole(word, right);
  const size_t shift = repeats ? right.period : std::max(right.start, size - right.start) + 1;
  size_t known = 0;  // so many characters at the front are the word's already
  for (size_t at = 0; at + size <= text.size();) {
    size_t end = std::max(right.start, known);
    while (end < size && word[end] == text[at + end]) ++end;
    if (end < size) {
      at += end - right.start + 1;
      known = 0;
      continue;
    }
    size_t begin = right.start;
    while (begin > known && word[begin - 1] == text[at + begin - 1]) --begin;
    if (begin <= known) return at;
    at += shift;
    known = repeats ? size - shift : 0;
  }
  return string_view::npos;
}

}  // namespace

size_t FindFirst(string_view text, string_view find, size_t from) {
  if (find.size() <= kLongWord) return text.find(find, from);
  if (from >= text.size()) return string_view::npos;
  const size_t at = TwoWay(text.substr(from), find);
  return at == string_view::npos ? at : at + from;
}

size_t FindLast(string_view text, string_view find) {
  if (find.size() <= kLongWord) return text.rfind(find);
  const size_t at = TwoWay(Backwards(text), Backwards(find));
  return at == string_view::npos ? at : text.size() - at - find.size();
}

}  // namespace corvane::runtime
