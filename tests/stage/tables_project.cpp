// Projects and their components.
#include "tests/stage/members.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

using host::VBComponent;
using host::VBComponents;
using host::VBProject;
using host::VBProjects;

namespace {

void Root(Call& call) {
  call.Return(host::Ref<host::VBE>(call.stage.environment));
}

void AddToolboxProgID(Call& call) {
  call.Target<VBProject>().AddToolboxProgID(call.Text(0), call.Has(1) ? call.Text(1) : std::string());
}

}  // namespace

template <>
const ObjectTable& TableOf<VBProjects>() {
  static const ObjectTable table = {
      "VBProjects", CollectionMembers<VBProjects>(
                        0xa, {
                                 Get("VBE", 0x14, &Root),
                                 Method("AddFromFile", 0x82, kForward<VBProjects, &VBProjects::AddFromFile>, 1, 2),
                             })};
  return table;
}

template <>
const ObjectTable& TableOf<VBProject>() {
  static const ObjectTable table = {"VBProject",
                                    {
                                        Get("Name", 0x0, kForward<VBProject, &VBProject::Name>),
                                        Method("AddToolboxProgID", 0x69, &AddToolboxProgID, 1, 2),
                                        Get("FileName", 0x6d, kForward<VBProject, &VBProject::FileName>),
                                        Get("VBE", 0x7a, &Root),
                                        Get("VBComponents", 0x87, kForward<VBProject, &VBProject::VBComponents>),
                                    },
                                    true};
  return table;
}

template <>
const ObjectTable& TableOf<VBComponents>() {
  static const ObjectTable table = {
      "VBComponents",
      CollectionMembers<VBComponents>(0xa,
                                      {
                                          Method("Remove", 0xb, kForward<VBComponents, &VBComponents::Remove>, 1),
                                          Method("Add", 0xc, kForward<VBComponents, &VBComponents::Add>, 1),
                                          Get("VBE", 0x14, kForward<VBComponents, &VBComponents::VBE>),
                                          Method("AddFile", 0x16, kForward<VBComponents, &VBComponents::AddFile>, 1, 2),
                                      }),
      true};
  return table;
}

template <>
const ObjectTable& TableOf<VBComponent>() {
  static const ObjectTable table = {
      "VBComponent",
      {
          Get("FileNames", 0xb, kForward<VBComponent, &VBComponent::FileNames>, 1),
          Method("SaveAs", 0xc, kForward<VBComponent, &VBComponent::SaveAs>, 1),
          Get("FileCount", 0xd,
              [](Call& call) { call.Return(static_cast<short>(call.Target<VBComponent>().FileCount())); }),
          GetSet("Name", 0x30, kForward<VBComponent, &VBComponent::Name>, kForward<VBComponent, &VBComponent::SetName>),
          Get("Designer", 0x31, kForward<VBComponent, &VBComponent::Designer>),
          Get("CodeModule", 0x32, kForward<VBComponent, &VBComponent::CodeModule>),
          Get("Type", 0x33, kForward<VBComponent, &VBComponent::Type>),
          Get("VBE", 0x35, kForward<VBComponent, &VBComponent::VBE>),
          Get("HasOpenDesigner", 0x37, kForward<VBComponent, &VBComponent::HasOpenDesigner>),
          Get("Properties", 0x38, kForward<VBComponent, &VBComponent::Properties>),
          Get("DesignerID", 0x3f, kForward<VBComponent, &VBComponent::DesignerID>),
          Method("DesignerWindow", 0x39, kForward<VBComponent, &VBComponent::DesignerWindow>),
      },
      true};
  return table;
}

}  // namespace corvane::stage
