/// @file nonclient.h
/// The frame around a client area, shared by the files that measure, draw and handle it.
#pragma once

#include "user/window.h"

namespace platform::user {

/// @returns how many pixels wide the frame is on each side, the sunken client edge left out.
int FrameWidth(DWORD style, DWORD exStyle);

/// @returns the caption's height with the line below it; 0 without a caption.
int CaptionHeight(DWORD style, DWORD exStyle);

/// Where the parts of a caption lie, in the coordinates of the window rectangle given; empty where there is none.
struct CaptionParts {
    int height;
    RECT bar;
    RECT icon;
    RECT close;
    RECT minimize;
    RECT maximize;
};
CaptionParts LayOutCaption(const Window* window, RECT windowRect);

/// @returns the HT code of a screen point.
LRESULT HitTest(HWND window, POINT point);

/// Draws the frame within a region (in screen coordinates; 1: all of it). pressed: the HT code of a button that is
/// held.
void PaintFrame(HWND window, HRGN region, int pressed = HTNOWHERE);

/// The left button goes down on a part of the frame: moves, sizes, or tracks a button.
void PressFrame(HWND window, int hitCode, POINT point);

LRESULT SystemCommand(HWND window, WPARAM command, POINT point);

}  // namespace platform::user
