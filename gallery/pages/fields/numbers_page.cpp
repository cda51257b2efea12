#include "gallery/pages/fields/numbers_page.h"

#include "gallery/pages/fields/horizontal_step.h"
#include "gallery/pages/fields/numbers_page_ids.h"
#include "gallery/text.h"

#include <string>

namespace gallery {
namespace {

constexpr int kFirstMinimum = 1;
constexpr int kFirstMaximum = 99;
constexpr int kFirstValue = 12;
constexpr DWORD kLargestLimit = 99999;

int ValueOf(HWND page, int id) {
    return NUMFLD_GetValue(GetDlgItem(page, id));
}

void ShowValue(HWND page, int field, int label, UINT sentence) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(page, GWLP_HINSTANCE));
    const int value = ValueOf(page, field);
    const bool inside = value >= ValueOf(page, IDC_MINIMUM) && value <= ValueOf(page, IDC_MAXIMUM);
    const std::string judgement = LoadText(instance, inside ? IDS_NUMBERS_INSIDE : IDS_NUMBERS_OUTSIDE);
    char text[128];
    wsprintfA(text, LoadText(instance, sentence).c_str(), value, judgement.c_str());
    SetDlgItemTextA(page, label, text);
}

void ShowValues(HWND page) {
    ShowValue(page, IDC_NUMBER_VERTICAL, IDC_NUMBERS_FIRST, IDS_NUMBERS_VERTICAL);
    ShowValue(page, IDC_NUMBER_HORIZONTAL, IDC_NUMBERS_SECOND, IDS_NUMBERS_HORIZONTAL);
}

void TakeLimits(HWND page) {
    for (const int id : {IDC_NUMBER_VERTICAL, IDC_NUMBER_HORIZONTAL}) {
        NUMFLD_SetLimits(GetDlgItem(page, id), static_cast<DWORD>(ValueOf(page, IDC_MINIMUM)),
                         static_cast<DWORD>(ValueOf(page, IDC_MAXIMUM)));
    }
}

void OnInitDialog(HWND page) {
    StepSideways(GetDlgItem(page, IDC_NUMBER_HORIZONTAL));
    for (const int id : {IDC_MINIMUM, IDC_MAXIMUM}) {
        NUMFLD_SetLimits(GetDlgItem(page, id), 0, kLargestLimit);
    }
    NUMFLD_SetValue(GetDlgItem(page, IDC_MINIMUM), kFirstMinimum);
    NUMFLD_SetValue(GetDlgItem(page, IDC_MAXIMUM), kFirstMaximum);
    TakeLimits(page);
    for (const int id : {IDC_NUMBER_VERTICAL, IDC_NUMBER_HORIZONTAL}) {
        NUMFLD_SetValue(GetDlgItem(page, id), kFirstValue);
    }
}

void OnChange(HWND page, int id) {
    if (id == IDC_MINIMUM || id == IDC_MAXIMUM) {
        TakeLimits(page);
    }
    ShowValues(page);
}

INT_PTR CALLBACK NumbersPageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(page);
            return TRUE;
        case WM_COMMAND:
            if (HIWORD(wParam) == EN_CHANGE) {
                OnChange(page, LOWORD(wParam));
            }
            return TRUE;
        case WM_DESTROY:
            StopSteppingSideways(GetDlgItem(page, IDC_NUMBER_HORIZONTAL));
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

const Page& NumbersPage() {
    static const KeptValue kept[] = {
        {IDC_MINIMUM, "Minimum"},
        {IDC_MAXIMUM, "Maximum"},
        {IDC_NUMBER_VERTICAL, "VerticalNumber"},
        {IDC_NUMBER_HORIZONTAL, "HorizontalNumber"},
    };
    static const Page page{IDS_NUMBERS_TITLE, MAKEINTRESOURCEA(IDD_NUMBERS_PAGE), NumbersPageProcedure, kept};
    return page;
}

}  // namespace gallery
