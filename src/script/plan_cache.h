// The plans of the expressions that are evaluated again and again.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "script/expression_plan.h"

namespace corvane::script {

// Looks texts up without a copy of them.
struct TextHash {
  using is_transparent = void;
  size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

template <class Value>
using ByText = std::unordered_map<std::string, Value, TextHash, std::equal_to<>>;

// Remembers which texts were met lately, so that one met once costs nothing more.
class MetBefore {
 public:
  // Whether [text] was met, as far as is known; from now on it was.
  bool operator()(std::string_view text) {
    const size_t hash = TextHash()(text);
    size_t& place = hashes_[hash % hashes_.size()];
    const bool met = place == hash;
    place = hash;
    return met;
  }

 private:
  std::vector<size_t> hashes_ = std::vector<size_t>(4096);
};

class PlanCache {
 public:
  // Null for a text met for the first time, for a long one, and for one that has no plan.
  const ExpressionPlan* Find(std::string_view text);
  bool Holds(std::string_view text) const { return plans_.find(text) != plans_.end(); }
  // Forgets all plans if they are too large together. None may be followed meanwhile.
  void Trim();

 private:
  ByText<std::optional<ExpressionPlan>> plans_;
  size_t size_ = 0;  // bytes of them, about
  MetBefore met_before_;
};

}  // namespace corvane::script
