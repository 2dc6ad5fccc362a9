#include "tests/environment/host_contract.h"

#include "environment/command_bar_model.h"
#include "environment/environment.h"
#include "environment/memory_files.h"
#include "tests/environment/host_contract_designer.h"

namespace corvane::tests {
namespace {

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
    return environment_;
  }
  std::string PathOf(const std::string& name) override { return "C:\\Files\\" + name; }
  std::string PutFile(const std::string& name, const std::string& bytes) override {
    files_.Put(PathOf(name), bytes);
    return PathOf(name);
  }
  void Select(const host::Ref<host::VBComponent>& component) override { environment_->SelectComponent(component); }
  void Click(const std::string& bar, long position) override {
    const environment::Bar* found = environment_->Bars().Find(bar);
    environment_->Bars().Click(found->controls.at(static_cast<size_t>(position - 1)).id);
  }
  void EnterRunMode() override { environment_->EnterRunMode(); }

 private:
  environment::MemoryFiles files_;
  std::shared_ptr<environment::Environment> environment_ = environment::Environment::Create(files_);
};

std::unique_ptr<HostFixture> NewFileFixture() {
  return std::make_unique<FileFixture>();
}

INSTANTIATE_TEST_SUITE_P(Files, HostContract, testing::Values(HostFactory(&NewFileFixture)));
INSTANTIATE_TEST_SUITE_P(Files, HostDesignerContract, testing::Values(HostFactory(&NewFileFixture)));

}  // namespace
}  // namespace corvane::tests
