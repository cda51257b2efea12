/// @file text.h
/// Text in the code page in use, character by character.
#pragma once

#include <windows.h>

#include <cstddef>

#include "gdi/context/context.h"
#include "gdi/text/font.h"
#include "kernel/text/codepage.h"

namespace platform::gdi {

/// @returns whether one byte or two make the character at the beginning of a text.
inline int BytesAt(const kernel::CodePage& page, const char* at, std::ptrdiff_t left) {
    return left > 1 && page.lead[static_cast<unsigned char>(*at)] ? 2 : 1;
}

inline char16_t CharacterAt(const kernel::CodePage& page, const char* at, int bytes) {
    const auto first = static_cast<unsigned char>(at[0]);
    return page.Given(bytes == 2 ? page.pairs[first << 8 | static_cast<unsigned char>(at[1])] : page.single[first]);
}

/// Calls visit(first byte's index, number of bytes, character) for each character.
template <class Visit>
void ForEachCharacter(const char* text, int length, Visit&& visit) {
    const kernel::CodePage& page = kernel::ActiveCodePage();
    for (int i = 0, bytes = 0; i < length; i += bytes) {
        bytes = BytesAt(page, text + i, length - i);
        visit(i, bytes, CharacterAt(page, text + i, bytes));
    }
}

/// @returns the width of a text with the context's font.
int TextWidth(DeviceContext& context, const char* text, int length);

/// The distance of tab stops: eight average characters.
int TabWidth(RealizedFont& font);

/// Draws a text whose tabs go on to the next stop, or only measures it. clip: null for none. @returns its width.
int TabbedText(HDC handle, DeviceContext& context, int x, int y, const std::string& text, const RECT* clip, bool draw);

}  // namespace platform::gdi
