// Events: found at run time, heard while they are bound.
#include "com/sink.h"
#include "com/texts.h"
#include "com/type_library.h"
#include "tests/com/made_library.h"
#include "tests/com/scripted_test.h"

namespace corvane::com {
namespace {

class EventsTest : public ScriptedTest {
 protected:
  EventsTest() {
    object_->has_events = true;
    object_->Answer("Caption", std::string("ours"));
  }
  // A click on [control], as the environment raises it.
  HRESULT RaiseClick(const ComPointer<ScriptedObject>& control, DISPID id = 1) {
    VARIANT arguments[3];
    for (VARIANT& argument : arguments) VariantInit(&argument);
    arguments[2].vt = VT_DISPATCH;
    arguments[2].pdispVal = control.Get();
    arguments[1].vt = arguments[0].vt = VT_BYREF | VT_BOOL;
    arguments[1].pboolVal = &handled_;
    arguments[0].pboolVal = &cancel_default_;
    return object_->Raise(id, {arguments[0], arguments[1], arguments[2]});
  }
  std::unique_ptr<host::Subscription> Bind() {
    return As<host::CommandBarEvents>()->OnClick(
        [this](const host::Ref<host::CommandBarControl>& control, bool& handled, bool& cancel_default) {
          heard_ += (control ? control->Caption() : "nobody") + (handled ? " handled" : "") +
                    (cancel_default ? " cancelled" : "") + ";";
          if (act_) act_();
          handled = !handled;
          cancel_default = !cancel_default;
        });
  }

