// Times as text: hour, separator, minute, separator, second and, by the 12-hour clock, a space and the designator, in
// the form of the user's locale. No window.
//
// Positions follow the text: with a separator of one character they are
//
//     0 1 2 3 4 5 6 7 8 9 10
//     h h : m m : s s   P M
//
// and a separator of two bytes moves what stands behind it on.
//
// The settings are kept once a process, unguarded: they belong to the thread of the time fields. They are read on first
// use and whenever a field asks for it. A load that fails leaves those of the load before.
#pragma once

#include <windows.h>

// Modes of the text.
#define TIMECTRL_MODE_12H 10
#define TIMECTRL_MODE_24H 11
#define TIMECTRL_MODE_NONE 12

/// Bytes of the longest text, NUL included: the 12-hour clock with two separators of two bytes.
constexpr int kMaxTimeTextSize = 14;

/// Gives the mode and the text's template for wsprintf: hour, separator, minute, separator, second and, by the 12-hour
/// clock, the designator.
/// @param mode    receives the mode code; TIMECTRL_MODE_NONE as long as no load has succeeded.
/// @param reload  reads the settings even if they are known.
/// @return null only if @p mode is null.
LPCSTR timectrl_GetIntlFormat(WORD* mode, BOOL reload);

/// @return the mode that was read last, without reading it.
WORD timectrl_CachedMode();

/// @return whether the settings in use are those of the 24-hour clock.
BOOL timectrl_Is24Hour();

/// @return characters of the text in the mode that was read last.
UINT timectrl_TextLength();

/// @return whether no digit or letter stands at a position: a separator, or the space before the designator.
BOOL timectrl_IsSeparator(UINT position);

/// @return whether a position is the second byte of the separator.
BOOL timectrl_IsInsideSeparator(UINT position);

/// Writes a time as text; the time need not be valid.
/// @param size  bytes of @p buffer, NUL included.
/// @return FALSE, with the buffer untouched, for a null argument or no size.
BOOL timectrl_FormatTime(const SYSTEMTIME* time, char* buffer, int size);

/// @return the field at a position, a separator belonging to the field behind it; 0 behind the text and without a mode.
WORD timectrl_FieldAtPosition(WORD mode, UINT position);

/// Types a digit over the one at a position, or a letter of the half of the day over the designator. The time may
/// become invalid.
/// @param key       '0' to '9', or at the designator 'A', 'a', 'P' or 'p'.
/// @param position  of a digit or of the designator.
/// @return by how much the caret moves on: 0, 1 or 2.
int timectrl_EnterKey(char key, UINT position, SYSTEMTIME* time);
