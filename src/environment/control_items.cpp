#include "environment/control_items.h"

#include <algorithm>

#include "environment/designer_controls.h"
#include "environment/designer_tree.h"
#include "environment/lookup.h"
#include "environment/properties_values.h"

namespace corvane::environment {

using runtime::Variant;
using Arguments = std::vector<Variant>;

namespace {

constexpr long kIndexOutOfBounds = 35600, kKeyNotUnique = 35602;

// How the items of a class stand in its block.
struct ItemsKind {
  std::string_view type, property;
  std::string_view block, block_id, count;
  std::string_view item, item_id;
};
constexpr ItemsKind kItems[] = {
    {"MSComctlLib.Toolbar", "Buttons", "Buttons", "{66833FE8-8583-11D1-B16A-00C0F0283628}", "NumButtons", "Button",
     "{66833FEA-8583-11D1-B16A-00C0F0283628}"},
    {"MSComctlLib.ImageList", "ListImages", "Images", "{2C247F25-8591-11D1-B16A-00C0F0283628}", "NumListImages",
     "ListImage", "{2C247F27-8591-11D1-B16A-00C0F0283628}"},
};

const ItemsKind* FindKind(const DesignerBlock& control, std::string_view property) {
  for (const ItemsKind& kind : kItems)
    if (SameName(kind.type, control.type) && SameName(kind.property, property)) return &kind;
  return nullptr;
}

bool IsGiven(const Variant& argument) {
  return !std::holds_alternative<std::monostate>(argument);
}
const Variant& At(const Arguments& arguments, size_t place) {
  static const Variant kLeftOut;
  return place < arguments.size() ? arguments[place] : kLeftOut;
}

class Items : public host::LateBound {
 public:
  Items(PropertyPlace place, const ItemsKind& kind) : place_(std::move(place)), kind_(kind) {}

  Variant Call(const std::string& member, const Arguments& arguments) override {
    if (SameName(member, "Count")) return static_cast<long>(All().size());
    if (!SameName(member, "Add")) throw host::Error(runtime::kNoSuchMember);
    Add(arguments);
    return {};
  }

 private:
  const DesignerBlock* Block() const {
    const DesignerItem* item = place_.Block().Find(kind_.block);
    return item && item->kind == DesignerItem::Block ? item->block.get() : nullptr;
  }
  std::vector<DesignerBlockRef> All() const {
    std::vector<DesignerBlockRef> all;
    if (const DesignerBlock* block = Block())
      for (const DesignerItem& item : block->items)
        if (item.kind == DesignerItem::Block) all.push_back(item.block);
    return all;
  }

  void Add(const Arguments& arguments) {
    place_.state->RequireEditable();
    const bool is_picture = kind_.item == "ListImage";
    const auto all = All();
    const long behind = static_cast<long>(all.size()) + 1;
    const long index = IsGiven(At(arguments, 0)) ? runtime::ToLong(At(arguments, 0)) : behind;
    if (index < 1 || index > behind) throw host::Error(kIndexOutOfBounds, "Index out of bounds");
    const std::string key = runtime::ToText(At(arguments, 1));
    for (const DesignerBlockRef& other : all)
      if (!key.empty() && SameName(Unquoted(LineValue(*other, "Key").text), key))
        throw host::Error(kKeyNotUnique, "Key is not unique in collection");
    const auto* picture = std::get_if<runtime::PictureRef>(&At(arguments, 2));
    if (is_picture && (!picture || !*picture)) throw host::Error(runtime::kInvalidPropertyValue);
    const auto lines = is_picture ? PictureLines(key) : ButtonLines(arguments, key);
    DesignerBlockRef item = NewItem(index);
    if (is_picture) WritePicture({place_.state, item, nullptr}, "Picture", *picture);
    for (const auto& [name, value] : lines)
      item->items.push_back(
          place_.Part().NewProperty(PropertyLine(item->depth + 1, name, value, place_.Part().LineEnd())));
    place_.state->Edited();
  }

  using NamedLines = std::vector<std::pair<std::string_view, std::string>>;
  static NamedLines PictureLines(const std::string& key) { return {{"Key", Quoted(key)}}; }
  // Behind the key: caption, style, image; that is a place or a key of the image list.
  static NamedLines ButtonLines(const Arguments& arguments, const std::string& key) {
    NamedLines lines;
    const Variant &caption = At(arguments, 2), &image = At(arguments, 4);
    if (IsGiven(caption)) lines.emplace_back("Caption", Quoted(runtime::ToText(caption)));
    if (!key.empty()) lines.emplace_back("Key", Quoted(key));
    if (IsGiven(image) && std::holds_alternative<std::string>(image))
      lines.emplace_back("ImageKey", Quoted(runtime::ToText(image)));
    else if (IsGiven(image))
      lines.emplace_back("ImageIndex", runtime::CStr(runtime::ToLong(image)));
    if (const long style = IsGiven(At(arguments, 3)) ? runtime::ToLong(At(arguments, 3)) : 0; style != 0)
      lines.emplace_back("Style", runtime::CStr(style));
    return lines;
  }

  std::string ItemName(long index) const { return std::string(kind_.item) + runtime::CStr(index); }

