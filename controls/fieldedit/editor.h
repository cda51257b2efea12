// The window of a field editor: one line of text that is edited digit by digit above a triangular caret. It knows
// carets, keys, the mouse and painting; its Rules know the value.
//
// A kind of field registers an own class without background brush and extra bytes; its window procedure passes every
// message to WindowProcedure() together with its rules. The window's data lies at GWLP_USERDATA.
//
// | message             | handler                                              |
// |---------------------|------------------------------------------------------|
// | WM_NCCREATE         | Create: data, WS_TABSTOP, settings                   |
// | WM_NCDESTROY        | Destroy                                              |
// | WM_SETFOCUS         | ShowFocus: caret                                     |
// | WM_KILLFOCUS        | HideFocus                                            |
// | WM_WINDOWPOSCHANGED | PlaceCaret                                           |
// | WM_PAINT            | Paint                                                |
// | WM_ERASEBKGND       | FillBackground                                       |
// | WM_SETFONT          | SetFont                                              |
// | WM_WININICHANGE     | TakeSettings                                         |
// | WM_GETDLGCODE       | arrows and characters                                |
// | WM_KEYDOWN          | MoveByKey                                            |
// | WM_CHAR             | TypeCharacter                                        |
// | WM_VSCROLL          | StepField                                            |
// | WM_LBUTTONDOWN      | PressButton                                          |
// | WM_LBUTTONUP        | ReleaseButton: focus, caret under the pointer        |
#pragma once

#include "controls/fieldedit/rules.h"

namespace fieldedit {

/// A field's record; zeros when it is made.
struct Data {
    DWORD buttonDown;  ///< a press that its release has yet to answer
    BOOL hasValue;     ///< FALSE until the first value is set
    SYSTEMTIME value;
    UINT caretPos;        ///< character under the caret
    HBITMAP caretBitmap;  ///< while the field has the focus
    HFONT font;           ///< the application's; null for the device context's own
    char text[kMaxTextSize];
};

BOOL RegisterFieldClass(HINSTANCE instance, LPCSTR name, WNDPROC procedure);

LRESULT WindowProcedure(Rules const& rules, HWND field, UINT message, WPARAM wParam, LPARAM lParam);

/// @param value  null stands for now.
/// @return whether the field took the value.
BOOL SetValue(Rules const& rules, HWND field, SYSTEMTIME const* value, BOOL redraw);

/// @return the field's valid value; null if it has none or is no field.
SYSTEMTIME const* GetValue(Rules const& rules, HWND field);

// --- shared between the editor's files

Data* DataOf(HWND field);

/// Draws everything anew at once, without erasing.
void Repaint(HWND field);

LRESULT FillBackground(HWND field, HDC dc);
void Paint(Rules const& rules, HWND field);

void MoveCaret(Rules const& rules, HWND field, int delta);
void PlaceCaret(Rules const& rules, HWND field);
void ShowFocus(Rules const& rules, HWND field);
void HideFocus(HWND field);
void ReleaseButton(Rules const& rules, HWND field, LPARAM lParam);

}  // namespace fieldedit
