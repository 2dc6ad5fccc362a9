#include "environment/procedure_index.h"

#include <algorithm>
#include <utility>

#include "environment/doubtful_points.h"
#include "environment/lookup.h"
#include "environment/statement.h"

namespace corvane::environment {

namespace {

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

// The lines in front of the first procedure.
class Declarations {
 public:
  void Add(uint32_t number, std::string_view line, bool continuation) {
    if (IsBlank(line) && !continuation) {
      if (from_top_ && comments_from_top_ > 0) last_ = comments_from_top_;
      attached_ = false;
      from_top_ = false;
    } else if (continuation ? in_comment_ : IsComment(line)) {
      in_comment_ = true;
      if (attached_) last_ = number;
      if (from_top_) comments_from_top_ = number;
    } else {
      in_comment_ = false;
      from_top_ = false;
      continuation ? Continue(number) : AddStatement(number, WithoutIndent(line));
    }
  }
  uint32_t Last() const { return last_; }

 private:
  void Continue(uint32_t number) {
    if (attached_) last_ = number;
  }
  void AddStatement(uint32_t number, std::string_view line) {
    attached_ = false;
    if (line.front() == '#') return AddDirective(number, line);
    if (IsProcedureEnd(line)) return;
    Declare(number);
    for (size_t i = blocks_.size(); i > 0 && !blocks_[i - 1]; --i) blocks_[i - 1] = true;  // and so all around it
  }
  // "#End If" belongs to the declarations when there is one in its block.
  void AddDirective(uint32_t number, std::string_view line) {
    std::string_view word = WithoutIndent(line.substr(1));
    if (StartsWithWord(word, "if")) {
      blocks_.push_back(false);
    } else if (StartsWithWord(word, "end") && !blocks_.empty()) {
      if (blocks_.back()) Declare(number);
      blocks_.pop_back();
    } else if (doubtful::kConstDirectiveIsDeclaration && StartsWithWord(word, "const")) {
      Declare(number);
    }
  }
  void Declare(uint32_t number) {
    last_ = number;
    attached_ = true;
  }

  uint32_t last_ = 0;
  uint32_t comments_from_top_ = 0;  // comments from line 1 are declarations once a blank line follows them
  bool attached_ = false;           // directly below a declaration
  bool from_top_ = true;
  bool in_comment_ = false;
  std::vector<bool> blocks_;  // open #If blocks: whether they hold a declaration
};

// The #If blocks around a line, each with the number of its branch.
class Branches {
 public:
  struct Place {
    uint32_t block, branch;
  };
  void Add(std::string_view directive) {
    std::string_view word = WithoutIndent(directive.substr(1));
    if (StartsWithWord(word, "if"))
      open_.push_back({++blocks_, 0});
    else if (open_.empty())
      return;
    else if (StartsWithWord(word, "end"))
      open_.pop_back();
    else if (StartsWithWord(word, "else") || StartsWithWord(word, "elseif"))
      ++open_.back().branch;
  }
  const std::vector<Place>& Here() const { return open_; }
  // Whether this line and one that stood [there] can never be compiled together.
  bool ExcludesFrom(const std::vector<Place>& there) const {
    for (size_t i = 0; i < std::min(open_.size(), there.size()) && open_[i].block == there[i].block; ++i)
      if (open_[i].branch != there[i].branch) return true;
    return false;
  }

 private:
  std::vector<Place> open_;
  uint32_t blocks_ = 0;
};

constexpr uint32_t kMostContinuations = 24;  // of one statement

class Scanner {
 public:
  Scanner(const ModuleText& text, std::vector<Procedure>& procedures) : text_(text), procedures_(procedures) {}

  // Returns the number of declaration lines.
  uint32_t Scan() {
    bool continuation = false;
    uint32_t count = static_cast<uint32_t>(text_.Count());
    for (uint32_t number = 1; number <= count; ++number) {
      std::string_view line = text_.Line(number);
      if (!continuation) AddStatement(number, line);
      if (procedures_.empty()) declarations_.Add(number, line, continuation);
      continuation = IsContinued(line);
    }
    if (procedures_.empty()) return count;
    procedures_.front().start = declarations_.Last() + 1;
    return declarations_.Last();
  }

 private:
  void AddStatement(uint32_t number, std::string_view line) {
    std::string_view statement = WithoutIndent(line);
    if (statement.empty() || statement[0] == '\'') return;
    char first = Lower(statement[0]);
    if (first == '#') return branches_.Add(statement);
    if (in_block_) return FollowBlock(statement);
    if (open_) {
      if ((first == 'e' || (first >= '0' && first <= '9')) && IsProcedureEnd(statement)) return Close(number);
    } else if (BeginsBlock(statement)) {
      return FollowBlock(statement);
    }
    if ((first == 'p' || first == 's' || first == 'f' || first == 'g') && AddHeader(number, line, statement)) return;
    if (open_ && HoldsProcedureEnd(statement)) Close(number);
  }

  // Members of a Type or an Enum may be named like keywords. The whole of it may stand on one line.
  void FollowBlock(std::string_view line) {
    Statements statements(line);
    for (std::string_view statement; statements.Next(statement);)
      in_block_ = in_block_ ? !EndsBlock(statement) : BeginsBlock(statement);
  }

  bool AddHeader(uint32_t number, std::string_view line, std::string_view statement) {
    Procedure procedure;
    ProcedureHeader header;
    if (!FindHeader(number, line, procedure, header)) return false;
    bool alternative = open_ && branches_.ExcludesFrom(open_at_);
    if (!alternative) {
      procedure.behind_end = !open_;
      procedure.start = open_ ? number : last_end_ + 1;
      procedure.body = number;
      procedure.kind = header.kind;
      procedures_.push_back(procedure);
      open_ = true;
      open_at_ = branches_.Here();
    }
    if (HoldsProcedureEnd(statement)) Close(number);
    return true;
  }

