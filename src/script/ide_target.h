// IdeTargets: components and controls of the project that is open, by the addresses that scripts give them: a
// component, or component "." control. "ME" in any case, and the empty name, is the selected component. An element of a
// control array is name "!" index.
#pragma once

#include <string>

#include "host/vbe.h"

namespace corvane::script {

bool IsMe(const std::string& name);

// The parts of an address. Without a "." at position 2 or later there is no component.
struct IdeAddress {
  std::string component, control;
};
IdeAddress AddressOf(const std::string& text);

// As it stands in addresses and lists: its name, and "!" index in an array.
std::string AddressNameOf(host::VBControl& control);

class IdeTargets {
 public:
  explicit IdeTargets(host::Ref<host::VBE> vbe) : vbe_(std::move(vbe)) {}

  host::VBE& Environment() const { return *vbe_; }

  // What is not there is Nothing, here and below.
  host::Ref<host::VBComponent> Selected() const { return vbe_->SelectedVBComponent(); }
  host::Ref<host::VBComponent> Component(const std::string& name) const;
  host::Ref<host::CodeModule> Module(const std::string& name) const;
  host::Ref<host::VBForm> Designer(const std::string& component) const;
  host::Ref<host::VBControl> Control(const IdeAddress& address) const;
  // Those of a control; of a component where no designer has such a control.
  host::Ref<host::Properties> PropertiesAt(const std::string& address) const;

 private:
  host::Ref<host::VBE> vbe_;
};

// The control of that address name. Nothing if there is none.
host::Ref<host::VBControl> FindControl(host::VBControls& controls, const std::string& name);

}  // namespace corvane::script
