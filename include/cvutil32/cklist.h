/// @file cklist.h
/// The check list, window class "Calverin_CheckList1".
///
/// A list box whose items have a check box in front of their text: an item is ticked exactly when it is selected. It is
/// a superclass of the system's "listbox" and is used with the messages and notifications of one. The class sets no
/// styles; ask for these:
///
///     CONTROL "", IDC_PARTS, "Calverin_CheckList1", WS_CHILD | WS_VISIBLE | WS_BORDER | WS_VSCROLL | WS_TABSTOP |
///             LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL | LBS_NOTIFY, 7, 7, 100, 80
///
///     SendDlgItemMessageA(dialog, IDC_PARTS, LB_ADDSTRING, 0, (LPARAM)"Engine");
///     SendDlgItemMessageA(dialog, IDC_PARTS, LB_SETSEL, TRUE, 0);                       // item 0 is ticked
///     ...
///     if (SendDlgItemMessageA(dialog, IDC_PARTS, LB_GETSEL, 0, 0) > 0) FitEngine();
///
/// A click or the space bar toggles an item; two quick clicks toggle it twice, there is no double click. `LBN_SELCHANGE`
/// comes then, and when a key moves the focus: LB_GETCARETINDEX tells the item that has it.
///
/// Drawing and measuring. The parent is subclassed when its first check list is created, and answers `WM_DRAWITEM` for
/// check lists and `WM_MEASUREITEM` for everything by itself:
///
/// - An item shows the box at a fixed distance from the list's left edge, then its text, in the colour that the list's
///   device context has. A selected item is not highlighted: the tick is the only sign. Every item of a disabled list
///   shows an empty box. Only a text's first 255 characters are shown.
/// - `WM_DRAWITEM` of other controls reaches the parent, with the control's identifier as wParam; the answer is
///   discarded: it is 0.
/// - `WM_MEASUREITEM` never reaches the parent. Every owner-drawn list box of this parent gets the height that the
///   check list would have; other controls keep the height that they ask with.
///
/// One column only: all boxes are drawn in the first one, so that with `LBS_MULTICOLUMN` a later column's tick lies on the
/// first one's items.
///
/// The class has no functions. The library registers it when it is loaded and takes it back when it is unloaded. Being
/// linked with the library does not load it where nothing else of it is called: such a program calls
/// `LoadLibraryA("CVUTIL32.dll")` before the dialog opens.
#pragma once

/// Class name of the check list.
#define CKLIST_CLASSNAME "Calverin_CheckList1"
