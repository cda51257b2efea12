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

/// Calls @p look with the places of all words of @p count bytes, at least eight; what lies in the last ones may come twice.
template <class Look>
void ForEachWord(std::size_t count, Look look) {
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    if (count < 2 * kWord) {
        look(0);
        look(count - kWord);
        return;
    }
    for (std::size_t at = 0; at < count - 2 * kWord; at += 2 * kWord) {
        look(at);
        look(at + kWord);
    }
    look(count - 2 * kWord);
    look(count - kWord);
}

/// Bits of which one of kMarks is set if one of eight bytes is NUL.
inline std::uint64_t NulMarks(std::uint64_t word) {
    return (word - 0x0101010101010101u) & ~word;
}

/// The highest bit of each byte: set in NulMarks() or, in the bytes themselves, by 0x80 and above.
constexpr std::uint64_t kMarks = 0x8080808080808080u;

/// Copies the first and the last @p Piece of @p count bytes, which may have some in common.
template <std::size_t Piece>
void CopyEnds(char* to, char const* from, std::size_t count) {
    std::memcpy(to, from, Piece);
    std::memcpy(to + count - Piece, from + count - Piece, Piece);
}

/// Copies @p count bytes between places that do not overlap. No loop, which a compiler takes for a long copy.
inline void Copy(char* to, char const* from, std::size_t count) {
    if (count < 8 || count > 64) {
        std::memcpy(to, from, count);
    } else if (count < 16) {
        CopyEnds<8>(to, from, count);
    } else if (count <= 32) {
        CopyEnds<16>(to, from, count);
    } else {
        CopyEnds<32>(to, from, count);
    }
}

}  // namespace bytes
