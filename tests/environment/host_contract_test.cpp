#include "tests/environment/host_contract.h"

#include "tests/environment/file_fixture.h"
#include "tests/environment/host_contract_designer.h"

namespace corvane::tests {
namespace {

std::unique_ptr<HostFixture> NewFileFixture() {
  return std::make_unique<FileFixture>();
}

INSTANTIATE_TEST_SUITE_P(Files, HostContract, testing::Values(HostFactory(&NewFileFixture)));
INSTANTIATE_TEST_SUITE_P(Files, HostDesignerContract, testing::Values(HostFactory(&NewFileFixture)));

}  // namespace
}  // namespace corvane::tests
