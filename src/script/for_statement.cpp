#include "script/for_statement.h"

#include "runtime/strings.h"

namespace corvane::script {

using runtime::InStr;
using runtime::Left;
using runtime::Mid;
using runtime::Trim;
using runtime::UCase;

namespace {

std::string WithoutColon(std::string text) {
  if (!text.empty() && text.back() == ':') text.pop_back();
  return text;
}

}  // namespace

std::optional<ForParts> ReadFor(const std::string& statement) {
  const std::string text = Trim(Mid(statement, 5));
  const long to = InStr(UCase(text), " TO ");
  if (to < 2) return std::nullopt;
  const std::string init = Left(text, to - 1), rest = Mid(text, to + 4);
  const long equals = InStr(init, "=");
  if (equals < 2) return std::nullopt;
  const long step = InStr(UCase(rest), " STEP");
  ForParts parts{init, Trim(Left(init, equals - 1)), rest, "1"};
  if (step > 0) {
    parts.limit = Left(rest, step - 1);
    parts.step = WithoutColon(Trim(Mid(rest, step + 5)));
  }
  parts.limit = WithoutColon(Trim(parts.limit));
  if (parts.limit.empty()) return std::nullopt;
  return parts;
}

}  // namespace corvane::script
