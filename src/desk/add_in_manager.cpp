#include "desk/add_in_manager.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "addin/connect.h"

namespace corvane::desk {

namespace {

constexpr QSize kSize(460, 320);

QString BehaviorOf(const AddInState& state) {
  if (state.at_startup) return state.loaded ? QObject::tr("Startup / Loaded") : QObject::tr("Startup / Unloaded");
  return state.loaded ? QObject::tr("Loaded") : QString();
}

}  // namespace

AddInManager::AddInManager(const AddInState& state, QWidget* parent)
    : QDialog(parent), loaded_(new QCheckBox(tr("&Loaded"))), at_startup_(new QCheckBox(tr("Load on &startup"))) {
  setWindowTitle(tr("Add-In Manager"));
  auto* list = new QTreeWidget;
  list->setHeaderLabels({tr("Available Add-Ins"), tr("Load Behavior")});
  list->setRootIsDecorated(false);
  auto* row = new QTreeWidgetItem(list, {addin::kFriendlyName, BehaviorOf(state)});
  list->setCurrentItem(row);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list->header()->setStretchLastSection(false);
  list->setColumnWidth(1, 150);

  auto* description = new QLabel(QString(addin::kDescription).trimmed());
  description->setWordWrap(true);
  auto* behavior = new QGroupBox(tr("Load Behavior"));
  auto* boxes = new QHBoxLayout(behavior);
  boxes->addWidget(loaded_);
  boxes->addWidget(at_startup_);
  boxes->addStretch(1);
  loaded_->setChecked(state.loaded);
  at_startup_->setChecked(state.at_startup);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list, 1);
  layout->addWidget(new QLabel(tr("Description:")));
  layout->addWidget(description);
  layout->addWidget(behavior);
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  const auto show = [this, row] { row->setText(1, BehaviorOf(State())); };
  connect(loaded_, &QCheckBox::toggled, this, show);
  connect(at_startup_, &QCheckBox::toggled, this, show);
  resize(kSize);
}

AddInState AddInManager::State() const {
  return {loaded_->isChecked(), at_startup_->isChecked()};
}

}  // namespace corvane::desk
