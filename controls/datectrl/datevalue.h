// Dates as values: the calendar and the repair of a date that typing has made impossible. No window, no settings.
#pragma once

#include <windows.h>

BOOL datectrl_IsLeapYear(WORD year);

/// @return 28 to 31; 0 for a month outside 1 to 12.
WORD datectrl_DaysInMonth(WORD month, WORD year);

BOOL datectrl_IsValid(SYSTEMTIME const& date);

/// Brings a month and a day that are too large back into the calendar. What is far too large must have been meant as a
/// single digit and becomes its tens digit; what is a little too large becomes the maximum.
/// @param changed  set to whether a field became a single digit; may be null.
/// @return whether the date is valid now; a month or a day of 0 cannot be repaired.
BOOL datectrl_FixDate(SYSTEMTIME* date, BOOL* changed);
