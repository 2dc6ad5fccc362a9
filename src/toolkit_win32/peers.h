// The peers of the control kinds, each made with its control; they show it when they are told Property::All.
#pragma once

#include <memory>

#include "forms/controls.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

using NewPeer = std::unique_ptr<forms::Peer>;

NewPeer NewLabelPeer(Win32Toolkit& toolkit, forms::Label& label);
NewPeer NewFramePeer(Win32Toolkit& toolkit, forms::Frame& frame);
NewPeer NewImagePeer(Win32Toolkit& toolkit, forms::Image& image);
NewPeer NewLinePeer(Win32Toolkit& toolkit, forms::Line& line);
NewPeer NewShapePeer(Win32Toolkit& toolkit, forms::Shape& shape);
NewPeer NewCommandButtonPeer(Win32Toolkit& toolkit, forms::CommandButton& button);
NewPeer NewCheckBoxPeer(Win32Toolkit& toolkit, forms::CheckBox& box);
NewPeer NewOptionButtonPeer(Win32Toolkit& toolkit, forms::OptionButton& option);
NewPeer NewTextBoxPeer(Win32Toolkit& toolkit, forms::TextBox& box);
NewPeer NewListBoxPeer(Win32Toolkit& toolkit, forms::ListBox& list);
NewPeer NewComboBoxPeer(Win32Toolkit& toolkit, forms::ComboBox& combo);
NewPeer NewPictureBoxPeer(Win32Toolkit& toolkit, forms::PictureBox& box);
NewPeer NewUserControlPeer(Win32Toolkit& toolkit, forms::UserControl& control);
NewPeer NewScrollBarPeer(Win32Toolkit& toolkit, forms::ScrollBar& bar);
NewPeer NewTimerPeer(Win32Toolkit& toolkit, forms::Timer& timer);
NewPeer NewToolbarPeer(Win32Toolkit& toolkit, forms::Toolbar& bar);

}  // namespace corvane::toolkit_win32
