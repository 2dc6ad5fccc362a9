#include "com/type_library.h"

namespace corvane::com {

namespace {

ComPointer<ITypeLib> LibraryOf(IDispatch* object) {
  ComPointer<ITypeInfo> type;
  ComPointer<ITypeLib> library;
  UINT position = 0;
  if (SUCCEEDED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Out())) && type &&
      FAILED(type->GetContainingTypeLib(library.Out(), &position)))
    library.Detach();
  return library;
}

ComPointer<ITypeInfo> FindType(ITypeLib& library, const wchar_t* name) {
  ComPointer<ITypeInfo> type;
  for (UINT i = 0, count = library.GetTypeInfoCount(); i < count; ++i) {
    BSTR its_name = nullptr;
    if (FAILED(library.GetDocumentation(static_cast<INT>(i), &its_name, nullptr, nullptr, nullptr))) continue;
    const bool same = its_name && lstrcmpiW(its_name, name) == 0;
    SysFreeString(its_name);
    if (same && SUCCEEDED(library.GetTypeInfo(i, type.Out()))) return type;
  }
  return {};
}

// GUID_NULL for one whose members cannot be called by name.
IID IidOfDispatch(ITypeInfo& type) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(type.GetTypeAttr(&attributes))) return GUID_NULL;
  const bool by_name =
      attributes->typekind == TKIND_DISPATCH ||
      (attributes->typekind == TKIND_INTERFACE && (attributes->wTypeFlags & (TYPEFLAG_FDUAL | TYPEFLAG_FDISPATCHABLE)));
  const IID iid = by_name ? attributes->guid : GUID_NULL;
  type.ReleaseTypeAttr(attributes);
  return iid;
}

}  // namespace

DISPID EventId(IDispatch* source, const IID& events, const wchar_t* event, DISPID otherwise) {
  const ComPointer<ITypeLib> library = LibraryOf(source);
  ComPointer<ITypeInfo> type;
  if (!library || FAILED(library->GetTypeInfoOfGuid(events, type.Out()))) return otherwise;
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR name = const_cast<LPOLESTR>(event);
  return type && SUCCEEDED(type->GetIDsOfNames(&name, 1, &id)) ? id : otherwise;
}

ComPointer<IDispatch> AsInterface(IDispatch* object, const wchar_t* name) {
  const ComPointer<ITypeLib> library = LibraryOf(object);
  if (!library) return {};
  const ComPointer<ITypeInfo> type = FindType(*library.Get(), name);
  const IID iid = type ? IidOfDispatch(*type.Get()) : GUID_NULL;
  return iid == GUID_NULL ? ComPointer<IDispatch>() : ComPointer(object).As<IDispatch>(iid);
}

}  // namespace corvane::com
