#include "gallery/pages/dates_page.h"

#include "gallery/pages/chosen_date.h"
#include "gallery/pages/dates_page_ids.h"
#include "gallery/settings.h"
#include "gallery/text.h"

namespace gallery {
namespace {

constexpr char kDate[] = "Date";
constexpr UINT_PTR kFollowTimer = 1;
constexpr UINT kFollowMilliseconds = 100;
constexpr char kFieldProcedure[] = "Gallery_FieldProcedure";

struct DatesState {
    explicit DatesState(HWND dialog)
        : dialog(dialog), date(GetDlgItem(dialog, IDC_DATE_VERTICAL), GetDlgItem(dialog, IDC_DATE_HORIZONTAL)) {}

    HWND dialog;
    ChosenDate date;
};

DatesState* PageOf(HWND dialog) {
    return reinterpret_cast<DatesState*>(GetWindowLongPtrA(dialog, DWLP_USER));
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

void ShowChosenDate(const DatesState& page) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(page.dialog, GWLP_HINSTANCE));
    const std::string text = page.date.IsSet() ? page.date.IsoText() : LoadText(instance, IDS_NO_DATE);
    SetDlgItemTextA(page.dialog, IDC_CHOSEN, text.c_str());
}

void OnInitDialog(HWND dialog) {
    auto* page = new DatesState(dialog);
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(page));
    HookHorizontalField(GetDlgItem(dialog, IDC_DATE_HORIZONTAL));
    if (!page->date.SetIsoText(KeptText(kDate))) {
        page->date.SetToday();
    }
    ShowChosenDate(*page);
    SetTimer(dialog, kFollowTimer, kFollowMilliseconds, nullptr);
}

void OnTimer(DatesState& page) {
    if (page.date.Follow()) {
        ShowChosenDate(page);
    }
}

void OnDestroy(HWND dialog) {
    KillTimer(dialog, kFollowTimer);
    UnhookHorizontalField(GetDlgItem(dialog, IDC_DATE_HORIZONTAL));
    delete PageOf(dialog);
    SetWindowLongPtrA(dialog, DWLP_USER, 0);
}

INT_PTR CALLBACK DatesPageProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        OnInitDialog(dialog);
        return TRUE;
    }
    DatesState* page = PageOf(dialog);
    if (page == nullptr) {
        return FALSE;
    }
    switch (message) {
        case WM_TIMER:
            OnTimer(*page);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_TODAY) {
                page->date.SetToday();
                ShowChosenDate(*page);
            }
            return TRUE;
        case kKeepValues:
            KeepText(kDate, ChosenIsoDate(dialog));
            return TRUE;
        case WM_DESTROY:
            OnDestroy(dialog);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

const Page& DatesPage() {
    static const Page page{IDS_DATES_TITLE, MAKEINTRESOURCEA(IDD_DATES_PAGE), DatesPageProcedure};
    return page;
}

std::string ChosenIsoDate(HWND window) {
    DatesState* page = PageOf(window);
    if (page == nullptr) {
        return "";
    }
    page->date.Follow();
    return page->date.IsoText();
}

}  // namespace gallery
