/// @file winuser/combobox.h
/// The "combobox" class: a field with a list, which hangs below it (CBS_SIMPLE) or drops down (CBS_DROPDOWN,
/// CBS_DROPDOWNLIST). The field is an edit control, with CBS_DROPDOWNLIST it only shows the item that is selected.
///
/// The height that a drop-down combo box is made with, or given, is that of field and dropped list together; the window is as
/// high as the field. The list drops below the field, or above it where there is no room, and is no longer than its items.
/// While it is down it has the mouse: the item under the pointer is selected, a click takes it, a click elsewhere or Escape leaves
/// everything as it was. F4 and Alt with an arrow drop the list and close it. Arrow keys, Page Up, Page Down and letters go to
/// other items.
///
/// The parent hears through WM_COMMAND, in this order: CBN_DROPDOWN before the list drops; CBN_CLOSEUP; CBN_SELCHANGE, at which
/// the edit control still holds the former text. Messages that select do not notify. Owner drawing is that of the list box, with ODT_COMBOBOX and the combo box as its control; the field is measured as item -1 and drawn with
/// ODS_COMBOBOXEDIT.
#pragma once

#include "../windef.h"

// --- styles

#define CBS_SIMPLE 0x0001L
#define CBS_DROPDOWN 0x0002L
#define CBS_DROPDOWNLIST 0x0003L
#define CBS_OWNERDRAWFIXED 0x0010L
#define CBS_AUTOHSCROLL 0x0040L
#define CBS_SORT 0x0100L
#define CBS_HASSTRINGS 0x0200L

// --- notifications (WM_COMMAND)

#define CBN_SELCHANGE 1
#define CBN_KILLFOCUS 4
#define CBN_EDITCHANGE 5
#define CBN_DROPDOWN 7
#define CBN_CLOSEUP 8

// --- results

#define CB_OKAY 0
#define CB_ERR (-1)

// --- messages

#define CB_ADDSTRING 0x0143
#define CB_DELETESTRING 0x0144
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_GETLBTEXT 0x0148
#define CB_GETLBTEXTLEN 0x0149
#define CB_INSERTSTRING 0x014A
#define CB_RESETCONTENT 0x014B
#define CB_SETCURSEL 0x014E
#define CB_SHOWDROPDOWN 0x014F
#define CB_GETITEMDATA 0x0150
#define CB_SETITEMDATA 0x0151
#define CB_GETDROPPEDCONTROLRECT 0x0152
#define CB_FINDSTRINGEXACT 0x0158
