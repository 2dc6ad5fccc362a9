// The add-in as the environment meets it: IDTExtensibility2, by slots and by name.
#include "com/add_in.h"

#include <atomic>
#include <gtest/gtest.h>
#include <set>

#include "com/class_factory.h"
#include "com/dispatch.h"
#include "com/errors.h"
#include "com/texts.h"
#include "forms/headless_toolkit.h"
#include "tests/com/scripted_environment.h"
#include "tests/support/fake_services.h"

namespace corvane::com {
namespace {

// What the test knows of the home of the session that runs.
struct Rooms {
  tests::FakeServices services;
  forms::HeadlessToolkit* toolkit = nullptr;
  HWND host_window = nullptr;
  bool fails = false;
};

class HeadlessHome : public Home {
 public:
  explicit HeadlessHome(Rooms& rooms) : rooms_(rooms) { rooms_.toolkit = &toolkit_; }
  ~HeadlessHome() override { rooms_.toolkit = nullptr; }
  host::Services& Services() override { return rooms_.services.services; }
  forms::Toolkit& Toolkit() override { return toolkit_; }
  void SetHostWindow(HWND window) override { rooms_.host_window = window; }

 private:
  Rooms& rooms_;
  forms::HeadlessToolkit toolkit_;
};

class AddInTest : public testing::Test {
 protected:
  AddInTest() {
    rooms_.services.files.Put("C:\\Corvane\\corvane.bmp", "BM face");
    add_in_ = ComPointer<AddIn>(new AddIn([this]() -> std::unique_ptr<Home> {
      if (rooms_.fails) throw host::Error(7, "Out of memory");
      return std::make_unique<HeadlessHome>(rooms_);
    }));
    environment_.StartCounting();
    log_->clear();
  }
  ~AddInTest() override {
    add_in_ = {};
    EXPECT_EQ(environment_.Held(), 0u) << "a reference was kept";
    EXPECT_EQ(ModuleUse::Count(), uses_before_);
  }

  void Connect(long mode = 1) { EXPECT_EQ(add_in_->OnConnection(environment_.Root(), mode, nullptr, nullptr), S_OK); }
  void Disconnect(long mode = 1) { EXPECT_EQ(add_in_->OnDisconnection(mode, nullptr), S_OK); }
  std::string TakeCalls() {
    std::string all;
    for (const std::string& call : *log_) all += (all.empty() ? "" : "; ") + call;
    log_->clear();
    return all;
  }
  bool WindowShown() const { return rooms_.toolkit && !rooms_.toolkit->ShownForms().empty(); }
  std::string Setting() {
    return rooms_.services.settings.GetSetting("Corvane", "Settings", "DisplayOnConnect", "none");
  }
  // The environment's message loop, until nothing of a past session is left.
  void RunMessages() {
    const DWORD start = GetTickCount();
    MSG message;
    while (rooms_.toolkit && GetTickCount() - start < 5000) {
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
      Sleep(5);
    }
  }

