// CountingModule: a code module that counts what the logic asks of it. CountingHost: an environment whose active
// project consists of them.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/vbe.h"

namespace corvane::tests {

class CountingModule : public host::CodeModule {
 public:
  explicit CountingModule(host::Ref<host::CodeModule> module) : module_(std::move(module)) {}

  std::map<std::string, long> calls;         // by member
  std::vector<std::pair<long, long>> asked;  // start and count of each call of Lines
  long fail_procedure_calls = 0;             // Error number of ProcOfLine and its kin while it is not 0
  long fail_lines_from = 0;                  // the first line that Lines fails to give, while it is not 0
  long body_line_shift = 0;                  // how far from its place ProcBodyLine tells a header

  long Total() const {
    long total = 0;
    for (const auto& [name, count] : calls) total += count;
    return total;
  }

  std::string Name() override { return Count("Name"), module_->Name(); }
  long CountOfLines() override { return Count("CountOfLines"), module_->CountOfLines(); }
  long CountOfDeclarationLines() override {
    return Count("CountOfDeclarationLines"), module_->CountOfDeclarationLines();
  }
  std::string Lines(long start, long count) override {
    Count("Lines");
    asked.emplace_back(start, count);
    if (fail_lines_from != 0 && start >= fail_lines_from) throw host::Error(runtime::kSubscriptOutOfRange);
    return module_->Lines(start, count);
  }
  void InsertLines(long line, const std::string& text) override {
    Count("InsertLines");
    module_->InsertLines(line, text);
  }
  void DeleteLines(long start, long count) override {
    Count("DeleteLines");
    module_->DeleteLines(start, count);
  }
  void ReplaceLine(long line, const std::string& text) override {
    Count("ReplaceLine");
    module_->ReplaceLine(line, text);
  }
  std::string ProcOfLine(long line, host::ProcKind& kind) override {
    return CountProcedure("ProcOfLine"), module_->ProcOfLine(line, kind);
  }
  long ProcStartLine(const std::string& name, host::ProcKind kind) override {
    return CountProcedure("ProcStartLine"), module_->ProcStartLine(name, kind);
  }
  long ProcBodyLine(const std::string& name, host::ProcKind kind) override {
    return CountProcedure("ProcBodyLine"), module_->ProcBodyLine(name, kind) + body_line_shift;
  }
  long ProcCountLines(const std::string& name, host::ProcKind kind) override {
    return CountProcedure("ProcCountLines"), module_->ProcCountLines(name, kind);
  }
  bool Find(const std::string& target, long& start_line, long& start_column, long& end_line, long& end_column,
            bool whole_word, bool match_case, bool pattern_search) override {
    Count("Find");
    return module_->Find(target, start_line, start_column, end_line, end_column, whole_word, match_case,
                         pattern_search);
  }
  host::Ref<host::CodePane> CodePane() override { return Count("CodePane"), module_->CodePane(); }

 private:
  void Count(const std::string& name) { ++calls[name]; }
  void CountProcedure(const std::string& name) {
    Count(name);
    if (fail_procedure_calls != 0) throw host::Error(fail_procedure_calls);
  }
  host::Ref<host::CodeModule> module_;
};

// The rest of the environment answers for itself.
class CountingHost : public host::VBE {
 public:
  explicit CountingHost(host::Ref<host::VBE> vbe) : vbe_(std::move(vbe)) {}

  std::vector<std::string> designers_asked;  // the component of each call of DesignerWindow

  // The module of a component of the active project, by name.
  CountingModule& Module(const std::string& name) { return *CountingModuleOf(*ActiveComponent(name)); }

