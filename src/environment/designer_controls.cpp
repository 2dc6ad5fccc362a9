#include "environment/designer_controls.h"

#include <algorithm>

#include "environment/designer_tree.h"
#include "environment/lookup.h"
#include "environment/properties.h"

namespace corvane::environment {

namespace {

class Control : public host::VBControl, public std::enable_shared_from_this<Control> {
 public:
  Control(std::shared_ptr<DesignerState> state, DesignerBlockRef block)
      : state_(std::move(state)), block_(std::move(block)) {}

  std::string ClassName() override {
    const std::string_view type = Block().type;
    return std::string(type.substr(type.rfind('.') + 1));
  }
  std::string ProgId() override {
    const ControlClass* known = FindControlClass(Block().type);
    return std::string(known ? known->prog_id : block_->type);
  }
  host::Ref<host::Properties> Properties() override {
    Block();
    return NewPropertyList(state_, block_);
  }
  host::Ref<host::ControlObject> ControlObject() override;

  // Error 91 for a control that was removed, or whose component is gone.
  DesignerBlock& Block() const {
    state_->Owner();
    if (!state_->Holds(*block_)) throw host::Error(runtime::kObjectNotSet);
    return *block_;
  }
  const DesignerBlockRef& Ref() const { return block_; }
  const DesignerState* State() const { return state_.get(); }
  host::Ref<host::VBControl> Container() const {
    const DesignerBlock* parent = Block().parent;
    for (const DesignerBlockRef& other : state_->Controls())
      if (other.get() == parent) return std::make_shared<Control>(state_, other);
    return nullptr;
  }

 private:
  std::shared_ptr<DesignerState> state_;
  DesignerBlockRef block_;
};

class DesignTimeObject : public host::ControlObject {
 public:
  explicit DesignTimeObject(std::shared_ptr<Control> control) : control_(std::move(control)) {}
  host::Ref<host::VBControl> Container() override { return control_->Container(); }

 private:
  std::shared_ptr<Control> control_;
};

host::Ref<host::ControlObject> Control::ControlObject() {
  Block();
  return std::make_shared<DesignTimeObject>(shared_from_this());
}

std::string_view NameOf(const DesignerBlockRef& block) {
  return block->name;
}

class Controls : public host::VBControls {
 public:
  explicit Controls(std::shared_ptr<DesignerState> state) : state_(std::move(state)) {}

  long Count() override { return static_cast<long>(All().size()); }

  // The name of a control array is its first element in the file.
  host::Ref<host::VBControl> Item(const host::Index& index) override {
    const auto* name = std::get_if<std::string>(&index);
    return name ? Found(*name) : std::make_shared<Control>(state_, ItemOf(All(), index, NameOf));
  }

  host::Ref<host::VBControl> Item(const std::string& name, long index) override {
    if (index < 0) throw host::Error(runtime::kSubscriptOutOfRange);
    return Found(name, index);
  }

  host::Ref<host::VBControl> Add(const std::string& prog_id, const host::Ref<host::VBControl>& container) override {
    state_->RequireEditable();
    DesignerBlock& parent = container ? BlockOf(container) : *state_->Root();
    const ControlClass* known = FindControlClass(prog_id);
    // Windows and the head of a class are no controls.
    if (known && !known->unlisted.empty()) throw host::Error(runtime::kCannotCreateObject);
    return std::make_shared<Control>(state_, AddControl(*state_, known ? *known : ClassInUse(prog_id), parent));
  }

  void Remove(const host::Ref<host::VBControl>& control) override {
    state_->RequireEditable();
    RemoveControl(*state_, BlockOf(control));
  }

 private:
  const std::vector<DesignerBlockRef>& All() {
    state_->Owner();
    return state_->Controls();
  }

  host::Ref<host::VBControl> Found(const std::string& name, long index = kNoElement) {
    state_->Owner();
    DesignerBlockRef control = state_->ControlOf(name, index);
    if (!control) throw host::Error(runtime::kSubscriptOutOfRange);
    return std::make_shared<Control>(state_, std::move(control));
  }

  DesignerBlock& BlockOf(const host::Ref<host::VBControl>& control) {
    const auto* own = dynamic_cast<Control*>(control.get());
    if (!own || own->State() != state_.get()) throw host::Error(runtime::kObjectNotSet);
    return own->Block();
  }

  // A control of another library can be added where there is one already: the part names its library then, and what the
  // control has from its container is known.
  ControlClass ClassInUse(const std::string& prog_id) {
    for (const DesignerBlockRef& control : state_->Controls()) {
      if (!SameName(control->type, prog_id)) continue;
      ControlClass made{
          control->type, control->type.substr(control->type.rfind('.') + 1), {}, false, 1215, 495, {}, {}};
      for (const PropertyRow& row : ExtenderProperties())
        if (row.always_written && control->Find(row.name)) made.properties.push_back(row);
      return made;
    }
    throw host::Error(runtime::kCannotCreateObject);
  }

  std::shared_ptr<DesignerState> state_;
};

class SelectedControls : public host::SelectedVBControls {
 public:
  explicit SelectedControls(std::shared_ptr<DesignerState> state) : state_(std::move(state)) {}
  long Count() override { return static_cast<long>(Selected().size()); }
  host::Ref<host::VBControl> Item(const host::Index& index) override {
    return std::make_shared<Control>(state_, ItemOf(Selected(), index, NameOf));
  }

 private:
  std::vector<DesignerBlockRef> Selected() {
    state_->Owner();
    std::vector<DesignerBlockRef> selected;
    for (const auto& weak : state_->selected)
      if (DesignerBlockRef block = weak.lock(); block && state_->Holds(*block)) selected.push_back(std::move(block));
    return selected;
  }
  std::shared_ptr<DesignerState> state_;
};

class Form : public host::VBForm {
 public:
  explicit Form(std::shared_ptr<DesignerState> state) : state_(std::move(state)) {}
  host::Ref<host::VBControls> VBControls() override { return std::make_shared<Controls>(state_); }
  host::Ref<host::SelectedVBControls> SelectedVBControls() override {
    return std::make_shared<SelectedControls>(state_);
  }

 private:
  std::shared_ptr<DesignerState> state_;
};

}  // namespace

host::Ref<host::VBForm> NewForm(std::shared_ptr<DesignerState> state) {
  return std::make_shared<Form>(std::move(state));
}

}  // namespace corvane::environment
