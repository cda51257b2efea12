/// @file bar.h
/// A scroll bar, at a window's edge or on its own: what it holds, how it is laid out, drawn and followed by the mouse.
#pragma once

#include <windows.h>

#include "user/model/window.h"

namespace platform::user {

/// What a bar shows. The bars of windows begin with the range 0 to 100, those on their own with an empty one.
struct BarState {
    int low = 0;
    int high = 100;
    int page = 0;
    int position = 0;
    bool disabled = false;
    bool dragging = false;  ///< the thumb is held: it lies where the pointer took it
    int track = 0;          ///< the position that the held thumb stands for
    int thumbOffset = 0;    ///< of the held thumb from the first arrow, in pixels
};

struct WindowBars {
    BarState horizontal;
    BarState vertical;
};

enum class BarPart { None, FirstArrow, FirstShaft, Thumb, SecondShaft, SecondArrow };

/// The parts of a bar; an empty thumb: there is nothing to drag.
struct BarLayout {
    bool vertical = false;
    RECT whole{};
    RECT firstArrow{};
    RECT thumb{};
    RECT secondArrow{};
};

/// Which bar: SB_HORZ or SB_VERT of a window, SB_CTL for a window that is one.
struct Bar {
    HWND window;
    int kind;
};

// --- bar_layout.cpp

/// @returns the greatest position.
int LastPosition(const BarState& state);
/// @returns whether there is anything to scroll.
bool CanScroll(const BarState& state);
BarLayout LayOutBar(const RECT& whole, bool vertical, const BarState& state);
BarPart PartAt(const BarLayout& layout, POINT point);
RECT FirstShaft(const BarLayout& layout);
RECT SecondShaft(const BarLayout& layout);
/// @returns the position that a thumb at an offset from the first arrow stands for; the offset is brought into its bounds.
int PositionAt(const BarLayout& layout, const BarState& state, int* offset);

/// Takes over what a SCROLLINFO says, brought into bounds.
void ApplyInfo(BarState& state, const SCROLLINFO& info);
/// @returns false when the structure is not one or asks for nothing.
bool FillInfo(const BarState& state, SCROLLINFO* info);

// --- bar_paint.cpp

/// Draws a bar. pressed: the part that is held down.
void DrawBar(HDC context, const BarLayout& layout, const BarState& state, BarPart pressed, HBRUSH shaft);

// --- window_bars.cpp

/// @returns the place of a window's bar in screen coordinates; empty when the window has none, or no room for it.
RECT BarRect(const Window* window, bool vertical);
/// @returns the state and the layout of a bar, in screen coordinates. False: there is none.
bool ReadBar(const Bar& bar, BarState* state, BarLayout* layout);
/// Draws a bar at once.
void PaintBar(const Bar& bar, BarPart pressed = BarPart::None);
/// Draws the bars of a window and the corner between them. The context's origin is the window's corner.
void DrawWindowBars(HWND window, HDC context);
/// Draws a scroll bar control into a context of its client area.
void DrawBarControl(HWND window, HDC context);

// --- bar_track.cpp

/// The left button went down on a bar, at a point of the screen: follows it until it is let go.
void TrackBar(const Bar& bar, POINT point);
/// Sends a code to the window that listens to a bar.
void TellBar(const Bar& bar, int code, int position = 0);

}  // namespace platform::user
