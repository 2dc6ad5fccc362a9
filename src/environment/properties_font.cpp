// A font as the Properties collection of its members.
#include <algorithm>

#include "environment/designer_tree.h"
#include "environment/lookup.h"
#include "environment/properties.h"
#include "environment/properties_values.h"

namespace corvane::environment {

using runtime::Variant;

namespace {

constexpr long kNormalWeight = 400, kBoldWeight = 700, kBoldFrom = 550;

struct FontValues {
  std::string name = "MS Sans Serif";
  double size = 8.25;
  long charset = 0, weight = kNormalWeight;
  bool underline = false, italic = false, strikethrough = false;
  bool operator==(const FontValues&) const = default;
};

constexpr std::string_view kMembers[] = {"Name", "Bold",          "Charset",   "Italic",
                                         "Size", "Strikethrough", "Underline", "Weight"};

const DesignerBlock* FontBlock(const DesignerBlock& owner, std::string_view name) {
  const DesignerItem* item = owner.Find(name);
  return item && item->kind == DesignerItem::Block ? item->block.get() : nullptr;
}

FontValues ReadFont(const DesignerBlock& font) {
  FontValues values;
  const auto flag = [&](std::string_view name) { return LongValue(font, name, 0) != 0; };
  if (const std::string_view name = LineValue(font, "Name").text; !name.empty()) values.name = Unquoted(name);
  values.size = LengthValue(font, "Size", values.size);
  values.charset = LongValue(font, "Charset", values.charset);
  values.weight = LongValue(font, "Weight", values.weight);
  values.underline = flag("Underline");
  values.italic = flag("Italic");
  values.strikethrough = flag("Strikethrough");
  return values;
}

// The font of the nearest container that has one written; the environment's own without one.
FontValues InheritedFont(const DesignerBlock& owner) {
  for (const DesignerBlock* container = owner.parent; container; container = container->parent)
    if (const DesignerBlock* font = FontBlock(*container, "Font")) return ReadFont(*font);
  return {};
}

Variant MemberOf(const FontValues& font, std::string_view member) {
  if (member == "Name") return font.name;
  if (member == "Bold") return font.weight >= kBoldFrom;
  if (member == "Charset") return font.charset;
  if (member == "Italic") return font.italic;
  if (member == "Size") return font.size;
  if (member == "Strikethrough") return font.strikethrough;
  if (member == "Underline") return font.underline;
  return font.weight;
}

void SetMember(FontValues& font, std::string_view member, const Variant& value) {
  if (member == "Name")
    font.name = runtime::ToText(value);
  else if (member == "Bold")
    font.weight = runtime::ToBoolean(value) ? kBoldWeight : kNormalWeight;
  else if (member == "Charset")
    font.charset = runtime::ToLong(value);
  else if (member == "Italic")
    font.italic = runtime::ToBoolean(value);
  else if (member == "Size")
    font.size = runtime::ToNumber(value);
  else if (member == "Strikethrough")
    font.strikethrough = runtime::ToBoolean(value);
  else if (member == "Underline")
    font.underline = runtime::ToBoolean(value);
  else
    font.weight = runtime::ToLong(value);
  const bool fits = !font.name.empty() && !NeedsSibling(font.name) && font.size > 0 && font.size <= 2160 &&
                    font.charset >= 0 && font.charset <= 255;
  if (!fits) throw host::Error(runtime::kInvalidPropertyValue);
}

// The members in the order of the file, and what stands right of "=".
std::vector<std::pair<std::string_view, std::string>> FontLines(const FontValues& font) {
  return {{"Name", Quoted(font.name)},
          {"Size", runtime::CStr(font.size)},
          {"Charset", runtime::CStr(font.charset)},
          {"Weight", runtime::CStr(font.weight)},
          {"Underline", WriteBoolean(font.underline)},
          {"Italic", WriteBoolean(font.italic)},
          {"Strikethrough", WriteBoolean(font.strikethrough)}};
}

// [before] is what the block says now: lines that stay right stay as they are.
void WriteLines(DesignerPart& part, DesignerBlock& block, const FontValues& before, const FontValues& after) {
  const auto old_lines = FontLines(before), new_lines = FontLines(after);
  for (size_t i = 0; i < new_lines.size(); ++i) {
    const auto& [name, value] = new_lines[i];
    if (const DesignerItem* item = block.Find(name)) {
      if (old_lines[i] != new_lines[i]) part.SetRaw(const_cast<DesignerItem&>(*item), WithValue(item->raw, value));
    } else {
      const size_t place = std::min(i, block.items.size());
      block.items.insert(block.items.begin() + static_cast<long>(place),
                         part.NewProperty(PropertyLine(block.depth + 1, name, value, part.LineEnd())));
    }
  }
}

class FontPlace {
 public:
  FontPlace(std::shared_ptr<DesignerState> state, DesignerBlockRef owner, std::string name)
      : place_{std::move(state), std::move(owner), nullptr}, name_(std::move(name)) {}