  // A header may be continued between its words; the name then stands on a line of its own.
  bool FindHeader(uint32_t number, std::string_view line, Procedure& procedure, ProcedureHeader& header) const {
    procedure.name_line = number;
    if (!ParseProcedureHeader(line, header)) {
      if (!IsContinued(line) || !MayBeginHeader(line)) return false;
      std::string joined;
      size_t start = 0;
      uint32_t last = std::min(number + kMostContinuations, static_cast<uint32_t>(text_.Count()));
      while (number <= last) {
        start = joined.size();
        procedure.name_line = number;
        line = text_.Line(number++);
        joined += line;
        bool more = IsContinued(line);
        if (more) joined[joined.rfind('_')] = ' ';
        if (ParseProcedureHeader(joined, header)) break;
        if (!more) return false;
      }
      if (header.name_length == 0 || header.name_at < start) return false;
      header.name_at -= start;
    }
    procedure.name_at = static_cast<uint32_t>(header.name_at);
    procedure.name_length = static_cast<uint16_t>(std::min<size_t>(header.name_length, 0xFFFF));
    return true;
  }
  void Close(uint32_t number) {
    open_ = false;
    last_end_ = number;
    if (doubtful::kCommentsBelowEndStay)
      while (static_cast<long>(last_end_) < text_.Count() && IsComment(text_.Line(last_end_ + 1))) ++last_end_;
  }

  const ModuleText& text_;
  std::vector<Procedure>& procedures_;
  Declarations declarations_;
  Branches branches_;
  std::vector<Branches::Place> open_at_;  // of the header of the open procedure
  uint32_t last_end_ = 0;
  bool open_ = false, in_block_ = false;
};

}  // namespace

ProcedureIndex::ProcedureIndex(const ModuleText& text) : text_(&text) {
  declaration_lines_ = Scanner(text, procedures_).Scan();
  procedures_.shrink_to_fit();
}

bool ProcedureIndex::Follow(long start, long count, const std::vector<std::string_view>& lines) {
  if (doubtful::kCommentsBelowEndStay || !IsBehindFirstHeader(start) || IsContinued(text_->Line(start - 1)))
    return false;
  for (long line = start; line < start + count; ++line)
    if (!IsPlainLine(text_->Line(line))) return false;
  if (!std::all_of(lines.begin(), lines.end(), IsPlainLine)) return false;
  Shift(start, static_cast<int64_t>(lines.size()) - count);
  return true;
}

bool ProcedureIndex::IsBehindFirstHeader(long line) const {
  return !procedures_.empty() && std::cmp_greater(line, procedures_.front().body) &&
         std::cmp_greater(line, procedures_.front().name_line);
}

void ProcedureIndex::Shift(long start, int64_t by) {
  auto shift = [&](uint32_t& line) { line = static_cast<uint32_t>(line + by); };
  auto first =
      std::lower_bound(procedures_.begin(), procedures_.end(), start,
                       [](const Procedure& procedure, long line) { return std::cmp_less(procedure.body, line); });
  for (; by != 0 && first != procedures_.end(); ++first) {
    // Directly behind the end of the procedure above all lines are those of this one.
    if (std::cmp_greater(first->start, start) || (std::cmp_equal(first->start, start) && !first->behind_end))
      shift(first->start);
    shift(first->body);
    shift(first->name_line);
  }
}

const Procedure* ProcedureIndex::At(long line) const {
  if (line <= declaration_lines_) return nullptr;
  auto behind =
      std::upper_bound(procedures_.begin(), procedures_.end(), line,
                       [](long value, const Procedure& procedure) { return std::cmp_less(value, procedure.start); });
  return behind == procedures_.begin() ? nullptr : &*(behind - 1);
}

uint64_t ProcedureIndex::HashOf(std::string_view name, host::ProcKind kind) const {
  return NameHash(name) * 4 + static_cast<uint64_t>(kind);
}

const Procedure* ProcedureIndex::Find(std::string_view name, host::ProcKind kind) const {
  if (by_name_.empty()) {
    by_name_.reserve(procedures_.size());
    for (const Procedure& procedure : procedures_)
      by_name_.push_back({HashOf(NameOf(procedure), procedure.kind), static_cast<uint32_t>(by_name_.size())});
    std::stable_sort(by_name_.begin(), by_name_.end(),
                     [](const ByName& a, const ByName& b) { return a.hash < b.hash; });
  }
  uint64_t hash = HashOf(name, kind);
  auto found = std::lower_bound(by_name_.begin(), by_name_.end(), hash,
                                [](const ByName& entry, uint64_t value) { return entry.hash < value; });
  for (; found != by_name_.end() && found->hash == hash; ++found) {
    const Procedure& procedure = procedures_[found->position];
    if (procedure.kind == kind && SameName(NameOf(procedure), name)) return &procedure;
  }
  return nullptr;
}

std::string_view ProcedureIndex::NameOf(const Procedure& procedure) const {
  return text_->Line(procedure.name_line).substr(procedure.name_at, procedure.name_length);
}

long ProcedureIndex::LineCountOf(const Procedure& procedure) const {
  size_t next = static_cast<size_t>(&procedure - procedures_.data()) + 1;
  long end = next < procedures_.size() ? static_cast<long>(procedures_[next].start) - 1 : text_->Count();
  return end - static_cast<long>(procedure.start) + 1;
}

}  // namespace corvane::environment
