/// @file numfld.h
/// `NUMFLD_`: the numeric field, window class "Calverin_NumericField".
///
/// An edit field that takes digits only and that a micro scroll bar (scroll.h) beside it steps by one within limits. It
/// is a superclass of the system's "edit": all styles, messages and notifications of that class are its own too.
///
///     CONTROL "", IDC_COPIES,     "Calverin_NumericField", WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,
///                                 60, 10, 50, 14, WS_EX_CLIENTEDGE
///     CONTROL "", IDC_COPIES_BAR, "KVS_MicroScrollbar",    WS_CHILD | WS_VISIBLE | SCROLL_STANDARD, 0, 0, 0, 0
///
///     NUMFLD_SetLimits(GetDlgItem(dialog, IDC_COPIES), 1, 99);
///     NUMFLD_SetValue(GetDlgItem(dialog, IDC_COPIES), 1);
///     ...
///     copies = NUMFLD_GetValue(GetDlgItem(dialog, IDC_COPIES));
///
/// The value is the window's text: it is empty until it is set or typed, and an empty text reads as 0. The limits hold
/// for stepping alone: what is typed, pasted or set may lie outside them, and the application tests what it reads.
/// Until NUMFLD_SetLimits() both limits are 0.
///
/// What the user does. Digits and Backspace are taken, every other character is dropped without a sound, and so are
/// Ctrl+C, Ctrl+V and the like; Ctrl+Insert, Shift+Insert, Shift+Delete and the edit class's context menu copy, paste and
/// cut. What is pasted is not filtered. The text is no longer than the digits of the maximum, at most five.
///
/// Messages that the field answers itself; all others are the edit class's:
///
/// | message | effect |
/// |---|---|
/// | `WM_CHAR` | a digit or Backspace goes to the edit class; anything else ends here |
/// | `WM_VSCROLL`, code SB_LINEUP (0) or SB_LINEDOWN (1) | one up, unless the maximum is reached; one down, unless the minimum is. A value outside the limits can only be stepped towards them. The text is written anew for every code, so that leading zeros vanish; what would be longer than the text's limit is not written |
///
/// Stepping reads the value as an unsigned number: a negative one, which only NUMFLD_SetValue() and pasting bring, is a
/// very large one to it.
///
/// A bar steps a disabled field, and one with ES_READONLY, like any other: disable the bar with it.
///
/// Notifications: those of the edit class, EN_UPDATE and EN_CHANGE for steps and NUMFLD_SetValue() too.
///
/// The first field of a parent window subclasses it, until it is destroyed; the subclass does no more than pass on. A
/// field's data lives from its WM_NCCREATE to its WM_NCDESTROY. A field that found no memory for it still takes digits,
/// but has no limits and is not stepped. The functions belong to the thread that owns the field.
#pragma once

/// Class name of the numeric field.
#define NUMFLD_CLASSNAME "Calverin_NumericField"

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero on success; 0 for a null instance.
CVAPI(BOOL) NUMFLD_RegisterClass(HINSTANCE instance);

/// Sets the limits of stepping, and with the digits of the maximum how long the text may become by typing: 1 digit up
/// to 9, 2 up to 99, 3 up to 999, 4 up to 9999, else 5. The text stays as it is.
/// @param field    a numeric field; null, and what is no window, is left alone.
/// @param minimum  0 to 4294967295; stepping down ends there.
/// @param maximum  0 to 4294967295; stepping up ends there. It may be below the minimum: then nothing between the two
/// can be stepped away from.
CVAPI(void) NUMFLD_SetLimits(HWND field, DWORD minimum, DWORD maximum);

/// Reads a field's text as a decimal number: white space, a sign, digits up to the first other character.
/// @param field  a numeric field.
/// @return the number; 0 without one, and for a bad window. Numbers beyond 32 bits lose their upper bits.
CVAPI(int) NUMFLD_GetValue(HWND field);

/// Writes a number into a field, whatever its limits.
/// @param field  a numeric field.
/// @param value  any number.
/// @return TRUE if the text was set.
CVAPI(BOOL) NUMFLD_SetValue(HWND field, int value);

#endif
