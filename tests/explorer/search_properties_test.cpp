// What of a designer is looked at, with properties that answer badly.
#include "explorer/search_properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/designer.h"

namespace corvane::tests {
namespace {

using explorer::PropertyHit;
using host::Ref;
using runtime::Variant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <class C, class T>
class FakeCollection : public C {
 public:
  std::vector<Ref<T>> items;
  long Count() override { return static_cast<long>(items.size()); }
  Ref<T> Item(const host::Index& index) override {
    Ref<T> item = items.at(static_cast<size_t>(std::get<long>(index)) - 1);
    if (!item) throw runtime::Error(9);
    return item;
  }
};

class FakeProperty : public host::Property {
 public:
  FakeProperty(std::string name, std::string value) : name_(std::move(name)), value_(std::move(value)) {}
  std::vector<std::string> list;
  long indices = 0;
  bool nameless = false, unreadable = false;
  std::string Name() override {
    if (nameless) throw runtime::Error(438);
    return name_;
  }
  Variant Value() override {
    if (unreadable) throw runtime::Error(394);
    return value_;
  }
  void SetValue(const Variant&) override {}
  long NumIndices() override { return indices; }
  Variant IndexedValue(long index) override {
    ++asked;
    return list.at(static_cast<size_t>(index));
  }
  void SetIndexedValue(long, const Variant&) override {}
  Variant Object() override { return {}; }
  void SetObject(const Variant&) override {}
  long asked = 0;

 private:
  std::string name_, value_;
};

class SearchOfProperties : public ::testing::Test {
 protected:
  Ref<FakeProperty> Add(const std::string& name, const std::string& value = {}) {
    auto property = std::make_shared<FakeProperty>(name, value);
    properties->items.push_back(property);
    return property;
  }
  std::vector<std::string> Hits(const std::string& target);

  Ref<FakeCollection<host::Properties, host::Property>> properties =
      std::make_shared<FakeCollection<host::Properties, host::Property>>();
  int yields = 0, properties_read = 0;
  int stop_at = 1000;
};

class FakeControl : public host::VBControl {
 public:
  Ref<host::Properties> properties;
  std::string ClassName() override { return "ListBox"; }
  std::string ProgId() override { return "VB.ListBox"; }
  Ref<host::Properties> Properties() override { return properties; }
  Ref<host::ControlObject> ControlObject() override { return nullptr; }
};

class FakeControls : public FakeCollection<host::VBControls, host::VBControl> {
 public:
  using FakeCollection::Item;
  Ref<host::VBControl> Item(const std::string&, long) override { throw runtime::Error(9); }
  Ref<host::VBControl> Add(const std::string&, const Ref<host::VBControl>&) override { return nullptr; }
  void Remove(const Ref<host::VBControl>&) override {}
};

class FakeForm : public host::VBForm {
 public:
  Ref<FakeControls> controls = std::make_shared<FakeControls>();
  Ref<host::VBControls> VBControls() override { return controls; }
  Ref<host::SelectedVBControls> SelectedVBControls() override { return nullptr; }
};

class FakeComponent : public host::VBComponent {
 public:
  Ref<FakeForm> form = std::make_shared<FakeForm>();
  std::string Name() override { return "frmFake"; }
  void SetName(const std::string&) override {}
  host::ComponentType Type() override { return host::ComponentType::VBForm; }
  Ref<host::CodeModule> CodeModule() override { return nullptr; }
  Ref<host::VBForm> Designer() override { return form; }
  std::string DesignerID() override { return {}; }
  bool HasOpenDesigner() override { return false; }
  Ref<host::Window> DesignerWindow() override { return nullptr; }
  Ref<host::Properties> Properties() override { throw runtime::Error(438); }
  long FileCount() override { return 0; }
  std::string FileNames(long) override { return {}; }
  void SaveAs(const std::string&) override {}
  Ref<host::VBE> VBE() override { return nullptr; }
};

std::vector<std::string> SearchOfProperties::Hits(const std::string& target) {
  FakeComponent component;
  auto control = std::make_shared<FakeControl>();
  control->properties = properties;
  component.form->controls->items = {nullptr, control};
  std::vector<std::string> hits;
  explorer::PropertySearch search(
      target, [&] { return ++properties_read < stop_at; }, [&] { ++yields; });
  search.Search(component, [&](const PropertyHit& hit) {
    hits.push_back((hit.ofControl ? hit.control : "-") + "|" + hit.property + "|" + hit.value);
  });
  return hits;
}

TEST_F(SearchOfProperties, TheItemsOfAListAreOneTextUpToTheFirstEmptyOne) {
  Add("Name", "lstPay");
  auto list = Add("List");
  list->indices = 1;
  list->list = {"cash", "card", "", "cheque"};
  EXPECT_THAT(Hits("CARD"), ElementsAre("lstPay|List|cash,card"));
  EXPECT_THAT(Hits("cheque"), IsEmpty());
}

TEST_F(SearchOfProperties, OfALongListTheFirstTwentyOneItemsAreLookedAt) {
  auto list = Add("List");
  list->indices = 1;
  for (int item = 0; item < 30; ++item) list->list.push_back("item" + std::to_string(item));
  EXPECT_THAT(Hits("item21"), IsEmpty());
  EXPECT_EQ(list->asked, 21);
  EXPECT_EQ(Hits("item20").size(), 1u);
}

TEST_F(SearchOfProperties, AListWithoutItemsIsEmpty) {
  Add("List", "card");
  EXPECT_THAT(Hits("card"), IsEmpty());
}

TEST_F(SearchOfProperties, TheFirstPropertyThatFitsEndsTheControl) {
  Add("Name", "lbl");
  Add("Caption", "Pay");
  Add("ToolTipText", "Pay now");
  EXPECT_THAT(Hits("pay"), ElementsAre("lbl|Caption|Pay"));
}

TEST_F(SearchOfProperties, WhatCannotBeReadIsPassedOver) {
  Add("Name", "lbl");
  Add("Mask", "pay")->unreadable = true;
  properties->items.push_back(nullptr);
  Add("Secret", "pay all")->nameless = true;
  EXPECT_THAT(Hits("pay"), ElementsAre("lbl|Error|pay all"));
}

TEST_F(SearchOfProperties, AHitBeforeTheNameHasNone) {
  Add("Caption", "Pay");
  Add("Name", "lbl");
  EXPECT_THAT(Hits("pay"), ElementsAre("|Caption|Pay"));
}

TEST_F(SearchOfProperties, AValueOfOneCharacterIsNoHit) {
  Add("Caption", "P");
  EXPECT_THAT(Hits("p"), IsEmpty());
}

TEST_F(SearchOfProperties, YieldsWhenMoreThanFiveHaveBeenRead) {
  for (int i = 0; i < 11; ++i) Add("Tag", "nothing");
  Hits("pay");
  EXPECT_EQ(yields, 1);
  Add("Tag", "nothing");
  yields = 0;
  Hits("pay");
  EXPECT_EQ(yields, 2);
}

TEST_F(SearchOfProperties, IsAskedBeforeEachPropertyWhetherItGoesOn) {
  for (int i = 0; i < 5; ++i) Add("Tag", "nothing");
  Add("Caption", "Pay");
  stop_at = 4;
  EXPECT_THAT(Hits("pay"), IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
