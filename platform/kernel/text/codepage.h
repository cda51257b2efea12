/// @file codepage.h
/// Tables of the ANSI code pages, built from ICU once for each page that is used.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform::kernel {

constexpr char16_t kNoCharacter = 0xFFFD;

struct CodePage {
    UINT number = 1252;
    bool doubleByte = false;
    std::array<bool, 256> lead{};
    std::array<char16_t, 256> single{};  ///< what a byte means by itself; 0xFFFD for none
    std::vector<char16_t> pairs;         ///< double-byte pages: by lead << 8 | trail; 0xFFFD for none
    std::vector<std::uint16_t>
        fromUnicode;  ///< bytes (lead << 8 | trail, or the single byte) by UTF-16 unit; 0 for none
    std::array<std::uint8_t, 256> upper{};  ///< case of single bytes
    std::array<std::uint8_t, 256> lower{};
    std::array<std::uint8_t, 256> kind{};  ///< kAlpha | kDigit

    static constexpr std::uint8_t kAlpha = 1, kDigit = 2;

    /// @returns a character as programs get it: what a double-byte page lacks is a dot in the middle.
    char16_t Given(char16_t character) const {
        return character == kNoCharacter && doubleByte ? u'\u30FB' : character;
    }

    /// @returns the character at text[0], and how many bytes it takes (1 or 2; a lead byte before the end takes 1).
    char16_t Decode(const unsigned char* text, std::size_t left, std::size_t* size) const;
};

/// @returns the tables of a page (CP_ACP is the one in use), or null when the page is not supported.
const CodePage* FindCodePage(UINT number);

/// @returns the tables of the page in use; never null.
const CodePage& ActiveCodePage();

}  // namespace platform::kernel
