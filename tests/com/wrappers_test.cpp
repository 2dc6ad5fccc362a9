// What each member of the contract asks of the environment, one call each.
#include <functional>

#include "tests/com/scripted_test.h"

namespace corvane::com {
namespace {

using host::Ref;

// Every member that is asked for is there: it answers with the object itself, "7", or what [Answered] says.
class Wrappers : public ScriptedTest {
 protected:
  void ExpectCall(const char* expected, const char* member, const Value& answer, const std::function<void()>& act) {
    object_->Answer(member, answer);
    EXPECT_EQ(ErrorOf(act), 0) << member;
    EXPECT_EQ(TakeCalls(), expected);
    object_->Answer(member, Value());  // no circle of references
  }
  void ExpectText(const char* expected, const char* member, const std::function<std::string()>& act) {
    ExpectCall(expected, member, std::string("\xC4 text"), [&] { EXPECT_EQ(act(), "\xC4 text") << member; });
  }
  void ExpectNumber(const char* expected, const char* member, const std::function<long()>& act) {
    ExpectCall(expected, member, 7L, [&] { EXPECT_EQ(act(), 7) << member; });
  }
  // An object comes back as an object. What an environment always has is Error 91 where it answers Nothing.
  template <class T>
  void ExpectObject(const char* expected, const char* member, const std::function<Ref<T>()>& act) {
    ExpectCall(expected, member, Of(New("answer")), [&] { EXPECT_TRUE(act()) << member; });
    ExpectCall(expected, member, Value(static_cast<IDispatch*>(nullptr)),
               [&] { EXPECT_EQ(ErrorOf(act), 91) << member; });
  }
  // Nothing comes back as Nothing, which it also is where the answer is Empty.
  template <class T>
  void ExpectObjectOrNothing(const char* expected, const char* member, const std::function<Ref<T>()>& act) {
    ExpectCall(expected, member, Of(New("answer")), [&] { EXPECT_TRUE(act()) << member; });
    ExpectCall(expected, member, Value(static_cast<IDispatch*>(nullptr)), [&] { EXPECT_FALSE(act()) << member; });
    ExpectCall(expected, member, Value(), [&] { EXPECT_FALSE(act()) << member; });
  }
  void ExpectDone(const char* expected, const char* member, const std::function<void()>& act) {
    ExpectCall(expected, member, Value(), act);
  }
};

TEST_F(Wrappers, TheRootGivesItsObjects) {
  auto vbe = As<host::VBE>();
  ExpectObject<host::VBProjects>("get vbprojects()", "VBProjects", [&] { return vbe->VBProjects(); });
  ExpectObjectOrNothing<host::VBProject>("get activevbproject()", "ActiveVBProject",
                                         [&] { return vbe->ActiveVBProject(); });
  ExpectObjectOrNothing<host::VBComponent>("get selectedvbcomponent()", "SelectedVBComponent",
                                           [&] { return vbe->SelectedVBComponent(); });
  ExpectObjectOrNothing<host::CodePane>("get activecodepane()", "ActiveCodePane",
                                        [&] { return vbe->ActiveCodePane(); });
  ExpectObject<host::CodePanes>("get codepanes()", "CodePanes", [&] { return vbe->CodePanes(); });
  ExpectObject<host::Windows>("get windows()", "Windows", [&] { return vbe->Windows(); });
  ExpectObject<host::Window>("get mainwindow()", "MainWindow", [&] { return vbe->MainWindow(); });
  ExpectObject<host::CommandBars>("get commandbars()", "CommandBars", [&] { return vbe->CommandBars(); });
  ExpectObject<host::Events>("get events()", "Events", [&] { return vbe->Events(); });
}

TEST_F(Wrappers, AWindowTakesTheFocusClosesAndHides) {
  auto window = As<host::Window>();
  ExpectText("get caption()", "Caption", [&] { return window->Caption(); });
  ExpectDone("call setfocus()", "SetFocus", [&] { window->SetFocus(); });
  ExpectDone("call close()", "Close", [&] { window->Close(); });
  ExpectDone("put visible = True", "Visible", [&] { window->SetVisible(true); });
  ExpectDone("put visible = False", "Visible", [&] { window->SetVisible(false); });
}

TEST_F(Wrappers, CollectionsAreReadByCountAndItem) {
  ExpectNumber("get count()", "Count", [&] { return As<host::VBProjects>()->Count(); });
  ExpectObject<host::VBProject>("get item(2)", "Item", [&] { return As<host::VBProjects>()->Item(2L); });
  ExpectObject<host::VBProject>("get item(\"Stock\")", "Item", [&] { return As<host::VBProjects>()->Item("Stock"); });
  ExpectObject<host::VBComponent>("get item(1)", "Item", [&] { return As<host::VBComponents>()->Item(1L); });
  ExpectObject<host::CodePane>("get item(1)", "Item", [&] { return As<host::CodePanes>()->Item(1L); });
  ExpectObject<host::Window>("get item(\"Immediate\")", "Item", [&] { return As<host::Windows>()->Item("Immediate"); });
  ExpectObject<host::VBControl>("get item(1)", "Item", [&] { return As<host::VBControls>()->Item(1L); });
  ExpectObject<host::VBControl>("get item(\"optKind\", 0)", "Item",
                                [&] { return As<host::VBControls>()->Item("optKind", 0); });
  ExpectObject<host::VBControl>("get item(1)", "Item", [&] { return As<host::SelectedVBControls>()->Item(1L); });
  ExpectObject<host::Property>("get item(\"Caption\")", "Item",
                               [&] { return As<host::Properties>()->Item("Caption"); });
  ExpectObject<host::CommandBar>("get item(\"Add-Ins\")", "Item",
                                 [&] { return As<host::CommandBars>()->Item("Add-Ins"); });
  ExpectObject<host::CommandBarControl>("get item(1)", "Item",
                                        [&] { return As<host::CommandBarControls>()->Item(1L); });
}

TEST_F(Wrappers, ACollectionWithoutItemAnswersByItsDefaultMember) {
  ExpectObject<host::VBComponent>("get default(3)", "default", [&] { return As<host::VBComponents>()->Item(3L); });
}

TEST_F(Wrappers, EachHoldsTheCollectionAndFetchesItsItems) {
  object_->Answer("Count", 2L);
  object_->Answer("Item", Of(New("component")));
  long walked = 0;
  for (const auto& component : host::Each(As<host::VBComponents>())) walked += component ? 1 : 0;
  EXPECT_EQ(walked, 2);
  EXPECT_EQ(TakeCalls(), "get count(); get item(1); get item(2)");
}

TEST_F(Wrappers, AProjectHasANameAFileAndComponents) {
  auto project = As<host::VBProject>();
  ExpectText("get name()", "Name", [&] { return project->Name(); });
  ExpectText("get filename()", "FileName", [&] { return project->FileName(); });
  ExpectObject<host::VBComponents>("get vbcomponents()", "VBComponents", [&] { return project->VBComponents(); });
  ExpectDone("call addtoolboxprogid(\"A.B\")", "AddToolboxProgID", [&] { project->AddToolboxProgID("A.B"); });
  ExpectDone("call addtoolboxprogid(\"A.B\", \"c.ocx\")", "AddToolboxProgID",
             [&] { project->AddToolboxProgID("A.B", "c.ocx"); });
  ExpectDone("call addfromfile(\"C:\\a.vbp\")", "AddFromFile",
             [&] { As<host::VBProjects>()->AddFromFile("C:\\a.vbp"); });
}

TEST_F(Wrappers, ComponentsAreAddedFromKindsAndFilesAndRemoved) {
  auto components = As<host::VBComponents>();
  ExpectObject<host::VBComponent>("get add(5)", "Add", [&] { return components->Add(host::ComponentType::VBForm); });
  ExpectObject<host::VBComponent>("get addfile(\"C:\\a.frm\")", "AddFile",
                                  [&] { return components->AddFile("C:\\a.frm"); });
  auto component = Wrap<host::VBComponent>(Of(New("Form1")));
  ExpectDone("call remove(<Form1>)", "Remove", [&] { components->Remove(component); });
  ExpectObject<host::VBE>("get vbe()", "VBE", [&] { return components->VBE(); });
}

TEST_F(Wrappers, AComponentIsAskedMemberByMember) {
  auto component = As<host::VBComponent>();
  ExpectText("get name()", "Name", [&] { return component->Name(); });
  ExpectDone("put name = \"New\"", "Name", [&] { component->SetName("New"); });
  ExpectNumber("get type()", "Type", [&] { return static_cast<long>(component->Type()); });
  ExpectObject<host::CodeModule>("get codemodule()", "CodeModule", [&] { return component->CodeModule(); });
  ExpectObjectOrNothing<host::VBForm>("get designer()", "Designer", [&] { return component->Designer(); });
  ExpectText("get designerid()", "DesignerID", [&] { return component->DesignerID(); });
  ExpectCall("get hasopendesigner()", "HasOpenDesigner", true, [&] { EXPECT_TRUE(component->HasOpenDesigner()); });
  ExpectObject<host::Window>("get designerwindow()", "DesignerWindow", [&] { return component->DesignerWindow(); });
  ExpectObject<host::Properties>("get properties()", "Properties", [&] { return component->Properties(); });
  ExpectNumber("get filecount()", "FileCount", [&] { return component->FileCount(); });
  ExpectText("get filenames(1)", "FileNames", [&] { return component->FileNames(1); });
  ExpectDone("call saveas(\"C:\\b.frm\")", "SaveAs", [&] { component->SaveAs("C:\\b.frm"); });
  ExpectObject<host::VBE>("get vbe()", "VBE", [&] { return component->VBE(); });
}

TEST_F(Wrappers, AModuleIsReadAndWrittenByLines) {
  auto code = As<host::CodeModule>();
  ExpectText("get name()", "Name", [&] { return code->Name(); });
  ExpectNumber("get countoflines()", "CountOfLines", [&] { return code->CountOfLines(); });
  ExpectNumber("get countofdeclarationlines()", "CountOfDeclarationLines",
               [&] { return code->CountOfDeclarationLines(); });
  ExpectText("get lines(2, 250)", "Lines", [&] { return code->Lines(2, 250); });
  ExpectDone("call insertlines(3, \"a\r\nb\")", "InsertLines", [&] { code->InsertLines(3, "a\r\nb"); });
  ExpectDone("call deletelines(3, 1)", "DeleteLines", [&] { code->DeleteLines(3); });
  ExpectDone("call deletelines(3, 2)", "DeleteLines", [&] { code->DeleteLines(3, 2); });
  ExpectDone("call replaceline(4, \"\")", "ReplaceLine", [&] { code->ReplaceLine(4, ""); });
  ExpectObject<host::CodePane>("get codepane()", "CodePane", [&] { return code->CodePane(); });
}

TEST_F(Wrappers, TheExtentOfAProcedureIsAskedByNameAndKind) {
  auto code = As<host::CodeModule>();
  const auto kind = host::ProcKind::Get;
  ExpectNumber("get procstartline(\"P\", 3)", "ProcStartLine", [&] { return code->ProcStartLine("P", kind); });
  ExpectNumber("get procbodyline(\"P\", 3)", "ProcBodyLine", [&] { return code->ProcBodyLine("P", kind); });
  ExpectNumber("get proccountlines(\"P\", 3)", "ProcCountLines", [&] { return code->ProcCountLines("P", kind); });
}

TEST_F(Wrappers, ProcOfLineWritesTheKind) {
  auto kind = host::ProcKind::Let;
  object_->Answer("ProcOfLine", std::string("P"));
  object_->Do("ProcOfLine", [](DISPPARAMS& parameters) { *parameters.rgvarg[0].plVal = 3; });
  EXPECT_EQ(As<host::CodeModule>()->ProcOfLine(12, kind), "P");
  EXPECT_EQ(kind, host::ProcKind::Get);
  EXPECT_EQ(TakeCalls(), "get procofline(12, &1)");
}

TEST_F(Wrappers, FindTakesAndWritesFourPlaces) {
  object_->Answer("Find", true);
  object_->Do("Find", [](DISPPARAMS& parameters) {
    for (UINT place = 3; place <= 6; ++place) *parameters.rgvarg[place].plVal = static_cast<long>(place) * 10;
  });
  long line = 1, column = 2, end_line = -1, end_column = -1;
  EXPECT_TRUE(As<host::CodeModule>()->Find("x", line, column, end_line, end_column, true, false, true));
  EXPECT_EQ(TakeCalls(), "get find(\"x\", &1, &2, &-1, &-1, True, False, True)");
  EXPECT_EQ(std::vector<long>({line, column, end_line, end_column}), std::vector<long>({60, 50, 40, 30}));
}

TEST_F(Wrappers, AFindThatMissesLeavesThePlaces) {
  object_->Answer("Find", false);
  long line = 1, column = 2, end_line = 3, end_column = 4;
  EXPECT_FALSE(As<host::CodeModule>()->Find("x", line, column, end_line, end_column, false, false, false));
  EXPECT_EQ(std::vector<long>({line, column, end_line, end_column}), std::vector<long>({1, 2, 3, 4}));
}

TEST_F(Wrappers, ACodePaneTellsAndTakesItsSelection) {
  auto pane = As<host::CodePane>();
  ExpectObject<host::CodeModule>("get codemodule()", "CodeModule", [&] { return pane->CodeModule(); });
  ExpectObject<host::Window>("get window()", "Window", [&] { return pane->Window(); });
  ExpectDone("call show()", "Show", [&] { pane->Show(); });
  ExpectDone("call setselection(1, 2, 3, 4)", "SetSelection", [&] { pane->SetSelection({1, 2, 3, 4}); });
  object_->Answer("GetSelection", Value());
  object_->Do("GetSelection", [](DISPPARAMS& parameters) {
    for (UINT place = 0; place < 4; ++place) *parameters.rgvarg[place].plVal = 9 - static_cast<long>(place);
  });
  EXPECT_EQ(pane->GetSelection(), (host::Selection{6, 7, 8, 9}));
}

TEST_F(Wrappers, ADesignerHasControlsAndSelectedControls) {
  auto form = As<host::VBForm>();
  ExpectObject<host::VBControls>("get vbcontrols()", "VBControls", [&] { return form->VBControls(); });
  ExpectObject<host::SelectedVBControls>("get selectedvbcontrols()", "SelectedVBControls",
                                         [&] { return form->SelectedVBControls(); });
}

TEST_F(Wrappers, ControlsAreAddedIntoAContainerOrNothing) {
  auto controls = As<host::VBControls>();
  auto frame = Wrap<host::VBControl>(Of(New("Frame1")));
  ExpectObject<host::VBControl>("get add(\"VB.Label\", Nothing)", "Add",
                                [&] { return controls->Add("VB.Label", nullptr); });
  ExpectObject<host::VBControl>("get add(\"VB.Label\", <Frame1>)", "Add",
                                [&] { return controls->Add("VB.Label", frame); });
  ExpectDone("call remove(<Frame1>)", "Remove", [&] { controls->Remove(frame); });
}

TEST_F(Wrappers, AControlTellsItsClassAndProperties) {
  auto control = As<host::VBControl>();
  ExpectText("get classname()", "ClassName", [&] { return control->ClassName(); });
  ExpectText("get progid()", "ProgId", [&] { return control->ProgId(); });
  ExpectObject<host::Properties>("get properties()", "Properties", [&] { return control->Properties(); });
  ExpectObject<host::ControlObject>("get controlobject()", "ControlObject", [&] { return control->ControlObject(); });
}

TEST_F(Wrappers, AContainerIsTheControlThatHoldsIt) {
  auto live = New("live"), frame = New("Frame1");
  object_->Answer("ControlObject", live);
  frame->Answer("ClassName", std::string("Frame"));
  live->Answer("Container", frame);
  EXPECT_EQ(As<host::VBControl>()->ControlObject()->Container()->ClassName(), "Frame");
  live->Answer("Container", Value(static_cast<IDispatch*>(nullptr)));
  EXPECT_FALSE(As<host::VBControl>()->ControlObject()->Container());
}

TEST_F(Wrappers, ARunningContainerInAControlArrayIsFoundByItsIndexToo) {
  auto live = New("live"), frame = New("running frame"), all = New("controls"), found = New("Frame1");
  object_->Answer("ControlObject", live);
  object_->Answer("Collection", all);
  live->Answer("Container", frame);
  frame->Answer("Name", std::string("Frame1"));
  frame->Answer("Index", 1L);
  found->Answer("ClassName", std::string("Frame"));
  all->Answer("Item", found);
  EXPECT_EQ(As<host::VBControl>()->ControlObject()->Container()->ClassName(), "Frame");
  EXPECT_EQ(TakeCalls(),
            "get controlobject(); get container(); get collection(); get name(); get index(); "
            "get item(\"Frame1\", 1); get classname()");
}

// A control of no array has no Index to tell, or one below nought.
TEST_F(Wrappers, ARunningContainerOfNoArrayIsFoundByItsNameAlone) {
  auto live = New("live"), frame = New("running frame"), all = New("controls"), found = New("Frame1");
  object_->Answer("ControlObject", live);
  object_->Answer("Collection", all);
  live->Answer("Container", frame);
  frame->Answer("Name", std::string("Frame1"));
  found->Answer("ClassName", std::string("Frame"));
  all->Answer("Item", found);
  const std::string calls =
      "get controlobject(); get container(); get collection(); get name(); get index(); "
      "get item(\"Frame1\"); get classname()";
  for (const auto& without_index :
       std::vector<std::function<void()>>{[&] { frame->Fail("Index", 343); }, [&] { frame->Answer("Index", -1L); },
                                          [&] { frame->Answer("Index", Value()); }}) {
    without_index();
    EXPECT_EQ(As<host::VBControl>()->ControlObject()->Container()->ClassName(), "Frame");
    EXPECT_EQ(TakeCalls(), calls);
  }
}

// A running control has a name alone; the form is no control of its own designer.
TEST_F(Wrappers, ARunningContainerIsFoundByItsName) {
  auto live = New("live"), frame = New("running frame"), all = New("controls"), found = New("Frame1");
  object_->Answer("ControlObject", live);
  object_->Answer("Collection", all);
  live->Answer("Container", frame);
  frame->Answer("Name", std::string("Frame1"));
  found->Answer("ClassName", std::string("Frame"));
  all->Answer("Item", found);
  EXPECT_EQ(As<host::VBControl>()->ControlObject()->Container()->ClassName(), "Frame");
  TakeCalls();
  all->Fail("Item", 9);
  EXPECT_FALSE(As<host::VBControl>()->ControlObject()->Container());
  EXPECT_EQ(TakeCalls(), "get controlobject(); get container(); get collection(); get name(); get item(\"Frame1\")");
}

TEST_F(Wrappers, APropertyIsReadAndWrittenByItsMembers) {
  auto property = As<host::Property>();
  ExpectText("get name()", "name", [&] { return property->Name(); });
  ExpectNumber("get numindices()", "NumIndices", [&] { return property->NumIndices(); });
  ExpectCall("get value()", "Value", 7L, [&] { EXPECT_EQ(property->Value(), host::Variant(7L)); });
  ExpectCall("get indexedvalue(2)", "IndexedValue", std::string("two"),
             [&] { EXPECT_EQ(property->IndexedValue(2), host::Variant(std::string("two"))); });
  ExpectDone("put value = \"x\"", "Value", [&] { property->SetValue(std::string("x")); });
  ExpectDone("put value = True", "Value", [&] { property->SetValue(true); });
  ExpectDone("put indexedvalue(2) = 5", "IndexedValue", [&] { property->SetIndexedValue(2, 5L); });
}

TEST_F(Wrappers, AnObjectPropertyGivesPropertiesAndTakesThemByReference) {
  auto property = As<host::Property>();
  auto font = New("font");
  host::Variant value;
  ExpectCall("get value()", "Value", Of(font), [&] { value = property->Value(); });
  ASSERT_TRUE(std::dynamic_pointer_cast<host::Properties>(std::get<std::shared_ptr<runtime::Object>>(value)));
  ExpectCall("get object()", "Object", Of(font), [&] { EXPECT_EQ(property->Object().index(), value.index()); });
  ExpectDone("putref object = <font>", "Object", [&] { property->SetObject(value); });
  ExpectDone("putref object = Nothing", "Object", [&] { property->SetObject({}); });
  object_->refuses_references = true;
  ExpectDone("putref object = <font>; put object = <font>", "Object", [&] { property->SetObject(value); });
}

TEST_F(Wrappers, AnObjectPropertyIsCalledByTheNamesOfItsMembers) {
  auto property = As<host::Property>();
  host::Variant value;
  ExpectCall("get object()", "Object", Of(object_), [&] { value = property->Object(); });
  const auto items = std::dynamic_pointer_cast<host::LateBound>(std::get<std::shared_ptr<runtime::Object>>(value));
  ASSERT_TRUE(items);
  ExpectCall("get add(, \"new\", \"New\", \"0\", 2)", "Add", Value(), [&] {
    items->Call("Add", {{}, "new", "New", "0", 2L});
  });
  ExpectNumber("get count()", "Count", [&] { return runtime::ToLong(items->Call("Count", {})); });
  EXPECT_EQ(ErrorOf([&] { items->Call("Nothing", {}); }), 438);
}

TEST_F(Wrappers, ABarHasANameAndControls) {
  auto bar = As<host::CommandBar>();
  ExpectText("get name()", "Name", [&] { return bar->Name(); });
  ExpectObject<host::CommandBarControls>("get controls()", "Controls", [&] { return bar->Controls(); });
}

TEST_F(Wrappers, BarControlsAreAddedInFrontOfAnotherOrAtTheEnd) {
  auto controls = As<host::CommandBarControls>();
  const auto button = host::ControlType::Button;
  ExpectObject<host::CommandBarControl>("get add(1, , , 12)", "Add", [&] { return controls->Add(button, 12); });
  ExpectObject<host::CommandBarControl>("get add(1)", "Add", [&] { return controls->Add(button); });
}

TEST_F(Wrappers, ABarControlIsSetMemberByMember) {
  auto control = As<host::CommandBarControl>();
  ExpectText("get caption()", "Caption", [&] { return control->Caption(); });
  ExpectDone("put caption = \"&Corvane\"", "Caption", [&] { control->SetCaption("&Corvane"); });
  ExpectDone("put visible = True", "Visible", [&] { control->SetVisible(true); });
  ExpectDone("put state = 0", "State", [&] { control->SetState(0); });
  ExpectDone("put style = 1", "Style", [&] { control->SetStyle(host::ButtonStyle::Icon); });
  ExpectDone("call pasteface()", "PasteFace", [&] { control->PasteFace(); });
  ExpectDone("call delete()", "Delete", [&] { control->Delete(); });
}

TEST_F(Wrappers, AnObjectOfAnotherMakeIsATypeMismatch) {
  struct Stranger : host::VBComponent {
    std::string Name() override { return {}; }
    void SetName(const std::string&) override {}
    host::ComponentType Type() override { return host::ComponentType::StdModule; }
    Ref<host::CodeModule> CodeModule() override { return nullptr; }
    Ref<host::VBForm> Designer() override { return nullptr; }
    std::string DesignerID() override { return {}; }
    bool HasOpenDesigner() override { return false; }
    Ref<host::Window> DesignerWindow() override { return nullptr; }
    Ref<host::Properties> Properties() override { return nullptr; }
    long FileCount() override { return 0; }
    std::string FileNames(long) override { return {}; }
    void SaveAs(const std::string&) override {}
    Ref<host::VBE> VBE() override { return nullptr; }
  };
  object_->Answer("Remove", Value());
  EXPECT_EQ(ErrorOf([&] { As<host::VBComponents>()->Remove(std::make_shared<Stranger>()); }), 13);
  EXPECT_EQ(TakeCalls(), "");
}

TEST_F(Wrappers, WhatIsNoObjectIsError424) {
  object_->Answer("CodeModule", 5L);
  EXPECT_EQ(ErrorOf([&] { As<host::VBComponent>()->CodeModule(); }), 424);
  EXPECT_FALSE(Wrap<host::VBE>(Value()));
}

}  // namespace
}  // namespace corvane::com
