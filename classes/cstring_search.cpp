// CSTRING: comparing and searching, as the system's locale sees it.
#include "cvutil32/cstring.h"

#include "classes/charwalk.h"

#include <array>

using charwalk::CountBytes;
using charwalk::kAll;

namespace {

// What stands for a character in every locale: small letters for both cases, and each other character of ASCII for
// itself. Hyphen and apostrophe, which weigh nothing at first, and all else have 0.
constexpr std::array<char, 256> MakePlainForms() {
    std::array<char, 256> forms{};
    for (int ch = ' '; ch < 0x7F; ++ch) {
        bool const isCapital = ch >= 'A' && ch <= 'Z';
        bool const weighs = ch != '-' && ch != '\'';
        forms[static_cast<std::size_t>(ch)] = static_cast<char>(weighs ? isCapital ? ch | 0x20 : ch : 0);
    }
    return forms;
}
constexpr std::array<char, 256> kPlainForms = MakePlainForms();

char PlainForm(char ch) {
    return kPlainForms[static_cast<unsigned char>(ch)];
}

}  // namespace

int CSTRING::Compare(char const* text) {
    return StandardEntry() ? lstrcmpA(Buffer, text) : 0;
}

int CSTRING::CompareNoCase(char const* text) {
    return StandardEntry() ? lstrcmpiA(Buffer, text) : 0;
}

// From ~0 it looks for the last match in the whole text, from anywhere else for the first one at or behind the start.
unsigned int CSTRING::Search(char const* text, unsigned int length, unsigned int start, unsigned long flags) const {
    std::uint32_t found = kAll;
    if (!IsValid() || !text || length == 0) {
        return found;
    }
    bool const last = start == kAll;
    std::uint32_t position = last ? 0 : start;
    char const* place = Buffer + CountBytes(Buffer, position);
    char const* const end = Buffer + BufLen;
    // Texts that begin with different plain characters are different, whatever follows. This spares most of the
    // comparisons of a search.
    char const first = PlainForm(*text);
    for (; *place; place = static_cast<signed char>(*place) > 0 ? place + 1 : CharNextA(place), ++position) {
        if (StrLen - position < length || static_cast<std::size_t>(end - place) < length) {
            break;
        }
        char const form = PlainForm(*place);
        if (form && first && form != first) {
            continue;
        }
        int const size = static_cast<int>(length);
        if (CompareStringA(LOCALE_SYSTEM_DEFAULT, flags, place, size, text, size) == CSTR_EQUAL) {
            found = position;
            if (!last) {
                break;
            }
        }
    }
    return found;
}

// On an object that is not sound all four look like a match at the start; callers rely on it.

unsigned int CSTRING::Find(char ch, unsigned int start) {
    return StandardEntry() ? Search(&ch, 1, start, 0) : 0;
}

unsigned int CSTRING::Find(char const* text, unsigned int start) {
    return StandardEntry() ? Search(text, lstrlenA(text), start, 0) : 0;
}

unsigned int CSTRING::FindNoCase(char ch, unsigned int start) {
    return StandardEntry() ? Search(&ch, 1, start, NORM_IGNORECASE) : 0;
}

unsigned int CSTRING::FindNoCase(char const* text, unsigned int start) {
    return StandardEntry() ? Search(text, lstrlenA(text), start, NORM_IGNORECASE) : 0;
}
