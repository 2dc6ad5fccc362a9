// Calls by name: look-ups, failures, and what may happen below a call.
#include "com/dispatch.h"

#include "com/errors.h"
#include "com/object_creation.h"
#include "com/texts.h"
#include "tests/com/scripted_test.h"

namespace corvane::com {
namespace {

class DispatchTest : public ScriptedTest {
 protected:
  Dispatch Object() { return Dispatch(ComPointer<IDispatch>(object_.Get())); }
};

TEST_F(DispatchTest, LooksANameUpOnceForAnObject) {
  object_->Answer("Name", std::string("a"));
  object_->Answer("Type", 1L);
  Dispatch object = Object();
  for (int i = 0; i < 3; ++i) {
    object.Get(L"Name");
    object.Get(L"Type");
  }
  EXPECT_EQ(object_->lookups, 2);
}

TEST_F(DispatchTest, TakesTheIdsOfEachObjectAsItHasThem) {
  auto other = New("other");
  other->first_id = 500;
  object_->Answer("Name", std::string("first"));
  other->Answer("Name", std::string("second"));
  EXPECT_EQ(Object().Get(L"Name").ToText(), "first");
  EXPECT_EQ(Dispatch(ComPointer<IDispatch>(other.Get())).Get(L"Name").ToText(), "second");
}

TEST_F(DispatchTest, AnUnknownNameIsError438AndAskedAgain) {
  Dispatch object = Object();
  EXPECT_EQ(ErrorOf([&] { object.Get(L"Name"); }), 438);
  EXPECT_FALSE(object.Has(L"Name"));
  object_->Answer("Name", std::string("there now"));
  EXPECT_TRUE(object.Has(L"Name"));
  EXPECT_EQ(object.Get(L"Name").ToText(), "there now");
}

TEST_F(DispatchTest, NothingIsError91) {
  Dispatch nothing{ComPointer<IDispatch>()};
  EXPECT_EQ(ErrorOf([&] { nothing.Get(L"Name"); }), 91);
  EXPECT_EQ(ErrorOf([&] { nothing.GetDefault(1L); }), 91);
}

TEST_F(DispatchTest, AnObjectMayLoseItsLastOtherReferenceInACall) {
  auto wrapped = As<host::Window>();
  object_->Answer("Close", Value());
  object_->Do("Close", [&](DISPPARAMS&) {
    wrapped = nullptr;
    object_ = {};
    EXPECT_EQ(ScriptedObject::Alive(), alive_before_ + 1) << "the call itself holds it";
  });
  wrapped->Close();
  EXPECT_EQ(ScriptedObject::Alive(), alive_before_);
}

TEST_F(DispatchTest, AnErrorOfTheEnvironmentHasItsNumberAndText) {
  object_->Fail("Name", 32813, "Name conflicts with \xC4nderung");
  try {
    Object().Get(L"Name");
    FAIL();
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 32813);
    EXPECT_EQ(error.Description(), "Name conflicts with \xC4nderung");
  }
}

TEST_F(DispatchTest, AnErrorWithoutTextHasItsUsualOne) {
  object_->Fail("Name", 9);
  try {
    Object().Put(L"Name", std::string("x"));
    FAIL();
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 9);
    EXPECT_EQ(error.Description(), "Subscript out of range");
  }
}

TEST_F(DispatchTest, CodesBecomeTheNumbersOfVisualBasic) {
  struct Case {
    HRESULT code;
    long number;
  };
  const Case cases[] = {
      {DISP_E_MEMBERNOTFOUND, 438},
      {DISP_E_UNKNOWNNAME, 438},
      {DISP_E_TYPEMISMATCH, 13},
      {DISP_E_BADPARAMCOUNT, 450},
      {DISP_E_OVERFLOW, 6},
      {DISP_E_BADINDEX, 9},
      {DISP_E_PARAMNOTOPTIONAL, 449},
      {DISP_E_NONAMEDARGS, 446},
      {DISP_E_PARAMNOTFOUND, 448},
      {DISP_E_NOTACOLLECTION, 451},
      {DISP_E_UNKNOWNLCID, 447},
      {DISP_E_BADVARTYPE, 458},
      {E_INVALIDARG, 5},
      {E_OUTOFMEMORY, 7},
      {E_ACCESSDENIED, 70},
      {E_NOTIMPL, 445},
      {E_NOINTERFACE, 430},
      {E_FAIL, E_FAIL},
      {DISP_E_BADCALLEE, DISP_E_BADCALLEE},
      {RPC_E_DISCONNECTED, RPC_E_DISCONNECTED},
      {static_cast<HRESULT>(0x800A0023), 35},
  };
  for (const Case& c : cases) {
    object_->FailWith("Name", c.code);
    EXPECT_EQ(ErrorOf([&] { Object().Get(L"Name"); }), c.number) << std::hex << c.code;
  }
}

TEST_F(DispatchTest, ACodeWithoutANumberHasTheTextOfTheSystem) {
  EXPECT_EQ(ErrorOf([] { Check(S_FALSE); }), 0);
  EXPECT_NE(com::ErrorOf(E_FAIL).Description().find("Automation error"), std::string::npos);
  EXPECT_EQ(com::ErrorOf(DISP_E_BADPARAMCOUNT).Description(),
            "Wrong number of arguments or invalid property assignment");
}

TEST_F(DispatchTest, AnObjectMayTellWhatFailedLate) {
  object_->FailLate("Name");
  try {
    Object().Get(L"Name");
    FAIL();
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 380);
    EXPECT_EQ(error.Description(), "told late");
  }
}

TEST_F(DispatchTest, AnObjectThatTellsNothingIsError440) {
  object_->FailWith("Name", DISP_E_EXCEPTION);
  EXPECT_EQ(ErrorOf([&] { Object().Get(L"Name"); }), 440);
}

TEST_F(DispatchTest, ErrorsGoBackAsCodes) {
  EXPECT_EQ(CodeOf(host::Error(9)), static_cast<HRESULT>(0x800A0009));
  EXPECT_EQ(CodeOf(host::Error(E_FAIL)), E_FAIL);
  EXPECT_EQ(CodeOf(host::Error(0)), E_FAIL);
  EXPECT_EQ(com::ErrorOf(CodeOf(host::Error(32813))).Number(), 32813);
}

TEST_F(DispatchTest, AClassOfTheSystemIsMadeByItsName) {
  Dispatch dictionary = CreateObject("Scripting.Dictionary");
  dictionary.Call(L"Add", std::string("key"), 7L);
  EXPECT_EQ(dictionary.Get(L"Count").ToLong(), 1);
  EXPECT_EQ(dictionary.GetDefault(std::string("key")).ToLong(), 7);
}

TEST_F(DispatchTest, AClassThatIsNotThereIsError429) {
  EXPECT_EQ(ErrorOf([] { CreateObject("Corvane.NoSuchClass"); }), 429);
  EXPECT_EQ(ErrorOf([] { CreateObject(""); }), 429);
}

}  // namespace
}  // namespace corvane::com
