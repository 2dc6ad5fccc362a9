#include "tests/com/made_library.h"

#include <string>

#include "com/errors.h"
#include "com/texts.h"

namespace corvane::com {

namespace {

constexpr IID kSource = {0x4A5E4E20, 0x1C7B, 0x4F0A, {0x8D, 0x52, 0x61, 0x0B, 0x7C, 0x9E, 0x33, 0x00}};
constexpr GUID kLibrary = {0x4A5E4E2F, 0x1C7B, 0x4F0A, {0x8D, 0x52, 0x61, 0x0B, 0x7C, 0x9E, 0x33, 0x0F}};

IID Iid(const char* text) {
  IID iid;
  Check(IIDFromString(ToWide(text).c_str(), &iid));
  return iid;
}

// A dispinterface of one method.
void AddType(ICreateTypeLib2& library, const wchar_t* name, const IID& iid, const wchar_t* method, DISPID id) {
  ComPointer<ICreateTypeInfo> type;
  Check(library.CreateTypeInfo(const_cast<LPOLESTR>(name), TKIND_DISPATCH, type.Out()));
  Check(type->SetGuid(iid));
  FUNCDESC function{};
  function.memid = id;
  function.funckind = FUNC_DISPATCH;
  function.invkind = INVOKE_FUNC;
  function.callconv = CC_STDCALL;
  function.elemdescFunc.tdesc.vt = VT_VOID;
  Check(type->AddFuncDesc(0, &function));
  LPOLESTR names[] = {const_cast<LPOLESTR>(method)};
  Check(type->SetFuncAndParamNames(0, names, 1));
  Check(type->LayOut());
}

// An interface without members.
void AddInterface(ICreateTypeLib2& library, const wchar_t* name, const IID& iid, UINT flags) {
  ComPointer<ICreateTypeInfo> type;
  Check(library.CreateTypeInfo(const_cast<LPOLESTR>(name), TKIND_INTERFACE, type.Out()));
  Check(type->SetGuid(iid));
  Check(type->SetTypeFlags(flags));
  Check(type->LayOut());
}

}  // namespace

ComPointer<ITypeInfo> MadeType(const wchar_t* name, EventsKind kind) {
  wchar_t folder[MAX_PATH], file[MAX_PATH];
  GetTempPathW(MAX_PATH, folder);
  GetTempFileNameW(folder, L"tlb", 0, file);
  ComPointer<ICreateTypeLib2> made;
  Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, file, made.Out()));
  DeleteFileW(file);
  Check(made->SetGuid(kLibrary));
  AddType(*made.Get(), L"Source", kSource, L"Name", 1);
  AddType(*made.Get(), L"MadeEvents", kMadeEvents, L"EnterRunMode", kMadeEventId);
  if (kind == EventsKind::Names)
    AddType(*made.Get(), L"Events2", Iid(kMadeEvents2), L"VBBuildEvents", 2);
  else
    AddInterface(*made.Get(), L"Events2", Iid(kMadeEvents2), kind == EventsKind::Dual ? TYPEFLAG_FDISPATCHABLE : 0);
  const auto library = made.As<ITypeLib>();
  ComPointer<ITypeInfo> type;
  MEMBERID id;
  USHORT found = 1;
  if (library) library->FindName(const_cast<LPOLESTR>(name), 0, type.Out(), &id, &found);
  return type;
}

}  // namespace corvane::com
