// HostContract: what every implementation of the host contract answers, tested through host/ alone. An implementation
// gives a HostFixture and instantiates the suite:
//
//   INSTANTIATE_TEST_SUITE_P(Files, HostContract, testing::Values(&NewFileFixture));
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/vbe.h"

namespace corvane::tests {

// One environment, and what its user does.
class HostFixture {
 public:
  virtual ~HostFixture() = default;
  // Opens a project of standard modules and classes, by name and lines of code (CR LF between them), beside those that
  // are open. The project opened last is the active one.
  struct Source {
    std::string name;
    bool is_class;
    std::string code;
  };
  virtual host::Ref<host::VBE> Open(const std::string& project, const std::vector<Source>& sources) = 0;
  // A new project, which was never saved, with one empty module "Main".
  virtual host::Ref<host::VBE> OpenNew(const std::string& project) = 0;

  // Puts a file into a folder that may be written to; returns its full path, with "\\" in it.
  virtual std::string PutFile(const std::string& name, const std::string& bytes) = 0;
  // The full path of a file of this name in that folder.
  virtual std::string PathOf(const std::string& name) = 0;

  // Selects a component of the active project in the list of components; Nothing: the project itself.
  virtual void Select(const host::Ref<host::VBComponent>& component) = 0;
  // Clicks on the control of a command bar at this position.
  virtual void Click(const std::string& bar, long position) = 0;
  virtual void EnterRunMode() = 0;
};

using HostFactory = std::function<std::unique_ptr<HostFixture>()>;

class HostContract : public testing::TestWithParam<HostFactory> {
 protected:
  // A module "Main" of these lines, "|" between them, is the only one.
  host::Ref<host::CodeModule> Code(std::string_view lines) {
    return Open({{"Main", false, Cut(lines)}})->ActiveVBProject()->VBComponents()->Item("Main")->CodeModule();
  }
  host::Ref<host::VBE> Open(const std::vector<HostFixture::Source>& sources) {
    return vbe_ = fixture_->Open("Contract", sources);
  }
  static std::string Cut(std::string_view lines) {
    std::string text;
    for (char c : lines) c == '|' ? text += "\r\n" : text += c;
    return text;
  }
  static std::string All(host::CodeModule& code) {
    std::string text;
    if (code.CountOfLines() == 0) return text;
    for (char c : code.Lines(1, code.CountOfLines()))
      if (c != '\r') text += c == '\n' ? '|' : c;
    return text;
  }
  static long ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const host::Error& error) {
      return error.Number();
    }
    return 0;
  }

  std::unique_ptr<HostFixture> fixture_ = GetParam()();
  host::Ref<host::VBE> vbe_;
};

}  // namespace corvane::tests
