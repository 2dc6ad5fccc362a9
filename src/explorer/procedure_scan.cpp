#include "explorer/procedure_scan.h"

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using runtime::Holds;
using runtime::InStr;

namespace {

constexpr std::string_view kKeywords[] = {"SUB ", "FUNCTION ", "PROPERTY ", "EVENT "};
constexpr size_t kShortestLine = 5;

std::string_view VisibilityWord(const ProcedureFilter& filter) {
  if (filter.visibility == Visibility::Private) return "PRIVATE ";
  if (filter.visibility == Visibility::All || !filter.name.empty()) return {};
  return filter.visibility == Visibility::Static ? "STATIC " : "PUBLIC ";
}

// Whether the first of the keywords that occurs stands at the start or behind a blank. The others are not looked at.
bool HasKeyword(std::string_view line) {
  for (std::string_view keyword : kKeywords)
    if (size_t at = line.find(keyword); at != std::string_view::npos) return at == 0 || line[at - 1] == ' ';
  return false;
}

bool IsOfKind(std::string_view line, ProcedureKind kind) {
  switch (kind) {
    case ProcedureKind::All:
      return true;
    case ProcedureKind::Subs:
      return IsPlainSub(line);
    case ProcedureKind::Functions:
      return Holds(line, "FUNCTION ");
    case ProcedureKind::Properties:
      return Holds(line, "PROPERTY ");
    case ProcedureKind::Events:
      return IsEventSub(line);
  }
  return false;
}

class Scan {
 public:
  Scan(host::CodeModule& module, const ProcedureFilter& filter, const ProcedureSink& found)
      : module_(module),
        kind_(filter.kind),
        visibility_(VisibilityWord(filter)),
        name_(runtime::UCase(filter.name)),
        found_(found) {}

  void Run() {
    long first = module_.CountOfDeclarationLines() + 1, last = module_.CountOfLines();
    if (first < 1 || last < 2 || last < first) return;
    for (long i = first; i <= last; ++i) {
      std::string text = module_.Lines(i, 1);
      if (!TakeLine(text)) continue;
      if (name_.empty()) {
        found_(i, text);
        i = LastLineOfBody(i);
      } else if (NameFits()) {
        found_(i, text);
      }
    }
  }

 private:
  // Makes the working copy and tells whether it passes all tests but that of the name.
  bool TakeLine(std::string_view text) {
    // The scan knows no strings: an apostrophe inside one cuts the line as well. The apostrophe itself stays.
    if (size_t quote = text.find('\''); quote != std::string_view::npos) text = text.substr(0, quote + 1);
    if (text.size() < kShortestLine) return false;
    MakeUpper(text);
    if (visibility_.empty() && (Holds(line_, "END ") || !HasKeyword(line_))) return false;
    if (kind_ != ProcedureKind::Events && !Holds(line_, visibility_)) return false;
    return IsOfKind(line_, kind_);
  }

  void MakeUpper(std::string_view text) {
    const runtime::CodePage& page = runtime::AnsiCodePage();
    if (page.IsDoubleByte()) {
      line_ = page.ToUpper(text);
      return;
    }
    line_.resize(text.size());
    for (size_t i = 0; i < text.size(); ++i)
      line_[i] = static_cast<char>(page.Upper(static_cast<unsigned char>(text[i])));
  }

  // A name that only a parameter has does not count.
  bool NameFits() const {
    const runtime::CodePage& page = runtime::AnsiCodePage();
    long at = InStr(line_, name_), paren = InStr(line_, "(");
    while (at > 0 && page.IsSecondByte(line_, static_cast<size_t>(at) - 1)) at = InStr(at + 1, line_, name_);
    return at > 0 && (paren == 0 || at < paren);
  }

  // The line in front of the one at which the scan goes on: it goes on at the "End" line of the procedure in [line].
  long LastLineOfBody(long line) {
    long last = line;
    runtime::PassOverErrors([&] {
      host::ProcKind kind;
      std::string name = module_.ProcOfLine(line, kind);
      long start = module_.ProcStartLine(name, kind);
      long behind = start + module_.ProcCountLines(name, kind) - 2;
      if (start > 1 && behind > line) last = behind;
    });
    return last;
  }

  host::CodeModule& module_;
  ProcedureKind kind_;
  std::string_view visibility_;
  std::string name_;
  const ProcedureSink& found_;
  std::string line_;
};

// Where "(" and "_" stand behind "SUB ", 0 for none.
struct SubMarks {
  long sub = 0, paren = 0, underscore = 0;
};

SubMarks MarksOf(std::string_view text) {
  std::string copy;
  text = runtime::AnsiCodePage().ForSearch(text, copy);
  SubMarks marks;
  marks.sub = InStr(text, "SUB ");
  if (marks.sub == 0) return marks;
  marks.paren = InStr(marks.sub + 4, text, "(");
  marks.underscore = InStr(marks.sub + 4, text, "_");
  return marks;
}

}  // namespace

bool IsPlainSub(std::string_view text) {
  SubMarks marks = MarksOf(text);
  return marks.paren > 0 && (marks.underscore == 0 || marks.underscore > marks.paren);
}

bool IsEventSub(std::string_view text) {
  SubMarks marks = MarksOf(text);
  return marks.paren > 0 && marks.underscore > 0 && marks.underscore < marks.paren;
}

void ScanProcedures(host::CodeModule& module, const ProcedureFilter& filter, const ProcedureSink& found) {
  Scan(module, filter, found).Run();
}

}  // namespace corvane::explorer
