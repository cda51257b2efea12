#include "gallery/pages/controls/standard_page.h"

#include "gallery/pages/controls/standard_ids.h"
#include "gallery/text.h"

namespace gallery {
namespace {

constexpr int kItems = 10;
constexpr int kPage = 10;
constexpr int kLast = 100;

LRESULT Ask(HWND page, int control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageA(page, control, message, wParam, lParam);
}

void ShowCount(HWND page) {
    char text[80];
    wsprintfA(text, LoadText(page, IDS_STANDARD_CHOSEN).c_str(),
              static_cast<int>(Ask(page, IDC_STANDARD_SEVERAL, LB_GETSELCOUNT)), kItems);
    SetDlgItemTextA(page, IDC_STANDARD_CHOSEN, text);
}

void ShowValue(HWND page, int position) {
    const HWND bar = GetDlgItem(page, IDC_STANDARD_BAR);
    SetScrollPos(bar, SB_CTL, position, TRUE);
    char text[80];
    wsprintfA(text, LoadText(page, IDS_STANDARD_VALUE).c_str(), GetScrollPos(bar, SB_CTL));
    SetDlgItemTextA(page, IDC_STANDARD_VALUE, text);
}

void OnInitDialog(HWND page) {
    for (int i = 0; i < kItems; ++i) {
        const std::string text = LoadText(page, static_cast<UINT>(IDS_STANDARD_ITEM + i));
        const auto item = reinterpret_cast<LPARAM>(text.c_str());
        Ask(page, IDC_STANDARD_SORTED, LB_ADDSTRING, 0, item);
        Ask(page, IDC_STANDARD_SEVERAL, LB_ADDSTRING, 0, item);
        for (const int combo : {IDC_STANDARD_SIMPLE, IDC_STANDARD_CHOICE, IDC_STANDARD_TYPED}) {
            Ask(page, combo, CB_ADDSTRING, 0, item);
        }
    }
    Ask(page, IDC_STANDARD_SORTED, LB_SETCURSEL, 1);
    Ask(page, IDC_STANDARD_SEVERAL, LB_SELITEMRANGE, TRUE, MAKELPARAM(1, 3));
    for (const int combo : {IDC_STANDARD_SIMPLE, IDC_STANDARD_CHOICE, IDC_STANDARD_TYPED}) {
        Ask(page, combo, CB_SETCURSEL, 2);
    }
    CheckRadioButton(page, IDC_STANDARD_SMALL, IDC_STANDARD_LARGE, IDC_STANDARD_MEDIUM);
    CheckDlgButton(page, IDC_STANDARD_CHECK, BST_CHECKED);
    CheckDlgButton(page, IDC_STANDARD_THREE, BST_INDETERMINATE);
    // The range reaches beyond the last value by all of the page but one.
    const SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE, 0, kLast + kPage - 1, kPage, 0, 0};
    SetScrollInfo(GetDlgItem(page, IDC_STANDARD_BAR), SB_CTL, &info, FALSE);
    ShowValue(page, 40);
    ShowCount(page);
}

void OnScroll(HWND page, int code, int position) {
    const int now = GetScrollPos(GetDlgItem(page, IDC_STANDARD_BAR), SB_CTL);
    switch (code) {
        case SB_LINELEFT:
            ShowValue(page, now - 1);
            break;
        case SB_LINERIGHT:
            ShowValue(page, now + 1);
            break;
        case SB_PAGELEFT:
            ShowValue(page, now - kPage);
            break;
        case SB_PAGERIGHT:
            ShowValue(page, now + kPage);
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            ShowValue(page, position);
            break;
        case SB_LEFT:
            ShowValue(page, 0);
            break;
        case SB_RIGHT:
            ShowValue(page, kLast);
            break;
        default:
            break;
    }
}

INT_PTR CALLBACK StandardProcedure(HWND page, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(page);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_STANDARD_SEVERAL && HIWORD(wParam) == LBN_SELCHANGE) {
                ShowCount(page);
            }
            return TRUE;
        case WM_HSCROLL:
            OnScroll(page, LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

Page const& StandardPage() {
    static const Page page = {IDS_STANDARD_TITLE, MAKEINTRESOURCEA(IDD_STANDARD), StandardProcedure};
    return page;
}

}  // namespace gallery
