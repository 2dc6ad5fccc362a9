#include "tests/com/scripted_object.h"

#include "com/errors.h"
#include "com/texts.h"
#include "tests/com/connection_point.h"

namespace corvane::com {

namespace {

// Answered by scripted objects alone.
constexpr IID kScripted = {0x6A1D35F1, 0x1F5C, 0x4C5B, {0x9B, 0x11, 0x30, 0x4E, 0x8F, 0x67, 0x42, 0x01}};

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

std::string InWords(const VARIANT& argument) {
  switch (argument.vt) {
    case VT_ERROR:
      return argument.scode == DISP_E_PARAMNOTFOUND ? "" : "error";
    case VT_I4:
      return std::to_string(argument.lVal);
    case VT_BYREF | VT_I4:
      return "&" + std::to_string(*argument.plVal);
    case VT_R8:
      return std::to_string(argument.dblVal);
    case VT_BOOL:
      return argument.boolVal == VARIANT_TRUE ? "True" : argument.boolVal == VARIANT_FALSE ? "False" : "bad boolean";
    case VT_BSTR:
      return "\"" + TextOf(argument.bstrVal) + "\"";
    case VT_EMPTY:
      return "Empty";
    case VT_DISPATCH:
      if (!argument.pdispVal) return "Nothing";
      return "<" + (Scripted(argument.pdispVal) ? Scripted(argument.pdispVal)->Name() : "another") + ">";
  }
  return "type " + std::to_string(argument.vt);
}

std::string InWords(const std::string& member, WORD how, const DISPPARAMS& parameters) {
  const bool put = how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
  const UINT first = put ? 1 : 0;
  std::string text;
  for (UINT i = parameters.cArgs; i-- > first;)
    text += (i + 1 == parameters.cArgs ? "" : ", ") + InWords(parameters.rgvarg[i]);
  if (put) {
    const bool named = parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    return std::string(how == DISPATCH_PROPERTYPUTREF ? "putref " : "put ") + member +
           (text.empty() ? "" : "(" + text + ")") + (named ? " = " : " without name ") + InWords(parameters.rgvarg[0]);
  }
  const char* verb = how == DISPATCH_METHOD ? "call " : how == (DISPATCH_METHOD | DISPATCH_PROPERTYGET) ? "get " : "? ";
  return verb + member + "(" + text + ")";
}

HRESULT STDAPICALLTYPE TellLate(EXCEPINFO* told) {
  told->wCode = 380;
  told->bstrDescription = NewBstr("told late");
  return S_OK;
}

}  // namespace

ScriptedObject* Scripted(IDispatch* object) {
  void* found = nullptr;
  if (!object || FAILED(object->QueryInterface(kScripted, &found))) return nullptr;
  auto* scripted = static_cast<ScriptedObject*>(found);
  scripted->Release();
  return scripted;
}

ComPointer<ScriptedObject> ScriptedObject::New(const std::string& name, std::shared_ptr<Log> log) {
  return ComPointer(new ScriptedObject(name, std::move(log)));
}

ScriptedObject::Member& ScriptedObject::Of(const std::string& name) {
  Member& member = members_[Lower(name)];
  if (member.id == 0) member.id = first_id + static_cast<DISPID>(members_.size());
  return member;
}

ScriptedObject::Member* ScriptedObject::Find(DISPID id, std::string& name) {
  for (auto& [its_name, member] : members_) {
    if (member.id != id && !(id == DISPID_VALUE && its_name == "default")) continue;
    name = its_name;
    return &member;
  }
  return nullptr;
}

void ScriptedObject::Answer(const std::string& member, const Value& value) {
  Of(member).answer = value;
}

void ScriptedObject::Answer(const std::string& member, const ComPointer<ScriptedObject>& object) {
  Answer(member, Value(static_cast<IDispatch*>(object.Get())));
}

void ScriptedObject::Fail(const std::string& name, long number, const std::string& text) {
  Member& member = Of(name);
  member.code = DISP_E_EXCEPTION;
  member.told.scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
  member.text = text;
}

void ScriptedObject::FailWith(const std::string& member, HRESULT code) {
  Of(member).code = code;
}

void ScriptedObject::FailLate(const std::string& name) {
  Member& member = Of(name);
  member.code = DISP_E_EXCEPTION;
  member.told.pfnDeferredFillIn = &TellLate;
}

void ScriptedObject::Do(const std::string& member, std::function<void(DISPPARAMS&)> act) {
  Of(member).act = std::move(act);
}

HRESULT ScriptedObject::Raise(DISPID event, std::vector<VARIANT> last_to_first) {
  IDispatch* to = sink.Get();  // without a reference of the call's own
  if (!to) return CodeOf(host::Error(runtime::kObjectNotSet));
  DISPPARAMS parameters{last_to_first.data(), nullptr, static_cast<UINT>(last_to_first.size()), 0};
  return to->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
}

HRESULT ScriptedObject::QueryInterface(REFIID iid, void** object) {
  *object = nullptr;
  for (const auto& [name, other] : others) {
    IID its_iid;
    if (SUCCEEDED(IIDFromString(ToWide(name).c_str(), &its_iid)) && its_iid == iid)
      return other->QueryInterface(IID_IDispatch, object);
  }
  if (iid == IID_IUnknown || iid == IID_IDispatch) *object = static_cast<IDispatch*>(this);
  if (iid == kScripted) *object = this;
  if (iid == IID_IConnectionPointContainer && has_events) *object = static_cast<IConnectionPointContainer*>(this);
  if (!*object) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG ScriptedObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ScriptedObject::GetTypeInfoCount(UINT* count) {
  *count = type ? 1 : 0;
  return S_OK;
}

HRESULT ScriptedObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  *info = ComPointer(type).Detach();
  return type ? S_OK : DISP_E_BADINDEX;
}

HRESULT ScriptedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  ++lookups;
  const auto found = members_.find(Lower(ToAnsi(names[0])));
  ids[0] = found == members_.end() ? DISPID_UNKNOWN : found->second.id;
  return count != 1 || found == members_.end() ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptedObject::Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result,
                               EXCEPINFO* told, UINT*) {
  std::string name;
  Member* member = Find(id, name);
  if (!member) return DISP_E_MEMBERNOTFOUND;
  log_->push_back(InWords(name, how, *parameters));
  if (how == DISPATCH_PROPERTYPUTREF && refuses_references) return DISP_E_MEMBERNOTFOUND;
  if (member->act) member->act(*parameters);
  if (member->code == DISP_E_EXCEPTION && told) {
    *told = member->told;
    told->bstrDescription = member->text.empty() ? nullptr : NewBstr(member->text);
  }
  if (FAILED(member->code)) return member->code;
  return result ? VariantCopy(result, member->answer.In()) : S_OK;
}

HRESULT ScriptedObject::EnumConnectionPoints(IEnumConnectionPoints** points) {
  *points = NewConnectionPoints(*this);
  return S_OK;
}

HRESULT ScriptedObject::FindConnectionPoint(REFIID, IConnectionPoint** point) {
  *point = nullptr;
  return CONNECT_E_NOCONNECTION;
}

}  // namespace corvane::com
