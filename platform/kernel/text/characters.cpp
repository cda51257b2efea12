// Characters of the code page in use: stepping, case, classes.
#include <windows.h>

#include <cstring>

#include <unicode/uchar.h>

#include "kernel/text/codepage.h"

using platform::kernel::ActiveCodePage;
using platform::kernel::CodePage;

namespace {

enum class Case { Upper, Lower };

// Double-byte letters (full-width Latin, Greek, Cyrillic) have a case too.
void ConvertPair(const CodePage& page, unsigned char* pair, Case to) {
    const char16_t character = page.pairs[pair[0] << 8 | pair[1]];
    const auto mapped = static_cast<char16_t>(to == Case::Upper ? u_toupper(character) : u_tolower(character));
    const std::uint16_t bytes = page.fromUnicode[mapped];
    if (bytes > 0xFF) {
        pair[0] = static_cast<unsigned char>(bytes >> 8);
        pair[1] = static_cast<unsigned char>(bytes);
    }
}

DWORD ConvertBuffer(LPSTR text, DWORD bytes, Case to) {
    const CodePage& page = ActiveCodePage();
    const auto& table = to == Case::Upper ? page.upper : page.lower;
    auto* at = reinterpret_cast<unsigned char*>(text);
    for (DWORD i = 0; i < bytes; ++i) {
        if (page.lead[at[i]] && i + 1 < bytes) {
            ConvertPair(page, at + i, to);
            ++i;
        } else {
            at[i] = table[at[i]];
        }
    }
    return bytes;
}

// The argument is a character when its upper bits are zero, else a text; a text is the commoner one.
LPSTR ConvertTextOrCharacter(LPSTR textOrChar, Case to) {
    const auto value = reinterpret_cast<ULONG_PTR>(textOrChar);
    if (value >> 16) {
        ConvertBuffer(textOrChar, static_cast<DWORD>(std::strlen(textOrChar)), to);
        return textOrChar;
    }
    char character = static_cast<char>(value);
    ConvertBuffer(&character, 1, to);
    return reinterpret_cast<LPSTR>(ULONG_PTR{static_cast<unsigned char>(character)});
}

BOOL IsKind(CHAR character, int kinds) {
    return (ActiveCodePage().kind[static_cast<unsigned char>(character)] & kinds) != 0;
}

}  // namespace

LPSTR WINAPI CharNextA(LPCSTR text) {
    if (!text || !*text) {
        return const_cast<LPSTR>(text);
    }
    const auto first = static_cast<unsigned char>(*text);
    if (first >= 0x80 && ActiveCodePage().lead[first] && text[1]) {
        return const_cast<LPSTR>(text + 2);
    }
    return const_cast<LPSTR>(text + 1);
}

// A byte in the middle may be a trail byte as well as a character of its own: only the walk from the start tells.
LPSTR WINAPI CharPrevA(LPCSTR start, LPCSTR text) {
    if (!start || !text || text <= start) {
        return const_cast<LPSTR>(start && text ? start : text);
    }
    if (!ActiveCodePage().doubleByte) {
        return const_cast<LPSTR>(text - 1);
    }
    LPCSTR at = start;
    for (LPCSTR next = CharNextA(at); *at && next < text; next = CharNextA(at)) {
        at = next;
    }
    return const_cast<LPSTR>(at);
}

LPSTR WINAPI CharUpperA(LPSTR textOrChar) {
    return ConvertTextOrCharacter(textOrChar, Case::Upper);
}

LPSTR WINAPI CharLowerA(LPSTR textOrChar) {
    return ConvertTextOrCharacter(textOrChar, Case::Lower);
}

DWORD WINAPI CharUpperBuffA(LPSTR text, DWORD bytes) {
    return text ? ConvertBuffer(text, bytes, Case::Upper) : 0;
}

DWORD WINAPI CharLowerBuffA(LPSTR text, DWORD bytes) {
    return text ? ConvertBuffer(text, bytes, Case::Lower) : 0;
}

BOOL WINAPI IsCharAlphaA(CHAR character) {
    return IsKind(character, CodePage::kAlpha);
}

BOOL WINAPI IsCharAlphaNumericA(CHAR character) {
    return IsKind(character, CodePage::kAlpha | CodePage::kDigit);
}
