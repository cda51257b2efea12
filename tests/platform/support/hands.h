/// @file hands.h
/// What a person does with mouse and keyboard, as a script: all of it is queued before any is taken, so that modal loops find it
/// waiting.
#pragma once

#include <windows.h>

#include <vector>

namespace tests {

/// The pointer goes to a point of the screen, where a button goes down or up, or none does.
inline INPUT At(int x, int y, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.dwFlags = flags;
    return input;
}
inline INPUT At(POINT point, DWORD flags) {
    return At(point.x, point.y, flags);
}

inline INPUT Key(WORD key, DWORD flags = 0) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    return input;
}

inline void Play(const std::vector<INPUT>& inputs) {
    for (INPUT input : inputs) {
        if (input.type == INPUT_MOUSE) {
            SetCursorPos(input.mi.dx, input.mi.dy);
        }
        SendInput(1, &input, sizeof input);
    }
}

}  // namespace tests
