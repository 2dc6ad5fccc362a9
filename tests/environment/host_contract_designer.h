// The part of the host contract that designers answer, tested through host/ alone: on a form that the environment
// itself made, with controls that it added. Runs for the fixtures of host_contract.h:
//
//   INSTANTIATE_TEST_SUITE_P(Files, HostDesignerContract, testing::Values(HostFactory(&NewFileFixture)));
#pragma once

#include "tests/environment/host_contract.h"

namespace corvane::tests {

class HostDesignerContract : public HostContract {
 protected:
  // A new form in a project that holds one module.
  host::Ref<host::VBComponent> NewForm() {
    return Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents()->Add(host::ComponentType::VBForm);
  }
  static host::Ref<host::Property> Of(const host::Ref<host::VBControl>& control, const std::string& property) {
    return control->Properties()->Item(property);
  }
  static std::string Name(const host::Ref<host::VBControl>& control) {
    return runtime::ToText(Of(control, "Name")->Value());
  }
  static std::string Names(host::Collection<host::VBControl>& controls) {
    std::string names;
    for (const auto& control : host::Each(controls)) names += Name(control) + " ";
    return names;
  }
};

}  // namespace corvane::tests
