// CvButton: a flat button, a picture at the left and a caption behind it, with a frame only where BorderStyle asks for
// it.
#pragma once

#include <string>

#include "forms/picture_box.h"
#include "forms/static_controls.h"
#include "forms/timer.h"
#include "forms/user_control.h"
#include "host/services.h"

namespace corvane::codelist {

class CvButton : public forms::UserControl {
 public:
  // The caption is the control's name until another is given. [index] is the place in a control array, -1 outside one.
  CvButton(forms::Container& container, std::string name, host::Services& services, int index = -1);

  bool CanTakeFocus() const override { return false; }

  forms::PictureRef Picture() const { return img.Picture(); }
  void SetPicture(forms::PictureRef value);
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string value);  // drawn as it is: "&" is no access key
  void SetForeColor(forms::Color value) override;
  void SetBackColor(forms::Color value) override;
  void SetEnabled(bool value) override;
  void SetFont(const forms::Font& value) override;
  int BorderStyle() const { return borderStyle; }  // 0: never a frame at rest or under the pointer
  void SetBorderStyle(int value);
  const std::string& ToolTip() const { return pic.ToolTipText(); }
  void SetToolTip(const std::string& value);

  // Draws the edge: top and left in the first colour, right and bottom in the second.
  void DrawLines(forms::Color topLeft, forms::Color bottomRight);

  // Its one event is Click, when it is enabled.
  forms::Event<const std::string&> PropertyChanged;  // name of the property that was written

  forms::PictureBox pic{*this, "pic"};
  forms::Image img{pic, "img"};
  forms::Timer tmr{*this, "tmr"};

 protected:
  void OnResize() override;

 private:
  void Draw();
  void Wrote(const std::string& property);
  void Press();
  void Hover();
  void tmr_Timer();

  host::Services& services;
  std::string caption;
  int borderStyle = 0;
};

}  // namespace corvane::codelist
