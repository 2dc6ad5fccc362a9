#include "tests/stage/stage.h"

namespace corvane::stage {

ComPointer<IDispatch> Stage::Root() {
  return Publish<host::VBE>(environment);
}

void Stage::CloseProject() {
  environment->ActivateProject(nullptr);
  environment->SelectComponent(nullptr);
  closed_before_ = births_;
}

}  // namespace corvane::stage
