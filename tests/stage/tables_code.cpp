// Code modules and code panes.
#include "tests/stage/members.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

using host::CodeModule;
using host::CodePane;
using host::CodePanes;

namespace {

constexpr DISPID kBase = 0x60020000;

void DeleteLines(Call& call) {
  call.Target<CodeModule>().DeleteLines(call.Number(0), call.Has(1) ? call.Number(1) : 1);
}

void GetSelection(Call& call) {
  const host::Selection selection = call.Target<CodePane>().GetSelection();
  long position = 0;
  for (long value : {selection.start_line, selection.start_column, selection.end_line, selection.end_column})
    call.WriteBack(position++, value);
}

void SetSelection(Call& call) {
  call.Target<CodePane>().SetSelection({call.Number(0), call.Number(1), call.Number(2), call.Number(3)});
}

}  // namespace

template <>
const ObjectTable& TableOf<CodeModule>() {
  static const ObjectTable table = {
      "CodeModule",
      {
          Get("VBE", kBase + 0x1, [](Call& call) { call.Return(host::Ref<host::VBE>(call.stage.environment)); }),
          Get("Name", 0x0, kForward<CodeModule, &CodeModule::Name>),
          Get("Lines", kBase + 0x6, kForward<CodeModule, &CodeModule::Lines>, 2),
          Get("CountOfLines", kBase + 0x7, kForward<CodeModule, &CodeModule::CountOfLines>),
          Method("InsertLines", kBase + 0x8, kForward<CodeModule, &CodeModule::InsertLines>, 2),
          Method("DeleteLines", kBase + 0x9, &DeleteLines, 1, 2),
          Method("ReplaceLine", kBase + 0xa, kForward<CodeModule, &CodeModule::ReplaceLine>, 2),
          Get("ProcStartLine", kBase + 0xb, kForward<CodeModule, &CodeModule::ProcStartLine>, 2),
          Get("ProcCountLines", kBase + 0xc, kForward<CodeModule, &CodeModule::ProcCountLines>, 2),
          Get("ProcBodyLine", kBase + 0xd, kForward<CodeModule, &CodeModule::ProcBodyLine>, 2),
          Get("ProcOfLine", kBase + 0xe, kForward<CodeModule, &CodeModule::ProcOfLine>, 2),
          Get("CountOfDeclarationLines", kBase + 0xf, kForward<CodeModule, &CodeModule::CountOfDeclarationLines>),
          Method("Find", kBase + 0x11, kForward<CodeModule, &CodeModule::Find>, 5, 8),
          Get("CodePane", kBase + 0x12, kForward<CodeModule, &CodeModule::CodePane>),
      },
      true};
  return table;
}

template <>
const ObjectTable& TableOf<CodePane>() {
  static const ObjectTable table = {"CodePane",
                                    {
                                        Get("Window", kBase + 0x2, kForward<CodePane, &CodePane::Window>),
                                        Method("GetSelection", kBase + 0x3, &GetSelection, 4),
                                        Method("SetSelection", kBase + 0x4, &SetSelection, 4),
                                        Get("CodeModule", kBase + 0x8, kForward<CodePane, &CodePane::CodeModule>),
                                        Method("Show", kBase + 0x9, kForward<CodePane, &CodePane::Show>),
                                    },
                                    true};
  return table;
}

template <>
const ObjectTable& TableOf<CodePanes>() {
  static const ObjectTable table = {"CodePanes", CollectionMembers<CodePanes>(kBase + 0x3)};
  return table;
}

}  // namespace corvane::stage
