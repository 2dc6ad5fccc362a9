#include "desk/project_tree.h"

#include <QMenu>
#include <algorithm>

#include "desk/ansi_text.h"
#include "desk/icons.h"
#include "desk/shown_path.h"
#include "desk/user_act.h"
#include "environment/paths.h"

namespace corvane::desk {

namespace {

using environment::Module;
using environment::Project;
using host::ComponentType;

constexpr int kModule = Qt::UserRole, kProject = Qt::UserRole + 1;

struct Folder {
  const char* title;
  std::vector<ComponentType> types;
};

const std::vector<Folder>& Folders() {
  static const std::vector<Folder> folders = {
      {QT_TRANSLATE_NOOP("Desk", "Forms"), {ComponentType::VBForm, ComponentType::VBMDIForm}},
      {QT_TRANSLATE_NOOP("Desk", "Modules"), {ComponentType::StdModule}},
      {QT_TRANSLATE_NOOP("Desk", "Class Modules"), {ComponentType::ClassModule}},
      {QT_TRANSLATE_NOOP("Desk", "User Controls"), {ComponentType::UserControl}},
      {QT_TRANSLATE_NOOP("Desk", "Property Pages"), {ComponentType::PropPage}},
      {QT_TRANSLATE_NOOP("Desk", "User Documents"), {ComponentType::DocObject}},
      {QT_TRANSLATE_NOOP("Desk", "Designers"), {ComponentType::ActiveXDesigner}},
      {QT_TRANSLATE_NOOP("Desk", "Related Documents"), {ComponentType::RelatedDocument}},
  };
  return folders;
}

// "frmMain (frmMain.frm)", with a star when it was edited.
QString Title(const std::string& name, const std::string& path, bool dirty) {
  const QString file = ShownName(environment::FileNameOf(path));
  QString title = name.empty() ? ShownPath(path) : ToLabel(name);
  if (!file.isEmpty() && file != title) title += " (" + file + ")";
  return dirty ? title + " *" : title;
}

bool NameLess(const std::shared_ptr<Module>& left, const std::shared_ptr<Module>& right) {
  return QString::compare(ToLabel(left->Name()), ToLabel(right->Name()), Qt::CaseInsensitive) < 0;
}

}  // namespace

bool HasDesigner(host::VBComponent& component) {
  bool has = false;
  host::PassOverErrors([&] { has = component.Designer() != nullptr; });
  return has;
}

QString IconNameOf(ComponentType type) {
  switch (type) {
    case ComponentType::StdModule:
      return "module";
    case ComponentType::ClassModule:
      return "class";
    case ComponentType::UserControl:
      return "usercontrol";
    case ComponentType::PropPage:
      return "propertypage";
    case ComponentType::ActiveXDesigner:
      return "designer";
    case ComponentType::DocObject:
    case ComponentType::RelatedDocument:
      return "document";
    default:
      return "form";
  }
}

ProjectTree::ProjectTree(environment::Environment& environment, QWidget* parent)
    : QTreeWidget(parent), environment_(environment) {
  setHeaderHidden(true);
  setFrameShape(NoFrame);
  setExpandsOnDoubleClick(false);
  setUniformRowHeights(true);
  setIndentation(16);
  setContextMenuPolicy(Qt::CustomContextMenu);
  ConnectAct(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item, int) { OpenItem(item); });
  ConnectAct(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item, QTreeWidgetItem*) {
    if (const auto project = ProjectAround(item)) emit ProjectWanted(project);
    emit Selected(ModuleOf(item));
  });
  ConnectAct(this, &QWidget::customContextMenuRequested, this, &ProjectTree::OpenMenu);
  FillAgain();
}

void ProjectTree::FillAgain() {
  const QSignalBlocker quiet(this);
  const auto current = Current();
  clear();
  modules_.clear();
  projects_ = environment_.Projects();
  QTreeWidgetItem* root = invisibleRootItem();
  if (projects_.size() > 1) {
    root = new QTreeWidgetItem(root, {tr("Project Group")});
    root->setIcon(0, NamedIcon("folder"));
  }
  for (const auto& project : projects_) AddProject(project, root);
  expandAll();
  if (current) ShowSelected(*current);
}

