#include "tests/com/connection_point.h"

namespace corvane::com {

namespace {

constexpr DWORD kCookie = 77;

template <class Interface>
class Counted : public Interface {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~Counted() = default;

 private:
  ULONG references_ = 0;
};

class Point : public Counted<IConnectionPoint> {
 public:
  explicit Point(ScriptedObject& object) : object_(&object) {}
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override {
    *iid = object_->events;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override {
    *container = nullptr;
    return E_NOTIMPL;
  }
  // As the environment does it: the sink must be of the point's interface.
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
    if (FAILED(object_->advise_answer)) return object_->advise_answer;
    if (FAILED(sink->QueryInterface(object_->events, object_->sink.OutVoid()))) return CONNECT_E_CANNOTCONNECT;
    *cookie = kCookie;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
    if (cookie != kCookie || !object_->sink) return CONNECT_E_NOCONNECTION;
    object_->sink = {};
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override {
    *connections = nullptr;
    return E_NOTIMPL;
  }

 private:
  ComPointer<ScriptedObject> object_;
};

class Points : public Counted<IEnumConnectionPoints> {
 public:
  explicit Points(ScriptedObject& object) : object_(&object) {}
  HRESULT STDMETHODCALLTYPE Next(ULONG, IConnectionPoint** point, ULONG* fetched) override {
    *point = nullptr;
    *fetched = done_ ? 0 : 1;
    if (done_) return S_FALSE;
    done_ = true;
    *point = ComPointer<IConnectionPoint>(new Point(*object_.Get())).Detach();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** points) override {
    *points = nullptr;
    return E_NOTIMPL;
  }

 private:
  ComPointer<ScriptedObject> object_;
  bool done_ = false;
};

}  // namespace

IEnumConnectionPoints* NewConnectionPoints(ScriptedObject& object) {
  return ComPointer<IEnumConnectionPoints>(new Points(object)).Detach();
}

}  // namespace corvane::com
