// The character walk on which every position and count of CSTRING rests.
//
// A position is reached by stepping over characters from the start; the walk ends at the NUL and at the first byte of
// 0x80 or above, because it looks at bytes as signed values. Callers rely on that end. A byte that the walk does step
// over is therefore plain ASCII, one character in every code page, and needs no look at the code page.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>

namespace charwalk {

constexpr std::uint32_t kAll = 0xFFFFFFFF;

/// Whether one of the eight bytes from @p text on is 0x80 or above.
inline bool HasHighByte(char const* text) {
    std::uint64_t bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    return (bytes & 0x8080808080808080u) != 0;
}

/// Bytes that the walk spans from @p text over at most @p count characters; 0 for null.
inline std::uint32_t CountBytes(char const* text, std::uint32_t count) {
    if (!text || count == 0) {
        return 0;
    }
    constexpr std::uint32_t kStep = sizeof(std::uint64_t);
    auto const length = static_cast<std::uint32_t>(count == kAll ? std::strlen(text) : strnlen(text, count));
    std::uint32_t at = 0;
    while (length - at >= kStep && !HasHighByte(text + at)) {
        at += kStep;
    }
    // The last few bytes are looked at together with some that have been seen already.
    if (length - at < kStep && length >= kStep && !HasHighByte(text + length - kStep)) {
        return length;
    }
    while (at<length&& static_cast<signed char>(text[at])> 0) {
        ++at;
    }
    return at;
}

/// Whether there is a NUL among @p count bytes. Looks at words, as bytes that were written a moment ago are read faster
/// so.
inline bool HasNul(char const* text, std::uint32_t count) {
    std::uint32_t at = 0;
    for (; count - at >= sizeof(std::uint64_t); at += sizeof(std::uint64_t)) {
        std::uint64_t bytes;
        std::memcpy(&bytes, text + at, sizeof bytes);
        if ((bytes - 0x0101010101010101u) & ~bytes & 0x8080808080808080u) {
            return true;
        }
    }
    for (; at < count; ++at) {
        if (!text[at]) {
            return true;
        }
    }
    return false;
}

/// The place that is @p count characters behind @p text, or where the walk ends before that.
inline char* SkipChars(char* text, std::uint32_t count) {
    return text + CountBytes(text, count);
}

/// Bytes of the character at @p character; 1 for the NUL.
inline std::uint32_t CharSize(char const* character) {
    return *character ? static_cast<std::uint32_t>(CharNextA(character) - character) : 1;
}

}  // namespace charwalk
