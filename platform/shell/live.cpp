#include "shell/live.h"

#include <cvplatform.h>

#include "base/live.h"

namespace platform::shell {
namespace {

std::atomic<unsigned> g_failAfter{0};

}  // namespace

bool FailsNow() {
    unsigned left = g_failAfter.load(std::memory_order_relaxed);
    while (left != 0) {
        if (g_failAfter.compare_exchange_weak(left, left - 1)) {
            return left == 1;
        }
    }
    return false;
}

void CountObject(int change) {
    base::g_componentObjects += change;
}

void CountBlock(int change) {
    base::g_shellBlocks += change;
}

}  // namespace platform::shell

unsigned CvPlatformFailShell(unsigned count) {
    return platform::shell::g_failAfter.exchange(count);
}
