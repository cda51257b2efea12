#include "base/clock.h"

#include <atomic>

namespace platform::base {

namespace {

// A driven clock's moment; 0 while the host's clock is in use.
std::atomic<std::uint64_t> driven{0};

// What the calendar of a driven clock shows at its moment 0: 29 February 1996, noon.
constexpr std::time_t kDrivenDay = 825595200;

}  // namespace

std::uint64_t TickCount64() {
    if (const std::uint64_t moment = driven.load(std::memory_order_relaxed)) {
        return moment;
    }
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 + static_cast<std::uint64_t>(now.tv_nsec) / 1000000;
}

std::uint32_t TickCount() {
    return static_cast<std::uint32_t>(TickCount64());
}

timespec TimeOfDay() {
    timespec now{};
    if (const std::uint64_t moment = driven.load(std::memory_order_relaxed)) {
        now.tv_sec = kDrivenDay + static_cast<std::time_t>(moment / 1000);
        now.tv_nsec = static_cast<long>(moment % 1000) * 1000000;
    } else {
        clock_gettime(CLOCK_REALTIME, &now);
    }
    return now;
}

void DriveClock(std::uint64_t moment) {
    driven = moment;
}

bool SkipTo(std::uint64_t moment) {
    std::uint64_t now = driven;
    while (now != 0 && now < moment && !driven.compare_exchange_weak(now, moment)) {
    }
    return now != 0;
}

}  // namespace platform::base
