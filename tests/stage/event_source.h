// EventSource: a published object that raises events: a connection point container with one connection point.
#pragma once

#include <functional>
#include <map>
#include <ocidl.h>
#include <vector>

#include "host/base.h"
#include "tests/stage/com_pointer.h"
#include "tests/stage/published.h"

namespace corvane::stage {

// The interfaces that the events are told through.
extern const IID kCommandBarEvents, kBuildEvents;
// Numbers of their events.
enum EventNumber : DISPID { kClick = 1, kBeginCompile = 1, kEnterRunMode = 2, kEnterDesignMode = 3 };

class EventSource : public Published, private IConnectionPointContainer {
 public:
  // Binds the source to the environment's own event when the first sink comes.
  using Bind = std::function<std::unique_ptr<host::Subscription>(EventSource& source)>;
  EventSource(Stage& stage, std::shared_ptr<void> target, const ObjectTable& table, const IID& events, Bind bind)
      : Published(stage, std::move(target), table), events_(events), bind_(std::move(bind)) {}
  ~EventSource() override;

  // Calls each sink with [parameters].
  void Raise(DISPID event, DISPPARAMS& parameters);

  const IID& Events() const { return events_; }
  HRESULT Advise(IUnknown* sink, DWORD* cookie);
  HRESULT Unadvise(DWORD cookie);

  // Both bases have one IUnknown, that of Published.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return Published::QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return Published::AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return Published::Release(); }

 private:
  void* More(REFIID id) override;

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override;

  const IID& events_;
  Bind bind_;
  std::unique_ptr<host::Subscription> bound_;
  std::map<DWORD, ComPointer<IDispatch>> sinks_;
  DWORD last_cookie_ = 0;
};

}  // namespace corvane::stage
