#include "desk/property_list.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "desk/ansi_text.h"
#include "desk/user_act.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

constexpr int kRowHeight = 20, kNameColumn = 118, kCellMargin = 4;  // logical pixels

bool IsColor(const std::string& name) {
  return name.size() >= 5 && name.ends_with("Color");
}

QString ColorText(const runtime::Variant& value) {
  const auto color = static_cast<uint32_t>(static_cast<int64_t>(runtime::ToNumber(value)));
  return QString("&H%1&").arg(color, 8, 16, QChar('0')).toUpper();
}

struct Row {
  std::string name;
  QString shown;
  bool editable = false;
};

Row ReadRow(host::Property& property) {
  Row row;
  if (!host::PassOverErrors([&] { row.name = property.Name(); })) return {"Error", {}, false};
  const bool read = host::PassOverErrors([&] {
    if (property.NumIndices() > 0) {
      row.shown = "(List)";
      return;
    }
    const runtime::Variant value = property.Value();
    row.shown = PropertyList::Shown(row.name, value);
    row.editable = PropertyList::IsEditable(value);
  });
  if (!read) row.shown = "(unreadable)";
  return row;
}

}  // namespace

PropertyList::PropertyList(QWidget* parent)
    : QWidget(parent), title_(new QLabel(this)), table_(new QTableWidget(0, 2, this)) {
  title_->setContentsMargins(6, 4, 6, 4);
  title_->setTextFormat(Qt::PlainText);
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  table_->horizontalHeader()->hide();
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(kRowHeight);
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->setColumnWidth(0, kNameColumn);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::AllEditTriggers);
  table_->setFrameShape(QFrame::NoFrame);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(title_);
  layout->addWidget(table_, 1);
  ConnectAct(table_, &QTableWidget::itemChanged, this, &PropertyList::TakeEdit);
}

QWidget* PropertyList::Typing() const {
  QWidget* focus = QApplication::focusWidget();
  return focus && table_->viewport()->isAncestorOf(focus) ? focus : nullptr;
}

void PropertyList::TakeTyped() {
  if (QWidget* field = Typing(); field && !taking_) emit table_->itemDelegate()->commitData(field);
}

// What is being typed belongs to what was shown.
void PropertyList::Show(const QString& title, host::Ref<host::Properties> properties) {
  if (properties != properties_ && !taking_) {
    TakeTyped();
    if (QWidget* field = Typing()) emit table_->itemDelegate()->closeEditor(field);
  }
  title_->setText(title);
  properties_ = std::move(properties);
  Fill();
}

QString PropertyList::Title() const {
  return title_->text();
}

void PropertyList::ReadAgain() {
  Fill();
}

void PropertyList::Fill() {
  const QScopedValueRollback<bool> filling(filling_, true);
  std::vector<Row> rows;
  if (properties_)
    host::PassOverErrors([&] {
      for (const auto& property : host::Each(*properties_)) rows.push_back(ReadRow(*property));
    });
  table_->setRowCount(static_cast<int>(rows.size()));
  for (int at = 0; at < table_->rowCount(); ++at) {
    auto* name = new QTableWidgetItem(ToLabel(rows[at].name));
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    auto* value = new QTableWidgetItem(rows[at].shown);
    if (!rows[at].editable) value->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    value->setToolTip(rows[at].shown);
    table_->setItem(at, 0, name);
    table_->setItem(at, 1, value);
  }
  FitNames();
}

// Wide enough for the longest name, as long as the values keep a third.
void PropertyList::FitNames() {
  int width = kNameColumn;
  for (int at = 0; at < table_->rowCount(); ++at)
    width = std::max(width, fontMetrics().horizontalAdvance(table_->item(at, 0)->text()) + 2 * kCellMargin);
  table_->setColumnWidth(0, std::min(width, std::max(kNameColumn, table_->viewport()->width() * 2 / 3)));
}

void PropertyList::TakeEdit(QTableWidgetItem* item) {
  if (filling_ || item->column() != 1 || !properties_) return;
  const QScopedValueRollback<bool> taking(taking_, true);
  const std::string name = FromLabel(table_->item(item->row(), 0)->text());
  UserAct(
      [&] {
        const auto property = properties_->Item(name);
        property->SetValue(Typed(name, item->text(), property->Value()));
      },
      [&](const QString& why) { emit Told(tr("%1 was not set: %2").arg(ToLabel(name), why)); });
  Fill();
}

QString PropertyList::Shown(const std::string& name, const runtime::Variant& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
  if (const auto* picture = std::get_if<runtime::PictureRef>(&value)) return *picture ? "(Picture)" : "(None)";
  if (const auto* object = std::get_if<std::shared_ptr<runtime::Object>>(&value)) {
    const auto font = std::dynamic_pointer_cast<host::Properties>(*object);
    std::string font_name;
    if (font) host::PassOverErrors([&] { font_name = runtime::ToText(font->Item(std::string("Name"))->Value()); });
    return font_name.empty() ? "(Object)" : ToLabel(font_name);
  }
  if (std::holds_alternative<std::monostate>(value)) return {};
  if (IsColor(name) && !std::holds_alternative<std::string>(value)) return ColorText(value);
  return ToShown(runtime::ToText(value));
}

bool PropertyList::IsEditable(const runtime::Variant& value) {
  return std::holds_alternative<bool>(value) || std::holds_alternative<long>(value) ||
         std::holds_alternative<double>(value) || std::holds_alternative<std::string>(value);
}

runtime::Variant PropertyList::Typed(const std::string& name, const QString& typed, const runtime::Variant& old) {
  const auto bytes = ToBytes(typed);
  if (!bytes)
    throw host::Error(runtime::kInvalidPropertyValue, "the text has a character that the code page does not hold");
  if (std::holds_alternative<std::string>(old)) return *bytes;
  if (std::holds_alternative<bool>(old)) return runtime::ToBoolean(*bytes);
  if (IsColor(name) && typed.startsWith("&H", Qt::CaseInsensitive)) {
    bool is_hex = false;
    QString digits = typed.mid(2);
    if (digits.endsWith('&')) digits.chop(1);
    const uint color = digits.toUInt(&is_hex, 16);
    if (!is_hex) throw host::Error(runtime::kTypeMismatch);
    return static_cast<long>(static_cast<int32_t>(color));
  }
  if (std::holds_alternative<long>(old)) return runtime::ToLong(*bytes);
  return runtime::ToNumber(*bytes);
}

}  // namespace corvane::desk
