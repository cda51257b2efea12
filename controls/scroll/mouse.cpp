// Pressing, holding and releasing the arrows of a micro scroll bar.
//
// idle -> held (timer kDelayTimer) -> repeating (timer kRepeatTimer) -> idle. Whatever ends the press ends both timers.
#include "controls/scroll/bar.h"

namespace scroll {

namespace {

constexpr UINT_PTR kDelayTimer = 500;
constexpr UINT kDelay = 400;
constexpr UINT_PTR kRepeatTimer = 501;
constexpr UINT kInterval = 50;

POINT PointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

/// @return whether a point lies inside the arrow that is held.
bool IsInsideHeld(HWND bar, Data const& data, POINT point) {
    return data.IsPressed() && IsInside(ArrowRect(bar, data.PressedArrow()), point);
}

// The first arrow sends 1 and the second 0, also side by side, where the platform would name them the other way round.
void SendLine(HWND bar, Data const& data) {
    UINT const message = IsVertical(bar) ? WM_VSCROLL : WM_HSCROLL;
    WPARAM const code = data.firstPressed ? 1 : 0;
    HWND const associate = data.associate;
    if (GetFocus() != associate) {
        SetFocus(associate);
    }
    SendMessageA(associate, message, code, reinterpret_cast<LPARAM>(bar));
}

void KillTimers(HWND bar) {
    KillTimer(bar, kDelayTimer);
    KillTimer(bar, kRepeatTimer);
}

void EndPress(HWND bar, Data& data) {
    InvalidateArrow(bar, data);
    data.firstPressed = data.secondPressed = data.inside = FALSE;
    UpdateWindow(bar);
}

}  // namespace

void Press(HWND bar, LPARAM lParam) {
    Data* const data = DataOf(bar);
    if (!data) {
        return;
    }
    POINT const point = PointOf(lParam);
    data->firstPressed = IsInside(ArrowRect(bar, Arrow::kFirst), point);
    data->secondPressed = IsInside(ArrowRect(bar, Arrow::kSecond), point);
    if (!data->IsPressed()) {
        return;
    }
    data->inside = TRUE;
    InvalidateArrow(bar, *data);
    UpdateWindow(bar);
    SetCapture(bar);
    SetTimer(bar, kDelayTimer, kDelay, nullptr);
}

void Track(HWND bar, LPARAM lParam) {
    Data* const data = DataOf(bar);
    if (!data) {
        return;
    }
    BOOL const now = IsInsideHeld(bar, *data, PointOf(lParam));
    if (now != data->inside) {
        InvalidateArrow(bar, *data);
        data->inside = now;
        UpdateWindow(bar);
    }
}

void Repeat(HWND bar, WPARAM timer) {
    if (timer == kDelayTimer) {
        KillTimer(bar, kDelayTimer);
        SetTimer(bar, kRepeatTimer, kInterval, nullptr);
    }
    Data const* const data = DataOf(bar);
    if (data && data->IsPressed() && data->inside && data->associate) {
        SendLine(bar, *data);
    }
}

void Release(HWND bar, LPARAM lParam) {
    KillTimers(bar);
    // Giving the capture back is reported as losing it, and the press must outlive that report.
    if (Data* const data = DataOf(bar)) {
        data->releasing = TRUE;
    }
    ReleaseCapture();
    Data* data = DataOf(bar);
    if (!data) {
        return;
    }
    data->releasing = FALSE;
    if (data->associate && IsInsideHeld(bar, *data, PointOf(lParam))) {
        SendLine(bar, *data);
        // The associate may have answered by ending the bar.
        data = DataOf(bar);
    }
    if (data) {
        EndPress(bar, *data);
    }
}

void LoseCapture(HWND bar, LPARAM lParam) {
    Data* const data = DataOf(bar);
    if (!data || data->releasing || !data->IsPressed() || reinterpret_cast<HWND>(lParam) == bar) {
        return;
    }
    KillTimers(bar);
    EndPress(bar, *data);
}

}  // namespace scroll
