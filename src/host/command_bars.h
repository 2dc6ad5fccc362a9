// The environment's command bars (Office 8), and the events of their controls.
#pragma once

#include "host/base.h"

namespace corvane::host {

enum class ControlType : long { Button = 1, Edit = 2, DropDown = 3, ComboBox = 4, Popup = 10 };
enum class ButtonStyle : long { Automatic = 0, Icon = 1, Caption = 2, IconAndCaption = 3 };

class CommandBarControl {
 public:
  virtual ~CommandBarControl() = default;
  virtual std::string Caption() = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual void SetState(long state) = 0;
  virtual void SetStyle(ButtonStyle style) = 0;
  // Takes the picture on the clipboard as the button's face.
  virtual void PasteFace() = 0;
  virtual void Delete() = 0;
};

class CommandBarControls : public Collection<CommandBarControl> {
 public:
  // [before] is the position of the control in front of which the new one stands; 0 leaves it out: at the end.
  virtual Ref<CommandBarControl> Add(ControlType type, long before = 0) = 0;
};

class CommandBar {
 public:
  virtual ~CommandBar() = default;
  virtual std::string Name() = 0;
  virtual Ref<CommandBarControls> Controls() = 0;
};

// A missing bar is Error 5.
class CommandBars : public Collection<CommandBar> {};

// [handled] and [cancel_default] are passed back to the environment.
using ClickHandler = std::function<void(const Ref<CommandBarControl>& control, bool& handled, bool& cancel_default)>;

class CommandBarEvents {
 public:
  virtual ~CommandBarEvents() = default;
  virtual std::unique_ptr<Subscription> OnClick(ClickHandler handler) = 0;
};

class VBBuildEvents {
 public:
  virtual ~VBBuildEvents() = default;
  virtual std::unique_ptr<Subscription> OnEnterRunMode(std::function<void()> handler) = 0;
};

class Events {
 public:
  virtual ~Events() = default;
  // An empty control is Error 91.
  virtual Ref<host::CommandBarEvents> CommandBarEvents(const Ref<CommandBarControl>& control) = 0;
  // Error 438 where the environment does not offer it.
  virtual Ref<host::VBBuildEvents> VBBuildEvents() = 0;
};

}  // namespace corvane::host
