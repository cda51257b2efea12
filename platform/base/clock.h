/// @file clock.h
/// The monotonic clock that timers, message times and double clicks are measured with.
#pragma once

#include <cstdint>

namespace platform::base {

/// @returns milliseconds since the host started, wrapping at 32 bits, as GetTickCount gives them.
std::uint32_t TickCount();

/// @returns the same clock unwrapped.
std::uint64_t TickCount64();

}  // namespace platform::base
