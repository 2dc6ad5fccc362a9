// The stage itself: objects as a late-bound client sees them.
#include <gtest/gtest.h>
#include <olectl.h>

#include "environment/command_bar_model.h"
#include "environment/memory_files.h"
#include "tests/stage/event_source.h"
#include "tests/stage/late.h"
#include "tests/stage/stage.h"
#include "tests/support/sources.h"

namespace corvane::stage {
namespace {

using tests::Bas;
using tests::Frm;
using V = Late::Variant;

class Publishing : public testing::Test {
 protected:
  Publishing() {
    environment->OpenFromModules(
        "Shop", {Bas("modMain", {"Dim a", "", "Sub Main()", "  a = 1", "End Sub"}), Frm("frmMain", {"Dim b"})});
  }
  void TearDown() override {
    EXPECT_EQ(stage.ledger.objects, 0);
    EXPECT_EQ(stage.ledger.references, 0);
    EXPECT_EQ(stage.ledger.sinks, 0);
  }
  Late Root() { return Late(stage.Root()); }
  Late Components() { return Root().Get("ActiveVBProject").Object().Get("VBComponents").Object(); }
  Late Code() { return Components().Get("Item", {"modMain"}).Object().Get("CodeModule").Object(); }

  environment::MemoryFiles files;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(files);
  Stage stage{environment};
};

TEST_F(Publishing, NamesAreFoundInAnyCaseByTheirNumbers) {
  Late root = Root();
  EXPECT_EQ(root.IdOf("ActiveVBProject"), 0xc9);
  EXPECT_EQ(root.IdOf("activevbproject"), 0xc9);
  EXPECT_EQ(Code().IdOf("ProcOfLine"), 0x6002000e);
  root.IdOf("NoSuchMember");
  EXPECT_EQ(root.Last().code, DISP_E_UNKNOWNNAME);
  root.Invoke(0x7777, DISPATCH_PROPERTYGET);
  EXPECT_EQ(root.Last().code, DISP_E_MEMBERNOTFOUND);
}

TEST_F(Publishing, ArgumentsOfOtherTypesAreConverted) {
  Late code = Code();
  EXPECT_EQ(code.Get("Lines", {V("3"), V(1L)}).Text(), "Sub Main()");
  V start = 4L;
  EXPECT_EQ(code.Get("Lines", {V(static_cast<VARIANT*>(&start)), V(true)}).Text(), "") << "True is -1: no lines at all";
  code.Get("Lines", {V("x"), V(1L)});
  EXPECT_EQ(code.Last().code, DISP_E_TYPEMISMATCH);
  code.Get("Lines", {V(1L)});
  EXPECT_EQ(code.Last().code, DISP_E_BADPARAMCOUNT);
}

TEST_F(Publishing, AFailureIsAnErrorWithNumberAndText) {
  Late code = Code();
  code.Get("Lines", {V(99L), V(1L)});
  EXPECT_EQ(code.Last().code, DISP_E_EXCEPTION);
  EXPECT_EQ(static_cast<unsigned long>(code.Last().error), 0x800A0009u);
  EXPECT_EQ(code.Last().text, "Subscript out of range");
}

TEST_F(Publishing, OutputsAreWrittenBack) {
  long kind = 3, line = 1, column = 1, end_line = -1, end_column = -1;
  Late code = Code();
  EXPECT_EQ(code.Get("ProcOfLine", {V(4L), V(&kind)}).Text(), "Main");
  EXPECT_EQ(kind, 0);
  EXPECT_EQ(code.Get("Find", {V("a = "), V(&line), V(&column), V(&end_line), V(&end_column)}).boolVal, VARIANT_TRUE);
  EXPECT_EQ((std::vector<long>{line, column, end_line, end_column}), (std::vector<long>{4, 3, 4, 7}));
}

TEST_F(Publishing, OptionalArgumentsMayBeLeftOutInTheMiddle) {
  Late controls = Root().Get("CommandBars").Object().Get("Item", {"Standard"}).Object().Get("Controls").Object();
  const long count = controls.Get("Count").Number();
  Late button = controls.Get("Add", {V(1L), V::LeftOut(), V::LeftOut(), V(count)}).Object();
  button.Put("Caption", {V("ours")});
  EXPECT_EQ(button.Last().code, S_OK);
  EXPECT_EQ(environment->Bars().Find("Standard")->controls.at(static_cast<size_t>(count - 1)).caption, "ours");
}

TEST_F(Publishing, AMethodIsNoPropertyAndAPropertyNoMethod) {
  Late code = Code();
  code.Invoke(code.IdOf("CountOfLines"), DISPATCH_METHOD);
  EXPECT_EQ(code.Last().code, DISP_E_MEMBERNOTFOUND);
  code.Invoke(code.IdOf("DeleteLines"), DISPATCH_PROPERTYGET, {V(1L)});
  EXPECT_EQ(code.Last().code, DISP_E_MEMBERNOTFOUND);
}

TEST_F(Publishing, NothingIsAnEmptyObject) {
  const V pane = Root().Get("ActiveCodePane");
  EXPECT_EQ(pane.vt, VT_DISPATCH);
  EXPECT_EQ(pane.pdispVal, nullptr);
}

TEST_F(Publishing, ItemsAreEnumerated) {
  const V items = Components().Invoke(DISPID_NEWENUM, DISPATCH_PROPERTYGET);
  ASSERT_EQ(items.vt, VT_UNKNOWN);
  ComPointer<IEnumVARIANT> walk;
  ASSERT_EQ(items.punkVal->QueryInterface(IID_IEnumVARIANT, walk.OutVoid()), S_OK);
  std::string names;
  for (V item; walk->Next(1, &item, nullptr) == S_OK; VariantClear(&item))
    names += item.Object().Get("Name").Text() + " ";
  EXPECT_EQ(names, "modMain frmMain ");
}

TEST_F(Publishing, ObjectsGoBackAsArguments) {
  Late components = Components();
  components.Get("Remove", {V(components.Get("Item", {"frmMain"}).Object())});
  EXPECT_EQ(components.Last().code, S_OK);
  EXPECT_EQ(components.Get("Count").Number(), 1);
  components.Get("Remove", {V(Root())});
  EXPECT_EQ(components.Last().code, DISP_E_TYPEMISMATCH);
}

TEST_F(Publishing, CallsAreCountedByNameAndFailWhenTheyShall) {
  Late code = Code();
  stage.ledger.ClearCalls();
  code.Get("CountOfLines");
  code.Get("CountOfLines");
  EXPECT_EQ(stage.ledger.Calls("CodeModule.CountOfLines"), 2);
  EXPECT_EQ(stage.ledger.Calls(), 4) << "the searches of the name too";
  stage.ledger.FailCall(2, Failure::Error(1004, "broken"));
  code.Get("CountOfLines");
  EXPECT_EQ(code.Last().text, "broken");
  EXPECT_EQ(stage.ledger.Failed(), "CodeModule.CountOfLines");
  EXPECT_EQ(code.Get("CountOfLines").Number(), 5);
  stage.ledger.FailEvery("CodeModule.Name", Failure::Code(RPC_E_DISCONNECTED));
  code.Get("Name");
  EXPECT_EQ(code.Last().code, RPC_E_DISCONNECTED);
  stage.ledger.Lack("CodeModule.Lines");
  code.Get("Lines", {V(1L), V(1L)});
  EXPECT_EQ(code.Last().code, DISP_E_UNKNOWNNAME);
  stage.ledger.AnswerNothing("CodeModule.CodePane");
  EXPECT_EQ(code.Get("CodePane").pdispVal, nullptr);
  stage.ledger.Heal();
  EXPECT_EQ(code.Get("Name").Text(), "modMain");
}

TEST_F(Publishing, ReferencesAreCounted) {
  {
    Late root = Root();
    EXPECT_EQ(stage.ledger.objects, 1);
    Late again = root;
    EXPECT_EQ(stage.ledger.references, 2);
  }
  EXPECT_EQ(stage.ledger.references, 0);
}

TEST_F(Publishing, ObjectsOfAClosedProjectAreDisconnected) {
  Late code = Code(), root = Root();
  stage.CloseProject();
  code.Get("Name");
  EXPECT_EQ(code.Last().code, static_cast<HRESULT>(DISP_E_BADCALLEE));
  EXPECT_EQ(root.Get("ActiveVBProject").pdispVal, nullptr);
}

// Takes every event and sets its last flag.
class Listener : public IDispatch {
 public:
  std::vector<DISPID> heard;
  UINT arguments = 0;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override { return *object = this, S_OK; }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    heard.push_back(id);
    arguments = parameters->cArgs;
    return S_OK;
  }
};

ComPointer<IConnectionPoint> PointOf(const Late& source) {
  ComPointer<IConnectionPointContainer> container;
  ComPointer<IEnumConnectionPoints> points;
  ComPointer<IConnectionPoint> point;
  source.Object()->QueryInterface(IID_IConnectionPointContainer, container.OutVoid());
  container->EnumConnectionPoints(points.Out());
  points->Next(1, point.Out(), nullptr);
  return point;
}

TEST_F(Publishing, AClickReachesItsSinkUntilThatIsUnbound) {
  Late controls = Root().Get("CommandBars").Object().Get("Item", {"Add-Ins"}).Object().Get("Controls").Object();
  Late button = controls.Get("Add").Object();
  Late events = Root().Get("Events").Object().Get("CommandBarEvents", {V(button)}).Object();
  const auto point = PointOf(events);
  Listener listener;
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&listener, &cookie), S_OK);
  EXPECT_EQ(stage.ledger.sinks, 1);
  const long id = environment->Bars().Find("Add-Ins")->controls.back().id;
  EXPECT_TRUE(environment->Bars().Click(id));
  EXPECT_EQ(listener.heard, std::vector<DISPID>{kClick});
  EXPECT_EQ(listener.arguments, 3u);
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_FALSE(environment->Bars().Click(id));
  EXPECT_EQ(point->Unadvise(cookie), static_cast<HRESULT>(CONNECT_E_NOCONNECTION));
}

