#include "tests/stage/published.h"

#include "tests/stage/call.h"
#include "tests/stage/event_source.h"
#include "tests/stage/stage.h"
#include "tests/stage/texts.h"

namespace corvane::stage {

namespace {

// Asked for by the stage alone: gives the Published itself, without a reference.
constexpr IID kPublished = {0x5e2fb6a1, 0x9a0c, 0x4e55, {0xb0, 0x61, 0x4d, 0x0e, 0x8d, 0x2c, 0x7f, 0x13}};

// A put names its value; everything else comes by position.
bool NamesFit(const DISPPARAMS& parameters, bool put) {
  if (!put) return parameters.cNamedArgs == 0;
  return parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
}

Handler HandlerOf(const Member& member, WORD flags) {
  if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) return member.put;
  if ((flags & DISPATCH_PROPERTYGET) && member.get) return member.get;
  return (flags & DISPATCH_METHOD) ? member.method : nullptr;
}

}  // namespace

namespace {

// What the latest call whose text is deferred failed with.
Failure deferred;

void FillIn(const Failure& failure, EXCEPINFO& exception) {
  exception.scode = failure.code;
  exception.bstrSource = SysAllocString(L"Stage");
  exception.bstrDescription = NewBstr(failure.text);
}

HRESULT CALLBACK FillInDeferred(EXCEPINFO* exception) {
  exception->pfnDeferredFillIn = nullptr;
  FillIn(deferred, *exception);
  return S_OK;
}

}  // namespace

HRESULT Raise(const Failure& failure, EXCEPINFO* exception, bool defer_text) {
  if (!failure.IsError()) return failure.code;
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  if (defer_text) {
    deferred = failure;
    exception->pfnDeferredFillIn = &FillInDeferred;
  } else {
    FillIn(failure, *exception);
  }
  return DISP_E_EXCEPTION;
}

Published::Published(Stage& stage, std::shared_ptr<void> target, const ObjectTable& table)
    : stage_(stage), target_(std::move(target)), table_(table), born_(stage.NextBirth()) {
  ++Book().objects;
  ++Book().objects_by_name[table_.name];
  ++Book().references;
}

Published::~Published() {
  --Book().objects;
  --Book().objects_by_name[table_.name];
}

Ledger& Published::Book() const {
  return stage_.ledger;
}

const Published* Published::Of(IUnknown* object) {
  void* found = nullptr;
  if (object == nullptr || FAILED(object->QueryInterface(kPublished, &found))) return nullptr;
  return static_cast<Published*>(found);
}

HRESULT Published::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (IsEqualIID(id, kPublished)) {
    *object = this;
    return S_OK;
  }
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch)) {
    AddRef();
    *object = static_cast<IDispatch*>(this);
  } else if (stage_.types && &table_ == &TableOf<host::Events>() && IsEqualIID(id, kEvents2)) {
    *object = static_cast<IDispatch*>(new Published(stage_, target_, TableOfLaterEvents()));
  } else {
    *object = More(id);
  }
  return *object ? S_OK : E_NOINTERFACE;
}

ULONG Published::AddRef() {
  ++Book().references;
  return static_cast<ULONG>(++references_);
}

ULONG Published::Release() {
  --Book().references;
  const LONG left = --references_;
  if (left == 0) delete this;
  return static_cast<ULONG>(left);
}

HRESULT Published::GetTypeInfoCount(UINT* count) {
  if (count) *count = stage_.types && stage_.types->TypeOf(table_.name) ? 1 : 0;
  return S_OK;
}

HRESULT Published::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = stage_.types && index == 0 ? stage_.types->TypeOf(table_.name).Detach() : nullptr;
  return *info ? S_OK : DISP_E_BADINDEX;
}

bool Published::IsMissing(const Member& member) const {
  return Book().Lacks(table_.name + "." + member.name) || (stage_.types && member.is_of_later_interface);
}

const Member* Published::ByName(const wchar_t* name) const {
  for (const Member& member : table_.members)
    if (_wcsicmp(Wide(member.name).c_str(), name) == 0 && !IsMissing(member)) return &member;
  return nullptr;
}

const Member* Published::ByNumber(DISPID id) const {
  for (const Member& member : table_.members)
    if (member.id == id && !IsMissing(member)) return &member;
  return nullptr;
}

// Names of arguments are not known.
HRESULT Published::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (!IsEqualIID(id, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  if (const auto failure = Book().Enter(table_.name + ".GetIDsOfNames"))
    return failure->IsError() ? E_OUTOFMEMORY : failure->code;
  const Member* member = count > 0 ? ByName(names[0]) : nullptr;
  if (member == nullptr) return DISP_E_UNKNOWNNAME;
  ids[0] = member->id;
  return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT Published::Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* exception, UINT* bad_argument) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  const Member* member = ByNumber(id);
  const std::string name = table_.name + "." + (member ? member->name : std::to_string(id));
  const auto failure = Book().Enter(name);
  if (failure) return Raise(*failure, exception, stage_.defers_error_texts);
  if (table_.of_project && born_ <= stage_.ClosedBefore()) return static_cast<HRESULT>(DISP_E_BADCALLEE);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  const auto keep = ComPointer<Published>::Shared(this);  // the call may let go of the last reference
  const HRESULT code = Answer(*member, flags, *parameters, result, exception, bad_argument);
  if (FAILED(code) && code != DISP_E_EXCEPTION) Book().faults.push_back(name + ": " + std::to_string(code));
  return code;
}

HRESULT Published::Answer(const Member& member, WORD flags, DISPPARAMS& parameters, VARIANT* result,
                          EXCEPINFO* exception, UINT* bad_argument) {
  const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  const Handler handler = HandlerOf(member, flags);
  if (handler == nullptr) return DISP_E_MEMBERNOTFOUND;
  if (!NamesFit(parameters, put)) return put ? DISP_E_PARAMNOTOPTIONAL : DISP_E_NONAMEDARGS;
  const int given = static_cast<int>(parameters.cArgs) - (put ? 1 : 0);
  if (given < member.required || given > member.allowed) return DISP_E_BADPARAMCOUNT;
  try {
    Call call(stage_, target_, parameters);
    if (Book().AnswersNothing(table_.name + "." + member.name))
      call.ReturnObject(nullptr, VT_DISPATCH);
    else
      handler(call);
    call.MoveResultTo(result);
    return S_OK;
  } catch (const host::Error& error) {
    return Raise(Failure::Error(error.Number(), error.Description()), exception, stage_.defers_error_texts);
  } catch (const BadArguments& bad) {
    if (bad_argument) *bad_argument = static_cast<UINT>(parameters.cArgs - 1 - bad.position);
    return bad.code;
  }
}

}  // namespace corvane::stage
