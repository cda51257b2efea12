/// @file util.h
/// `UTIL_`: utilities for applications and for the library itself.
///
/// Module instance. CVUTIL32 loads its dialogs, strings and bitmaps from its own module. The loader hands that module's
/// instance to the library when a process attaches to it; it is kept for as long as the process lives, also beyond the
/// detach, and can be asked for at any time:
///
///     HINSTANCE library = UTIL_GetModuleInstance();
///
/// An application that carries the library's resources itself (translated ones, say) can name its own module instead by
/// UTIL_SetModuleInstance(); the window classes stay registered to the library. The instance is one word without a
/// lock: set it before other threads use the library.
///
/// Lists of paths. A dialog field may hold several paths, separated by semicolons or spaces; one that holds such a
/// character itself stands in double quotes, as CSTRING::SplitPath() makes it. A plus sign right behind a path says
/// that its subfolders are meant too: `C:\A+;"C:\My files"+`. UTIL_AddRemoveSubdirSymbol() sets and takes away these
/// signs when the user ticks "Include subfolders".
///
/// Context help. Dialogs answer `WM_HELP` (the F1 key, the question mark in the caption) and `WM_CONTEXTMENU` (the
/// right mouse button) with UTIL_WinHelp() in place of the system's WinHelpA():
///
///     static const DWORD topics[] = {IDC_NAME, 1001, IDC_FOLDER, 1002, 0, 0};
///
///     case WM_HELP:
///         return UTIL_WinHelp((HWND)((HELPINFO*)lParam)->hItemHandle, "VIEWER.HLP", HELP_WM_HELP, (ULONG_PTR)topics);
///     case WM_CONTEXTMENU:
///         return UTIL_WinHelp((HWND)wParam, "VIEWER.HLP", HELP_CONTEXTMENU, (ULONG_PTR)topics);
///
/// It knows that a graphic button inside another control (as in a browse button) has no topic of its own.
#pragma once

#include "cvapi.h"

/// Names the module from which the library loads its resources.
/// @param instance  replaces the instance kept so far, whatever it is; null is taken as it stands.
CVAPI(void) UTIL_SetModuleInstance(HINSTANCE instance);

/// Tells the module from which the library loads its resources.
/// @return the instance stored last: the library's own after loading; null before anything was stored.
CVAPI(HINSTANCE) UTIL_GetModuleInstance(void);

/// Marks all paths of a list in a dialog's field with the include-subfolders sign, or takes all signs away. Signs
/// inside double quotes are parts of names and stay. A path with a space that is not in quotes counts as two.
/// @param dialog     the window that holds the field.
/// @param controlId  the field's identifier; nothing happens when it is empty or missing.
/// @param add        nonzero marks (once, however often it is called), 0 takes away.
CVAPI(void) UTIL_AddRemoveSubdirSymbol(HWND dialog, int controlId, BOOL add);

/// Moves a window to the middle of its parent or owner, or of the screen if it has none, as far as it stays on the
/// screen; the left top corner of a window that is too large does. Its size stays. As with every move of a top-level window
/// that does not say otherwise, the window is activated and comes to the top.
/// @param window  nothing happens for null and for what is no window.
CVAPI(void) UTIL_CenterPopup(HWND window);

/// Writes a number with the user's thousands separator ("intl", sThousand; a comma where it is missing).
///
/// The minus sign counts as a digit when groups are made: -123 becomes -,123. Callers know it.
/// @param value    32 bits count.
/// @param out      receives the text; null does nothing.
/// @param outSize  bytes in @p out; a text that is too long is cut, and always ended.
CVAPI(void) UTIL_LongToStringWithCommas(long value, char* out, int outSize);

/// Tells whether a folder exists, with or without a backslash at its end. The root of a drive or share counts as one,
/// also if nothing can be listed there.
/// @return 1 or 0; 0 for null, an empty path and a file's path.
CVAPI(BOOL) UTIL_DirExists(const char* path);

/// Tells whether a file exists that is no folder. With wildcards, the first entry that fits decides.
/// @return 1 or 0; 0 for null and an empty path.
CVAPI(BOOL) UTIL_FileExists(const char* path);

/// Shows help by WinHelpA(), with two commands made to fit dialogs with graphic buttons inside other controls.
/// @param window    HELP_WM_HELP: the control that help is wanted for; a graphic button inside a child window stands
///                  for that window. Else as WinHelpA() takes it.
/// @param helpFile  path of the help file.
/// @param command   HELP_CONTEXTMENU: help is asked for the control under the mouse pointer; if it has an identifier
///                  and that is not in the table, no help is shown. HELP_WM_HELP, and any other command of WinHelpA().
/// @param data      for these two commands the address of a table of pairs of 32-bit numbers, a control's identifier
///                  and its topic, which a pair with the identifier 0 ends. Else as WinHelpA() takes it.
/// @return the result of WinHelpA(), or 1 if there is nothing to be shown.
CVAPI(BOOL) UTIL_WinHelp(HWND window, const char* helpFile, UINT command, ULONG_PTR data);
