/// @file browse.h
/// `BROWSE_`: the browse button, window class "Calverin_BrowseButton".
///
/// The button. The small picture button beside an edit field or a combo box, its buddy: a click opens the system's
/// open-file dialog or the dialog "Browse for Folder", and what the user chooses there is written into the buddy. It is a
/// superclass of the graphic button (grbutton.h), with a picture of the library's. A dialog template puts it behind its
/// buddy:
///
///     EDITTEXT IDC_FILE, 60, 10, 120, 12, ES_AUTOHSCROLL
///     CONTROL  "", IDC_BROWSE, "Calverin_BrowseButton", BROWSE_AUTOBUDDY | BROWSE_FILEMODE | WS_TABSTOP, 182, 10, 12, 12
///
/// Options are given as style bits when the button is created. BROWSE_SetDialogOptions() changes those of them that
/// concern the dialogs later; the window style itself does not tell them, since it becomes that of an owner-drawn button.
///
/// | option | meaning |
/// |---|---|
/// | `BROWSE_AUTOBUDDY` | the buddy is the nearest window before the button among its siblings that is an edit field or a combo box; looked for once, when the button is created |
/// | `BROWSE_FILEMODE` | a click browses for files; without it, for a folder |
/// | `BROWSE_APPEND` | the choice is appended to the buddy's text behind a ";"; without it, it replaces the text |
/// | `BROWSE_MULTISELECT` | several files can be chosen; needs `BROWSE_FILEMODE` |
/// | `BROWSE_NOTIFY` | the parent gets the two notifications |
/// | `BROWSE_NOACTION` | a click is no more than a click: the application acts on it |
///
/// The button's text is not shown, but an "&" in it marks the letter that presses the button with Alt. The open-file dialog
/// lists all files: for a filter take `BROWSE_NOACTION` and call GetOpenFileNameA() at the click.
///
/// A click. The parent gets the click as it does from any button. Then, unless there is no buddy, the buddy's text becomes
/// the button's file specs, and tells where the open-file dialog begins: an existing file is proposed in its folder, an
/// existing folder is shown. The folder dialog always opens at the top, whatever the buddy holds. If the user accepts, the buddy gets the new text and the parent a `WM_COMMAND` from the buddy as if
/// the user had typed it: `EN_CHANGE` from an edit field, `CBN_EDITCHANGE` from anything else. If the user cancels, the
/// buddy keeps its text.
///
/// Several files come as the folder and the names in it: `C:\DIR;a.txt;b.txt`; a single one as its full path. A folder
/// comes in small letters. A file that does not exist is refused where one file is asked for, not where several are.
///
/// Notifications, with `BROWSE_NOTIFY`: `WM_COMMAND` with the code in the high word of wParam, the button's identifier in
/// the low word and the button's handle as lParam.
///
/// | code | when |
/// |---|---|
/// | `BRN_BEFOREBROWSE` | the buddy's text was read, the dialog comes next |
/// | `BRN_AFTERBROWSE` | the user accepted, BROWSE_GetFileSpecs() gives the new text, the buddy still has the old one |
///
/// Names with characters of 0x80 and above. The text of a CSTRING ends at the first of them when it is appended, and so
/// does what the buddy gets; in a list of several files, a name that begins with one ends the list before it.
///
/// Choosing a folder on a system whose shell gives wide names (today's Windows) comes to the roots of drives and no
/// further: the dialog's folder tree finds no other paths there, and its OK button stays disabled (treelist.h). The
/// open-file dialog is the system's and finds everything.
///
/// An empty buddy leaves the file specs as they were: with `BROWSE_APPEND` the new choice then follows the last one.
///
/// A button's data lives from its WM_NCCREATE to its WM_NCDESTROY. If there is no memory for it the window remains a
/// graphic button that the functions refuse. The parent is subclassed when its first browse button is created; `WM_COMMAND`
/// then reaches it before the button acts on it, and its answer is discarded: it is 0 from then on.
#pragma once

/// Class name of the browse button.
#define BROWSE_CLASSNAME "Calverin_BrowseButton"

