#include "tests/stage/script_library.h"

#include <oleauto.h>

#include "tests/stage/com_pointer.h"
#include "tests/stage/published.h"
#include "tests/stage/texts.h"

namespace corvane::stage {

namespace {

constexpr const wchar_t* kMethods[] = {L"Command", L"GetConnection", L"SetConnection"};
enum Method : DISPID { kCommand = 1, kGetConnection, kSetConnection };
constexpr HRESULT kFailure = static_cast<HRESULT>(0x800A0005);

// What classes and their objects have in common.
template <class Interface>
class Counted : public Interface {
 public:
  virtual ~Counted() = default;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  HRESULT Offer(REFIID id, const IID& own, void** object) {
    if (id != IID_IUnknown && id != own) return *object = nullptr, E_NOINTERFACE;
    AddRef();
    *object = static_cast<Interface*>(this);
    return S_OK;
  }

 private:
  ULONG references_ = 1;
};

std::string NameOf(const VARIANT& value) {
  if (value.vt == VT_BSTR) return FromBstr(value.bstrVal);
  const Published* published = value.vt == VT_DISPATCH ? Published::Of(value.pdispVal) : nullptr;
  return published ? published->Table().name : "type " + std::to_string(value.vt);
}

class Action : public Counted<IDispatch> {
 public:
  explicit Action(std::shared_ptr<ScriptLibrary::Heard> heard) : heard_(std::move(heard)) { ++heard_->objects; }
  ~Action() override { --heard_->objects; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return Offer(id, IID_IDispatch, object);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return DISP_E_BADINDEX; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    for (DISPID id = kCommand; id <= kSetConnection; ++id)
      if (lstrcmpiW(names[0], kMethods[id - 1]) == 0) return *ids = id, S_OK;
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                                   UINT*) override {
    std::string arguments;
    for (UINT left = parameters->cArgs; left > 0; --left)
      arguments += (arguments.empty() ? "" : ", ") + NameOf(parameters->rgvarg[left - 1]);
    heard_->calls.push_back(Ansi(kMethods[id - 1]) + "(" + arguments + ")");
    if (id == kCommand) return parameters->cArgs == 2 ? Obey(NameOf(parameters->rgvarg[0]), *result) : E_INVALIDARG;
    if (id == kGetConnection) Answer("connection", *result);
    return S_OK;
  }

 private:
  static void Answer(const std::string& text, VARIANT& result) {
    result.vt = VT_BSTR;
    result.bstrVal = NewBstr(text);
  }
  static HRESULT Obey(const std::string& command, VARIANT& result) {
    if (command == "error") return kFailure;
    if (command == "number")
      result.vt = VT_I2, result.iVal = 7;
    else if (command == "truth")
      result.vt = VT_BOOL, result.boolVal = VARIANT_TRUE;
    else
      Answer(command + "!", result);
    return S_OK;
  }

  const std::shared_ptr<ScriptLibrary::Heard> heard_;
};

class ActionClass : public Counted<IClassFactory> {
 public:
  explicit ActionClass(std::shared_ptr<ScriptLibrary::Heard> heard) : heard_(std::move(heard)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return Offer(id, IID_IClassFactory, object);
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
    const ComPointer<Action> action(new Action(heard_));
    return action->QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  const std::shared_ptr<ScriptLibrary::Heard> heard_;
};

// Wine 8 looks a name up among the machine's classes alone.
const HKEY kRoots[] = {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE};

}  // namespace

ScriptLibrary::ScriptLibrary(const std::wstring& prog_id) : key_(L"Software\\Classes\\" + prog_id) {
  CLSID id;
  CoCreateGuid(&id);
  wchar_t text[64];
  const int length = StringFromGUID2(id, text, 64);  // with the zero behind it
  for (HKEY root : kRoots)
    RegSetKeyValueW(root, (key_ + L"\\CLSID").c_str(), nullptr, REG_SZ, text,
                    static_cast<DWORD>(length * sizeof(wchar_t)));
  const ComPointer<ActionClass> factory(new ActionClass(heard_));
  CoRegisterClassObject(id, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &served_);
}

ScriptLibrary::~ScriptLibrary() {
  CoRevokeClassObject(served_);
  for (HKEY root : kRoots) RegDeleteTreeW(root, key_.c_str());
}

}  // namespace corvane::stage
