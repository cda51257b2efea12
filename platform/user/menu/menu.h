/// @file menu.h
/// A popup menu that is shown until something is chosen or it is put away. menu.cpp follows mouse and keys, menu_window.cpp
/// is what is seen.
#pragma once

#include <windows.h>

#include <vector>

namespace platform::user {

struct MenuItem {
    UINT command;      ///< what choosing it results in; 0 for a line between items
    const char* text;  ///< '&' before the mnemonic; what follows a tab stands in a column of its own
    bool enabled;
};

struct MenuPlace {
    POINT at;                  ///< where the menu opens, screen coordinates
    RECT beside{};             ///< it opens below this, or above where there is no room. Empty: at the point alone
    bool firstChosen = false;  ///< the first item is highlighted from the start
};

struct MenuChoice {
    UINT command = 0;  ///< 0 when nothing was chosen
    bool byMouse = false;
    POINT point{};  ///< of the click
};

/// Shows a menu and takes the mouse and the keys until it is over, whoever has the focus, which stays where it is. Messages of
/// other kinds go to their windows meanwhile, so that `owner` may be gone afterwards. There is one menu at a time: a second
/// one of the same thread is over at once. Throws bad_alloc before anything is shown.
/// @param owner  a window of this thread; the menu ends with it, and when its top-level window is no longer the active one.
MenuChoice RunMenu(HWND owner, const std::vector<MenuItem>& items, const MenuPlace& place);

}  // namespace platform::user
