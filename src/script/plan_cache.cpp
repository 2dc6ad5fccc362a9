#include "script/plan_cache.h"

namespace corvane::script {

namespace {

constexpr size_t kLongest = 2000;
constexpr size_t kLargest = 256u << 10;  // bytes of a plan, about
constexpr size_t kMost = 16u << 20;      // bytes of all
constexpr size_t kSizeOfEntry = 200;

size_t SizeOf(const ExpressionPlan& plan) {
  size_t size = kSizeOfEntry;
  for (const PlannedStep& step : plan.steps)
    size += sizeof(PlannedStep) + step.terms.size() * sizeof(PlannedTerm) + step.part.size() + step.part_before.size() +
            step.working.size() + step.working_before.size();
  return size;
}

}  // namespace

const ExpressionPlan* PlanCache::Find(std::string_view text) {
  if (text.size() > kLongest) return nullptr;
  auto found = plans_.find(text);
  if (found == plans_.end()) {
    if (!met_before_(text)) return nullptr;
    auto plan = PlanExpression(text);
    if (plan && SizeOf(*plan) > kLargest) plan.reset();
    size_ += text.size() + (plan ? SizeOf(*plan) : kSizeOfEntry);
    found = plans_.emplace(text, std::move(plan)).first;
  }
  return found->second ? &*found->second : nullptr;
}

void PlanCache::Trim() {
  if (size_ <= kMost) return;
  plans_.clear();
  size_ = 0;
}

}  // namespace corvane::script
