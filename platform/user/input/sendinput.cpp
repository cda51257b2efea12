// Input made by programs; it goes the way of real input.
#include "gdi/surface/screen.h"

#include "user/input/input.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

// Absolute positions run from 0 to 65535 across the screen.
POINT Destination(const MOUSEINPUT& mouse) {
    if ((mouse.dwFlags & MOUSEEVENTF_ABSOLUTE) != 0) {
        const RECT screen = gdi::ScreenRect();
        const auto scale = [](LONG value, LONG size) {
            return static_cast<LONG>(static_cast<LONGLONG>(value) * size / 65536);
        };
        return {scale(mouse.dx, screen.right), scale(mouse.dy, screen.bottom)};
    }
    UserGuard guard(UserLock());
    return {Input().cursor.x + mouse.dx, Input().cursor.y + mouse.dy};
}

void InjectMouse(const MOUSEINPUT& mouse) {
    InputEvent event;
    event.time = mouse.time;
    if ((mouse.dwFlags & MOUSEEVENTF_MOVE) != 0) {
        event.point = Destination(mouse);
        Inject(event);
    }
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

// Programs name a modifier without its side: the scan code or the extended flag tells which one it is.
BYTE SideOf(BYTE key, WORD scan, bool extended) {
    switch (key) {
        case VK_SHIFT:
            return scan == ScanOfKey(VK_RSHIFT) ? VK_RSHIFT : VK_LSHIFT;
        case VK_CONTROL:
            return extended ? VK_RCONTROL : VK_LCONTROL;
        case VK_MENU:
            return extended ? VK_RMENU : VK_LMENU;
        default:
            return key;
    }
}

bool NumLockOn() {
    UserGuard guard(UserLock());
    return (Input().keys[VK_NUMLOCK] & 1) != 0;
}

bool InjectKeyboard(const KEYBDINPUT& keyboard) {
    InputEvent event;
    event.time = keyboard.time;
    event.kind = InputKind::Key;
    event.down = (keyboard.dwFlags & KEYEVENTF_KEYUP) == 0;
    event.extended = (keyboard.dwFlags & KEYEVENTF_EXTENDEDKEY) != 0;
    event.scan = keyboard.wScan;
    if ((keyboard.dwFlags & KEYEVENTF_UNICODE) != 0) {
        event.code = VK_PACKET;
        event.unicode = event.down ? keyboard.wScan : 0;
        event.scan = 0;
    } else if ((keyboard.dwFlags & KEYEVENTF_SCANCODE) != 0) {
        const UINT number = !event.extended && NumLockOn() ? KeypadNumber(keyboard.wScan) : 0;
        event.code = static_cast<BYTE>(number != 0 ? number : KeyOfScan(keyboard.wScan, event.extended, true));
    } else {
        event.code = SideOf(static_cast<BYTE>(keyboard.wVk), keyboard.wScan, event.extended);
        event.extended = event.extended || event.code == VK_RCONTROL || event.code == VK_RMENU;
    }
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
