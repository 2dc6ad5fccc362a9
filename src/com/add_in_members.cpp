#include "com/add_in_members.h"

#include <vector>

#include "com/errors.h"
#include "com/objects.h"

namespace corvane::com {

namespace {

using addin::Connect;
using Arguments = std::vector<Value>;

struct Member {
  const wchar_t* name;
  UINT arguments;  // of the method
  // [add_in] is null while it is not connected.
  Value (*get)(const Connect* add_in);
  void (*put)(Connect& add_in, const Value& value);
  Value (*call)(Session& session, const Arguments& arguments);
};

template <class Act>
constexpr auto Doing(Act) {
  return [](Session& session, const Arguments& arguments) {
    Act()(session.AddIn(), arguments);
    return Value();
  };
}

const Member kMembers[] = {
    {L"FormDisplayed", 0, [](const Connect* add_in) { return Value(add_in && add_in->FormDisplayed); },
     [](Connect& add_in, const Value& value) { add_in.FormDisplayed = value.ToBool(); }, nullptr},
    {L"VBInstance", 0, [](const Connect* add_in) { return Argument(add_in ? add_in->VBInstance : nullptr); },
     [](Connect& add_in, const Value& value) { add_in.VBInstance = Wrap<host::VBE>(value); }, nullptr},
    {L"MenuHandler", 0, [](const Connect* add_in) { return Argument(add_in ? add_in->MenuHandler() : nullptr); },
     [](Connect& add_in, const Value& value) { add_in.SetMenuHandler(Wrap<host::CommandBarEvents>(value)); }, nullptr},
    {L"MenuHand", 0, [](const Connect* add_in) { return Argument(add_in ? add_in->MenuHand() : nullptr); },
     [](Connect& add_in, const Value& value) { add_in.SetMenuHand(Wrap<host::CommandBarEvents>(value)); }, nullptr},
    {L"mStart", 0, [](const Connect* add_in) { return Argument(add_in ? add_in->mStart() : nullptr); },
     [](Connect& add_in, const Value& value) { add_in.SetmStart(Wrap<host::VBBuildEvents>(value)); }, nullptr},
    {L"Hide", 0, nullptr, nullptr, Doing([](Connect& add_in, const Arguments&) { add_in.Hide(); })},
    {L"Show", 1, nullptr, nullptr,
     Doing([](Connect& add_in, const Arguments& arguments) { add_in.Show(arguments[0].ToBool()); })},
    {L"AddToAddInCommandBar", 1, nullptr, nullptr,
     [](Session& session, const Arguments& arguments) {
       return Argument(session.AddIn().AddToAddInCommandBar(arguments[0].ToText()));
     }},
    {L"AddToAddInMenu", 1, nullptr, nullptr,
     [](Session& session, const Arguments& arguments) {
       return Argument(session.AddIn().AddToAddInMenu(arguments[0].ToText()));
     }},
    {L"MenuHandler_Click", 3, nullptr, nullptr,
     Doing([](Connect& add_in, const Arguments&) { add_in.MenuHandler_Click(); })},
    {L"MenuHand_Click", 3, nullptr, nullptr, Doing([](Connect& add_in, const Arguments&) { add_in.MenuHand_Click(); })},
    {L"mStart_EnterRunMode", 0, nullptr, nullptr,
     Doing([](Connect& add_in, const Arguments&) { add_in.mStart_EnterRunMode(); })},
    // The text of a script; its result text.
    {L"RunScript", 1, nullptr, nullptr,
     [](Session& session, const Arguments& arguments) { return Value(session.Scripts().Run(arguments[0].ToText())); }},
    {L"StopScript", 0, nullptr, nullptr,
     [](Session& session, const Arguments&) {
       session.Scripts().Stop();
       return Value();
     }},
};
constexpr DISPID kFirst = 0x100;  // the others have the ids of their slots

// From the first to the last; they stand the other way round.
Arguments ArgumentsOf(const DISPPARAMS& parameters, UINT wanted) {
  if (parameters.cArgs != wanted) throw ErrorOf(DISP_E_BADPARAMCOUNT);
  Arguments arguments(wanted);
  for (UINT i = 0; i < wanted; ++i)
    Check(VariantCopyInd(arguments[i].Out(), &parameters.rgvarg[parameters.cArgs - 1 - i]));
  return arguments;
}

void Put(Session* session, const Member& member, const DISPPARAMS& parameters) {
  if (parameters.cNamedArgs != 1 || *parameters.rgdispidNamedArgs != DISPID_PROPERTYPUT)
    throw ErrorOf(DISP_E_NONAMEDARGS);
  const Arguments arguments = ArgumentsOf(parameters, 1);
  if (!session) throw host::Error(runtime::kObjectNotSet);
  session->Run([&](Connect& add_in) { member.put(add_in, arguments[0]); });
}

Value Call(Session* session, const Member& member, const DISPPARAMS& parameters) {
  const Arguments arguments = ArgumentsOf(parameters, member.arguments);
  Value answer;
  if (session) session->Run([&](Connect&) { answer = member.call(*session, arguments); });
  return answer;
}

}  // namespace

DISPID FindMember(const wchar_t* name) {
  for (size_t i = 0; i < std::size(kMembers); ++i)
    if (lstrcmpiW(name, kMembers[i].name) == 0) return kFirst + static_cast<DISPID>(i);
  return DISPID_UNKNOWN;
}

HRESULT InvokeMember(Session* session, DISPID id, WORD how, const DISPPARAMS& parameters, VARIANT* result) {
  if (id < kFirst || id >= kFirst + static_cast<DISPID>(std::size(kMembers))) return DISP_E_MEMBERNOTFOUND;
  const Member& member = kMembers[id - kFirst];
  if (how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
    if (!member.put) return DISP_E_MEMBERNOTFOUND;
    Put(session, member, parameters);
    return S_OK;
  }
  if (!(how & (member.get ? DISPATCH_PROPERTYGET : DISPATCH_METHOD))) return DISP_E_MEMBERNOTFOUND;
  if (parameters.cNamedArgs != 0) return DISP_E_NONAMEDARGS;
  if (member.get) ArgumentsOf(parameters, 0);
  const Value answer =
      member.get ? member.get(session ? &session->AddIn() : nullptr) : Call(session, member, parameters);
  if (result) VariantInit(result);
  return result ? VariantCopy(result, answer.In()) : S_OK;
}

}  // namespace corvane::com
