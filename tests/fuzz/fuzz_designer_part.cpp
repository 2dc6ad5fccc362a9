// Any bytes as a designer part: written back as they came; reading every property changes nothing; a control that is
// added and removed again leaves no trace; what an edit wrote is understood.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "environment/designer_form.h"
#include "environment/designer_part.h"

namespace {

using corvane::environment::Designer;
using corvane::environment::DesignerPart;
namespace host = corvane::host;

void Require(bool law) {
  if (!law) std::abort();
}

class Owner : public corvane::environment::DesignerOwner {
 public:
  explicit Owner(std::string sibling) : sibling_(std::move(sibling)) {}
  std::string ComponentName() override { return "Form1"; }
  void RenameComponent(const std::string&) override {}
  std::string ModuleAttribute(const std::string&) override { return "True"; }
  std::string ReadSibling(const std::string&) override { return sibling_; }
  std::string NewSiblingName() override { return "Form1.frx"; }
  void DesignerChanged() override {}

 private:
  std::string sibling_;
};

void ReadAll(host::Properties& properties, int depth = 0) {
  for (const auto& property : host::Each(properties)) {
    property->Name();
    host::PassOverErrors([&] {
      const auto value = property->Value();
      const auto* object = std::get_if<std::shared_ptr<corvane::runtime::Object>>(&value);
      auto* nested = object ? dynamic_cast<host::Properties*>(object->get()) : nullptr;
      if (nested && depth < 8) ReadAll(*nested, depth + 1);
    });
    host::PassOverErrors([&] { property->IndexedValue(0); });
  }
}

void ReadAndEdit(const std::string& text) {
  Owner owner(text);
  Designer designer(host::ComponentType::VBForm, text, owner);
  designer.Problems();
  ReadAll(*designer.Properties());
  const auto controls = designer.Form()->VBControls();
  const long count = std::min(controls->Count(), 40L);
  for (long i = 1; i <= count; ++i) ReadAll(*controls->Item(i)->Properties());
  Require(designer.Write() == text);

  const bool understood = DesignerPart(text).IsUnderstood();
  host::PassOverErrors([&] { controls->Remove(controls->Add("VB.TextBox", nullptr)); });
  Require(designer.Write() == text);
  for (long i = 1; i <= count; ++i) {
    const auto properties = controls->Item(i)->Properties();
    host::PassOverErrors([&] { properties->Item("Tag")->SetValue(std::string("a\"b")); });
    host::PassOverErrors([&] { properties->Item("Caption")->SetValue(std::string("a\r\nb")); });
    host::PassOverErrors([&] { properties->Item("Height")->SetValue(100L); });
    host::PassOverErrors([&] { properties->Item("Enabled")->SetValue(false); });
    host::PassOverErrors([&] { properties->Item("Name")->SetValue("New" + std::to_string(i)); });
  }
  if (!understood)
    Require(designer.Write() == text);
  else
    Require(DesignerPart(designer.Write()).IsUnderstood());
  while (understood && controls->Count() > 0) controls->Remove(controls->Item(1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  Require(DesignerPart(text).Write() == text);
  const size_t length = corvane::environment::DesignerPartLength(text);
  Require(length <= size);
  ReadAndEdit(text.substr(0, length));
  return 0;
}