  // An item at its place among the others, those behind it renumbered.
  DesignerBlockRef NewItem(long index) {
    DesignerPart& part = place_.Part();
    DesignerBlock& block = OwnBlock();
    const long count = static_cast<long>(All().size()) + 1;
    DesignerBlockRef made = part.NewBlock(block, true, kind_.item_id, ItemName(index));
    auto at = block.items.end();
    long passed = 0;
    for (auto item = block.items.begin(); item != block.items.end(); ++item) {
      if (item->kind != DesignerItem::Block || ++passed < index) continue;
      if (passed == index) at = item;
      Rename(*item, block, ItemName(passed + 1));
    }
    block.items.insert(at, DesignerItem{DesignerItem::Block, {}, made->name, made});
    SetLine(part, block, kind_.count, runtime::CStr(count));
    return made;
  }

  void Rename(DesignerItem& item, DesignerBlock& parent, const std::string& name) {
    const DesignerBlockRef named = place_.Part().NewBlock(parent, true, item.block->type, name);
    item.block->begin = named->begin;
    item.block->type = named->type;
    item.name = item.block->name = named->name;
  }

  // Behind the control's other lines, before the controls in it.
  DesignerBlock& OwnBlock() {
    if (const DesignerBlock* block = Block()) return const_cast<DesignerBlock&>(*block);
    DesignerPart& part = place_.Part();
    DesignerBlock& control = place_.Block();
    DesignerBlockRef made = part.NewBlock(control, true, kind_.block_id, kind_.block);
    const auto is_control = [](const DesignerItem& item) {
      return item.kind == DesignerItem::Block && !item.block->is_property;
    };
    const auto at = std::find_if(control.items.begin(), control.items.end(), is_control);
    control.items.insert(at, DesignerItem{DesignerItem::Block, {}, made->name, made});
    made->items.push_back(part.NewProperty(PropertyLine(made->depth + 1, kind_.count, "0", part.LineEnd())));
    return *made;
  }

  PropertyPlace place_;
  const ItemsKind& kind_;
};

// What both have in common: the object is all there is of it.
class ObjectProperty : public host::Property {
 public:
  explicit ObjectProperty(std::string name) : name_(std::move(name)) {}
  std::string Name() override { return name_; }
  Variant Value() override { return Object(); }
  void SetValue(const Variant& value) override { SetObject(value); }
  long NumIndices() override { return 0; }
  Variant IndexedValue(long) override { throw host::Error(runtime::kInvalidPropertyArrayIndex); }
  void SetIndexedValue(long, const Variant&) override { throw host::Error(runtime::kInvalidPropertyArrayIndex); }

 private:
  std::string name_;
};

class ItemsOfControl : public ObjectProperty {
 public:
  ItemsOfControl(PropertyPlace place, const ItemsKind& kind)
      : ObjectProperty(std::string(kind.property)), place_(std::move(place)), kind_(kind) {}
  Variant Object() override {
    return std::static_pointer_cast<runtime::Object>(std::make_shared<Items>(place_, kind_));
  }
  void SetObject(const Variant&) override { throw host::Error(runtime::kPropertyReadOnly); }

 private:
  PropertyPlace place_;
  const ItemsKind& kind_;
};

// The file names the image list.
class ImageListOfToolbar : public ObjectProperty {
 public:
  explicit ImageListOfToolbar(PropertyPlace place) : ObjectProperty("ImageList"), place_(std::move(place)) {}

  Variant Value() override { return Unquoted(LineValue(place_.Block(), "ImageList").text); }
  // A list that the form does not have is none.
  Variant Object() override {
    const std::string name = runtime::ToText(Value());
    host::Ref<host::VBControl> list;
    if (!name.empty()) host::PassOverErrors([&] { list = NewForm(place_.state)->VBControls()->Item(name); });
    return list ? Variant(std::static_pointer_cast<runtime::Object>(list)) : Variant();
  }
  void SetValue(const Variant& value) override { Write(runtime::ToText(value)); }
  void SetObject(const Variant& object) override {
    const auto* held = std::get_if<std::shared_ptr<runtime::Object>>(&object);
    auto* list = held ? dynamic_cast<host::VBControl*>(held->get()) : nullptr;
    if (!list || !SameName(list->ClassName(), "ImageList")) throw host::Error(runtime::kTypeMismatch);
    Write(runtime::ToText(list->Properties()->Item("Name")->Value()));
  }

 private:
  void Write(const std::string& name) {
    place_.state->RequireEditable();
    const bool changed = name.empty() ? RemoveLine(place_.Block(), "ImageList")
                                      : SetLine(place_.Part(), place_.Block(), "ImageList", Quoted(name));
    if (changed) place_.state->Edited();
  }
  PropertyPlace place_;
};

}  // namespace

host::Ref<host::Property> ItemsProperty(const PropertyPlace& place, const std::string& name) {
  if (!place.block || place.IsRoot()) return nullptr;
  const DesignerBlock& control = place.Block();
  if (const ItemsKind* kind = FindKind(control, name)) return std::make_shared<ItemsOfControl>(place, *kind);
  const bool of_toolbar = SameName(name, "ImageList") && FindKind(control, "Buttons") != nullptr;
  return of_toolbar ? std::make_shared<ImageListOfToolbar>(place) : nullptr;
}

}  // namespace corvane::environment
