#include "tests/environment/host_contract_designer.h"

namespace corvane::tests {

using host::ComponentType;
using host::Variant;

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(HostDesignerContract);

TEST_P(HostDesignerContract, AFormHasADesignerAndAModuleHasNone) {
  const auto form = NewForm();
  EXPECT_TRUE(form->Designer());
  EXPECT_EQ(form->Type(), ComponentType::VBForm);
  const auto components = vbe_->ActiveVBProject()->VBComponents();
  EXPECT_FALSE(components->Item("Main")->Designer());
  EXPECT_NE(ErrorOf([&] { components->Item("Main")->DesignerWindow(); }), 0);
}

TEST_P(HostDesignerContract, ItsWindowIsOpenedOnDemand) {
  const auto form = NewForm();
  form->DesignerWindow()->Close();
  EXPECT_FALSE(form->HasOpenDesigner());
  form->DesignerWindow();
  EXPECT_TRUE(form->HasOpenDesigner());
}

TEST_P(HostDesignerContract, ComponentsListTheirProperties) {
  const auto form = NewForm();
  EXPECT_EQ(runtime::ToText(form->Properties()->Item("Name")->Value()), form->Name());
  EXPECT_EQ(runtime::ToText(form->Properties()->Item("Caption")->Value()), form->Name());
  EXPECT_EQ(form->Properties()->Item("ControlBox")->Value(), Variant(true));
  EXPECT_GT(form->Properties()->Count(), 40);
  const auto module = vbe_->ActiveVBProject()->VBComponents()->Item("Main");
  EXPECT_EQ(module->Properties()->Count(), 1);
  EXPECT_EQ(runtime::ToText(module->Properties()->Item(1L)->Value()), "Main");
  EXPECT_NE(ErrorOf([&] { module->Properties()->Item("Caption"); }), 0);
}

TEST_P(HostDesignerContract, AComponentIsRenamedThroughItsProperties) {
  const auto form = NewForm();
  form->Properties()->Item("Name")->SetValue(std::string("frmStock"));
  EXPECT_EQ(form->Name(), "frmStock");
  EXPECT_EQ(form->CodeModule()->Name(), "frmStock");
  EXPECT_NE(ErrorOf([&] { form->Properties()->Item("Name")->SetValue(std::string("Main")); }), 0);
  EXPECT_EQ(form->Name(), "frmStock");
}

struct AddedControl {
  const char *prog_id, *class_name, *name;
};

TEST_P(HostDesignerContract, ControlsAreAddedByEitherNameOfTheirClass) {
  const auto controls = NewForm()->Designer()->VBControls();
  EXPECT_EQ(controls->Count(), 0);
  const AddedControl cases[] = {
      {"VB.Label", "Label", "Label1"},
      {"Label", "Label", "Label2"},
      {"VB.TextBox", "TextBox", "Text1"},
      {"CommandButton", "CommandButton", "Command1"},
      {"VB.ListBox", "ListBox", "List1"},
      {"VB.Timer", "Timer", "Timer1"},
      {"VB.Line", "Line", "Line1"},
      {"VB.PictureBox", "PictureBox", "Picture1"},
      {"VB.HScrollBar", "HScrollBar", "HScroll1"},
  };
  long count = 0;
  for (const AddedControl& c : cases) {
    const auto control = controls->Add(c.prog_id, nullptr);
    EXPECT_EQ(control->ClassName(), c.class_name);
    EXPECT_EQ(control->ProgId(), std::string("VB.") + c.class_name);
    EXPECT_EQ(Name(control), c.name);
    EXPECT_EQ(controls->Count(), ++count);
    EXPECT_EQ(controls->Item(c.name)->ClassName(), c.class_name);
  }
  EXPECT_NE(ErrorOf([&] { controls->Add("VB.Nothing", nullptr); }), 0);
  EXPECT_EQ(ErrorOf([&] { controls->Item("Label9"); }), 9);
}

TEST_P(HostDesignerContract, ControlsStandInContainersAndInOneFlatList) {
  const auto controls = NewForm()->Designer()->VBControls();
  const auto frame = controls->Add("VB.Frame", nullptr);
  const auto label = controls->Add("VB.Label", frame);
  EXPECT_FALSE(frame->ControlObject()->Container());
  ASSERT_TRUE(label->ControlObject()->Container());
  EXPECT_EQ(Name(label->ControlObject()->Container()), "Frame1");
  EXPECT_EQ(Names(*controls), "Frame1 Label1 ");
  controls->Remove(frame);
  EXPECT_EQ(controls->Count(), 0);
}

TEST_P(HostDesignerContract, AnElementOfAControlArrayIsFoundByNameAndIndex) {
  const auto controls = NewForm()->Designer()->VBControls();
  for (const long index : {3L, 0L}) {
    const auto label = controls->Add("VB.Label", nullptr);
    Of(label, "Caption")->SetValue(std::to_string(index));
    Of(label, "Index")->SetValue(index);
    Of(label, "Name")->SetValue(std::string("lblKind"));
  }
  controls->Add("VB.Label", nullptr);
  for (const long index : {3L, 0L})
    EXPECT_EQ(runtime::ToText(Of(controls->Item("lblKind", index), "Caption")->Value()), std::to_string(index));
  EXPECT_EQ(ErrorOf([&] { controls->Item("lblKind", 1); }), 9);
  EXPECT_EQ(ErrorOf([&] { controls->Item("Label1", 0); }), 9);
}

TEST_P(HostDesignerContract, MenusAndTheirSubmenusAreControlsToo) {
  const auto controls = NewForm()->Designer()->VBControls();
  const auto file = controls->Add("VB.Menu", nullptr);
  Of(file, "Name")->SetValue(std::string("mnuFile"));
  Of(file, "Caption")->SetValue(std::string("&File"));
  const auto open = controls->Add("VB.Menu", file);
  Of(open, "Name")->SetValue(std::string("mnuOpen"));
  EXPECT_EQ(Names(*controls), "mnuFile mnuOpen ");
  EXPECT_EQ(file->ClassName(), "Menu");
  EXPECT_EQ(Name(open->ControlObject()->Container()), "mnuFile");
  EXPECT_EQ(Of(controls->Item("mnuFile"), "Caption")->Value(), Variant(std::string("&File")));
}

TEST_P(HostDesignerContract, PropertiesAnswerDefaultsAndKeepWhatIsSet) {
  const auto text = NewForm()->Designer()->VBControls()->Add("VB.TextBox", nullptr);
  EXPECT_EQ(Of(text, "Text")->Value(), Variant(std::string("Text1")));
  EXPECT_EQ(Of(text, "Enabled")->Value(), Variant(true));
  EXPECT_EQ(Of(text, "MaxLength")->Value(), Variant(0L));
  EXPECT_EQ(Of(text, "Index")->Value(), Variant(-1L));
  Of(text, "Text")->SetValue(std::string("a\r\n\"b\""));
  Of(text, "Enabled")->SetValue(false);
  Of(text, "MaxLength")->SetValue(std::string("12"));
  Of(text, "Left")->SetValue(240L);
  Of(text, "BackColor")->SetValue(255L);
  EXPECT_EQ(Of(text, "Text")->Value(), Variant(std::string("a\r\n\"b\"")));
  EXPECT_EQ(Of(text, "Enabled")->Value(), Variant(false));
  EXPECT_EQ(Of(text, "MaxLength")->Value(), Variant(12L));
  EXPECT_EQ(runtime::ToText(Of(text, "Left")->Value()), "240");
  EXPECT_EQ(Of(text, "BackColor")->Value(), Variant(255L));
  EXPECT_NE(ErrorOf([&] { Of(text, "Left")->SetValue(std::string("wide")); }), 0);
  EXPECT_NE(ErrorOf([&] { Of(text, "Nothing"); }), 0);
}

TEST_P(HostDesignerContract, AFontIsACollectionOfItsMembers) {
  const auto label = NewForm()->Designer()->VBControls()->Add("VB.Label", nullptr);
  const auto font = [&] {
    const auto value = Of(label, "Font")->Value();
    return std::dynamic_pointer_cast<host::Properties>(std::get<std::shared_ptr<runtime::Object>>(value));
  };
  ASSERT_TRUE(font());
  EXPECT_EQ(font()->Item("Bold")->Value(), Variant(false));
  font()->Item("Name")->SetValue(std::string("Arial"));
  font()->Item("Size")->SetValue(12L);
  font()->Item("Bold")->SetValue(true);
  EXPECT_EQ(runtime::ToText(font()->Item("Name")->Value()), "Arial");
  EXPECT_EQ(runtime::ToNumber(font()->Item("Size")->Value()), 12);
  EXPECT_EQ(font()->Item("Bold")->Value(), Variant(true));
}

TEST_P(HostDesignerContract, AListHasIndexedValues) {
  const auto list = Of(NewForm()->Designer()->VBControls()->Add("VB.ListBox", nullptr), "List");
  EXPECT_EQ(list->NumIndices(), 1);
  list->SetIndexedValue(0, std::string("one"));
  list->SetIndexedValue(1, std::string("two"));
  EXPECT_EQ(runtime::ToText(list->IndexedValue(0)), "one");
  EXPECT_EQ(runtime::ToText(list->IndexedValue(1)), "two");
  EXPECT_EQ(runtime::ToText(list->IndexedValue(2)), "");
}

TEST_P(HostDesignerContract, ARemovedControlIsGone) {
  const auto controls = NewForm()->Designer()->VBControls();
  const auto label = controls->Add("VB.Label", nullptr);
  controls->Add("VB.Label", nullptr);
  controls->Remove(label);
  EXPECT_EQ(Names(*controls), "Label2 ");
  EXPECT_NE(ErrorOf([&] { label->ClassName(); }), 0);
  EXPECT_EQ(Name(controls->Add("VB.Label", nullptr)), "Label1") << "the first free number";
}

TEST_P(HostDesignerContract, NothingIsSelectedInANewDesigner) {
  EXPECT_EQ(NewForm()->Designer()->SelectedVBControls()->Count(), 0);
}

}  // namespace corvane::tests
