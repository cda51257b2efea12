// Keys and mouse, as a person would use them who has lost patience.
#include "tests/storm/storm.h"

namespace storm {

namespace {

WORD const kKeys[] = {VK_TAB,   VK_RETURN, VK_ESCAPE, VK_SPACE, VK_BACK, VK_DELETE, VK_INSERT, VK_HOME, VK_END, VK_LEFT,
                      VK_RIGHT, VK_UP,     VK_DOWN,   VK_PRIOR, VK_NEXT, VK_F1,     VK_F4,     VK_F10,  '0',    '1',
                      '2',      '9',       'A',       'C',      'D',     'O',       'P',       'V',     'X',    'Z'};
WORD const kModifiers[] = {VK_SHIFT, VK_CONTROL, VK_MENU};

void Key(WORD key, bool up) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    SendInput(1, &input, sizeof input);
}

void Mouse(DWORD flags, DWORD data = 0) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    SendInput(1, &input, sizeof input);
}

void PressKey() {
    WORD const key = Die().Of(kKeys);
    WORD const modifier = Die().OneIn(5) ? Die().Of(kModifiers) : WORD{0};
    Note(" %u with %u", key, modifier);
    if (modifier) {
        Key(modifier, false);
    }
    Key(key, false);
    Key(key, true);
    if (modifier) {
        Key(modifier, true);
    }
}

// Held down, or let go without having been pressed.
void HalfAKey() {
    WORD const key = Die().OneIn(4) ? Die().Of(kModifiers) : Die().Of(kKeys);
    bool const up = Die().OneIn(2);
    Note(" %u %s", key, up ? "up" : "down");
    Key(key, up);
}

void MoveTo(HWND window) {
    RECT place = {0, 0, 1024, 768};
    GetWindowRect(window, &place);
    POINT const at = {Die().From(place.left - 2, place.right + 1), Die().From(place.top - 2, place.bottom + 1)};
    Note(" at %d,%d", static_cast<int>(at.x), static_cast<int>(at.y));
    SetCursorPos(at.x, at.y);
}

void Move() {
    MoveTo(AnyWindow());
}

void Click() {
    bool const right = Die().OneIn(6);
    int const times = Die().OneIn(4) ? 2 : 1;
    MoveTo(AnyWindow());
    Note(" %s %d times", right ? "right" : "left", times);
    for (int i = 0; i < times; ++i) {
        Mouse(right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN);
        Mouse(right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP);
    }
}

void HalfAClick() {
    static DWORD const flags[] = {MOUSEEVENTF_LEFTDOWN,  MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP,
                                  MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP,  MOUSEEVENTF_MIDDLEDOWN,
                                  MOUSEEVENTF_MIDDLEUP};
    DWORD const flag = Die().Of(flags);
    Note(" %lu", static_cast<unsigned long>(flag));
    if (Die().OneIn(2)) {
        MoveTo(AnyWindow());
    }
    Mouse(flag);
}

void Wheel() {
    int const turns = Die().From(-3, 3);
    Note(" %d", turns);
    Mouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(turns * WHEEL_DELTA));
}

// As long as arrows are held and animations play.
void LetTimePass() {
    static int const kTimes[] = {10, 60, 450, 2000};
    int const milliseconds = Die().Of(kTimes);
    Note(" %d", milliseconds);
    Sleep(static_cast<DWORD>(milliseconds));
}

Event const kInputEvents[] = {
    {"key", 20, PressKey},           {"half a key", 4, HalfAKey}, {"move", 6, Move},        {"click", 16, Click},
    {"half a click", 6, HalfAClick}, {"wheel", 2, Wheel},         {"time", 3, LetTimePass},
};

}  // namespace

std::span<Event const> InputEvents() {
    return kInputEvents;
}

}  // namespace storm
