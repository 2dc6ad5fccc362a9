// The peers of the control kinds, each made with its control; they show it when they are told Property::All.
#pragma once

#include <memory>

#include "forms/controls.h"

namespace corvane::toolkit_qt {

class QtToolkit;

using NewPeer = std::unique_ptr<forms::Peer>;

NewPeer NewLabelPeer(QtToolkit& toolkit, forms::Label& label);
NewPeer NewFramePeer(QtToolkit& toolkit, forms::Frame& frame);
NewPeer NewImagePeer(QtToolkit& toolkit, forms::Image& image);
NewPeer NewLinePeer(QtToolkit& toolkit, forms::Line& line);
NewPeer NewShapePeer(QtToolkit& toolkit, forms::Shape& shape);
NewPeer NewCommandButtonPeer(QtToolkit& toolkit, forms::CommandButton& button);
NewPeer NewCheckBoxPeer(QtToolkit& toolkit, forms::CheckBox& box);
NewPeer NewOptionButtonPeer(QtToolkit& toolkit, forms::OptionButton& option);
NewPeer NewTextBoxPeer(QtToolkit& toolkit, forms::TextBox& box);
NewPeer NewListBoxPeer(QtToolkit& toolkit, forms::ListBox& list);
NewPeer NewComboBoxPeer(QtToolkit& toolkit, forms::ComboBox& combo);
NewPeer NewPictureBoxPeer(QtToolkit& toolkit, forms::PictureBox& box);
NewPeer NewUserControlPeer(QtToolkit& toolkit, forms::UserControl& control);
NewPeer NewScrollBarPeer(QtToolkit& toolkit, forms::ScrollBar& bar);
NewPeer NewTimerPeer(QtToolkit& toolkit, forms::Timer& timer);
NewPeer NewToolbarPeer(QtToolkit& toolkit, forms::Toolbar& bar);

}  // namespace corvane::toolkit_qt
