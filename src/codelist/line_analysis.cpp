#include "codelist/line_analysis.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "codelist/keyword_tables.h"
#include "codelist/markup.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

using UpperTable = std::array<unsigned char, 256>;

size_t Index(char c) {
  return static_cast<unsigned char>(c);
}

// What a row writes, and how it is found, made ready once.
struct Rule {
  KeywordRow row;
  std::string written;
};

// The rules of a language by the first letter of their match. Most words are told apart by their second letter.
class Rules {
 public:
  explicit Rules(std::span<const KeywordRow> rows) {
    for (const KeywordRow& row : rows) {
      ByLetter& letter = letters_[Index(row.match[0])];
      if (letter.count == 0) letter.first = static_cast<uint16_t>(rules_.size());
      ++letter.count;
      letter.second_letters |= Bit(row.match[1]);
      rules_.push_back({row, Written(row)});
    }
  }

  // The first rule whose words stand at [i], or null. [holds] answers for the conditions of a rule.
  template <class Holds>
  const Rule* Match(std::string_view line, size_t i, const UpperTable& upper, Holds&& holds) const {
    const ByLetter& letter = letters_[upper[Index(line[i])]];
    if (letter.count == 0 || !(letter.second_letters & Bit(UpperAt(line, i + 1, upper)))) return nullptr;
    for (const Rule *rule = &rules_[letter.first], *end = rule + letter.count; rule != end; ++rule)
      if (Fits(rule->row, line, i, upper) && holds(rule->row.condition)) return rule;
    return nullptr;
  }

 private:
  struct ByLetter {
    uint16_t first = 0, count = 0;
    uint32_t second_letters = 0;
  };

  static uint32_t Bit(char c) { return uint32_t{1} << (Index(c) & 31); }

  static std::string Written(const KeywordRow& row) {
    std::string written;
    if (row.marking == Marking::Closing) written += kLevelDown;
    if (row.marking != Marking::Plain) written += kBold;
    return written.append(row.form) += row.last;
  }

  // The line counts as followed by blanks.
  static char UpperAt(std::string_view line, size_t i, const UpperTable& upper) {
    return i < line.size() ? static_cast<char>(upper[Index(line[i])]) : ' ';
  }

  static bool Fits(const KeywordRow& row, std::string_view line, size_t i, const UpperTable& upper) {
    for (size_t k = 1; k < row.match.size(); ++k)
      if (UpperAt(line, i + k, upper) != row.match[k]) return false;
    return row.next.empty() || row.next.find(UpperAt(line, i + row.match.size(), upper)) != std::string_view::npos;
  }

  std::array<ByLetter, 256> letters_{};
  std::vector<Rule> rules_;
};

const Rules& VbRules() {
  static const Rules rules(VbKeywords());
  return rules;
}

const Rules& SqlRules() {
  static const Rules rules(SqlKeywords());
  return rules;
}

// The characters at which a walk has to decide something.
constexpr std::array<bool, 256> SetOf(std::string_view characters) {
  std::array<bool, 256> set{};
  for (char c : characters) set[static_cast<unsigned char>(c)] = true;
  return set;
}
constexpr auto kVbDecides = SetOf("\"\t' :#");
constexpr auto kSqlDecides = SetOf("\"\t'()/- \\=+");
constexpr auto kSqlStringDecides = SetOf("\"\t'");
constexpr auto kSqlCommentDecides = SetOf("\"\t'*");

// One line on its way into the buffer: what is read and not yet written is copied in one piece when something else has
// to be written.
class Walk {
 public:
  Walk(std::string_view line, LineBuffer& buffer) : line_(line), buffer_(buffer) {}

  bool AtEnd() const { return i >= line_.size(); }
  char Current() const { return line_[i]; }
  bool StandsAt(std::string_view text) const { return line_.substr(i, text.size()) == text; }
  std::string_view Line() const { return line_; }

  void RunTo(const std::array<bool, 256>& decides) {
    while (i < line_.size() && !decides[Index(line_[i])]) ++i;
  }

  // Over a separator and the blanks behind it.
  void SkipBlanks() {
    do ++i;
    while (i < line_.size() && line_[i] == ' ');
  }

