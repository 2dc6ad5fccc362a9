#include "environment/properties.h"

#include <algorithm>

#include "environment/control_items.h"
#include "environment/designer_frame.h"
#include "environment/designer_tab_pages.h"
#include "environment/designer_tree.h"
#include "environment/doubtful_points.h"
#include "environment/lookup.h"
#include "environment/properties_values.h"

namespace corvane::environment {

using runtime::Variant;

DesignerBlock& PropertyPlace::Block() const {
  if (!block || !state->Holds(*block)) throw host::Error(runtime::kObjectNotSet);
  return *block;
}

namespace {

// A property of the list, and where its value comes from.
struct Listed {
  enum Source { ItsName, ItsIndex, Row, FileLine, FileBlock } source = Row;
  std::string name;
  const PropertyRow* row = nullptr;
};

constexpr std::string_view kFont = "Font";

bool IsFontName(std::string_view name) {
  return name.size() >= kFont.size() && SameName(name.substr(name.size() - kFont.size()), kFont);
}

bool IsUnlisted(const ControlClass* known, std::string_view name) {
  return known && std::any_of(known->unlisted.begin(), known->unlisted.end(),
                              [&](const PropertyRow& row) { return SameName(row.name, name); });
}

void AddUnlessThere(std::vector<Listed>& list, Listed added) {
  const auto same = [&](const Listed& listed) { return SameName(listed.name, added.name); };
  if (std::none_of(list.begin(), list.end(), same)) list.push_back(std::move(added));
}

Listed FromFile(const DesignerItem& item, const ControlClass* known) {
  Listed listed{item.kind == DesignerItem::Block ? Listed::FileBlock : Listed::FileLine, std::string(item.name),
                nullptr};
  // A control of another library: what it has from its container has a known kind.
  if (!known && listed.source == Listed::FileLine) listed.row = FindExtenderProperty(listed.name);
  if (listed.row) listed.source = Listed::Row;
  return listed;
}

std::vector<Listed> ListOf(const PropertyPlace& place) {
  std::vector<Listed> list = {{Listed::ItsName, "Name", nullptr}};
  if (!place.block) return list;
  const DesignerBlock& block = place.Block();
  if (!place.IsRoot()) list.push_back({Listed::ItsIndex, "Index", nullptr});
  if (place.known)
    for (const PropertyRow& row : place.known->properties) list.push_back({Listed::Row, std::string(row.name), &row});
  for (const DesignerItem& item : block.items) {
    const bool named =
        item.kind == DesignerItem::Property || (item.kind == DesignerItem::Block && item.block->is_property);
    if (named && !IsUnlisted(place.known, item.name)) AddUnlessThere(list, FromFile(item, place.known));
  }
  std::sort(list.begin() + 1, list.end(), [](const Listed& left, const Listed& right) {
    return runtime::UCase(left.name) < runtime::UCase(right.name);
  });
  return list;
}

// The value of a number or a boolean as WriteValue gives it.
std::string_view WithoutComment(std::string_view written) {
  return TrimBlanks(written.substr(0, written.find('\'')));
}

host::Ref<host::Properties> NewNestedList(const PropertyPlace& owner, const std::string& name);

class ListedProperty : public host::Property {
 public:
  ListedProperty(PropertyPlace place, Listed listed) : place_(std::move(place)), listed_(std::move(listed)) {}

  std::string Name() override { return listed_.name; }
  Variant Value() override;
  void SetValue(const Variant& value) override;
  long NumIndices() override { return IsList() ? 1 : 0; }
  Variant IndexedValue(long index) override;
  void SetIndexedValue(long index, const Variant& value) override;
  Variant Object() override;
  void SetObject(const Variant& object) override;

 private:
  PropertyKind Kind() const { return listed_.row ? listed_.row->kind : PropertyKind::Text; }
  bool IsRow(PropertyKind kind) const { return listed_.source == Listed::Row && Kind() == kind; }
  bool IsList() const { return IsRow(PropertyKind::List) || IsRow(PropertyKind::ItemData); }
  bool IsFont() const {
    return IsRow(PropertyKind::Font) || (listed_.source == Listed::FileBlock && IsFontName(listed_.name));
  }
  std::string RootName() const { return std::string(place_.state->Owner().ComponentName()); }

  Variant RowValue();
  Variant AttributeValue();
  long FreeTabIndex();
  Variant LineVariant();
  host::Ref<host::Properties> NestedList();
  void SetName(const std::string& name);
  void SetIndex(const Variant& value);
  void SetRow(const Variant& value);
  bool SetRowLine(const Variant& value);  // whether anything changed
  void SetFileLine(const Variant& value);
  bool SetText(const std::string& text);

