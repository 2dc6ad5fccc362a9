// The layout of Qt windows as text that is the same on every machine, and checks of what depends on its fonts.
#pragma once

#include <QMainWindow>
#include <QWidget>
#include <string>
#include <vector>

namespace corvane::desk {

// A window's layout as a tree: what stands in which cell of which layout, what each widget says, the order of Tab. No
// pixel is in it.
//   Dialog FindDialog "Find"
//     grid
//       0,0 Label "&Find what:" of LineEdit
//   tab: LineEdit, CheckBox "Match &case"
std::string LayoutText(QWidget& window);
// A main window's: its bars with all commands, its docks by their side, what stands in each.
std::string LayoutText(QMainWindow& window);

// What does not fit, as one sentence each: texts of labels, buttons, tabs and headings that are wider or higher than
// their widget, and visible widgets that stick out of the one around them or cover another.
std::vector<std::string> FindUnfit(QWidget& window);

// Actions of menus that no key reaches, and keys that reach two.
std::vector<std::string> FindBadKeys(QMainWindow& window);

}  // namespace corvane::desk
