// AddInManager: the dialog in which the user loads and unloads the add-in, and says whether it loads at startup.
#pragma once

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;

namespace corvane::desk {

struct AddInState {
  bool loaded = false, at_startup = true;
  bool operator==(const AddInState&) const = default;
};

class AddInManager : public QDialog {
  Q_OBJECT

 public:
  explicit AddInManager(const AddInState& state, QWidget* parent = nullptr);
  AddInState State() const;  // as it is chosen now

 private:
  QCheckBox *loaded_, *at_startup_;
};

}  // namespace corvane::desk