TEST_F(Publishing, RunModeIsToldThroughItsOwnNumber) {
  const auto point = PointOf(Root().Get("Events").Object().Get("VBBuildEvents").Object());
  Listener listener;
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&listener, &cookie), S_OK);
  environment->EnterRunMode();
  EXPECT_EQ(listener.heard, std::vector<DISPID>{kEnterRunMode});
  point->Unadvise(cookie);
}

TEST_F(Publishing, TextsOfErrorsMayComeLater) {
  stage.defers_error_texts = true;
  Late code = Code();
  code.Get("Lines", {V(99L), V(1L)});
  EXPECT_EQ(static_cast<unsigned long>(code.Last().error), 0x800A0009u);
  EXPECT_EQ(code.Last().text, "Subscript out of range");
}

TEST_F(Publishing, ALibraryOfTypesTellsTheNumbersOfEvents) {
  stage.types = std::make_unique<TypeLibrary>();
  Late events = Root().Get("Events").Object();
  events.IdOf("VBBuildEvents");
  EXPECT_EQ(events.Last().code, DISP_E_UNKNOWNNAME);
  ComPointer<IDispatch> later;
  ASSERT_EQ(events.Object()->QueryInterface(kEvents2, later.OutVoid()), S_OK);
  Late source = Late(later).Get("VBBuildEvents").Object();
  ComPointer<ITypeInfo> type, told;
  ComPointer<ITypeLib> library;
  UINT position = 0;
  ASSERT_EQ(source.Object()->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Out()), S_OK);
  ASSERT_EQ(type->GetContainingTypeLib(library.Out(), &position), S_OK);
  ASSERT_EQ(library->GetTypeInfoOfGuid(kBuildEvents, told.Out()), S_OK);
  std::wstring name = L"EnterRunMode";
  LPOLESTR names = name.data();
  MEMBERID id = 0;
  ASSERT_EQ(told->GetIDsOfNames(&names, 1, &id), S_OK);
  EXPECT_EQ(id, TypeLibrary::kEnterRunMode);
}

TEST_F(Publishing, ValuesOfPropertiesGoBothWays) {
  Late controls = Components().Get("Item", {"frmMain"}).Object().Get("Designer").Object().Get("VBControls").Object();
  Late label = controls.Get("Add", {V("VB.Label")}).Object();
  Late caption = label.Get("Properties").Object().Get("Item", {"Caption"}).Object();
  caption.Put("Value", {V("caf\xe9")});
  EXPECT_EQ(caption.Get("name").Text(), "Caption");
  EXPECT_EQ(caption.Get("Value").Text(), "caf\xe9");
  Late font = label.Get("Properties").Object().Get("Item", {"Font"}).Object().Get("Value").Object();
  EXPECT_EQ(font.Get("Item", {"Bold"}).Object().Get("Value").boolVal, VARIANT_FALSE);
}

}  // namespace
}  // namespace corvane::stage
