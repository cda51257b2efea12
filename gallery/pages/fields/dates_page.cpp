#include "gallery/pages/fields/dates_page.h"

#include "gallery/pages/fields/chosen_date.h"
#include "gallery/pages/fields/dates_page_ids.h"
#include "gallery/pages/fields/horizontal_step.h"
#include "gallery/settings.h"
#include "gallery/text.h"

namespace gallery {
namespace {

constexpr char kDate[] = "Date";

struct DatesState {
    explicit DatesState(HWND dialog)
        : dialog(dialog), date(GetDlgItem(dialog, IDC_DATE_VERTICAL), GetDlgItem(dialog, IDC_DATE_HORIZONTAL)) {}

    HWND dialog;
    ChosenDate date;
};

DatesState* PageOf(HWND dialog) {
    return reinterpret_cast<DatesState*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

void ShowChosenDate(const DatesState& page) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(page.dialog, GWLP_HINSTANCE));
    const std::string text = page.date.IsSet() ? page.date.IsoText() : LoadText(instance, IDS_NO_DATE);
    SetDlgItemTextA(page.dialog, IDC_CHOSEN, text.c_str());
}

void OnInitDialog(HWND dialog) {
    auto* page = new DatesState(dialog);
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(page));
    StepSideways(GetDlgItem(dialog, IDC_DATE_HORIZONTAL));
    if (!page->date.SetIsoText(KeptText(kDate))) {
        page->date.SetToday();
    }
    ShowChosenDate(*page);
}

void Follow(DatesState& page) {
    if (page.date.Follow()) {
        ShowChosenDate(page);
    }
}

// A field writes its text anew when it gets a value.
void TakeSettings(DatesState& page, LPARAM section) {
    for (const int id : {IDC_DATE_VERTICAL, IDC_DATE_HORIZONTAL}) {
        SendDlgItemMessageA(page.dialog, id, WM_WININICHANGE, 0, section);
    }
    page.date.SetIsoText(page.date.IsoText());
}

void OnDestroy(HWND dialog) {
    StopSteppingSideways(GetDlgItem(dialog, IDC_DATE_HORIZONTAL));
    delete PageOf(dialog);
    SetWindowLongPtrA(dialog, DWLP_USER, 0);
}

INT_PTR CALLBACK DatesPageProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        OnInitDialog(dialog);
        return TRUE;
    }
    DatesState* page = PageOf(dialog);
    if (page == nullptr) {
        return FALSE;
    }
    switch (message) {
        case kFollowFields:
            Follow(*page);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_TODAY) {
                page->date.SetToday();
                ShowChosenDate(*page);
            }
            return TRUE;
        case WM_WININICHANGE:
            TakeSettings(*page, lParam);
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
