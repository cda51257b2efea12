/// @file scroll.h
/// `SCROLL_`: the micro scroll bar, window class "KVS_MicroScrollbar".
///
/// A small bar of two arrows that steps the value of another window, its associate: normally a date, time or numeric
/// field beside it. The bar knows nothing of that value; it sends line messages.
///
///     CONTROL "", IDC_DUE,     "Calverin_DateControl", WS_CHILD | WS_VISIBLE | WS_BORDER, 60, 10, 60, 14
///     CONTROL "", IDC_DUE_BAR, "KVS_MicroScrollbar",   WS_CHILD | WS_VISIBLE | SCROLL_STANDARD, 0, 0, 0, 0
///
/// Styles, in the low word of the window style. They are looked at when the bar is created; SCROLL_VERTICAL also later.
///
/// | style | meaning |
/// |---|---|
/// | `SCROLL_PREVSIBLING` | the associate is the window before the bar among its siblings, which in a dialog is the one created before it; without the style it is the parent |
/// | `SCROLL_VERTICAL` | arrows one above the other, `WM_VSCROLL`; without it side by side, `WM_HSCROLL` |
/// | `SCROLL_ATTACH` | narrows the associate and lays the bar over its right end, as high as the associate; the bar is 9/10 of that height wide (vertical) or 10/9 (horizontal) |
/// | `SCROLL_ARROWKEYS` | the associate's Up and Down keys become line messages, see below |
///
/// Line messages. The associate gets `WM_VSCROLL` or `WM_HSCROLL` with the bar's handle as lParam and as wParam 0 for
/// the upper arrow, 1 for the lower one; in the horizontal layout 1 for the left arrow and 0 for the right one. The
/// focus is moved to the associate first. The bar asks nothing of its associate: one that is disabled or read-only is stepped
/// all the same. Disable the bar with it.
///
/// The mouse. Pressing an arrow captures the mouse and draws the arrow pressed; nothing is sent yet. Held for 400
/// milliseconds the arrow sends a first message, and from then on one every 50 milliseconds, as long as the pointer is
/// inside it. Released inside the arrow it sends a last one, so that a click sends exactly one; released outside it
/// sends none. An arrow's edge and the line between the arrows belong to neither. If another window takes the mouse
/// capture away, the press ends as if released outside.
///
/// Arrow keys. With `SCROLL_ARROWKEYS` the associate is subclassed for the rest of its life, also when the bar goes
/// first: a `WM_KEYDOWN` of VK_UP or VK_DOWN reaches it as `WM_VSCROLL` 0 or 1, with its own handle as lParam, instead
/// of the key. This has a price: the associate's own procedure never receives its `WM_NCDESTROY`, so that a date or
/// time field that is hooked does not free its data. At most 80 associates are hooked at a time in a process; further
/// ones are silently not.
///
/// Notifications: none besides the line messages. Colours: the system's button colours; a bar notices when they have
/// changed at its next painting, or when it gets `WM_SYSCOLORCHANGE`.
///
/// A bar's data lives from its WM_CREATE to its WM_DESTROY. All bars and associates of a process belong on one thread.
#pragma once

/// Class name of the micro scroll bar.
#define SCROLL_CLASSNAME "KVS_MicroScrollbar"

/// Style: the associate is the previous sibling, not the parent.
#define SCROLL_PREVSIBLING 0x0001L
/// Style: arrows one above the other; WM_VSCROLL.
#define SCROLL_VERTICAL 0x0010L
/// Style: placed over the associate's right end at creation.
#define SCROLL_ATTACH 0x0100L
/// Style: the associate's Up and Down keys step too.
#define SCROLL_ARROWKEYS 0x1000L
/// The styles of a bar that belongs to the field before it.
#define SCROLL_STANDARD (SCROLL_PREVSIBLING | SCROLL_VERTICAL | SCROLL_ATTACH | SCROLL_ARROWKEYS)

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero (the class's atom) on success; 0 for a null instance.
CVAPI(BOOL) SCROLL_RegisterClass(HINSTANCE instance);

/// Names the window that gets a bar's line messages. The bar is not moved, and neither window's arrow keys change.
/// @param bar        a micro scroll bar.
/// @param associate  any window.
/// @return the associate until now; null also if there was none, or if either window is not valid and nothing was
/// changed.
CVAPI(HWND) SCROLL_SetAssociateWindow(HWND bar, HWND associate);

#endif
