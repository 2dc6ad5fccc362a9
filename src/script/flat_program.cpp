#include "script/flat_program.h"

#include <algorithm>

#include "runtime/find_text.h"
#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

constexpr std::string_view kSeparators = ": ";
constexpr size_t kLongestStatement = 1100;
constexpr std::string_view kEndIf = "END IF:";

// Whether more text behind [rest] would belong to its first item.
bool WouldTakeMore(std::string_view rest, const FlatItem& item) {
  if (item.kind != FlatItem::kStatement) return item.kind != FlatItem::kLabel;
  if (item.size < rest.size()) return false;
  return ReadFlatItem(std::string(rest) + std::string(kLongestStatement, 'x')).size > rest.size();
}

}  // namespace

bool IsLabel(std::string_view sought) {
  return sought.size() >= 2 && sought.front() == labelMark && sought.find(':') == sought.size() - 1;
}

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
  if (IsLabel(sought)) return FindLabel(sought, from, {});
  if (runtime::BeginsWith(sought, kEndIf) && IsLabel(std::string_view(sought).substr(kEndIf.size())))
    return FindLabel(std::string_view(sought).substr(kEndIf.size()), from, kEndIf);
  if (last_.sought != sought || from < last_.from || from > last_.at)
    last_ = {sought, from, runtime::FindFirst(text_, sought, from)};
  return last_.at;
}

// First place at or behind [from] of [before] with the label behind it.
size_t FlatProgram::FindLabel(std::string_view label, size_t from, std::string_view before) {
  const auto entry = Labels().find(label);
  if (entry == labels_.end()) return kNowhere;
  const std::vector<size_t>& places = entry->second;
  for (auto at = std::lower_bound(places.begin(), places.end(), from + before.size()); at != places.end(); ++at)
    if (text_.compare(*at - before.size(), before.size(), before) == 0) return *at - before.size();
  return kNowhere;
}

const FlatProgram::LabelPlaces& FlatProgram::Labels() {
  if (!labels_known_) CollectLabels();
  return labels_;
}

void FlatProgram::CollectLabels() {
  labels_known_ = true;
  for (size_t at = text_.find(labelMark); at != kNowhere; at = text_.find(labelMark, at + 1)) {
    const size_t end = text_.find(':', at);
    if (end == kNowhere) return;
    labels_[std::string_view(text_).substr(at, end + 1 - at)].push_back(at);
  }
}

}  // namespace corvane::script
