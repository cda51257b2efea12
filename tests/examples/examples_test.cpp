// The examples of the public headers, which extract.awk makes functions of: what a reader copies compiles and runs.
#include <gtest/gtest.h>

#include "tests/support/leaks.h"

void Run_cbase();
void Run_cdatastr();
void Run_clist();
void Run_cstring();
void Run_list();

namespace {

TEST(HeaderExamples, CompileRunAndReleaseWhatTheyTake) {
    testing_support::LeakCheck const leaks;
    Run_cbase();
    Run_cdatastr();
    Run_clist();
    Run_cstring();
    Run_list();
}

}  // namespace
