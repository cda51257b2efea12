/// @file weights.h
/// Sort weights of characters: what the word order of texts is made of.
#pragma once

#include <cstdint>

#include "kernel/text/codepage.h"

namespace platform::kernel {

/// The weights of one letter. A character that expands ("ss", "ae") has two of them.
struct Weight {
    std::uint32_t primary = 0;  ///< 0: not compared (control characters; hyphen and apostrophe, which have `special`)
    std::uint8_t accent = 0;
    std::uint8_t letterCase = 0;  ///< kUpper | kKatakana | kWide
    std::uint8_t special = 0;     ///< weighs only where all else is equal

    static constexpr std::uint8_t kUpper = 1, kKatakana = 2, kWide = 4;
};

struct Weights {
    Weight first;
    Weight second;
    bool expands = false;
};

/// @returns the weights of a UTF-16 unit. @param bytes  what it is in its code page, which orders ideographs.
Weights WeightsOf(char16_t character, std::uint16_t bytes);

/// @returns the weights of all single bytes of a page, built once.
const std::array<Weights, 256>& ByteWeights(const CodePage& page);

}  // namespace platform::kernel
