// DesignerState: what the objects of one designer share: its part, read at the first need, and its binary siblings.
// For the designer's own files.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "environment/control_classes.h"
#include "environment/designer_form.h"
#include "environment/designer_lines.h"
#include "environment/designer_part.h"

namespace corvane::environment {

// In place of the index where a control is meant by its name alone.
inline constexpr long kNoElement = -1;

class DesignerState : public std::enable_shared_from_this<DesignerState> {
 public:
  DesignerState(host::ComponentType kind, std::string text, DesignerOwner& owner)
      : kind_(kind), text_(std::move(text)), owner_(&owner) {}

  host::ComponentType Kind() const { return kind_; }
  DesignerOwner& Owner() const;  // Error 91 after Detach()
  void Detach() { owner_ = nullptr; }

  DesignerPart& Part();
  DesignerBlockRef Root() { return Part().RootRef(); }
  std::string Write() const;
  const std::vector<DesignerProblem>& Problems();

  // All controls, nested ones too, in file order.
  const std::vector<DesignerBlockRef>& Controls();
  // By its name, or the element [index] of a control array; the first in file order, null if there is none.
  DesignerBlockRef ControlOf(const std::string& name, long index);
  // Whether [block] still stands in the tree.
  bool Holds(const DesignerBlock& block);

  // Before an edit: Error 75 with the first reason where the part was not understood.
  void RequireEditable();
  // After an edit of lines; tells the owner.
  void Edited();
  // After an edit of which controls there are, or of what they are called.
  void ControlsChanged() { controls_valid_ = names_valid_ = false; }
  bool IsDirty() const { return dirty_; }
  void SetClean();

  // The bytes of a sibling that a reference names. Throws as DesignerOwner::ReadSibling; the same each time.
  const std::string& SiblingBytes(const std::string& name);
  // Puts [record] into the binary sibling and returns the reference to it. [replaced] is the property's reference
  // before: a record that this session added at the end makes room, one that is there
  // already is used again, everything else stays where it is.
  SiblingReference AppendRecord(const std::string& record, bool is_text, const SiblingReference* replaced);
  std::vector<DesignerSibling> Siblings();
  void MoveSibling(const std::string& new_name);

  std::vector<std::weak_ptr<DesignerBlock>> selected;

 private:
  struct Sibling {
    std::string name, bytes;
    size_t saved_size = 0;   // what is on the disk
    size_t last_offset = 0;  // of the record that was added last
    bool moved = false;      // never written under this name
    long error = 0;
  };
  Sibling& Load(const std::string& name);
  std::string SiblingForAppending();
  void CheckReference(const DesignerItem& item, long line);
  long CheckReferences(const DesignerBlock& block, long line);

  host::ComponentType kind_;
  std::string text_;
  DesignerOwner* owner_;
  std::unique_ptr<DesignerPart> part_;
  std::vector<DesignerBlockRef> controls_;
  std::map<std::pair<std::string, long>, DesignerBlockRef> controls_by_name_;  // upper-cased, kNoElement or the index
  bool controls_valid_ = false, names_valid_ = false, dirty_ = false, edited_ = false, checked_ = false;
  std::vector<DesignerProblem> problems_;
  std::map<std::string, Sibling> siblings_;  // by upper-cased name
};

// Calls [act] with each property line of [block] and of the blocks in it.
template <class Act>
void ForEachProperty(DesignerBlock& block, Act act) {
  for (DesignerItem& item : block.items) {
    if (item.kind == DesignerItem::Property) act(item);
    if (item.kind == DesignerItem::Block) ForEachProperty(*item.block, act);
  }
}

}  // namespace corvane::environment
