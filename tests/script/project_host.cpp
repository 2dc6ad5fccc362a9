#include "tests/script/project_host.h"

namespace corvane::script {

host::Ref<host::VBE> SeenByScripts(const std::shared_ptr<environment::Environment>& environment) {
  return environment;
}

}  // namespace corvane::script
