// A micro scroll bar's record and what its files share.
#pragma once

#include "controls/scroll/layout.h"

namespace scroll {

/// The four colours of a bar and their pens, in this order.
enum Tone { kShadow, kHighlight, kText, kFrame, kTones };

struct Data {
    COLORREF colours[kTones];
    HWND associate;
    HPEN pens[kTones];
    BOOL firstPressed;
    BOOL secondPressed;
    BOOL inside;     ///< the pointer is inside the held arrow
    BOOL releasing;  ///< the capture is being given back by the bar itself

    bool IsPressed() const {
        return firstPressed || secondPressed;
    }
    Arrow PressedArrow() const {
        return firstPressed ? Arrow::kFirst : Arrow::kSecond;
    }
};

/// @return null before WM_CREATE and after WM_DESTROY.
Data* DataOf(HWND bar);

bool IsVertical(HWND bar);
RECT ArrowRect(HWND bar, Arrow arrow);

/// Invalidates the held arrow, or the second one if none is held.
void InvalidateArrow(HWND bar, Data const& data);

// --- painting

void CreatePens(Data& data);
void DeletePens(Data& data);
void TakeColours(HWND bar);
void Paint(HWND bar);

// --- mouse and timers

void Press(HWND bar, LPARAM lParam);
void Track(HWND bar, LPARAM lParam);
void Repeat(HWND bar, WPARAM timer);
void Release(HWND bar, LPARAM lParam);
void LoseCapture(HWND bar, LPARAM lParam);

// --- the arrow keys of associates

/// Subclasses an associate; nothing happens when the table of associates is full.
void HookArrowKeys(HWND associate);

}  // namespace scroll
