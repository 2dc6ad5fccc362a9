// ProjectTree: what is open, as group, project, folders by kind, components. The project to be worked on is bold; a
// star marks what was edited.
#pragma once

#include <QTreeWidget>
#include <memory>

#include "environment/environment.h"
#include "environment/project.h"

namespace corvane::desk {

class ProjectTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ProjectTree(environment::Environment& environment, QWidget* parent = nullptr);
  void FillAgain();
  // Stars and names only.
  void ShowState();
  void ShowSelected(const environment::Module& module);
  std::shared_ptr<environment::Module> Current() const;  // Nothing on a folder or a project

 signals:
  void CodeWanted(std::shared_ptr<environment::Module> module);
  void DesignerWanted(std::shared_ptr<environment::Module> module);
  void ProjectWanted(const std::shared_ptr<environment::Project>& project);  // to be the active one
  void SaveWanted(std::shared_ptr<environment::Module> module);
  void Selected(std::shared_ptr<environment::Module> module);  // Nothing: a folder or a project
  void Told(const QString& message);

 private:
  void AddProject(const std::shared_ptr<environment::Project>& project, QTreeWidgetItem* parent);
  void OpenItem(QTreeWidgetItem* item);
  void OpenMenu(const QPoint& at);
  std::shared_ptr<environment::Module> ModuleOf(const QTreeWidgetItem* item) const;
  std::shared_ptr<environment::Project> ProjectOf(const QTreeWidgetItem* item) const;
  std::shared_ptr<environment::Project> ProjectAround(const QTreeWidgetItem* item) const;

  environment::Environment& environment_;
  std::vector<std::shared_ptr<environment::Module>> modules_;  // by the number an item holds
  std::vector<std::shared_ptr<environment::Project>> projects_;
};

// Whether the component has a window for its controls.
bool HasDesigner(host::VBComponent& component);
// The icon of a component's kind.
QString IconNameOf(host::ComponentType type);

}  // namespace corvane::desk
