// Stage: an environment as its objects are seen by an add-in: late-bound COM objects. The ledger tells what the add-in
// holds and asks, and makes calls fail.
#pragma once

#include <memory>
#include <string>

#include "environment/environment.h"
#include "tests/stage/com_pointer.h"
#include "tests/stage/ledger.h"
#include "tests/stage/published.h"
#include "tests/stage/type_library.h"

namespace corvane::stage {

class Stage {
 public:
  // [main_window] is the handle that the environment's main window tells.
  explicit Stage(std::shared_ptr<environment::Environment> environment, HWND main_window = nullptr)
      : environment(std::move(environment)), main_window(main_window) {}
  Stage(const Stage&) = delete;

  Ledger ledger;
  const std::shared_ptr<environment::Environment> environment;
  const HWND main_window;

  // What is fetched of a failed call's text only when it is asked for.
  bool defers_error_texts = false;
  // A library of types, with numbers of its own for events and VBBuildEvents in an interface of their own. Null: none.
  std::unique_ptr<TypeLibrary> types;

  // The VBE.
  ComPointer<IDispatch> Root();
  // Any object of the environment.
  template <class T>
  ComPointer<IDispatch> Publish(const host::Ref<T>& object) {
    return ComPointer<IDispatch>(NewPublished(*this, object, TableOf<T>()));
  }

  // No project is active any more, and every object of one that is out fails as a disconnected one.
  void CloseProject();

  // For the published objects.
  long NextBirth() { return ++births_; }
  long ClosedBefore() const { return closed_before_; }

 private:
  long births_ = 0, closed_before_ = 0;
};

// The object that an environment hands an add-in of its own beside the VBE.
struct AddInEntry {
  std::string description, prog_id, guid;
  bool connected = true;
};

}  // namespace corvane::stage
