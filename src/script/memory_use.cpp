#include "script/memory_use.h"

namespace corvane::script {

void MemoryUse::Add(const Cell& value) {
  const auto* text = std::get_if<Text>(&value);
  if (text == nullptr || text->SharedText() == nullptr) return;
  if (shared_.insert(text->SharedText()).second) total_ += text->SharedText()->capacity();
}

void MemoryUse::Add(const std::vector<Cell>& values) {
  total_ += values.capacity() * sizeof(Cell);
  for (const Cell& value : values) Add(value);
}

}  // namespace corvane::script
