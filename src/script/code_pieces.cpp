#include "script/code_pieces.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/line_comments.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

using std::string_view;

bool Opens(string_view line, string_view block) {
  return runtime::UCase(runtime::Trim(line).substr(0, 5)) == block;
}

bool IsRemark(string_view line) {
  const std::string start = runtime::UCase(runtime::Trim(line).substr(0, 4));
  return start == "REM" || start == "REM ";
}

class Reading {
 public:
  explicit Reading(string_view script) : script_(script) {}

  bool FindBlock() {
    while (NextLine()) {
      if (Opens(line_, "CODE{")) return true;
      if (Opens(line_, "FORM{")) SkipForm();
    }
    return false;
  }

  std::vector<CodePiece> Pieces() {
    while (!closed_ && NextLine() && !Closes()) {
      if (!IsRemark(line_)) ReadLine();
    }
    return std::move(pieces_);
  }

 private:
  bool NextLine() {
    if (at_ > script_.size()) return false;
    const size_t end = std::min(script_.find(runtime::kCrLf, at_), script_.size());
    line_ = script_.substr(at_, end - at_);
    at_ = end + 2;
    ++number_;
    return true;
  }

  void SkipForm() {
    while (NextLine() && line_.substr(0, 9).find('}') == string_view::npos) {
    }
  }

  // A "}" is text while any "]]" stands behind it.
  bool Closes() {
    closed_ = runtime::BeginsWith(line_, "}") && (last_close_ == string_view::npos || last_close_ < at_);
    return closed_;
  }

  void ReadLine() {
    for (size_t open; (open = line_.find("<%")) != string_view::npos;) {
      line_.remove_prefix(open + 2);
      const size_t close = line_.find("%>");
      pieces_.push_back({std::string(line_.substr(0, close)), {number_}});
      if (close == string_view::npos) return ReadFurtherLines();
      line_.remove_prefix(close + 2);
    }
  }

  void ReadFurtherLines() {
    CodePiece& piece = pieces_.back();
    LineComments comments;
    comments.Begin(line_);
    while (NextLine() && (comments.InLiteral() || !Closes())) {
      const auto code = comments.CodeOf(line_);
      if (!code) continue;
      const size_t close = code->find("%>");
      (piece.code += lineMark) += code->substr(0, close);
      piece.lines.push_back(number_);
      if (close == string_view::npos) continue;
      line_ = code->substr(close + 2);
      return ReadLine();
    }
  }

  string_view script_, line_;
  size_t at_ = 0;  // behind the line
  size_t last_close_ = script_.rfind("]]");
  long number_ = 0;
  bool closed_ = false;
  std::vector<CodePiece> pieces_;
};

}  // namespace

std::vector<CodePiece> CodePieces(string_view script, bool& has_block) {
  Reading reading(script);
  has_block = reading.FindBlock();
  return has_block ? reading.Pieces() : std::vector<CodePiece>();
}

}  // namespace corvane::script
