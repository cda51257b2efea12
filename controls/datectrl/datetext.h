// Dates as eight characters of text: two digits, separator, two digits, separator, two digits, in the order and with
// the separator of the user's international settings. No window.
//
// The settings are kept once a process, unguarded: they belong to the thread of the date fields. They are read on first
// use and whenever a field asks for it. An order that could not be read is never kept: it is looked for again on each
// use.
#pragma once

#include <windows.h>

// Orders of the three fields.
#define DATECTRL_ORDER_MDY 10
#define DATECTRL_ORDER_DMY 11
#define DATECTRL_ORDER_YMD 12
#define DATECTRL_ORDER_NONE 13

/// Characters of a date text, positions 0 to 7; separators stand at 2 and 5.
constexpr UINT kDateTextLength = 8;

/// Gives the order of the fields and the text's template, three times "%02d" with the separator between.
/// @param order   receives the order code.
/// @param reload  reads the settings even if they are known.
/// @return null only if @p order is null.
LPCSTR datectrl_GetIntlFormat(WORD* order, BOOL reload);

/// @return the order that was read last, without reading it.
WORD datectrl_CachedOrder();

/// Writes a date as text; the date need not be valid.
/// @param size  bytes of @p buffer, NUL included.
/// @return FALSE, with the buffer untouched, for a null argument, no size or an unknown order.
BOOL datectrl_FormatDate(const SYSTEMTIME* date, char* buffer, int size);

/// @param position  0 to 7; a separator belongs to the field behind it.
/// @return DATECTRL_DAY, DATECTRL_MONTH or DATECTRL_YEAR; 0 behind the text or for an unknown order.
WORD datectrl_FieldAtPosition(WORD order, UINT position);

/// Replaces the digit at a position of the date's text. The date may become invalid. A year becomes one of 1980 to
/// 2079.
/// @param digit     '0' to '9'.
/// @param position  0 to 7 but no separator.
void datectrl_EnterDigit(char digit, UINT position, SYSTEMTIME* date);
