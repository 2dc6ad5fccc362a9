// The watch over tests that hang, as one does behind a box that nobody closes: the program is ended with their name.
#pragma once

namespace corvane::stage {

// From now on, for all tests of the program. A crash is told with the name of its test, too.
void WatchTests();
// A long test goes on: it hangs when this is not called for two minutes.
void StillAlive();

}  // namespace corvane::stage
