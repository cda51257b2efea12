#include "gallery/kept_values.h"

#include "gallery/settings.h"

#include <cvutil32.h>

#include <string>

namespace gallery {
namespace {

bool IsClass(HWND control, const char* name) {
    char actual[64] = "";
    GetClassNameA(control, actual, sizeof actual);
    return lstrcmpiA(actual, name) == 0;
}

bool IsList(HWND control) {
    return IsClass(control, "listbox") || IsClass(control, CKLIST_CLASSNAME);
}

// A character an item: 1 is selected.
std::string Selection(HWND list) {
    std::string selection;
    const int count = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
    for (int item = 0; item < count; ++item) {
        selection += SendMessageA(list, LB_GETSEL, static_cast<WPARAM>(item), 0) > 0 ? '1' : '0';
    }
    return selection;
}

void Select(HWND list, const std::string& selection) {
    const int count = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
    for (int item = 0; item < count && item < static_cast<int>(selection.size()); ++item) {
        SendMessageA(list, LB_SETSEL, selection[static_cast<std::size_t>(item)] == '1', item);
    }
}

void Tell(HWND page, HWND control, WORD code) {
    SendMessageA(page, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code), reinterpret_cast<LPARAM>(control));
}

void RestoreButton(HWND page, HWND button, const char* name) {
    if (const auto state = KeptNumber(name)) {
        SendMessageA(button, BM_SETCHECK, static_cast<WPARAM>(*state), 0);
        // Of the buttons of a group the one that is chosen speaks.
        if (*state != BST_UNCHECKED) {
            Tell(page, button, BN_CLICKED);
        }
    }
}

void RestoreText(HWND field, const char* name) {
    if (const std::string text = KeptText(name); !text.empty()) {
        SetWindowTextA(field, text.c_str());
    }
}

void RestoreList(HWND page, HWND list, const char* name) {
    if (const std::string selection = KeptText(name); !selection.empty()) {
        Select(list, selection);
        Tell(page, list, LBN_SELCHANGE);
    }
}

}  // namespace

void KeepValues(HWND page, std::span<const KeptValue> values) {
    for (const KeptValue& value : values) {
        HWND control = GetDlgItem(page, value.id);
        if (IsClass(control, "button")) {
            KeepNumber(value.name, static_cast<int>(SendMessageA(control, BM_GETCHECK, 0, 0)));
        } else if (IsList(control)) {
            KeepText(value.name, Selection(control));
        } else {
            char text[256];
            GetWindowTextA(control, text, sizeof text);
            KeepText(value.name, text);
        }
    }
}

void RestoreValues(HWND page, std::span<const KeptValue> values) {
    for (const KeptValue& value : values) {
        HWND control = GetDlgItem(page, value.id);
        if (IsClass(control, "button")) {
            RestoreButton(page, control, value.name);
        } else if (IsList(control)) {
            RestoreList(page, control, value.name);
        } else {
            RestoreText(control, value.name);
        }
    }
}

}  // namespace gallery
