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
  labels_.Clear(true);
}

// A "}" is text for as long as a "]]" follows anywhere.
bool BlockReader::ClosesBlock(std::string_view line) const {
  return BeginsWith(line, "}") && !text_.UnreadHolds("]]");
}

void BlockReader::EndBlock() {
  labels_.EndReached();
  if (state_.labelSearch == kRestartAtEnd) return Restart();
  if (state_.labelSearch > kNone) {
    std::string label = state_.labelTarget;
    std::erase(label, labelMark);
    engine_.errors.ReportError("Label " + label + " not found");
  }
  ended_ = true;
}

void BlockReader::GoTo(const PieceStart& start) {
  text_.GoTo(start.behind_line);
  state_.counters = start.counters;
  rest_ = start.line->substr(start.at);
}

// Loops over template text come here again and again: the user's acts come in. A search runs nothing, so that for a
// label that was met or found before it need not be made.
void BlockReader::Restart() {
  around_.services.Loop.DoEvents();
  state_.labelSearch = kGoOn;
  searching_ = false;
  if (const PieceStart* start = labels_.First(state_.labelTarget)) return GoTo(*start);
  if (labels_.Whole() && IsLabel(state_.labelTarget)) return EndBlock();
  const auto found = found_from_resume_.find(state_.labelTarget);
  searching_ = found == found_from_resume_.end();
  if (searching_) {
    reported_before_ = engine_.errors.Reported();
    text_.GoTo(resume_);
    state_.counters = resume_counters_;
  } else {
    GoTo(found->second);
  }
}

// A search over the pieces to come: straight to the one that holds the label, or to the end. False where they must be
// read for it.
bool BlockReader::SearchesOn(const PieceStart& from) {
  if (state_.labelSearch == kNone || !labels_.Whole() || !IsLabel(state_.labelTarget)) return false;
  if (const PieceStart* next = labels_.Behind(state_.labelTarget, from))
    GoTo(*next);
  else
    EndBlock();
  return true;
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
  auto line = std::make_shared<const std::string>(std::move(rest));
  std::string_view unread = *line;
  for (size_t mark; (mark = unread.find(kCodeOpens)) != std::string_view::npos;) {
    PutOut(unread.substr(0, mark));
    unread.remove_prefix(mark);
    const PieceStart start{line, line->size() - unread.size(), text_.Here(), state_.counters};
    Piece piece = ReadPiece(unread.substr(kCodeOpens.size()));
    const TranslatedPiece translated = searching_ ? RunPieceInSearch(piece, start) : RunPiece(piece);
    if (state_.stopFlag) return;
    if (!piece.moves_resume) labels_.Add(start, translated);
    if (piece.many_lines && state_.labelSearch == kRestart) return Restart();
    if (piece.closed) return EndBlock();
    if (SearchesOn(start)) return;
    if (piece.many_lines)
      unread = *(line = std::make_shared<const std::string>(std::move(piece.rest)));
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
// the piece. A restart reads it as template text.
TranslatedPiece BlockReader::RunPiece(const Piece& piece) {
  TranslatedPiece translated;
  engine_.piece = &translated;
  runner_.RunCode(piece.code + ':');
  engine_.piece = nullptr;
  if (!piece.moves_resume) return translated;
  resume_counters_ = state_.counters;
  found_from_resume_.clear();
  const std::string_view behind = text_.Since(resume_);
  labels_.Clear(!runtime::Holds(behind, kCodeOpens) && !BeginsWith(behind, "}") && !runtime::Holds(behind, "\n}"));
  searching_ = false;
  return translated;
}

// What is reported on the way is reported each time.
TranslatedPiece BlockReader::RunPieceInSearch(const Piece& piece, const PieceStart& start) {
  std::string label = state_.labelTarget;
  engine_.label_found = false;
  const long reported = engine_.errors.Reported();
  const TranslatedPiece translated = RunPiece(piece);
  if (!engine_.label_found || !searching_) return translated;
  searching_ = false;
  if (reported == reported_before_) found_from_resume_.emplace(std::move(label), start);
  return translated;
}

}  // namespace corvane::script
