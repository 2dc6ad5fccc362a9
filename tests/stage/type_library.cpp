#include "tests/stage/type_library.h"

#include "tests/stage/event_source.h"
#include "tests/stage/texts.h"

namespace corvane::stage {

const IID kEvents2 = {0x3d7b9c15, 0x52ee, 0x4f0b, {0xa6, 0x3c, 0x18, 0x77, 0x04, 0xcd, 0xe9, 0x21}};

namespace {

constexpr IID kEvents = {0x0002e112, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
constexpr GUID kLibrary = {0x9b2a6f3e, 0x0d41, 0x4c7c, {0xb5, 0x5e, 0x61, 0x2f, 0xa8, 0x90, 0x3e, 0xd7}};

struct Type {
  const char* name;   // in the library
  const char* table;  // of the objects that are of it
  const IID& id;
  const char* member;
  DISPID number;
};

const Type kTypes[] = {
    {"Events", "Events", kEvents, "CommandBarEvents", 0xcd},
    {"Events2", "", kEvents2, "VBBuildEvents", 0xd2},
    {"_dispCommandBarControlEvents", "CommandBarEvents", kCommandBarEvents, "Click", TypeLibrary::kClick},
    {"_dispVBBuildEvents", "VBBuildEvents", kBuildEvents, "EnterRunMode", TypeLibrary::kEnterRunMode},
};

void Add(ICreateTypeLib2& library, const Type& type) {
  ComPointer<ICreateTypeInfo> info;
  if (FAILED(library.CreateTypeInfo(Wide(type.name).data(), TKIND_DISPATCH, info.Out()))) return;
  info->SetGuid(type.id);
  FUNCDESC member{};
  member.memid = type.number;
  member.funckind = FUNC_DISPATCH;
  member.invkind = INVOKE_FUNC;
  member.callconv = CC_STDCALL;
  member.elemdescFunc.tdesc.vt = VT_VOID;
  info->AddFuncDesc(0, &member);
  std::wstring name = Wide(type.member);
  LPOLESTR names = name.data();
  info->SetFuncAndParamNames(0, &names, 1);
  info->LayOut();
}

#ifdef _WIN64
constexpr SYSKIND kSystem = SYS_WIN64;
#else
constexpr SYSKIND kSystem = SYS_WIN32;
#endif

}  // namespace

// It is never written to the file.
TypeLibrary::TypeLibrary() {
  ComPointer<ICreateTypeLib2> library;
  if (FAILED(CreateTypeLib2(kSystem, L"stage.tlb", library.Out()))) return;
  library->SetGuid(kLibrary);
  library->SetName(std::wstring(L"Stage").data());
  for (const Type& type : kTypes) Add(*library.Get(), type);
  library->QueryInterface(IID_ITypeLib, library_.OutVoid());
}

ComPointer<ITypeInfo> TypeLibrary::TypeOf(const std::string& table) const {
  ComPointer<ITypeInfo> info;
  for (const Type& type : kTypes)
    if (library_ && table == type.table && FAILED(library_->GetTypeInfoOfGuid(type.id, info.Out()))) return {};
  return info;
}

}  // namespace corvane::stage
