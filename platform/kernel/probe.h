/// @file probe.h
/// Reading of memory that may not be there, for calls that answer a bad pointer with a result.
#pragma once

#include <cstddef>
#include <cstdint>

namespace platform::kernel {

bool CanRead(std::uintptr_t first, std::size_t bytes);

inline constexpr std::size_t kBadText = static_cast<std::size_t>(-1);

/// @returns the length of a text, at most `most`, or kBadText when it runs into memory that cannot be read.
std::size_t ProbeLength(const char* text, std::size_t most = kBadText - 1);

}  // namespace platform::kernel
