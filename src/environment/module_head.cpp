#include "environment/module_head.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "environment/statement.h"

namespace corvane::environment {

namespace {

// Lines of a text with their line ends, one after the other.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : text_(text) {}
  bool Next() {
    start_ = end_;
    if (start_ >= text_.size()) return false;
    size_t feed = text_.find('\n', start_);
    end_ = feed == std::string_view::npos ? text_.size() : feed + 1;
    ++number_;
    return true;
  }
  std::string_view Line() const {
    std::string_view line = text_.substr(start_, end_ - start_);
    if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
  }
  size_t Start() const { return start_; }
  size_t End() const { return end_; }
  long Number() const { return number_; }

 private:
  std::string_view text_;
  size_t start_ = 0, end_ = 0;
  long number_ = 0;
};

std::string_view FirstWord(std::string_view text) {
  return text.substr(0, text.find_first_of(" \t"));
}

std::string_view Trimmed(std::string_view text) {
  text = WithoutIndent(text);
  size_t last = text.find_last_not_of(" \t");
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool IsConflictMark(std::string_view line) {
  return line.substr(0, 7) == "<<<<<<<" || line.substr(0, 7) == ">>>>>>>" || line == "=======" ||
         line.substr(0, 8) == "======= ";
}

constexpr char kConflictMark[] = "conflict mark of a version control";

bool HoldsConflictMark(const std::vector<Problem>& problems) {
  return std::any_of(problems.begin(), problems.end(),
                     [](const Problem& problem) { return problem.reason == kConflictMark; });
}

// "Attribute VB_Name = "Form1"".
std::string_view QuotedValue(std::string_view line) {
  size_t open = line.find('"');
  if (open == std::string_view::npos) return {};
  size_t close = line.find('"', open + 1);
  return line.substr(open + 1, close == std::string_view::npos ? close : close - open - 1);
}

// What stands there for the name, with quotes or without; no view into the line where it has no place for one.
std::string_view WrittenName(std::string_view line) {
  if (line.find('"') != std::string_view::npos) return QuotedValue(line);
  size_t equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view() : Trimmed(line.substr(equals + 1));
}

bool IsNameAttribute(std::string_view line) {
  return IsAttributeLine(line) && StartsWithWord(WithoutIndent(line.substr(9)), "vb_name");
}

class HeadReader {
 public:
  explicit HeadReader(std::string_view bytes) : bytes_(bytes), lines_(bytes) {}

  ModuleHead Read() {
    if (!lines_.Next()) return head_;
    if (StartsWithWord(lines_.Line(), "version")) {
      head_.version = Trimmed(lines_.Line().substr(7));
      NoteOldVersion();
      ReadDesigner();
    }
    ReadAttributes();
    return head_;
  }

 private:
  void Report(const char* reason) { head_.problems.push_back({{}, lines_.Number(), reason}); }

  // The first of a file stands for all.
  void ReportConflictMark() {
    if (!std::exchange(has_conflict_mark_, true)) Report(kConflictMark);
  }

  void NoteOldVersion() {
    double version = std::strtod(head_.version.c_str(), nullptr);
    if (head_.version.find("CLASS") == std::string::npos && version < 5)
      Report("form of an older version of Visual Basic");
  }

  // Leaves the reader on the first line behind the root block.
  void ReadDesigner() {
    long depth = 0;
    head_.designer_end = lines_.End();
    while (lines_.Next()) {
      std::string_view line = Trimmed(lines_.Line()), word = FirstWord(line);
      if (IsConflictMark(line)) {
        ReportConflictMark();
      } else if (depth == 0 && IsAttributeLine(lines_.Line())) {
        return ReportMissingRoot();
      } else if (StartsWithWord(word, "begin") || StartsWithWord(word, "beginproperty")) {
        if (depth++ == 0) ReadRoot(line);
      } else if (StartsWithWord(line, "end") || StartsWithWord(line, "endproperty")) {
        if (--depth <= 0) return Leave();
      } else if (depth > 0 && IsAttributeLine(lines_.Line())) {
        return ReportCutOff(lines_.Number() - 1);
      } else if (depth > 0) {
        ReadProperty(line);
      }
      if (depth > 0) head_.designer_end = lines_.End();
    }
    if (depth == 0) return ReportMissingRoot();
    // The line on which the file breaks off is no problem of its own.
    if (!head_.problems.empty() && head_.problems.back().line == lines_.Number()) head_.problems.pop_back();
    ReportCutOff(lines_.Number());
    head_.cut_off = true;
    head_.designer_end = bytes_.size();
  }
  void ReportCutOff(long line) { head_.problems.push_back({{}, line, "the designer part breaks off before its End"}); }
  void ReportMissingRoot() { head_.problems.push_back({{}, 1, "no Begin behind the VERSION line"}); }
  void Leave() {
    head_.designer_end = lines_.End();
    lines_.Next();
  }

  void ReadRoot(std::string_view line) {
    std::string_view rest = WithoutIndent(line.substr(5));
    head_.root_class = FirstWord(rest);
    head_.root_name = Trimmed(rest.substr(std::min(rest.size(), head_.root_class.size())));
  }

  void ReadProperty(std::string_view line) {
    if (line.empty()) return;
    size_t equals = line.find('=');
    if (equals == std::string_view::npos) return Report("neither a property nor a block");
    if (!StartsWithWord(line, "charset")) return;
    long charset = std::strtol(std::string(Trimmed(line.substr(equals + 1))).c_str(), nullptr, 10);
    if (std::count(head_.charsets.begin(), head_.charsets.end(), charset) == 0) head_.charsets.push_back(charset);
  }

  // The attributes of the module itself. Those of its members stand in the code.
  void ReadAttributes() {
    for (head_.code_start = lines_.Start(); lines_.Start() < bytes_.size(); lines_.Next()) {
      std::string_view line = lines_.Line();
      if (head_.designer_end > 0 && head_.name.empty() && Trimmed(line) == "End")
        Report("End without a Begin");
      else if (!IsAttributeLine(line) || !MemberOfAttribute(line).empty())
        return;
      if (IsNameAttribute(line)) head_.name = QuotedValue(line);
      head_.code_start = lines_.End();
    }
  }

  std::string_view bytes_;
  LineReader lines_;
  ModuleHead head_;
  bool has_conflict_mark_ = false;
};

}  // namespace

ModuleHead ReadModuleHead(std::string_view bytes) {
  return HeadReader(bytes).Read();
}

void FindConflictMark(std::string_view bytes, size_t at, std::vector<Problem>& problems) {
  if (HoldsConflictMark(problems)) return;
  size_t first = std::string_view::npos;
  for (std::string_view mark : {"<<<<<<<", ">>>>>>>"}) {
    size_t found = bytes.find(mark, at);
    while (found != std::string_view::npos && found > at && bytes[found - 1] != '\n')
      found = bytes.find(mark, found + 1);
    first = std::min(first, found);
  }
  if (first == std::string_view::npos) return;
  const auto above = std::count(bytes.begin(), bytes.begin() + static_cast<long>(first), '\n');
  problems.push_back({{}, static_cast<long>(above) + 1, kConflictMark});
}

std::vector<long> ConflictMarkLines(std::string_view designer) {
  std::vector<long> numbers;
  for (LineReader lines(designer); lines.Next();)
    if (IsConflictMark(Trimmed(lines.Line()))) numbers.push_back(lines.Number());
  return numbers;
}

std::string HeadWithName(std::string_view head, const std::string& name) {
  std::string result;
  bool root_done = false;
  for (LineReader lines(head); lines.Next();) {
    std::string line(head.substr(lines.Start(), lines.End() - lines.Start()));
    std::string_view text = lines.Line();
    if (IsNameAttribute(text)) {
      std::string_view old = WrittenName(text);
      if (old.data() != nullptr) line.replace(static_cast<size_t>(old.data() - text.data()), old.size(), name);
    } else if (!root_done && text.substr(0, 6) == "Begin ") {
      root_done = true;
      std::string_view rest = Trimmed(text.substr(6)), old = Trimmed(rest.substr(FirstWord(rest).size()));
      if (!old.empty()) line.replace(static_cast<size_t>(old.data() - text.data()), old.size(), name);
    }
    result += line;
  }
  return result;
}

}  // namespace corvane::environment
