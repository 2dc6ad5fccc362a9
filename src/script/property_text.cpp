#include "script/property_text.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "runtime/strings.h"

namespace corvane::script {

namespace {

constexpr long kLongestList = 32767;  // items that a list can hold

struct NamedNumber {
  std::string_view name;  // in upper case
  long value;
};

// As a Long holds it.
constexpr long SystemColour(uint32_t bits) {
  return static_cast<int32_t>(bits);
}

// Names of values that properties take, in the order of the alphabet.
constexpr NamedNumber kNamedNumbers[] = {
    {"FALSE", 0},
    {"TRUE", -1},
    {"VB3DDKSHADOW", SystemColour(0x80000015)},
    {"VB3DFACE", SystemColour(0x8000000F)},
    {"VB3DHIGHLIGHT", SystemColour(0x80000014)},
    {"VB3DLIGHT", SystemColour(0x80000016)},
    {"VB3DSHADOW", SystemColour(0x80000010)},
    {"VBACTIVEBORDER", SystemColour(0x8000000A)},
    {"VBACTIVETITLEBAR", SystemColour(0x80000002)},
    {"VBALIGNBOTTOM", 2},
    {"VBALIGNLEFT", 3},
    {"VBALIGNNONE", 0},
    {"VBALIGNRIGHT", 4},
    {"VBALIGNTOP", 1},
    {"VBAPPLICATIONWORKSPACE", SystemColour(0x8000000C)},
    {"VBARROW", 1},
    {"VBARROWHOURGLASS", 13},
    {"VBARROWQUESTION", 14},
    {"VBAUTOMATIC", 1},
    {"VBBLACK", 0},
    {"VBBLUE", 0xFF0000},
    {"VBBOTH", 3},
    {"VBBSDASH", 2},
    {"VBBSDASHDOT", 4},
    {"VBBSDASHDOTDOT", 5},
    {"VBBSDOT", 3},
    {"VBBSINSIDESOLID", 6},
    {"VBBSNONE", 0},
    {"VBBSSOLID", 1},
    {"VBBUTTONFACE", SystemColour(0x8000000F)},
    {"VBBUTTONGRAPHICAL", 1},
    {"VBBUTTONSHADOW", SystemColour(0x80000010)},
    {"VBBUTTONSTANDARD", 0},
    {"VBBUTTONTEXT", SystemColour(0x80000012)},
    {"VBCENTER", 2},
    {"VBCENTERS", 5},
    {"VBCENTIMETERS", 7},
    {"VBCHARACTERS", 4},
    {"VBCHECKED", 1},
    {"VBCOMBODROPDOWN", 0},
    {"VBCOMBODROPDOWNLIST", 2},
    {"VBCOMBOSIMPLE", 1},
    {"VBCROSS", 7},
    {"VBCROSSHAIR", 2},
    {"VBCUSTOM", 99},
    {"VBCYAN", 0xFFFF00},
    {"VBDEFAULT", 0},
    {"VBDESKTOP", SystemColour(0x80000001)},
    {"VBDIAGONALCROSS", 7},
    {"VBDOWNWARDDIAGONAL", 5},
    {"VBFIXEDDIALOG", 3},
    {"VBFIXEDDOUBLE", 3},
    {"VBFIXEDSINGLE", 1},
    {"VBFIXEDTOOLWINDOW", 4},
    {"VBFSSOLID", 0},
    {"VBFSTRANSPARENT", 1},
    {"VBGRAYED", 2},
    {"VBGRAYTEXT", SystemColour(0x80000011)},
    {"VBGREEN", 0x00FF00},
    {"VBHIGHLIGHT", SystemColour(0x8000000D)},
    {"VBHIGHLIGHTTEXT", SystemColour(0x8000000E)},
    {"VBHORIZONTAL", 1},
    {"VBHORIZONTALLINE", 2},
    {"VBHOURGLASS", 11},
    {"VBIBEAM", 3},
    {"VBICONPOINTER", 4},
    {"VBINACTIVEBORDER", SystemColour(0x8000000B)},
    {"VBINACTIVECAPTIONTEXT", SystemColour(0x80000013)},
    {"VBINACTIVETITLEBAR", SystemColour(0x80000003)},
    {"VBINCHES", 5},
    {"VBINFOBACKGROUND", SystemColour(0x80000018)},
    {"VBINFOTEXT", SystemColour(0x80000017)},
    {"VBLEFTJUSTIFY", 0},
    {"VBLISTBOXCHECKBOX", 1},
    {"VBLISTBOXSTANDARD", 0},
    {"VBMAGENTA", 0xFF00FF},
    {"VBMANUAL", 0},
    {"VBMAXIMIZED", 2},
    {"VBMENUBAR", SystemColour(0x80000004)},
    {"VBMENUTEXT", SystemColour(0x80000007)},
    {"VBMILLIMETERS", 6},
    {"VBMINIMIZED", 1},
    {"VBNODROP", 12},
    {"VBNORMAL", 0},
    {"VBPIXELS", 3},
    {"VBPOINTS", 2},
    {"VBRED", 0x0000FF},
    {"VBRIGHTJUSTIFY", 1},
    {"VBSBNONE", 0},
    {"VBSCROLLBARS", SystemColour(0x80000000)},
    {"VBSHAPECIRCLE", 3},
    {"VBSHAPEOVAL", 2},
    {"VBSHAPERECTANGLE", 0},
    {"VBSHAPEROUNDEDRECTANGLE", 4},
    {"VBSHAPEROUNDEDSQUARE", 5},
    {"VBSHAPESQUARE", 1},
    {"VBSIZABLE", 2},
    {"VBSIZABLETOOLWINDOW", 5},
    {"VBSIZEALL", 15},
    {"VBSIZENESW", 6},
    {"VBSIZENS", 7},
    {"VBSIZENWSE", 8},
    {"VBSIZEWE", 9},
    {"VBSTARTUPMANUAL", 0},
    {"VBSTARTUPOWNER", 1},
    {"VBSTARTUPSCREEN", 2},
    {"VBSTARTUPWINDOWSDEFAULT", 3},
    {"VBTITLEBARTEXT", SystemColour(0x80000009)},
    {"VBTRANSPARENT", 0},
    {"VBTWIPS", 1},
    {"VBUNCHECKED", 0},
    {"VBUPARROW", 10},
    {"VBUPWARDDIAGONAL", 4},
    {"VBUSER", 0},
    {"VBVERTICAL", 2},
    {"VBVERTICALLINE", 3},
    {"VBWHITE", 0xFFFFFF},
    {"VBWINDOWBACKGROUND", SystemColour(0x80000005)},
    {"VBWINDOWFRAME", SystemColour(0x80000006)},
    {"VBWINDOWTEXT", SystemColour(0x80000008)},
    {"VBYELLOW", 0x00FFFF},
};

static_assert(std::is_sorted(std::begin(kNamedNumbers), std::end(kNamedNumbers),
                             [](const NamedNumber& left, const NamedNumber& right) { return left.name < right.name; }));

// An item behind the last one fails or is empty. A list may have an empty item, too, so that only two of them in a row
// are its end.
std::string JoinedItems(host::Property& list) {
  std::string joined, separators;
  int empty = 0;
  for (long index = 0; index < kLongestList && empty < 2; ++index) {
    std::string item;
    if (!host::PassOverErrors([&] { item = runtime::ToText(list.IndexedValue(index)); })) break;
    empty = item.empty() ? empty + 1 : 0;
    if (index > 0) separators += '|';
    if (item.empty()) continue;
    joined += separators + item;
    separators.clear();
  }
  return joined;
}

}  // namespace

std::string ValueText(host::Property& property) {
  if (property.NumIndices() > 0) return JoinedItems(property);
  const host::Variant value = property.Value();
  const auto* object = std::get_if<std::shared_ptr<runtime::Object>>(&value);
  if (object == nullptr) return runtime::ToText(value);
  auto* parts = dynamic_cast<host::Properties*>(object->get());
  if (parts == nullptr) throw host::Error(runtime::kTypeMismatch);
  return runtime::ToText(parts->Item("Name")->Value());
}

std::string AllProperties(host::Properties& properties) {
  std::string all;
  for (const host::Ref<host::Property>& property : host::Each(properties)) {
    std::string name = "Error", value = "Error";
    host::PassOverErrors([&] { name = property->Name(); });
    if (name == "Name") continue;
    host::PassOverErrors([&] { value = ValueText(*property); });
    all += name + '.' + value + '|';
  }
  return all;
}

host::Variant NamedValue(const std::string& text) {
  const std::string name = runtime::UCase(runtime::Trim(text));
  const auto* found = std::lower_bound(std::begin(kNamedNumbers), std::end(kNamedNumbers), name,
                                       [](const NamedNumber& row, const std::string& key) { return row.name < key; });
  if (found == std::end(kNamedNumbers) || found->name != name) return text;
  return found->value;
}

}  // namespace corvane::script
