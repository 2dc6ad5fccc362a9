#include "codelist/reading.h"

#include <algorithm>

#include "codelist/markup.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

constexpr std::string_view kSeparators = " ,:+-=/\\'\"*&!@#()[];<>%^&?|.";
constexpr size_t kLongestObject = 40;  // characters in which the object of a With is looked for
constexpr std::string_view kEndsOfClass[] = {",", "'", ":", " _"};

bool Separates(char c) {
  return c == kBold || kSeparators.find(c) != std::string_view::npos;
}

std::string BeforeComment(const std::string& line) {
  return line.substr(0, line.find('\''));
}

// What stands behind [found] in [line]; none if it is not there.
std::optional<std::string> Behind(const std::string& line, const std::string& found) {
  const size_t at = line.find(found);
  if (at == std::string::npos) return std::nullopt;
  return line.substr(at + found.size());
}

std::string ClassNamed(std::string text) {
  text = runtime::Trim(text);
  for (const std::string_view end : kEndsOfClass) {
    const size_t at = text.find(end);
    if (at == std::string::npos) continue;
    text.erase(at);
    break;
  }
  if (const auto behind = Behind(text, "NEW ")) text = *behind;
  return runtime::Trim(text);
}

}  // namespace

Word WordAt(std::string_view line, size_t position, bool sql) {
  const std::string text = std::string(line) + ' ';
  const auto signs = [&](size_t at) { return sql && text[at] == '@'; };
  size_t end = std::min(position - 1, text.size() - 1);
  while (signs(end)) ++end;  // the pointer is on the sign of a variable
  while (!Separates(text[end])) ++end;
  size_t start = std::min(position - 1, end);
  for (bool dotted = false; start > 0; --start) {
    const char c = text[start - 1];
    if (c == '.' && !dotted)
      dotted = true;
    else if (Separates(c) && !signs(start - 1))
      break;
  }
  return {text.substr(start, end - start), text.substr(end, 1)};
}

std::string BeforeFirstDot(std::string_view word) {
  return std::string(word.substr(0, word.find('.')));
}

std::string BehindFirstDot(std::string_view word) {
  const size_t dot = word.find('.');
  return std::string(dot == std::string_view::npos ? word : word.substr(dot + 1));
}

std::string ObjectOfWith(const CleanLineOf& clean, long line) {
  std::string looked_at;
  for (; line >= 2; --line) {
    looked_at = BeforeComment(clean(line));
    if (auto object = Behind(looked_at, "With ")) {
      *object += ' ';
      const size_t end = object->find_first_of(" :");
      return end < kLongestObject ? object->substr(0, end) : *object;
    }
  }
  return looked_at;
}

std::optional<long> DeclarationAbove(const CleanLineOf& clean, long line, const std::string& name) {
  const std::string declared = " " + name + " AS ", parameter = "(" + name + " AS ", constant = "CONST " + name + " =";
  for (long above = 1; above < line; ++above) {
    const std::string text = runtime::UCase(clean(above));
    const size_t comment = text.find('\'');
    const std::string_view searched = std::string_view(text).substr(comment == std::string::npos ? 0 : comment + 1);
    for (const std::string* each : {&declared, &parameter, &constant})
      if (searched.find(*each) != std::string_view::npos) return above;
  }
  return std::nullopt;
}

std::string ClassOf(const CleanLineOf& clean, long line, std::string_view object) {
  std::string name = " " + runtime::UCase(object);
  for (long each = 1; each <= line; ++each) {
    const std::string text = BeforeComment(runtime::UCase(clean(each)));
    auto given = Behind(text, name + " AS NEW ");
    if (!given) given = Behind(text, "SET" + name + " = ");
    if (given) name = " " + ClassNamed(*given);
  }
  return runtime::Trim(name);
}

}  // namespace corvane::codelist
