#include "forms/headless_toolkit.h"

#include <algorithm>
#include <utility>

#include "forms/mnemonic.h"
#include "runtime/strings.h"

namespace corvane::forms {

class HeadlessPeer : public Peer {
 public:
  HeadlessPeer(HeadlessToolkit& toolkit, Control& control) : toolkit_(toolkit), control_(control) {
    if (control.Kind() == ControlKind::PictureBox) canvas_ = std::make_unique<RecordingCanvas>();
  }
  ~HeadlessPeer() override {
    if (toolkit_.under_pointer_ == &control_) toolkit_.under_pointer_ = nullptr;
    if (timer_) toolkit_.Disarm(*timer_);
  }

  void Changed(Property property) override {
    notices_.push_back(property);
    if (!timer_) timer_ = dynamic_cast<Timer*>(&control_);
    if (timer_) toolkit_.Arm(*timer_);
  }
  forms::Canvas* Canvas() override { return canvas_.get(); }

  RecordingCanvas& Recording() { return *canvas_; }
  const std::vector<Property>& Notices() const { return notices_; }

 private:
  HeadlessToolkit& toolkit_;
  Control& control_;
  Timer* timer_ = nullptr;  // the control, when it is one; it may be half destroyed when this is
  std::unique_ptr<RecordingCanvas> canvas_;
  std::vector<Property> notices_;
};

namespace {

class HeadlessFormPeer : public FormPeer {
 public:
  void Changed(Property) override {}
  void Activate() override {}
};

std::string Shown(const Menu& item) {
  if (item.IsSeparator()) return "-";
  const std::string caption = (item.Checked() ? "*" : "") + WithoutMnemonic(item.Caption());
  return item.Enabled() ? caption : "(" + caption + ")";
}

Menu* ItemCaptioned(const Menu& menu, const std::string& caption) {
  for (Menu* item : menu.Items()) {
    if (!item->Visible()) continue;
    if (WithoutMnemonic(item->Caption()) == caption) return item;
    if (Menu* found = ItemCaptioned(*item, caption)) return found;
  }
  return nullptr;
}

template <class Queue>
auto TakeFirst(Queue& queue) {
  auto first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

HeadlessToolkit::HeadlessToolkit() {
  OnFault = [this](const std::string& what) { faults_.push_back(what); };
}

std::unique_ptr<FormPeer> HeadlessToolkit::NewFormPeer(Form&) {
  return std::make_unique<HeadlessFormPeer>();
}

std::unique_ptr<Peer> HeadlessToolkit::NewPeer(Control& control) {
  return std::make_unique<HeadlessPeer>(*this, control);
}

Rect HeadlessToolkit::FrameOf(const Form& form) {
  if (form.BorderStyle() == FormBorder::None) return {};
  const Twips above = kHeadlessBorder + kHeadlessCaption + (form.ShowsMenuBar() ? kHeadlessMenuBar : 0);
  return {kHeadlessBorder, above, 2 * kHeadlessBorder, above + kHeadlessBorder};
}

void HeadlessToolkit::OnModal(const std::string& name, std::function<void(Form&)> act) {
  modal_acts_[runtime::UCase(name)].push_back(std::move(act));
}

bool HeadlessToolkit::RunModalAct(Form& form) {
  auto& acts = modal_acts_[runtime::UCase(form.Name())];
  if (acts.empty()) {
    faults_.push_back(form.Name() + " was shown modally with no act prepared");
    return false;
  }
  const auto act = TakeFirst(acts);
  Guard([&] { act(form); });
  DoEvents();
  if (form.Visible()) faults_.push_back(form.Name() + " stayed open after its act");
  return true;
}

void HeadlessToolkit::RunModal(Form& form) {
  DoEvents();
  if (!form.Visible()) return;
  RunModalAct(form);
  if (form.Visible()) Guard([&] { form.UserClose(); });
  if (form.Visible()) Guard([&] { form.Hide(); });
}

// Acts posted meanwhile wait for the next call, so that an act may post its own successor.
void HeadlessToolkit::DoEvents() {
  for (size_t left = posted_.size(); left > 0 && !posted_.empty(); --left) Guard(TakeFirst(posted_));
}

void HeadlessToolkit::PopupMenu(Form&, Menu& menu, Twips x, Twips y) {
  std::vector<std::string> offered{menu.Name()};
  for (const Menu* item : menu.Items()) {
    if (item->Visible()) offered.push_back(Shown(*item));
  }
  popups_.push_back(std::move(offered));
  popup_places_.emplace_back(x, y);
  const std::string answer = popup_answers_.empty() ? std::string() : TakeFirst(popup_answers_);
  if (answer.empty()) return;
  Menu* chosen = ItemCaptioned(menu, answer);
  if (!chosen || !chosen->Enabled()) return faults_.push_back(menu.Name() + " does not offer " + answer);
  Guard([&] { chosen->UserClick(); });
}

void HeadlessToolkit::Arm(Timer& timer) {
  if (!timer.IsRunning()) {
    due_.erase(&timer);
  } else {
    due_[&timer] = now_ + timer.Interval();
  }
}

void HeadlessToolkit::Disarm(Timer& timer) {
  due_.erase(&timer);
}

void HeadlessToolkit::Tick(Timer& timer) {
  if (timer.Peer()) Guard([&] { timer.UserTick(); });
}

void HeadlessToolkit::Advance(long milliseconds) {
  const long end = now_ + milliseconds;
  while (true) {
    const auto next = std::min_element(due_.begin(), due_.end(),
                                       [](const auto& left, const auto& right) { return left.second < right.second; });
    if (next == due_.end() || next->second > end) break;
    Timer& timer = *next->first;
    now_ = next->second;
    next->second = now_ + timer.Interval();
    Tick(timer);
  }
  now_ = end;
}

RecordingCanvas& HeadlessToolkit::CanvasOf(PictureBox& box) {
  if (!box.Peer()) throw Error(runtime::kObjectNotSet);
  return static_cast<HeadlessPeer*>(box.Peer())->Recording();
}

const std::vector<Property>& HeadlessToolkit::Notices(const Control& control) const {
  if (!control.Peer()) throw Error(runtime::kObjectNotSet);
  return static_cast<HeadlessPeer*>(control.Peer())->Notices();
}

}  // namespace corvane::forms
