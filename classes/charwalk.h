// The character walk on which every position and count of CSTRING rests.
//
// A position is reached by stepping over characters from the start; the walk ends at the NUL and at the first byte of
// 0x80 or above, because it looks at bytes as signed values. Callers rely on that end. A byte that the walk does step
// over is therefore plain ASCII, one character in every code page, and needs no look at the code page.
#pragma once

#include <windows.h>

#include <cstdint>

namespace charwalk {

constexpr std::uint32_t kAll = 0xFFFFFFFF;   ///< as a count
constexpr std::uint32_t kNone = 0xFFFFFFFF;  ///< as a position: no match, or behind the last character

/// Bytes that the walk spans from @p text over at most @p count characters; 0 for null.
std::uint32_t CountBytes(char const* text, std::uint32_t count);

/// Whether there is a NUL among @p count bytes. Looks at words, as bytes that were written a moment ago are read faster
/// so.
bool HasNul(char const* text, std::uint32_t count);

/// The place that is @p count characters behind @p text, or where the walk ends before that.
inline char* SkipChars(char* text, std::uint32_t count) {
    return text + CountBytes(text, count);
}

/// Bytes of the character at @p character; 1 for the NUL.
inline std::uint32_t CharSize(char const* character) {
    return *character ? static_cast<std::uint32_t>(CharNextA(character) - character) : 1;
}

}  // namespace charwalk
