/// @file datectrl.h
/// `DATECTRL_`: date values and the date field, window class "Calverin_DateControl".
///
/// The field. A dialog template creates it by its class name; it is one line of eight characters, two digits each for
/// day, month and year in the order and with the separator of the user's international settings ("Intl", iDate and
/// sDate):
///
///     CONTROL "", IDC_DUE, "Calverin_DateControl", WS_CHILD | WS_VISIBLE | WS_BORDER, 60, 10, 44, 14
///
/// It has no styles of its own and always takes part in tabbing: WS_TABSTOP is added when it is created. It is empty
/// until it gets a date, and an empty field paints nothing but its background; it is never empty again. A disabled field looks
/// like an enabled one, and its bar still steps it: disable the bar too. It sends its parent no notifications:
/// set the value when the dialog starts and read it when the user is done.
///
///     SYSTEMTIME due;
///     DATECTRL_SetDate(GetDlgItem(dialog, IDC_DUE), NULL, TRUE);      // today
///     ...
///     if (DATECTRL_GetDate(GetDlgItem(dialog, IDC_DUE), &due)) Store(&due);
///
/// What the user does. A small triangle under the text is the caret. Left, Right, Home, End and Backspace move it; a
/// click puts it under the pointer. A digit replaces the digit above the caret, which then moves on, past a separator.
/// A tens digit that makes the field far too large becomes its only digit ('3' on the month 05 gives 03) and the caret
/// goes on to the next field; a value a little too large becomes the largest allowed ('1' on the month 05 gives 12). A
/// digit that would leave a month or a day 0 is dropped. Years are typed with two digits and lie in 1980 to 2079; any
/// other year keeps its two digits' look until it is typed into (1975 and 2075 look alike). The first character typed,
/// whatever it is, fills an empty field with today's date and is dropped itself: of "24" the field takes the 4.
///
/// Typing a whole date from Home leaves another date than the one that was typed for 2 to 4 of 100 pairs of an old and a
/// new date, because each digit is judged by what stands beside it at that moment. A 0 on the tens of 10, 20 or 30 is
/// dropped; the caret stays, and the digits after it go to the wrong places. A day is cut to the length of a month that
/// stands there only for a moment: typing 30.07. over 28.12. passes 30.02. Show a date that matters once more, in words,
/// before it is acted on.
///
/// Messages that an application may send:
///
/// | message | effect |
/// |---|---|
/// | `WM_VSCROLL`, code SB_LINEUP (0) or SB_LINEDOWN (1) | steps the field above the caret up or down; on a separator nothing happens; an empty field shows today's date instead. This is what a micro scroll bar (scroll.h) sends |
/// | `WM_SETFONT` | takes a font, which stays the application's; a nonzero lParam repaints |
/// | `WM_WININICHANGE`, section "Intl" | reads the settings anew and repaints; the text keeps its old form until its value changes next. Top-level windows alone get this message from the system: the dialog must pass it on |
/// | `WM_GETDLGCODE` | answers DLGC_WANTARROWS \| DLGC_WANTCHARS |
///
/// The background is the brush with which the parent answers `WM_CTLCOLOREDIT`, or the window colour. The parent may
/// set the text colours of the device context in its answer.
///
/// Stepping. A step works as DATECTRL_IncrementDate() and DATECTRL_DecrementDate() do, so that a month up from 31
/// January gives 31 February. The field then shows its old picture, DATECTRL_GetDate() fails and steps do nothing,
/// until a typed digit makes the date valid again.
///
/// Values are SYSTEMTIME records of which only wYear, wMonth and wDay count. Every year from 0 to 65535 is valid. The
/// functions on values touch nothing but the caller's record and may run on any thread; the functions on a field belong
/// to the thread that owns it. A field's data lives from its WM_NCCREATE to its WM_NCDESTROY. The settings are kept
/// once a process and read anew whenever a field is created.
#pragma once

/// Class name of the date field.
#define DATECTRL_CLASSNAME "Calverin_DateControl"

/// Field of a date: the day of the month.
#define DATECTRL_DAY 1
/// Field of a date: the month.
#define DATECTRL_MONTH 2
/// Field of a date: the year.
#define DATECTRL_YEAR 3

#ifndef RC_INVOKED

#include "cvapi.h"

/// Tells whether a date exists in the calendar.
/// @param date  wMonth 1 to 12, wDay 1 to the month's last day (29 February in leap years), any wYear.
/// @return FALSE also for null.
CVAPI(BOOL) DATECTRL_IsValidDate(const SYSTEMTIME* date);

/// Compares two dates.
/// @return -1 if @p a is the earlier one, 1 if it is the later one; 0 if they are equal, and also if either is null or
/// invalid.
CVAPI(int) DATECTRL_CompareDate(const SYSTEMTIME* a, const SYSTEMTIME* b);

/// Steps one field of a date up, in place. The last day of a month is followed by the first of the next one, December
/// by January of the next year. The day is not adapted when a month or a year is stepped: the result may be a date that
/// does not exist (31 January, a month up).
/// @param date   a valid date.
/// @param field  DATECTRL_DAY, DATECTRL_MONTH or DATECTRL_YEAR.
/// @return TRUE if the date was stepped; FALSE, with nothing changed, for null, an invalid date or another field code.
CVAPI(BOOL) DATECTRL_IncrementDate(SYSTEMTIME* date, WORD field);

/// Steps one field of a date down, in place. The first of a month is preceded by the last day of the month before it,
/// January by December of the year before. A month down keeps the day within the month; a year down turns day 29, of
/// any month, into 28 if the new year is not a leap year.
/// @param date   a valid date.
/// @param field  DATECTRL_DAY, DATECTRL_MONTH or DATECTRL_YEAR.
/// @return TRUE if the date was stepped; FALSE, with nothing changed, for null, an invalid date or another field code.
CVAPI(BOOL) DATECTRL_DecrementDate(SYSTEMTIME* date, WORD field);

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero (the class's atom) on success; 0 for a null instance.
CVAPI(BOOL) DATECTRL_RegisterClass(HINSTANCE instance);

/// Gives a field its value. The caret stays where it is.
/// @param control  a date field.
/// @param date     wYear, wMonth and wDay are taken; null stands for today.
/// @param redraw   nonzero repaints the field, whether or not the value was taken.
/// @return TRUE if the field took the value; FALSE if the window or the date is not valid, with the value as it was.
CVAPI(BOOL) DATECTRL_SetDate(HWND control, const SYSTEMTIME* date, BOOL redraw);

/// Reads a field's value.
/// @param control  a date field.
/// @param out      receives wYear, wMonth and wDay; its other members become 0.
/// @return TRUE if the field holds a valid date; else FALSE, with @p out untouched (also for a null argument).
CVAPI(BOOL) DATECTRL_GetDate(HWND control, SYSTEMTIME* out);

/// The window procedure of the class.
CVAPI(LRESULT) datectrl_EditDateWndProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

#endif