  PropertyPlace place_;
  Listed listed_;
};

// ---- reading

Variant ListedProperty::Value() {
  switch (listed_.source) {
    case Listed::ItsName:
      return place_.IsRoot() ? RootName() : std::string(place_.Block().name);
    case Listed::ItsIndex:
      return LongValue(place_.Block(), "Index", doubtful::kIndexOfNoArray);
    case Listed::Row:
      return RowValue();
    case Listed::FileLine:
      return LineVariant();
    case Listed::FileBlock:
      return std::static_pointer_cast<runtime::Object>(NestedList());
  }
  return {};
}

Variant ListedProperty::RowValue() {
  if (IsFont()) return std::static_pointer_cast<runtime::Object>(NestedList());
  if (IsList()) return std::string();  // its items are read by index
  const PropertyRow& row = *listed_.row;
  if (row.rule == PropertyRule::Exposed || row.rule == PropertyRule::Instancing) return AttributeValue();
  if (row.rule != PropertyRule::Plain) return FrameLength(place_.Block(), *place_.known, row.rule);
  const DesignerItem* item = place_.Block().Find(row.name);
  if (!item && row.name == "TabIndex") return FreeTabIndex();
  if (!item || item->kind != DesignerItem::Property) return DefaultValue(row, RootName());
  const DesignerValue value = ValueOf(item->raw);
  SiblingReference reference;
  if (ReadReference(value.text, reference)) return ReadSiblingValue(place_, row.kind, reference);
  return ReadValue(row.kind, value);
}

// A control without a TabIndex in the file has the earliest that is free.
long ListedProperty::FreeTabIndex() {
  std::vector<long> taken;
  for (const DesignerBlockRef& control : place_.state->Controls())
    if (control->Find("TabIndex")) taken.push_back(LongValue(*control, "TabIndex", 0));
  long free = -1;
  for (const DesignerBlockRef& control : place_.state->Controls()) {
    const ControlClass* known = ClassOf(*place_.state, *control);
    if (control->Find("TabIndex") || !known || !known->Find("TabIndex")) continue;
    do ++free;
    while (std::find(taken.begin(), taken.end(), free) != taken.end());
    if (control == place_.block) return free;
  }
  return 0;
}

Variant ListedProperty::AttributeValue() {
  const auto is = [&](const char* attribute) {
    return SameName(place_.state->Owner().ModuleAttribute(attribute), "True");
  };
  const bool exposed = is("VB_Exposed");
  if (listed_.row->rule == PropertyRule::Exposed) return exposed;
  if (!exposed) return 1L;             // Private
  if (!is("VB_Creatable")) return 2L;  // PublicNotCreatable
  const bool multi_use = LongValue(place_.Block(), "MultiUse", -1) != 0;
  const bool global = is("VB_GlobalNameSpace");
  return (multi_use ? 5L : 3L) + (global ? 1L : 0L);
}

Variant ListedProperty::LineVariant() {
  const DesignerValue value = LineValue(place_.Block(), listed_.name);
  SiblingReference reference;
  if (ReadReference(value.text, reference)) return ReadSiblingValue(place_, PropertyKind::Reference, reference);
  return GuessValue(value);
}

host::Ref<host::Properties> ListedProperty::NestedList() {
  place_.Block();
  if (IsFont()) return NewFontList(place_.state, place_.block, listed_.name);
  return NewNestedList(place_, listed_.name);
}

Variant ListedProperty::IndexedValue(long index) {
  if (!IsList()) throw host::Error(runtime::kInvalidPropertyArrayIndex);
  const std::vector<std::string> items = ReadItems(place_, listed_.name);
  const bool there = index >= 0 && index < static_cast<long>(items.size());
  // A place behind the last item reads as empty: whoever asks stops there.
  if (!there) return std::string();
  const std::string& item = items[static_cast<size_t>(index)];
  if (IsRow(PropertyKind::ItemData)) return static_cast<long>(runtime::Val(item));
  return item;
}

Variant ListedProperty::Object() {
  if (IsFont() || listed_.source == Listed::FileBlock) return std::static_pointer_cast<runtime::Object>(NestedList());
  if (IsRow(PropertyKind::Picture)) return RowValue();
  if (listed_.source == Listed::FileLine)
    if (Variant value = LineVariant(); std::holds_alternative<runtime::PictureRef>(value)) return value;
  throw host::Error(runtime::kObjectRequired);
}

// ---- writing

void ListedProperty::SetValue(const Variant& value) {
  if (listed_.source != Listed::ItsName) place_.state->RequireEditable();
  switch (listed_.source) {
    case Listed::ItsName:
      return SetName(runtime::ToText(value));
    case Listed::ItsIndex:
      return SetIndex(value);
    case Listed::Row:
      return SetRow(value);
    case Listed::FileLine:
      return SetFileLine(value);
    case Listed::FileBlock:
      return SetObject(value);
  }
}

void ListedProperty::SetObject(const Variant& object) {
  place_.state->RequireEditable();
  if (IsFont()) {
    const auto* font = std::get_if<std::shared_ptr<runtime::Object>>(&object);
    auto* list = font ? dynamic_cast<host::Properties*>(font->get()) : nullptr;
    if (!list) throw host::Error(runtime::kTypeMismatch);
    return CopyFont(*NestedList(), *list);
  }
  if (!IsRow(PropertyKind::Picture)) throw host::Error(runtime::kObjectRequired);
  SetRow(object);
}

void ListedProperty::SetIndexedValue(long index, const Variant& value) {
  if (!IsList()) throw host::Error(runtime::kInvalidPropertyArrayIndex);
  place_.state->RequireEditable();
  WriteItem(place_, listed_.name, index, value);
}

void ListedProperty::SetName(const std::string& name) {
  if (place_.IsRoot()) return place_.state->Owner().RenameComponent(name);
  place_.state->RequireEditable();
  RenameControl(*place_.state, place_.Block(), name);
}

void ListedProperty::SetIndex(const Variant& value) {
  DesignerBlock& block = place_.Block();
  const bool none = std::holds_alternative<std::monostate>(value) || runtime::ToText(value).empty();
  const long index = none ? -1 : runtime::ToLong(value);
  if (index < -1 || index > 32767) throw host::Error(runtime::kInvalidPropertyValue);
  for (const DesignerBlockRef& other : place_.state->Controls())
    if (other.get() != &block && SameName(other->name, block.name) && LongValue(*other, "Index", -1) == index)
      throw host::Error(runtime::kNameInUse);
  const std::string on_page = NameOnPage(block);
  const bool changed =
      index < 0 ? RemoveLine(block, "Index") : SetLine(place_.Part(), block, "Index", runtime::CStr(index));
  if (!changed) return;
  FollowOnTabPage(place_.Part(), block, on_page);
  place_.state->ControlsChanged();
  place_.state->Edited();
}

// Error 13 for what is neither a picture nor Nothing.
runtime::PictureRef PictureOf(const Variant& value) {
  if (std::holds_alternative<std::monostate>(value)) return nullptr;
  const auto* picture = std::get_if<runtime::PictureRef>(&value);
  if (!picture) throw host::Error(runtime::kTypeMismatch);
  return *picture;
}

// Whether ScaleWidth and ScaleHeight follow a change of this property.
bool MovesScale(std::string_view name) {
  for (const std::string_view moving : {"Height", "Width", "ScaleMode", "BorderStyle", "Appearance"})
    if (name == moving) return true;
  return false;
}

void ListedProperty::SetRow(const Variant& value) {
  if (IsFont()) return SetObject(value);
  if (!SetRowLine(value)) return;
  if (place_.known && MovesScale(listed_.row->name)) UpdateScale(place_.Part(), place_.Block(), *place_.known);
  place_.state->Edited();
}

bool ListedProperty::SetRowLine(const Variant& value) {
  const PropertyRow& row = *listed_.row;
  DesignerBlock& block = place_.Block();
  const bool of_attributes = row.rule == PropertyRule::Exposed || row.rule == PropertyRule::Instancing;
  if (of_attributes || row.kind == PropertyKind::Reference) throw host::Error(runtime::kPropertyReadOnly);
  if (IsList()) throw host::Error(runtime::kInvalidPropertyArrayIndex);
  if (row.rule != PropertyRule::Plain)
    return FrameLength(block, *place_.known, row.rule) != runtime::ToNumber(value) &&
           SetFrameLength(place_.Part(), block, row.rule, runtime::ToNumber(value));
  if (row.kind == PropertyKind::Picture) return WritePicture(place_, row.name, PictureOf(value));
  if (row.kind == PropertyKind::Text) return SetText(runtime::ToText(value));

  const std::string text = WriteValue(row.kind, row.choices, value);
  const Variant written = ReadValue(row.kind, {WithoutComment(text), {}});
  if (block.Find(row.name) && RowValue() == written) return false;  // a default that the file says all the same stays
  const bool has_default = !row.default_value.empty() || row.kind == PropertyKind::Shortcut;
  if (has_default && !row.always_written && written == DefaultValue(row, {})) return RemoveLine(block, row.name);
  return SetLine(place_.Part(), block, row.name, text);
}

bool ListedProperty::SetText(const std::string& text) {
  const PropertyRow& row = *listed_.row;
  DesignerBlock& block = place_.Block();
  if (block.Find(row.name) && RowValue() == Variant(text)) return false;
  const bool is_default = DefaultValue(row, RootName()) == Variant(text);
  if (is_default && !row.always_written) return RemoveLine(block, row.name);
  const bool multi_line = row.name == "Text" && LongValue(block, "MultiLine", 0) != 0;
  if (NeedsSibling(text) || (multi_line && !text.empty())) return WriteSiblingText(place_, row.name, text);
  return SetLine(place_.Part(), block, row.name, Quoted(text));
}

// A property that no table knows keeps the kind that the file shows.
void ListedProperty::SetFileLine(const Variant& value) {
  const DesignerValue old = LineValue(place_.Block(), listed_.name);
  SiblingReference reference;
  if (ReadReference(old.text, reference)) throw host::Error(runtime::kPropertyReadOnly);
  const Variant before = GuessValue(old);
  std::string text;
  if (std::holds_alternative<bool>(before))
    text = WriteBoolean(runtime::ToBoolean(value));
  else if (std::holds_alternative<long>(before) && old.text.front() == '&')
    text = WriteValue(PropertyKind::Colour, {}, value);
  else if (std::holds_alternative<long>(before) || std::holds_alternative<double>(before))
    text = runtime::CStr(runtime::ToNumber(value));
  else if (!old.text.empty() && old.text.front() == '"' && !NeedsSibling(runtime::ToText(value)))
    text = Quoted(runtime::ToText(value));
  else
    throw host::Error(runtime::kPropertyReadOnly);
  if (before == value || GuessValue({WithoutComment(text), {}}) == before) return;
  if (SetLine(place_.Part(), place_.Block(), listed_.name, text)) place_.state->Edited();
}

class PropertyList : public host::Properties {
 public:
  explicit PropertyList(PropertyPlace place) : place_(std::move(place)) {}

