// User: drives a window as a user would, for tests and for runs without a display. Each act goes the way a real one
// goes (Toolkit::Guard, dialog keys, events in order), and returns false where a user could not have done it.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "forms/controls.h"

namespace corvane::forms {

class User {
 public:
  explicit User(Form& form) : form_(form) {}

  // A key goes to the form's dialog keys, then to the focused control with what the key does there.
  bool Press(int key_code, int shift = 0);
  // Each character typed; CR LF, CR or LF is Enter.
  bool Type(std::string_view text);

  // A press lands on the visible control inside [control] that stands there, as in a frame or a user control.
  bool Click(Control& control);  // in its middle
  bool ClickAt(Control& control, Twips x, Twips y, int button = vbLeftButton, int shift = 0);
  bool DblClick(Control& control);
  bool DblClickAt(Control& control, Twips x, Twips y);
  bool MoveOver(Control& control, Twips x, Twips y, int button = 0, int shift = 0);
  bool Drag(Control& control, Twips x1, Twips y1, Twips x2, Twips y2);

  // Clicks a row of a list; drops a combo box down and chooses there.
  bool Choose(ListControl& list, long row);
  bool Choose(ListControl& list, std::string_view text);
  bool DblClickRow(ListBox& list, long row);
  bool Check(ListBox& list, long row);  // its check box, or Ctrl and a click
  // Scrolls to [value] by the arrows or the shaft of a bar.
  bool Scroll(ScrollBar& bar, long value);

  // Fills a text box or a combo box as by marking all and typing over it.
  bool Enter(TextBox& box, std::string_view text);
  bool Enter(ComboBox& box, std::string_view text);

  // A button of a toolbar, and an entry of its drop-down, by position from 1 or key.
  bool ClickButton(Toolbar& bar, int position);
  bool ClickButton(Toolbar& bar, std::string_view key) { return ClickButton(bar, bar.PositionOf(key)); }
  bool ChooseButtonMenu(Toolbar& bar, int position, int entry);

  // Walks the menu bar by captions without "&": Menu("File", "Open").
  template <class... Captions>
  bool Menu(Captions... captions) {
    return ChooseMenu({std::string_view(captions)...});
  }
  bool Close();

 private:
  template <class Act>
  bool Do(Control& control, Act&& act);
  bool PressDown(Control& control, int button, int shift, Twips x, Twips y);
  void ShowFocus();  // on a toolkit whose widgets did not take part in the act
  bool TypeKey(int key_code, int shift, int key_ascii);
  bool ChooseInCombo(ComboBox& combo, long row);
  bool ChooseMenu(std::initializer_list<std::string_view> captions);

  Form& form_;
};

}  // namespace corvane::forms
