// What keys do in the platform's own controls, where no widget of a toolkit does it: moving in lists, editing text,
// pressing buttons, scrolling.
#pragma once

#include "forms/control.h"

namespace corvane::forms {

// True when the key had an effect and makes no character.
bool HaveKeyEffect(Control& control, int key_code, int shift);
void HaveCharacterEffect(Control& control, int key_ascii);

// The character that a key makes (vbKeyA: "a", with Shift "A", with Ctrl 1); 0 for one that makes none.
int CharacterOf(int key_code, int shift);
// The key and shift state that make a character, as far as keyboards agree on it.
int KeyOf(char character);
int ShiftOf(char character);

}  // namespace corvane::forms
