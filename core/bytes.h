// Short runs of bytes: most texts and records are short, and a call to copy one would take longer than the copy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace bytes {

/// Eight bytes from any address.
inline std::uint64_t Word(char const* from) {
    std::uint64_t word;
    std::memcpy(&word, from, sizeof word);
    return word;
}

/// Whether one of eight bytes is NUL.
inline bool HasNul(std::uint64_t word) {
    return ((word - 0x0101010101010101u) & ~word & 0x8080808080808080u) != 0;
}

/// Whether one of eight bytes is 0x80 or above.
inline bool HasHigh(std::uint64_t word) {
    return (word & 0x8080808080808080u) != 0;
}

/// Copies @p count bytes between places that do not overlap, in pieces of which the last two may.
inline void Copy(char* to, char const* from, std::size_t count) {
    constexpr std::size_t kPiece = 16;
    constexpr std::size_t kHalf = kPiece / 2;
    if (count - kHalf > 4 * kPiece) {
        std::memcpy(to, from, count);
    } else if (count < kPiece) {
        std::uint64_t const first = Word(from);
        std::uint64_t const last = Word(from + count - kHalf);
        std::memcpy(to, &first, kHalf);
        std::memcpy(to + count - kHalf, &last, kHalf);
    } else {
        for (std::size_t at = 0; at < count - kPiece; at += kPiece) {
            std::memcpy(to + at, from + at, kPiece);
        }
        std::memcpy(to + count - kPiece, from + count - kPiece, kPiece);
    }
}

}  // namespace bytes
