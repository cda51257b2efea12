// The "button" class: states, mouse, keyboard, messages and notifications.
#include "user/controls/button.h"

#include "user/input/input.h"

namespace platform::user {
namespace {

using Press = ButtonData::Press;

/// Draws at once, as callers see the new look when a message returns.
void Redraw(HWND button, const ButtonData& data, UINT action) {
    if (ButtonKind(ControlStyle(button)) != BS_GROUPBOX)
        DrawNow(button, [&](HDC context) { PaintButton(button, data, context, action); });
}

/// A group box is only frame and caption: what was behind them is the parent's to erase.
void RedrawGroup(HWND button) {
    const HWND parent = GetParent(button);
    RECT rect{};
    if (!parent || !GetWindowRect(button, &rect))
        return;
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    InvalidateRect(parent, &rect, TRUE);
}

void RedrawAll(HWND button, const ButtonData& data) {
    if (ButtonKind(ControlStyle(button)) == BS_GROUPBOX)
        RedrawGroup(button);
    else
        Redraw(button, data, ODA_DRAWENTIRE);
}

void SetPushed(HWND button, bool pushed) {
    SendMessageA(button, BM_SETSTATE, pushed, 0);
}

// --- checking

/// Unchecks the other radio buttons of the group.
void CheckInGroup(HWND button) {
    const HWND parent = GetParent(button);
    HWND next = button;
    for (int guard = 0; parent && guard < 0x10000; ++guard) {
        next = GetNextDlgGroupItem(parent, next, FALSE);
        if (!next || next == button)
            break;
        if ((DWORD(SendMessageA(next, WM_GETDLGCODE, 0, 0)) & (DLGC_BUTTON | DLGC_RADIOBUTTON)) ==
            (DLGC_BUTTON | DLGC_RADIOBUTTON))
            SendMessageA(next, BM_SETCHECK, BST_UNCHECKED, 0);
    }
    SendMessageA(button, BM_SETCHECK, BST_CHECKED, 0);
}

void Click(HWND button, const ButtonData& data) {
    const UINT check = data.state & (BST_CHECKED | BST_INDETERMINATE);
    switch (ButtonKind(ControlStyle(button))) {
        case BS_AUTOCHECKBOX:
            SendMessageA(button, BM_SETCHECK, check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED, 0);
            break;
        case BS_AUTO3STATE:
            SendMessageA(button, BM_SETCHECK, (check + 1) % 3, 0);
            break;
        case BS_AUTORADIOBUTTON:
            CheckInGroup(button);
            break;
        default:
            break;
    }
    NotifyParent(button, BN_CLICKED);
}

LRESULT OnSetCheck(HWND button, ButtonData& data, WPARAM wParam) {
    const DWORD style = ControlStyle(button);
    const DWORD kind = ButtonKind(style);
    const bool radio = IsRadioKind(kind);
    if (!radio && !IsCheckKind(kind))
        return 0;
    const bool third = wParam >= BST_INDETERMINATE && kind == BS_AUTO3STATE;
    const UINT check = wParam == 0 ? BST_UNCHECKED : (third ? BST_INDETERMINATE : BST_CHECKED);
    if (radio) {
        // Tab stops at the checked button of a group.
        const DWORD wanted = check ? style | WS_TABSTOP : style & ~DWORD{WS_TABSTOP};
        if (wanted != style)
            SetWindowLongA(button, GWL_STYLE, static_cast<LONG>(wanted));
    }
    if ((data.state & 3) == check)
        return 0;
    data.state = (data.state & ~3U) | check;
    Redraw(button, data, ODA_SELECT);
    return 0;
}

// --- mouse and keyboard

void OnButtonDown(HWND button, ButtonData& data) {
    SetCapture(button);
    data.press = Press::Mouse;
    SetFocus(button);
    // Whoever lost the focus may have taken the mouse away.
    if (data.press == Press::Mouse && IsWindow(button))
        SetPushed(button, true);
}

void EndPress(HWND button, ButtonData& data, bool mayClick) {
    const bool clicked = mayClick && (data.state & BST_PUSHED);
    data.press = Press::None;
    if (data.state & BST_PUSHED)
        SetPushed(button, false);
    LetGoOfMouse(button);
    if (clicked && IsWindow(button))
        Click(button, data);
}

void OnMouseMove(HWND button, const ButtonData& data, LPARAM lParam) {
    if (data.press != Press::Mouse)
        return;
    RECT client{};
    GetClientRect(button, &client);
    const POINT point = MousePoint(lParam);
    const bool inside = PtInRect(&client, point) != FALSE;
    if (inside != ((data.state & BST_PUSHED) != 0))
        SetPushed(button, inside);
}

void OnDoubleClick(HWND button, ButtonData& data) {
    const DWORD kind = ButtonKind(ControlStyle(button));
    if (kind == BS_OWNERDRAW || IsRadioKind(kind))
        NotifyParent(button, BN_DOUBLECLICKED);
    else
        OnButtonDown(button, data);
}

void OnKeyDown(HWND button, ButtonData& data, WPARAM key) {
    if (key != VK_SPACE || data.press != Press::None)
        return;
    SetCapture(button);
    data.press = Press::Key;
    SetPushed(button, true);
}

void OnKeyUp(HWND button, ButtonData& data, WPARAM key) {
    if (data.press == Press::Key)
        EndPress(button, data, key == VK_SPACE);
}

/// '+', '=' and '-' set the check boxes that are no more than checked or not.
bool IsCheckKey(DWORD kind, WPARAM character) {
    return (kind == BS_CHECKBOX || kind == BS_AUTOCHECKBOX) &&
           (character == '+' || character == '=' || character == '-');
}

void OnCharacter(HWND button, const ButtonData& data, WPARAM character) {
    const DWORD kind = ButtonKind(ControlStyle(button));
    if (!IsCheckKey(kind, character))
        return;
    const UINT wanted = character == '-' ? BST_UNCHECKED : BST_CHECKED;
    if ((data.state & 3) == wanted)
        return;
    if (kind == BS_AUTOCHECKBOX)
        SendMessageA(button, BM_SETCHECK, wanted, 0);
    NotifyParent(button, BN_CLICKED);
}

void OnFocus(HWND button, ButtonData& data, bool has) {
    data.state = has ? data.state | BST_FOCUS : data.state & ~static_cast<UINT>(BST_FOCUS);
    if (!has && data.press != Press::None)
        EndPress(button, data, false);
    Redraw(button, data, ODA_FOCUS);
}

// --- the rest

LRESULT ButtonDialogCode(HWND button, LPARAM lParam) {
    const DWORD kind = ButtonKind(ControlStyle(button));
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    switch (kind) {
        case BS_PUSHBUTTON:
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON:
            return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return DLGC_BUTTON | DLGC_RADIOBUTTON;
        case BS_GROUPBOX:
            return DLGC_STATIC;
        default:
            if (message && message->message == WM_CHAR && IsCheckKey(kind, message->wParam))
                return DLGC_BUTTON | DLGC_WANTCHARS;
            return DLGC_BUTTON;
    }
}

void OnSetStyle(HWND button, const ButtonData& data, WPARAM wParam, LPARAM lParam) {
    const DWORD style = ControlStyle(button);
    const DWORD wanted = (style & ~DWORD{BS_TYPEMASK}) | (static_cast<DWORD>(wParam) & BS_TYPEMASK);
    if (wanted != style)
        SetWindowLongA(button, GWL_STYLE, static_cast<LONG>(wanted));
    if (LOWORD(lParam))
        RedrawAll(button, data);
}

LRESULT OnButtonMessage(HWND button, ButtonData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case BM_GETCHECK:
            return data.state & (BST_CHECKED | BST_INDETERMINATE);
        case BM_SETCHECK:
            return OnSetCheck(button, data, wParam);
        case BM_GETSTATE:
            return data.state & 0xF;
        case BM_SETSTATE: {
            const UINT pushed = wParam ? BST_PUSHED : 0;
            if ((data.state & BST_PUSHED) != pushed) {
                data.state = (data.state & ~static_cast<UINT>(BST_PUSHED)) | pushed;
                Redraw(button, data, ODA_SELECT);
            }
            return 0;
        }
        case BM_SETSTYLE:
            OnSetStyle(button, data, wParam, lParam);
            return 0;
        case BM_CLICK:
            SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, 0);
            SendMessageA(button, WM_LBUTTONUP, 0, 0);
            return 0;
        default:
            return DefWindowProcA(button, message, wParam, lParam);
    }
}