  // From an opening quote to behind the closing one.
  void SkipString() {
    size_t closing = line_.find('"', i + 1);
    i = closing == std::string_view::npos ? line_.size() : closing + 1;
  }

  // Writes [text] in place of the next [consumed] characters.
  void Replace(std::string_view text, size_t consumed) {
    Flush();
    std::memcpy(out_, text.data(), text.size());
    out_ += text.size();
    i = copied_ = std::min(line_.size(), i + consumed);
  }

  // A tab becomes five blanks.
  void WriteTab() { Replace("     ", 1); }

  // The rest of the line goes over as it is.
  std::string_view Finish() {
    if (!start_) return line_;
    i = line_.size();
    Flush();
    return {start_, static_cast<size_t>(out_ - start_)};
  }

  size_t i = 0;

 private:
  // Five characters out of one is the most (a tab); one rule or mark may go beyond at the end of the line.
  static size_t Room(size_t length) { return 5 * length + 32; }

  void Flush() {
    if (!start_) start_ = out_ = buffer_.Reserve(Room(line_.size()));
    size_t count = i - copied_;
    if (count == 0) return;
    std::memcpy(out_, line_.data() + copied_, count);
    out_ += count;
    copied_ = i;
  }

  std::string_view line_;
  LineBuffer& buffer_;
  size_t copied_ = 0;
  char* start_ = nullptr;
  char* out_ = nullptr;
};

void MarkBlockComment(const AnalysisState& state, Walk& walk) {
  if (state.inBlockComment) walk.Replace(std::string_view(&kBlockComment, 1), 0);
}

class VbWalk {
 public:
  VbWalk(AnalysisState& state, std::string_view line, LineBuffer& buffer) : state_(state), walk_(line, buffer) {}

  std::string_view Analyse() {
    MarkBlockComment(state_, walk_);
    bool word_start = !state_.inBlockComment;
    while (!walk_.AtEnd()) {
      if (word_start && TakeKeyword()) {
        word_start = false;
        continue;
      }
      CopyRun();
      if (walk_.AtEnd()) break;
      switch (walk_.Current()) {
        case '"':
          walk_.SkipString();
          word_start = false;
          break;
        case '\t':
          walk_.WriteTab();
          word_start = true;
          break;
        case '\'':
          CloseThen();
          return walk_.Finish();
        default:  // a separator
          walk_.SkipBlanks();
          word_start = true;
      }
    }
    CloseThen();
    return walk_.Finish();
  }

 private:
  bool IsFromA(char c) const { return upper_[Index(c)] >= 'A'; }

  bool TakeKeyword() {
    const Rule* rule = rules_.Match(walk_.Line(), walk_.i, upper_, [this](Condition c) { return Holds(c); });
    if (!rule) return false;
    if (thenState_ == 1 && IsFromA(walk_.Current())) thenState_ = 2;
    if (rule->row.effect == Effect::EndsProcedure) {
      state_.endOfProc = true;
      return false;
    }
    walk_.Replace(rule->written, static_cast<size_t>(rule->row.consumed));
    if (rule->row.effect == Effect::MeetsThen) thenState_ = 1;
    return true;
  }

  // "Open x For Input As 1" is no loop.
  bool Holds(Condition condition) {
    if (condition != Condition::NoOpenBefore) return true;
    if (!firstOpen_) firstOpen_ = FirstOpen();
    return *firstOpen_ > walk_.i;
  }

  // The end of the line when there is none.
  size_t FirstOpen() const {
    constexpr std::string_view kOpen = "OPEN ";
    const std::string_view line = walk_.Line();
    auto same = [this](char c, char k) { return upper_[Index(c)] == Index(k); };
    return static_cast<size_t>(std::search(line.begin(), line.end(), kOpen.begin(), kOpen.end(), same) - line.begin());
  }

  void CopyRun() {
    size_t start = walk_.i;
    walk_.RunTo(kVbDecides);
    if (thenState_ != 1) return;
    std::string_view run = walk_.Line().substr(start, walk_.i - start);
    if (std::any_of(run.begin(), run.end(), [this](char c) { return IsFromA(c); })) thenState_ = 2;
  }

  // A one-line If ends with its line.
  void CloseThen() {
    if (thenState_ > 1) walk_.Replace(kLevelDown, 0);
  }

