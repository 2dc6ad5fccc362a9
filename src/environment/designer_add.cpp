// Adding, removing and renaming controls.
#include <algorithm>
#include <cmath>

#include "environment/designer_controls.h"
#include "environment/designer_frame.h"
#include "environment/designer_tab_pages.h"
#include "environment/designer_tree.h"
#include "environment/lookup.h"
#include "environment/properties.h"
#include "environment/properties_values.h"
#include "runtime/code_page.h"

namespace corvane::environment {

namespace {

constexpr double kGrid = 120;  // twips between the points of the designer's grid
constexpr size_t kLongestName = 40;

// Whether the two may share a name: elements of one control array.
bool AreElements(const DesignerBlock& left, const DesignerBlock& right) {
  const long index = LongValue(left, "Index", kNoElement), other = LongValue(right, "Index", kNoElement);
  return SameName(left.type, right.type) && index != kNoElement && other != kNoElement && index != other;
}

bool IsTaken(DesignerState& state, std::string_view name, const DesignerBlock* by = nullptr) {
  const auto& controls = state.Controls();
  return std::any_of(controls.begin(), controls.end(), [&](const DesignerBlockRef& other) {
    return other.get() != by && SameName(other->name, name) && !(by && AreElements(*by, *other));
  });
}

std::string FirstFreeName(DesignerState& state, std::string_view base) {
  for (long number = 1;; ++number)
    if (std::string name = std::string(base) + std::to_string(number); !IsTaken(state, name)) return name;
}

long NextTabIndex(DesignerState& state) {
  long next = 0;
  for (const DesignerBlockRef& control : state.Controls())
    next = std::max(next, LongValue(*control, "TabIndex", -1) + 1);
  return next;
}

bool HasTextOfName(std::string_view prog_id) {
  return prog_id == "VB.TextBox" || prog_id == "VB.ComboBox";
}
bool HasCaptionOfName(std::string_view prog_id) {
  for (const std::string_view captioned :
       {"VB.CommandButton", "VB.CheckBox", "VB.OptionButton", "VB.Label", "VB.Frame", "VB.Data"})
    if (prog_id == captioned) return true;
  return false;
}

// Where a new control stands: in the middle of its container, on the grid.
double Middle(const DesignerBlock& container, std::string_view client, std::string_view outside, double size) {
  const double room = LengthValue(container, client, LengthValue(container, outside, size));
  return std::max(0.0, std::floor((room - size) / 2 / kGrid) * kGrid);
}

// Ends of a new line are in the scale of its container.
void PlaceLine(DesignerPart& part, DesignerBlock& line, double x, double y, double width,
               const DesignerBlock& container) {
  const long mode = LongValue(container, "ScaleMode", 1);
  const double across = TwipsPerUnit(mode, false), down = TwipsPerUnit(mode, true);
  SetLine(part, line, "X1", WriteLength(x / across));
  SetLine(part, line, "X2", WriteLength((x + width) / across));
  SetLine(part, line, "Y1", WriteLength(y / down));
  SetLine(part, line, "Y2", WriteLength(y / down));
}

void WriteNewProperties(DesignerState& state, const ControlClass& known, DesignerBlock& control,
                        const DesignerBlock& container) {
  constexpr double kLineWidth = 1215;
  DesignerPart& part = state.Part();
  const std::string quoted_name = Quoted(control.name);
  const double width = static_cast<double>(known.width), height = static_cast<double>(known.height);
  const double left = Middle(container, "ClientWidth", "Width", known.Find("X1") ? kLineWidth : width);
  const double top = Middle(container, "ClientHeight", "Height", height);
  if (known.Find("X1")) return PlaceLine(part, control, left, top, kLineWidth, container);

  const auto set = [&](std::string_view name, const std::string& value) {
    if (known.Find(name)) SetLine(part, control, name, value);
  };
  for (const PropertyRow& row : known.properties)
    if (row.always_written && !row.default_value.empty())
      SetLine(part, control, row.name, WriteValue(row.kind, row.choices, DefaultValue(row, {})));
    else if (row.always_written && row.kind == PropertyKind::Text)
      SetLine(part, control, row.name, Quoted(""));
  if (HasCaptionOfName(known.prog_id)) set("Caption", quoted_name);
  if (HasTextOfName(known.prog_id)) set("Text", quoted_name);
  set("Height", WriteLength(height));
  set("Left", WriteLength(left));
  set("TabIndex", runtime::CStr(NextTabIndex(state)));
  set("Top", WriteLength(top));
  set("Width", WriteLength(width));
  UpdateScale(part, control, known);
}

bool IsName(std::string_view name) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  if (name.empty() || name.size() > kLongestName) return false;
  const auto is_word = [&](unsigned char c) { return page.IsWordByte(c); };
  return std::all_of(name.begin(), name.end(), is_word) && name.front() != '_' &&
         !(name.front() >= '0' && name.front() <= '9');
}

}  // namespace

DesignerBlockRef AddControl(DesignerState& state, const ControlClass& known, DesignerBlock& container) {
  const bool is_menu = known.prog_id == "VB.Menu", in_form = container.parent == nullptr;
  const ControlClass* holder = ClassOf(state, container);
  const bool fits =
      is_menu ? in_form || IsMenu(container) : !IsMenu(container) && (in_form || !holder || holder->is_container);
  const bool is_too_deep = container.depth + 1 >= kDeepestLevel - 1;  // it may hold a font
  if (!fits || is_too_deep) throw host::Error(runtime::kInvalidProcedureCall);

  DesignerBlockRef control =
      state.Part().NewBlock(container, false, known.prog_id, FirstFreeName(state, known.base_name));
  WriteNewProperties(state, known, *control, container);
  PlaceControl(container, control);
  PutOnTabPage(state.Part(), *control);
  state.ControlsChanged();
  state.Edited();
  return control;
}

void RemoveControl(DesignerState& state, DesignerBlock& control) {
  TakeOffTabPage(state.Part(), control);
  TakeOut(control);
  state.ControlsChanged();
  state.Edited();
}

void RenameControl(DesignerState& state, DesignerBlock& block, const std::string& name) {
  if (!IsName(name)) throw host::Error(runtime::kInvalidPropertyValue);
  if (block.name == name) return;
  if (IsTaken(state, name, &block)) throw host::Error(runtime::kNameInUse);
  const std::string on_page = NameOnPage(block);
  state.Part().SetBegin(block, block.type, name);
  FollowOnTabPage(state.Part(), block, on_page);
  if (block.parent)
    for (DesignerItem& item : block.parent->items)
      if (item.block.get() == &block) item.name = block.name;
  state.ControlsChanged();
  state.Edited();
}

}  // namespace corvane::environment
