#include "cli/list_command.h"

#include <ostream>

#include "cli/json_text.h"
#include "environment/environment.h"
#include "explorer/project_access.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::cli {

using explorer::ProcedureKind;
using explorer::Visibility;
using host::ComponentType;
using host::Ref;

namespace {

const char* NameOfKind(ComponentType type) {
  switch (type) {
    case ComponentType::StdModule:
      return "module";
    case ComponentType::ClassModule:
      return "class";
    case ComponentType::VBForm:
      return "form";
    case ComponentType::VBMDIForm:
      return "MDI form";
    case ComponentType::PropPage:
      return "property page";
    case ComponentType::UserControl:
      return "user control";
    case ComponentType::DocObject:
      return "user document";
    case ComponentType::RelatedDocument:
      return "related document";
    case ComponentType::ActiveXDesigner:
      return "designer";
  }
  return "unknown";
}

std::string Utf8(std::string_view text) {
  return runtime::AnsiCodePage().ToUtf8(text);
}

class Lister {
 public:
  Lister(const ListOptions& options, std::ostream& out) : options_(options), out_(out) {}

  void List(host::VBComponent& component) {
    std::string lines;
    if (options_.procedures)
      AddRows(component, lines);
    else
      AddCounts(component, lines);
    out_ << lines;
  }

 private:
  void AddRows(host::VBComponent& component, std::string& lines) {
    const std::string name = component.Name(), head = HeadOfRows(name);
    explorer::ScanProcedures(*component.CodeModule(), options_.filter, [&](long line, const std::string& text) {
      std::string row = runtime::LTrim(text);
      lines += head + std::to_string(line);
      lines += options_.json ? ",\"text\":" + JsonText(row) + "}\n" : "\t" + Utf8(row) + "\n";
    });
  }

  std::string HeadOfRows(const std::string& name) const {
    return options_.json ? "{\"component\":" + JsonText(name) + ",\"line\":" : Utf8(name) + "\t";
  }

  void AddCounts(host::VBComponent& component, std::string& lines) {
    Ref<host::CodeModule> module = component.CodeModule();
    long procedures = 0;
    explorer::ScanProcedures(*module, options_.filter, [&](long, const std::string&) { ++procedures; });
    std::string counts[] = {std::to_string(module->CountOfLines()), std::to_string(module->CountOfDeclarationLines()),
                            std::to_string(procedures)};
    if (options_.json)
      lines += "{\"component\":" + JsonText(component.Name()) + ",\"kind\":\"" + NameOfKind(component.Type()) +
               "\",\"lines\":" + counts[0] + ",\"declarations\":" + counts[1] + ",\"procedures\":" + counts[2] + "}\n";
    else
      lines += Utf8(component.Name()) + "\t" + NameOfKind(component.Type()) + "\t" + counts[0] + "\t" + counts[1] +
               "\t" + counts[2] + "\n";
  }

  const ListOptions& options_;
  std::ostream& out_;
};

}  // namespace

const std::vector<std::pair<std::string, ProcedureKind>>& KindWords() {
  static const std::vector<std::pair<std::string, ProcedureKind>> kWords = {{"all", ProcedureKind::All},
                                                                            {"subs", ProcedureKind::Subs},
                                                                            {"functions", ProcedureKind::Functions},
                                                                            {"properties", ProcedureKind::Properties},
                                                                            {"events", ProcedureKind::Events}};
  return kWords;
}

const std::vector<std::pair<std::string, Visibility>>& VisibilityWords() {
  static const std::vector<std::pair<std::string, Visibility>> kWords = {{"all", Visibility::All},
                                                                         {"public", Visibility::Public},
                                                                         {"private", Visibility::Private},
                                                                         {"static", Visibility::Static}};
  return kWords;
}

void RunListCommand(environment::Environment& environment, const ListOptions& options, std::ostream& out) {
  Lister lister(options, out);
  Ref<host::VBProject> project = environment.ActiveVBProject();
  Ref<host::VBComponents> components = explorer::Object(project).VBComponents();
  for (Ref<host::VBComponent> component : host::Each(*components))
    if (explorer::HasCode(*component)) lister.List(*component);
}

void TellOtherProjects(environment::Environment& environment, const std::string& path, std::ostream& errors) {
  const Ref<host::VBProject> active = environment.ActiveVBProject();
  std::string others;
  for (Ref<host::VBProject> project : host::Each(environment.VBProjects()))
    if (project != active) others += (others.empty() ? "" : ", ") + Utf8(project->Name());
  if (others.empty()) return;
  errors << path << ": " << Utf8(active->Name()) << " is listed, the active project; not listed: " << others << '\n';
}

}  // namespace corvane::cli
