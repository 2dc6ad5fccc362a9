// The sample project, open in an environment, with scripts that run on it.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "environment/environment.h"
#include "environment/module.h"
#include "environment/project.h"
#include "script/project_access.h"
#include "tests/script/lib_test.h"
#include "tests/script/project_host.h"
#include "tests/support/sample_files.h"

namespace corvane::script {

struct ProjectTest : testing::Test {
  using Saved = std::map<std::string, std::string>;

  FakeSurroundings world;
  std::shared_ptr<environment::Environment> vbe = environment::Environment::Create(world.services.files);
  ProjectAccess access{SeenByScripts(vbe), world.services};
  Surroundings around{world.services, access,      world.workshop, world.objects, world.clock,    access,
                      world.window,   world.forms, world.debug,    world.result,  world.platform, world.paramExchange};
  frmLib lib{around};

  // A picture of one pixel.
  static std::string OnePixel() {
    constexpr char kBytes[] =
        "BM\x3A\0\0\0\0\0\0\0\x36\0\0\0"
        "\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "\xFF\0\0\0";
    return std::string(kBytes, sizeof kBytes - 1);
  }

  static std::string PathOf(const std::string& file) { return "Z:\\samples\\stockroom\\" + file; }

  void SetUp() override {
    tests::PutSample("stockroom", world.services.files);
    vbe->Open(PathOf("Stockroom.vbp"));
    for (const std::string& name : Names()) before_[name] = FileText(name);
    lib.Errors().SetBox([this](const std::string& message, const std::string&) {
      errors_.push_back(Readable(message));
      return error_answer;
    });
  }

  host::Ref<host::VBComponent> Component(const std::string& name) {
    return vbe->ActiveVBProject()->VBComponents()->Item(name);
  }
  host::Ref<host::CodeModule> Code(const std::string& name) { return Component(name)->CodeModule(); }
  void Select(const std::string& name) { vbe->SelectComponent(Component(name)); }
  // The bytes of a file as it is now, and as it was in the beginning.
  std::string FileText(const std::string& name) { return world.services.files.Read(PathOf(name)); }
  const std::string& Before(const std::string& name) { return before_[name]; }

  // The result of a piece of code whose lines end in "\n".
  std::string RunCode(const std::string& code) {
    lib.RunScriptText(runtime::Replace("CODE{\n<%\n" + code + "\n%>\n}\n", "\n", runtime::kCrLf));
    return Readable(lib.ResultText());
  }
  // What "=expression" puts out.
  std::string Value(const std::string& expression) { return RunCode("=" + expression); }

  // The messages of the error boxes since the last call. Each is answered with [error_answer].
  Lines Errors() { return std::exchange(errors_, {}); }
  long error_answer = host::vbOK;

  // Saves all, and returns the files that differ from the sample, by name.
  Saved SaveAll() {
    EXPECT_TRUE(vbe->SaveAll().empty());
    Saved changed;
    for (const std::string& name : Names())
      if (FileText(name) != before_[name]) changed[name] = FileText(name);
    return changed;
  }
  // The file of the sample with one text put in the place of another, lines ending in "\n".
  std::string With(const std::string& file, const std::string& old_text, const std::string& new_text) {
    const std::string from = runtime::Replace(old_text, "\n", "\r\n"), to = runtime::Replace(new_text, "\n", "\r\n");
    std::string text = before_[file];
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << file << " does not hold " << old_text;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
  }

 private:
  std::vector<std::string> Names() { return world.services.files.List("Z:\\samples\\stockroom\\", "*"); }
  Saved before_;
  Lines errors_;
};

}  // namespace corvane::script
