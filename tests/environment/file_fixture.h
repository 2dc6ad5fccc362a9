// FileFixture: the environment of project files, with files in memory, for the suites of the host contract.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "environment/command_bar_model.h"
#include "environment/environment.h"
#include "environment/memory_files.h"
#include "tests/environment/host_contract.h"

namespace corvane::tests {

class FileFixture : public HostFixture {
 public:
  host::Ref<host::VBE> Open(const std::string& project, const std::vector<Source>& sources) override {
    std::vector<environment::SourceFile> files;
    for (const Source& source : sources) {
      std::string head = source.is_class ? "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\n" : "";
      std::string code = source.code.empty() ? "" : source.code + "\r\n";
      files.push_back({source.name + (source.is_class ? ".cls" : ".bas"),
                       head + "Attribute VB_Name = \"" + source.name + "\"\r\n" + code});
    }
    environment_->OpenFromModules(project, files);
    return Seen();
  }
  host::Ref<host::VBE> OpenNew(const std::string& project) override {
    environment_->OpenFromTexts("", "Type=Exe\r\nModule=Main; Main.bas\r\nName=\"" + project + "\"\r\n",
                                {{"Main.bas", "Attribute VB_Name = \"Main\"\r\n"}});
    return Seen();
  }
  std::string PathOf(const std::string& name) override { return "C:\\Files\\" + name; }
  std::string PutFile(const std::string& name, const std::string& bytes) override {
    files_.Put(PathOf(name), bytes);
    return PathOf(name);
  }
  // By its name: what the tests hold need not be the environment's own object.
  void Select(const host::Ref<host::VBComponent>& component) override {
    environment_->SelectComponent(component ? environment_->ActiveVBProject()->VBComponents()->Item(component->Name())
                                            : nullptr);
  }
  void Click(const std::string& bar, long position) override {
    const environment::Bar* found = environment_->Bars().Find(bar);
    environment_->Bars().Click(found->controls.at(static_cast<size_t>(position - 1)).id);
  }
  void EnterRunMode() override { environment_->EnterRunMode(); }

 protected:
  // The environment as the tests see it.
  virtual host::Ref<host::VBE> Seen() { return environment_; }
  const std::shared_ptr<environment::Environment>& Own() const { return environment_; }

 private:
  environment::MemoryFiles files_;
  std::shared_ptr<environment::Environment> environment_ = environment::Environment::Create(files_);
};

}  // namespace corvane::tests
