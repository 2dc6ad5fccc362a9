#include "environment/designer_form.h"

#include "environment/designer_controls.h"
#include "environment/designer_state.h"
#include "environment/designer_tree.h"
#include "environment/properties.h"
#include "runtime/strings.h"

namespace corvane::environment {

namespace {

bool HasDesigner(host::ComponentType kind) {
  return kind != host::ComponentType::StdModule && kind != host::ComponentType::ClassModule &&
         kind != host::ComponentType::RelatedDocument;
}

std::string Lines(std::initializer_list<std::string> lines) {
  std::string text;
  for (const std::string& line : lines) text += line + runtime::kCrLf;
  return text;
}

std::string NewClassHead() {
  return Lines({"VERSION 1.0 CLASS", "BEGIN", "  MultiUse = -1  'True", "  Persistable = 0  'NotPersistable",
                "  DataBindingBehavior = 0  'vbNone", "  DataSourceBehavior  = 0  'vbNone",
                "  MTSTransactionMode  = 0  'NotAnMTSObject", "END"});
}

std::string Property(const std::string& name, const std::string& value) {
  return PropertyLine(1, name, value, {});
}

std::string NewWindow(const std::string& type, const std::string& name, const std::string& width,
                      const std::string& height) {
  return Lines({"VERSION 5.00", "Begin " + type + " " + name + " ", Property("ClientHeight", height),
                Property("ClientLeft", "0"), Property("ClientTop", "0"), Property("ClientWidth", width),
                Property("ScaleHeight", height), Property("ScaleWidth", width), "End"});
}

std::string NewForm(const std::string& name) {
  return Lines({"VERSION 5.00", "Begin VB.Form " + name + " ", Property("Caption", Quoted(name)),
                Property("ClientHeight", "3195"), Property("ClientLeft", "60"), Property("ClientTop", "345"),
                Property("ClientWidth", "4680"), Property("LinkTopic", Quoted(name)), Property("ScaleHeight", "3195"),
                Property("ScaleWidth", "4680"), Property("StartUpPosition", "3  'Windows Default"), "End"});
}

std::string NewMdiForm(const std::string& name) {
  return Lines({"VERSION 5.00", "Begin VB.MDIForm " + name + " ", Property("BackColor", "&H8000000C&"),
                Property("Caption", Quoted(name)), Property("ClientHeight", "3195"), Property("ClientLeft", "60"),
                Property("ClientTop", "345"), Property("ClientWidth", "4680"), Property("LinkTopic", Quoted(name)),
                Property("StartUpPosition", "3  'Windows Default"), "End"});
}

std::string NewPage(const std::string& name) {
  return Lines({"VERSION 5.00", "Begin VB.PropertyPage " + name + " ", Property("Caption", Quoted(name)),
                Property("ClientHeight", "3600"), Property("ClientLeft", "0"), Property("ClientTop", "0"),
                Property("ClientWidth", "4800"), Property("PaletteMode", "0  'Halftone"),
                Property("ScaleHeight", "3600"), Property("ScaleWidth", "4800"), "End"});
}

}  // namespace

Designer::Designer(host::ComponentType kind, std::string text, DesignerOwner& owner)
    : state_(std::make_shared<DesignerState>(kind, std::move(text), owner)) {}

Designer::~Designer() {
  Detach();
}

void Designer::Detach() {
  state_->Detach();
}

host::Ref<host::VBForm> Designer::Form() {
  return HasDesigner(state_->Kind()) ? corvane::environment::NewForm(state_) : nullptr;
}

host::Ref<host::Properties> Designer::Properties() {
  const bool has_part =
      state_->Kind() != host::ComponentType::StdModule && state_->Kind() != host::ComponentType::RelatedDocument;
  return NewPropertyList(state_, has_part ? state_->Root() : nullptr);
}

const std::vector<DesignerProblem>& Designer::Problems() {
  return state_->Problems();
}

std::string Designer::Write() const {
  return state_->Write();
}

bool Designer::IsDirty() const {
  return state_->IsDirty();
}

void Designer::SetClean() {
  state_->SetClean();
}

std::vector<DesignerSibling> Designer::Siblings() {
  return state_->Siblings();
}

void Designer::MoveSibling(const std::string& new_name) {
  state_->MoveSibling(new_name);
}

void Designer::SetRootName(const std::string& name) {
  const DesignerBlockRef root = state_->Root();
  if (!root || root->name.empty() || root->name == name) return;
  state_->RequireEditable();
  state_->Part().SetBegin(*root, root->type, name);
  state_->Edited();
}

void Designer::Select(const std::vector<long>& positions) {
  const auto& controls = state_->Controls();
  state_->selected.clear();
  for (const long position : positions)
    if (position >= 1 && position <= static_cast<long>(controls.size()))
      state_->selected.push_back(controls[static_cast<size_t>(position) - 1]);
}

std::string NewDesignerText(host::ComponentType kind, const std::string& name) {
  switch (kind) {
    case host::ComponentType::ClassModule:
      return NewClassHead();
    case host::ComponentType::VBForm:
      return NewForm(name);
    case host::ComponentType::VBMDIForm:
      return NewMdiForm(name);
    case host::ComponentType::PropPage:
      return NewPage(name);
    case host::ComponentType::UserControl:
      return NewWindow("VB.UserControl", name, "4800", "3600");
    case host::ComponentType::DocObject:
      return NewWindow("VB.UserDocument", name, "4800", "3600");
    default:
      return {};
  }
}

}  // namespace corvane::environment
