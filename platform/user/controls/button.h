/// @file button.h
/// The button control: what button.cpp (behaviour) and button_paint.cpp (look) share.
#pragma once

#include "user/controls/controls.h"

namespace platform::user {

struct ButtonData : ControlData {
    enum class Press { None, Mouse, Key };

    UINT state = 0;             ///< BST_ bits
    Press press = Press::None;  ///< what holds the button down (with the capture)
};

inline DWORD ButtonKind(DWORD style) {
    return style & BS_TYPEMASK;
}

inline bool IsCheckKind(DWORD kind) {
    return kind == BS_CHECKBOX || kind == BS_AUTOCHECKBOX || kind == BS_AUTO3STATE;
}

inline bool IsRadioKind(DWORD kind) {
    return kind == BS_RADIOBUTTON || kind == BS_AUTORADIOBUTTON;
}

/// Draws the whole button; `action` is what an owner-drawn one's parent is told (ODA_).
void PaintButton(HWND button, const ButtonData& data, HDC context, UINT action);

}  // namespace platform::user
