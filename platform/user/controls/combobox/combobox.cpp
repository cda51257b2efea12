// The "combobox" class: changes, what its parts tell, input, and the window procedure.
#include <algorithm>

#include "user/controls/combobox/combo.h"

namespace platform::user {
namespace {

void OnDestroy(ComboData& combo) {
    if (combo.Drops() && IsWindow(combo.list))
        DestroyWindow(combo.list);
}

// --- changes

/// Of the height that a drop-down combo box is given, what is beyond the field is for the list.
void OnSizing(ComboData& combo, WINDOWPOS& position) {
    if (!combo.Drops() || (position.flags & SWP_NOSIZE) || combo.fieldHeight == 0)
        return;
    const int closed = ClosedHeight(combo);
    if (position.cy > closed)
        combo.dropHeight = position.cy - closed;
    position.cy = closed;
}

void OnSetFont(ComboData& combo, WPARAM font, bool redraw) {
    combo.font = reinterpret_cast<HFONT>(font);
    if (combo.edit)
        SendMessageA(combo.edit, WM_SETFONT, font, FALSE);
    SendMessageA(combo.list, WM_SETFONT, font, FALSE);
    // Field and dropped list together stay as high as they are.
    const int whole = combo.dropHeight + ClosedHeight(combo);
    MeasureField(combo);
    combo.dropHeight = std::max(0, whole - ClosedHeight(combo));
    if (redraw)
        InvalidateRect(combo.window, nullptr, TRUE);
}

void OnEnable(ComboData& combo, bool enabled) {
    if (combo.edit)
        EnableWindow(combo.edit, enabled);
    EnableWindow(combo.list, enabled);
    InvalidateRect(combo.window, nullptr, TRUE);
}

// --- what the parts tell

void OnEditNotification(ComboData& combo, UINT code) {
    if (combo.quiet || code != EN_CHANGE)
        return;
    // What is typed is no item of the list, which at most shows where it would be.
    SendMessageA(combo.list, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    const LRESULT nearest = FindTyped(combo);
    if (nearest >= 0)
        SendMessageA(combo.list, LB_SETTOPINDEX, static_cast<WPARAM>(nearest), 0);
    NotifyCombo(combo, CBN_EDITCHANGE);
}

void OnSelectionChange(ComboData& combo) {
    if (combo.dropped && !combo.byKey)
        CloseUp(combo, true);
    if (!IsWindow(combo.window))
        return;
    combo.settled = Current(combo);
    if (!combo.edit)
        RedrawCombo(combo);
    NotifyCombo(combo, CBN_SELCHANGE);
    // The parent may look at the former text until here.
    if (combo.edit && IsWindow(combo.edit))
        ShowSelection(combo);
}

void OnCommand(ComboData& combo, WPARAM wParam, LPARAM lParam) {
    const auto from = reinterpret_cast<HWND>(lParam);
    if (from && from == combo.edit)
        OnEditNotification(combo, HIWORD(wParam));
    else if (from && from == combo.list && HIWORD(wParam) == LBN_SELCHANGE)
        OnSelectionChange(combo);
}

// --- input

void OnButtonDown(ComboData& combo, LPARAM lParam) {
    SetFocus(combo.window);
    if (!IsWindow(combo.window) || !combo.Drops())
        return;
    const POINT point = MousePoint(lParam);
    const RECT arrow = ArrowRect(combo);
    const bool onArrow = PtInRect(&arrow, point) != FALSE;
    if (combo.edit && !onArrow)
        return;
    if (combo.dropped) {
        CloseUp(combo, false);
        return;
    }
    combo.pressed = true;
    DropDown(combo);
    if (!combo.dropped)
        combo.pressed = false;
}

void OnWheel(ComboData& combo, WPARAM wParam, LPARAM lParam) {
    if (combo.dropped || !combo.Drops()) {
        SendMessageA(combo.list, WM_MOUSEWHEEL, wParam, lParam);
        return;
    }
    OnComboKey(combo, WM_KEYDOWN, GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? VK_UP : VK_DOWN);
}

LRESULT OnText(ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    if (combo.edit) {
        combo.quiet = true;
        const LRESULT result = SendMessageA(combo.edit, message, wParam, lParam);
        combo.quiet = false;
        return result;
    }
    const std::string text = ItemText(combo, Current(combo));
    if (message == WM_GETTEXTLENGTH)
        return static_cast<LRESULT>(text.size());
    auto* buffer = reinterpret_cast<char*>(lParam);
    return message == WM_GETTEXT && buffer && wParam ? CopyText(text, wParam, buffer) : CB_ERR;
}

LRESULT OnInput(ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnButtonDown(combo, lParam);
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return OnComboKey(combo, message, wParam) ? 0 : DefWindowProcA(combo.window, message, wParam, lParam);
        case WM_CHAR:
            OnComboCharacter(combo, wParam);
            return 0;
        case WM_MOUSEWHEEL:
            OnWheel(combo, wParam, lParam);
            return 0;
        case WM_CANCELMODE:
            CloseUp(combo, false);
            return DefWindowProcA(combo.window, message, wParam, lParam);
        default:
            return DefWindowProcA(combo.window, message, wParam, lParam);
    }
}

LRESULT HandleComboBox(HWND window, ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    // A procedure in front of this one may have kept WM_NCCREATE to itself.
    combo.window = window;
    switch (message) {
        case WM_NCCREATE:
            TakeFrameStyles(combo);
            return DefWindowProcA(window, message, wParam, lParam);
        case WM_CREATE:
            return OnCreateCombo(combo, *reinterpret_cast<const CREATESTRUCTA*>(lParam));
        case WM_DESTROY:
            OnDestroy(combo);
            return 0;
        case WM_GETDLGCODE:
            return ComboDialogCode(combo, lParam);
        case WM_WINDOWPOSCHANGING:
            OnSizing(combo, *reinterpret_cast<WINDOWPOS*>(lParam));
            return 0;
        case WM_SIZE:
            LayOutCombo(combo);
            return 0;
        case WM_PAINT:
            return PaintWith(window, [&](HDC context, const RECT&) { PaintCombo(combo, context); });
        case WM_ENABLE:
            OnEnable(combo, wParam != 0);
            return 0;
        case WM_SETFONT:
            OnSetFont(combo, wParam, LOWORD(lParam) != 0);
            return 0;
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
            return OnText(combo, message, wParam, lParam);
        case WM_SETFOCUS:
            if (combo.edit) {
                SetFocus(combo.edit);
                SendMessageA(combo.edit, EM_SETSEL, 0, -1);
            } else {
                GainFocus(combo);
            }
            return 0;
        case WM_KILLFOCUS:
            LoseFocus(combo, reinterpret_cast<HWND>(wParam));
            return 0;
        case WM_COMMAND:
            OnCommand(combo, wParam, lParam);
            return 0;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORLISTBOX: {
            const HWND parent = GetParent(window);
            return parent ? SendMessageA(parent, message, wParam, lParam) : 0;
        }
        default:
            if (message >= CB_ADDSTRING && message <= CB_FINDSTRINGEXACT)
                return OnComboMessage(combo, message, wParam, lParam);
            return OnInput(combo, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK ComboBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerAs<ComboData>(window, message, wParam, lParam, HandleComboBox);
}

}  // namespace platform::user
