// ScriptedObject: an object of an environment that answers from a script and writes down every call, in words:
//
//   "get Lines(2, 5)"     "call Delete()"     "put Caption = \"&Open\""     "putref Object = <font>"
//
// Left out arguments are blank, references to numbers have "&" in front, objects stand as <name>.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "com/com_pointer.h"
#include "com/value.h"

namespace corvane::com {

using Log = std::vector<std::string>;

class ScriptedObject : public IDispatch, public IConnectionPointContainer {
 public:
  static ComPointer<ScriptedObject> New(const std::string& name, std::shared_ptr<Log> log);

  // Any member without an answer is unknown. Members compare without case.
  void Answer(const std::string& member, const Value& value);
  void Answer(const std::string& member, const ComPointer<ScriptedObject>& object);
  // [number]: an Error of the environment, with [text].
  void Fail(const std::string& member, long number, const std::string& text = {});
  void FailWith(const std::string& member, HRESULT code);
  // Says what failed only when it is asked to: Error 380, "told late".
  void FailLate(const std::string& member);
  // Runs before the answer; arguments as COM hands them over, from the last to the first.
  void Do(const std::string& member, std::function<void(DISPPARAMS&)> act);
  // Properties that take no object by reference.
  bool refuses_references = false;
  // The ids that names get from now on start here: another type of the same names.
  DISPID first_id = 100;
  long lookups = 0;  // of names

  // Events: one connection point of this interface.
  bool has_events = false;
  IID events = {0x0002E198, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  HRESULT advise_answer = S_OK;
  ComPointer<ITypeInfo> type;
  // Other interfaces that are this very object.
  std::map<std::string, ComPointer<ScriptedObject>> others;
  ComPointer<IDispatch> sink;
  // What Invoke of the sink answers; Error 91 without a sink.
  HRESULT Raise(DISPID event, std::vector<VARIANT> last_to_first);

  static long Alive() { return alive_; }
  const std::string& Name() const { return name_; }
  ULONG References() const { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* told, UINT* bad_argument) override;
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

 private:
  struct Member {
    DISPID id = 0;
    Value answer;
    HRESULT code = S_OK;
    EXCEPINFO told{};
    std::string text;
    std::function<void(DISPPARAMS&)> act;
  };
  ScriptedObject(const std::string& name, std::shared_ptr<Log> log) : name_(name), log_(std::move(log)) { ++alive_; }
  virtual ~ScriptedObject() { --alive_; }
  Member& Of(const std::string& member);
  Member* Find(DISPID id, std::string& name);

  std::string name_;
  std::shared_ptr<Log> log_;
  std::map<std::string, Member> members_;
  ULONG references_ = 0;
  static inline long alive_ = 0;
};

// The scripted object behind an interface of it; null for others.
ScriptedObject* Scripted(IDispatch* object);

}  // namespace corvane::com
