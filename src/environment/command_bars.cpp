#include "environment/command_bars.h"

#include <algorithm>

#include "environment/lookup.h"

namespace corvane::environment {

namespace {

constexpr long kButton = 1, kComboBox = 4, kPopup = 10;

struct OwnControl {
  const char* bar;
  long type;
  const char* caption;
};

// What the environment itself has on its bars, in their order. The menus are bars of their own, as their popups say.
constexpr OwnControl kOwnControls[] = {
    {"Menu Bar", kPopup, "&File"},
    {"Menu Bar", kPopup, "&Edit"},
    {"Menu Bar", kPopup, "&View"},
    {"Menu Bar", kPopup, "&Project"},
    {"Menu Bar", kPopup, "F&ormat"},
    {"Menu Bar", kPopup, "&Debug"},
    {"Menu Bar", kPopup, "&Run"},
    {"Menu Bar", kPopup, "&Tools"},
    {"Menu Bar", kPopup, "&Add-Ins"},
    {"Menu Bar", kPopup, "&Window"},
    {"Menu Bar", kPopup, "&Help"},
    {"Standard", kButton, "Add &Project"},
    {"Standard", kButton, "Add &Item"},
    {"Standard", kButton, "&Menu Editor..."},
    {"Standard", kButton, "&Open Project..."},
    {"Standard", kButton, "Sa&ve Project"},
    {"Standard", kButton, "Cu&t"},
    {"Standard", kButton, "&Copy"},
    {"Standard", kButton, "&Paste"},
    {"Standard", kButton, "&Find..."},
    {"Standard", kButton, "&Undo"},
    {"Standard", kButton, "&Redo"},
    {"Standard", kButton, "&Start"},
    {"Standard", kButton, "Brea&k"},
    {"Standard", kButton, "&End"},
    {"Standard", kButton, "&Project Explorer"},
    {"Standard", kButton, "Properties &Window"},
    {"Standard", kButton, "Form Layout Window"},
    {"Standard", kButton, "&Object Browser"},
    {"Standard", kButton, "Toolbo&x"},
    {"Standard", kComboBox, "Position and Size"},
    {"Run", kButton, "&Start"},
    {"Run", kButton, "Start With &Full Compile"},
    {"Run", kButton, "Brea&k"},
    {"Run", kButton, "&End"},
    {"Run", kButton, "&Restart"},
    {"Add-Ins", kButton, "&Add-In Manager..."},
};

}  // namespace

// A control by its id: what the add-in holds.
class CommandBarSet::HostControl : public host::CommandBarControl {
 public:
  HostControl(std::shared_ptr<CommandBarSet> set, long id) : set_(std::move(set)), id_(id) {}
  long Id() const { return id_; }
  const CommandBarSet* Set() const { return set_.get(); }

  std::string Caption() override { return Data().caption; }
  void SetCaption(const std::string& caption) override { Change(&BarControl::caption, caption); }
  void SetVisible(bool visible) override { Change(&BarControl::visible, visible); }
  void SetState(long state) override { Change(&BarControl::state, state); }
  void SetStyle(host::ButtonStyle style) override { Change(&BarControl::style, static_cast<long>(style)); }

  void PasteFace() override {
    Data();
    const auto picture = set_->clipboard_ ? set_->clipboard_->GetData() : nullptr;
    if (!picture) throw host::Error(runtime::kObjectNotSet);
    Change(&BarControl::face, picture);
  }

  void Delete() override {
    Data();
    for (Bar& bar : set_->bars_) std::erase_if(bar.controls, [this](const BarControl& c) { return c.id == id_; });
    set_->handlers_.erase(id_);
    set_->Changed();
  }

 private:
  BarControl& Data() { return set_->ExistingControl(id_); }
  template <class Value>
  void Change(Value BarControl::*member, Value value) {
    Data().*member = std::move(value);
    set_->Changed();
  }
  std::shared_ptr<CommandBarSet> set_;
  long id_;
};

class CommandBarSet::HostControls : public host::CommandBarControls {
 public:
  HostControls(std::shared_ptr<CommandBarSet> set, std::string bar) : set_(std::move(set)), bar_(std::move(bar)) {}

  long Count() override { return static_cast<long>(Controls().size()); }

  host::Ref<host::CommandBarControl> Item(const host::Index& index) override {
    // By name: the caption, its access mark left out.
    auto name = [](const BarControl& control) { return runtime::Replace(control.caption, "&", ""); };
    host::Index wanted = index;
    if (auto* text = std::get_if<std::string>(&wanted)) *text = runtime::Replace(*text, "&", "");
    return std::make_shared<HostControl>(set_, ItemOf(Controls(), wanted, name, runtime::kInvalidProcedureCall).id);
  }

  host::Ref<host::CommandBarControl> Add(host::ControlType type, long before) override {
    auto& controls = Controls();
    const long count = static_cast<long>(controls.size());
    if (before < 0 || before > count + 1) throw host::Error(runtime::kInvalidProcedureCall);
    BarControl control;
    control.id = ++set_->last_id_;
    control.type = static_cast<long>(type);
    controls.insert(before == 0 ? controls.end() : controls.begin() + (before - 1), control);
    set_->Changed();
    return std::make_shared<HostControl>(set_, control.id);
  }

 private:
  std::vector<BarControl>& Controls() {
    Bar* bar = set_->FindBar(bar_);
    if (!bar) throw host::Error(runtime::kObjectNotSet);
    return bar->controls;
  }
  std::shared_ptr<CommandBarSet> set_;
  std::string bar_;
};

class CommandBarSet::HostBar : public host::CommandBar {
 public:
  HostBar(std::shared_ptr<CommandBarSet> set, std::string name) : set_(std::move(set)), name_(std::move(name)) {}
  std::string Name() override { return name_; }
  host::Ref<host::CommandBarControls> Controls() override { return std::make_shared<HostControls>(set_, name_); }

