// The environment as scripts reach it from the add-in: through COM.
#include <gtest/gtest.h>

#include "com/objects.h"
#include "tests/script/project_host.h"
#include "tests/stage/stage.h"

namespace corvane::script {

host::Ref<host::VBE> SeenByScripts(const std::shared_ptr<environment::Environment>& environment) {
  struct Seen {
    explicit Seen(std::shared_ptr<environment::Environment> environment) : stage(std::move(environment)) {}
    // A script keeps nothing of the environment.
    ~Seen() {
      EXPECT_GT(stage.ledger.references, 0);
      vbe = nullptr;
      EXPECT_EQ(stage.ledger.objects, 0);
      EXPECT_EQ(stage.ledger.references, 0);
      EXPECT_EQ(stage.ledger.faults, std::vector<std::string>());
    }
    stage::Stage stage;
    host::Ref<host::VBE> vbe = com::Wrap<host::VBE>(com::Value(stage.Root().Get()));
  };
  const auto seen = std::make_shared<Seen>(environment);
  return {seen, seen->vbe.get()};
}

}  // namespace corvane::script
