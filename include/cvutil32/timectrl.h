/// @file timectrl.h
/// `TIMECTRL_`: time values and the time field, window class "Calverin_TimeControl".
///
/// The field. A dialog template creates it by its class name; it is one line that shows hours, minutes and seconds as
/// the user's locale writes them: with its time separator, by the 24-hour clock ("13:05:00") or by the 12-hour clock
/// with "AM" or "PM" (" 1:05:00 PM"), the hour with or without a leading zero:
///
///     CONTROL "", IDC_START,     "Calverin_TimeControl", WS_CHILD | WS_VISIBLE | WS_BORDER, 60, 10, 60, 14
///     CONTROL "", IDC_START_BAR, "KVS_MicroScrollbar",   WS_CHILD | WS_VISIBLE | SCROLL_STANDARD, 0, 0, 0, 0
///
/// It has no styles of its own and always takes part in tabbing: WS_TABSTOP is added when it is created. It is empty
/// until it gets a time, and an empty field paints nothing but its background; it is never empty again. A disabled field looks
/// like an enabled one, and its bar still steps it: disable the bar too. It sends its parent no notifications:
/// set the value when the dialog starts and read it when the user is done.
///
///     SYSTEMTIME start;
///     TIMECTRL_SetTime(GetDlgItem(dialog, IDC_START), NULL, TRUE);        // now
///     ...
///     if (TIMECTRL_GetTime(GetDlgItem(dialog, IDC_START), &start)) Store(&start);
///
/// What the user does. A small triangle under the text is the caret. Left, Right, Home, End and Backspace move it; a
/// click puts it under the pointer. A digit replaces the digit above the caret, which then moves on, past a separator.
/// A digit that would make a time that does not exist (minute 75, hour 25) is dropped. The hour of the 12-hour clock is
/// typed as it is read: '1' on " 9" gives 10, '5' on "07" gives 5 and goes on to the minutes, and it keeps its half of
/// the day. On the designator A and P choose the half of the day, and digits are dropped. The first key, whatever it
/// is, fills an empty field with the time of now and is dropped itself.
///
/// Typing a whole time from Home leaves another time than the one that was typed for 8 of 100 pairs of an old and a new
/// time by the 24-hour clock, and for 6 by the 12-hour clock, because each digit is judged by the one beside it. A 2 on
/// the tens of 04 to 09 and 14 to 19 would be hour 24 to 29 and is dropped; the caret stays, and the digits after it go to
/// the wrong places. By the 12-hour clock a 0 on the tens of 10 makes the hour 1 and goes on to the minutes.
///
/// Messages that an application may send:
///
/// | message | effect |
/// |---|---|
/// | `WM_VSCROLL`, code SB_LINEUP (0) or SB_LINEDOWN (1) | steps the field above the caret up or down, on the designator to the other half of the day; on a separator nothing happens; an empty field shows the time of now instead. This is what a micro scroll bar (scroll.h) sends |
/// | `WM_SETFONT` | takes a font, which stays the application's; a nonzero lParam repaints |
/// | `WM_WININICHANGE`, section "Intl" | reads the settings anew and repaints; the text keeps its old form until its value changes next. Top-level windows alone get this message from the system: the dialog must pass it on |
/// | `WM_GETDLGCODE` | answers DLGC_WANTARROWS \| DLGC_WANTCHARS |
///
/// The background is the brush with which the parent answers `WM_CTLCOLOREDIT`, or the window colour. The parent may
/// set the text colours of the device context in its answer.
///
/// Values are SYSTEMTIME records of which only wHour (0 to 23), wMinute and wSecond (0 to 59) count. The functions on
/// values touch nothing but the caller's record and may run on any thread; the functions on a field belong to the
/// thread that owns it. A field's data lives from its WM_NCCREATE to its WM_NCDESTROY. The settings (of the user's
/// locale: time separator, 12 or 24 hours, leading zero) are kept once a process and read anew whenever a field is
/// created; until they could be read, times are written by the 24-hour clock with ":" and cannot be typed.
#pragma once

/// Class name of the time field.
#define TIMECTRL_CLASSNAME "Calverin_TimeControl"

/// Field of a time: the minute.
#define TIMECTRL_MINUTE 1
/// Field of a time: the hour.
#define TIMECTRL_HOUR 2
/// Field of a time: the second.
#define TIMECTRL_SECOND 3
/// Field of a time: the half of the day.
#define TIMECTRL_AMPM 4

#ifndef RC_INVOKED

#include "cvapi.h"

/// Tells whether a time exists.
/// @param time  wHour below 24, wMinute and wSecond below 60.
/// @return FALSE also for null.
CVAPI(BOOL) TIMECTRL_IsValidTime(const SYSTEMTIME* time);

/// Compares two times by their seconds, then their minutes, then their hours, so that 10:00:30 counts as later than
/// 11:00:00. Compare the hours first where the order of the day is meant.
/// @return -1 if @p a is smaller in the first field that differs, 1 if it is larger; 0 if they are equal, and also if
/// either is null or invalid.
CVAPI(int) TIMECTRL_CompareTime(const SYSTEMTIME* a, const SYSTEMTIME* b);

/// Steps one field of a time up, in place. Second 59 is followed by 0 of the next minute, minute 59 by 0 of the next
/// hour, hour 23 by hour 0 of the same date. The half of the day changes over, unless the settings in use are those of
/// the 24-hour clock. They are read when the first time field of the process is made: before that it changes over whatever
/// the user's clock is.
/// @param time   a valid time; its date is left alone.
/// @param field  TIMECTRL_MINUTE, TIMECTRL_HOUR, TIMECTRL_SECOND or TIMECTRL_AMPM.
/// @return TRUE for these fields; FALSE, with nothing changed, for null, an invalid time or another field code.
CVAPI(BOOL) TIMECTRL_IncrementTime(SYSTEMTIME* time, WORD field);

/// Steps one field of a time down, in place. Second 0 is preceded by 59 of the minute before it, minute 0 by 59 of the
/// hour before it, hour 0 by hour 23 of the same date. The half of the day changes over as it does upwards.
/// @param time   a valid time; its date is left alone.
/// @param field  TIMECTRL_MINUTE, TIMECTRL_HOUR, TIMECTRL_SECOND or TIMECTRL_AMPM.
/// @return TRUE for these fields; FALSE, with nothing changed, for null, an invalid time or another field code.
CVAPI(BOOL) TIMECTRL_DecrementTime(SYSTEMTIME* time, WORD field);

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero (the class's atom) on success; 0 for a null instance.
CVAPI(BOOL) TIMECTRL_RegisterClass(HINSTANCE instance);

/// Gives a field its value. The caret stays where it is.
/// @param control  a time field.
/// @param time     wHour, wMinute and wSecond are taken; null stands for now.
/// @param redraw   nonzero repaints the field, whether or not the value was taken.
/// @return TRUE if the field took the value; FALSE if the window or the time is not valid, with the value as it was.
CVAPI(BOOL) TIMECTRL_SetTime(HWND control, const SYSTEMTIME* time, BOOL redraw);

/// Reads a field's value.
/// @param control  a time field.
/// @param out      receives wHour, wMinute and wSecond, and 0 as wMilliseconds. Its date stays, so that a date and a
/// time can be read into one record.
/// @return TRUE if the field holds a valid time; else FALSE, with @p out untouched (also for a null argument).
CVAPI(BOOL) TIMECTRL_GetTime(HWND control, SYSTEMTIME* out);

/// The window procedure of the class.
CVAPI(LRESULT) timectrl_EditTimeWndProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

#endif
