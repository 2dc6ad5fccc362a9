#include "tests/stage/ledger.h"

namespace corvane::stage {

Failure Failure::Error(long number, const std::string& text) {
  return {static_cast<HRESULT>(0x800A0000u + static_cast<unsigned long>(number)), text};
}

std::string Ledger::Left() const {
  std::string text;
  for (const auto& [name, count] : objects_by_name)
    if (count != 0) text += (text.empty() ? "" : ", ") + name + " " + std::to_string(count);
  return text;
}

long Ledger::Calls(const std::string& name) const {
  const auto found = calls_.find(name);
  return found == calls_.end() ? 0 : found->second;
}

void Ledger::ClearCalls() {
  calls_.clear();
  order.clear();
  total_ = 0;
}

void Ledger::FailCall(long nth, Failure failure) {
  until_failure_ = nth;
  planned_ = std::move(failure);
  failed_.clear();
}

void Ledger::Heal() {
  until_failure_ = 0;
  failing_.clear();
  lacking_.clear();
  nothing_.clear();
}

std::optional<Failure> Ledger::Enter(const std::string& name) {
  ++total_;
  ++calls_[name];
  if (keeps_order) order.push_back(name);
  if (GetCurrentThreadId() != thread_) ++alien_calls;
  if (until_failure_ > 0 && --until_failure_ == 0) {
    failed_ = name;
    return planned_;
  }
  const auto failing = failing_.find(name);
  if (Spoils(failing != failing_.end())) return failing->second;
  return std::nullopt;
}

}  // namespace corvane::stage
