/// @file treelist.h
/// `TREELIST_`: the folder tree list, window class "Calverin_TreeListControl".
///
/// The control. It shows the shell's namespace, the desktop and everything below it, as a tree of folders with the
/// system's small icons, and tells which folder of the file system the user selected. A dialog template creates it by its
/// class name:
///
///     CONTROL "", IDC_FOLDERS, "Calverin_TreeListControl", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 7, 17, 210, 124
///
/// It has no styles of its own. It is a plain window that one tree view fills, the common control "SysTreeView32" with
/// identifier 850, whose size is that of the control when it is created, and which brings a sunken edge; the focus goes on to
/// the tree view. No function selects a folder by its path.
///
/// What is shown. The top level is read when the control is created; its first item, the computer, is opened and
/// selected. The children of any other folder are read when it is opened for the first time, and sorted; a folder that
/// was read is not read again. The children of the first item keep the order in which the shell hands them out. Hidden
/// items are left out, and so are files and folders that neither lie on the file system nor have folders below them. A
/// folder that has folders below it shows a button before its children are known.
///
/// What the user does is what one does in a tree view: click an item or its button, Up and Down, Home and End, Page Up and
/// Page Down, Right to open and Left to close, Backspace to the folder above, typing to find a name.
///
/// Notifications. Whenever the user selects another item with the mouse or the keyboard, the parent gets `WM_COMMAND` with
/// TREELIST_SELCHANGE in the high word of wParam, the control's identifier in the low word and the control's handle as
/// lParam. A selection made by a program sends nothing. TREELIST_GetFolder() then tells the folder:
///
///     case IDC_FOLDERS:
///         char folder[MAX_PATH];
///         EnableWindow(GetDlgItem(dialog, IDOK), TREELIST_GetFolder(GetDlgItem(dialog, IDC_FOLDERS), folder) != 0);
///
/// Wide names. Shells of 1995 give their names as one-byte texts. Those of every Windows with Unicode at its core, today's
/// among them, give wide ones, and the control's conversion of a wide name has room for four bytes. There the tree shows
/// names of up to three letters whole and of longer ones the first four, and TREELIST_GetFolder() knows the roots of
/// drives and what lies on the desktop itself: for any folder below a root the answer is 0. Applications for these systems
/// let the user choose folders by the system's own dialog (SHBrowseForFolder). On Linux names are whole.
///
/// When something fails (memory, the shell's interfaces) the tree holds what could be read until then; a folder that
/// cannot be read keeps its button. Without the component library there is no tree view and the control stays empty.
///
/// Lifetime. The control starts the component library for its thread when it is created. It ends it again only on
/// `WM_CLOSE`, which a control in a dialog does not get; the count then stays with the thread. The control and its
/// functions belong to the thread that made it.
#pragma once

/// Class name of the folder tree list.
#define TREELIST_CLASSNAME "Calverin_TreeListControl"

/// Notification code of WM_COMMAND: the user has selected another item.
#define TREELIST_SELCHANGE 1

#ifndef RC_INVOKED

#include "cvapi.h"

/// Registers the window class. The library does this when it is loaded; a second time does no harm.
/// @param instance  the module that the class belongs to.
/// @return nonzero (the class's atom) on success; 0 for a null instance.
CVAPI(BOOL) TREELIST_RegisterClass(HINSTANCE instance);

/// Tells the path of the selected folder.
/// @param control  a folder tree list.
/// @param buffer   receives the path and its NUL; MAX_PATH (260) bytes.
/// @return the path's length; 0, with an empty path, if nothing is selected, if the selected item does not lie on the file
/// system (the computer), or if its path cannot be had (below a root, where names are wide, see above); 0 also for a window of another class and for a null buffer, with nothing written.
CVAPI(int) TREELIST_GetFolder(HWND control, char* buffer);

#endif
