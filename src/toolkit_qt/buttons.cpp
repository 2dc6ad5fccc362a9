// CommandButton, CheckBox, OptionButton.
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/pictures.h"
#include "toolkit_qt/texts.h"

namespace corvane::toolkit_qt {
namespace {

// The whole of the control takes the click, not its mark and text alone.
template <class Shown>
class WholeButton : public Shown {
 public:
  using Shown::Shown;

 protected:
  bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }
};

// Qt's button turns itself; what it shows afterwards is what the control says.
class ButtonPeer : public ControlPeer {
 public:
  ButtonPeer(QtToolkit& toolkit, forms::Button& button, QAbstractButton* shown)
      : ControlPeer(toolkit, button), button_(button), shown_(shown) {
    SetWidget(shown, Input::Mouse::ReleasesLast);
    QObject::connect(shown, &QAbstractButton::clicked, input_.get(),
                     [this] { ReportThenShow(forms::Property::Value, [this] { button_.UserClick(); }); });
  }

 protected:
  void ShowOwn(forms::Property property) override {
    const QSignalBlocker quiet(shown_);
    if (property == forms::Property::All || property == forms::Property::Caption) {
      shown_->setText(ShownText(button_.Caption()));
      shown_->setShortcut({});
    }
    if (property == forms::Property::All || property == forms::Property::Picture ||
        property == forms::Property::Style) {
      ShowPicture();
    }
    ShowValue();
  }
  virtual void ShowValue() {}

 private:
  void ShowPicture() {
    const bool pictured = button_.Style() == 1 && button_.Picture();
    shown_->setIcon(pictured ? IconOf(button_.Picture()) : QIcon());
    if (pictured) shown_->setIconSize(SizeOf(button_.Picture()));
  }
  forms::Button& button_;
  QAbstractButton* shown_;
};

class CommandButtonPeer : public ButtonPeer {
 public:
  CommandButtonPeer(QtToolkit& toolkit, forms::CommandButton& button)
      : CommandButtonPeer(toolkit, button, new QPushButton(InsideOf(button.ContainerOf()))) {}

 protected:
  void ShowValue() override { shown_->setDefault(button_.Default()); }
  // A push button has the look of the system unless it is a graphical one.
  void ShowColors() override {
    if (button_.Style() == 1) ControlPeer::ShowColors();
  }

 private:
  CommandButtonPeer(QtToolkit& toolkit, forms::CommandButton& button, QPushButton* shown)
      : ButtonPeer(toolkit, button, shown), button_(button), shown_(shown) {
    shown->setAutoDefault(false);
  }
  forms::CommandButton& button_;
  QPushButton* shown_;
};

class CheckBoxPeer : public ButtonPeer {
 public:
  CheckBoxPeer(QtToolkit& toolkit, forms::CheckBox& box)
      : CheckBoxPeer(toolkit, box, new WholeButton<QCheckBox>(InsideOf(box.ContainerOf()))) {}

 protected:
  void ShowValue() override {
    constexpr Qt::CheckState kStates[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    shown_->setTristate(box_.Value() == forms::vbGrayed);
    shown_->setCheckState(kStates[box_.Value()]);
  }

 private:
  CheckBoxPeer(QtToolkit& toolkit, forms::CheckBox& box, QCheckBox* shown)
      : ButtonPeer(toolkit, box, shown), box_(box), shown_(shown) {
    shown->setAutoFillBackground(true);
  }
  forms::CheckBox& box_;
  QCheckBox* shown_;
};

class OptionButtonPeer : public ButtonPeer {
 public:
  OptionButtonPeer(QtToolkit& toolkit, forms::OptionButton& option)
      : OptionButtonPeer(toolkit, option, new WholeButton<QRadioButton>(InsideOf(option.ContainerOf()))) {}

 protected:
  void ShowValue() override { shown_->setChecked(option_.Value()); }

 private:
  OptionButtonPeer(QtToolkit& toolkit, forms::OptionButton& option, QRadioButton* shown)
      : ButtonPeer(toolkit, option, shown), option_(option), shown_(shown) {
    shown->setAutoExclusive(false);
    shown->setAutoFillBackground(true);
  }
  forms::OptionButton& option_;
  QRadioButton* shown_;
};

}  // namespace

NewPeer NewCommandButtonPeer(QtToolkit& toolkit, forms::CommandButton& button) {
  return std::make_unique<CommandButtonPeer>(toolkit, button);
}

NewPeer NewCheckBoxPeer(QtToolkit& toolkit, forms::CheckBox& box) {
  return std::make_unique<CheckBoxPeer>(toolkit, box);
}

NewPeer NewOptionButtonPeer(QtToolkit& toolkit, forms::OptionButton& option) {
  return std::make_unique<OptionButtonPeer>(toolkit, option);
}

}  // namespace corvane::toolkit_qt
