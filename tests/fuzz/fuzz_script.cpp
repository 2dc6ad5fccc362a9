// Any bytes as a script, and as the code of one: the engine and its plain form come to the same, and both come to an
// end.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tests/script/plain_run.h"
#include "tests/script/run_outcome.h"

namespace {

using namespace corvane::script;

// The plain form copies its text at each step.
constexpr size_t kLongest = 600;

void Compare(const std::string& script) {
  if (RunOn<frmLib>(script) != RunOn<PlainLib>(script)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), std::min(size, kLongest));
  Compare(text);
  Compare("CODE{\n<%\ndim aa,bb\n" + text + "\n%>\n}\n");
  return 0;
}
