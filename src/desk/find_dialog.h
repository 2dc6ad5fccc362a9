// FindDialog: what to look for in the code pane in front.
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace corvane::desk {

class FindDialog : public QDialog {
  Q_OBJECT

 public:
  explicit FindDialog(QWidget* parent = nullptr);
  QString Text() const;
  bool MatchesCase() const;
  bool MatchesWords() const;
  void Ask(const QString& text);  // shows it with this text selected

 signals:
  void FindWanted();

 private:
  QLineEdit* text_;
  QCheckBox *case_, *words_;
};

}  // namespace corvane::desk
