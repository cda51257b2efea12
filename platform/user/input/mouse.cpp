// Cooking mouse input: which window an event is for, and what happens around it before the message is handed out.
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "user/input/input.h"
#include "user/message/above.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

struct Target {
    HWND window = nullptr;
    int hit = HTCLIENT;
    bool captured = false;
    bool disabled = false;  ///< a disabled top-level window: it gets no mouse messages, but hears of the press
};

// The windows at a point, deepest first: what a window that calls itself transparent hides is next. A disabled child is
// as good as not there; a disabled top-level window takes the event and loses it.
void CollectCandidates(Window* parent, POINT point, std::vector<HWND>* windows, bool* disabled) {
    for (Window* child = parent->firstChild; child != nullptr; child = child->next) {
        if ((child->style & WS_VISIBLE) == 0 || !PtInRect(&child->windowRect, point)) {
            continue;
        }
        if ((child->style & WS_DISABLED) != 0) {
            if (parent != Desktop()) {
                continue;
            }
            windows->push_back(child->handle);
            *disabled = true;
            return;
        }
        if ((child->style & WS_MINIMIZE) == 0 && PtInRect(&child->clientRect, point)) {
            CollectCandidates(child, point, windows, disabled);
        }
        windows->push_back(child->handle);
        if (*disabled) {
            return;
        }
    }
}

Target FindTarget(ThreadState* self, UserHold& hold, POINT point) {
    if (self->capture != nullptr) {
        return {.window = self->capture, .captured = true};
    }
    std::vector<HWND> windows;
    bool disabled = false;
    if (!MemoryAllows([&] { CollectCandidates(Desktop(), point, &windows, &disabled); })) {
        return {};
    }
    for (HWND window : windows) {
        const Window* candidate = PeekWindow(window);
        if (candidate == nullptr || candidate->thread != self) {
            break;
        }
        if (disabled && window == windows.back()) {
            return {.window = window, .hit = HTERROR, .disabled = true};
        }
        hold.unlock();
        const LRESULT hit = SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
        hold.lock();
        if (hit != HTTRANSPARENT) {
            return {.window = window, .hit = static_cast<int>(hit)};
        }
    }
    return {};
}

UINT ButtonMessage(const InputEvent& event) {
    if (event.kind == InputKind::Move) {
        return WM_MOUSEMOVE;
    }
    const UINT down =
        event.code == VK_LBUTTON ? WM_LBUTTONDOWN : (event.code == VK_RBUTTON ? WM_RBUTTONDOWN : WM_MBUTTONDOWN);
    return event.down ? down : down + 1;
}

constexpr UINT kDoubleClickTime = 500;
constexpr UINT kDownToDouble = WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;

UINT FrameMessage(UINT message) {
    return message - WM_MOUSEMOVE + WM_NCMOUSEMOVE;
}

bool IsSecondClick(const ThreadState* self, HWND window, UINT message, const InputEvent& event) {
    const auto& last = self->lastClick;
    const auto isNear = [](LONG a, LONG b, int metric) { return std::abs(a - b) * 2 <= GetSystemMetrics(metric); };
    return last.window == window && last.message == message && event.time - last.time <= kDoubleClickTime &&
           isNear(event.point.x, last.point.x, SM_CXDOUBLECLK) && isNear(event.point.y, last.point.y, SM_CYDOUBLECLK);
}

LPARAM PointIn(const Window* window, POINT point) {
    return MAKELPARAM(point.x - window->clientRect.left, point.y - window->clientRect.top);
}

// @returns false when the window that was pressed cannot be activated.
bool AskForActivation(ThreadState* self, UserHold& hold, const Target& target, UINT message) {
    const HWND topHandle = HandleOf(TopLevel(PeekWindow(target.window)));
    if (topHandle == nullptr) {
        return true;
    }
    hold.unlock();
    const LRESULT answer = SendMessageA(target.window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(topHandle),
                                        MAKELPARAM(target.hit, message));
    const bool already = topHandle == self->active && GetForegroundWindow() == topHandle;
    const bool goesOn = answer != MA_ACTIVATE || already || ActivateWindow(topHandle, true);
    hold.lock();
    return goesOn;
}