  FontValues Read() const {
    const DesignerBlock* block = FontBlock(place_.Block(), name_);
    return block ? ReadFont(*block) : InheritedFont(place_.Block());
  }

  void Write(const FontValues& font) const {
    place_.state->RequireEditable();
    const FontValues before = Read();
    if (font == before) return;
    DesignerBlock& owner = place_.Block();
    const DesignerBlock* block = FontBlock(owner, name_);
    // An own object of another library's control (a {GUID}) is never left out.
    const bool may_go = block && block->type.empty();
    if (may_go && font == InheritedFont(owner))
      RemoveLine(owner, name_);
    else if (block)
      WriteLines(place_.Part(), const_cast<DesignerBlock&>(*block), before, font);
    else
      WriteLines(place_.Part(), AddPropertyBlock(place_.Part(), owner, name_), before, font);
    place_.state->Edited();
  }

 private:
  PropertyPlace place_;
  std::string name_;
};

class FontMember : public host::Property {
 public:
  FontMember(FontPlace place, std::string_view member) : place_(std::move(place)), member_(member) {}
  std::string Name() override { return std::string(member_); }
  Variant Value() override { return MemberOf(place_.Read(), member_); }
  void SetValue(const Variant& value) override {
    FontValues font = place_.Read();
    SetMember(font, member_, value);
    place_.Write(font);
  }
  long NumIndices() override { return 0; }
  Variant IndexedValue(long) override { throw host::Error(runtime::kInvalidPropertyArrayIndex); }
  void SetIndexedValue(long, const Variant&) override { throw host::Error(runtime::kInvalidPropertyArrayIndex); }
  Variant Object() override { throw host::Error(runtime::kObjectRequired); }
  void SetObject(const Variant&) override { throw host::Error(runtime::kObjectRequired); }

 private:
  FontPlace place_;
  std::string_view member_;
};

class FontList : public host::Properties {
 public:
  explicit FontList(FontPlace place) : place_(std::move(place)) {}
  long Count() override { return static_cast<long>(std::size(kMembers)); }
  host::Ref<host::Property> Item(const host::Index& index) override {
    const std::vector<std::string_view> members(std::begin(kMembers), std::end(kMembers));
    return std::make_shared<FontMember>(place_, ItemOf(members, index, [](std::string_view name) { return name; }));
  }
  const FontPlace& Place() const { return place_; }

 private:
  FontPlace place_;
};

}  // namespace

host::Ref<host::Properties> NewFontList(std::shared_ptr<DesignerState> state, DesignerBlockRef owner,
                                        std::string name) {
  return std::make_shared<FontList>(FontPlace(std::move(state), std::move(owner), std::move(name)));
}

void CopyFont(host::Properties& target, host::Properties& font) {
  const auto* list = dynamic_cast<FontList*>(&target);
  if (!list) throw host::Error(runtime::kTypeMismatch);
  FontValues values = list->Place().Read();
  // Bold is said by Weight.
  for (const std::string_view member : kMembers)
    if (member != "Bold") SetMember(values, member, font.Item(std::string(member))->Value());
  list->Place().Write(values);
}

}  // namespace corvane::environment
