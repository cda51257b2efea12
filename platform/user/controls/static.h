/// @file static.h
/// The static control: what static.cpp (behaviour), static_icon.cpp (pictures) and static_paint.cpp (look) share.
#pragma once

#include "user/controls/controls.h"

namespace platform::user {

struct StaticData : ControlData {
    HICON icon = nullptr;
};

inline DWORD StaticKind(DWORD style) {
    return style & SS_TYPEMASK;
}

/// Draws the whole control.
void PaintStatic(HWND control, const StaticData& data, HDC context);

/// Draws the control again, at once.
void RedrawStatic(HWND control);

/// Loads the icon that the text of a new control names.
void LoadStaticIcon(HWND control, StaticData& data, HINSTANCE instance, LPCSTR name);

/// STM_SETICON. @returns the icon until now.
LRESULT SetStaticIcon(HWND control, StaticData& data, HICON icon);

}  // namespace platform::user
