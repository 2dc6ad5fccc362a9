#include "desk/tour.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QTimer>
#include <utility>

#include "desk/ansi_text.h"
#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/find_dialog.h"
#include "desk/project_tree.h"
#include "explorer/frm_about.h"
#include "explorer/frm_add_in.h"
#include "explorer/rows.h"
#include "workshop/frm_result.h"

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

bool KeepAbout(Desk& desk, const QString& folder, const QString& suffix, std::ostream& out) {
  explorer::frmAbout about(desk.ServicesOf(), desk.Toolkit());
  about.Show();
  bool kept = Keep(desk.Toolkit().WindowOf(about), folder, "about" + suffix, out);
  about.cmdSysInfo.UserClick();
  kept &= Keep(desk.Toolkit().WindowOf(about), folder, "about-read-me" + suffix, out);
  about.Unload();
  return kept;
}

// The window in which the comment of a procedure is edited, as the explorer opens it.
bool KeepComment(Desk& desk, const QString& folder, const QString& suffix, std::ostream& out) {
  workshop::frmResult result(desk.Toolkit());
  bool kept = false;
  QTimer::singleShot(0, [&] {
    kept = Keep(desk.Toolkit().WindowOf(result), folder, "comment" + suffix, out);
    result.CancelButton.UserClick();
  });
  result.DisplayRes(" Reads what people write: \"a3/11\", \"A 3 11\", \"a-3-11\".\r\n False if it is no bin.\r\n",
                    "Type comments for a Procedure", "Comments for a Procedure");
  return kept;
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

long TourPrompts::MsgBox(const std::string& prompt, long style, const std::string& title) {
  if (OnBox) {
    QTimer::singleShot(0, std::exchange(OnBox, nullptr));
    return shown_.MsgBox(prompt, style, title);
  }
  ++told;
  return plain_.MsgBox(prompt, style, title);
}

bool TakeBoxPictures(Desk& desk, TourPrompts& prompts, const QString& folder, const QString& suffix,
                     std::ostream& out) {
  int kept = 0;
  const auto keep_next = [&](const char* name) {
    prompts.OnBox = [&, name] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      kept += Keep(box, folder, name + suffix, out);
      if (box) box->reject();
    };
  };
  keep_next("message-box");
  desk.Open("Missing.vbp");
  const auto module = ModuleToShow(desk.EnvironmentOf(), false);
  if (!module) return false;
  module->CodeModule()->InsertLines(1, "'");
  keep_next("save-question");
  desk.Window().MayLeave();
  return kept == 2;
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
    if (!form->optProj.Value()) form->optProj.UserClick();  // an open pane made it the current code
    if (ChooseComponent(*form)) ChooseProcedure(*form);
    keep(desk.ExplorerWindow(), "explorer");
    form->cmdMore.UserClick();
    keep(desk.ExplorerWindow(), "explorer-code");
    form->cmdMore.UserClick();
    for (long row = 0; row < form->lbxComp->ListCount(); ++row)
      if (form->lbxComp->List(row) == explorer::kProjectGlobals) form->lbxComp->UserSelect(row);
    keep(desk.ExplorerWindow(), "explorer-globals");
    all &= KeepAbout(desk, folder, suffix, out);
    all &= KeepComment(desk, folder, suffix, out);
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
