// MemoryUse: adds up what the values of a script hold, each shared text once.
#pragma once

#include <cstddef>
#include <unordered_set>
#include <vector>

#include "script/cell.h"

namespace corvane::script {

class MemoryUse {
 public:
  void Add(size_t bytes) { total_ += bytes; }
  void Add(const Cell& value);
  void Add(const std::vector<Cell>& values);

  size_t Total() const { return total_; }

 private:
  size_t total_ = 0;
  std::unordered_set<const void*> shared_;
};

}  // namespace corvane::script
