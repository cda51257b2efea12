#include "kernel/text/weights.h"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>

#include <map>
#include <mutex>
#include <string_view>

namespace platform::kernel {
namespace {

// Punctuation comes first, then mathematical and other symbols, then digits and letters. Hyphen, dashes and apostrophe
// come first in string sort and weigh least in word sort. What the western page lacks follows its own kind, by code
// point.
constexpr std::u16string_view kPunctuation =
    u"'-\u2013\u2014 \u00A0\t\n\v\f\r!\"#$%&()*,./:;?@[\\]^_`{|}~\u00A1\u00A6\u00A8\u00AF\u00B4\u00B8\u00BF\u02DC"
    u"\u2018\u2019\u201A\u201C\u201D\u201E\u2039\u203A\u00A2\u00A3\u00A4\u00A5\u20AC";
constexpr std::u16string_view kMath = u"+<=>\u00B1\u00AB\u00BB\u00D7\u00F7";
constexpr std::u16string_view kSymbols =
    u"\u00A7\u00A9\u00AC\u00AE\u00B0\u00B5\u00B6\u00B7\u2026\u2020\u2021\u2022\u2030";
constexpr std::size_t kHyphens = 4;  // the first of the punctuation
constexpr std::uint32_t kFirstPunctuation = 0x10;
constexpr std::uint32_t kOtherPunctuation = 0x100;
constexpr std::uint32_t kFirstMath = 0x10100;
constexpr std::uint32_t kOtherMath = 0x10200;
constexpr std::uint32_t kFirstSymbol = 0x20200;
constexpr std::uint32_t kOtherSymbols = 0x20300;
constexpr std::uint32_t kDigits = 0x30400;
constexpr std::uint32_t kLetters = 0x30500;
constexpr std::uint32_t kOtherLetters = 0x30600;
constexpr std::uint32_t kIdeographs = 0x40600;  // by their place in the code page
static_assert(kFirstPunctuation + kPunctuation.size() < kOtherPunctuation);

// The half-width Katakana from U+FF66 to U+FF9D by their full-width forms.
constexpr char16_t kHalfWidth[] =
    u"\u30F2\u30A1\u30A3\u30A5\u30A7\u30A9\u30E3\u30E5\u30E7\u30C3\u30FC\u30A2\u30A4\u30A6\u30A8\u30AA"
    u"\u30AB\u30AD\u30AF\u30B1\u30B3\u30B5\u30B7\u30B9\u30BB\u30BD\u30BF\u30C1\u30C4\u30C6\u30C8\u30CA"
    u"\u30CB\u30CC\u30CD\u30CE\u30CF\u30D2\u30D5\u30D8\u30DB\u30DE\u30DF\u30E0\u30E1\u30E2\u30E4\u30E6"
    u"\u30E8\u30E9\u30EA\u30EB\u30EC\u30ED\u30EF\u30F3";

Weight Letter(char small, bool upper) {
    Weight weight;
    weight.primary = kLetters + static_cast<std::uint32_t>(small - 'a') * 2;
    weight.letterCase = upper ? Weight::kUpper : 0;
    return weight;
}

// Letters that count as two.
bool Expansion(char16_t character, Weights& weights) {
    struct Pair {
        char16_t character;
        char first, second;
        bool upper;
    };
    static constexpr Pair kPairs[] = {{0xC6, 'a', 'e', true},  {0xE6, 'a', 'e', false},  {0xDF, 's', 's', false},
                                      {0x152, 'o', 'e', true}, {0x153, 'o', 'e', false}, {0xDE, 't', 'h', true},
                                      {0xFE, 't', 'h', false}, {0x2122, 't', 'm', true}};
    for (const Pair& pair : kPairs) {
        if (pair.character == character) {
            weights.first = Letter(pair.first, pair.upper);
            weights.second = Letter(pair.second, pair.upper);
            weights.expands = true;
            return true;
        }
    }
    return false;
}

// Letters with a stroke, and raised letters and figures, have no decomposition, but stand with their plain form.
char16_t PlainForm(char16_t character) {
    static constexpr char16_t kForms[][2] = {
        {0xAA, u'a'},  {0xB2, u'2'},  {0xB3, u'3'},  {0xB9, u'1'},  {0xBA, u'o'},
        {0xD0, u'D'},  {0xD8, u'O'},  {0xF0, u'd'},  {0xF8, u'o'},  {0x110, u'D'},
        {0x111, u'd'}, {0x131, u'i'}, {0x141, u'L'}, {0x142, u'l'}, {0x192, u'f'},
    };
    for (const auto& form : kForms) {
        if (form[0] == character) {
            return form[1];
        }
    }
    return 0;
}

// A symbol that has a place of its own; else one with primary 0.
Weight Listed(char16_t character) {
    Weight weight;
    if (const std::size_t place = kPunctuation.find(character); place != kPunctuation.npos) {
        weight.primary = kFirstPunctuation + static_cast<std::uint32_t>(place);
        weight.special = place < kHyphens ? static_cast<std::uint8_t>(place + 1) : 0;
    } else if (const std::size_t math = kMath.find(character); math != kMath.npos) {
        weight.primary = kFirstMath + static_cast<std::uint32_t>(math);
    } else if (const std::size_t symbol = kSymbols.find(character); symbol != kSymbols.npos) {
        weight.primary = kFirstSymbol + static_cast<std::uint32_t>(symbol);
    }
    return weight;
}

Weight Plain(char16_t character) {
    Weight weight;
    if (character < 0x80) {
        const char ascii = static_cast<char>(character);
        if (u_isalpha(character)) {
            return Letter(static_cast<char>(ascii | 0x20), ascii < 'a');
        }
        if (ascii >= '0' && ascii <= '9') {
            weight.primary = kDigits + static_cast<std::uint32_t>(ascii - '0') * 2;
            return weight;
        }
    }
    if (const Weight symbol = Listed(character); symbol.primary) {
        return symbol;
    }
    if (u_iscntrl(character)) {
        return weight;  // control characters weigh nothing
    }
    if (character == 0xAD) {
        weight.special = kHyphens + 1;
        weight.primary = kFirstPunctuation + 2;
        return weight;
    }
    if (character >= 0xBC && character <= 0xBE) {
        weight.primary = kDigits + 1;  // one quarter, one half, three quarters, between 0 and 1
        weight.accent = static_cast<std::uint8_t>(character - 0xBC + 1);
        return weight;
    }
    if (!u_isalnum(character) || u_charType(character) == U_MODIFIER_LETTER) {
        const auto kind = U_GET_GC_MASK(character);
        weight.primary = (kind & (U_GC_P_MASK | U_GC_SK_MASK | U_GC_Z_MASK) ? kOtherPunctuation
                          : kind & U_GC_SM_MASK                             ? kOtherMath
                                                                            : kOtherSymbols) +
                         character;
        return weight;
    }
    const auto lower = static_cast<char16_t>(u_tolower(character));
    weight.primary = kOtherLetters + lower;
    weight.letterCase = lower != character ? Weight::kUpper : 0;
    return weight;
}

char16_t Narrow(char16_t character) {
    if (character >= 0xFF01 && character <= 0xFF5E) {
        return static_cast<char16_t>(character - 0xFF01 + 0x21);
    }
    return character == 0x3000 ? u' ' : character;
}

// Han characters and Korean syllables.
bool IsIdeograph(char16_t character) {
    return (character >= 0x3400 && character <= 0x9FFF) || (character >= 0xAC00 && character <= 0xD7A3) ||
           (character >= 0xF900 && character <= 0xFAFF);
}

// Acute, grave, circumflex, diaeresis, tilde, ring; the others by code point.
std::uint8_t AccentOf(char16_t mark) {
    constexpr std::u16string_view order = u"\u0301\u0300\u0302\u0308\u0303\u030A";
    const std::size_t place = order.find(mark);
    return static_cast<std::uint8_t>(place != order.npos ? place + 2 : (mark & 0x7F) + 10);
}

// Reduces a letter with an accent to the letter. @returns the accent's weight, 0 for none.
std::uint8_t TakeAccent(char16_t& character) {
    if (const char16_t plain = PlainForm(character)) {
        const bool raised = character == 0xAA || character == 0xBA;
        character = plain;
        return raised ? 1 : 0xF0;
    }
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* forms = unorm2_getNFDInstance(&error);
    UChar parts[8];
    const std::int32_t length =
        character >= 0xC0 && U_SUCCESS(error) ? unorm2_getDecomposition(forms, character, parts, 8, &error) : -1;
    if (U_FAILURE(error) || length < 2) {
        return 0;
    }
    std::uint8_t accent = 0;
    for (std::int32_t i = 1; i < length; ++i) {
        accent = static_cast<std::uint8_t>(accent * 31 + AccentOf(parts[i]));
    }
    character = parts[0];
    return accent;
}

}  // namespace

Weights WeightsOf(char16_t character, std::uint16_t bytes) {
    Weights weights;
    std::uint8_t form = 0;
    if (Narrow(character) != character) {
        character = Narrow(character);
        form |= Weight::kWide;
    }
    // Half-width Katakana is the narrow form, full-width the wide one, as with Latin letters.
    if (character >= 0xFF66 && character <= 0xFF9D) {
        character = static_cast<char16_t>(kHalfWidth[character - 0xFF66] - 0x60);
        form |= Weight::kKatakana;
    } else if (character >= 0x30A1 && character <= 0x30F6) {
        character = static_cast<char16_t>(character - 0x60);
        form |= Weight::kKatakana | Weight::kWide;
    } else if (character >= 0x3041 && character <= 0x3096) {
        form |= Weight::kWide;
    }
    if (IsIdeograph(character)) {
        weights.first.primary = kIdeographs + bytes;
    } else if (!Expansion(character, weights)) {
        char16_t base = character;
        const std::uint8_t accent = TakeAccent(base);
        weights.first = Plain(base);
        weights.first.accent |= accent;
    }
    weights.first.letterCase |= form;
    weights.second.letterCase |= weights.expands ? form : 0;
    return weights;
}

const std::array<Weights, 256>& ByteWeights(const CodePage& page) {
    using Table = std::array<Weights, 256>;
    static std::mutex lock;
    static auto& tables = *new std::map<UINT, Table>;
    const std::lock_guard guard(lock);
    const auto [place, fresh] = tables.try_emplace(page.number);
    if (fresh) {
        for (int byte = 0; byte < 256; ++byte) {
            if (!page.lead[byte]) {
                place->second[byte] = WeightsOf(page.single[byte], static_cast<std::uint16_t>(byte));
            }
        }
    }
    return place->second;
}

}  // namespace platform::kernel
