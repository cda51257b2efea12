/// @file text.h
/// Text in the code page in use, character by character.
#pragma once

#include <windows.h>

#include <array>

#include "gdi/context/context.h"
#include "gdi/text/font.h"

namespace platform::gdi {

/// What the bytes of the code page stand for.
struct CodePage {
    std::array<char16_t, 256> single{};
    std::array<bool, 256> lead{};
};
const CodePage& CurrentCodePage();
/// @returns the character that a lead byte and the byte after it stand for.
char16_t DoubleByte(char lead, char trail);

/// Calls visit(first byte's index, number of bytes, character) for each character.
template <class Visit>
void ForEachCharacter(const char* text, int length, Visit&& visit) {
    const CodePage& page = CurrentCodePage();
    for (int i = 0; i < length;) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (page.lead[byte] && i + 1 < length) {
            visit(i, 2, DoubleByte(text[i], text[i + 1]));
            i += 2;
        } else {
            visit(i, 1, page.single[byte]);
            ++i;
        }
    }
}

/// @returns the width of a text with the context's font.
int TextWidth(DeviceContext& context, const char* text, int length);

/// The distance of tab stops: eight average characters.
int TabWidth(RealizedFont& font);

/// Draws a text whose tabs go on to the next stop, or only measures it. clip: null for none. @returns its width.
int TabbedText(HDC handle, DeviceContext& context, int x, int y, const std::string& text, const RECT* clip, bool draw);

}  // namespace platform::gdi
