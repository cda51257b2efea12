// The list of a combo box drops and closes, under mouse and keyboard.
#include <algorithm>

#include "user/controls/combobox/combo.h"
#include "user/input/input.h"

namespace platform::user {
namespace {

constexpr int kListFrame = 2;  // the list's border, above and below

/// Where the list drops: below the field, else above it.
RECT ListRect(const ComboData& combo) {
    RECT field{};
    GetWindowRect(combo.window, &field);
    const auto list = ControlOf<ListData>(combo.list);
    int height = combo.dropHeight;
    if (list) {
        const int item = std::max(1, list->itemHeight);
        const int wanted = std::clamp(list->items.Count(), 1, 0x7FFF) * item + kListFrame;
        height = std::min(height, wanted);
        height -= (height - kListFrame) % item;
        height = std::max(height, item + kListFrame);
    }
    const int width = field.right - field.left;
    const int screen = GetSystemMetrics(SM_CYSCREEN);
    const bool above = field.bottom + height > screen && field.top - height >= 0;
    const int top = above ? field.top - height : field.bottom;
    return {field.left, top, field.left + width, top + height};
}

bool CombosKeys(const ComboData& combo, WPARAM key) {
    switch (key) {
        case VK_UP:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT:
            return true;
        case VK_HOME:
        case VK_END:
        case VK_LEFT:
        case VK_RIGHT:
            return !combo.edit;
        default:
            return false;
    }
}

void Toggle(ComboData& combo) {
    if (combo.dropped)
        CloseUp(combo, true);
    else
        DropDown(combo);
}

}  // namespace

RECT DroppedRect(const ComboData& combo) {
    RECT whole{};
    GetWindowRect(combo.window, &whole);
    if (combo.Drops()) {
        const RECT field = whole;
        RECT list = ListRect(combo);
        // Closed, it tells how long the list may become.
        if (!combo.dropped)
            list.bottom = list.top + std::max<int>(combo.dropHeight, list.bottom - list.top);
        UnionRect(&whole, &field, &list);
    }
    return whole;
}

void DropDown(ComboData& combo) {
    if (combo.dropped || !combo.Drops())
        return;
    NotifyCombo(combo, CBN_DROPDOWN);
    const auto list = ControlOf<ListData>(combo.list);
    if (!list || combo.dropped)
        return;
    combo.settled = Current(combo);
    // In a drop-down combo box the item that begins with the text is where the list opens.
    const LRESULT typed = FindTyped(combo);
    if (typed >= 0 && typed != Current(combo))
        SendMessageA(combo.list, LB_SETCURSEL, static_cast<WPARAM>(typed), 0);
    combo.dropped = true;
    const RECT place = ListRect(combo);
    SetWindowPos(combo.list, HWND_TOP, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_SHOWWINDOW);
    if (list->chosen >= 0)
        ScrollTo(*list, list->chosen);
    list->following = true;
    SetCapture(combo.list);
    RedrawCombo(combo);
    UpdateWindow(combo.list);
}

void CloseUp(ComboData& combo, bool taken) {
    if (!combo.dropped)
        return;
    combo.dropped = combo.pressed = false;
    if (!taken)
        SendMessageA(combo.list, LB_SETCURSEL, static_cast<WPARAM>(combo.settled), 0);
    if (const auto list = ControlOf<ListData>(combo.list)) {
        list->following = false;
        EndTracking(*list);
        ShowWindow(combo.list, SW_HIDE);
    }
    LetGoOfMouse(combo.list);
    RedrawCombo(combo);
    NotifyCombo(combo, CBN_CLOSEUP);
}

bool OnDroppedListInput(ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto combo = ControlOf<ComboData>(list.combo);
    if (!combo || !combo->Drops())
        return false;
    const POINT point = MousePoint(lParam);
    const RECT client = ListClient(list);
    const bool inside = PtInRect(&client, point) != FALSE;
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            POINT onScreen = point;
            ClientToScreen(list.window, &onScreen);
            const LPARAM where = MAKELPARAM(onScreen.x, onScreen.y);
            const LRESULT hit = SendMessageA(list.window, WM_NCHITTEST, 0, where);
            if (inside) {
                list.tracking = true;
                OnListMouseMove(list, point);
            } else if (hit == HTVSCROLL || hit == HTHSCROLL) {
                combo->scrolling = true;
                SendMessageA(list.window, WM_NCLBUTTONDOWN, static_cast<WPARAM>(hit), where);
                combo->scrolling = false;
                if (combo->dropped)
                    SetCapture(list.window);
            } else {
                CloseUp(*combo, false);
            }
            return true;
        }
        case WM_MOUSEMOVE:
            // The button went down on the arrow and is still held: from here on it drags in the list.
            if (inside && combo->pressed && (wParam & MK_LBUTTON))
                list.tracking = true;
            OnListMouseMove(list, point);
            return true;
        case WM_LBUTTONUP: {
            const bool tracked = list.tracking;
            EndTracking(list);
            if (combo->pressed) {
                combo->pressed = false;
                RedrawCombo(*combo);
            }
            if (tracked && inside)
                NotifyList(list, LBN_SELCHANGE);
            else if (tracked)
                CloseUp(*combo, false);
            return true;
        }
        case WM_CAPTURECHANGED:
            if (combo->dropped && !combo->scrolling && reinterpret_cast<HWND>(lParam) != list.window)
                CloseUp(*combo, false);
            return true;
        default:
            return false;
    }
}

bool OnComboKey(ComboData& combo, UINT message, WPARAM key) {
    if (message == WM_SYSKEYDOWN) {
        if ((key != VK_UP && key != VK_DOWN) || !combo.Drops())
            return false;
        Toggle(combo);
        return true;
    }
    if (combo.Drops() && key == VK_F4) {
        Toggle(combo);
        return true;
    }
    if (combo.dropped && (key == VK_RETURN || key == VK_ESCAPE)) {
        const bool taken = key == VK_RETURN;
        CloseUp(combo, taken);
        if (taken && IsWindow(combo.window))
            ShowSelection(combo);
        return true;
    }
    const auto list = CombosKeys(combo, key) ? ControlOf<ListData>(combo.list) : nullptr;
    if (!list)
        return false;
    combo.byKey = true;
    OnListKey(*list, key);
    combo.byKey = false;
    return true;
}

void OnComboCharacter(ComboData& combo, WPARAM character) {
    const auto list = combo.edit ? nullptr : ControlOf<ListData>(combo.list);
    if (!list)
        return;
    combo.byKey = true;
    OnListCharacter(*list, character);
    combo.byKey = false;
}

}  // namespace platform::user
