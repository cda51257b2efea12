// Comparison in word order: letters first over the whole text, then accents, then case, and last where hyphens and
// apostrophes stand.
#include <windows.h>

#include <cstring>

#include "kernel/codepage.h"
#include "kernel/weights.h"

using platform::kernel::ActiveCodePage;
using platform::kernel::ByteWeights;
using platform::kernel::CodePage;
using platform::kernel::Weight;
using platform::kernel::Weights;

namespace {

// The page in use never changes while the process runs.
struct Tables {
    const CodePage& page = ActiveCodePage();
    const std::array<Weights, 256>& weights = ByteWeights(page);
    std::array<std::uint8_t, 256> simple{};  ///< plain letters and digits: their folded byte; 0 for all else

    Tables() {
        for (int byte = 0; byte < 128; ++byte) {
            const char lower = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte | 0x20 : byte);
            if ((lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9')) {
                simple[byte] = static_cast<std::uint8_t>(lower);
            }
        }
    }
};

const Tables& TheTables() {
    static const Tables tables;
    return tables;
}

// Hands out the weights of a text one by one, without those that the flags leave out.
class Reader {
  public:
    Reader(const Tables& tables, LPCSTR text, std::size_t size, DWORD flags)
        : tables_(tables), at_(reinterpret_cast<const unsigned char*>(text)), end_(at_ + size), flags_(flags) {}

    /// @returns the next weight that is compared, or one with primary 0 at the end. Specials that were passed are added to
    /// `specials`, a number that grows with their weight and place.
    Weight Next() {
        for (;;) {
            Weight weight;
            if (pending_) {
                weight = second_;
                pending_ = false;
            } else if (at_ == end_) {
                return {};
            } else {
                weight = Read();
            }
            ++place_;
            if (weight.symbol && (flags_ & NORM_IGNORESYMBOLS)) {
                continue;
            }
            if (weight.special && !(flags_ & SORT_STRINGSORT)) {
                --place_;
                if (!firstSpecial_) {
                    firstSpecial_ = weight.special;
                    firstPlace_ = place_;
                }
                specials_ = specials_ * 1000003 + place_ * 7 + weight.special;
                continue;
            }
            if (weight.primary) {
                return weight;
            }
            --place_;
        }
    }

    std::uint64_t specials() const { return specials_; }
    std::uint32_t firstSpecial() const { return firstSpecial_; }
    std::uint32_t firstPlace() const { return firstPlace_; }

  private:
    Weight Read() {
        const Weights* weights = &tables_.weights[*at_];
        Weights pair;
        if (tables_.page.lead[*at_] && at_ + 1 < end_) {
            pair = platform::kernel::WeightsOf(tables_.page.pairs[at_[0] << 8 | at_[1]]);
            weights = &pair;
            ++at_;
        }
        ++at_;
        second_ = weights->second;
        pending_ = weights->expands;
        return weights->first;
    }

