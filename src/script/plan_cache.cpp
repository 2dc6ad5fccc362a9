#include "script/plan_cache.h"

namespace corvane::script {

namespace {

constexpr size_t kLongest = 2000;
constexpr size_t kMost = 5000;

}  // namespace

const ExpressionPlan* PlanCache::Find(std::string_view text) {
  if (text.size() > kLongest) return nullptr;
  auto found = plans_.find(text);
  if (found == plans_.end()) {
    if (!met_before_(text)) return nullptr;
    found = plans_.emplace(text, PlanExpression(text)).first;
  }
  return found->second ? &*found->second : nullptr;
}

void PlanCache::Trim() {
  if (plans_.size() > kMost) plans_.clear();
}

}  // namespace corvane::script
