#include "kernel/text/codepage.h"

#include <unicode/uchar.h>
#include <unicode/ucnv.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <mutex>
#include <new>
#include <string>

#include "base/report.h"
#include "base/fail.h"
#include "kernel/text/above.h"

namespace platform::kernel {
namespace {

struct PageName {
    UINT number;
    UINT oem;  ///< the page of consoles that goes with it
    const char* converter;
};

constexpr PageName kPages[] = {
    {1252, 437, "ibm-5348_P100-1997"}, {1250, 852, "ibm-5346_P100-1998"}, {1251, 866, "ibm-5347_P100-1998"},
    {1253, 737, "ibm-5349_P100-1998"}, {1254, 857, "ibm-5350_P100-1998"}, {1255, 862, "ibm-9447_P100-2002"},
    {1256, 720, "ibm-9448_X100-2005"}, {1257, 775, "ibm-9449_P100-2002"}, {1258, 1258, "ibm-5354_P100-1998"},
    {874, 874, "windows-874-2000"},    {932, 932, "ibm-943_P15A-2003"},   {936, 936, "windows-936-2000"},
    {949, 949, "windows-949-2000"},    {950, 950, "windows-950-2000"},
};

const PageName* NameOf(UINT number) {
    const auto* found = std::ranges::find(kPages, number, &PageName::number);
    return found == std::end(kPages) ? nullptr : found;
}

constexpr UINT kWestern = 1252;

struct Range {
    unsigned char first, last;
};

// The documented lead byte ranges (GetCPInfo).
std::array<Range, 2> LeadRanges(UINT number) {
    switch (number) {
        case 932:
            return {Range{0x81, 0x9F}, Range{0xE0, 0xFC}};
        case 936:
        case 949:
        case 950:
            return {Range{0x81, 0xFE}, Range{1, 0}};
        default:
            return {Range{1, 0}, Range{1, 0}};
    }
}

char16_t Convert(UConverter* converter, const char* bytes, int size) {
    char16_t out[4];
    UErrorCode error = U_ZERO_ERROR;
    ucnv_reset(converter);
    const std::int32_t length = ucnv_toUChars(converter, out, 4, bytes, size, &error);
    return U_SUCCESS(error) && length == 1 ? out[0] : kNoCharacter;
}

void FillCase(CodePage& page) {
    for (int byte = 0; byte < 256; ++byte) {
        page.upper[byte] = page.lower[byte] = static_cast<std::uint8_t>(byte);
        const char16_t character = page.single[byte];
        if (page.lead[byte] || character == kNoCharacter) {
            continue;
        }
        if (u_isalpha(character)) {
            page.kind[byte] |= CodePage::kAlpha;
        }
        // The raised figures of Latin-1 are digits too.
        if (const int numeric = u_getIntPropertyValue(character, UCHAR_NUMERIC_TYPE);
            numeric == U_NT_DECIMAL || numeric == U_NT_DIGIT) {
            page.kind[byte] |= CodePage::kDigit;
        }
        // A letter whose other case the page lacks keeps its own.
        const std::uint16_t upper = page.fromUnicode[static_cast<char16_t>(u_toupper(character))];
        const std::uint16_t lower = page.fromUnicode[static_cast<char16_t>(u_tolower(character))];
        if (upper != 0 && upper <= 0xFF) {
            page.upper[byte] = static_cast<std::uint8_t>(upper);
        }
        if (lower != 0 && lower <= 0xFF) {
            page.lower[byte] = static_cast<std::uint8_t>(lower);
        }
    }
}

std::unique_ptr<CodePage> Build(const PageName& name) {
    UErrorCode error = U_ZERO_ERROR;
    UConverter* converter = ucnv_open(name.converter, &error);
    if (U_FAILURE(error)) {
        return nullptr;
    }
    auto page = std::make_unique<CodePage>();
    page->number = name.number;
    page->fromUnicode.assign(0x10000, 0);
    for (const Range& range : LeadRanges(name.number)) {
        for (int lead = range.first; lead <= range.last; ++lead) {
            page->lead[lead] = page->doubleByte = true;
        }
    }
    for (int byte = 0; byte < 256; ++byte) {
        const char one = static_cast<char>(byte);
        page->single[byte] = byte < 0x80        ? static_cast<char16_t>(byte)
                             : page->lead[byte] ? kNoCharacter
                                                : Convert(converter, &one, 1);
        if (page->single[byte] != kNoCharacter) {
            page->fromUnicode[page->single[byte]] = static_cast<std::uint16_t>(byte);
        }
    }
    if (page->doubleByte) {
        page->pairs.assign(0x10000, kNoCharacter);
        for (int pair = 0x8100; pair < 0xFF00; ++pair) {
            const char bytes[2] = {static_cast<char>(pair >> 8), static_cast<char>(pair)};
            if (!page->lead[pair >> 8] || (pair & 0xFF) < 0x40) {
                continue;
            }
            const char16_t character = Convert(converter, bytes, 2);
            page->pairs[pair] = character;
            if (character != kNoCharacter && !page->fromUnicode[character]) {
                page->fromUnicode[character] = static_cast<std::uint16_t>(pair);
            }
        }
    }
    ucnv_close(converter);
    FillCase(*page);
    return page;
}

// What stands in for the page in use when ICU's data cannot be read: ASCII and Latin-1.
std::unique_ptr<CodePage> Latin() {
    auto page = std::make_unique<CodePage>();
    page->fromUnicode.assign(0x10000, 0);
    for (int byte = 0; byte < 256; ++byte) {
        page->single[byte] = static_cast<char16_t>(byte);
        page->fromUnicode[byte] = static_cast<std::uint16_t>(byte);
    }
    FillCase(*page);
    return page;
}

// The environment comes before win.ini's [cvutil32] codepage.
UINT ChosenPage() {
    const char* variable = std::getenv("CVUTIL32_CODEPAGE");
    const std::string chosen = variable ? variable : WinIniValue("cvutil32", "codepage").value_or(std::string());
    return chosen.empty() ? kWestern : static_cast<UINT>(std::strtoul(chosen.c_str(), nullptr, 10));
}

const CodePage* MakeActive() {
    try {
        const UINT chosen = ChosenPage();
        if (const CodePage* page = chosen == CP_ACP ? nullptr : FindCodePage(chosen)) {
            return page;
        }
    } catch (const std::bad_alloc&) {
    }
    base::ReportOnce("the chosen code page cannot be had; code page 1252 is used");
    const CodePage* western = FindCodePage(kWestern);
    return western ? western : Latin().release();
}

}  // namespace

char16_t CodePage::Decode(const unsigned char* text, std::size_t left, std::size_t* size) const {
    *size = 1;
    if (lead[text[0]] && left > 1 && text[1]) {
        *size = 2;
        return pairs[text[0] << 8 | text[1]];
    }
    return single[text[0]];
}

const CodePage* FindCodePage(UINT number) {
    if (number == CP_ACP) {
        return &ActiveCodePage();
    }
    static std::mutex lock;
    static auto& built = *new std::map<UINT, std::unique_ptr<CodePage>>;
    const PageName* name = NameOf(number);
    if (!name) {
        return nullptr;
    }
    const std::lock_guard guard(lock);
    try {
        std::unique_ptr<CodePage>& page = built[name->number];
        if (!page) {
            page = Build(*name);
        }
        return page.get();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

const CodePage& ActiveCodePage() {
    static const CodePage* const active = MakeActive();
    return *active;
}

}  // namespace platform::kernel

using platform::kernel::ActiveCodePage;
using platform::kernel::CodePage;
using platform::kernel::FindCodePage;
namespace base = platform::base;

UINT WINAPI GetACP(void) {
    return ActiveCodePage().number;
}

UINT WINAPI GetOEMCP(void) {
    const platform::kernel::PageName* name = platform::kernel::NameOf(GetACP());
    return name ? name->oem : 437;
}

BOOL WINAPI GetCPInfo(UINT codePage, LPCPINFO info) {
    const CodePage* page = codePage == CP_UTF8 ? nullptr : FindCodePage(codePage);
    if (!info || (!page && codePage != CP_UTF8)) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    *info = CPINFO{page ? (page->doubleByte ? 2u : 1u) : 4u, {'?', 0}, {}};
    if (page && page->doubleByte) {
        BYTE* to = info->LeadByte;
        for (const auto& range : platform::kernel::LeadRanges(page->number)) {
            if (range.first <= range.last) {
                *to++ = range.first;
                *to++ = range.last;
            }
        }
    }
    return TRUE;
}

BOOL WINAPI IsDBCSLeadByte(BYTE byte) {
    return ActiveCodePage().lead[byte];
}
