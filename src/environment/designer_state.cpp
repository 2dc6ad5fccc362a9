#include "environment/designer_state.h"

#include <algorithm>

#include "environment/designer_tree.h"
#include "environment/lookup.h"

namespace corvane::environment {

namespace {

void Collect(const DesignerBlock& block, std::vector<DesignerBlockRef>& controls) {
  for (const DesignerItem& item : block.items) {
    if (item.kind != DesignerItem::Block || item.block->is_property) continue;
    controls.push_back(item.block);
    Collect(*item.block, controls);
  }
}

// Shorter records may stand anywhere by chance.
constexpr size_t kWorthLookingFor = 8;

bool ReferenceOf(const DesignerItem& item, SiblingReference& reference) {
  // Few lines are references: look for the colon before the value is taken apart.
  return item.raw.find(':') != std::string_view::npos && ReadReference(ValueOf(item.raw).text, reference);
}

}  // namespace

DesignerOwner& DesignerState::Owner() const {
  if (!owner_) throw host::Error(runtime::kObjectNotSet);
  return *owner_;
}

DesignerPart& DesignerState::Part() {
  if (!part_) {
    part_ = std::make_unique<DesignerPart>(std::move(text_));
    text_.clear();
  }
  return *part_;
}

std::string DesignerState::Write() const {
  return part_ ? part_->Write() : text_;
}

const std::vector<DesignerBlockRef>& DesignerState::Controls() {
  if (!controls_valid_) {
    controls_.clear();
    if (Part().Root()) Collect(*Part().Root(), controls_);
    controls_valid_ = true;
  }
  return controls_;
}

DesignerBlockRef DesignerState::ControlOf(const std::string& name, long index) {
  if (!names_valid_) {
    controls_by_name_.clear();
    for (const DesignerBlockRef& control : Controls()) {
      const std::string key = runtime::UCase(control->name);
      controls_by_name_.emplace(std::pair(key, kNoElement), control);
      controls_by_name_.emplace(std::pair(key, LongValue(*control, "Index", kNoElement)), control);
    }
    names_valid_ = true;
  }
  const auto found = controls_by_name_.find({runtime::UCase(name), index});
  return found == controls_by_name_.end() ? nullptr : found->second;
}

bool DesignerState::Holds(const DesignerBlock& block) {
  const DesignerBlock* top = &block;
  while (top->parent) top = top->parent;
  return top == Part().Root();
}

void DesignerState::RequireEditable() {
  Owner();
  const DesignerPart& part = Part();
  if (part.IsUnderstood()) return;
  std::string why = "there is none";
  if (!part.Problems().empty())
    why = "line " + std::to_string(part.Problems()[0].line) + ": " + part.Problems()[0].reason;
  throw host::Error(runtime::kPathFileAccessError,
                    "The designer part of " + owner_->ComponentName() + " cannot be changed: " + why);
}

void DesignerState::Edited() {
  dirty_ = edited_ = true;
  if (owner_) owner_->DesignerChanged();
}

void DesignerState::SetClean() {
  dirty_ = false;
  for (auto& [key, sibling] : siblings_) {
    sibling.saved_size = sibling.bytes.size();
    sibling.moved = false;
  }
}

const std::vector<DesignerProblem>& DesignerState::Problems() {
  if (checked_) return problems_;
  problems_ = Part().Problems();
  // Lines are counted as they were read: problems of references are looked for before the first edit only.
  if (Part().Root() && !edited_ && kind_ != host::ComponentType::ClassModule)
    CheckReferences(*Part().Root(), Part().Root()->line);
  std::stable_sort(problems_.begin(), problems_.end(), [](const auto& a, const auto& b) { return a.line < b.line; });
  checked_ = true;
  return problems_;
}

// Returns the line behind the block.
long DesignerState::CheckReferences(const DesignerBlock& block, long line) {
  ++line;
  for (const DesignerItem& item : block.items) {
    if (item.kind == DesignerItem::Block) {
      line = CheckReferences(*item.block, line);
      continue;
    }
    if (item.kind == DesignerItem::Property) CheckReference(item, line);
    ++line;
  }
  return line + 1;
}

void DesignerState::CheckReference(const DesignerItem& item, long line) {
  SiblingReference reference;
  if (!ReferenceOf(item, reference)) return;
  const std::string what = std::string(item.name) + ": ";
  if (!reference.is_quoted) {
    problems_.push_back({line, what + "the name of the file " + reference.file + " is not in quotes"});
    return;
  }
  try {
    if (reference.offset >= SiblingBytes(reference.file).size())
      problems_.push_back({line, what + "beyond the end of " + reference.file});
  } catch (const host::Error& error) {
    problems_.push_back({line, what + reference.file + ": " + error.Description()});
  }
}

DesignerState::Sibling& DesignerState::Load(const std::string& name) {
  const auto [place, is_new] = siblings_.try_emplace(runtime::UCase(name));
  Sibling& sibling = place->second;
  if (is_new) {
    sibling.name = name;
    try {
      sibling.bytes = Owner().ReadSibling(name);
      sibling.saved_size = sibling.bytes.size();
    } catch (const host::Error& error) {
      sibling.error = error.Number();
    }
  }
  return sibling;
}

const std::string& DesignerState::SiblingBytes(const std::string& name) {
  const Sibling& sibling = Load(name);
  if (sibling.error) throw host::Error(sibling.error);
  return sibling.bytes;
}

std::string DesignerState::SiblingForAppending() {
  std::string name;
  ForEachProperty(*Root(), [&](const DesignerItem& item) {
    SiblingReference reference;
    if (name.empty() && ReferenceOf(item, reference) && reference.is_quoted) name = reference.file;
  });
  if (!name.empty()) return name;
  name = Owner().NewSiblingName();
  // Nothing refers to such a file yet: a missing one is made.
  Sibling& sibling = Load(name);
  if (sibling.error == runtime::kFileNotFound || sibling.error == runtime::kPathNotFound) sibling.error = 0;
  return name;
}

SiblingReference DesignerState::AppendRecord(const std::string& record, bool is_text,
                                             const SiblingReference* replaced) {
  const std::string name = SiblingForAppending();
  SiblingBytes(name);  // fails where the references' file is missing
  Sibling& sibling = Load(name);
  // The last record may be taken back as long as it is not on the disk; AppendRecord is the only one to add any.
  const bool is_own = replaced && SameName(replaced->file, name) && replaced->offset >= sibling.saved_size &&
                      replaced->offset == sibling.last_offset;
  if (is_own) sibling.bytes.resize(replaced->offset);
  // What is on the disk stays: a record that is there already (a value that was set back) is used again.
  const size_t there = std::string_view(sibling.bytes).substr(0, sibling.saved_size).find(record);
  if (record.size() >= kWorthLookingFor && there != std::string_view::npos) return {sibling.name, there, is_text, true};
  sibling.last_offset = sibling.bytes.size();
  sibling.bytes += record;
  return {sibling.name, sibling.last_offset, is_text, true};
}

std::vector<DesignerSibling> DesignerState::Siblings() {
  std::vector<DesignerSibling> siblings;
  for (const auto& [key, sibling] : siblings_)
    if (!sibling.error)
      siblings.push_back({sibling.name, sibling.bytes, sibling.moved || sibling.bytes.size() != sibling.saved_size});
  return siblings;
}

void DesignerState::MoveSibling(const std::string& new_name) {
  if (!Part().Root()) return;
  std::map<std::string, std::string> names;  // upper-cased, and as written
  ForEachProperty(*Root(), [&](const DesignerItem& item) {
    SiblingReference reference;
    if (ReferenceOf(item, reference)) names.emplace(runtime::UCase(reference.file), reference.file);
  });
  if (names.empty()) return;
  RequireEditable();
  // Two files cannot become one: their offsets would clash.
  if (names.size() > 1)
    throw host::Error(runtime::kPathFileAccessError, "The designer part refers to more than one file");
  const std::string old_name = names.begin()->second;
  SiblingBytes(old_name);
  if (old_name == new_name) {
    Load(old_name).moved = true;
    return;
  }
  ForEachProperty(*Root(), [&](DesignerItem& item) {
    SiblingReference reference;
    if (!ReferenceOf(item, reference) || !reference.is_quoted) return;
    reference.file = new_name;
    Part().SetRaw(item, WithValue(item.raw, WriteReference(reference)));
  });
  Sibling moved = Load(old_name);
  moved.name = new_name;
  moved.moved = true;
  siblings_.erase(runtime::UCase(old_name));
  siblings_[runtime::UCase(new_name)] = std::move(moved);
  dirty_ = edited_ = true;
}

}  // namespace corvane::environment
