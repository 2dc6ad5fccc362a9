#include "desk/tour.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <functional>

#include "desk/ansi_text.h"
#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/find_dialog.h"
#include "desk/project_tree.h"
#include "explorer/frm_add_in.h"

namespace corvane::desk {

namespace {

using environment::Module;
using explorer::frmAddIn;

constexpr long kEnoughProcedures = 3;  // of a component that is worth showing

void Settle() {
  for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
}

bool Keep(QWidget* window, const QString& folder, const QString& name, std::ostream& out) {
  Settle();
  const QString path = QDir(folder).absoluteFilePath(name + ".png");
  const bool kept = window && window->grab().save(path);
  out << (kept ? "picture: " : "no picture: ") << path.toStdString() << '\n';
  return kept;
}

// The component with a designer and controls that comes first in the project, else its first component.
std::shared_ptr<Module> ModuleToShow(environment::Environment& environment, bool with_designer) {
  for (const auto& project : environment.Projects())
    for (const auto& module : project->Modules())
      if (module->Type() != host::ComponentType::RelatedDocument &&
          (!with_designer || (module->Type() == host::ComponentType::VBForm && HasDesigner(*module))))
        return module;
  return nullptr;
}

// Fixed rows ("Project Globals", "Declarations") begin with a blank.
bool IsFixed(const std::string& row) {
  return row.starts_with(' ');
}

// Chooses rows until one shows several procedures; false when no component has any.
bool ChooseComponent(frmAddIn& form) {
  long best = -1, most = 0;
  for (long row = 0; row < form.lbxComp->ListCount() && most < kEnoughProcedures; ++row) {
    if (IsFixed(form.lbxComp->List(row))) continue;
    form.lbxComp->UserSelect(row);
    const long procedures = form.lbxProc->ListCount();
    if (procedures > most) best = row, most = procedures;
  }
  if (best >= 0 && form.lbxComp->ListIndex() != best) form.lbxComp->UserSelect(best);
  return best >= 0;
}

// The procedure with the most code.
bool ChooseProcedure(frmAddIn& form) {
  long best = -1, most = 0;
  for (long row = 0; row < form.lbxProc->ListCount(); ++row) {
    if (IsFixed(form.lbxProc->List(row))) continue;
    form.lbxProc->UserSelect(row);
    if (form.txtCode.ListCount() > most) best = row, most = form.txtCode.ListCount();
  }
  if (best >= 0) form.lbxProc->UserSelect(best);
  return best >= 0;
}

frmAddIn* OpenExplorer(Desk& desk, std::ostream& out) {
  if (!desk.ClickButton()) {
    out << "The add-in has no button on the standard toolbar.\n";
    return nullptr;
  }
  Settle();
  return desk.AddIn() ? desk.AddIn()->mfrmAddIn() : nullptr;
}

}  // namespace

bool RunTour(Desk& desk, const QString& folder, std::ostream& out) {
  if (!QDir().mkpath(folder)) return out << "cannot make the folder " << folder.toStdString() << '\n', false;
  frmAddIn* form = OpenExplorer(desk, out);
  if (!form) return false;
  if (!ChooseComponent(*form) || !ChooseProcedure(*form)) {
    out << "The project has no procedures to show.\n";
    return Keep(&desk.Window(), folder, "desk", out) && Keep(desk.ExplorerWindow(), folder, "explorer", out);
  }
  out << "component: " << ToLabel(form->lbxComp->Text()).simplified().toStdString() << '\n'
      << "procedure: " << ToLabel(form->lbxProc->Text()).simplified().section(" +|", 0, 0).toStdString() << '\n';
  form->lbxProc->UserDblClick();
  Settle();
  return Keep(&desk.Window(), folder, "desk", out) && Keep(desk.ExplorerWindow(), folder, "explorer", out);
}

bool TakeScreenshots(Desk& desk, const QString& folder, const QString& suffix, std::ostream& out) {
  if (!QDir().mkpath(folder)) return out << "cannot make the folder " << folder.toStdString() << '\n', false;
  bool all = true;
  const auto keep = [&](QWidget* window, const char* name) { all &= Keep(window, folder, name + suffix, out); };
  MainWindow& window = desk.Window();
  if (const auto module = ModuleToShow(desk.EnvironmentOf(), true)) {
    DesignerWindow* designer = window.OpenDesigner(module);
    if (designer && !designer->Canvas().LayoutOf().FrontToBack(-1).empty())
      designer->Canvas().Select({designer->Canvas().LayoutOf().FrontToBack(-1).front()});
    keep(&window, "desk-designer");
  }
  if (const auto module = ModuleToShow(desk.EnvironmentOf(), false)) {
    window.OpenCode(module);
    keep(&window, "desk-code");
  }
  if (frmAddIn* form = OpenExplorer(desk, out)) {
    if (ChooseComponent(*form)) ChooseProcedure(*form);
    keep(desk.ExplorerWindow(), "explorer");
    form->cmdMore.UserClick();
    keep(desk.ExplorerWindow(), "explorer-code");
    form->cmdMore.UserClick();
  } else {
    all = false;
  }
  AddInManager manager(desk.State(), &window);
  manager.show();
  keep(&manager, "add-in-manager");
  FindDialog find(&window);
  find.Ask("Total");
  keep(&find, "find");
  return all;
}

}  // namespace corvane::desk
