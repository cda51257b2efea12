// Typing over the hour of a 12-hour clock, which shows 12, 1, 2 ... 11 where the value counts 0, 1, 2 ... 11 in each
// half of the day. No window, no settings.
#pragma once

#include <windows.h>

namespace clockface {

/// @param letter  'A' or 'a' for the first half of the day, any other letter for the second.
/// @return the hour of the same place on the clock in that half of the day.
WORD WithDesignator(WORD hour, char letter);

/// Types a digit over one of the two digits of the hour as the clock shows it. The hour keeps its half of the day and
/// always stays one that exists.
/// @param hour  0 to 23.
/// @param tens  whether it is the first of the two digits.
/// @return by how much the caret moves on; 0 if the clock has no such hour, and nothing is changed.
int EnterHour(WORD& hour, int digit, bool tens);

}  // namespace clockface
