// A frmLib with a faked world around it.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/script/fake_surroundings.h"

namespace corvane::script {

using Lines = std::vector<std::string>;

struct LibTest : testing::Test {
  FakeSurroundings world;
  frmLib lib{world.around};

  // Lines end in "\n" here.
  static std::string WithCrLf(const std::string& text) { return runtime::Replace(text, "\n", runtime::kCrLf); }

  std::string RunScript(const std::string& script) {
    lib.RunScriptText(WithCrLf(script));
    return Readable(lib.ResultText());
  }
  // A code block of that one piece. Nothing else is put out.
  std::string RunCode(const std::string& code) { return RunScript("CODE{\n<%\n" + code + "\n%>\n}\n"); }

  // The error boxes since the last call: their messages, without the listing below.
  Lines Errors() {
    Lines errors;
    for (const tests::AskedMessage& asked : world.services.prompts.messages)
      if (asked.style == host::vbOKCancel && asked.title == "Weaver")
        errors.push_back(asked.prompt.substr(0, asked.prompt.find(runtime::kCrLf)));
    world.services.prompts.messages.clear();
    return errors;
  }
  // Every box since the last call, whole.
  Lines Boxes() {
    Lines boxes;
    for (const tests::AskedMessage& asked : world.services.prompts.messages) boxes.push_back(Readable(asked.prompt));
    world.services.prompts.messages.clear();
    return boxes;
  }
  void AnswerCancel() { world.services.prompts.answers.push_back(host::vbCancel); }
};

}  // namespace corvane::script
