// Comparison in word order: letters first over the whole text, then accents, then case, and last where hyphens and
// apostrophes stand.
#include <windows.h>

#include <array>
#include <cstring>
#include <iterator>
#include <new>
#include <set>
#include <utility>

#include "base/fail.h"
#include "kernel/text/codepage.h"
#include "kernel/text/weights.h"

using platform::kernel::ActiveCodePage;
using platform::kernel::ByteWeights;
using platform::kernel::CodePage;
using platform::kernel::Weight;
using platform::kernel::Weights;
namespace base = platform::base;

namespace {

// A byte that is compared by itself, as nearly all are. Rank 0 marks the others: lead bytes, letters that count as two,
// hyphens, apostrophes, and what is not compared.
struct Simple {
    std::uint8_t rank = 0;  ///< the order of the primary weights within the page
    std::uint8_t accent = 0;
    std::uint8_t letterCase = 0;
};

// The page in use never changes while the process runs.
struct Tables {
    const CodePage& page = ActiveCodePage();
    const std::array<Weights, 256>& weights = ByteWeights(page);
    std::array<Simple, 256> simple{};

    Tables() {
        std::set<std::uint32_t> primaries;
        for (const Weights& byte : weights) {
            primaries.insert(byte.first.primary);
        }
        primaries.insert(0);
        for (int byte = 0; byte < 256; ++byte) {
            const Weight& weight = weights[byte].first;
            if (!page.lead[byte] && !weights[byte].expands && !weight.special) {
                const auto rank = std::distance(primaries.begin(), primaries.find(weight.primary));
                simple[byte] = {static_cast<std::uint8_t>(rank), weight.accent, weight.letterCase};
            }
        }
    }
};

const Tables& TheTables() {
    static const Tables tables;
    return tables;
}

struct Text {
    const unsigned char* at;
    const unsigned char* end;
};

int Order(std::uint64_t first, std::uint64_t second) {
    return first < second ? CSTR_LESS_THAN : first > second ? CSTR_GREATER_THAN : CSTR_EQUAL;
}

// Hands out the weights of a text one by one.
class Reader {
  public:
    Reader(const Tables& tables, Text text) : tables_(tables), text_(text) {}

    /// @returns the next weight that letters, accents and case are compared by; one with primary 0 at the end.
    Weight Next() {
        Weight weight;
        while (Step(weight)) {
            if (weight.special) {
                sawSpecial_ = true;
            } else if (weight.primary) {
                return weight;
            }
        }
        return {};
    }

    /// @returns the next hyphen or apostrophe and how many compared weights stand before it; {0, 0} at the end.
    std::pair<std::uint32_t, std::uint8_t> NextSpecial() {
        Weight weight;
        while (Step(weight)) {
            if (weight.special) {
                return {place_, weight.special};
            }
            place_ += weight.primary != 0;
        }
        return {0, 0};
    }

    bool sawSpecial() const {
        return sawSpecial_;
    }

  private:
    bool Step(Weight& weight) {
        if (pending_) {
            pending_ = false;
            weight = second_;
            return true;
        }
        if (text_.at == text_.end) {
            return false;
        }
        const unsigned char first = *text_.at++;
        const Weights* weights = &tables_.weights[first];
        Weights pair;
        if (tables_.page.lead[first] && text_.at < text_.end) {
            const auto bytes = static_cast<std::uint16_t>(first << 8 | *text_.at++);
            pair = platform::kernel::WeightsOf(tables_.page.pairs[bytes], bytes);
            weights = &pair;
        }
        weight = weights->first;
        if (weights->expands) {
            second_ = weights->second;
            pending_ = true;
        }
        return true;
    }

