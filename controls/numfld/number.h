// Numbers as the text of a numeric field. No window.
#pragma once

#include <windows.h>

#include <cstdint>

namespace numfld {

/// Room for the text of a field, NUL included. A longer one is no number that can be stepped.
constexpr int kTextSize = 32;

struct Limits {
    DWORD minimum;
    DWORD maximum;
};

/// @return how many digits may be typed for a maximum: its own, but at most five.
UINT DigitsOf(DWORD maximum);

/// Reads white space, a sign and decimal digits; what follows them does not matter. Bits above the 32nd are lost.
/// @return 0 if there is no number.
std::uint32_t Parse(char const* text);

/// Steps a value by one towards a limit that it has not reached. A value beyond that limit stays.
/// @param code  SB_LINEUP or SB_LINEDOWN; any other code steps nothing.
std::uint32_t Step(std::uint32_t value, WORD code, Limits const& limits);

}  // namespace numfld
