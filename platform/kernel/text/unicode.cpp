// Between code pages and UTF-16.
#include <windows.h>

#include <unicode/uchar.h>
#include <unicode/unorm2.h>

#include <cstring>
#include <string>

#include "base/fail.h"
#include "kernel/guarded.h"
#include "kernel/text/codepage.h"

using platform::kernel::CodePage;
using platform::kernel::FindCodePage;
using platform::kernel::Guarded;
using platform::kernel::kNoCharacter;

namespace base = platform::base;

namespace {

// Appends one code point; lone halves and what lies beyond Unicode become the replacement character.
void AppendUtf16(std::u16string& out, char32_t code) {
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) {
        code = kNoCharacter;
    }
    if (code >= 0x10000) {
        code -= 0x10000;
        out += static_cast<char16_t>(0xD800 + (code >> 10));
        out += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    } else {
        out += static_cast<char16_t>(code);
    }
}

bool DecodeUtf8(const unsigned char* text, std::size_t size, std::u16string& out) {
    bool valid = true;
    for (std::size_t at = 0; at < size;) {
        const unsigned char first = text[at++];
        const int more = first < 0x80         ? 0
                         : (first >> 5) == 6  ? 1
                         : (first >> 4) == 14 ? 2
                         : (first >> 3) == 30 ? 3
                                              : -1;
        static constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
        char32_t code = more < 0 ? kNoCharacter : more == 0 ? first : first & (0x3F >> more);
        bool good = more >= 0;
        for (int i = 0; i < more; ++i) {
            if (at >= size || (text[at] & 0xC0) != 0x80) {
                good = false;
                break;
            }
            code = code << 6 | (text[at++] & 0x3F);
        }
        if (!good || code < kLeast[more] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) {
            valid = false;
            code = kNoCharacter;
        }
        AppendUtf16(out, code);
    }
    return valid;
}

bool DecodePage(const CodePage& page, const unsigned char* text, std::size_t size, std::u16string& out) {
    bool valid = true;
    for (std::size_t at = 0; at < size;) {
        std::size_t width;
        const char16_t character = page.Decode(text + at, size - at, &width);
        valid = valid && character != kNoCharacter;
        out += page.Given(character);
        at += width;
    }
    return valid;
}

void EncodeUtf8(const char16_t* text, std::size_t size, std::string& out) {
    for (std::size_t at = 0; at < size;) {
        char32_t code = text[at++];
        if (code >= 0xD800 && code < 0xDC00 && at < size && text[at] >= 0xDC00 && text[at] < 0xE000) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[at++] - 0xDC00);
        } else if (code >= 0xD800 && code < 0xE000) {
            code = kNoCharacter;
        }
        if (code < 0x80) {
            out += static_cast<char>(code);
        } else if (code < 0x800) {
            out += {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 0x3F))};
        } else if (code < 0x10000) {
            out += {static_cast<char>(0xE0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3F)),
                    static_cast<char>(0x80 | (code & 0x3F))};
        } else {
            out += {static_cast<char>(0xF0 | code >> 18), static_cast<char>(0x80 | (code >> 12 & 0x3F)),
                    static_cast<char>(0x80 | (code >> 6 & 0x3F)), static_cast<char>(0x80 | (code & 0x3F))};
        }
    }
}

// The nearest thing that a page has for a character it lacks: what stands first in its decomposition. 0 for none.
std::uint16_t BestFit(const CodePage& page, char16_t character) {
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* forms = unorm2_getNFKDInstance(&error);
    UChar parts[16];
    const std::int32_t length = U_SUCCESS(error) ? unorm2_getRawDecomposition(forms, character, parts, 16, &error) : -1;
    // A letter without its accent is near enough, a symbol without its stroke is not.
    const bool isNear = U_SUCCESS(error) && (length == 1 || (length > 1 && u_isalnum(parts[0])));
    return isNear ? page.fromUnicode[parts[0]] : std::uint16_t{0};
}

void EncodePage(const CodePage& page, const char16_t* text, std::size_t size, std::string& out) {
    for (std::size_t at = 0; at < size; ++at) {
        std::uint16_t bytes = page.fromUnicode[text[at]];
        if (bytes == 0 && text[at] != 0) {
            bytes = BestFit(page, text[at]);
        }
        if (bytes == 0 && text[at] != 0) {
            out += '?';
        } else if (bytes > 0xFF) {
            out += {static_cast<char>(bytes >> 8), static_cast<char>(bytes)};
        } else {
            out += static_cast<char>(bytes);
        }
    }
}

template <class Char>
int Deliver(const std::basic_string<Char>& result, Char* to, int toSize) {
    const auto length = static_cast<int>(result.size());
    if (toSize == 0) {
        return length;
    }
    const int copied = length < toSize ? length : toSize;
    std::memcpy(to, result.data(), static_cast<std::size_t>(copied) * sizeof(Char));
    return length <= toSize ? length : base::Fail(ERROR_INSUFFICIENT_BUFFER, 0);
}

}  // namespace

int WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR from, int fromSize, LPWSTR to, int toSize) {
    if (!from || fromSize == 0 || toSize < 0 || (toSize > 0 && !to)) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    if (flags & ~DWORD{MB_PRECOMPOSED | MB_ERR_INVALID_CHARS}) {
        return base::Fail(ERROR_INVALID_FLAGS, 0);
    }
    const CodePage* page = codePage == CP_UTF8 ? nullptr : FindCodePage(codePage);
    if (!page && codePage != CP_UTF8) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    return Guarded(0, [&] {
        const auto* bytes = reinterpret_cast<const unsigned char*>(from);
        const std::size_t size = fromSize < 0 ? std::strlen(from) + 1 : static_cast<std::size_t>(fromSize);
        std::u16string out;
        out.reserve(size);
        const bool valid = page ? DecodePage(*page, bytes, size, out) : DecodeUtf8(bytes, size, out);
        if (!valid && (flags & MB_ERR_INVALID_CHARS)) {
            return base::Fail(ERROR_NO_UNICODE_TRANSLATION, 0);
        }
        return Deliver(out, to, toSize);
    });
}

int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR from, int fromSize, LPSTR to, int toSize,
                               LPCSTR defaultChar, BOOL* usedDefaultChar) {
    if (!from || fromSize == 0 || toSize < 0 || (toSize > 0 && !to) || defaultChar || usedDefaultChar) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    if (flags) {
        return base::Fail(ERROR_INVALID_FLAGS, 0);
    }
    const CodePage* page = codePage == CP_UTF8 ? nullptr : FindCodePage(codePage);
    if (!page && codePage != CP_UTF8) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    return Guarded(0, [&] {
        const std::size_t size =
            fromSize < 0 ? std::char_traits<char16_t>::length(from) + 1 : static_cast<std::size_t>(fromSize);
        std::string out;
        out.reserve(size);
        page ? EncodePage(*page, from, size, out) : EncodeUtf8(from, size, out);
        return Deliver(out, to, toSize);
    });
}
