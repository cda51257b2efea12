// What tests look at: where windows are, what colours they show, which errors calls leave.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

namespace tests {

/// Where a window is on the screen.
inline RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

inline RECT ClientOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return client;
}

/// The colour of a point of a window's client area, or of the screen where there is no window.
inline COLORREF PixelOf(HWND window, int x, int y) {
    const HDC context = GetDC(window);
    const COLORREF colour = GetPixel(context, x, y);
    ReleaseDC(window, context);
    return colour;
}

/// How many pixels of a rectangle have a colour.
inline int CountPixels(HWND window, const RECT& area, COLORREF colour) {
    const HDC context = GetDC(window);
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            count += GetPixel(context, x, y) == colour ? 1 : 0;
        }
    }
    ReleaseDC(window, context);
    return count;
}

/// @returns the error of a call that has to fail.
template <class Call>
DWORD ErrorOf(const Call& call) {
    SetLastError(0);
    EXPECT_FALSE(static_cast<bool>(call()));
    return GetLastError();
}

}  // namespace tests
