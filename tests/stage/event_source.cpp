#include "tests/stage/event_source.h"

#include <olectl.h>

#include "host/command_bars.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

const IID kCommandBarEvents = {0x0002e198, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
const IID kBuildEvents = {0x6c1d40f2, 0x7b35, 0x4a0e, {0x8f, 0x1c, 0x93, 0x52, 0xe0, 0x4b, 0x66, 0xa8}};

namespace {

// What both objects below share: they count as objects that are out, and keep their source.
template <class Interface>
class Part : public Interface {
 public:
  explicit Part(EventSource& source) : source_(ComPointer<EventSource>::Shared(&source)) {
    ++Book().objects;
    ++Book().references;
  }
  virtual ~Part() { --Book().objects; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, __uuidof(Interface));
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override {
    ++Book().references;
    return ++references_;
  }
  ULONG STDMETHODCALLTYPE Release() override {
    --Book().references;
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  Ledger& Book() const { return source_->TheStage().ledger; }
  EventSource& Source() const { return *source_.Get(); }
  // The code of a call that shall fail; S_OK for others.
  HRESULT Enter(const char* member) const {
    const auto failure = Book().Enter(source_->Table().name + "." + member);
    return !failure ? S_OK : failure->IsError() ? E_FAIL : failure->code;
  }

 private:
  ComPointer<EventSource> source_;
  ULONG references_ = 1;
};

class Point : public Part<IConnectionPoint> {
 public:
  using Part::Part;
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) override {
    if (const HRESULT code = Enter("GetConnectionInterface"); FAILED(code)) return code;
    *id = Source().Events();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override {
    return static_cast<Published&>(Source()).QueryInterface(IID_IConnectionPointContainer,
                                                            reinterpret_cast<void**>(container));
  }
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
    if (const HRESULT code = Enter("Advise"); FAILED(code)) return code;
    return Source().Advise(sink, cookie);
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
    if (const HRESULT code = Enter("Unadvise"); FAILED(code)) return code;
    return Source().Unadvise(cookie);
  }
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override {
    *connections = nullptr;
    return E_NOTIMPL;
  }
};

class PointEnumerator : public Part<IEnumConnectionPoints> {
 public:
  using Part::Part;
  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, IConnectionPoint** points, ULONG* fetched) override {
    if (fetched) *fetched = 0;
    if (const HRESULT code = Enter("NextConnectionPoint"); FAILED(code)) return code;
    if (wanted == 0 || given_) return wanted == 0 ? S_OK : S_FALSE;
    given_ = true;
    points[0] = new Point(Source());
    if (fetched) *fetched = 1;
    return wanted == 1 ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const bool enough = count == 0 || (count == 1 && !given_);
    given_ = given_ || count > 0;
    return enough ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    given_ = false;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** copy) override {
    *copy = nullptr;
    return E_NOTIMPL;
  }

 private:
  bool given_ = false;
};

}  // namespace

EventSource::~EventSource() {
  bound_.reset();
  Book().dropped_sinks += static_cast<long>(sinks_.size());
  Book().sinks -= static_cast<long>(sinks_.size());
}

void* EventSource::More(REFIID id) {
  if (!IsEqualIID(id, IID_IConnectionPointContainer)) return nullptr;
  if (Book().Enter(Table().name + ".ConnectionPointContainer")) return nullptr;
  Published::AddRef();
  return static_cast<IConnectionPointContainer*>(this);
}

HRESULT EventSource::EnumConnectionPoints(IEnumConnectionPoints** points) {
  *points = nullptr;
  if (const auto failure = Book().Enter(Table().name + ".EnumConnectionPoints"))
    return failure->IsError() ? E_FAIL : failure->code;
  *points = new PointEnumerator(*this);
  return S_OK;
}

HRESULT EventSource::FindConnectionPoint(REFIID id, IConnectionPoint** point) {
  *point = nullptr;
  if (const auto failure = Book().Enter(Table().name + ".FindConnectionPoint"))
    return failure->IsError() ? E_FAIL : failure->code;
  if (!IsEqualIID(id, events_)) return CONNECT_E_NOCONNECTION;
  *point = new Point(*this);
  return S_OK;
}

HRESULT EventSource::Advise(IUnknown* sink, DWORD* cookie) {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  ComPointer<IDispatch> events;
  if (FAILED(sink->QueryInterface(events_, events.OutVoid()))) return static_cast<HRESULT>(CONNECT_E_CANNOTCONNECT);
  try {
    if (!bound_) bound_ = bind_(*this);
  } catch (const host::Error&) {
    return static_cast<HRESULT>(CONNECT_E_CANNOTCONNECT);
  }
  sinks_.emplace(*cookie = ++last_cookie_, std::move(events));
  ++Book().sinks;
  return S_OK;
}

HRESULT EventSource::Unadvise(DWORD cookie) {
  const auto found = sinks_.find(cookie);
  if (found == sinks_.end()) return static_cast<HRESULT>(CONNECT_E_NOCONNECTION);
  const ComPointer<IDispatch> gone = found->second;
  sinks_.erase(found);
  --Book().sinks;
  if (sinks_.empty()) bound_.reset();
  return S_OK;
}

void EventSource::Raise(DISPID event, DISPPARAMS& parameters) {
  const auto keep = ComPointer<EventSource>::Shared(this);
  const auto sinks = sinks_;
  for (const auto& [cookie, sink] : sinks) {
    if (sinks_.count(cookie) == 0) continue;
    const HRESULT code =
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    if (FAILED(code)) ++Book().sink_failures;
  }
}

namespace {

// Three arguments, the last one first; the two flags are written back.
std::unique_ptr<host::Subscription> BindClick(EventSource& source) {
  auto& events = *std::static_pointer_cast<host::CommandBarEvents>(source.Target());
  return events.OnClick([&source](const host::Ref<host::CommandBarControl>& control, bool& handled, bool& cancel) {
    const ComPointer<Published> clicked(NewPublished(source.TheStage(), control, TableOf<host::CommandBarControl>()));
    VARIANT_BOOL flags[2] = {cancel ? VARIANT_TRUE : VARIANT_FALSE, handled ? VARIANT_TRUE : VARIANT_FALSE};
    VARIANT arguments[3] = {};
    for (int i = 0; i < 2; ++i) {
      arguments[i].vt = VT_BYREF | VT_BOOL;
      arguments[i].pboolVal = &flags[i];
    }
    arguments[2].vt = VT_DISPATCH;
    arguments[2].pdispVal = clicked.Get();
    DISPPARAMS parameters{arguments, nullptr, 3, 0};
    source.Raise(source.TheStage().types ? TypeLibrary::kClick : DISPID(kClick), parameters);
    cancel = flags[0] != VARIANT_FALSE;
    handled = flags[1] != VARIANT_FALSE;
  });
}

std::unique_ptr<host::Subscription> BindBuild(EventSource& source) {
  auto& events = *std::static_pointer_cast<host::VBBuildEvents>(source.Target());
  return events.OnEnterRunMode([&source] {
    DISPPARAMS none{};
    source.Raise(source.TheStage().types ? TypeLibrary::kEnterRunMode : DISPID(kEnterRunMode), none);
  });
}

}  // namespace

Published* NewPublished(Stage& stage, const std::shared_ptr<void>& target, const ObjectTable& table) {
  if (&table == &TableOf<host::CommandBarEvents>())
    return new EventSource(stage, target, table, kCommandBarEvents, &BindClick);
  if (&table == &TableOf<host::VBBuildEvents>()) return new EventSource(stage, target, table, kBuildEvents, &BindBuild);
  return new Published(stage, target, table);
}

}  // namespace corvane::stage
