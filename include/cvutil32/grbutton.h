/// @file grbutton.h
/// `GRBUTTON_`: the graphic button, window class "Calverin_GraphicButton".
///
/// A push button that shows a bitmap instead of text. It is a superclass of the system's "button" and does what a push
/// button does: mouse, Space, focus, `WM_COMMAND` with `BN_CLICKED`. Its text is not shown, but an "&" in it marks the letter
/// that presses the button with Alt. A dialog template creates it by its class name, and
/// the application gives it its picture when the dialog starts:
///
///     CONTROL "&Open", IDC_OPEN, "Calverin_GraphicButton", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 7, 7, 16, 14
///
///     GRBUTTON_SetBitmaps(GetDlgItem(dialog, IDC_OPEN), instance, MAKEINTRESOURCEA(IDB_OPEN), NULL);
///
/// Styles. Every graphic button is owner-drawn: the low word of its style becomes `BS_OWNERDRAW` when it is created,
/// whatever kind of button the template asks for. The window styles in the high word stay.
///
/// Drawing. The parent is subclassed when its first graphic button is created, and its `WM_DRAWITEM` messages for
/// graphic buttons are answered there: the parent needs no code and never sees them. All other `WM_DRAWITEM` messages
/// reach the parent, with the control's identifier as wParam, but the parent's answer is discarded: it is 0 from then
/// on. The picture is centred. It moves by a pixel to the right and down while the button is pressed. When the button
/// is pressed or released it is drawn with a dark ring around it; drawn anew as a whole it has none. The focus is a
/// dotted rectangle around the face, which a disabled button does not show; otherwise a disabled button looks like an
/// enabled one.
///
/// Masks. A picture with a mask lies on the colour of the face wherever the mask is white. The picture must be black
/// there, and the mask black wherever the picture shows.
///
/// Ownership. A button deletes the bitmaps that it has when it is destroyed, also those that the application handed
/// in. Setting bitmaps anew neither deletes those from before nor repaints: the application does both if it needs them.
///
/// Notifications: those of an owner-drawn button. Of two quick clicks the first gives `BN_CLICKED` and the second
/// `BN_DOUBLECLICKED`: treat both alike where every click counts. Messages: those of a button. Enter never presses a
/// graphic button, also when it has the focus: it presses the dialog's default button.
///
/// The two drawing routines are there for applications that draw items of their own the same way; they work on any
/// device context, and everything selected into it stays selected.
///
/// A button's data lives from its WM_NCCREATE to its WM_NCDESTROY. If there is no memory for it the window remains a
/// plain button, which the functions refuse.
#pragma once

/// Class name of the graphic button.
#define GRBUTTON_CLASSNAME "Calverin_GraphicButton"

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero on success; 0 for a null instance.
CVAPI(BOOL) GRBUTTON_RegisterClass(HINSTANCE instance);

/// Gives a button its picture out of bitmap resources. The window is not repainted.
/// @param button    a graphic button.
/// @param instance  the module that has the resources.
/// @param image     name or MAKEINTRESOURCEA() of the picture, of any depth.
/// @param mask      the same for the mask; null for none, which leaves a mask that is there.
/// @return TRUE if the picture was loaded, with the mask or without; FALSE also for a null argument or another window.
CVAPI(BOOL) GRBUTTON_SetBitmaps(HWND button, HINSTANCE instance, LPCSTR image, LPCSTR mask);

/// Gives a button bitmaps of the application's, which are the button's from then on. The window is not repainted.
/// @param button  a graphic button.
/// @param image   the picture.
/// @param mask    the mask.
/// @return FALSE, with nothing taken, for a null argument (the mask included) or another window.
CVAPI(BOOL) GRBUTTON_SetHBitmaps(HWND button, HBITMAP image, HBITMAP mask);

/// Draws the face colour and the three-dimensional edge of a button.
/// @param dc         nothing happens if it is null.
/// @param item       the button's rectangle; nothing happens if it is null.
/// @param face       receives what is inside the edge, @p item less 2 pixels at every side; may be null or @p item.
/// @param pressed    nonzero for the sunken edge.
/// @param outline    nonzero for a ring of the frame colour with one of the shadow inside it. The raised edge then lies
///                   one pixel further in; the sunken one is left out, so that the button looks flat.
/// @param framePen   of the ring and the outer dark edge; null for a pen of COLOR_WINDOWFRAME.
/// @param shadowPen  of the shadow; null for one of COLOR_BTNSHADOW.
/// @param lightPen   of the light edge; null for one of COLOR_BTNHIGHLIGHT.
/// @param faceBrush  of the face; null for one of COLOR_BTNFACE.
CVAPI(void)
GRBUTTON_DrawButtonFrame(HDC dc, const RECT* item, RECT* face, BOOL pressed, BOOL outline, HPEN framePen,
                         HPEN shadowPen, HPEN lightPen, HBRUSH faceBrush);

/// Draws the picture and the focus of a button. A picture larger than the face is cut; its upper left corner shows.
/// @param dc          nothing happens if it is null.
/// @param face        the rectangle that GRBUTTON_DrawButtonFrame() gave; nothing happens if it is null.
/// @param pressed     nonzero moves the picture by a pixel to the right and down.
/// @param focus       nonzero for the focus rectangle.
/// @param disabled    nonzero for no focus rectangle.
/// @param image       the picture; null for none. It must not be selected into a device context.
/// @param mask        the mask; null for none. It must not be selected into a device context.
/// @param background  brush where the mask is white; null for one of COLOR_BTNFACE.
/// @param stretch     nonzero stretches the picture over the face instead of centring it.
CVAPI(void)
GRBUTTON_DrawButtonFace(HDC dc, const RECT* face, BOOL pressed, BOOL focus, BOOL disabled, HBITMAP image, HBITMAP mask,
                        HBRUSH background, BOOL stretch);

#endif
