// frmResult: a modal window that shows a text, to read, search and edit.
#pragma once

#include "forms/controls.h"

namespace corvane::workshop {

class frmResult : public forms::Form {
 public:
  explicit frmResult(forms::Toolkit& toolkit);

  forms::Label lblText{*this, "lblText"};
  forms::TextBox txtRes{*this, "txtRes"};
  forms::ListBox lstTitle{*this, "lstTitle"};  // over the text: the lines that were found
  forms::Label lblSearch{*this, "lblSearch"};
  forms::TextBox txtSearch{*this, "txtSearch"};
  forms::CommandButton OKButton{*this, "OKButton"}, CancelButton{*this, "CancelButton"};

  // Shows [text] below the heading [label] until the user confirms or cancels, with the caret on line [line] (from 1;
  // 0: the first). Returns whether it was confirmed: txtRes then holds what the user made of the text.
  bool DisplayRes(const std::string& text, const std::string& label, const std::string& caption, long line = 0);
  // The wide layout, with room for two lists side by side, or the designed one.
  void NewWidth(bool list);

 private:
  void Design();
  void PlaceControls();
  void BindEvents();
  void Answer(bool ok);
  void Form_KeyPress(int& key);
  void txtSearch_KeyPress(int& key);
  void lstTitle_KeyPress(int& key);
  void ListHits(const std::string& wanted);
  void SelectFoundLine();
  void HideHits();

  bool confirmed = false;
};

}  // namespace corvane::workshop
