/// @file nonclient.h
/// The frame around a client area, shared by the files that measure, draw and handle it.
#pragma once

#include "user/model/window.h"

namespace platform::user {

/// WM_NCLBUTTONDBLCLK.
void OnFrameDoubleClick(const Window* window, int hitCode, LPARAM where);

/// WM_SYSKEYDOWN: Alt+F4 closes, Shift+F10 asks for the context menu, as the menu key does when it is let go (WM_KEYUP).
LRESULT OnSystemKey(HWND window, WPARAM key, LPARAM bits);
LRESULT OnKeyUp(HWND window, WPARAM key);
/// WM_SYSCHAR: Alt+Space opens the system menu; other characters have no menu to go to.
LRESULT OnSystemCharacter(HWND window, WPARAM character, LPARAM bits);
/// WM_CONTEXTMENU: a child leaves it to its parent; over a caption the system menu is meant.
LRESULT OnContextMenu(HWND window, WPARAM wParam, LPARAM lParam);
/// WM_CANCELMODE: the mouse is let go, and a menu of the window or of one in it is put away.
void LeaveModes(HWND window);

/// WM_SETCURSOR's default, once the parents have been asked. @returns whether a cursor was set.
bool SetHitCursor(HWND hit, int hitCode, UINT mouseMessage);

/// @returns the parent of a window that is a child by its style; null for another one.
HWND ParentOf(HWND window);
/// @returns the name of the pointer over a part of the frame.
LPCSTR SizingCursor(int hitCode);

/// @returns how wide the frame is, without the caption and a sunken edge.
int FrameWidth(DWORD style, DWORD exStyle);
/// @returns the caption's height with the line below it; 0 without a caption.
int CaptionHeight(DWORD style, DWORD exStyle);

/// Where the parts of a caption lie, in the coordinates of the window rectangle given; empty where there is none.
struct CaptionParts {
    int height;
    RECT bar;
    RECT icon;
    RECT close;
    RECT minimize;
    RECT maximize;
    RECT help;
};
CaptionParts LayOutCaption(const Window* window, RECT windowRect);

/// @returns the HT code of a screen point.
LRESULT HitTest(HWND window, POINT point);

/// Draws a control of a frame, a bar or a field (DFC_), unless there is no room for it.
void DrawPart(HDC context, RECT rect, UINT type, UINT kind, bool pressed, bool disabled);
/// Draws the frame. pressed: the HT code of a button that is held.
void PaintFrame(HWND window, int pressed = HTNOWHERE);

/// The left button goes down on a part of the frame: moves, sizes, or tracks a button.
void PressFrame(HWND window, int hitCode, POINT point);

LRESULT SystemCommand(HWND window, WPARAM command, POINT point);

/// The next message of a loop that handles a window's frame. @returns false when the loop has to end: the window is gone,
/// or the program ends, which is passed on.
bool NextMessage(HWND window, MSG* message);

/// Asks one window, or nobody, for the brush of another (WM_CTLCOLOR...), which also sets the context's colours.
HBRUSH AskForBrush(HWND asked, UINT message, HDC context, HWND about);

/// @returns whether a message tells of a button of the mouse going down in a client area.
bool IsPress(UINT message);

/// @returns whether a message comes from the keyboard or the mouse, which such a loop keeps to itself.
bool IsInput(UINT message);

/// The question mark of a caption was pressed: the next click on the window asks for help on what lies there.
void RunHelpMode(HWND window);

}  // namespace platform::user
