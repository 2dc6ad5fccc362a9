#include "codelist/line_store.h"

#include <algorithm>
#include <cstring>

namespace corvane::codelist {

namespace {

constexpr size_t kFirstBlock = 4096, kLargestBlock = 1 << 20;

}  // namespace

const char* LineStore::Keep(std::string_view text) {
  if (text.size() > room_) return KeepInNewBlock(text);
  char* place = free_;
  if (!text.empty()) std::memcpy(place, text.data(), text.size());
  free_ += text.size();
  room_ -= text.size();
  return place;
}

const char* LineStore::KeepInNewBlock(std::string_view text) {
  size_t doubled = kFirstBlock << std::min<size_t>(blocks_.size(), 8);
  size_t size = std::max(text.size(), std::min(doubled, kLargestBlock));
  blocks_.push_back(std::make_unique_for_overwrite<char[]>(size));
  free_ = blocks_.back().get();
  room_ = size;
  return Keep(text);
}

void LineStore::Replace(long index, std::string_view text) {
  Line& line = lines_[static_cast<size_t>(index - 1)];
  line.text = Keep(text);
  line.length = Length(text);
}

void LineStore::Clear() {
  lines_.clear();
  blocks_.clear();
  free_ = nullptr;
  room_ = 0;
}

}  // namespace corvane::codelist
