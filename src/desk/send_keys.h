// SendKeys: the key strokes a text describes, and their way to the widget with the focus.
#pragma once

#include <QString>
#include <Qt>
#include <string_view>
#include <vector>

namespace corvane::desk {

struct KeyStroke {
  int key = 0;  // Qt::Key
  Qt::KeyboardModifiers modifiers;
  QString text;  // what the key types; empty for the others
  bool operator==(const KeyStroke&) const = default;
};

// "+" Shift, "^" Ctrl, "%" Alt for the next key or (group), "~" Enter, "{NAME}", "{NAME count}", "{c}" for a character
// that means something else. Throws Error 5 for what is none of these.
std::vector<KeyStroke> ParseKeys(std::string_view keys);

// Presses them one after the other; each is processed before the next. Without a widget in focus nothing happens.
void PressKeys(const std::vector<KeyStroke>& strokes);

}  // namespace corvane::desk
