// Texts and pictures that stand in the binary sibling.
#include "environment/designer_tree.h"
#include "environment/frx.h"
#include "environment/properties.h"
#include "environment/properties_values.h"

namespace corvane::environment {

using runtime::PictureRef;
using runtime::Variant;

namespace {

PictureRef PictureOf(const std::optional<std::string>& image) {
  if (!image || image->empty()) return nullptr;
  return std::make_shared<const runtime::Picture>(runtime::Picture{*image});
}

std::string TextOf(std::string_view bytes, const SiblingReference& reference) {
  const auto text =
      reference.is_text ? frx::ReadLongText(bytes, reference.offset) : frx::ReadText(bytes, reference.offset);
  return text.value_or("");
}

bool IsSamePicture(const Variant& value, const PictureRef& picture) {
  const auto bytes = [](const PictureRef& p) { return p ? std::string_view(p->bytes) : std::string_view(); };
  return bytes(std::get<PictureRef>(value)) == bytes(picture);
}

// The reference that a property's line holds now.
bool ReferenceOf(const PropertyPlace& place, std::string_view name, SiblingReference& reference) {
  return ReadReference(LineValue(place.Block(), name).text, reference);
}

}  // namespace

Variant ReadSiblingValue(const PropertyPlace& place, PropertyKind kind, const SiblingReference& reference) {
  Variant value;
  if (kind == PropertyKind::Text) value = std::string();
  if (kind == PropertyKind::Picture) value = PictureRef();
  if (!reference.is_quoted) return value;
  host::PassOverErrors([&] {
    const std::string& bytes = place.state->SiblingBytes(reference.file);
    if (kind == PropertyKind::Picture)
      value = PictureOf(frx::ReadPicture(bytes, reference.offset));
    else if (kind == PropertyKind::Text || reference.is_text)
      value = TextOf(bytes, reference);
    else if (const auto image = frx::ReadPicture(bytes, reference.offset))
      value = PictureOf(image);
  });
  return value;
}

bool WriteSiblingText(const PropertyPlace& place, std::string_view name, const std::string& text) {
  SiblingReference before;
  const bool had = ReferenceOf(place, name, before);
  // The Text of a multi-line box has a record of its own kind.
  const bool short_record = name == "Text" && LongValue(place.Block(), "MultiLine", 0) != 0;
  const std::string record = short_record ? frx::TextRecord(text) : frx::LongTextRecord(text);
  const SiblingReference after = place.state->AppendRecord(record, !short_record, had ? &before : nullptr);
  return SetLine(place.Part(), place.Block(), name, WriteReference(after));
}

bool WritePicture(const PropertyPlace& place, std::string_view name, const PictureRef& picture) {
  SiblingReference before;
  const bool had = ReferenceOf(place, name, before);
  // A picture that cannot be read is Nothing: setting that to Nothing does not take its reference away.
  if (had && IsSamePicture(ReadSiblingValue(place, PropertyKind::Picture, before), picture)) return false;
  if (!picture || picture->bytes.empty()) return RemoveLine(place.Block(), name);
  const SiblingReference after =
      place.state->AppendRecord(frx::PictureRecord(picture->bytes), false, had ? &before : nullptr);
  return SetLine(place.Part(), place.Block(), name, WriteReference(after));
}

}  // namespace corvane::environment