  VARIANT_BOOL handled_ = VARIANT_FALSE, cancel_default_ = VARIANT_TRUE;
  std::string heard_;
  std::function<void()> act_;
};

TEST_F(EventsTest, AClickIsHeardAndItsFlagsGoBack) {
  auto bound = Bind();
  EXPECT_EQ(RaiseClick(object_), S_OK);
  EXPECT_EQ(heard_, "ours cancelled;");
  EXPECT_EQ(handled_, VARIANT_TRUE);
  EXPECT_EQ(cancel_default_, VARIANT_FALSE);
}

TEST_F(EventsTest, NothingIsHeardOnceItIsUnbound) {
  auto bound = Bind();
  ASSERT_TRUE(object_->sink);
  bound.reset();
  EXPECT_FALSE(object_->sink);
  EXPECT_EQ(heard_, "");
}

TEST_F(EventsTest, ASinkThatTheEnvironmentKeepsIsDeaf) {
  auto bound = Bind();
  const ComPointer<IDispatch> kept = object_->sink;
  bound.reset();
  object_->sink = kept;
  EXPECT_EQ(RaiseClick(object_), S_OK);
  EXPECT_EQ(heard_, "");
  object_->sink = {};
}

TEST_F(EventsTest, AHandlerMayUnbindItself) {
  auto bound = Bind();
  act_ = [&] { bound.reset(); };
  EXPECT_EQ(RaiseClick(object_), S_OK);
  EXPECT_EQ(heard_, "ours cancelled;");
  EXPECT_EQ(handled_, VARIANT_TRUE) << "its answer still counts";
  EXPECT_FALSE(object_->sink);
}

TEST_F(EventsTest, AHandlerThatUnbindsItselfLivesToItsEnd) {
  const auto token = std::make_shared<int>();
  std::unique_ptr<host::Subscription> bound;
  long owners = 0;
  bound = As<host::VBBuildEvents>()->OnEnterRunMode([&, held = token] {
    bound.reset();
    owners = token.use_count();
  });
  object_->Raise(2, {});
  EXPECT_EQ(owners, 2) << "the test's and the running handler's";
  EXPECT_EQ(token.use_count(), 1);
}

TEST_F(EventsTest, WhatFailsInAHandlerStaysInside) {
  auto bound = Bind();
  act_ = [] { throw host::Error(5); };
  EXPECT_EQ(RaiseClick(object_), S_OK);
  act_ = [] { throw std::bad_alloc(); };
  EXPECT_EQ(RaiseClick(object_), S_OK);
  act_ = [] { throw 5; };
  EXPECT_EQ(RaiseClick(object_), S_OK);
  EXPECT_EQ(heard_, "ours cancelled;ours cancelled;ours cancelled;");
}

TEST_F(EventsTest, OtherEventsAndTooFewArgumentsAreNoHarm) {
  auto bound = Bind();
  EXPECT_EQ(RaiseClick(object_, 2), S_OK);
  EXPECT_EQ(heard_, "");
  EXPECT_EQ(object_->Raise(1, {}), S_OK);
  EXPECT_EQ(heard_, "nobody;");
}

TEST_F(EventsTest, FlagsMayComeInVariants) {
  auto bound = Bind();
  VARIANT flag, arguments[3];
  VariantInit(&flag);
  flag.vt = VT_BOOL;
  flag.boolVal = VARIANT_TRUE;
  arguments[2].vt = VT_DISPATCH;
  arguments[2].pdispVal = object_.Get();
  arguments[1].vt = VT_BYREF | VT_VARIANT;
  arguments[1].pvarVal = &flag;
  arguments[0].vt = VT_BYREF | VT_BOOL;
  arguments[0].pboolVal = &cancel_default_;
  object_->Raise(1, {arguments[0], arguments[1], arguments[2]});
  EXPECT_EQ(heard_, "ours handled cancelled;");
  EXPECT_EQ(flag.boolVal, VARIANT_FALSE);
}

TEST_F(EventsTest, AFlagThatCannotBeReadIsFalse) {
  auto bound = Bind();
  VARIANT arguments[3];
  for (VARIANT& argument : arguments) VariantInit(&argument);
  arguments[2].vt = VT_DISPATCH;
  arguments[2].pdispVal = object_.Get();
  arguments[1].vt = VT_ERROR;
  arguments[1].scode = DISP_E_PARAMNOTFOUND;
  SAFEARRAY* array = SafeArrayCreateVector(VT_I2, 0, 2);
  arguments[0].vt = VT_BYREF | VT_ARRAY | VT_I2;
  arguments[0].pparray = &array;
  EXPECT_EQ(object_->Raise(1, {arguments[0], arguments[1], arguments[2]}), S_OK);
  EXPECT_EQ(heard_, "ours;");
  SafeArrayDestroy(array);
}

TEST_F(EventsTest, WhatAFlagsVariantHeldIsLetGo) {
  auto bound = Bind();
  auto held = New("held");
  VARIANT flag, arguments[3];
  VariantInit(&flag);
  flag.vt = VT_DISPATCH;
  flag.pdispVal = held.Get();
  held->AddRef();
  for (VARIANT& argument : arguments) VariantInit(&argument);
  arguments[2].vt = VT_DISPATCH;
  arguments[2].pdispVal = object_.Get();
  arguments[1].vt = VT_BYREF | VT_VARIANT;
  arguments[1].pvarVal = &flag;
  object_->Raise(1, {arguments[0], arguments[1], arguments[2]});
  EXPECT_EQ(heard_, "ours;");
  EXPECT_EQ(flag.vt, VT_BOOL);
  EXPECT_EQ(flag.boolVal, VARIANT_TRUE);
  EXPECT_EQ(held->References(), 1u);
}

TEST_F(EventsTest, TheSinkIsOfItsOwnInterfacesAlone) {
  auto bound = Bind();
  const ComPointer<IDispatch> sink = object_->sink;
  EXPECT_TRUE(sink.As<IUnknown>(IID_IUnknown));
  EXPECT_TRUE(sink.As<IUnknown>(IID_IDispatch));
  EXPECT_TRUE(sink.As<IUnknown>(object_->events));
  EXPECT_FALSE(sink.As<IUnknown>(IID_IPropertyNotifySink));
  UINT count = 9;
  EXPECT_EQ(sink->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 0u);
}

TEST_F(EventsTest, AnObjectWithoutEventsIsError459) {
  object_->has_events = false;
  EXPECT_EQ(ErrorOf([&] { Bind(); }), 459);
  object_->has_events = true;
  object_->events = IID_IPropertyNotifySink;
  EXPECT_EQ(ErrorOf([&] { Bind(); }), 459);
  object_->events = IID_IDispatch;
  object_->advise_answer = E_OUTOFMEMORY;
  EXPECT_EQ(ErrorOf([&] { Bind(); }), 7);
}

TEST_F(EventsTest, EventsOfAControlAreAskedWithThatControl) {
  auto button = New("button");
  object_->Answer("CommandBarEvents", Of(New("events")));
  EXPECT_TRUE(As<host::Events>()->CommandBarEvents(Wrap<host::CommandBarControl>(Of(button))));
  EXPECT_EQ(TakeCalls(), "get commandbarevents(<button>)");
  EXPECT_EQ(ErrorOf([&] { As<host::Events>()->CommandBarEvents(nullptr); }), 91);
  EXPECT_EQ(TakeCalls(), "");
}

TEST_F(EventsTest, TheStartOfAProgramIsHeard) {
  long started = 0;
  auto bound = As<host::VBBuildEvents>()->OnEnterRunMode([&] { ++started; });
  object_->Raise(1, {});
  object_->Raise(3, {});
  EXPECT_EQ(started, 0);
  object_->Raise(2, {});
  EXPECT_EQ(started, 1);
}

TEST_F(EventsTest, AnEnvironmentWithoutBuildEventsIsError438) {
  EXPECT_EQ(ErrorOf([&] { As<host::Events>()->VBBuildEvents(); }), 438);
}

// The environment's library knows best which number its event has.
TEST_F(EventsTest, TheLibraryOfTheTypesTellsTheEventsId) {
  object_->events = kMadeEvents;
  object_->type = MadeType(L"Source");
  ASSERT_TRUE(object_->type);
  long started = 0;
  auto bound = As<host::VBBuildEvents>()->OnEnterRunMode([&] { ++started; });
  object_->Raise(2, {});
  EXPECT_EQ(started, 0);
  object_->Raise(kMadeEventId, {});
  EXPECT_EQ(started, 1);
  bound.reset();
  object_->type = {};
}

TEST_F(EventsTest, BuildEventsMayStandInALaterInterface) {
  auto later = New("later"), build = New("build");
  later->Answer("VBBuildEvents", build);
  object_->type = MadeType(L"Source");
  object_->others[kMadeEvents2] = later;
  EXPECT_TRUE(As<host::Events>()->VBBuildEvents());
  EXPECT_EQ(TakeCalls(), "get vbbuildevents()");
  object_->others.clear();
  EXPECT_EQ(ErrorOf([&] { As<host::Events>()->VBBuildEvents(); }), 438);
  object_->type = {};
}

// Nothing can be called by name where the slots of IDispatch are not.
TEST_F(EventsTest, ALaterInterfaceOfSlotsAloneIsNotUsed) {
  auto later = New("later"), build = New("build");
  later->Answer("VBBuildEvents", build);
  object_->others[kMadeEvents2] = later;
  for (const bool by_name : {false, true}) {
    object_->type = MadeType(L"Source", by_name ? EventsKind::Dual : EventsKind::Slots);
    ASSERT_TRUE(object_->type);
    EXPECT_EQ(ErrorOf([&] { As<host::Events>()->VBBuildEvents(); }), by_name ? 0 : 438);
  }
  object_->others.clear();
  object_->type = {};
}

}  // namespace
}  // namespace corvane::com
