// The contract suite on the toolkit without a display.
#include "forms/headless_toolkit.h"
#include "forms/user.h"
#include "tests/forms/forms_contract.h"

namespace corvane::forms {
namespace {

class HeadlessDriver : public ContractDriver {
 public:
  forms::Toolkit& Toolkit() override { return toolkit_; }
  void Settle() override { toolkit_.DoEvents(); }

  void Click(Control& control, Twips x, Twips y, int button) override { Hand(control).ClickAt(control, x, y, button); }
  void DblClick(Control& control, Twips x, Twips y) override { Hand(control).DblClickAt(control, x, y); }
  void MoveOver(Control& control, Twips x, Twips y) override { Hand(control).MoveOver(control, x, y); }
  void Press(Form& form, int key_code, int shift) override { User(form).Press(key_code, shift); }
  void Type(Form& form, const std::string& text) override { User(form).Type(text); }
  void ChooseRow(ListControl& list, long row) override { Hand(list).Choose(list, row); }
  void Scroll(ScrollBar& bar, long value) override { Hand(bar).Scroll(bar, value); }
  void DragThumb(ScrollBar& bar, const std::vector<long>& places) override {
    for (long place : places) toolkit_.Guard([&] { bar.UserScroll(place, true); });
    toolkit_.Guard([&] { bar.UserScroll(places.back(), false); });
  }
  void ChooseMenu(Form& form, const std::vector<std::string>& captions) override {
    User(form).Menu(captions.at(0), captions.at(1));
  }
  void ClickToolButton(Toolbar& bar, int position) override { Hand(bar).ClickButton(bar, position); }
  void ChooseToolMenu(Toolbar& bar, int position, int entry) override {
    Hand(bar).ChooseButtonMenu(bar, position, entry);
  }
  void Close(Form& form) override { User(form).Close(); }
  void InModal(Form& form, std::function<void()> act) override {
    toolkit_.OnModal(form.Name(), [act = std::move(act)](Form&) { act(); });
  }
  void OnPopup(const std::string& caption) override { toolkit_.OnPopup(caption); }
  void Wait(int milliseconds) override { toolkit_.Advance(milliseconds); }
  bool OpensMenusByKey() override { return false; }

 private:
  static User Hand(Control& control) { return User(control.FormOf()); }
  HeadlessToolkit toolkit_;
};

INSTANTIATE_TEST_SUITE_P(Headless, FormsContract,
                         testing::Values(DriverFactory([] { return std::make_unique<HeadlessDriver>(); })));

}  // namespace
}  // namespace corvane::forms