  const long uses_before_ = ModuleUse::Count();
  Rooms rooms_;
  std::shared_ptr<Log> log_ = std::make_shared<Log>();
  ScriptedEnvironment environment_{log_};
  ComPointer<AddIn> add_in_;
};

TEST_F(AddInTest, ConnectingAsksTheEnvironmentForTheseAndNoMore) {
  Connect();
  EXPECT_EQ(TakeCalls(),
            "get mainwindow(); get hwnd(); "
            "get commandbars(); get item(\"Standard\"); get controls(); get count(); get add(1, , , 3); "
            "put visible = True; put state = 0; put style = 1; call pasteface(); put caption = \"Corvane - 2000\"; "
            "get commandbars(); get item(\"Add-Ins\"); get controls(); get add(1); put caption = \"&Corvane - 2000\"; "
            "get events(); get events(); get commandbarevents(<button>); "
            "get events(); get commandbarevents(<item>); get vbbuildevents()");
  Disconnect();
  EXPECT_EQ(TakeCalls(), "call delete(); call delete()");
}

// Each control hears no click any more when it goes; the window is unloaded with the setting saved.
TEST_F(AddInTest, DisconnectingHasItsOrder) {
  Connect();
  environment_.Click();
  ASSERT_TRUE(WindowShown());
  std::vector<std::string> steps;
  const auto note = [&](const std::string& step) {
    steps.push_back(step + (environment_.clicks->sink ? ", button bound" : "") +
                    (environment_.item_clicks->sink ? ", item bound" : "") + ", setting " + Setting());
  };
  environment_.button->Do("Delete", [&](DISPPARAMS&) { note("button"); });
  environment_.item->Do("Delete", [&](DISPPARAMS&) { note("item"); });
  explorer::frmAddIn& window = *add_in_->Current()->AddIn().mfrmAddIn();
  window.UnloadEvent = [&, unload = window.UnloadEvent](bool& cancel) {
    note("unload");
    unload(cancel);
  };
  Disconnect();
  EXPECT_EQ(steps,
            (std::vector<std::string>{"button, item bound, setting none", "item, setting none", "unload, setting 1"}));
}

TEST_F(AddInTest, BetweenConnectionAndDisconnectionOnlyWhatIsAllowedIsHeld) {
  Connect();
  // The root; the button and the menu item; their events and the build events, each also by its connection point.
  EXPECT_EQ(environment_.vbe->References(), 2u);
  ULONG bars = 0;
  for (auto& object :
       {environment_.bars, environment_.bar, environment_.controls, environment_.menu, environment_.menu_controls})
    bars += object->References() - 1;  // that of the list
  EXPECT_EQ(bars, 9u) << "those of the test itself";
  Disconnect();
  EXPECT_EQ(environment_.Held(), 0u);
  EXPECT_FALSE(environment_.clicks->sink);
  EXPECT_FALSE(environment_.builds->sink);
}

TEST_F(AddInTest, TheMainWindowIsTheWindowsHost) {
  environment_.window->Answer("HWnd", static_cast<long>(reinterpret_cast<LONG_PTR>(GetDesktopWindow())));
  Connect();
  EXPECT_EQ(rooms_.host_window, GetDesktopWindow());
  Disconnect();
  environment_.window->FailWith("HWnd", E_NOTIMPL);
  Connect();
  EXPECT_EQ(rooms_.host_window, nullptr);
  EXPECT_TRUE(rooms_.services.prompts.Texts().empty());
}

TEST_F(AddInTest, AClickOpensTheExplorerAndARunMinimisesIt) {
  Connect();
  environment_.Click();
  ASSERT_TRUE(WindowShown());
  environment_.EnterRunMode();
  EXPECT_EQ(add_in_->Current()->AddIn().mfrmAddIn()->WindowState(), forms::vbMinimized);
  Disconnect();
  EXPECT_EQ(rooms_.toolkit, nullptr);
  EXPECT_EQ(Setting(), "1");
}

TEST_F(AddInTest, ItConnectsAndDisconnectsAnyNumberOfTimes) {
  for (int i = 0; i < 20; ++i) {
    Connect(i % 4);
    environment_.Click();
    Disconnect(i % 2);
    ASSERT_EQ(environment_.Held(), 0u) << i;
    ASSERT_EQ(rooms_.toolkit, nullptr) << i;
  }
}

TEST_F(AddInTest, ASecondConnectionEndsTheFirst) {
  Connect();
  TakeCalls();
  Connect();
  EXPECT_EQ(TakeCalls().find("call delete(); call delete(); "), 0u);
  EXPECT_EQ(environment_.vbe->References(), 2u);
  Disconnect();
  Disconnect();
  EXPECT_EQ(environment_.Held(), 0u);
}

TEST_F(AddInTest, WhoForgetsToDisconnectDoesSoByLettingGo) {
  Connect();
  add_in_ = {};
  EXPECT_EQ(environment_.Held(), 0u);
  EXPECT_EQ(Setting(), "0");
}

TEST_F(AddInTest, WhatFailsIsShownAndAnsweredWithSuccess) {
  environment_.events->Fail("CommandBarEvents", 5, "No events today");
  Connect();
  EXPECT_EQ(rooms_.services.prompts.Texts(), std::vector<std::string>{"No events today"});
  EXPECT_TRUE(add_in_->Current());
}

TEST_F(AddInTest, BuildEventsThatFailAreShownAndTheControlsWork) {
  environment_.events->Fail("VBBuildEvents", 5, "No runs today");
  Connect();
  EXPECT_EQ(rooms_.services.prompts.Texts(), std::vector<std::string>{"No runs today"});
  environment_.Click();
  EXPECT_TRUE(WindowShown());
}

TEST_F(AddInTest, BuildEventsThatTellOfNoRunAreShownToo) {
  environment_.builds->has_events = false;
  Connect();
  EXPECT_EQ(rooms_.services.prompts.Texts(),
            std::vector<std::string>{"Object or class does not support the set of events"});
}

TEST_F(AddInTest, AnEnvironmentWithoutBuildEventsIsServedInSilence) {
  environment_.events->FailWith("VBBuildEvents", DISP_E_MEMBERNOTFOUND);
  Connect();
  EXPECT_TRUE(rooms_.services.prompts.Texts().empty());
  EXPECT_FALSE(environment_.builds->sink);
}

TEST_F(AddInTest, NoApplicationIsShownToo) {
  EXPECT_EQ(add_in_->OnConnection(nullptr, 1, nullptr, nullptr), S_OK);
  EXPECT_EQ(rooms_.services.prompts.Texts(),
            std::vector<std::string>{"Object variable or With block variable not set"});
  Disconnect();
}

TEST_F(AddInTest, ObjectsThatAreGoneAtTheEndAreNoHarm) {
  Connect();
  for (auto& object :
       {environment_.button, environment_.item, environment_.clicks, environment_.item_clicks, environment_.builds})
    for (const char* member : {"Delete", "Caption"}) object->FailWith(member, DISP_E_BADCALLEE);
  environment_.clicks->sink = {};
  environment_.item_clicks->sink = {};
  environment_.builds->sink = {};
  Disconnect();
  EXPECT_EQ(environment_.Held(), 0u);
}

TEST_F(AddInTest, ADisconnectionInAYieldWaitsForTheHandlerToEnd) {
  Connect();
  environment_.Click();
  bool yielded = false;
  rooms_.services.loop.on_do_events = [&] {
    if (yielded) return;
    yielded = true;
    Disconnect();
    EXPECT_NE(rooms_.toolkit, nullptr) << "its handler is still running";
    EXPECT_TRUE(rooms_.toolkit->ShownForms().empty());
  };
  rooms_.toolkit->Guard([&] { add_in_->Current()->AddIn().Show(true); });
  EXPECT_TRUE(yielded);
  EXPECT_EQ(environment_.Held(), 0u) << "though no message was run";
  EXPECT_NE(rooms_.toolkit, nullptr);
  RunMessages();
  EXPECT_EQ(rooms_.toolkit, nullptr);
}

TEST_F(AddInTest, ADisconnectionInTheStartOfAProgramWaitsToo) {
  Connect();
  environment_.Click();
  bool resized = false;
  add_in_->Current()->AddIn().mfrmAddIn()->Resize = [&] {
    resized = true;
    Disconnect();
    EXPECT_NE(rooms_.toolkit, nullptr);
  };
  environment_.EnterRunMode();
  EXPECT_TRUE(resized);
  RunMessages();
  EXPECT_EQ(rooms_.toolkit, nullptr);
  EXPECT_EQ(environment_.Held(), 0u);
}

// The window is still there while it is asked, and asking it once more would change nothing.
TEST_F(AddInTest, ADisconnectionWhileAWindowIsBeingUnloadedIsOver) {
  for (const bool as_it_goes : {false, true}) {
    Connect();
    environment_.Click();
    auto& window = *add_in_->Current()->AddIn().mfrmAddIn();
    long asked = 0;
    const auto disconnect = [&] {
      if (++asked > 1) return;
      Disconnect();
      EXPECT_FALSE(window.Visible()) << "nobody sees it any more";
      EXPECT_NE(rooms_.toolkit, nullptr) << "its handler is still running";
    };
    if (as_it_goes)
      window.UnloadEvent = [&](bool&) { disconnect(); };
    else
      window.QueryUnload = [&](bool&, forms::UnloadMode) { disconnect(); };
    rooms_.toolkit->Guard([&] { window.tlbr.UserButtonClick(window.tlbr.PositionOf("pExit")); });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(environment_.Held(), 0u);
    RunMessages();
    EXPECT_EQ(rooms_.toolkit, nullptr);
  }
}

TEST_F(AddInTest, AWindowThatWillNotCloseIsAskedOnceAndHidden) {
  Connect();
  forms::Form other(*rooms_.toolkit, "other");
  long asked = 0;
  other.QueryUnload = [&](bool& cancel, forms::UnloadMode) {
    ++asked;
    cancel = true;
  };
  other.Show();
  rooms_.toolkit->Guard([&] {
    Disconnect();
    EXPECT_FALSE(other.Visible());
    EXPECT_TRUE(rooms_.toolkit->ShownForms().empty());
  });
  EXPECT_EQ(asked, 1);
  other.QueryUnload = nullptr;
  other.Unload();
  RunMessages();
}

TEST_F(AddInTest, AWindowThatComesUpDuringADisconnectionGoesToo) {
  Connect();
  environment_.Click();
  forms::Form farewell(*rooms_.toolkit, "farewell"), other(*rooms_.toolkit, "other");
  other.UnloadEvent = [&](bool&) { farewell.Show(); };
  other.Show();
  rooms_.toolkit->Guard([&] {
    Disconnect();
    EXPECT_FALSE(farewell.Visible());
  });
  farewell.Unload();
  RunMessages();
}

TEST_F(AddInTest, ADisconnectionClosesAModalWindow) {
  Connect();
  environment_.Click();
  bool was_open = false, is_open = true;
  rooms_.toolkit->OnModal("frmAbout", [&](forms::Form& about) {
    was_open = about.Visible();
    Disconnect();
    is_open = about.Visible();
  });
  auto& toolbar = add_in_->Current()->AddIn().mfrmAddIn()->tlbr;
  for (int position = 1; position <= toolbar.Count(); ++position)
    if (toolbar.Button(position).Key == "About") {
      toolbar.UserButtonClick(position);
      break;
    }
  EXPECT_TRUE(was_open);
  EXPECT_FALSE(is_open);
  RunMessages();
  EXPECT_EQ(environment_.Held(), 0u);
}

TEST_F(AddInTest, ADisconnectionWhileAMessageIsOpen) {
  environment_.bars->Fail("Item", 5);
  environment_.events->Fail("CommandBarEvents", 91, "no control");
  rooms_.services.prompts.while_open = [&](const tests::AskedMessage&) { Disconnect(); };
  Connect();
  RunMessages();
  EXPECT_EQ(rooms_.toolkit, nullptr);
  EXPECT_EQ(environment_.Held(), 0u);
}

// Presses OK in boxes of the add-in's title, from another thread.
class BoxCloser {
 public:
  BoxCloser() : thread_(CreateThread(nullptr, 0, &Run, this, 0, nullptr)) {}
  ~BoxCloser() { Stop(); }
  bool HasClosedOne() {
    Stop();
    return closed_;
  }