  host::Ref<host::VBProjects> VBProjects() override { return vbe_->VBProjects(); }
  host::Ref<host::VBProject> ActiveVBProject() override {
    return std::make_shared<Project>(*this, vbe_->ActiveVBProject());
  }
  host::Ref<host::VBComponent> SelectedVBComponent() override { return vbe_->SelectedVBComponent(); }
  host::Ref<host::CodePane> ActiveCodePane() override { return vbe_->ActiveCodePane(); }
  host::Ref<host::CodePanes> CodePanes() override { return vbe_->CodePanes(); }
  host::Ref<host::Windows> Windows() override { return vbe_->Windows(); }
  host::Ref<host::Window> MainWindow() override { return vbe_->MainWindow(); }
  host::Ref<host::CommandBars> CommandBars() override { return vbe_->CommandBars(); }
  host::Ref<host::Events> Events() override { return vbe_->Events(); }

 private:
  class Component : public host::VBComponent {
   public:
    Component(CountingHost& host, host::Ref<host::VBComponent> component)
        : host_(host), component_(std::move(component)) {}
    std::string Name() override { return component_->Name(); }
    void SetName(const std::string& name) override { component_->SetName(name); }
    host::ComponentType Type() override { return component_->Type(); }
    host::Ref<host::CodeModule> CodeModule() override { return host_.CountingModuleOf(*component_); }
    host::Ref<host::VBForm> Designer() override { return component_->Designer(); }
    std::string DesignerID() override { return component_->DesignerID(); }
    bool HasOpenDesigner() override { return component_->HasOpenDesigner(); }
    host::Ref<host::Window> DesignerWindow() override {
      host_.designers_asked.push_back(Name());
      return component_->DesignerWindow();
    }
    host::Ref<host::Properties> Properties() override { return component_->Properties(); }
    long FileCount() override { return component_->FileCount(); }
    std::string FileNames(long index) override { return component_->FileNames(index); }
    void SaveAs(const std::string& path) override { component_->SaveAs(path); }
    host::Ref<host::VBE> VBE() override { return component_->VBE(); }

   private:
    CountingHost& host_;
    host::Ref<host::VBComponent> component_;
  };
  class Components : public host::VBComponents {
   public:
    Components(CountingHost& host, host::Ref<host::VBComponents> components)
        : host_(host), components_(std::move(components)) {}
    long Count() override { return components_->Count(); }
    host::Ref<host::VBComponent> Item(const host::Index& index) override { return Wrap(components_->Item(index)); }
    host::Ref<host::VBComponent> Add(host::ComponentType type) override { return Wrap(components_->Add(type)); }
    host::Ref<host::VBComponent> AddFile(const std::string& path) override { return Wrap(components_->AddFile(path)); }
    void Remove(const host::Ref<host::VBComponent>& component) override {
      components_->Remove(components_->Item(component->Name()));
    }
    host::Ref<host::VBE> VBE() override { return components_->VBE(); }

   private:
    host::Ref<host::VBComponent> Wrap(host::Ref<host::VBComponent> component) {
      return std::make_shared<Component>(host_, std::move(component));
    }
    CountingHost& host_;
    host::Ref<host::VBComponents> components_;
  };
  class Project : public host::VBProject {
   public:
    Project(CountingHost& host, host::Ref<host::VBProject> project) : host_(host), project_(std::move(project)) {}
    std::string Name() override { return project_->Name(); }
    std::string FileName() override { return project_->FileName(); }
    host::Ref<host::VBComponents> VBComponents() override {
      return std::make_shared<Components>(host_, project_->VBComponents());
    }
    void AddToolboxProgID(const std::string& prog_id, const std::string& file) override {
      project_->AddToolboxProgID(prog_id, file);
    }

   private:
    CountingHost& host_;
    host::Ref<host::VBProject> project_;
  };

  host::Ref<host::VBComponent> ActiveComponent(const std::string& name) {
    return vbe_->ActiveVBProject()->VBComponents()->Item(name);
  }
  host::Ref<CountingModule> CountingModuleOf(host::VBComponent& component) {
    host::Ref<CountingModule>& module = modules_[component.Name()];
    if (!module) module = std::make_shared<CountingModule>(component.CodeModule());
    return module;
  }

  host::Ref<host::VBE> vbe_;
  std::map<std::string, host::Ref<CountingModule>> modules_;
};

}  // namespace corvane::tests
