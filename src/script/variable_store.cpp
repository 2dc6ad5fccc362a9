#include "script/variable_store.h"

#include <utility>

#include "runtime/find_text.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

constexpr std::string_view kEntry = "<(_";
constexpr uint64_t kBase = 0x9E3779B97F4A7C15u;
constexpr long kMostCells = 50'000'000;  // what a reference may say, so that a damaged text reserves nothing

// A hash that grows to the left: that of a longer name goes on from that of its end.
struct EndHash {
  uint64_t value = 0, weight = 1;
  void Prepend(char c) {
    value += (static_cast<unsigned char>(c) + 1u) * weight;
    weight *= kBase;
  }
};

uint64_t HashOf(std::string_view name) {
  EndHash hash;
  for (size_t at = name.size(); at-- > 0;) hash.Prepend(name[at]);
  return hash.value;
}

bool EndsWith(std::string_view text, size_t end, std::string_view tail) {
  return end >= tail.size() && text.substr(end - tail.size(), tail.size()) == tail;
}

long PlaceBehind(std::string_view text, const std::string& key) {
  const size_t at = runtime::FindFirst(text, key);
  return at == std::string_view::npos ? 0 : static_cast<long>(at + key.size()) + 1;
}

std::string ThreeDigits(long number) {
  std::string digits = std::to_string(number);
  return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

}  // namespace

std::string LocalName(std::string_view name, int depth) {
  std::string local(name);
  if (depth > 0) local.append("__").append(std::to_string(depth));
  return local;
}

void VariableStore::Index::Clear() {
  mentions_.clear();
  by_hash_.clear();
}

void VariableStore::Index::Add(const Mention& mention) {
  by_hash_[mention.hash].push_back(static_cast<uint32_t>(mentions_.size()));
  mentions_.push_back(mention);
}

template <class Forgotten>
void VariableStore::Index::CutTo(size_t length, size_t behind, Forgotten&& forgotten) {
  for (; !mentions_.empty() && mentions_.back().equals + behind > length; mentions_.pop_back()) {
    auto found = by_hash_.find(mentions_.back().hash);
    found->second.pop_back();
    if (found->second.empty()) by_hash_.erase(found);
    forgotten(mentions_.back());
  }
}

const VariableStore::Mention* VariableStore::Index::First(std::string_view text, std::string_view name) const {
  const auto found = by_hash_.find(HashOf(name));
  if (found == by_hash_.end()) return nullptr;
  for (uint32_t number : found->second) {
    const Mention& mention = mentions_[number];
    if (text.substr(mention.name, mention.equals - mention.name) == name) return &mention;
  }
  return nullptr;
}

void VariableStore::Clear() {
  text_.clear();
  values_.assign(1, Cell());
  count_ = 0;
  open_.clear();
  last_reference_ = 0;
  reading_.Clear();
  storing_.Clear();
  ++generation_;
}

void VariableStore::AppendConstant(std::string_view line) {
  Append(std::string(kEntry).append(line));
}

long VariableStore::Declare(std::string_view name) {
  ++count_;
  if (static_cast<long>(values_.size()) <= count_) values_.resize(static_cast<size_t>(count_) + 1);
  values_[static_cast<size_t>(count_)] = 0;
  Append(std::string(kEntry).append(name).append("=").append(1, listSep).append(ThreeDigits(count_)));
  return count_;
}

void VariableStore::Append(std::string_view more) {
  const size_t from = text_.size();
  text_.append(more);
  Scan(from);
  ++generation_;
}

void VariableStore::Scan(size_t from) {
  for (size_t at = from; at < text_.size(); ++at) {
    const char c = text_[at];
    if (c == '_' && EndsWith(text_, at + 1, kEntry)) open_.push_back(at + 1);
    if (c == '=') {
      for (size_t name : open_) reading_.Add({HashOf(std::string_view(text_).substr(name, at - name)), name, at});
      open_.clear();
    }
    if (c == listSep && at > 0 && text_[at - 1] == '=') MentionNamesBefore(at - 1);
  }
}

// Each "_" since the last reference starts a name that ends here.
void VariableStore::MentionNamesBefore(size_t equals) {
  EndHash hash;
  for (size_t at = equals; at-- > last_reference_;) {
    if (text_[at] == '_') storing_.Add({hash.value, at + 1, equals});
    hash.Prepend(text_[at]);
  }
  last_reference_ = equals + 2;
}

void VariableStore::CutTo(size_t length, long varCount) {
  count_ = varCount;
  if (length >= text_.size()) return;
  text_.resize(length);
  std::erase_if(open_, [&](size_t name) { return name > length; });
  reading_.CutTo(length, 1, [&](const Mention& mention) {
    if (mention.name <= length) open_.push_back(mention.name);
  });
  storing_.CutTo(length, 2, [](const Mention&) {});
  if (last_reference_ > length) {
    const size_t at = text_.rfind(std::string{'=', listSep});
    last_reference_ = at == std::string::npos ? 0 : at + 2;
  }
  ++generation_;
}

long VariableStore::FindForReading(std::string_view name) const {
  if (name.find('=') != std::string_view::npos) return PlaceBehind(text_, std::string(kEntry).append(name).append("="));
  const Mention* mention = reading_.First(text_, name);
  return mention ? static_cast<long>(mention->equals) + 2 : 0;
}

long VariableStore::FindForStoring(std::string_view name) const {
  if (name.find(std::string{'=', listSep}) != std::string_view::npos) {
    const long behind = PlaceBehind(text_, std::string("_").append(name).append("=").append(1, listSep));
    return behind == 0 ? 0 : behind - 1;
  }
  const Mention* mention = storing_.First(text_, name);
  return mention ? static_cast<long>(mention->equals) + 2 : 0;
}

long VariableStore::CellNumberAt(long place) const {
  size_t at = static_cast<size_t>(place) - 1;
  if (at >= text_.size() || text_[at] != listSep) return 0;
  long number = 0;
  for (++at; at < text_.size() && text_[at] >= '0' && text_[at] <= '9' && number < kMostCells; ++at)
    number = number * 10 + (text_[at] - '0');
  return number;
}

std::string_view VariableStore::ValueAt(long place) const {
  const size_t at = static_cast<size_t>(place) - 1;
  const size_t end = text_.find(kEntry, at);
  return std::string_view(text_).substr(at, end == std::string::npos ? end : end - at);
}

long VariableStore::FindVisible(std::string_view name, int depth) const {
  if (depth > 0)
    if (const long place = FindForReading(LocalName(name, depth))) return place;
  return FindForReading(name);
}

long VariableStore::CellForStoring(std::string_view name, int depth) const {
  long place = depth > 0 ? FindForStoring(LocalName(name, depth)) : 0;
  if (place == 0) place = FindForStoring(name);
  return place == 0 ? 0 : CellNumberAt(place);
}

void VariableStore::AddTo(MemoryUse& use) const {
  constexpr size_t kSizeOfMention = sizeof(Mention) + 2 * sizeof(uint32_t);
  use.Add(text_.capacity() + kSizeOfMention * (reading_.Size() + storing_.Size()));
  use.Add(values_);
}

const Cell& VariableStore::Value(long cell) const {
  return values_[HasCell(cell) ? static_cast<size_t>(cell) : 0];
}

void VariableStore::Store(long cell, Cell value) {
  if (HasCell(cell)) values_[static_cast<size_t>(cell)] = std::move(value);
}

}  // namespace corvane::script
