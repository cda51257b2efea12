/// @file winuser/listbox.h
/// The "listbox" class: a column (LBS_MULTICOLUMN: columns) of items, of which one or several can be selected.
///
/// Items are texts: a list with an owner-drawn style has LBS_HASSTRINGS as well. It asks its parent for the height of its items
/// (WM_MEASUREITEM, once while it is created) and to draw them (WM_DRAWITEM).
///
/// Without a style of selection a click selects one item. LBS_MULTIPLESEL: a click or the space bar turns one item over.
/// LBS_EXTENDEDSEL: a click selects one item, with Shift the range from the item clicked before, with Ctrl it turns one over;
/// dragging selects a range. Arrow keys, Page Up, Page Down, Home and End move, a letter goes to the next item that begins with
/// it. With LBS_NOTIFY the parent hears of what the user does (never of what messages do) through WM_COMMAND.
///
/// The height is cut to whole items unless LBS_NOINTEGRALHEIGHT is set. A list made with WS_VSCROLL (of several columns:
/// WS_HSCROLL) shows its scroll bar while there is something to scroll.
#pragma once

#include "../windef.h"

// --- styles

#define LBS_NOTIFY 0x0001L
#define LBS_SORT 0x0002L
#define LBS_MULTIPLESEL 0x0008L
#define LBS_OWNERDRAWFIXED 0x0010L
#define LBS_HASSTRINGS 0x0040L
#define LBS_NOINTEGRALHEIGHT 0x0100L
#define LBS_MULTICOLUMN 0x0200L
#define LBS_WANTKEYBOARDINPUT 0x0400L
#define LBS_EXTENDEDSEL 0x0800L

// --- notifications (WM_COMMAND)

#define LBN_SELCHANGE 1
#define LBN_DBLCLK 2
#define LBN_SETFOCUS 4
#define LBN_KILLFOCUS 5

// --- results

#define LB_OKAY 0
#define LB_ERR (-1)
#define LB_ERRSPACE (-2)

// --- messages

#define LB_ADDSTRING 0x0180
#define LB_INSERTSTRING 0x0181
#define LB_DELETESTRING 0x0182
#define LB_RESETCONTENT 0x0184
#define LB_SETSEL 0x0185
#define LB_SETCURSEL 0x0186
#define LB_GETSEL 0x0187
#define LB_GETCURSEL 0x0188
#define LB_GETTEXT 0x0189
#define LB_GETTEXTLEN 0x018A
#define LB_GETCOUNT 0x018B
#define LB_GETTOPINDEX 0x018E
#define LB_FINDSTRING 0x018F
#define LB_GETSELCOUNT 0x0190
#define LB_GETSELITEMS 0x0191
#define LB_SETCOLUMNWIDTH 0x0195
#define LB_SETTOPINDEX 0x0197
#define LB_GETITEMRECT 0x0198
#define LB_GETITEMDATA 0x0199
#define LB_SETITEMDATA 0x019A
#define LB_SELITEMRANGE 0x019B
#define LB_SETANCHORINDEX 0x019C
#define LB_SETCARETINDEX 0x019E
#define LB_GETCARETINDEX 0x019F
#define LB_GETITEMHEIGHT 0x01A1
#define LB_FINDSTRINGEXACT 0x01A2
