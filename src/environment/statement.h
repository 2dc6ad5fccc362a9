// Statement: the few words of Visual Basic that the environment itself must know: continued lines, headers and ends of
// procedures, names in declarations. Keywords are matched without case.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "host/code_module.h"

namespace corvane::environment {

// Whether the next physical line belongs to this one: it ends in "_" behind a blank. True of comments too.
bool IsContinued(std::string_view line);

// Blanks and tabs.
std::string_view WithoutIndent(std::string_view line);
bool IsBlank(std::string_view line);
bool IsComment(std::string_view line);  // an apostrophe or Rem at its start

// Whether [text] begins with [word] (in lower case) as a whole word.
bool StartsWithWord(std::string_view text, std::string_view word);

struct ProcedureHeader {
  host::ProcKind kind = host::ProcKind::Proc;
  size_t name_at = 0;  // offset in the text that was parsed
  size_t name_length = 0;
};
// Whether [text] is the header of a Sub, Function or Property (a Declare is none).
bool ParseProcedureHeader(std::string_view text, ProcedureHeader& header);

// Whether [text] starts with End Sub, End Function or End Property, a line number in front allowed.
bool IsProcedureEnd(std::string_view text);
// Whether an End Sub, End Function or End Property stands behind a colon of the line.
bool HoldsProcedureEnd(std::string_view line);

// The statements of a line, cut at its colons, without indent; its comment is left out.
class Statements {
 public:
  explicit Statements(std::string_view line) : line_(line) {}
  bool Next(std::string_view& statement);  // false behind the last one

 private:
  bool IsRemAt(size_t at) const;
  std::string_view line_;
  size_t at_ = 0;
};

// Whether a statement, without indent, begins or ends a Type or an Enum.
bool BeginsBlock(std::string_view statement);
bool EndsBlock(std::string_view statement);

// Whether a line may be the first of a continued header.
bool MayBeginHeader(std::string_view line);
// Whether a line inside or between procedures does nothing to where they start and end, and is not continued.
bool IsPlainLine(std::string_view line);

// Names that a declaration line declares: the procedure, the event, or each variable or constant.
std::vector<std::string_view> DeclaredNames(std::string_view line);

// An Attribute line as files hold it, hidden by the environment: "Attribute Foo.VB_UserMemId = 0".
bool IsAttributeLine(std::string_view line);
// "Foo"; empty for one of the module itself.
std::string_view MemberOfAttribute(std::string_view line);

// Equal for names that are one by SameName of lookup.h.
size_t NameHash(std::string_view name);

}  // namespace corvane::environment