 private:
  std::shared_ptr<CommandBarSet> set_;
  std::string name_;
};

class CommandBarSet::HostBarList : public host::CommandBars {
 public:
  explicit HostBarList(std::shared_ptr<CommandBarSet> set) : set_(std::move(set)) {}
  long Count() override { return static_cast<long>(set_->bars_.size()); }
  host::Ref<host::CommandBar> Item(const host::Index& index) override {
    auto name = [](const Bar& bar) { return bar.name; };
    return std::make_shared<HostBar>(set_, ItemOf(set_->bars_, index, name, runtime::kInvalidProcedureCall).name);
  }

 private:
  std::shared_ptr<CommandBarSet> set_;
};

class CommandBarSet::HostEvents : public host::CommandBarEvents {
 public:
  HostEvents(std::shared_ptr<CommandBarSet> set, long id) : set_(std::move(set)), id_(id) {}
  std::unique_ptr<host::Subscription> OnClick(host::ClickHandler handler) override {
    set_->ExistingControl(id_);
    return set_->handlers_[id_].Bind(std::move(handler));
  }

 private:
  std::shared_ptr<CommandBarSet> set_;
  long id_;
};

std::shared_ptr<CommandBarSet> CommandBarSet::Create(host::Clipboard* clipboard, std::function<void()> changed) {
  std::shared_ptr<CommandBarSet> set(new CommandBarSet);
  for (const OwnControl& own : kOwnControls) {
    BarControl control;
    control.type = own.type;
    control.caption = own.caption;
    set->AddOwn(own.bar, control);
  }
  set->clipboard_ = clipboard;
  set->changed_ = std::move(changed);
  return set;
}

void CommandBarSet::Detach() {
  clipboard_ = nullptr;
  changed_ = nullptr;
}

host::Ref<host::CommandBars> CommandBarSet::HostBars() {
  return std::make_shared<HostBarList>(shared_from_this());
}

host::Ref<host::CommandBarEvents> CommandBarSet::EventsOf(const host::Ref<host::CommandBarControl>& control) {
  const auto own = std::dynamic_pointer_cast<HostControl>(control);
  if (!own || own->Set() != this) throw host::Error(runtime::kObjectNotSet);
  ExistingControl(own->Id());
  return std::make_shared<HostEvents>(shared_from_this(), own->Id());
}

const Bar* CommandBarSet::Find(const std::string& name) const {
  return const_cast<CommandBarSet*>(this)->FindBar(name);
}

Bar* CommandBarSet::FindBar(const std::string& name) {
  const auto bar = std::find_if(bars_.begin(), bars_.end(), [&](const Bar& b) { return SameName(b.name, name); });
  return bar == bars_.end() ? nullptr : &*bar;
}

BarControl* CommandBarSet::FindControl(long id) {
  for (Bar& bar : bars_)
    for (BarControl& control : bar.controls)
      if (control.id == id) return &control;
  return nullptr;
}

BarControl& CommandBarSet::ExistingControl(long id) {
  BarControl* control = FindControl(id);
  if (!control) throw host::Error(runtime::kObjectNotSet);
  return *control;
}

void CommandBarSet::AddOwn(const std::string& name, BarControl control) {
  Bar* bar = FindBar(name);
  if (!bar) bar = &bars_.emplace_back(Bar{name, {}});
  control.id = ++last_id_;
  bar->controls.push_back(std::move(control));
  Changed();
}

void CommandBarSet::RemoveBar(const std::string& name) {
  const Bar* bar = FindBar(name);
  if (!bar) return;
  for (const BarControl& control : bar->controls) handlers_.erase(control.id);
  std::erase_if(bars_, [&](const Bar& b) { return SameName(b.name, name); });
  Changed();
}

bool CommandBarSet::Click(long id) {
  const BarControl* control = FindControl(id);
  const auto bound = handlers_.find(id);
  if (!control || !control->enabled || bound == handlers_.end() || bound->second.IsEmpty()) return false;
  const auto keep = shared_from_this();
  HandlerList<host::ClickHandler> handlers = bound->second;  // a handler may delete the control
  const host::Ref<host::CommandBarControl> clicked = std::make_shared<HostControl>(keep, id);
  bool handled = false, cancel_default = false;
  handlers.Raise([&](const auto& handler) { handler(clicked, handled, cancel_default); });
  return true;
}

void CommandBarSet::Changed() {
  if (const auto changed = changed_) changed();
}

class EventSource::BuildEvents : public host::VBBuildEvents {
 public:
  explicit BuildEvents(std::shared_ptr<HandlerList<std::function<void()>>> handlers) : handlers_(std::move(handlers)) {}
  std::unique_ptr<host::Subscription> OnEnterRunMode(std::function<void()> handler) override {
    return handlers_->Bind(std::move(handler));
  }

 private:
  std::shared_ptr<HandlerList<std::function<void()>>> handlers_;
};

host::Ref<host::CommandBarEvents> EventSource::CommandBarEvents(const host::Ref<host::CommandBarControl>& control) {
  return bars_->EventsOf(control);
}

host::Ref<host::VBBuildEvents> EventSource::VBBuildEvents() {
  if (!offers_build_events_) throw host::Error(runtime::kNoSuchMember);
  return std::make_shared<BuildEvents>(run_mode_);
}

void EventSource::RaiseEnterRunMode() {
  const auto keep = run_mode_;
  keep->Raise([](const auto& handler) { handler(); });
}

}  // namespace corvane::environment
