/// @file static.h
/// The static control: what static.cpp (behaviour), static_image.cpp (pictures) and static_paint.cpp (look) share.
#pragma once

#include "user/controls/controls.h"

namespace platform::user {

struct StaticData : ControlData {
    HFONT font = nullptr;
    HBITMAP bitmap = nullptr;
    HBITMAP ownBitmap = nullptr;  ///< loaded from the resource that the text names
    HICON icon = nullptr;

    ~StaticData() override {
        if (ownBitmap)
            DeleteObject(ownBitmap);
    }
};

inline DWORD StaticKind(DWORD style) {
    return style & SS_TYPEMASK;
}

/// Draws the whole control.
void PaintStatic(HWND control, const StaticData& data, HDC context);

/// Draws the control again, at once.
void RedrawStatic(HWND control);

/// Loads the picture that the text of a new control names.
void LoadStaticImage(HWND control, StaticData& data, HINSTANCE instance, LPCSTR name);

/// STM_SETIMAGE and STM_SETICON. @returns the picture until now.
LRESULT SetStaticImage(HWND control, StaticData& data, WPARAM kind, HANDLE image);

/// STM_GETIMAGE and STM_GETICON.
LRESULT GetStaticImage(HWND control, const StaticData& data, WPARAM kind);

}  // namespace platform::user
