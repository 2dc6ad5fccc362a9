// The suites of the host contract on the environment as the add-in sees it through COM.
#include "tests/environment/host_contract.h"

#include "com/objects.h"
#include "tests/environment/file_fixture.h"
#include "tests/environment/host_contract_designer.h"
#include "tests/stage/stage.h"

namespace corvane::stage {
namespace {

using tests::HostContract;
using tests::HostDesignerContract;
using tests::HostFactory;
using tests::HostFixture;

class StageFixture : public tests::FileFixture {
 public:
  // An environment of a later version has a library of types, and tells the texts of its errors when it is asked.
  explicit StageFixture(bool later_version) {
    if (!later_version) return;
    stage_.types = std::make_unique<TypeLibrary>();
    stage_.defers_error_texts = true;
  }
  // The tests have let go of everything when their fixture ends.
  ~StageFixture() override {
    seen_ = nullptr;
    EXPECT_GT(stage_.ledger.Calls(), 0);
    EXPECT_EQ(stage_.ledger.objects, 0);
    EXPECT_EQ(stage_.ledger.references, 0);
    EXPECT_EQ(stage_.ledger.sinks, 0);
    EXPECT_EQ(stage_.ledger.dropped_sinks, 0);
    EXPECT_EQ(stage_.ledger.sink_failures, 0);
    EXPECT_EQ(stage_.ledger.alien_calls, 0);
    EXPECT_EQ(stage_.ledger.faults, std::vector<std::string>());
  }

 private:
  host::Ref<host::VBE> Seen() override {
    if (!seen_) seen_ = com::Wrap<host::VBE>(com::Value(stage_.Root().Get()));
    return seen_;
  }
  Stage stage_{Own()};
  host::Ref<host::VBE> seen_;
};

template <bool later_version>
std::unique_ptr<HostFixture> NewStageFixture() {
  return std::make_unique<StageFixture>(later_version);
}

const auto kVersions = testing::Values(HostFactory(&NewStageFixture<false>), HostFactory(&NewStageFixture<true>));
INSTANTIATE_TEST_SUITE_P(Stage, HostContract, kVersions);
INSTANTIATE_TEST_SUITE_P(Stage, HostDesignerContract, kVersions);

// The suites pass over an environment that does not offer the events: this one does.
TEST(HostOfALaterVersion, RunModeIsToldThroughAnInterfaceOfItsOwn) {
  const auto fixture = NewStageFixture<true>();
  const auto events = fixture->Open("Shop", {{"Main", false, ""}})->Events();
  long told = 0;
  const auto bound = events->VBBuildEvents()->OnEnterRunMode([&] { ++told; });
  fixture->EnterRunMode();
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace corvane::stage
