// ControlClass: what the environment knows of each of its own kinds of controls and designers: the properties that the
// Properties window lists, their defaults, sizes and names of new ones.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::environment {

enum class PropertyKind {
  Text,
  Number,   // long
  Length,   // twips (scales in their own units), double
  Boolean,  // 0 'False, -1 'True
  Choice,   // a number with a text
  Colour,   // &H00BBGGRR&, system colours &H800000nn&
  Picture,  // a record of the binary sibling
  Font,     // BeginProperty Font
  List,     // records of the binary sibling, by index from 0
  ItemData,
  Shortcut,   // of a menu: ^S, {F5}
  Reference,  // to a data source: no value of its own
};

// How a row's value comes about, where it is not simply what the file holds.
enum class PropertyRule {
  Plain,
  FrameHeight,  // of a window: the file holds the client area
  FrameLeft,
  FrameTop,
  FrameWidth,
  ClientHeight,  // of a control without a frame: Height is ClientHeight
  ClientWidth,
  Exposed,     // of the module's attributes; read only
  Instancing,  // of the module's attributes; read only
};

struct PropertyRow {
  std::string_view name;
  PropertyKind kind = PropertyKind::Text;
  std::string_view default_value = {};  // as the file would hold it, booleans as True and False; "$" the name
  std::string_view choices = {};  // texts of the values 0, 1, ...: "Manual|Automatic"; "99=Custom" for another number
  bool always_written = false;
  PropertyRule rule = PropertyRule::Plain;
};

struct ControlClass {
  std::string_view prog_id;        // "VB.Label"
  std::string_view base_name;      // new ones: "Label1"
  std::string_view default_event;  // "Click"
  bool is_container = false;
  long width = 0, height = 0;           // of a new one, twips; 0: none
  std::vector<PropertyRow> properties;  // alphabetical, without Name and Index
  std::vector<PropertyRow> unlisted;    // written to the file, not in the list: ClientHeight, ...

  std::string_view ClassName() const { return prog_id.substr(3); }
  const PropertyRow* Find(std::string_view name) const;  // listed ones; null if there is none
};

// By "VB.Label" or "Label", without case; null for classes that are not the environment's own.
const ControlClass* FindControlClass(std::string_view prog_id);
const std::vector<ControlClass>& ControlClasses();

// What every control of another library has from its container.
const PropertyRow* FindExtenderProperty(std::string_view name);
const std::vector<PropertyRow>& ExtenderProperties();

// The text of a choice ("Fixed Single"); empty where the table does not know the value.
std::string_view ChoiceText(std::string_view choices, long value);

}  // namespace corvane::environment
