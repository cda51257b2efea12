/// @file probe.h
/// Reading of memory that may not be there, for calls that answer a bad pointer with a result.
#pragma once

#include <cstddef>

namespace platform::kernel {

inline constexpr std::size_t kBadText = static_cast<std::size_t>(-1);

/// @returns the length of a text, at most `most`, or kBadText when it runs into memory that cannot be read.
std::size_t ProbeLength(const char* text, std::size_t most = kBadText - 1);

/// @returns whether a pointer leads to a text that can be read to its end.
inline bool IsReadableText(const char* text) {
    return text && ProbeLength(text) != kBadText;
}

/// @returns whether all bytes of a range can be read; an empty one always can.
bool IsReadable(const void* memory, std::size_t size);

}  // namespace platform::kernel
