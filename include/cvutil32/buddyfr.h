/// @file buddyfr.h
/// `BUDDYFR_`: the buddy frame, window class "Calverin_BuddyFrame".
///
/// A sunken frame that joins an edit field or a combo box with the one or two small buttons that belong to it. A dialog
/// template names the field, then the buttons, then the frame; their places, but the field's, do not matter:
///
///     EDITTEXT IDC_FILE, 7, 7, 120, 12, ES_AUTOHSCROLL
///     CONTROL "", IDC_OPEN,  "Calverin_GraphicButton", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0, 0
///     CONTROL "", IDC_CLEAR, "Calverin_GraphicButton", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0, 0
///     CONTROL "", IDC_FRAME, "Calverin_BuddyFrame",    WS_CHILD | WS_VISIBLE, 0, 0, 0, 0
///
/// When it is created the frame arranges them, once:
///
/// - It looks for them backwards in the dialog's tab order, so each must be a tab stop. Every control that it meets is
///   a button, until it meets a field: a window of class "EDIT" or "COMBOBOX". With three controls in between, or no
///   field at all, or no button, nothing is arranged and the frame stays where it is.
/// - The field is made narrower at its right end, by 18 pixels a button and 4 for the frame. An edit field becomes one
///   pixel taller; a combo box becomes 120 pixels high, which is room for its list.
/// - The frame is laid over the room that this leaves, as high as the field shows.
/// - The buttons stand side by side inside the frame, in tab order, each 18 pixels wide. A button's own first child, if
///   it has one, fills it.
///
/// Later moves of the field or the buttons are not followed.
///
/// The frame has no styles of its own, sends no notifications and needs no messages. It paints its border of two pixels
/// alone; what is inside is left to the buttons. It keeps no data.
#pragma once

/// Class name of the buddy frame.
#define BUDDYFR_CLASSNAME "Calverin_BuddyFrame"

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero (the class's atom) on success; 0 for a null instance.
CVAPI(BOOL) BUDDYFR_RegisterClass(HINSTANCE instance);

#endif
