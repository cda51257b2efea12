// Input made by programs; it goes the way of real input.
#include "user/input/input.h"

namespace platform::user {
namespace {

void InjectMouse(const MOUSEINPUT& mouse) {
    InputEvent event;
    event.time = mouse.time;
    constexpr struct {
        DWORD flag;
        BYTE button;
        bool down;
    } kButtons[] = {
        {MOUSEEVENTF_LEFTDOWN, VK_LBUTTON, true},   {MOUSEEVENTF_LEFTUP, VK_LBUTTON, false},
        {MOUSEEVENTF_RIGHTDOWN, VK_RBUTTON, true},  {MOUSEEVENTF_RIGHTUP, VK_RBUTTON, false},
        {MOUSEEVENTF_MIDDLEDOWN, VK_MBUTTON, true}, {MOUSEEVENTF_MIDDLEUP, VK_MBUTTON, false},
    };
    event.kind = InputKind::Button;
    for (const auto& button : kButtons) {
        if ((mouse.dwFlags & button.flag) != 0) {
            event.code = button.button;
            event.down = button.down;
            Inject(event);
        }
    }
    if ((mouse.dwFlags & MOUSEEVENTF_WHEEL) != 0) {
        event.kind = InputKind::Wheel;
        event.code = 0;
        event.down = false;
        event.wheel = static_cast<int>(mouse.mouseData);
        Inject(event);
    }
}

/// Programs name a modifier without its side.
BYTE LeftOf(WORD key) {
    switch (key) {
        case VK_SHIFT:
            return VK_LSHIFT;
        case VK_CONTROL:
            return VK_LCONTROL;
        case VK_MENU:
            return VK_LMENU;
        default:
            return static_cast<BYTE>(key);
    }
}

bool InjectKeyboard(const KEYBDINPUT& keyboard) {
    InputEvent event;
    event.time = keyboard.time;
    event.kind = InputKind::Key;
    event.down = (keyboard.dwFlags & KEYEVENTF_KEYUP) == 0;
    event.scan = keyboard.wScan;
    event.code = LeftOf(keyboard.wVk);
    if (event.code == 0) {
        return false;
    }
    Inject(event);
    return true;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size) {
    if (count == 0 || inputs == nullptr || size != static_cast<int>(sizeof(INPUT))) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    UINT done = 0;
    for (UINT i = 0; i < count; ++i) {
        if (inputs[i].type == INPUT_MOUSE) {
            InjectMouse(inputs[i].mi);
        } else if (inputs[i].type != INPUT_KEYBOARD || !InjectKeyboard(inputs[i].ki)) {
            SetLastError(ERROR_INVALID_PARAMETER);
            continue;
        }
        ++done;
    }
    return done;
}
