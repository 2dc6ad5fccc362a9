#include "environment/statement.h"

#include <cstdint>
#include <cstring>

#include "environment/doubtful_points.h"
#include "runtime/code_page.h"

namespace corvane::environment {

namespace {

bool IsSpace(char c) {
  return c == ' ' || c == '\t';
}
char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
bool IsNameByte(char c) {
  unsigned char byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || (byte >= '0' && byte <= '9') || c == '_' || (Lower(c) >= 'a' && Lower(c) <= 'z');
}

// Reads words of a text from its start.
class Words {
 public:
  explicit Words(std::string_view text) : text_(text) {}

  std::string_view Next() {
    while (at_ < text_.size() && IsSpace(text_[at_])) ++at_;
    start_ = at_;
    if (at_ < text_.size() && text_[at_] == '[') {
      size_t close = text_.find(']', at_);
      at_ = close == std::string_view::npos ? text_.size() : close + 1;
    } else {
      while (at_ < text_.size() && IsNameByte(text_[at_])) ++at_;
    }
    return text_.substr(start_, at_ - start_);
  }
  size_t Start() const { return start_; }
  std::string_view Rest() const { return text_.substr(at_); }

 private:
  std::string_view text_;
  size_t at_ = 0, start_ = 0;
};

bool Is(std::string_view word, std::string_view lower) {
  if (word.size() != lower.size()) return false;
  for (size_t i = 0; i < word.size(); ++i)
    if (Lower(word[i]) != lower[i]) return false;
  return true;
}

bool IsAnyOf(std::string_view word, std::initializer_list<std::string_view> lowers) {
  for (std::string_view lower : lowers)
    if (Is(word, lower)) return true;
  return false;
}

bool IsScope(std::string_view word) {
  return IsAnyOf(word, {"public", "private", "friend", "static", "global"});
}

bool IsTypeSign(char c) {
  return c != '\0' && std::strchr("%&!#@$", c) != nullptr;
}

bool PropertyKind(std::string_view word, host::ProcKind& kind) {
  if (Is(word, "get")) return kind = host::ProcKind::Get, true;
  if (Is(word, "let")) return kind = host::ProcKind::Let, true;
  if (Is(word, "set")) return kind = host::ProcKind::Set, true;
  return false;
}

bool BeginsAName(std::string_view word) {
  return !word.empty() && !(word[0] >= '0' && word[0] <= '9') && !Is(word, "as");
}

std::string_view WithoutBrackets(std::string_view name) {
  return name.size() > 1 && name[0] == '[' ? name.substr(1, name.size() - 2) : name;
}

// "a As Long, b(1, 2) As String, c": a, b, c.
void AddVariableNames(std::string_view list, std::vector<std::string_view>& names) {
  int depth = 0;
  bool expects_name = true;
  for (size_t i = 0; i < list.size(); ++i) {
    char c = list[i];
    if (c == '\'' || c == ':') return;
    if (c == '"') {
      i = std::min(list.find('"', i + 1), list.size() - 1);
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      --depth;
    } else if (c == ',' && depth == 0) {
      expects_name = true;
    } else if (expects_name && !IsSpace(c)) {
      Words words(list.substr(i));
      std::string_view name = words.Next();
      if (name.empty()) return;
      if (!Is(name, "withevents")) {
        names.push_back(WithoutBrackets(name));
        expects_name = false;
      }
      i += name.size() - 1;
    }
  }
}

}  // namespace

bool IsContinued(std::string_view line) {
  size_t last = line.find_last_not_of(" \t");
  return last != std::string_view::npos && line[last] == '_' && (last == 0 || IsSpace(line[last - 1]));
}

std::string_view WithoutIndent(std::string_view line) {
  size_t at = 0;
  while (at < line.size() && IsSpace(line[at])) ++at;
  return line.substr(at);
}

bool IsBlank(std::string_view line) {
  return WithoutIndent(line).empty();
}

bool IsComment(std::string_view line) {
  line = WithoutIndent(line);
  return !line.empty() && (line[0] == '\'' || StartsWithWord(line, "rem"));
}

bool StartsWithWord(std::string_view text, std::string_view word) {
  return text.size() >= word.size() && Is(text.substr(0, word.size()), word) &&
         (text.size() == word.size() || !IsNameByte(text[word.size()]));
}

bool ParseProcedureHeader(std::string_view text, ProcedureHeader& header) {
  Words words(text);
  std::string_view word = words.Next();
  while (IsScope(word)) word = words.Next();
  header.kind = host::ProcKind::Proc;
  if (Is(word, "property")) {
    if (!PropertyKind(words.Next(), header.kind)) return false;
  } else if (!IsAnyOf(word, {"sub", "function"})) {
    return false;
  }
  std::string_view name = words.Next();
  if (!BeginsAName(name)) return false;
  header.name_at = words.Start();
  header.name_length = name.size();
  if constexpr (doubtful::kTypeSignIsPartOfName)
    if (!words.Rest().empty() && IsTypeSign(words.Rest()[0])) ++header.name_length;
  return true;
}

bool IsProcedureEnd(std::string_view text) {
  text = WithoutIndent(text);
  while (!text.empty() && text[0] >= '0' && text[0] <= '9') text.remove_prefix(1);
  Words words(text);
  return Is(words.Next(), "end") && IsAnyOf(words.Next(), {"sub", "function", "property"});
}

// Rem is a keyword: as a word of its own it begins a comment, where it is no member of something.
bool Statements::IsRemAt(size_t at) const {
  if (Lower(line_[at]) != 'r' || !StartsWithWord(line_.substr(at), "rem")) return false;
  char before = at == 0 ? ' ' : line_[at - 1];
  return !IsNameByte(before) && before != '.' && before != '!' && before != '[';
}

bool Statements::Next(std::string_view& statement) {
  if (at_ > line_.size()) return false;
  size_t start = at_;
  bool in_string = false;
  for (; at_ < line_.size(); ++at_) {
    char c = line_[at_];
    if (c == '"') in_string = !in_string;
    if (in_string) continue;
    if (c == ':') break;
    if (c == '\'' || IsRemAt(at_)) {
      statement = WithoutIndent(line_.substr(start, at_ - start));
      at_ = line_.size() + 1;
      return true;
    }
  }
  statement = WithoutIndent(line_.substr(start, at_ - start));
  ++at_;
  return true;
}

bool HoldsProcedureEnd(std::string_view line) {
  if (line.find(':') == std::string_view::npos) return false;
  Statements statements(line);
  std::string_view statement;
  statements.Next(statement);
  while (statements.Next(statement))
    if (IsProcedureEnd(statement)) return true;
  return false;
}

bool BeginsBlock(std::string_view statement) {
  for (std::string_view scope : {"public", "private", "global"})
    if (StartsWithWord(statement, scope)) statement = WithoutIndent(statement.substr(scope.size()));
  return StartsWithWord(statement, "type") || StartsWithWord(statement, "enum");
}

bool EndsBlock(std::string_view statement) {
  if (!StartsWithWord(statement, "end")) return false;
  statement = WithoutIndent(statement.substr(3));
  return StartsWithWord(statement, "type") || StartsWithWord(statement, "enum");
}

bool MayBeginHeader(std::string_view line) {
  line = WithoutIndent(line);
  for (std::string_view word : {"public", "private", "friend", "static", "global", "sub", "function", "property"})
    if (StartsWithWord(line, word)) return true;
  return false;
}

bool IsPlainLine(std::string_view line) {
  line = WithoutIndent(line);
  if (line.empty() || line[0] == '\'') return !IsContinued(line);
  if (line[0] == '#' || MayBeginHeader(line) || IsContinued(line)) return false;
  Statements statements(line);
  for (std::string_view statement; statements.Next(statement);)
    if (IsProcedureEnd(statement) || BeginsBlock(statement) || EndsBlock(statement)) return false;
  return true;
}

std::vector<std::string_view> DeclaredNames(std::string_view line) {
  ProcedureHeader header;
  if (ParseProcedureHeader(line, header)) return {WithoutBrackets(line.substr(header.name_at, header.name_length))};
  std::vector<std::string_view> names;
  Words words(line);
  std::string_view word = words.Next();
  bool declares = false;
  while (IsScope(word) || IsAnyOf(word, {"dim", "const"})) {
    declares = true;
    line = words.Rest();
    word = words.Next();
  }
  if (IsAnyOf(word, {"declare", "enum", "type", "event"})) {
    word = words.Next();
    if (IsAnyOf(word, {"sub", "function"})) word = words.Next();
    if (!word.empty()) names.push_back(WithoutBrackets(word));
  } else if (declares) {
    AddVariableNames(line, names);
  }
  return names;
}

bool IsAttributeLine(std::string_view line) {
  if (!StartsWithWord(line, "attribute") || line.size() < 10 || !IsSpace(line[9])) return false;
  std::string_view rest = WithoutIndent(line.substr(9));
  rest = rest.substr(0, rest.find('='));
  return rest.substr(0, 3) == "VB_" || rest.find(".VB_") != std::string_view::npos;
}

std::string_view MemberOfAttribute(std::string_view line) {
  std::string_view rest = WithoutIndent(line.substr(9));
  size_t dot = rest.find(".VB_");
  return dot == std::string_view::npos || dot > rest.find('=') ? std::string_view() : rest.substr(0, dot);
}

size_t NameHash(std::string_view name) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  uint64_t hash = 1469598103934665603u;
  for (size_t i = 0; i < name.size(); ++i) {
    unsigned char byte = static_cast<unsigned char>(name[i]);
    bool lead = page.IsLead(byte) && i + 1 < name.size();
    hash = (hash ^ (lead ? byte : page.Upper(byte))) * 1099511628211u;
    if (lead) hash = (hash ^ static_cast<unsigned char>(name[++i])) * 1099511628211u;
  }
  return static_cast<size_t>(hash);
}

}  // namespace corvane::environment
