// CodePane: the window in which the user reads and edits one module. It shows the module's lines, takes the user's
// edits to it line by line, and follows what the add-in does to them.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>
#include <vector>

#include "desk/code_editor.h"
#include "desk/procedures.h"
#include "environment/module.h"

class QComboBox;

namespace corvane::desk {

class CodePane : public QWidget {
  Q_OBJECT

 public:
  explicit CodePane(std::shared_ptr<environment::Module> module, QWidget* parent = nullptr);

  const std::shared_ptr<environment::Module>& ModuleOf() const { return module_; }
  CodeEditor& Editor() { return *editor_; }
  // The environment's notices. What comes within one turn of the message loop is one step of the user's Undo, and so is
  // what comes of one act in a window of the add-in, which may let the loop turn: [act] is its number, 0 outside one.
  void LinesChanged(long start, long removed, long inserted, long act = 0);
  void SelectionSet();
  void ControlsChanged();
  // Puts the cursor on the first procedure of an object; of the whole module for an empty name.
  void GoToObject(const std::string& object);
  // Marks what stands at the cursor; selected by an F key or a menu.
  bool FindNext(const QString& text, bool match_case, bool whole_word);

 signals:
  void Activated();
  void Told(const QString& message);  // for the status bar
  void Moved();                       // the cursor
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Load();
  void TakeEdit(int at, int added);
  void ReplaceInModule(long first, long removed, const std::vector<std::string>& lines);
  void LoadAgainLater();
  void TakeEmptiness();
  void TakeSelection();
  void FillObjects();
  void FillProcedures();
  void ShowPlace();
  void GoTo(long line);
  void RefreshLists();

  std::shared_ptr<environment::Module> module_;
  host::Ref<host::CodeModule> code_;
  CodeEditor* editor_;
  QComboBox *objects_, *procedures_;
  QTimer list_timer_;
  std::vector<Procedure> known_;
  long lines_when_empty_ = 1;
  int blocks_ = 1;                // of the document before its last change
  bool following_ = false;        // the document is being changed after the module
  bool leading_ = false;          // the module is being changed after the document
  bool joins_last_step_ = false;  // the next change by code belongs to the step of the one before
  long last_act_ = 0;             // that of the last change by code
  bool filling_ = false;
};

}  // namespace corvane::desk
