// ProjectAccess: the buttons of a toolbar and the pictures of an image list.
#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/project_access.h"
#include "script/script_state.h"

namespace corvane::script {

using host::Ref;

namespace {

// An argument that is not given is left out of the call.
host::Variant Given(const std::vector<std::string>& arguments, size_t place) {
  if (place >= arguments.size() || arguments[place].empty()) return {};
  return arguments[place];
}

// A place counts from 1; a key is a text.
host::Variant PlaceOrKey(const std::vector<std::string>& arguments, size_t place) {
  const host::Variant given = Given(arguments, place);
  host::Variant number = given;
  if (!std::holds_alternative<std::monostate>(given)) host::PassOverErrors([&] { number = runtime::ToLong(given); });
  return number;
}

std::shared_ptr<host::LateBound> ObjectOf(host::VBControl& control, const char* property) {
  const host::Variant object = control.Properties()->Item(property)->Object();
  const auto* held = std::get_if<std::shared_ptr<runtime::Object>>(&object);
  auto items = held == nullptr ? nullptr : std::dynamic_pointer_cast<host::LateBound>(*held);
  if (!items) throw host::Error(runtime::kObjectRequired);
  return items;
}

bool HasImageList(host::VBControl& toolbar) {
  host::Variant object;
  host::PassOverErrors([&] { object = toolbar.Properties()->Item("ImageList")->Object(); });
  const auto* held = std::get_if<std::shared_ptr<runtime::Object>>(&object);
  return held != nullptr && *held != nullptr;
}

}  // namespace

// Behind the address: the file of the picture, index, key.
void ProjectAccess::AddPicture(host::VBControl& list, const Parts& arguments) const {
  const runtime::PictureRef picture = services_.Pictures.LoadPicture(arguments.size() > 1 ? arguments[1] : "");
  ObjectOf(list, "ListImages")->Call("Add", {PlaceOrKey(arguments, 2), Given(arguments, 3), picture});
}

// Behind the address: index, key, caption, style, image, and the name of the image list.
void ProjectAccess::AddButton(host::VBControl& toolbar, const IdeAddress& address, const Parts& arguments) const {
  const host::Variant image_list = Given(arguments, 6);
  if (!std::holds_alternative<std::monostate>(image_list) && !HasImageList(toolbar))
    if (const auto list = targets_.Control({address.component, std::get<std::string>(image_list)}))
      toolbar.Properties()->Item("ImageList")->SetObject(std::static_pointer_cast<runtime::Object>(list));
  host::Variant style = PlaceOrKey(arguments, 4);
  if (std::holds_alternative<std::monostate>(style)) style = std::string("0");
  ObjectOf(toolbar, "Buttons")
      ->Call("Add",
             {PlaceOrKey(arguments, 1), Given(arguments, 2), Given(arguments, 3), style, PlaceOrKey(arguments, 5)});
}

std::string ProjectAccess::Add(ErrorReport& errors, const std::string& list) {
  const Parts arguments = SplitArguments(list);
  const IdeAddress address = AddressOf(arguments[0]);
  const Ref<host::VBControl> control = targets_.Control(address);
  if (!control) {
    errors.ReportError(std::string("Component does not exists.") + runtime::kCrLf + arguments[0]);
    return "False";
  }
  const std::string kind = runtime::UCase(control->ClassName());
  bool added = true;
  if (kind == "IMAGELIST") added = host::PassOverErrors([&] { AddPicture(*control, arguments); });
  if (kind == "TOOLBAR") added = host::PassOverErrors([&] { AddButton(*control, address, arguments); });
  return added ? "True" : "False";
}

}  // namespace corvane::script
