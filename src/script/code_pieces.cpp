#include "script/code_pieces.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/line_comments.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

using std::string_view;

constexpr size_t kMostOpenFiles = 50;

bool Opens(string_view line, string_view block) {
  return runtime::UCase(runtime::Trim(line).substr(0, 5)) == block;
}

bool IsRemark(string_view line) {
  const std::string start = runtime::UCase(runtime::Trim(line).substr(0, 4));
  return start == "REM" || start == "REM ";
}

class Reading {
 public:
  Reading(string_view script, const ReadInclude& include) : text_(script), include_(include) {
    files_.push_back({0, {"", 0}});
  }

  ScriptSource Read() {
    if (runtime::UCase(text_.substr(0, 5)) == "MENU{") {
      source_.has_dialog = true;
    } else if (FindBlock()) {
      last_close_ = text_.rfind("]]");
      ReadBlock();
    }
    return std::move(source_);
  }

 private:
  // A file that is read: what is left of the text when it ends, and the line that was read last.
  struct OpenFile {
    size_t left;
    SourceLine at;
  };

  bool FindBlock() {
    while (NextLine()) {
      if (Opens(line_, "CODE{")) return source_.has_block = true;
      if (Opens(line_, "FILE:")) {
        if (!Include()) return false;
      } else if (Opens(line_, "FORM{")) {
        SkipForm();
      }
    }
    return false;
  }

  void ReadBlock() {
    while (!closed_ && NextLine() && !Closes()) {
      if (!IsRemark(line_)) ReadLine();
    }
  }

  bool NextLine() {
    if (at_ > text_.size()) return false;
    CloseFiles();
    const size_t end = std::min(text_.find(runtime::kCrLf, at_), text_.size());
    line_ = string_view(text_).substr(at_, end - at_);
    at_ = end + 2;
    ++number_;
    ++files_.back().at.line;
    if (moved_) source_.origins.push_back({number_, files_.back().at});
    moved_ = false;
    return true;
  }

  void CloseFiles() {
    for (; files_.size() > 1 && text_.size() - at_ <= files_.back().left; moved_ = true) files_.pop_back();
  }

  // Its text comes in front of what is unread.
  bool Include() {
    const std::string line = runtime::Trim(line_);
    const auto file = files_.size() > kMostOpenFiles ? std::nullopt : include_(runtime::Trim(line.substr(5)));
    if (!file) {
      source_.failed_include = files_.back().at;
      return false;
    }
    const std::string unread = text_.substr(std::min(at_, text_.size()));
    files_.push_back({unread.size(), {file->name, 0}});
    text_ = file->text + runtime::kCrLf + unread;
    at_ = 0;
    return moved_ = true;
  }

  void SkipForm() {
    source_.has_dialog = true;
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
      source_.pieces.push_back({std::string(line_.substr(0, close)), {number_}});
      if (close == string_view::npos) return ReadFurtherLines();
      line_.remove_prefix(close + 2);
    }
  }

  void ReadFurtherLines() {
    CodePiece& piece = source_.pieces.back();
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

  std::string text_;
  const ReadInclude& include_;
  string_view line_;
  size_t at_ = 0;  // behind the line
  size_t last_close_ = string_view::npos;
  long number_ = 0;
  bool closed_ = false;
  bool moved_ = true;  // into another file, since the last line
  std::vector<OpenFile> files_;
  ScriptSource source_;
};

}  // namespace

SourceLine ScriptSource::PlaceOf(long number) const {
  SourceLine place;
  for (const Origin& origin : origins)
    if (origin.number <= number) place = {origin.place.file, origin.place.line + number - origin.number};
  return place;
}

ScriptSource ReadScriptSource(string_view script, const ReadInclude& include) {
  return Reading(script, include).Read();
}

}  // namespace corvane::script
