#include "com/sink.h"

#include "com/guarded.h"
#include "com/module_use.h"
#include "com/type_library.h"

namespace corvane::com {

VARIANT* EventArguments::Find(UINT position) const {
  return position < parameters_.cArgs ? &parameters_.rgvarg[parameters_.cArgs - 1 - position] : nullptr;
}

Value EventArguments::At(UINT position) const {
  Value value;
  if (VARIANT* argument = Find(position)) Check(VariantCopyInd(value.Out(), argument));
  return value;
}

bool EventArguments::Flag(UINT position) const {
  bool flag = false;
  host::PassOverErrors([&] { flag = At(position).ToBool(); });
  return flag;
}

void EventArguments::Write(UINT position, bool flag) {
  VARIANT* argument = Find(position);
  if (argument && argument->vt == (VT_BYREF | VT_VARIANT)) {
    if (SUCCEEDED(VariantClear(argument->pvarVal))) *argument->pvarVal = Value(flag).Get();  // a boolean owns nothing
  } else if (argument && argument->vt == (VT_BYREF | VT_BOOL)) {
    *argument->pboolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
}

namespace {

// What the object that raises the event calls. It may live longer than its subscription.
class Sink : public IDispatch {
 public:
  Sink(const IID& events, DISPID event, EventHandler handler)
      : events_(events), event_(event), handler_(std::make_shared<EventHandler>(std::move(handler))) {}
  void Disarm() { handler_.reset(); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (!object) return E_POINTER;
    const bool offered = iid == IID_IUnknown || iid == IID_IDispatch || iid == events_;
    *object = offered ? static_cast<IDispatch*>(this) : nullptr;
    if (!offered) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info) *info = nullptr;
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    if (id != event_ || !parameters) return S_OK;
    // The handler may end its own subscription, and with it this object.
    const std::shared_ptr<EventHandler> handler = handler_;
    if (!handler) return S_OK;
    EventArguments arguments(*parameters);
    Guarded([&] { (*handler)(arguments); });
    return S_OK;  // what fails in a handler is no affair of who raises the event
  }

 private:
  virtual ~Sink() = default;

  const ModuleUse use_;
  const IID events_;
  const DISPID event_;
  std::shared_ptr<EventHandler> handler_;
  ULONG references_ = 0;
};

class Connection : public host::Subscription {
 public:
  Connection(ComPointer<IConnectionPoint> point, ComPointer<Sink> sink, DWORD cookie)
      : point_(std::move(point)), sink_(std::move(sink)), cookie_(cookie) {}
  ~Connection() override {
    sink_->Disarm();
    point_->Unadvise(cookie_);  // fails where the object is gone already
  }

 private:
  ComPointer<IConnectionPoint> point_;
  ComPointer<Sink> sink_;
  DWORD cookie_;
};

ComPointer<IEnumConnectionPoints> PointsOf(IDispatch* source) {
  const auto container = ComPointer(source).As<IConnectionPointContainer>();
  if (!container) throw ErrorOf(CONNECT_E_NOCONNECTION);
  ComPointer<IEnumConnectionPoints> points;
  Check(container->EnumConnectionPoints(points.Out()));
  return points;
}

std::unique_ptr<Connection> Advise(IDispatch* source, ComPointer<IConnectionPoint> point, const wchar_t* event,
                                   DISPID id, const EventHandler& handler) {
  IID events;
  Check(point->GetConnectionInterface(&events));
  if (events == IID_IPropertyNotifySink) throw ErrorOf(CONNECT_E_NOCONNECTION);  // has no events of this kind
  const ComPointer<Sink> sink(new Sink(events, EventId(source, events, event, id), handler));
  DWORD cookie = 0;
  Check(point->Advise(sink.Get(), &cookie));
  return std::make_unique<Connection>(std::move(point), sink, cookie);
}

}  // namespace

// The first point that takes the sink.
std::unique_ptr<host::Subscription> Listen(IDispatch* source, const wchar_t* event, DISPID id, EventHandler handler) {
  const ComPointer<IEnumConnectionPoints> points = PointsOf(source);
  host::Error error = ErrorOf(CONNECT_E_NOCONNECTION);
  ComPointer<IConnectionPoint> point;
  for (ULONG fetched = 0; points->Next(1, point.Out(), &fetched) == S_OK && point;) {
    try {
      return Advise(source, point, event, id, handler);
    } catch (const host::Error& refused) {
      error = refused;
    }
  }
  throw error;
}

}  // namespace corvane::com