  long Count() override { return static_cast<long>(Rows().size()); }

  host::Ref<host::Property> Item(const host::Index& index) override {
    if (const auto* name = std::get_if<std::string>(&index))
      if (auto items = ItemsProperty(place_, *name)) return items;
    return std::make_shared<ListedProperty>(place_, Find(index));
  }

 private:
  // The list is made once for a loop over it; a look at the part tells whether it still holds.
  const std::vector<Listed>& Rows() {
    if (place_.block) place_.Block();
    const size_t items = place_.block ? place_.block->items.size() : 0;
    if (rows_.empty() || items != items_) rows_ = ListOf(place_);
    items_ = items;
    return rows_;
  }

  // By name also what another library's control has from its container, though the file does not hold it.
  Listed Find(const host::Index& index) {
    if (const auto* name = std::get_if<std::string>(&index);
        name && !place_.known && place_.block && !place_.IsRoot()) {
      const auto& rows = Rows();
      const bool listed =
          std::any_of(rows.begin(), rows.end(), [&](const Listed& row) { return SameName(row.name, *name); });
      const PropertyRow* row = listed ? nullptr : FindExtenderProperty(*name);
      if (row) return {Listed::Row, std::string(row->name), row};
    }
    return ItemOf(Rows(), index, [](const Listed& row) { return row.name; });
  }

