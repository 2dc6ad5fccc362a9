// The controls of a form: found, made and removed by name.
#include <algorithm>
#include <utility>

#include "forms/controls.h"
#include "runtime/strings.h"

namespace corvane::forms {

namespace {

constexpr long kNameTaken = 727;

template <class Kind>
std::unique_ptr<Control> Make(Container& container, std::string name, int index) {
  return std::make_unique<Kind>(container, std::move(name), index);
}

std::unique_ptr<Control> MakeMenu(Container& container, std::string name, int) {
  return std::make_unique<Menu>(container.FormOfContainer(), std::move(name), "");
}

struct Maker {
  ControlKind kind;
  std::unique_ptr<Control> (*make)(Container&, std::string, int);
};

constexpr Maker kMakers[] = {
    {ControlKind::Label, Make<Label>},
    {ControlKind::TextBox, Make<TextBox>},
    {ControlKind::CommandButton, Make<CommandButton>},
    {ControlKind::CheckBox, Make<CheckBox>},
    {ControlKind::OptionButton, Make<OptionButton>},
    {ControlKind::Frame, Make<Frame>},
    {ControlKind::ListBox, Make<ListBox>},
    {ControlKind::ComboBox, Make<ComboBox>},
    {ControlKind::PictureBox, Make<PictureBox>},
    {ControlKind::Image, Make<Image>},
    {ControlKind::Line, Make<Line>},
    {ControlKind::Shape, Make<Shape>},
    {ControlKind::HScrollBar, Make<HScrollBar>},
    {ControlKind::VScrollBar, Make<VScrollBar>},
    {ControlKind::Timer, Make<Timer>},
    {ControlKind::Toolbar, Make<Toolbar>},
    {ControlKind::ImageList, Make<ImageList>},
    {ControlKind::Menu, MakeMenu},
};

bool IsNamed(const Control& control, const std::string& upper, int index) {
  return control.Index() == index && runtime::UCase(control.Name()) == upper;
}

Menu* FindMenu(const std::vector<Menu*>& menus, const std::string& upper, int index) {
  for (Menu* menu : menus) {
    if (menu->IsOfControl()) continue;
    if (IsNamed(*menu, upper, index)) return menu;
    if (Menu* item = FindMenu(menu->Items(), upper, index)) return item;
  }
  return nullptr;
}

}  // namespace

void Form::Register(Control& control) {
  control.tab_index_ = controls_made_++;
}

void Form::Forget(Control& control) {
  if (active_control_ == &control) active_control_ = nullptr;
  if (focused_ == &control) focused_ = nullptr;
}

std::vector<Control*> Form::AllControls() const {
  std::vector<Control*> all = Controls();
  for (size_t at = 0; at < all.size(); ++at) {
    if (const auto* container = dynamic_cast<const Container*>(all[at])) {
      all.insert(all.end(), container->Controls().begin(), container->Controls().end());
    }
  }
  return all;
}

Control* Form::Find(std::string_view name, int index) const {
  const std::string upper = runtime::UCase(name);
  for (Control* control : AllControls()) {
    if (IsNamed(*control, upper, index)) return control;
  }
  return FindMenu(menus_, upper, index);
}

Control& Form::AddControl(std::string_view kind, std::string name, Container& container, int index) {
  const ControlKind wanted = KindNamed(kind);
  const auto* maker =
      std::find_if(std::begin(kMakers), std::end(kMakers), [&](const Maker& each) { return each.kind == wanted; });
  if (maker == std::end(kMakers)) throw Error(runtime::kInvalidPropertyValue);
  if (Find(name, index)) throw Error(kNameTaken, "There is already a control with the name '" + name + "'");
  std::unique_ptr<Control> made = maker->make(container, std::move(name), index);
  Control& control = *made;
  control.SetVisible(false);
  Adopt(std::move(made));
  return control;
}

void Form::Adopt(std::unique_ptr<Control> control) {
  made_.push_back(std::move(control));
  MakePeer(*made_.back());
}

void Form::AddUnloadHook(const void* owner, std::function<void()> hook) {
  unload_hooks_.emplace_back(owner, std::move(hook));
}

void Form::DropUnloadHook(const void* owner) {
  std::erase_if(unload_hooks_, [owner](const auto& each) { return each.first == owner; });
}

void Form::RemoveControl(Control& control) {
  const auto found = std::find_if(made_.begin(), made_.end(), [&](const auto& each) { return each.get() == &control; });
  if (found == made_.end()) throw Error(runtime::kCannotUnloadDesignTimeControl);
  FocusLeaves(control);
  control.visible_ = false;
  control.peer_.reset();
  control.Leave();
  control.container_ = nullptr;
  Forget(control);
  dropped_.push_back(std::move(*found));
  made_.erase(found);
  if (!toolkit_.IsInAct()) dropped_.clear();
}

}  // namespace corvane::forms
