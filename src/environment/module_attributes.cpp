// ModuleText: the hidden Attribute lines, which follow their members through edits.
#include <algorithm>

#include "environment/lookup.h"
#include "environment/module_text.h"
#include "environment/statement.h"

namespace corvane::environment {

namespace {

bool Declares(std::string_view line, std::string_view member) {
  for (std::string_view name : DeclaredNames(line))
    if (SameName(name, member)) return true;
  return false;
}

}  // namespace

// The first and the last physical line of the statement that [line] belongs to.
size_t ModuleText::HeaderStart(size_t line) const {
  while (line > 0 && IsContinued(View(lines_[line - 1]))) --line;
  return line;
}

size_t ModuleText::HeaderEnd(size_t line) const {
  while (line + 1 < lines_.size() && IsContinued(View(lines_[line]))) ++line;
  return line;
}

void ModuleText::MoveAttributes(size_t start, size_t count, const std::vector<std::string_view>& lines) {
  std::vector<Attribute> kept;
  for (Attribute attribute : attributes_) {
    if (attribute.line >= start + count)
      attribute.line = static_cast<uint32_t>(attribute.line - count + lines.size());
    else if (attribute.line >= start && !PlaceAttribute(attribute, start, count, lines)) {
      LoseAttribute(attribute);
      continue;
    }
    kept.push_back(attribute);
  }
  std::stable_sort(kept.begin(), kept.end(), [](const Attribute& a, const Attribute& b) { return a.line < b.line; });
  attributes_ = std::move(kept);
}

// Finds the new place of an attribute whose line is replaced. False when its member is gone.
bool ModuleText::PlaceAttribute(Attribute& attribute, size_t start, size_t count,
                                const std::vector<std::string_view>& lines) const {
  std::string_view member = MemberOfAttribute(View(attribute.text));
  for (size_t i = 0; i < lines.size(); ++i) {
    if (!Declares(lines[i], member)) continue;
    while (i + 1 < lines.size() && IsContinued(lines[i])) ++i;
    attribute.line = static_cast<uint32_t>(start + i);
    return true;
  }
  if (lines.size() == count) return attribute.touched = true;
  size_t header = HeaderStart(attribute.line);
  if (header >= start) return false;
  attribute.line = static_cast<uint32_t>(start - 1);
  for (size_t i = 0; i < lines.size() && IsContinued(i == 0 ? View(lines_[start - 1]) : lines[i - 1]); ++i)
    ++attribute.line;
  return true;
}

void ModuleText::LoseAttribute(const Attribute& attribute) {
  std::string_view text = View(attribute.text), member = MemberOfAttribute(text);
  auto same = [&](const Lost& lost) { return SameName(lost.member, member); };
  auto found = std::find_if(lost_.begin(), lost_.end(), same);
  if (found == lost_.end()) found = lost_.insert(lost_.end(), {std::string(member), {}});
  found->lines.emplace_back(text);
}

void ModuleText::Revive(size_t start, size_t count) {
  for (size_t i = start; i < start + count; ++i) {
    auto declared = [&](const Lost& lost) { return Declares(View(lines_[i]), lost.member); };
    auto found = std::find_if(lost_.begin(), lost_.end(), declared);
    if (found == lost_.end()) continue;
    auto line = static_cast<uint32_t>(HeaderEnd(i));
    auto before = [](uint32_t value, const Attribute& attribute) { return value < attribute.line; };
    auto at = std::upper_bound(attributes_.begin(), attributes_.end(), line, before);
    for (const std::string& text : found->lines) at = attributes_.insert(at, {line, Keep(text)}) + 1;
    lost_.erase(found);
  }
}

// An attribute names its member: where the member was renamed the name follows, where the line declares nothing any
// more the attribute is left out, as the environment could not read it. Returns where the text of the line ends in
// [out], 0 where there is none.
size_t ModuleText::WriteAttribute(std::string& out, const Attribute& attribute) const {
  if (!attribute.touched) return WriteLine(out, attribute.text);
  std::vector<std::string_view> names = DeclaredNames(View(lines_[HeaderStart(attribute.line)]));
  std::string_view text = View(attribute.text), member = MemberOfAttribute(text);
  for (std::string_view name : names)
    if (SameName(name, member)) return WriteLine(out, attribute.text);
  if (names.size() != 1 || member.empty()) return 0;
  size_t at = static_cast<size_t>(member.data() - text.data());
  out.append(text, 0, at).append(names[0]).append(text.substr(at + member.size()));
  size_t end = out.size();
  out += line_end_;
  return end;
}

}  // namespace corvane::environment
