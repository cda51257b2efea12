// Input made by programs; it goes the way of real input.
#include "user/input/input.h"

namespace platform::user {
namespace {

void InjectMouse(const MOUSEINPUT& mouse) {
    constexpr struct {
        DWORD flag;
        BYTE button;
        bool down;
    } kButtons[] = {
        {MOUSEEVENTF_LEFTDOWN, VK_LBUTTON, true},   {MOUSEEVENTF_LEFTUP, VK_LBUTTON, false},
        {MOUSEEVENTF_RIGHTDOWN, VK_RBUTTON, true},  {MOUSEEVENTF_RIGHTUP, VK_RBUTTON, false},
        {MOUSEEVENTF_MIDDLEDOWN, VK_MBUTTON, true}, {MOUSEEVENTF_MIDDLEUP, VK_MBUTTON, false},
    };
    for (const auto& button : kButtons) {
        if ((mouse.dwFlags & button.flag) != 0) {
            Inject({.kind = InputKind::Button, .down = button.down, .code = button.button, .time = mouse.time});
        }
    }
    if ((mouse.dwFlags & MOUSEEVENTF_WHEEL) != 0) {
        Inject({.kind = InputKind::Wheel, .wheel = static_cast<int>(mouse.mouseData), .time = mouse.time});
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
    const BYTE key = LeftOf(keyboard.wVk);
    if (key != 0) {
        Inject({.kind = InputKind::Key,
                .down = (keyboard.dwFlags & KEYEVENTF_KEYUP) == 0,
                .code = key,
                .scan = keyboard.wScan,
                .time = keyboard.time});
    }
    return key != 0;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size) {
    if (count == 0 || inputs == nullptr || size != static_cast<int>(sizeof(INPUT))) {
        return Fail(ERROR_INVALID_PARAMETER, 0);
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
