#include "base/clock.h"

#include <ctime>

namespace platform::base {

std::uint64_t TickCount64() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 + static_cast<std::uint64_t>(now.tv_nsec) / 1000000;
}

std::uint32_t TickCount() {
    return static_cast<std::uint32_t>(TickCount64());
}

}  // namespace platform::base
