// Focus and Tab order of a form.
#include <algorithm>
#include <utility>

#include "forms/controls.h"

namespace corvane::forms {

namespace {

// The user control that holds [control], or null for one that stands on the form itself.
UserControl* ScopeOf(const Control& control) {
  for (Control* holder = control.ContainerOf().AsControl(); holder; holder = holder->ContainerOf().AsControl()) {
    if (auto* scope = dynamic_cast<UserControl*>(holder)) return scope;
  }
  return nullptr;
}

// [control] and the user controls around it, from the inside out.
std::vector<Control*> WithScopes(Control* control) {
  std::vector<Control*> chain;
  for (; control; control = ScopeOf(*control)) chain.push_back(control);
  return chain;
}

bool Holds(const std::vector<Control*>& list, const Control* control) {
  return std::find(list.begin(), list.end(), control) != list.end();
}

bool IsWithin(const Control* control, const Control& holder) {
  for (; control; control = control->ContainerOf().AsControl()) {
    if (control == &holder) return true;
  }
  return false;
}

// All controls whose scope is that of [container], by TabIndex.
std::vector<Control*> OfScope(const Container& container) {
  std::vector<Control*> found;
  const auto gather = [&found](auto&& self, const Container& holder) -> void {
    for (Control* child : holder.Controls()) {
      found.push_back(child);
      if (child->Kind() == ControlKind::UserControl) continue;
      if (const auto* inner = dynamic_cast<const Container*>(child)) self(self, *inner);
    }
  };
  gather(gather, container);
  std::stable_sort(found.begin(), found.end(),
                   [](const Control* left, const Control* right) { return left->TabIndex() < right->TabIndex(); });
  return found;
}

void AppendTabOrder(const Container& container, std::vector<Control*>& order) {
  for (Control* control : OfScope(container)) {
    order.push_back(control);
    if (control->Kind() == ControlKind::UserControl) AppendTabOrder(dynamic_cast<const Container&>(*control), order);
  }
}

bool CanStop(const Control& control) {
  return control.CanTakeFocus() && control.IsShown() && control.IsActive();
}

// A group of options is one stop: the chosen one, or the first when none is chosen.
bool IsGroupsStop(const OptionButton& option, const std::vector<Control*>& order) {
  if (option.Value()) return true;
  for (Control* other : order) {
    auto* sibling = dynamic_cast<OptionButton*>(other);
    if (!sibling || &sibling->ContainerOf() != &option.ContainerOf() || !CanStop(*sibling)) continue;
    if (sibling->Value()) return false;
  }
  const auto first = std::find_if(order.begin(), order.end(), [&](const Control* other) {
    return other->Kind() == ControlKind::OptionButton && &other->ContainerOf() == &option.ContainerOf() &&
           CanStop(*other);
  });
  return first != order.end() && *first == &option;
}

bool IsTabStop(const Control& control, const std::vector<Control*>& order) {
  if (!CanStop(control) || !control.TabStop()) return false;
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return IsGroupsStop(*option, order);
  return true;
}

// A user control that holds a control which can take the focus gives it on.
Control* FocusTarget(Control& control) {
  if (control.Kind() != ControlKind::UserControl) return &control;
  std::vector<Control*> inner;
  AppendTabOrder(dynamic_cast<const Container&>(control), inner);
  for (Control* each : inner) {
    if (each->Kind() != ControlKind::UserControl && CanStop(*each) && each->TabStop()) return each;
  }
  return &control;
}

}  // namespace

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order;
  AppendTabOrder(*this, order);
  return order;
}

// The next control in Tab order, round the end; null when there is none.
Control* Form::NextStop(Control* from, int direction) const {
  const std::vector<Control*> order = TabOrder();
  const long count = static_cast<long>(order.size());
  const auto at = std::find(order.begin(), order.end(), from);
  long place = at == order.end() ? (direction > 0 ? -1 : count) : at - order.begin();
  for (long step = 0; step < count; ++step) {
    place = (place + direction + count) % count;
    if (order[place] == from) break;
    if (IsTabStop(*order[place], order) && FocusTarget(*order[place]) == order[place]) return order[place];
  }
  return nullptr;
}

// As Visual Basic numbers: the control takes the number, those behind it move on.
void Form::Renumber(Control& control, int tab_index) {
  if (tab_index < 0) throw Error(runtime::kInvalidPropertyValue);
  UserControl* scope = ScopeOf(control);
  std::vector<Control*> order = OfScope(scope ? static_cast<const Container&>(*scope) : *this);
  std::erase(order, &control);
  const size_t place = std::min(order.size(), static_cast<size_t>(tab_index));
  order.insert(order.begin() + static_cast<long>(place), &control);
  for (size_t index = 0; index < order.size(); ++index) {
    if (std::exchange(order[index]->tab_index_, static_cast<int>(index)) != static_cast<int>(index)) {
      order[index]->Changed(Property::TabIndex);
    }
  }
}

void Control::SetFocus() {
  if (!form_->Visible() || !IsShown() || !IsActive() || !CanTakeFocus()) {
    throw Error(runtime::kInvalidProcedureCall);
  }
  form_->MoveFocus(FocusTarget(*this));
  if (!form_->IsActiveForm()) form_->SetFocus();
}

bool Control::HasFocus() const {
  if (!form_->IsActiveForm()) return false;
  const std::vector<Control*> chain = WithScopes(form_->ActiveControl());
  return Holds(chain, this);
}

void Form::MoveFocus(Control* to, FocusMove how) {
  Control* from = active_control_;
  if (to == from && (!IsActiveForm() || focused_ == from)) return;
  if (from && to && from != to && how != FocusMove::Forced && !MayLeave(*from, *to, how)) return;
  active_control_ = to;
  if (!IsActiveForm()) return;
  if (to && how != FocusMove::ByToolkit && to->peer_) to->peer_->TakeFocus();
  TellFocus(focused_, to);
}

// Asks Validate; a refusal keeps the focus. A handler that moves the focus itself has its way.
bool Form::MayLeave(Control& from, const Control& to, FocusMove how) {
  if (!to.CausesValidation()) return true;
  bool cancel = false;
  from.Validate(cancel);
  if (active_control_ != &from) return false;
  if (cancel && how == FocusMove::ByToolkit && from.peer_) from.peer_->TakeFocus();
  return !cancel;
}

void Form::TellFocus(Control* from, Control* to) {
  focused_ = to;
  const std::vector<Control*> left = WithScopes(from), reached = WithScopes(to);
  for (Control* control : left) {
    if (!Holds(reached, control)) control->OnLostFocus();
  }
  for (auto control = reached.rbegin(); control != reached.rend(); ++control) {
    if (focused_ != to) return;  // a handler moved the focus on
    if (!Holds(left, *control)) (*control)->OnGotFocus();
  }
}

void Form::FocusLeaves(Control& control) {
  if (!active_control_ || !IsWithin(active_control_, control)) return;
  MoveFocus(NextStop(active_control_, +1), FocusMove::Forced);
}

}  // namespace corvane::forms
