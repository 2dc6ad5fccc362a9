#include "script/prepare_source.h"

#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

constexpr std::string_view kGluing = "+-<>*/\\()|:& =";  // a blank beside one of them goes

bool Glues(char c) {
  return kGluing.find(c) != std::string_view::npos;
}

// One pass over a trimmed text of three characters or more. A column is a place of the cleaned text: where something
// was removed the same column is looked at again.
class Cleaning {
 public:
  explicit Cleaning(std::string_view text) : text_(text), last_mark_(text.rfind(lineMark)) {}

  std::string Run() {
    cleaned_.reserve(text_.size() + 1);
    cleaned_ += text_.front();
    for (at_ = 1; at_ + 1 < text_.size();) Look(text_[at_]);
    cleaned_ += text_.back();
    return std::move(cleaned_);
  }
  bool LiteralOpen() const { return in_literal_; }

 private:
  void Look(char c) {
    if (in_literal_) {
      in_literal_ = text_.substr(at_, 2) != "]]";
    } else if (c == '"') {
      in_string_ = !in_string_;
    } else if (!in_string_) {
      if (c == '\'' && last_mark_ != std::string_view::npos && at_ < last_mark_) return DropComment();
      if (c == ' ' && IsRemoved()) return void(++at_);
      if (c == '=' && text_.substr(at_ + 1, 2) == "[[") in_literal_ = true;
    }
    cleaned_ += c;
    ++at_;
  }

  void DropComment() { at_ = text_.find(lineMark, at_); }

  // Of the blank at this column.
  bool IsRemoved() const {
    const char before = cleaned_.back(), after = text_[at_ + 1];
    if (Glues(before) && before != ')') return true;
    return Glues(after) && !(after == '(' && StandsBehindOrAnd());
  }

  // a OR (b) keeps its blank: without it OR would be read as a function.
  bool StandsBehindOrAnd() const {
    return cleaned_.size() >= 4 && runtime::Holds(" OR AND", runtime::UCase(runtime::Right(cleaned_, 3)));
  }

  std::string_view text_;
  size_t last_mark_;
  size_t at_ = 0;
  std::string cleaned_;
  bool in_string_ = false, in_literal_ = false;
};

}  // namespace

std::string PrepareSource(std::string_view text, ErrorReport& report) {
  const std::string trimmed = runtime::Trim(text);
  if (trimmed.size() < 3) return trimmed + ':';
  Cleaning cleaning(trimmed);
  std::string cleaned = cleaning.Run() + ':';
  if (cleaning.LiteralOpen()) report.ReportError("There are not ']]' symbols.");
  return cleaned;
}

}  // namespace corvane::script
