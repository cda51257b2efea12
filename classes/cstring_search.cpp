// CSTRING: comparing and searching, as the system's locale sees it.
#include "cvutil32/cstring.h"

#include "classes/charwalk.h"

using charwalk::CountBytes;
using charwalk::kAll;

namespace {

bool IsPlain(char ch) {
    return (ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
}

// Texts that begin with different plain letters or digits are different in every locale, whatever follows. This spares
// most of the comparisons of a search.
bool CannotMatch(char first, char second) {
    return IsPlain(first) && IsPlain(second) && (first | 0x20) != (second | 0x20);
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
    for (; *place; place = CharNextA(place), ++position) {
        if (StrLen - position < length || static_cast<std::size_t>(end - place) < length) {
            break;
        }
        if (CannotMatch(*place, *text)) {
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
