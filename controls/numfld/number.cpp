#include "controls/numfld/number.h"

namespace numfld {

namespace {

constexpr UINT kMostDigits = 5;

bool IsSpace(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

}  // namespace

UINT DigitsOf(DWORD maximum) {
    UINT digits = 1;
    while (digits < kMostDigits && maximum >= 10) {
        maximum /= 10;
        ++digits;
    }
    return digits;
}

std::uint32_t Parse(char const* text) {
    while (IsSpace(*text)) {
        ++text;
    }
    bool const negative = *text == '-';
    if (negative || *text == '+') {
        ++text;
    }
    std::uint32_t value = 0;
    for (; IsDigit(*text); ++text) {
        value = value * 10 + static_cast<std::uint32_t>(*text - '0');
    }
    return negative ? 0 - value : value;
}

std::uint32_t Step(std::uint32_t value, WORD code, Limits const& limits) {
    if (code == SB_LINEUP && limits.maximum > value) {
        return value + 1;
    }
    if (code == SB_LINEDOWN && limits.minimum < value) {
        return value - 1;
    }
    return value;
}

}  // namespace numfld
