// PropertyList: name and value of each property of what is selected in a designer, or of the component itself. Texts,
// numbers, colours and True/False can be edited.
#pragma once

#include <QTableWidget>

#include "host/designer.h"

class QLabel;

namespace corvane::desk {

class PropertyList : public QWidget {
  Q_OBJECT

 public:
  explicit PropertyList(QWidget* parent = nullptr);
  // Nothing empties the list. [title] is "cmdSave  CommandButton".
  void Show(const QString& title, host::Ref<host::Properties> properties);
  QString Title() const;
  // Takes what is being typed, as Enter does.
  void TakeTyped();
  // The values anew, when a property was changed elsewhere.
  void ReadAgain();
  QTableWidget& Table() { return *table_; }

  // A value as the list shows it, and whether it can be typed.
  static QString Shown(const std::string& name, const runtime::Variant& value);
  static bool IsEditable(const runtime::Variant& value);
  // What [typed] is, as a value of the kind that [old] is. Throws Error 13 for what is none.
  static runtime::Variant Typed(const std::string& name, const QString& typed, const runtime::Variant& old);

 signals:
  void Told(const QString& message);

 private:
  QWidget* Typing() const;  // the field that is typed in; null: none is
  void Fill();
  void FitNames();
  void TakeEdit(QTableWidgetItem* item);
  QLabel* title_;
  QTableWidget* table_;
  host::Ref<host::Properties> properties_;
  bool filling_ = false, taking_ = false;
};

}  // namespace corvane::desk