// What a press or a move brings with it when the mouse is not captured. @returns whether the message still goes out.
bool Accompany(ThreadState* self, UserHold& hold, const InputEvent& event, const Target& target, UINT message) {
    const bool press = event.kind == InputKind::Button && event.down;
    if (target.disabled) {
        if (press || event.kind == InputKind::Move) {
            hold.unlock();
            SendMessageA(target.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(target.window),
                         MAKELPARAM(HTERROR, ButtonMessage(event)));
            hold.lock();
        }
        return false;
    }
    if (press) {
        if (!AskForActivation(self, hold, target, message)) {
            return false;
        }
    }
    hold.unlock();
    SendMessageA(target.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(target.window), MAKELPARAM(target.hit, message));
    hold.lock();
    return PeekWindow(target.window) != nullptr;
}

Cooked CookWheel(ThreadState* self, const InputEvent& event, bool (*wanted)(const MSG&, const void*),
                 const void* filter, MSG* message) {
    const HWND window = self->focus != nullptr ? self->focus : self->active;
    if (window == nullptr) {
        return Cooked::Dropped;
    }
    *message = {window,
                WM_MOUSEWHEEL,
                MAKEWPARAM(MouseFlags(self->keyState), event.wheel),
                MAKELPARAM(event.point.x, event.point.y),
                event.time,
                event.point};
    return wanted(*message, filter) ? Cooked::Message : Cooked::Skip;
}

}  // namespace

Cooked CookMouse(ThreadState* self, UserHold& hold, const InputEvent& event, bool (*wanted)(const MSG&, const void*),
                 const void* filter, bool remove, MSG* message) {
    if (event.kind == InputKind::Wheel) {
        return CookWheel(self, event, wanted, filter, message);
    }
    BYTE keys[256];
    const auto applied = [&] {
        std::copy(std::begin(self->keyState), std::end(self->keyState), keys);
        if (event.kind == InputKind::Button) {
            ApplyKey(keys, event.code, event.down);
        }
    };
    const auto apply = [&] {
        applied();
        std::copy(std::begin(keys), std::end(keys), self->keyState);
    };
    const Target target = FindTarget(self, hold, event.point);
    const Window* window = target.window != nullptr ? PeekWindow(target.window) : nullptr;
    if (window == nullptr) {
        apply();
        return Cooked::Dropped;
    }
    const bool client = target.captured || target.hit == HTCLIENT;
    const UINT plain = ButtonMessage(event);
    UINT number = plain;
    const bool press = event.kind == InputKind::Button && event.down;
    const bool second = press && IsSecondClick(self, target.window, client ? plain : FrameMessage(plain), event);
    if (second && (!client || (window->windowClass->style & CS_DBLCLKS) != 0)) {
        number += kDownToDouble;
    }
    if (!client) {
        number = FrameMessage(number);
    }
    applied();
    *message = {target.window,
                number,
                client ? MouseFlags(keys) : static_cast<WPARAM>(target.hit),
                client ? PointIn(window, event.point) : MAKELPARAM(event.point.x, event.point.y),
                event.time,
                event.point};
    if (!target.disabled && !wanted(*message, filter)) {
        return Cooked::Skip;
    }
    if (!remove) {
        return target.disabled ? Cooked::Skip : Cooked::Message;
    }
    apply();
    self->messageTime = event.time;
    self->messagePosition = static_cast<DWORD>(MAKELONG(event.point.x, event.point.y));
    if (press) {
        self->lastClick = {second ? nullptr : target.window, client ? plain : FrameMessage(plain), event.time,
                           event.point};
    }
    if (!target.captured) {
        if (!Accompany(self, hold, event, target, number)) {
            return Cooked::Dropped;
        }
        window = PeekWindow(target.window);
        if (client) {
            message->lParam = PointIn(window, event.point);
        }
    }
    return Cooked::Message;
}

}  // namespace platform::user
