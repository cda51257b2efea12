#include "kernel/codepage.h"

#include <unicode/uchar.h>
#include <unicode/ucnv.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <new>

#include "base/report.h"

namespace platform::kernel {
namespace {

struct PageName {
    UINT number;
    const char* converter;
};

constexpr PageName kPages[] = {
    {1252, "ibm-5348_P100-1997"}, {1250, "ibm-5346_P100-1998"}, {1251, "ibm-5347_P100-1998"}, {1253, "ibm-5349_P100-1998"},
    {1254, "ibm-5350_P100-1998"}, {1257, "ibm-9449_P100-2002"}, {437, "ibm-437_P100-1995"},   {850, "ibm-850_P100-1995"},
    {932, "ibm-943_P15A-2003"},   {936, "windows-936-2000"},    {949, "windows-949-2000"},    {950, "windows-950-2000"},
};

constexpr char16_t kNoCharacter = 0xFFFD;

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
        if (u_isdigit(character)) {
            page.kind[byte] |= CodePage::kDigit;
        }
        if (u_isupper(character)) {
            page.kind[byte] |= CodePage::kUpper;
        }
        if (u_islower(character)) {
            page.kind[byte] |= CodePage::kLower;
        }
        const auto upper = static_cast<char16_t>(u_toupper(character));
        const auto lower = static_cast<char16_t>(u_tolower(character));
        for (int other = 0; other < 256; ++other) {
            if (page.single[other] == upper && !page.lead[other]) {
                page.upper[byte] = static_cast<std::uint8_t>(other);
            }
            if (page.single[other] == lower && !page.lead[other]) {
                page.lower[byte] = static_cast<std::uint8_t>(other);
            }
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
        page->single[byte] = byte < 0x80          ? static_cast<char16_t>(byte)
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

UINT ChosenPage() {
    const char* chosen = std::getenv("CVUTIL32_CODEPAGE");
    return chosen ? static_cast<UINT>(std::strtoul(chosen, nullptr, 10)) : 1252;
}

const CodePage* MakeActive() {
    if (const CodePage* page = FindCodePage(ChosenPage())) {
        return page;
    }
    base::ReportOnce("the chosen code page cannot be had; code page 1252 is used");
    const CodePage* western = FindCodePage(1252);
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
    if (number == CP_ACP || number == CP_OEMCP) {
        return &ActiveCodePage();
    }
    static std::mutex lock;
    static auto& built = *new std::map<UINT, std::unique_ptr<CodePage>>;
    const std::lock_guard guard(lock);
    const auto found = built.find(number);
    if (found != built.end()) {
        return found->second.get();
    }
    try {
        for (const PageName& name : kPages) {
            if (name.number == number) {
                return (built[number] = Build(name)).get();
            }
        }
    } catch (const std::bad_alloc&) {
    }
    return nullptr;
}

const CodePage& ActiveCodePage() {
    static const CodePage* const active = MakeActive();
    return *active;
}

}  // namespace platform::kernel

using platform::kernel::ActiveCodePage;
using platform::kernel::CodePage;
using platform::kernel::FindCodePage;

UINT WINAPI GetACP(void) {
    return ActiveCodePage().number;
}

UINT WINAPI GetOEMCP(void) {
    return GetACP();
}

BOOL WINAPI IsValidCodePage(UINT codePage) {
    return codePage == CP_UTF8 || (codePage > CP_OEMCP && FindCodePage(codePage));
}

BOOL WINAPI GetCPInfo(UINT codePage, LPCPINFO info) {
    const CodePage* page = codePage == CP_UTF8 ? nullptr : FindCodePage(codePage);
    if (!info || (!page && codePage != CP_UTF8)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
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

BOOL WINAPI IsDBCSLeadByteEx(UINT codePage, BYTE byte) {
    const CodePage* page = FindCodePage(codePage);
    return page && page->lead[byte];
}