    const Tables& tables_;
    const unsigned char* at_;
    const unsigned char* end_;
    DWORD flags_;
    Weight second_;
    bool pending_ = false;
    std::uint32_t place_ = 0;
    std::uint32_t firstSpecial_ = 0;
    std::uint32_t firstPlace_ = 0;
    std::uint64_t specials_ = 0;
};

int Order(std::uint64_t first, std::uint64_t second) {
    return first < second ? CSTR_LESS_THAN : first > second ? CSTR_GREATER_THAN : CSTR_EQUAL;
}

int CompareWeights(const Tables& tables, LPCSTR first, std::size_t firstSize, LPCSTR second, std::size_t secondSize,
                   DWORD flags) {
    Reader a(tables, first, firstSize, flags);
    Reader b(tables, second, secondSize, flags);
    std::uint8_t caseMask = 0xFF;
    caseMask &= flags & NORM_IGNORECASE ? ~Weight::kUpper : 0xFF;
    caseMask &= flags & NORM_IGNOREKANATYPE ? ~Weight::kKatakana : 0xFF;
    caseMask &= flags & NORM_IGNOREWIDTH ? ~Weight::kWide : 0xFF;
    int accents = CSTR_EQUAL;
    int cases = CSTR_EQUAL;
    for (;;) {
        const Weight x = a.Next();
        const Weight y = b.Next();
        if (x.primary != y.primary) {
            return Order(x.primary, y.primary);
        }
        if (x.primary == 0) {
            break;
        }
        if (accents == CSTR_EQUAL && !(flags & NORM_IGNORENONSPACE)) {
            accents = Order(x.accent, y.accent);
        }
        if (cases == CSTR_EQUAL) {
            cases = Order(x.letterCase & caseMask, y.letterCase & caseMask);
        }
    }
    if (accents != CSTR_EQUAL) {
        return accents;
    }
    if (cases != CSTR_EQUAL) {
        return cases;
    }
    if (a.specials() == b.specials()) {
        return CSTR_EQUAL;
    }
    // A text without a hyphen or apostrophe comes before one with; else the earlier one, then the lighter one decides.
    if (!a.firstSpecial() || !b.firstSpecial()) {
        return a.firstSpecial() ? CSTR_GREATER_THAN : CSTR_LESS_THAN;
    }
    if (a.firstPlace() != b.firstPlace()) {
        return a.firstPlace() < b.firstPlace() ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
    }
    if (a.firstSpecial() != b.firstSpecial()) {
        return Order(a.firstSpecial(), b.firstSpecial());
    }
    return Order(a.specials(), b.specials());
}

// Texts that begin with the same plain letters and digits are told apart by the first different ones, if these are plain too.
// Only whole texts of them need no second look: what follows may weigh less than the case of what came before.
int CompareTexts(LPCSTR first, std::size_t firstSize, LPCSTR second, std::size_t secondSize, DWORD flags) {
    const Tables& tables = TheTables();
    const auto* x = reinterpret_cast<const unsigned char*>(first);
    const auto* y = reinterpret_cast<const unsigned char*>(second);
    const std::size_t common = firstSize < secondSize ? firstSize : secondSize;
    bool sameCase = true;
    std::size_t i = 0;
    for (; i < common; ++i) {
        const std::uint8_t a = tables.simple[x[i]];
        const std::uint8_t b = tables.simple[y[i]];
        if (!a || !b) {
            break;
        }
        if (a != b) {
            return a < b ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
        }
        sameCase = sameCase && x[i] == y[i];
    }
    if (i == firstSize && i == secondSize && (sameCase || (flags & NORM_IGNORECASE))) {
        return CSTR_EQUAL;
    }
    return CompareWeights(tables, first, firstSize, second, secondSize, flags);
}

}  // namespace

int WINAPI CompareStringA(LCID locale, DWORD flags, LPCSTR first, int firstSize, LPCSTR second, int secondSize) {
    constexpr DWORD known = NORM_IGNORECASE | NORM_IGNORENONSPACE | NORM_IGNORESYMBOLS | NORM_IGNOREKANATYPE |
                            NORM_IGNOREWIDTH | SORT_STRINGSORT | LOCALE_USE_CP_ACP;
    if (flags & ~known) {
        SetLastError(ERROR_INVALID_FLAGS);
        return 0;
    }
    if (!first || !second || (locale >> 16) > 0xF) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return CompareTexts(first, firstSize < 0 ? std::strlen(first) : static_cast<std::size_t>(firstSize), second,
                        secondSize < 0 ? std::strlen(second) : static_cast<std::size_t>(secondSize), flags);
}

namespace {

// A null text comes before all others; two of them are equal.
int CompareOrdered(LPCSTR first, LPCSTR second, DWORD flags) {
    if (!first || !second) {
        return first ? 1 : second ? -1 : 0;
    }
    return CompareTexts(first, std::strlen(first), second, std::strlen(second), flags) - CSTR_EQUAL;
}

}  // namespace

int WINAPI lstrcmpA(LPCSTR first, LPCSTR second) {
    return CompareOrdered(first, second, 0);
}

int WINAPI lstrcmpiA(LPCSTR first, LPCSTR second) {
    return CompareOrdered(first, second, NORM_IGNORECASE);
}
