#include "desk/control_values.h"

#include "desk/ansi_text.h"
#include "toolkit_qt/colors.h"
#include "toolkit_qt/fonts.h"

namespace corvane::desk {

host::Ref<host::Property> ControlValues::Find(const std::string& name) const {
  host::Ref<host::Property> found;
  host::PassOverErrors([&] {
    if (properties_) found = properties_->Item(name);
  });
  return found;
}

bool ControlValues::Has(const std::string& name) const {
  return Find(name) != nullptr;
}

double ControlValues::Number(const std::string& name, double otherwise) const {
  double value = otherwise;
  host::PassOverErrors([&] {
    if (const auto property = Find(name)) value = runtime::ToNumber(property->Value());
  });
  return value;
}

bool ControlValues::Flag(const std::string& name, bool otherwise) const {
  return Number(name, otherwise ? -1 : 0) != 0;
}

std::string ControlValues::Text(const std::string& name) const {
  std::string value;
  host::PassOverErrors([&] {
    if (const auto property = Find(name)) value = runtime::ToText(property->Value());
  });
  return value;
}

// Colours come signed (-2147483643) or not.
QColor ControlValues::Color(const std::string& name, unsigned otherwise) const {
  const double value = Number(name, otherwise);
  return toolkit_qt::ShownColor(static_cast<forms::Color>(static_cast<int64_t>(value)));
}

QFont ControlValues::Font() const {
  forms::Font font;
  host::PassOverErrors([&] {
    const auto property = Find("Font");
    if (!property) return;
    const runtime::Variant object = property->Object();
    const auto* reference = std::get_if<std::shared_ptr<runtime::Object>>(&object);
    const auto inner = reference ? std::dynamic_pointer_cast<host::Properties>(*reference) : nullptr;
    if (!inner) return;
    const ControlValues values(inner);
    if (const std::string name = values.Text("Name"); !name.empty()) font.Name = name;
    font.Size = static_cast<float>(values.Number("Size", font.Size));
    font.Bold = values.Flag("Bold");
    font.Italic = values.Flag("Italic");
    font.Underline = values.Flag("Underline");
    font.Strikethrough = values.Flag("Strikethrough");
    font.Charset = static_cast<int>(values.Number("Charset"));
  });
  return toolkit_qt::ShownFont(font);
}

runtime::PictureRef ControlValues::Picture(const std::string& name) const {
  runtime::PictureRef picture;
  host::PassOverErrors([&] {
    const auto property = Find(name);
    if (!property) return;
    for (const runtime::Variant& value : {property->Object(), property->Value()})
      if (const auto* held = std::get_if<runtime::PictureRef>(&value); held && *held) picture = *held;
  });
  return picture;
}

std::vector<std::string> ControlValues::List(const std::string& name, long at_most) const {
  std::vector<std::string> rows;
  host::PassOverErrors([&] {
    const auto property = Find(name);
    if (!property || property->NumIndices() < 1) return;
    for (long row = 0; row < at_most; ++row) rows.push_back(runtime::ToText(property->IndexedValue(row)));
  });
  return rows;
}

Unit UnitOfScaleMode(int mode) {
  switch (mode) {
    case 2:
      return {20, 20};
    case 3:
      return {15, 15};
    case 4:
      return {120, 240};
    case 5:
      return {1440, 1440};
    case 6:
      return {56.7, 56.7};
    case 7:
      return {567, 567};
    default:
      return {1, 1};
  }
}

}  // namespace corvane::desk