    const Tables& tables_;
    Text text_;
    Weight second_;
    bool pending_ = false;
    bool sawSpecial_ = false;
    std::uint32_t place_ = 0;
};

// A text without a hyphen or apostrophe comes before one with; else the earlier one, then the lighter one decides.
int CompareSpecials(Reader first, Reader second) {
    for (;;) {
        const auto x = first.NextSpecial();
        const auto y = second.NextSpecial();
        if (x != y) {
            return !y.second || (x.second && x > y) ? CSTR_GREATER_THAN : CSTR_LESS_THAN;
        }
        if (!x.second) {
            return CSTR_EQUAL;
        }
    }
}

std::uint8_t CaseMask(DWORD flags) {
    int mask = 0xFF;
    mask &= flags & NORM_IGNORECASE ? ~Weight::kUpper : 0xFF;
    mask &= flags & NORM_IGNOREWIDTH ? ~Weight::kWide : 0xFF;
    return static_cast<std::uint8_t>(mask);
}

int CompareWeights(const Tables& tables, Text first, Text second, DWORD flags) {
    Reader a(tables, first);
    Reader b(tables, second);
    const std::uint8_t caseMask = CaseMask(flags);
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
        accents = accents == CSTR_EQUAL ? Order(x.accent, y.accent) : accents;
        cases = cases == CSTR_EQUAL ? Order(x.letterCase & caseMask, y.letterCase & caseMask) : cases;
    }
    const int order = accents != CSTR_EQUAL ? accents : cases;
    return order == CSTR_EQUAL && (a.sawSpecial() || b.sawSpecial())
               ? CompareSpecials(Reader(tables, first), Reader(tables, second))
               : order;
}

// Texts are told apart by the first bytes of different rank, if only simple ones stand before them; texts of simple
// bytes throughout also by their length, their accents and their case. Everything else needs the weights.
int CompareTexts(Text first, Text second, DWORD flags) {
    const Tables& tables = TheTables();
    const std::uint8_t caseMask = CaseMask(flags);
    int accents = CSTR_EQUAL;
    int cases = CSTR_EQUAL;
    const unsigned char* x = first.at;
    const unsigned char* y = second.at;
    for (; x != first.end && y != second.end; ++x, ++y) {
        const Simple& a = tables.simple[*x];
        const Simple& b = tables.simple[*y];
        if (!a.rank || !b.rank) {
            return CompareWeights(tables, first, second, flags);
        }
        if (a.rank != b.rank) {
            return a.rank < b.rank ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
        }
        if (*x != *y) {
            accents = accents == CSTR_EQUAL ? Order(a.accent, b.accent) : accents;
            cases = cases == CSTR_EQUAL ? Order(a.letterCase & caseMask, b.letterCase & caseMask) : cases;
        }
    }
    if (x != first.end || y != second.end) {
        if (!tables.simple[x == first.end ? *y : *x].rank) {
            return CompareWeights(tables, first, second, flags);
        }
        return x == first.end ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
    }
    return accents != CSTR_EQUAL ? accents : cases;
}

Text MakeText(LPCSTR text, int size) {
    const auto* at = reinterpret_cast<const unsigned char*>(text);
    return {at, at + (size < 0 ? std::strlen(text) : static_cast<std::size_t>(size))};
}

// A null text comes before all others; two of them are equal.
int CompareOrdered(LPCSTR first, LPCSTR second, DWORD flags) {
    if (!first || !second) {
        return first ? 1 : second ? -1 : 0;
    }
    try {
        return CompareTexts(MakeText(first, -1), MakeText(second, -1), flags) - CSTR_EQUAL;
    } catch (const std::bad_alloc&) {
        // These calls have no way to fail: without memory for weights, texts come in the order of their bytes.
        return std::strcmp(first, second);
    }
}

}  // namespace

int WINAPI CompareStringA(LCID locale, DWORD flags, LPCSTR first, int firstSize, LPCSTR second, int secondSize) {
    if (flags & ~DWORD{NORM_IGNORECASE | NORM_IGNOREWIDTH}) {
        return base::Fail(ERROR_INVALID_FLAGS, 0);
    }
    if (!first || !second || (locale >> 16) > 0xF) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    try {
        return CompareTexts(MakeText(first, firstSize), MakeText(second, secondSize), flags);
    } catch (const std::bad_alloc&) {
        return base::Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
    }
}

int WINAPI lstrcmpA(LPCSTR first, LPCSTR second) {
    return CompareOrdered(first, second, 0);
}

int WINAPI lstrcmpiA(LPCSTR first, LPCSTR second) {
    return CompareOrdered(first, second, NORM_IGNORECASE);
}