void ProjectTree::AddProject(const std::shared_ptr<Project>& project, QTreeWidgetItem* parent) {
  auto* item = new QTreeWidgetItem(parent);
  item->setIcon(0, NamedIcon("project"));
  item->setData(0, kProject,
                static_cast<int>(std::find(projects_.begin(), projects_.end(), project) - projects_.begin()));
  for (const Folder& folder : Folders()) {
    std::vector<std::shared_ptr<Module>> inside;
    for (const auto& module : project->Modules())
      if (std::find(folder.types.begin(), folder.types.end(), module->Type()) != folder.types.end())
        inside.push_back(module);
    if (inside.empty()) continue;
    std::sort(inside.begin(), inside.end(), NameLess);
    auto* group = new QTreeWidgetItem(item, {tr(folder.title)});
    group->setIcon(0, NamedIcon("folder"));
    for (const auto& module : inside) {
      auto* leaf = new QTreeWidgetItem(group);
      leaf->setIcon(0, NamedIcon(IconNameOf(module->Type())));
      leaf->setData(0, kModule, static_cast<int>(modules_.size()));
      modules_.push_back(module);
    }
  }
  ShowState();
}

void ProjectTree::ShowState() {
  const QSignalBlocker quiet(this);
  const auto active = environment_.ActiveVBProject();
  for (QTreeWidgetItemIterator at(this); *at; ++at) {
    if (const auto module = ModuleOf(*at)) {
      (*at)->setText(0, Title(module->Name(), module->Path(), module->IsDirty()));
      (*at)->setToolTip(0, ShownPath(module->Path()));
    } else if (const auto project = ProjectOf(*at)) {
      (*at)->setText(0, Title(project->Name(), project->FileName(), project->IsDirty()));
      (*at)->setToolTip(0, ShownPath(project->FileName()));
      QFont weight = font();
      weight.setBold(active && active->FileName() == project->FileName() && active->Name() == project->Name());
      (*at)->setFont(0, weight);
    }
  }
}

void ProjectTree::ShowSelected(const Module& module) {
  const QSignalBlocker quiet(this);
  for (QTreeWidgetItemIterator at(this); *at; ++at)
    if (ModuleOf(*at).get() == &module) return setCurrentItem(*at);
}

std::shared_ptr<Module> ProjectTree::Current() const {
  return ModuleOf(currentItem());
}

std::shared_ptr<Module> ProjectTree::ModuleOf(const QTreeWidgetItem* item) const {
  const QVariant number = item ? item->data(0, kModule) : QVariant();
  return number.isValid() && number.toUInt() < modules_.size() ? modules_[number.toUInt()] : nullptr;
}

std::shared_ptr<Project> ProjectTree::ProjectOf(const QTreeWidgetItem* item) const {
  const QVariant number = item ? item->data(0, kProject) : QVariant();
  return number.isValid() && number.toUInt() < projects_.size() ? projects_[number.toUInt()] : nullptr;
}

std::shared_ptr<Project> ProjectTree::ProjectAround(const QTreeWidgetItem* item) const {
  while (item && !ProjectOf(item)) item = item->parent();
  return ProjectOf(item);
}

// A form opens as it looks, a module as its code.
void ProjectTree::OpenItem(QTreeWidgetItem* item) {
  if (const auto module = ModuleOf(item)) {
    if (HasDesigner(*module))
      emit DesignerWanted(module);
    else
      emit CodeWanted(module);
  } else if (item) {
    item->setExpanded(!item->isExpanded());
  }
}

void ProjectTree::OpenMenu(const QPoint& at) {
  QTreeWidgetItem* item = itemAt(at);
  QMenu menu(this);
  if (const auto module = ModuleOf(item)) {
    const bool has_code = module->Type() != ComponentType::RelatedDocument;
    menu.addAction(tr("View &Code"), this, [this, module] { emit CodeWanted(module); })->setEnabled(has_code);
    menu.addAction(tr("View O&bject"), this, [this, module] { emit DesignerWanted(module); })
        ->setEnabled(HasDesigner(*module));
    menu.addSeparator();
    menu.addAction(tr("&Save %1").arg(ToLabel(module->Name())), this, [this, module] { emit SaveWanted(module); })
        ->setEnabled(has_code);
  } else if (const auto project = ProjectOf(item)) {
    menu.addAction(tr("&Work on This Project"), this, [this, project] { emit ProjectWanted(project); });
  }
  if (!menu.isEmpty()) menu.exec(viewport()->mapToGlobal(at));
}

}  // namespace corvane::desk
