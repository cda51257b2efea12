#include "gallery/pages/dialogs/browse_page.h"

#include "gallery/pages/dialogs/browse_ids.h"
#include "gallery/pages/dialogs/wide_names.h"
#include "gallery/text.h"

namespace gallery {
namespace {

struct Notified {
    int before = 0;
    int after = 0;
};

// One page is shown at a time.
Notified g_notified;

void ShowNotified(HWND page) {
    char text[80];
    wsprintfA(text, LoadText(page, IDS_BROWSE_NOTIFIED).c_str(), g_notified.before, g_notified.after);
    SetDlgItemTextA(page, IDC_BROWSE_NOTIFIED, text);
}

void ShowPath(HWND page) {
    char path[MAX_PATH];
    if (TREELIST_GetFolder(GetDlgItem(page, IDC_BROWSE_TREE), path)) {
        SetDlgItemTextA(page, IDC_BROWSE_PATH, path);
    } else {
        SetDlgItemTextA(page, IDC_BROWSE_PATH, LoadText(page, IDS_BROWSE_NO_PATH).c_str());
    }
}

void SetAppend(HWND page) {
    HWND const button = GetDlgItem(page, IDC_BROWSE_FILES_BUTTON);
    DWORD const append = IsDlgButtonChecked(page, IDC_BROWSE_APPEND) == BST_CHECKED ? BROWSE_APPEND : 0;
    BROWSE_SetDialogOptions(button, (BROWSE_GetDialogOptions(button) & ~DWORD{BROWSE_APPEND}) | append);
}

void OnInitDialog(HWND page) {
    g_notified = {};
    ShowNotified(page);
    ShowPath(page);
    if (ShellNamesAreWide()) {
        SetDlgItemTextA(page, IDC_BROWSE_TREE_GROUP, LoadText(page, IDS_BROWSE_WIDE).c_str());
    }
}

/// What was browsed for is kept in the combo box's list, the newest first.
void Remember(HWND page) {
    HWND const combo = GetDlgItem(page, IDC_BROWSE_COMBO);
    char text[MAX_PATH];
    if (!GetWindowTextA(combo, text, sizeof text)) {
        return;
    }
    auto const path = reinterpret_cast<LPARAM>(text);
    if (SendMessageA(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), path) == CB_ERR) {
        SendMessageA(combo, CB_INSERTSTRING, 0, path);
    }
}

void OnFilesButton(HWND page, int code) {
    switch (code) {
        case BRN_BEFOREBROWSE:
            ++g_notified.before;
            break;
        case BRN_AFTERBROWSE:
            ++g_notified.after;
            break;
        default:
            return;
    }
    ShowNotified(page);
}

void OnCommand(HWND page, int id, int code) {
    switch (id) {
        case IDC_BROWSE_APPEND:
            SetAppend(page);
            break;
        case IDC_BROWSE_FILES_BUTTON:
            OnFilesButton(page, code);
            break;
        case IDC_BROWSE_COMBO:
            if (code == CBN_KILLFOCUS || code == CBN_DROPDOWN) {
                Remember(page);
            }
            break;
        case IDC_BROWSE_TREE:
            ShowPath(page);
            break;
        default:
            break;
    }
}

INT_PTR CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(page);
            return TRUE;
        case WM_COMMAND:
            OnCommand(page, LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

Page const& BrowsePage() {
    static const KeptValue kept[] = {
        {IDC_BROWSE_FILE, "File"},    {IDC_BROWSE_FILES, "Files"},   {IDC_BROWSE_FOLDER, "Folder"},
        {IDC_BROWSE_COMBO, "Recent"}, {IDC_BROWSE_APPEND, "Append"},
    };
    static Page const page = {IDS_BROWSE_TITLE, MAKEINTRESOURCEA(IDD_BROWSE), PageProcedure, kept};
    return page;
}

}  // namespace gallery