/// Option: takes the edit field or combo box before the button as buddy.
#define BROWSE_AUTOBUDDY 0x0001L
/// Option: browses for files, not for a folder.
#define BROWSE_FILEMODE 0x0002L
/// Option: appends to the buddy's text.
#define BROWSE_APPEND 0x0004L
/// Option: several files.
#define BROWSE_MULTISELECT 0x0008L
/// Option: sends the notifications.
#define BROWSE_NOTIFY 0x0010L
/// Option: a click opens nothing.
#define BROWSE_NOACTION 0x8000L

/// Notification: the dialog is about to open.
#define BRN_BEFOREBROWSE 1
/// Notification: the user has accepted, the buddy is about to get the text.
#define BRN_AFTERBROWSE 2

/// Flag of BROWSE_DisplayBrowseDialog(): the open-file dialog, not the folder dialog.
#define BROWSE_DLG_FILE 0x0001
/// Flag of BROWSE_DisplayBrowseDialog(): several files.
#define BROWSE_DLG_MULTISELECT 0x0002

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded, after the graphic button; a second time does no
/// harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero on success; 0 for a null instance and if there is no graphic button.
CVAPI(BOOL) BROWSE_RegisterClass(HINSTANCE instance);

/// Tells the options that concern the dialogs.
/// @param button  a browse button.
/// @return `BROWSE_FILEMODE`, `BROWSE_APPEND`, `BROWSE_MULTISELECT` and `BROWSE_NOTIFY` as they are set; 0 also if the
/// window is not valid.
CVAPI(DWORD) BROWSE_GetDialogOptions(HWND button);

/// Changes the options that concern the dialogs.
/// @param button   a browse button.
/// @param options  those of the four named above that are to be set; other bits are left alone.
/// @return the whole word until now, with the style bits that the button was created with; 0 if the window is not valid.
CVAPI(DWORD) BROWSE_SetDialogOptions(HWND button, DWORD options);

/// Names the window that a button reads and writes.
/// @param button  a browse button.
/// @param buddy   an edit field, a combo box or any other window with a text. It must outlive the button.
/// @return the buddy until now; null also if there was none, or if either window is not valid and nothing was changed.
CVAPI(HWND) BROWSE_SetBuddyWindow(HWND button, HWND buddy);

/// Hands out a button's file specs: the text read from the buddy at the last click, or chosen by it.
/// @param button  a browse button.
/// @param out     receives a pointer to the text, which holds until the specs change.
/// @return TRUE, or FALSE with @p out untouched if an argument is not valid.
CVAPI(BOOL) BROWSE_GetFileSpecs(HWND button, const char** out);

/// Replaces a button's file specs; the buddy is not touched.
/// @param button  a browse button.
/// @param specs   the text; null changes nothing.
/// @return FALSE in every case, also when the text was taken: callers have come to rely on it.
CVAPI(BOOL) BROWSE_SetFileSpecs(HWND button, const char* specs);

/// Opens one of the two dialogs by itself.
/// @param owner     the window that is disabled meanwhile.
/// @param folder    where to begin, with or without a backslash at its end; null or empty lets the system choose. Of no
///                  effect on the folder dialog.
/// @param fileName  the name proposed; null or empty for none. Of no effect on the folder dialog.
/// @param buffer    receives what was chosen: a path, or for several files the folder and the names, separated by ";".
///                  The folder dialog gives at most 259 characters, in small letters.
/// @param length    of the buffer in bytes, from 1.
/// @param flags     `BROWSE_DLG_FILE`, `BROWSE_DLG_MULTISELECT`.
/// @return nonzero if the user accepted; 0 also if the owner or the buffer is not valid.
CVAPI(BOOL)
BROWSE_DisplayBrowseDialog(HWND owner, const char* folder, const char* fileName, char* buffer, UINT length,
                           DWORD flags);

/// The hook procedure of the open-file dialog: its accept button reads "OK", and a single file must exist.
CVAPI(UINT_PTR) browse_DialogFileHookProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

#endif
