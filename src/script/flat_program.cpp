#include "script/flat_program.h"

#include <algorithm>

#include "runtime/strings.h"

namespace corvane::script {

namespace {

constexpr std::string_view kSeparators = ": ";
constexpr size_t kLongestStatement = 1100;

// Whether more text behind [rest] would belong to its first item.
bool WouldTakeMore(std::string_view rest, const FlatItem& item) {
  if (item.kind != FlatItem::kStatement) return item.kind != FlatItem::kLabel;
  if (item.size < rest.size()) return false;
  return ReadFlatItem(std::string(rest) + std::string(kLongestStatement, 'x')).size > rest.size();
}

}  // namespace

FlatProgram::FlatProgram(std::string text) : text_(std::move(text)), item_at_(text_.size()) {}

size_t FlatProgram::SkipSeparators(size_t at) const {
  return std::min(text_.find_first_not_of(kSeparators, at), text_.size());
}

ProgramItem& FlatProgram::ItemAt(size_t at) {
  const uint32_t number = item_at_[at];
  return number != 0 ? items_[number - 1] : Decode(at);
}

ProgramItem& FlatProgram::Decode(size_t at) {
  const std::string_view rest = std::string_view(text_).substr(at);
  ProgramItem item;
  static_cast<FlatItem&>(item) = ReadFlatItem(rest);
  item.cut = WouldTakeMore(rest, item);
  item.behind = SkipSeparators(at + item.size);
  item.upper = runtime::UCase(item.text);
  items_.push_back(std::move(item));
  item_at_[at] = static_cast<uint32_t>(items_.size());
  return items_.back();
}

size_t FlatProgram::Find(const std::string& sought, size_t from) {
  const auto [entry, fresh] = places_.try_emplace(sought);
  std::vector<size_t>& places = entry->second;
  if (fresh)
    for (size_t at = text_.find(sought); at != kNowhere; at = text_.find(sought, at + 1)) places.push_back(at);
  const auto found = std::lower_bound(places.begin(), places.end(), from);
  return found == places.end() ? kNowhere : *found;
}

}  // namespace corvane::script
