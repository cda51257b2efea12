#include "kernel/weights.h"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>

#include <cstring>
#include <map>
#include <mutex>

namespace platform::kernel {
namespace {

// Punctuation comes first, then mathematical and other symbols, then digits and letters. Hyphen and apostrophe come
// first in string sort and weigh least in word sort. What ASCII lacks follows its own kind, by code point.
constexpr char kPunctuation[] = "'- !\"#$%&()*,./:;?@[\\]^_`{|}~";
constexpr char kMath[] = "+<=>";
constexpr std::uint32_t kFirstPunctuation = 0x10;
constexpr std::uint32_t kOtherPunctuation = 0x100;
constexpr std::uint32_t kFirstMath = 0x10100;
constexpr std::uint32_t kOtherMath = 0x10200;
constexpr std::uint32_t kOtherSymbols = 0x20200;
constexpr std::uint32_t kDigits = 0x30200;
constexpr std::uint32_t kLetters = 0x30300;
constexpr std::uint32_t kOtherLetters = 0x30400;
constexpr std::uint32_t kIdeographs = 0x40400;  // by their place in the code page

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
        {0xAA, u'a'},  {0xB2, u'2'},  {0xB3, u'3'},  {0xB5, 0x3BC}, {0xB9, u'1'},  {0xBA, u'o'},
        {0xD0, u'D'},  {0xD8, u'O'},  {0xF0, u'd'},  {0xF8, u'o'},  {0x110, u'D'}, {0x111, u'd'},
        {0x131, u'i'}, {0x141, u'L'}, {0x142, u'l'}, {0x192, u'f'},
    };
    for (const auto& form : kForms) {
        if (form[0] == character) {
            return form[1];
        }
    }
    return 0;
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
        const char* punctuation = ascii > 0 ? std::strchr(kPunctuation, ascii) : nullptr;
        const char* math = ascii > 0 ? std::strchr(kMath, ascii) : nullptr;
        weight.symbol = punctuation || math;
        if (punctuation) {
            weight.primary = kFirstPunctuation + static_cast<std::uint32_t>(punctuation - kPunctuation);
            weight.special = ascii == '\'' ? 1 : ascii == '-' ? 2 : 0;
        } else if (math) {
            weight.primary = kFirstMath + static_cast<std::uint32_t>(math - kMath);
        } else if (ascii >= '\t' && ascii <= '\r') {
            weight.symbol = true;
            weight.primary = 5 + static_cast<std::uint32_t>(ascii - '\t');
        }
        return weight;  // other control characters weigh nothing
    }
    if (u_iscntrl(character)) {
        return weight;
    }
    if (character == 0xAD) {
        weight.special = 3;
        weight.primary = kFirstPunctuation + 2;
        weight.symbol = true;
        return weight;
    }
    if (!u_isalnum(character) || u_charType(character) == U_MODIFIER_LETTER) {
        const auto kind = U_GET_GC_MASK(character);
        weight.symbol = true;
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

// Reduces a letter with an accent to the letter. @returns the accent's weight, 0 for none.
std::uint8_t TakeAccent(char16_t& character) {
    if (const char16_t plain = PlainForm(character)) {
        character = plain;
        return 0xF0;
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
        accent = static_cast<std::uint8_t>(accent * 31 + (parts[i] & 0x7F) + 2);
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
        weights.first.accent = accent;
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
