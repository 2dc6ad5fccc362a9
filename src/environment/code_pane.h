// Pane: the code window of one module: what is selected in it, whether it is open. PaneList: the open ones, and which
// of them is active.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "environment/windows.h"
#include "host/code_module.h"
#include "host/vbe.h"

namespace corvane::environment {

class Pane;

// What a pane needs of its module.
class PaneOwner {
 public:
  virtual ~PaneOwner() = default;
  virtual host::Ref<host::CodeModule> PaneModule() = 0;
  virtual std::string PaneCaption() = 0;  // "Stock - Form1 (Code)"
  virtual long PaneLines() = 0;           // visible lines of the module
  virtual long PaneLineLength(long line) = 0;
  virtual void PaneWasShown() = 0;  // opened or brought to the front
  virtual void PaneWasClosed() = 0;
  virtual void PaneSelectionSet() = 0;  // by code
};

class PaneList : public host::CodePanes {
 public:
  long Count() override { return static_cast<long>(panes_.size()); }
  host::Ref<host::CodePane> Item(const host::Index& index) override;  // by name: the module's
  host::Ref<host::CodePane> Active();                                 // Nothing when no pane is open

 private:
  friend class Pane;
  std::vector<std::shared_ptr<Pane>> panes_;   // in the order in which they were opened
  std::vector<std::weak_ptr<Pane>> activity_;  // the active one last
};

// Selections are clipped to the text: a line beyond the end is the place behind the last character of the last line, a
// column beyond the end of its line the place behind its last character (a line may end a selection as (line + 1, 1)).
// Numbers below 1 are 1; an end before the start is the start.
class Pane : public host::CodePane, public std::enable_shared_from_this<Pane> {
 public:
  // [list] and [windows] live as long as their panes. The pane begins closed; [owner] calls Detach() when it ends.
  static std::shared_ptr<Pane> Create(PaneList& list, WindowList& windows, PaneOwner& owner);
  ~Pane() override;
  void Detach();

  bool IsOpen() const { return open_; }
  // Code asked for the pane: opens it behind the active one, without telling the owner that it was shown.
  void OpenOnDemand();
  void Close();     // by code or by the user
  void Activate();  // by the user: opens it and brings it to the front, no notice
  // The user's selection: clipped as any other, no notice.
  void UserSelect(const host::Selection& selection);
  // The module's lines changed: keeps the selection on the text it stood on.
  void LinesChanged(long start, long removed, long inserted);
  host::Selection Current();

  host::Ref<host::CodeModule> CodeModule() override;
  host::Ref<host::Window> Window() override;
  host::Selection GetSelection() override;
  void SetSelection(const host::Selection& selection) override;
  void Show() override;

 private:
  Pane(PaneList& list, WindowList& windows, PaneOwner& owner) : list_(&list), windows_(&windows), owner_(&owner) {}
  PaneOwner& Owner() const;  // Error 91 after Detach()
  host::Selection Clipped(host::Selection selection);
  void MoveToFront();

  PaneList* list_;
  WindowList* windows_;
  PaneOwner* owner_;
  std::shared_ptr<ActWindow> window_;
  bool open_ = false;
  host::Selection selection_;
};

}  // namespace corvane::environment
