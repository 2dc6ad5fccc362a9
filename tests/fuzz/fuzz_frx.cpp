// Any bytes as a binary sibling: every kind of record at any offset is read or is nothing, never beyond the end; what
// was read can be written and read again; adding a record moves no byte.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "environment/designer_form.h"
#include "environment/frx.h"

namespace {

namespace frx = corvane::environment::frx;
namespace host = corvane::host;

void Require(bool law) {
  if (!law) std::abort();
}

void ReadAt(const std::string& file, size_t offset) {
  if (const auto picture = frx::ReadPicture(file, offset))
    Require(frx::ReadPicture(frx::PictureRecord(*picture), 0) == picture);
  if (const auto list = frx::ReadList(file, offset)) Require(frx::ReadList(frx::ListRecord(*list), 0) == list);
  if (const auto text = frx::ReadText(file, offset)) Require(frx::ReadText(frx::TextRecord(*text), 0) == text);
  if (const auto text = frx::ReadLongText(file, offset))
    Require(frx::ReadLongText(frx::LongTextRecord(*text), 0) == text);
}

class Owner : public corvane::environment::DesignerOwner {
 public:
  explicit Owner(const std::string& sibling) : sibling_(sibling) {}
  std::string ComponentName() override { return "F"; }
  void RenameComponent(const std::string&) override {}
  std::string ModuleAttribute(const std::string&) override { return {}; }
  std::string ReadSibling(const std::string&) override { return sibling_; }
  std::string NewSiblingName() override { return "F.frx"; }
  void DesignerChanged() override {}

 private:
  const std::string& sibling_;
};

void AddTo(const std::string& file) {
  const std::string text =
      "VERSION 5.00\nBegin VB.Form F \n   Icon            =   \"F.frx\":0000\n   Begin VB.ListBox L \n"
      "      ItemData        =   \"F.frx\":0001\n      List            =   \"F.frx\":0000\n   End\nEnd\n";
  Owner owner(file);
  corvane::environment::Designer designer(host::ComponentType::VBForm, text, owner);
  designer.Properties()->Item("Icon")->Value();
  const auto list = designer.Form()->VBControls()->Item(1)->Properties()->Item("List");
  // A list that is full already cannot take one more; nothing has changed then.
  host::PassOverErrors([&] { list->SetIndexedValue(0, std::string("first")); });
  host::PassOverErrors([&] { designer.Properties()->Item("Caption")->SetValue(std::string("a\nb")); });
  for (const auto& sibling : designer.Siblings()) Require(sibling.bytes.compare(0, file.size(), file) == 0);
  Require(std::get<std::string>(designer.Properties()->Item("Caption")->Value()) == "a\nb");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string file(reinterpret_cast<const char*>(data), size);
  const size_t step = size / 512 + 1;
  for (size_t offset = 0; offset <= size + 1; offset += step) ReadAt(file, offset);
  AddTo(file);
  return 0;
}