LRESULT OnInput(HWND button, ButtonData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
            OnButtonDown(button, data);
            return 0;
        case WM_LBUTTONUP:
            if (data.press == Press::Mouse)
                EndPress(button, data, true);
            return 0;
        case WM_LBUTTONDBLCLK:
            OnDoubleClick(button, data);
            return 0;
        case WM_MOUSEMOVE:
            OnMouseMove(button, data, lParam);
            return 0;
        case WM_CAPTURECHANGED:
            if (data.press != Press::None && reinterpret_cast<HWND>(lParam) != button)
                EndPress(button, data, false);
            return 0;
        case WM_KEYDOWN:
            OnKeyDown(button, data, wParam);
            return DefWindowProcA(button, message, wParam, lParam);
        case WM_KEYUP:
            OnKeyUp(button, data, wParam);
            return 0;
        case WM_CHAR:
            OnCharacter(button, data, wParam);
            return 0;
        default:
            return DefWindowProcA(button, message, wParam, lParam);
    }
}

LRESULT HandleButton(HWND window, ButtonData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return ButtonDialogCode(window, lParam);
        case WM_NCHITTEST: {
            const LRESULT hit = DefWindowProcA(window, message, wParam, lParam);
            return hit == HTCLIENT && ButtonKind(ControlStyle(window)) == BS_GROUPBOX ? HTTRANSPARENT : hit;
        }
        case WM_PAINT:
            return PaintWith(window,
                             [&](HDC context, const RECT&) { PaintButton(window, data, context, ODA_DRAWENTIRE); });
        case WM_ENABLE:
            RedrawAll(window, data);
            return 0;
        case WM_SETTEXT: {
            const LRESULT result = DefWindowProcA(window, message, wParam, lParam);
            RedrawAll(window, data);
            return result;
        }
        case WM_SETFONT:
            data.font = reinterpret_cast<HFONT>(wParam);
            if (LOWORD(lParam))
                RedrawAll(window, data);
            return 0;
        case WM_SETFOCUS:
            OnFocus(window, data, true);
            return 0;
        case WM_KILLFOCUS:
            OnFocus(window, data, false);
            return 0;
        default:
            if (message >= BM_GETCHECK && message <= BM_CLICK)
                return OnButtonMessage(window, data, message, wParam, lParam);
            return OnInput(window, data, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK ButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerAs<ButtonData>(window, message, wParam, lParam, HandleButton);
}

}  // namespace platform::user
