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

// One environment with one open project.
class HostFixture {
 public:
  virtual ~HostFixture() = default;
  // Opens a project "Contract" of standard modules and classes, by name and lines of code (CR LF between them).
  struct Source {
    std::string name;
    bool is_class;
    std::string code;
  };
  virtual host::Ref<host::VBE> Open(const std::vector<Source>& sources) = 0;
};

using HostFactory = std::function<std::unique_ptr<HostFixture>()>;

class HostContract : public testing::TestWithParam<HostFactory> {
 protected:
  // A module "Main" of these lines, "|" between them, is the only one.
  host::Ref<host::CodeModule> Code(std::string_view lines) {
    return Open({{"Main", false, Cut(lines)}})->ActiveVBProject()->VBComponents()->Item("Main")->CodeModule();
  }
  host::Ref<host::VBE> Open(const std::vector<HostFixture::Source>& sources) { return vbe_ = fixture_->Open(sources); }
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
