/// @file combo.h
/// The combo box: what its files share. combobox.cpp is the window procedure, parts.cpp makes the parts, field.cpp lays out and
/// draws what is always seen, drop.cpp drops the list and closes it, contents.cpp passes messages on to the list.
#pragma once

#include "user/controls/controls.h"
#include "user/controls/listbox/list.h"

namespace platform::user {

struct ComboData : ControlData {
    HWND window = nullptr;
    HWND edit = nullptr;  ///< null with CBS_DROPDOWNLIST
    HWND list = nullptr;

    int fieldHeight = 0;       ///< of the text's place, without the edge around it
    bool heightGiven = false;  ///< by the owner, so that the font leaves it alone
    int dropHeight = 0;        ///< greatest height of the dropped list
    DWORD scrollStyle = 0;     ///< WS_VSCROLL and WS_HSCROLL, which are the list's
    bool dropped = false;
    bool pressed = false;    ///< the arrow is held
    bool scrolling = false;  ///< the list's scroll bar has the mouse
    bool focused = false;
    bool quiet = false;  ///< the edit control's text is changed from within
    bool byKey = false;  ///< a key changes the selection
    int settled = -1;    ///< the selection that the parent knows of, while the list is down

    DWORD Style() const {
        return ControlStyle(window);
    }
    DWORD Kind() const {
        return Style() & CBS_DROPDOWNLIST;
    }
    bool Drops() const {
        return Kind() != CBS_SIMPLE;
    }
    bool OwnerDrawn() const {
        return (Style() & CBS_OWNERDRAWFIXED) != 0;
    }
};

// --- parts.cpp

/// Takes away the styles whose scroll bars and edges are not the window's own.
void TakeFrameStyles(ComboData& combo);
LRESULT OnCreateCombo(ComboData& combo, const CREATESTRUCTA& create);
/// The focus comes to the combo box or its edit control, or leaves both for another window.
void GainFocus(ComboData& combo);
void LoseFocus(ComboData& combo, HWND to);
LRESULT ComboDialogCode(const ComboData& combo, LPARAM lParam);

// --- field.cpp

/// @returns the height of the window with the list closed.
int ClosedHeight(const ComboData& combo);
/// The rectangles of the field's text and of the arrow; the latter is empty with CBS_SIMPLE.
RECT TextRect(const ComboData& combo);
RECT ArrowRect(const ComboData& combo);
/// Moves the parts to where they belong.
void LayOutCombo(ComboData& combo);
/// The height of the field after its font or style changed.
void MeasureField(ComboData& combo);
void PaintCombo(const ComboData& combo, HDC context);
void RedrawCombo(const ComboData& combo);

// --- drop.cpp

void DropDown(ComboData& combo);
/// Closes the list. taken: the selection counts; else it goes back to what the parent knows.
void CloseUp(ComboData& combo, bool taken);
/// The screen rectangle of field and dropped list together.
RECT DroppedRect(const ComboData& combo);
/// Keys that come to the combo box or its edit control. @returns whether it is done with.
bool OnComboKey(ComboData& combo, UINT message, WPARAM key);
void OnComboCharacter(ComboData& combo, WPARAM character);

// --- contents.cpp

/// Shows the list's selection in the field, and in an edit control selects its text.
void ShowSelection(ComboData& combo);
/// The index of the selection, -1 for none.
int Current(const ComboData& combo);
std::string ItemText(const ComboData& combo, int index);
/// The item that begins with what stands in the edit control, LB_ERR for none.
LRESULT FindTyped(const ComboData& combo);
LRESULT OnComboMessage(ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam);

inline void NotifyCombo(const ComboData& combo, int code) {
    NotifyParent(combo.window, static_cast<UINT>(code) & 0xFFFF);
}

}  // namespace platform::user
