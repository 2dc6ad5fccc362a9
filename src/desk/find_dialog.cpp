#include "desk/find_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace corvane::desk {

FindDialog::FindDialog(QWidget* parent)
    : QDialog(parent),
      text_(new QLineEdit(this)),
      case_(new QCheckBox(tr("Match &case"), this)),
      words_(new QCheckBox(tr("Find &whole word only"), this)) {
  setWindowTitle(tr("Find"));
  auto* label = new QLabel(tr("&Find what:"), this);
  label->setBuddy(text_);
  text_->setMinimumWidth(240);
  auto* buttons = new QDialogButtonBox(Qt::Vertical, this);
  auto* find = buttons->addButton(tr("Find &Next"), QDialogButtonBox::ActionRole);
  buttons->addButton(QDialogButtonBox::Close);
  find->setDefault(true);
  auto* layout = new QGridLayout(this);
  layout->addWidget(label, 0, 0);
  layout->addWidget(text_, 0, 1);
  layout->addWidget(case_, 1, 1);
  layout->addWidget(words_, 2, 1);
  layout->addWidget(buttons, 0, 2, 4, 1);
  layout->setRowStretch(3, 1);
  connect(find, &QPushButton::clicked, this, &FindDialog::FindWanted);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::hide);
}

QString FindDialog::Text() const {
  return text_->text();
}
bool FindDialog::MatchesCase() const {
  return case_->isChecked();
}
bool FindDialog::MatchesWords() const {
  return words_->isChecked();
}

void FindDialog::Ask(const QString& text) {
  if (!text.isEmpty()) text_->setText(text);
  text_->selectAll();
  text_->setFocus();
  show();
  raise();
  activateWindow();
}

}  // namespace corvane::desk
