/// @file animate.h
/// `ANIMATE_`: the animation control, window class "Calverin_AnimateControl".
///
/// Plays a row of pictures of one size over and over, in the middle of its window, a picture every 200 milliseconds.
/// The pictures stand side by side in one bitmap resource; one colour of it is the background.
///
///     CONTROL "", IDC_BUSY, "Calverin_AnimateControl", WS_CHILD | WS_VISIBLE, 7, 7, 24, 22
///
///     HWND busy = GetDlgItem(dialog, IDC_BUSY);
///     ANIMATE_Initialize(busy, instance, MAKEINTRESOURCEA(IDB_BUSY), 32, RGB(255, 0, 255));
///     ANIMATE_Start(busy);
///     ...
///     ANIMATE_Stop(busy);
///     SendMessageA(busy, WM_CLOSE, 0, 0);
///
/// The control has no styles of its own, sends no notifications and does not paint: what it shows is what was drawn at
/// the last picture, and a window that covers it leaves a hole until the next. While it plays, the thread that owns it
/// must look after its messages.
///
/// Messages that an application may send:
///
/// | message    | effect                                                           |
/// |------------|------------------------------------------------------------------|
/// | `WM_CLOSE` | stops the animation and releases its pictures; the window stays  |
/// | `WM_TIMER` | draws the next picture, if any, whatever the timer's identifier  |
///
/// The pictures belong to the control and are released by `WM_CLOSE` alone. A control inside a dialog does not get that
/// message by itself: send it before the dialog goes, or the pictures stay in memory.
///
/// Every function belongs to the thread that owns the control, and refuses a window of any other class.
#pragma once

/// Class name of the animation control.
#define ANIMATE_CLASSNAME "Calverin_AnimateControl"

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero (the class's atom) on success; 0 for a null instance.
CVAPI(BOOL) ANIMATE_RegisterClass(HINSTANCE instance);

/// Loads the pictures. Nothing is drawn; an animation that runs goes on with the new pictures, and those from before
/// are not released.
/// @param control  an animation control.
/// @param module   the module that has the resource.
/// @param bitmap   name or MAKEINTRESOURCEA() of the bitmap, of any depth.
/// @param width    of a picture, in pixels; columns that are left over are not used. The height is the bitmap's.
/// @param mask     the colour of the background; CLR_DEFAULT for that of the first pixel, CLR_NONE for no background (both of
///                 <commctrl.h>).
/// @return TRUE if the pictures were loaded; else the control is as it was.
CVAPI(BOOL) ANIMATE_Initialize(HWND control, HINSTANCE module, LPCSTR bitmap, int width, COLORREF mask);

/// Starts the animation at its first picture, which comes 200 milliseconds later; one that runs starts anew.
/// @param control  an animation control.
/// @return FALSE if the control has no pictures or there is no timer for it; it stands still then.
CVAPI(BOOL) ANIMATE_Start(HWND control);

/// Stops the animation, goes back to the first picture and clears the window to the colour of button faces.
/// @param control  an animation control.
/// @return FALSE, with nothing done, if it does not run.
CVAPI(BOOL) ANIMATE_Stop(HWND control);

#endif