 private:
  static DWORD WINAPI Run(void* closer) {
    auto& self = *static_cast<BoxCloser*>(closer);
    for (int i = 0; i < 1000 && !self.done_; ++i, Sleep(10))
      if (HWND box = FindWindowW(L"#32770", L"Corvane - 2000")) {
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        self.closed_ = true;
      }
    return 0;
  }
  void Stop() {
    done_ = true;
    if (!thread_) return;
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(std::exchange(thread_, nullptr));
  }
  std::atomic<bool> done_ = false, closed_ = false;
  HANDLE thread_;
};

TEST_F(AddInTest, AHomeThatCannotBeMadeIsToldInAPlainBox) {
  rooms_.fails = true;
  BoxCloser closer;
  Connect();
  EXPECT_TRUE(closer.HasClosedOne());
  EXPECT_EQ(add_in_->Current(), nullptr);
  Disconnect();
}

TEST_F(AddInTest, ItIsOfThreeInterfaces) {
  EXPECT_TRUE(add_in_.As<IUnknown>(IID_IUnknown));
  EXPECT_TRUE(add_in_.As<IDispatch>());
  EXPECT_TRUE(add_in_.As<IUnknown>(kIidOfExtensibility));
  const IID older = {0x0002E151, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  for (const IID& iid : {older, IID_IProvideClassInfo, IID_IConnectionPointContainer}) {
    void* object = &object;
    EXPECT_EQ(add_in_->QueryInterface(iid, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
  }
  EXPECT_EQ(add_in_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(add_in_.As<IUnknown>(IID_IUnknown).Get(), add_in_.As<IDispatch>().As<IUnknown>(IID_IUnknown).Get());
}

TEST_F(AddInTest, ItsMethodsHaveNamesAndTheseIds) {
  DISPID expected = 1;
  for (const wchar_t* name :
       {L"OnConnection", L"OnDisconnection", L"OnAddInsUpdate", L"onstartupcomplete", L"OnBeginShutdown"}) {
    LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
    DISPID id = 0;
    EXPECT_EQ(add_in_->GetIDsOfNames(IID_NULL, names, 1, 0, &id), S_OK);
    EXPECT_EQ(id, expected++);
  }
  LPOLESTR names[] = {const_cast<LPOLESTR>(L"AddinInstance_")};
  DISPID id = 0;
  EXPECT_EQ(add_in_->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(AddInTest, ItIsCalledByNameAsByItsSlots) {
  SAFEARRAY* custom = nullptr;
  VARIANT arguments[4];
  for (VARIANT& argument : arguments) VariantInit(&argument);
  arguments[3].vt = VT_DISPATCH;
  arguments[3].pdispVal = environment_.Root();
  arguments[2].vt = VT_I4;
  arguments[2].lVal = 1;
  arguments[1].vt = VT_DISPATCH;
  arguments[0].vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
  arguments[0].pparray = &custom;
  DISPPARAMS parameters{arguments, nullptr, 4, 0};
  const auto invoke = [&](DISPID id) {
    return add_in_->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
  };
  EXPECT_EQ(invoke(1), S_OK);
  EXPECT_TRUE(add_in_->Current());
  parameters = {arguments, nullptr, 1, 0};
  for (DISPID id : {3, 4, 5}) EXPECT_EQ(invoke(id), S_OK) << id;
  EXPECT_EQ(invoke(2), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(invoke(6), DISP_E_MEMBERNOTFOUND);
  arguments[1] = arguments[2];
  parameters = {arguments, nullptr, 2, 0};
  EXPECT_EQ(invoke(2), S_OK);
  EXPECT_FALSE(add_in_->Current());
}

TEST_F(AddInTest, StartupAndShutdownAskNothing) {
  Connect();
  TakeCalls();
  EXPECT_EQ(add_in_->OnStartupComplete(nullptr), S_OK);
  EXPECT_EQ(add_in_->OnAddInsUpdate(nullptr), S_OK);
  EXPECT_EQ(add_in_->OnBeginShutdown(nullptr), S_OK);
  EXPECT_EQ(TakeCalls(), "");
}

// ---- its public operations, called by name

class ByName : public AddInTest {
 protected:
  Dispatch Object() { return Dispatch(add_in_.As<IDispatch>()); }
  static long ErrorOf(const std::function<void()>& act) {
    try {
      act();
    } catch (const host::Error& error) {
      return error.Number();
    }
    return 0;
  }
};

TEST_F(ByName, AllItsOperationsAndEventProceduresHaveOne) {
  std::set<DISPID> ids;
  for (const wchar_t* name :
       {L"FormDisplayed", L"VBInstance", L"MenuHandler", L"MenuHand", L"mStart", L"Hide", L"show",
        L"AddToAddInCommandBar", L"AddToAddInMenu", L"AddinInstance_OnConnection", L"AddinInstance_OnDisconnection",
        L"AddinInstance_OnStartupComplete", L"addininstance_OnAddInsUpdate", L"MenuHandler_Click", L"MenuHand_Click",
        L"mStart_EnterRunMode"}) {
    LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(add_in_->GetIDsOfNames(IID_NULL, names, 1, 0, &id), S_OK) << ToAnsi(name);
    EXPECT_TRUE(ids.insert(id).second) << ToAnsi(name);
  }
  EXPECT_FALSE(Object().Has(L"mfrmAddIn"));
  EXPECT_FALSE(Object().Has(L"mcbToolButton"));
}

TEST_F(ByName, TheWindowIsShownAndHidden) {
  Connect();
  Dispatch object = Object();
  EXPECT_FALSE(object.Get(L"FormDisplayed").ToBool());
  object.Call(L"Show", false);
  EXPECT_TRUE(WindowShown());
  EXPECT_TRUE(object.Get(L"FormDisplayed").ToBool());
  EXPECT_EQ(object.Get(L"FormDisplayed").Get().vt, VT_BOOL);
  EXPECT_TRUE(rooms_.toolkit->Popups().empty());
  object.Call(L"Show", true);
  EXPECT_EQ(rooms_.toolkit->Popups().size(), 1u) << "with its menu";
  object.Call(L"Hide");
  EXPECT_FALSE(WindowShown());
  EXPECT_FALSE(object.Get(L"FormDisplayed").ToBool());
  object.Put(L"FormDisplayed", true);
  Disconnect();
  EXPECT_EQ(Setting(), "1");
}

TEST_F(ByName, TheEnvironmentIsReadAndSet) {
  Connect();
  Dispatch object = Object();
  EXPECT_EQ(object.Get(L"VBInstance").ToObject().Get(), environment_.Root());
  object.Put(L"VBInstance", Value(static_cast<IDispatch*>(nullptr)));
  EXPECT_FALSE(object.Get(L"VBInstance").ToObject());
  object.Put(L"VBInstance", Value(environment_.Root()));
  EXPECT_EQ(add_in_->Current()->AddIn().VBInstance != nullptr, true);
  Disconnect();
}

TEST_F(ByName, TheEventsAreReadBoundAndUnbound) {
  Connect();
  Dispatch object = Object();
  const Value nothing(static_cast<IDispatch*>(nullptr));
  for (const auto& [name, clicks] :
       {std::pair(L"MenuHandler", environment_.clicks), std::pair(L"MenuHand", environment_.item_clicks)}) {
    EXPECT_EQ(object.Get(name).ToObject().Get(), clicks.As<IDispatch>().Get());
    EXPECT_TRUE(clicks->sink);
    object.Put(name, nothing);
    EXPECT_FALSE(object.Get(name).ToObject());
    EXPECT_FALSE(clicks->sink);
  }
  object.Put(L"MenuHandler", Value(environment_.clicks.As<IDispatch>().Get()));
  environment_.Click();
  EXPECT_TRUE(WindowShown());
  EXPECT_EQ(object.Get(L"mStart").ToObject().Get(), environment_.builds.As<IDispatch>().Get());
  object.Put(L"mStart", nothing);
  EXPECT_FALSE(environment_.builds->sink);
  object.Put(L"mStart", Value(environment_.builds.As<IDispatch>().Get()));
  environment_.EnterRunMode();
  EXPECT_EQ(add_in_->Current()->AddIn().mfrmAddIn()->WindowState(), forms::vbMinimized);
}

TEST_F(ByName, ControlsAreMadeOfACaption) {
  Connect();
  TakeCalls();
  Dispatch object = Object();
  EXPECT_EQ(object.Get(L"AddToAddInMenu", std::string("&More")).ToObject().Get(),
            environment_.item.As<IDispatch>().Get());
  EXPECT_EQ(TakeCalls(),
            "get commandbars(); get item(\"Add-Ins\"); get controls(); get add(1); put caption = \"&More\"");
  EXPECT_TRUE(object.Get(L"AddToAddInCommandBar", std::string("More")).ToObject());
  EXPECT_NE(TakeCalls().find("put caption = \"More\""), std::string::npos);
  environment_.bars->Fail("Item", 5);
  EXPECT_FALSE(object.Get(L"AddToAddInMenu", std::string("&More")).ToObject()) << "what could not be made is Nothing";
}

TEST_F(ByName, TheEventProceduresDoWhatTheEventsDo) {
  Connect();
  Dispatch object = Object();
  object.Call(L"MenuHandler_Click", Value(static_cast<IDispatch*>(nullptr)), false, false);
  EXPECT_TRUE(WindowShown());
  object.Call(L"MenuHand_Click", Value(static_cast<IDispatch*>(nullptr)), false, false);
  EXPECT_EQ(rooms_.toolkit->Popups().size(), 1u);
  object.Call(L"mStart_EnterRunMode");
  EXPECT_EQ(add_in_->Current()->AddIn().mfrmAddIn()->WindowState(), forms::vbMinimized);
}

TEST_F(ByName, WhileNotConnectedThereIsNothing) {
  Dispatch object = Object();
  EXPECT_FALSE(object.Get(L"FormDisplayed").ToBool());
  for (const wchar_t* name : {L"VBInstance", L"MenuHandler", L"MenuHand", L"mStart"})
    EXPECT_FALSE(object.Get(name).ToObject());
  object.Call(L"Show", true);
  object.Call(L"Hide");
  EXPECT_FALSE(WindowShown());
  EXPECT_FALSE(object.Get(L"AddToAddInMenu", std::string("&More")).ToObject());
  EXPECT_EQ(ErrorOf([&] { object.Put(L"FormDisplayed", true); }), 91);
}

TEST_F(ByName, WhatCannotBeDoneIsTold) {
  Connect();
  Dispatch object = Object();
  EXPECT_EQ(ErrorOf([&] { object.Put(L"FormDisplayed", std::string("perhaps")); }), 13);
  EXPECT_EQ(ErrorOf([&] { object.Put(L"VBInstance", 5L); }), 424);
  EXPECT_EQ(ErrorOf([&] { object.Put(L"Show", true); }), 438);
  EXPECT_EQ(ErrorOf([&] { object.Call(L"FormDisplayed"); }), 438);
  EXPECT_EQ(ErrorOf([&] { object.Call(L"Show"); }), 450);
  EXPECT_EQ(ErrorOf([&] { object.Get(L"FormDisplayed", true); }), 450);
  EXPECT_EQ(ErrorOf([&] { object.Call(L"Show", std::string("perhaps")); }), 13);
  EXPECT_TRUE(rooms_.services.prompts.Texts().empty());
}

// What an object raises reaches its caller with number and description.
TEST_F(ByName, AnErrorIsToldWithItsDescription) {
  Connect();
  Dispatch object = Object();
  const auto told_of = [](const std::function<void()>& act) {
    try {
      act();
    } catch (const host::Error& error) {
      return std::to_string(error.Number()) + " " + error.Description();
    }
    return std::string();
  };
  environment_.clicks->advise_answer = E_NOTIMPL;
  EXPECT_EQ(told_of([&] { object.Put(L"MenuHandler", Value(environment_.clicks.As<IDispatch>().Get())); }),
            "445 Object doesn't support this action");
  environment_.clicks->advise_answer = DISP_E_BADCALLEE;
  EXPECT_EQ(told_of([&] { object.Put(L"MenuHandler", Value(environment_.clicks.As<IDispatch>().Get())); }),
            std::to_string(DISP_E_BADCALLEE) + " " + com::ErrorOf(DISP_E_BADCALLEE).Description());
  EXPECT_EQ(told_of([&] { object.Put(L"FormDisplayed", std::string("perhaps")); }), "13 Type mismatch");
}

TEST_F(ByName, AnErrorIsToldAsObjectsTellIt) {
  Connect();
  const Value perhaps(std::string("perhaps"));
  VARIANT argument = perhaps.Get();
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&argument, &put, 1, 1};
  const DISPID id = 0x100;  // FormDisplayed
  EXCEPINFO told{};
  const auto invoke = [&](EXCEPINFO* out) {
    return add_in_->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, out, nullptr);
  };
  EXPECT_EQ(invoke(&told), DISP_E_EXCEPTION);
  EXPECT_EQ(told.scode, static_cast<HRESULT>(0x800A000D));
  EXPECT_EQ(told.wCode, 0);
  EXPECT_EQ(TextOf(told.bstrDescription), "Type mismatch");
  EXPECT_EQ(TextOf(told.bstrSource), "corvane.Connect");
  SysFreeString(told.bstrDescription);
  SysFreeString(told.bstrSource);
  EXPECT_EQ(invoke(nullptr), static_cast<HRESULT>(0x800A000D)) << "who asks for no more is told the code";
}

TEST_F(ByName, ADisconnectionInsideACallWaitsForItsEnd) {
  Connect();
  Object().Call(L"Show", false);
  rooms_.services.loop.on_do_events = [&] {
    rooms_.services.loop.on_do_events = nullptr;
    Disconnect();
    EXPECT_NE(rooms_.toolkit, nullptr);
  };
  Object().Call(L"Show", true);
  EXPECT_EQ(add_in_->Current(), nullptr);
  RunMessages();
  EXPECT_EQ(rooms_.toolkit, nullptr);
}

// ---- the class

class Classes : public AddInTest {
 protected:
  ComPointer<ClassFactory> factory_{
      new ClassFactory([this]() -> std::unique_ptr<Home> { return std::make_unique<HeadlessHome>(rooms_); })};
};

TEST_F(Classes, AFactoryMakesAddInsAndKeepsTheLibraryLoaded) {
  const long before = ModuleUse::Count();
  ComPointer<IDispatch> made;
  EXPECT_EQ(factory_->CreateInstance(nullptr, IID_IDispatch, made.OutVoid()), S_OK);
  EXPECT_EQ(ModuleUse::Count(), before + 1);
  EXPECT_TRUE(made.As<IUnknown>(kIidOfExtensibility));
  made = {};
  EXPECT_EQ(ModuleUse::Count(), before);
  factory_->LockServer(TRUE);
  EXPECT_EQ(ModuleUse::Count(), before + 1);
  factory_->LockServer(FALSE);
  EXPECT_EQ(ModuleUse::Count(), before);
  factory_ = {};
}

TEST_F(Classes, WhatAFactoryDoesNotOfferLeavesNothing) {
  void* object = &object;
  EXPECT_EQ(factory_->CreateInstance(add_in_.Get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory_->CreateInstance(nullptr, IID_IPersist, &object), E_NOINTERFACE);
  EXPECT_EQ(factory_->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  EXPECT_FALSE(factory_.As<IUnknown>(IID_IDispatch));
  EXPECT_TRUE(factory_.As<IClassFactory>());
  factory_ = {};
}

}  // namespace
}  // namespace corvane::com
