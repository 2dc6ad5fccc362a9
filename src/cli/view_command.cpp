#include "cli/view_command.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "cli/headless_list.h"
#include "codelist/line_analysis.h"
#include "codelist/reading_commands.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::cli {

namespace {

using codelist::LevelColor;
using runtime::BeginsWith;

// A text of one look.
struct Look {
  long level;
  bool bold = false, comment = false;
  bool operator==(const Look&) const = default;
};

std::string Utf8(std::string_view bytes) {
  return runtime::AnsiCodePage().ToUtf8(bytes);
}

// How a page or a terminal shows the runs of the lines.
class Style {
 public:
  explicit Style(std::ostream& out) : out_(out) {}
  virtual ~Style() = default;
  virtual void Begin(const std::string&) {}
  virtual void Run(const Look& look, std::string_view bytes) = 0;
  virtual void EndLine() { out_ << '\n'; }
  virtual void End() {}

 protected:
  std::ostream& out_;
};

// The sixteen colours of the terminal, which its owner has made readable; code outside all blocks in its own colour.
class Terminal : public Style {
 public:
  using Style::Style;
  void Run(const Look& look, std::string_view bytes) override {
    static constexpr int kColours[] = {39, 94, 32, 91, 95, 36, 35, 37, 34, 33, 31};
    constexpr int kGrey = 90;
    const int colour = look.comment ? kGrey : kColours[RingPlace(look.level)];
    if (colour == kColours[0] && !look.bold) {
      out_ << Utf8(bytes);
      return;
    }
    out_ << "\x1b[" << (look.bold ? "1;" : "") << colour << 'm' << Utf8(bytes) << "\x1b[0m";
  }

 private:
  static size_t RingPlace(long level) { return static_cast<size_t>((level % 11 + 11) % 11); }
};

class Page : public Style {
 public:
  using Style::Style;
  void Begin(const std::string& title) override {
    out_ << "<!DOCTYPE html>\n<html lang=\"en\">\n<head><meta charset=\"utf-8\"><title>" << Escaped(title)
         << "</title></head>\n<body><pre>\n";
  }
  void Run(const Look& look, std::string_view bytes) override {
    const std::string text = Escaped(Utf8(bytes));
    const forms::Color colour = look.comment ? codelist::kCommentColor : LevelColor(look.level);
    char style[32];
    std::snprintf(style, sizeof style, "#%02x%02x%02x", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
    if (colour == 0 && !look.bold) {
      out_ << text;
      return;
    }
    out_ << "<span style=\"color:" << style << (look.bold ? ";font-weight:bold" : "") << "\">" << text << "</span>";
  }
  void End() override { out_ << "</pre></body>\n</html>\n"; }

 private:
  static std::string Escaped(std::string_view text) {
    std::string escaped = runtime::Replace(text, "&", "&amp;");
    escaped = runtime::Replace(escaped, "<", "&lt;");
    return runtime::Replace(escaped, ">", "&gt;");
  }
};

// The stored lines of one list, run by run, as its painter draws them.
class Viewer {
 public:
  Viewer(codelist::ListMode mode, Style& style) : mode_(mode), style_(style) {}

  void ShowLine(std::string_view stored, long level) {
    // The painter's rules count the blank that it draws in front of a line; it is not shown here.
    const std::string line = std::string(1, ' ').append(stored);
    std::string_view text = line;
    first_ = true;
    for (codelist::Mark mark = codelist::FirstMark(text); mark.step != 0; mark = codelist::FirstMark(text)) {
      ShowRun(text.substr(0, mark.place), level);
      text.remove_prefix(mark.place + codelist::kLevelUp.size());
      level += mark.step;
    }
    ShowRun(text, level);
    style_.EndLine();
  }

 private:
  void ShowRun(std::string_view run, long level) {
    if (const size_t bold = run.find(codelist::kBold); bold != std::string_view::npos) {
      Show(run.substr(0, bold), {level});
      Show(run.substr(bold + 1), {level, true});
      return;
    }
    const size_t comment = std::min(codelist::CommentStart(mode_, run), run.size());
    Show(run.substr(0, comment), {level});
    Show(run.substr(comment), {level, false, true});
  }

  void Show(std::string_view text, const Look& look) {
    if (text.empty()) return;
    if (std::exchange(first_, false)) text.remove_prefix(1);
    const std::string clean = codelist::CleanText(text);
    if (!clean.empty()) style_.Run(look, clean);
  }

  codelist::ListMode mode_;
  Style& style_;
  bool first_ = true;
};

// Where the code of a module's file starts: behind the attributes at its head. 0 for any other text.
size_t StartOfCode(std::string_view text) {
  constexpr std::string_view kAttribute = "Attribute VB_";
  size_t at = BeginsWith(text, kAttribute) ? 0 : text.find("\r\nAttribute VB_Name");
  if (at == std::string_view::npos) return 0;
  if (at > 0) at += 2;
  while (BeginsWith(text.substr(at), kAttribute)) {
    const size_t end = text.find("\r\n", at);
    if (end == std::string_view::npos) return text.size();
    at = end + 2;
  }
  return at;
}

// Position behind the line that ends the procedure at [from], else of the end: a level that is left open in one
// procedure says nothing about the next.
size_t EndOfProcedure(std::string_view code, size_t from) {
  codelist::AnalysisState state;
  codelist::LineBuffer buffer;
  while (from < code.size() && !state.endOfProc) {
    const size_t end = std::min(code.find("\r\n", from), code.size());
    codelist::AnalyseLine(codelist::Language::Vb, state, code.substr(from, end - from), buffer);
    from = std::min(end + 2, code.size());
  }
  return from;
}

bool IsSql(const std::string& file_name) {
  return runtime::UCase(runtime::Right(file_name, 4)) == ".SQL";
}

}  // namespace

int ViewFile(const std::string& file_bytes, const ViewOptions& options, std::ostream& out) {
  if (options.code_page != 0) runtime::SetAnsiCodePage(options.code_page);
  const std::string text = WithCrLf(file_bytes);
  const size_t code = StartOfCode(text);
  Terminal terminal(out);
  Page page(out);
  Style& style = options.html ? static_cast<Style&>(page) : terminal;
  style.Begin(options.file_name);
  HeadlessList list;
  list->ListRole = codelist::kSourcePane;  // past the ends of procedures
  const codelist::ListMode mode = IsSql(options.file_name) ? codelist::kSqlList : codelist::kVbList;
  const auto show = [&](std::string part, const char* grid, codelist::ListMode part_mode) {
    list->sGrid(grid);
    list->SetText(std::move(part));
    if (options.fold && part_mode != codelist::kTextList) list->Reading().menu[codelist::ListEntry::mnuLogCol].Click();
    Viewer viewer(part_mode, style);
    for (long line = 1; line <= list->ListCount(); ++line)
      if (list->IsLineVisible(line)) viewer.ShowLine(list->StoredText(line), list->LineLevel(line));
  };
  show(text.substr(0, code), "TEXT", codelist::kTextList);
  if (!options.fold || mode != codelist::kVbList) {
    show(text.substr(code), mode == codelist::kSqlList ? "SQL" : "VB", mode);
  } else {
    for (size_t at = code, end = 0; at < text.size(); at = end) {
      end = EndOfProcedure(text, at);
      show(text.substr(at, end - at), "VB", mode);
    }
  }
  style.End();
  return 0;
}

}  // namespace corvane::cli
