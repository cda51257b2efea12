#include "gallery/pages/controls/lists_page.h"

#include "gallery/pages/controls/lists_ids.h"
#include "gallery/text.h"

namespace gallery {
namespace {

constexpr int kItems = 8;
constexpr int kTextRoom = 80;

LRESULT Ask(HWND page, int control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageA(page, control, message, wParam, lParam);
}

void AddText(HWND page, int control, UINT message, const char* text) {
    Ask(page, control, message, 0, reinterpret_cast<LPARAM>(text));
}

void ShowTicked(HWND page) {
    char text[kTextRoom];
    wsprintfA(text, LoadText(page, IDS_LISTS_TICKED).c_str(),
              static_cast<int>(Ask(page, IDC_LISTS_CHECKS, LB_GETSELCOUNT)),
              static_cast<int>(Ask(page, IDC_LISTS_CHECKS, LB_GETCOUNT)));
    SetDlgItemTextA(page, IDC_LISTS_TICKED, text);
}

void SetPicture(HWND page, int button, int picture, int mask) {
    GRBUTTON_SetBitmaps(GetDlgItem(page, button), InstanceOf(page), MAKEINTRESOURCEA(picture), MAKEINTRESOURCEA(mask));
}

void OnInitDialog(HWND page) {
    for (int i = 0; i < kItems; ++i) {
        const std::string text = LoadText(page, IDS_LISTS_ITEM + i);
        AddText(page, IDC_LISTS_CHECKS, LB_ADDSTRING, text.c_str());
        AddText(page, IDC_LISTS_OWN, LB_ADDSTRING, text.c_str());
        AddText(page, IDC_LISTS_COMBO, CB_ADDSTRING, text.c_str());
    }
    for (int ticked : {1, 3, 4}) {
        Ask(page, IDC_LISTS_CHECKS, LB_SETSEL, TRUE, ticked);
    }
    Ask(page, IDC_LISTS_OWN, LB_SETCURSEL, 2);
    Ask(page, IDC_LISTS_COMBO, CB_SETCURSEL, 0);
    SetDlgItemTextA(page, IDC_LISTS_EDIT, LoadText(page, IDS_LISTS_EXAMPLE).c_str());
    for (int button : {IDC_LISTS_EDIT_ADD, IDC_LISTS_COMBO_ADD}) {
        SetPicture(page, button, IDB_PLUS, IDB_PLUS_MASK);
    }
    for (int button : {IDC_LISTS_EDIT_CLEAR, IDC_LISTS_COMBO_CLEAR}) {
        SetPicture(page, button, IDB_CROSS, IDB_CROSS_MASK);
    }
    ShowTicked(page);
}

// The list box beside the check list: its selection is a bar, as everywhere else. Its height is the check list's, which
// answers for every owner-drawn list of the page.
void DrawOwnItem(const DRAWITEMSTRUCT& item) {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item.itemID != static_cast<UINT>(-1) &&
        SendMessageA(item.hwndItem, LB_GETTEXTLEN, item.itemID, 0) < kTextRoom) {
        char text[kTextRoom] = {};
        SendMessageA(item.hwndItem, LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(text));
        RECT rect = item.rcItem;
        rect.left += 4;
        SetBkMode(item.hDC, TRANSPARENT);
        SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextA(item.hDC, text, -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }
    if (item.itemState & ODS_FOCUS) {
        DrawFocusRect(item.hDC, &item.rcItem);
    }
}

/// Adds a field's text to the check list. A text that is too long is cut.
void AddFrom(HWND page, int field) {
    char text[kTextRoom];
    if (GetDlgItemTextA(page, field, text, sizeof text) > 0) {
        AddText(page, IDC_LISTS_CHECKS, LB_ADDSTRING, text);
        ShowTicked(page);
    }
}

void OnCommand(HWND page, int id, int code) {
    switch (id) {
        case IDC_LISTS_CHECKS:
            if (code == LBN_SELCHANGE) {
                ShowTicked(page);
            }
            break;
        case IDC_LISTS_EDIT_ADD:
            AddFrom(page, IDC_LISTS_EDIT);
            break;
        case IDC_LISTS_COMBO_ADD:
            AddFrom(page, IDC_LISTS_COMBO);
            break;
        case IDC_LISTS_EDIT_CLEAR:
            SetDlgItemTextA(page, IDC_LISTS_EDIT, "");
            break;
        case IDC_LISTS_COMBO_CLEAR:
            Ask(page, IDC_LISTS_COMBO, CB_SETCURSEL, static_cast<WPARAM>(-1));
            break;
        default:
            break;
    }
}

INT_PTR CALLBACK ListsProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(page);
            return TRUE;
        case WM_DRAWITEM:
            DrawOwnItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_COMMAND:
            OnCommand(page, LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

Page const& ListsPage() {
    static const KeptValue kept[] = {
        {IDC_LISTS_CHECKS, "Ticked"},
    };
    static const Page page = {IDS_LISTS_TITLE, MAKEINTRESOURCEA(IDD_LISTS), ListsProcedure, kept};
    return page;
}

}  // namespace gallery
