#include "codelist/markup.h"

#include <algorithm>
#include <cstring>

namespace corvane::codelist {

namespace {

constexpr forms::Color levelColors[] = {
    forms::RGB(0, 0, 0),     forms::RGB(0, 0, 255),   forms::RGB(0, 128, 0),   forms::RGB(255, 0, 0),
    forms::RGB(255, 0, 255), forms::RGB(0, 128, 128), forms::RGB(128, 0, 128), forms::RGB(128, 128, 128),
    forms::RGB(0, 0, 128),   forms::RGB(128, 128, 0), forms::RGB(128, 0, 0),
};

// Takes [mark] out of [text] wherever it stands, from the left to the right.
void Remove(std::string& text, std::string_view mark) {
  size_t found = text.find(mark), to = found;
  while (found != std::string::npos) {
    const size_t from = found + mark.size();
    found = text.find(mark, from);
    const size_t count = std::min(found, text.size()) - from;
    std::memmove(text.data() + to, text.data() + from, count);
    to += count;
  }
  if (to != std::string::npos) text.resize(to);
}

}  // namespace

bool IsMarkCharacter(char c) {
  return c == kBold || c == kPlainEntry || c == kBlockComment;
}

size_t PlainLength(std::string_view run) {
  return run.size() - static_cast<size_t>(std::count_if(run.begin(), run.end(), IsMarkCharacter));
}

Mark FirstMark(std::string_view text, size_t from) {
  while (from + 2 < text.size()) {
    const void* slash = std::memchr(text.data() + from, '/', text.size() - from - 2);
    if (!slash) break;
    from = static_cast<size_t>(static_cast<const char*>(slash) - text.data());
    if (text[from + 2] == '\\') {
      if (text[from + 1] == '+') return {from, +1};
      if (text[from + 1] == '-') return {from, -1};
    }
    ++from;
  }
  return {std::string_view::npos, 0};
}

long SumOfMarks(std::string_view text) {
  long sum = 0;
  for (Mark mark = FirstMark(text); mark.step != 0; mark = FirstMark(text, mark.place + kLevelUp.size()))
    sum += mark.step;
  return sum;
}

// One pass for each mark: what a removal brings together is not looked at again by the same pass.
std::string CleanText(std::string_view text) {
  std::string clean(text);
  if (FirstMark(text).step != 0) {
    Remove(clean, kLevelUp);
    Remove(clean, kLevelDown);
  }
  clean.erase(std::remove_if(clean.begin(), clean.end(), IsMarkCharacter), clean.end());
  return clean;
}

forms::Color LevelColor(long level) {
  long index = level % 11;
  return levelColors[index < 0 ? index + 11 : index];
}

// With a string in the run an apostrophe counts only at its start: a rough test, but one that never greys code out.
size_t CommentStart(long list_mode, std::string_view run) {
  constexpr size_t kNone = std::string_view::npos;
  if (list_mode == kSqlList) {
    // Tried in this order, not by their places: a comment that begins anew leaves what is in front of it plain, also in
    // a line that began inside a comment.
    for (std::string_view start : {std::string_view("/*"), std::string_view(&kBlockComment, 1), std::string_view("--")})
      if (size_t place = run.find(start); place != kNone) return place;
  }
  if (list_mode != kTreeList && list_mode != kVbList) return kNone;
  const size_t place = run.find('\'');
  return place >= 3 && run.find('"') != kNone ? kNone : place;
}

}  // namespace corvane::codelist