  const Rules& rules_ = VbRules();
  const UpperTable& upper_ = runtime::AnsiCodePage().UpperTable();
  AnalysisState& state_;
  Walk walk_;
  int thenState_ = 0;                // 1 behind a "Then", 2 when a statement follows it
  std::optional<size_t> firstOpen_;  // looked for once, at the first "For" of the line
};

class SqlWalk {
 public:
  SqlWalk(AnalysisState& state, std::string_view line, LineBuffer& buffer) : state_(state), walk_(line, buffer) {}

  std::string_view Analyse() {
    MarkBlockComment(state_, walk_);
    word_start_ = !state_.inBlockComment;
    while (!walk_.AtEnd()) {
      const bool in_code = !inSqlString_ && !state_.inBlockComment;
      if (in_code && word_start_ && TakeKeyword()) continue;
      walk_.RunTo(in_code ? kSqlDecides : inSqlString_ ? kSqlStringDecides : kSqlCommentDecides);
      if (walk_.AtEnd() || !(in_code ? Code() : Quoted())) break;
    }
    return walk_.Finish();
  }

 private:
  bool TakeKeyword() {
    const Rule* rule = rules_.Match(walk_.Line(), walk_.i, upper_, [this](Condition c) { return Holds(c); });
    if (!rule) return false;
    if (rule->row.effect == Effect::EntersCase) state_.sqlInCase = true;
    if (rule->row.effect == Effect::LeavesCase) state_.sqlInCase = false;
    walk_.Replace(rule->written, static_cast<size_t>(rule->row.consumed));
    word_start_ = rule->row.blank_behind;
    return true;
  }

  bool Holds(Condition condition) const {
    return condition == Condition::None || (condition == Condition::InCase) == state_.sqlInCase;
  }

  // One deciding character outside strings and comments; false where the rest of the line is taken as it is.
  bool Code() {
    if (walk_.StandsAt("/*")) {
      state_.inBlockComment = !runtime::Holds(walk_.Line(), "*/");
      return false;
    }
    if (walk_.StandsAt("--")) return false;
    const char c = walk_.Current();
    switch (c) {
      case '"':
      case '\t':
      case '\'':
        return Quoted();
      case '(':
        walk_.Replace("(/+\\", 1);
        break;
      case ')':
        walk_.Replace("/-\\)", 1);
        break;
      case '/':
      case '-':
        ++walk_.i;
        break;
      default:  // a separator
        walk_.SkipBlanks();
    }
    word_start_ = c != ')' && c != '/' && c != '-';
    return true;
  }

  // One character that also strings and comments look at. An apostrophe inside a comment starts a string all the same.
  bool Quoted() {
    word_start_ = false;
    switch (walk_.Current()) {
      case '"':
        walk_.SkipString();
        return true;
      case '\t':
        walk_.WriteTab();
        word_start_ = true;
        return true;
      case '\'':
        inSqlString_ = !inSqlString_;
        break;
      default:
        if (walk_.StandsAt("*/")) state_.inBlockComment = false;
    }
    ++walk_.i;
    return true;
  }

  const Rules& rules_ = SqlRules();
  const UpperTable& upper_ = runtime::AnsiCodePage().UpperTable();
  AnalysisState& state_;
  Walk walk_;
  bool inSqlString_ = false, word_start_ = true;
};

}  // namespace

char* LineBuffer::Reserve(size_t size) {
  if (size > size_) {
    size_ = std::max(size, 2 * size_);
    bytes_ = std::make_unique_for_overwrite<char[]>(size_);
  }
  return bytes_.get();
}

std::string_view AnalyseLine(Language language, AnalysisState& state, std::string_view line, LineBuffer& buffer) {
  return language == Language::Sql ? SqlWalk(state, line, buffer).Analyse() : VbWalk(state, line, buffer).Analyse();
}

bool EndsProcedure(std::string_view line) {
  line = line.substr(0, line.find('\''));
  line = line.substr(0, line.find('"'));
  if (line.size() < 7) return false;
  std::string upper = runtime::UCase(line);
  return runtime::Holds(upper, "END SUB") || runtime::Holds(upper, "END FUNCT") || runtime::Holds(upper, "END PROPE");
}

}  // namespace corvane::codelist
