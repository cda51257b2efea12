/// @file menu_window.h
/// The window of a menu: its items as they lie and look.
#pragma once

#include "user/menu/menu.h"

namespace platform::user {

/// A menu that is open. It belongs to the call that runs it; the window knows it until it ends.
struct OpenMenu {
    static constexpr int kNone = -1;

    const std::vector<MenuItem>& items;
    std::vector<RECT> rects{};  ///< of the items, client coordinates
    SIZE size{};
    int shortcuts = 0;  ///< where the second column begins
    int selected = kNone;
    HWND window = nullptr;  ///< null once the menu is over
    bool ending = false;
};

/// Lays out a menu and shows its window, without activating it. @returns whether there is one.
bool ShowMenu(OpenMenu& menu, HWND owner, const MenuPlace& place);

/// The window goes at once, and with it the mouse. Nothing happens to a menu that is over.
void EndMenu(OpenMenu& menu);

void SelectItem(OpenMenu& menu, int index);

/// @returns the item at a point of the screen, kNone for lines, edges and what is outside.
int ItemAt(const OpenMenu& menu, POINT point);

}  // namespace platform::user
