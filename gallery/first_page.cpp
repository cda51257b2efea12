#include "gallery/first_page.h"

#include "gallery/chosen_date.h"
#include "gallery/resource.h"
#include "gallery/text.h"

namespace gallery {
namespace {

constexpr UINT_PTR kFollowTimer = 1;
constexpr UINT kFollowMilliseconds = 100;
constexpr char kFieldProcedure[] = "Gallery_FieldProcedure";

struct FirstPage {
    FirstPage(HWND dialog, Result& result)
        : dialog(dialog),
          result(result),
          date(GetDlgItem(dialog, IDC_DATE_VERTICAL), GetDlgItem(dialog, IDC_DATE_HORIZONTAL)) {}

    HWND dialog;
    Result& result;
    ChosenDate date;
};

FirstPage* PageOf(HWND dialog) {
    return reinterpret_cast<FirstPage*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

// A date field steps on WM_VSCROLL alone. A horizontal bar sends WM_HSCROLL: its right arrow with the code that steps
// up and its left arrow with the one that steps down, so that the message only has to be passed on under the other
// name.
LRESULT CALLBACK HorizontalFieldProcedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto previous = reinterpret_cast<WNDPROC>(GetPropA(field, kFieldProcedure));
    return CallWindowProcA(previous, field, message == WM_HSCROLL ? WM_VSCROLL : message, wParam, lParam);
}

void HookHorizontalField(HWND field) {
    const LONG_PTR previous = GetWindowLongPtrA(field, GWLP_WNDPROC);
    if (SetPropA(field, kFieldProcedure, reinterpret_cast<HANDLE>(previous))) {
        SetWindowLongPtrA(field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HorizontalFieldProcedure));
    }
}

// Before the field goes: the bar, which hooked it first, takes its own hook away only when it finds it in place.
void UnhookHorizontalField(HWND field) {
    if (HANDLE previous = RemovePropA(field, kFieldProcedure)) {
        SetWindowLongPtrA(field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
    }
}

void ShowChosenDate(const FirstPage& page) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(page.dialog, GWLP_HINSTANCE));
    const std::string text = page.date.IsSet() ? page.date.IsoText() : LoadText(instance, IDS_NO_DATE);
    SetDlgItemTextA(page.dialog, IDC_CHOSEN, text.c_str());
}

void OnInitDialog(HWND dialog, Result& result) {
    auto* page = new FirstPage(dialog, result);
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(page));
    HookHorizontalField(GetDlgItem(dialog, IDC_DATE_HORIZONTAL));
    page->date.SetToday();
    ShowChosenDate(*page);
    SetTimer(dialog, kFollowTimer, kFollowMilliseconds, nullptr);
}

void OnTimer(FirstPage& page) {
    if (page.date.Follow()) {
        ShowChosenDate(page);
    }
}

void OnCommand(FirstPage& page, int id) {
    switch (id) {
        case IDC_TODAY:
            page.date.SetToday();
            ShowChosenDate(page);
            break;
        case IDOK:
            page.date.Follow();
            page.result = {page.date.IsSet(), page.date.IsoText()};
            DestroyWindow(page.dialog);
            break;
        case IDCANCEL:
            DestroyWindow(page.dialog);
            break;
        default:
            break;
    }
}

void OnDestroy(HWND dialog) {
    KillTimer(dialog, kFollowTimer);
    UnhookHorizontalField(GetDlgItem(dialog, IDC_DATE_HORIZONTAL));
    delete PageOf(dialog);
    SetWindowLongPtrA(dialog, DWLP_USER, 0);
    PostQuitMessage(0);
}

INT_PTR CALLBACK FirstPageProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        OnInitDialog(dialog, *reinterpret_cast<Result*>(lParam));
        return TRUE;
    }
    FirstPage* page = PageOf(dialog);
    if (page == nullptr) {
        return FALSE;
    }
    switch (message) {
        case WM_TIMER:
            OnTimer(*page);
            return TRUE;
        case WM_COMMAND:
            OnCommand(*page, LOWORD(wParam));
            return TRUE;
        case WM_DESTROY:
            OnDestroy(dialog);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

HWND OpenFirstPage(HINSTANCE instance, Result& result) {
    return CreateDialogParamA(instance, MAKEINTRESOURCEA(IDD_FIRST_PAGE), nullptr, FirstPageProcedure,
                              reinterpret_cast<LPARAM>(&result));
}

}  // namespace gallery