  PropertyPlace place_;
  std::vector<Listed> rows_;
  size_t items_ = 0;
};

// The lines of a BeginProperty block: what the file holds, in its order.
class NestedList : public host::Properties {
 public:
  explicit NestedList(PropertyPlace place) : place_(std::move(place)) {}
  long Count() override { return static_cast<long>(Rows().size()); }
  host::Ref<host::Property> Item(const host::Index& index) override {
    return std::make_shared<ListedProperty>(place_, ItemOf(Rows(), index, [](const Listed& row) { return row.name; }));
  }

 private:
  std::vector<Listed> Rows() {
    std::vector<Listed> rows;
    for (const DesignerItem& item : place_.Block().items)
      if (item.kind != DesignerItem::Other)
        rows.push_back(
            {item.kind == DesignerItem::Block ? Listed::FileBlock : Listed::FileLine, std::string(item.name), nullptr});
    return rows;
  }
  PropertyPlace place_;
};

host::Ref<host::Properties> NewNestedList(const PropertyPlace& owner, const std::string& name) {
  const DesignerItem* item = owner.Block().Find(name);
  if (!item || item->kind != DesignerItem::Block) throw host::Error(runtime::kObjectNotSet);
  return std::make_shared<NestedList>(PropertyPlace{owner.state, item->block, nullptr});
}

}  // namespace

host::Ref<host::Properties> NewPropertyList(std::shared_ptr<DesignerState> state, DesignerBlockRef block) {
  const ControlClass* known = block ? ClassOf(*state, *block) : nullptr;
  return std::make_shared<PropertyList>(PropertyPlace{std::move(state), std::move(block), known});
}

}  // namespace corvane::environment
