/// @file clock.h
/// The monotonic clock that timers, message times and double clicks are measured with.
#pragma once

#include <cstdint>
#include <ctime>

namespace platform::base {

/// @returns milliseconds since the host started, wrapping at 32 bits, as GetTickCount gives them.
std::uint32_t TickCount();

/// @returns the same clock unwrapped.
std::uint64_t TickCount64();

/// @returns the time of day, in seconds of the host's calendar.
timespec TimeOfDay();

/// Drives the clock, for tests: it stands at a moment of TickCount64, and the time of day with it, until somebody would wait.
/// 0 gives it back to the host.
void DriveClock(std::uint64_t moment);

/// Takes a driven clock on to a moment. @returns whether it is driven, so that there is nothing to wait for.
bool SkipTo(std::uint64_t moment);

}  // namespace platform::base
