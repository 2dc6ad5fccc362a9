#include "script/block_reader.h"

#include <utility>

#include "runtime/strings.h"
#include "script/form_pages.h"
#include "script/line_comments.h"
#include "script/marks.h"
#include "script/script_path.h"

namespace corvane::script {

using runtime::BeginsWith;
using runtime::kCrLf;

namespace {

constexpr size_t kOpener = 5;  // "CODE{" and the like
constexpr std::string_view kCodeOpens = "<%", kCodeCloses = "%>";
constexpr size_t kMostOpenFiles = 50;

enum LabelSearch : int { kNone = 0, kGoOn = 1, kRestart = 2, kRestartAtEnd = 3 };

constexpr char kNoScriptFile[] =
    "Script file doesn't exists in specified directory.\r\nMay be you have not saved Project yet.";

// A template line that is a comment.
bool IsRemark(std::string_view line) {
  const std::string text = runtime::UCase(runtime::Trim(line));
  return text == "REM" || BeginsWith(text, "REM ");
}

}  // namespace

void BlockReader::Read(std::string script, bool show) {
  show_ = show;
  text_.Replace(std::move(script));
  while (!ended_ && !state_.stopFlag) {
    if (!rest_.empty()) {
      ReadPieces(std::exchange(rest_, {}));
      continue;
    }
    const auto line = text_.NextLine();
    if (line) {
      const ScriptText::Place held = text_.Here();
      in_code_ ? ReadTemplateLine(*line) : ReadOutside(*line);
    } else if (in_code_) {
      EndBlock();
    } else {
      ended_ = true;
    }
  }
}

void BlockReader::ReadOutside(std::string_view line) {
  const std::string text = runtime::Trim(line);
  const std::string opener = runtime::UCase(text.substr(0, kOpener));
  if (opener == "FILE:") return Include(text);
  if (opener == "CODE{") return BeginCode();
  if (opener != "FORM{") return;
  met_block_ = true;
  if (!around_.forms.Form(lib_, text_, text, show_)) ended_ = true;
}

void BlockReader::Include(std::string_view line) {
  const std::string name = runtime::Trim(line.substr(line.find(':') + 1));
  const bool read = runtime::PassOverErrors([&] {
    const std::string path = IncludePath(name, around_);
    if (path.size() < 2) throw runtime::Error(runtime::kFileNotFound);
    state_.scriptFile = path;
    const std::string file = WithLineEnds(around_.services.Files.Read(path));
    open_files_.push_back(text_.Unread().size());
    text_.Push(file + kCrLf);
  });
  if (read && !IncludesItself()) return;
  ended_ = failed_ = true;
  state_.restartFlag = false;
  if (!read) around_.services.Prompts.MsgBox(kNoScriptFile);
}

// A file is open until what stood behind its line is all that is left.
bool BlockReader::IncludesItself() {
  const size_t unread = text_.Unread().size();
  while (!open_files_.empty() && open_files_.back() >= unread) open_files_.pop_back();
  if (open_files_.size() <= kMostOpenFiles) return false;
  engine_.errors.ReportError("Script files include one another without end: " + state_.scriptFile);
  return true;
}

void BlockReader::BeginCode() {
  met_block_ = in_code_ = true;
  resume_ = text_.Here();
  resume_counters_ = state_.counters;
  found_from_resume_.clear();
}

// A "}" is text for as long as a "]]" follows anywhere.
bool BlockReader::ClosesBlock(std::string_view line) const {
  return BeginsWith(line, "}") && !text_.UnreadHolds("]]");
}

void BlockReader::EndBlock() {
  if (state_.labelSearch == kRestartAtEnd) return Restart();
  if (state_.labelSearch > kNone) {
    std::string label = state_.labelTarget;
    std::erase(label, labelMark);
    engine_.errors.ReportError("Label " + label + " not found");
  }
  ended_ = true;
}

// Loops over template text come here again and again: the user's acts come in. A search runs nothing, so that for a
// label that was found before it need not be made again.
void BlockReader::Restart() {
  around_.services.Loop.DoEvents();
  state_.labelSearch = kGoOn;
  const auto found = found_from_resume_.find(state_.labelTarget);
  searching_ = found == found_from_resume_.end();
  if (searching_) {
    reported_before_ = engine_.errors.Reported();
    text_.GoTo(resume_);
    state_.counters = resume_counters_;
  } else {
    text_.GoTo(found->second.behind_line);
    state_.counters = found->second.counters;
    rest_ = found->second.rest;
  }
}

void BlockReader::PutOut(std::string_view text) {
  if (state_.labelSearch == kNone) state_.resultText.Append(text);
}

void BlockReader::ReadTemplateLine(std::string_view line) {
  if (ClosesBlock(line)) return EndBlock();
  if (IsRemark(line)) return;
  ReadPieces(std::string(line) + kCrLf);
}

void BlockReader::ReadPieces(std::string rest) {
  std::string_view unread = rest;
  for (size_t mark; (mark = unread.find(kCodeOpens)) != std::string_view::npos;) {
    PutOut(unread.substr(0, mark));
    unread.remove_prefix(mark);
    const ScriptText::Place behind_line = text_.Here();
    Piece piece = ReadPiece(unread.substr(kCodeOpens.size()));
    if (searching_)
      RunPieceInSearch(piece, unread, behind_line);
    else
      RunPiece(piece);
    if (state_.stopFlag) return;
    if (piece.many_lines && state_.labelSearch == kRestart) return Restart();
    if (piece.closed) return EndBlock();
    if (piece.many_lines)
      unread = rest = std::move(piece.rest);
    else
      unread.remove_prefix(kCodeOpens.size() + piece.code.size() + kCodeCloses.size());
  }
  PutOut(unread);
}

// The line end behind the mark is no part of the code.
BlockReader::Piece BlockReader::ReadPiece(std::string_view behind_mark) {
  Piece piece;
  const size_t end = behind_mark.find(kCodeCloses);
  if (end != std::string_view::npos) {
    piece.code = behind_mark.substr(0, end);
    return piece;
  }
  ReadLines(piece, behind_mark.substr(0, behind_mark.size() - std::string_view(kCrLf).size()));
  return piece;
}

// Further lines up to the mark. Where the block's closing line comes first, the piece ends with it.
void BlockReader::ReadLines(Piece& piece, std::string_view first) {
  piece.many_lines = true;
  piece.code = first;
  LineComments comments;
  comments.Begin(first);
  for (;;) {
    const auto line = text_.NextLine();
    piece.closed = !line || (!comments.InLiteral() && ClosesBlock(*line));
    if (piece.closed) return;
    const auto code = comments.CodeOf(*line);
    if (!code) continue;
    const std::string upper = runtime::UCase(*code);
    if (runtime::Holds(upper, "END SUB") && !runtime::Holds(upper, "\"")) {
      resume_ = text_.Here();
      piece.moves_resume = true;
    }
    const size_t end = code->find(kCodeCloses);
    piece.code.append(1, lineMark).append(*code, 0, end);
    if (end != std::string::npos) {
      piece.rest = runtime::Trim(code->substr(end + kCodeCloses.size()));
      if (!piece.rest.empty()) piece.rest += kCrLf;
      return;
    }
  }
}

// What a piece with an END SUB leaves unread behind that line is not translated again: the counters are those behind
// the piece.
void BlockReader::RunPiece(const Piece& piece) {
  runner_.RunCode(piece.code + ':');
  if (!piece.moves_resume) return;
  resume_counters_ = state_.counters;
  found_from_resume_.clear();
  searching_ = false;
}

// [unread] is the line from the piece on. What is reported on the way is reported each time.
void BlockReader::RunPieceInSearch(const Piece& piece, std::string_view unread, const ScriptText::Place& behind_line) {
  std::string label = state_.labelTarget;
  const Counters counters = state_.counters;
  engine_.label_found = false;
  const long reported = engine_.errors.Reported();
  RunPiece(piece);
  if (!engine_.label_found || !searching_) return;
  searching_ = false;
  if (reported == reported_before_)
    found_from_resume_.emplace(std::move(label), PieceStart{std::string(unread), behind_line, counters});
}

}  // namespace corvane::script
