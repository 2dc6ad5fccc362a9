#include "com/script_library.h"

#include "com/dispatch.h"
#include "com/object_creation.h"

namespace corvane::com {

namespace {

struct ToCell {
  script::Cell operator()(std::monostate) const { return script::Text(); }
  script::Cell operator()(bool flag) const { return flag; }
  script::Cell operator()(long number) const { return static_cast<double>(number); }
  script::Cell operator()(double number) const { return number; }
  script::Cell operator()(const std::string& text) const { return script::Text(text); }
  template <class Object>
  script::Cell operator()(const std::shared_ptr<Object>&) const {
    throw host::Error(runtime::kTypeMismatch);
  }
};

script::Cell CellOf(const Value& answer) {
  return std::visit(ToCell(), ToVariant(answer));
}

class LibraryObject : public script::ScriptObject {
 public:
  LibraryObject(Dispatch object, Value vbe) : object_(std::move(object)), vbe_(std::move(vbe)) {}

  script::Cell Command(const std::string& command) override { return CellOf(object_.Get(L"Command", vbe_, command)); }
  // All of them come from the one factory.
  script::Cell SetConnection(script::ScriptObject& source) override {
    const Value connection = static_cast<LibraryObject&>(source).object_.Get(L"GetConnection");
    return CellOf(object_.Get(L"SetConnection", connection));
  }

 private:
  Dispatch object_;
  Value vbe_;
};

}  // namespace

std::shared_ptr<script::ScriptObject> ScriptLibraries::CreateObject(const std::string& class_name) {
  return std::make_shared<LibraryObject>(com::CreateObject(class_name), vbe_);
}

}  // namespace corvane::com
