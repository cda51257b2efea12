// The examples of the public headers, which extract.awk makes functions of: what a reader copies compiles and runs.
#include <gtest/gtest.h>

#include "tests/support/leaks.h"

void RunHeaderExamples();

namespace {

TEST(HeaderExamples, CompileRunAndReleaseWhatTheyTake) {
    testing_support::LeakCheck const leaks;
    RunHeaderExamples();
}

}  // namespace
