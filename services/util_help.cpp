// UTIL_: context help for dialogs whose controls are made of graphic buttons.
#include "cvutil32/util.h"

#include <cstring>

namespace {

constexpr char kGraphicButton[] = "Calverin_GraphicButton";
constexpr int kMostClassName = 128;

/// The control that a graphic button is a part of; null if the window is no such button or stands on its own.
HWND ControlAround(HWND window) {
    char name[kMostClassName] = "";
    GetClassNameA(window, name, kMostClassName);
    if (std::strcmp(name, kGraphicButton) != 0) {
        return nullptr;
    }
    HWND const parent = GetParent(window);
    return parent && (GetWindowLongA(parent, GWL_STYLE) & WS_CHILD) ? parent : nullptr;
}

bool HasTopic(DWORD const* table, int id) {
    for (; table[0]; table += 2) {
        if (table[0] == static_cast<DWORD>(id)) {
            return true;
        }
    }
    return false;
}

/// Whether the control under the mouse pointer is one that the table knows nothing of.
bool IsUnknownControl(POINT const& cursor, ULONG_PTR data) {
    HWND const control = WindowFromPoint(cursor);
    if (!control || !data) {
        return false;
    }
    int id = GetDlgCtrlID(control);
    if (id <= 0) {
        return false;
    }
    if (HWND const around = ControlAround(control)) {
        id = GetDlgCtrlID(around);
    }
    return !HasTopic(reinterpret_cast<DWORD const*>(data), id);
}

}  // namespace

CVAPI(BOOL) UTIL_WinHelp(HWND window, const char* helpFile, UINT command, ULONG_PTR data) {
    POINT cursor;
    if (command == HELP_CONTEXTMENU && GetCursorPos(&cursor) && IsUnknownControl(cursor, data)) {
        return TRUE;
    }
    if (command == HELP_WM_HELP && window && data) {
        if (HWND const around = ControlAround(window)) {
            window = around;
        }
    }
    return WinHelpA(window, helpFile, command, data);
}
