#include "forms/toolkit.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "forms/form.h"

namespace corvane::forms {

void Toolkit::Guard(const std::function<void()>& act) noexcept {
  ++acts_;
  const long outer = std::exchange(current_act_, ++last_act_);
  std::string fault;
  try {
    act();
  } catch (const std::exception& error) {
    fault = error.what();
    if (fault.empty()) fault = "unknown error";
  } catch (...) {
    fault = "unknown error";
  }
  --acts_;
  current_act_ = outer;
  try {
    if (!fault.empty() && OnFault) OnFault(fault);
  } catch (...) {
    // A fault that cannot be told must not leave either.
  }
}

void Toolkit::FormShown(Form& form) {
  std::erase(shown_, &form);
  shown_.push_back(&form);
  if (form.IsModal()) modal_.push_back(&form);
}

void Toolkit::Activate(Form& form) {
  if (active_ == &form || IsBlocked(form)) return;
  Form* before = active_;
  active_ = &form;
  std::erase(shown_, &form);
  shown_.push_back(&form);
  if (before) before->LoseActivation();
  if (active_ == &form) form.GainActivation();
}

void Toolkit::FormGone(Form& form, bool tell) {
  std::erase(shown_, &form);
  std::erase(modal_, &form);
  if (active_ != &form) return;
  const auto next = std::find_if(shown_.rbegin(), shown_.rend(), [this](const Form* each) {
    return !IsBlocked(*each) && each->WindowState() != vbMinimized;
  });
  Form* heir = next == shown_.rend() ? nullptr : *next;
  if (!tell || !heir) active_ = nullptr;
  if (!heir) return;
  if (heir->Peer()) heir->Peer()->Activate();
  Activate(*heir);
}

}  // namespace corvane::forms
