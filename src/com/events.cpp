// The events of the environment: clicks on its command bars, and the start of the user's program.
#include "com/objects.h"
#include "com/sink.h"
#include "com/type_library.h"

namespace corvane::com {

namespace {

// Used where the environment's own library does not tell them.
constexpr DISPID kClick = 1, kEnterRunMode = 2;
enum ClickArgument : UINT { kControl, kHandled, kCancelDefault };

class WrappedBarEvents : public host::CommandBarEvents, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::unique_ptr<host::Subscription> OnClick(host::ClickHandler handler) override {
    return Listen(Dispatched(), L"Click", kClick, [handler = std::move(handler)](EventArguments& arguments) {
      bool handled = arguments.Flag(kHandled), cancel_default = arguments.Flag(kCancelDefault);
      handler(Wrap<host::CommandBarControl>(arguments.At(kControl)), handled, cancel_default);
      arguments.Write(kHandled, handled);
      arguments.Write(kCancelDefault, cancel_default);
    });
  }
};

class WrappedBuildEvents : public host::VBBuildEvents, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::unique_ptr<host::Subscription> OnEnterRunMode(std::function<void()> handler) override {
    return Listen(Dispatched(), L"EnterRunMode", kEnterRunMode,
                  [handler = std::move(handler)](EventArguments&) { handler(); });
  }
};

class WrappedEvents : public host::Events, public Wrapped {
 public:
  using Wrapped::Wrapped;
  host::Ref<host::CommandBarEvents> CommandBarEvents(const host::Ref<host::CommandBarControl>& control) override {
    if (!control) throw host::Error(runtime::kObjectNotSet);
    return Wrap<host::CommandBarEvents>(object_.Get(L"CommandBarEvents", Argument(control)));
  }
  // A later version of the environment has them in an interface beside the one that it answers names from.
  host::Ref<host::VBBuildEvents> VBBuildEvents() override {
    Dispatch events = object_;
    if (!events.Has(L"VBBuildEvents"))
      if (auto later = AsInterface(Dispatched(), L"Events2")) events = Dispatch(std::move(later));
    return Wrap<host::VBBuildEvents>(events.Get(L"VBBuildEvents"));
  }
};

}  // namespace

template <>
host::Ref<host::CommandBarEvents> Wrap(const Value& value) {
  return MakeWrapped<WrappedBarEvents>(value);
}

template <>
host::Ref<host::VBBuildEvents> Wrap(const Value& value) {
  return MakeWrapped<WrappedBuildEvents>(value);
}

template <>
host::Ref<host::Events> Wrap(const Value& value) {
  return MakeWrapped<WrappedEvents>(value);
}

}  // namespace corvane::com
