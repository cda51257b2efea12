// UTIL_: the include-subfolders sign behind the paths of a list.
#include "cvutil32/util.h"

#include "cvutil32/cstring.h"

#include <cstring>
#include <memory>
#include <new>

namespace {

bool IsSeparator(char ch) {
    return ch == ' ' || ch == ';';
}

// The signs, separators and quotes are no second bytes of double-byte characters in any code page, so the text can be
// walked by bytes.

/// Takes out every sign that is not in quotes.
void RemoveSigns(char* text) {
    bool quoted = false;
    char* to = text;
    for (char const* from = text; *from; ++from) {
        if (*from == '+' && !quoted) {
            continue;
        }
        quoted ^= *from == '"';
        *to++ = *from;
    }
    *to = '\0';
}

/// Puts a sign before each run of separators that are not in quotes, and at the end of the text if it ends outside of
/// quotes with something else.
void AddSigns(char const* text, char* to) {
    bool quoted = false;
    char previous = '\0';
    for (char const* from = text;; ++from) {
        char const ch = *from ? *from : ';';
        if (IsSeparator(ch) && !quoted) {
            if (!IsSeparator(previous)) {
                *to++ = '+';
            }
        } else {
            quoted ^= ch == '"';
        }
        previous = ch;
        if (!*from) {
            break;
        }
        *to++ = ch;
    }
    *to = '\0';
}

}  // namespace

CVAPI(void) UTIL_AddRemoveSubdirSymbol(HWND dialog, int controlId, BOOL add) {
    CSTRING field;
    field.GetDlgItemTextA(dialog, controlId);
    if (field.GetStrLen() == 0) {
        return;
    }
    // Read as it stands in the block: anything that grows it would cut the text at its first accented letter.
    char const* const whole = static_cast<CSTRING const&>(field);
    std::size_t const size = std::strlen(whole) + 1;
    // At most one sign more for each character, and one at the end.
    std::unique_ptr<char[]> const text(new (std::nothrow) char[size]);
    std::unique_ptr<char[]> const marked(new (std::nothrow) char[2 * size]);
    if (!text || !marked) {
        return;
    }
    std::memcpy(text.get(), whole, size);
    RemoveSigns(text.get());
    if (add) {
        AddSigns(text.get(), marked.get());
    }
    SetDlgItemTextA(dialog, controlId, add ? marked.get() : text.get());
}
