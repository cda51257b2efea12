// A trip: the dialog that docs/tour.md builds from nothing.
#include <cvutil32.h>

#include "tour.h"

static constexpr char kSection[] = "Trip";
static constexpr char const* kExtras[] = {"Breakfast", "Bicycle", "Seat at the window"};

static DWORD Kept(char const* name, DWORD fallback) {
    return Reg_GetProfileInt(HKEY_CURRENT_USER, kSection, name, fallback);
}

static void Fill(HWND dialog) {
    DWORD const day = Kept("Day", 0);  // 15 March 2027 is 20270315
    SYSTEMTIME date{};
    date.wYear = static_cast<WORD>(day / 10000);
    date.wMonth = static_cast<WORD>(day / 100 % 100);
    date.wDay = static_cast<WORD>(day % 100);
    if (!DATECTRL_SetDate(GetDlgItem(dialog, IDC_DATE), &date, TRUE)) {
        DATECTRL_SetDate(GetDlgItem(dialog, IDC_DATE), nullptr, TRUE);  // nothing kept yet: today
    }
    NUMFLD_SetLimits(GetDlgItem(dialog, IDC_PERSONS), 1, 9);
    NUMFLD_SetValue(GetDlgItem(dialog, IDC_PERSONS), static_cast<int>(Kept("Persons", 1)));
    char folder[MAX_PATH];
    Reg_GetProfileString(HKEY_CURRENT_USER, kSection, "Folder", "C:\\", folder, sizeof folder);
    SetDlgItemTextA(dialog, IDC_FOLDER, folder);
    int index = 0;
    for (char const* extra : kExtras) {
        SendDlgItemMessageA(dialog, IDC_EXTRAS, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(extra));
        SendDlgItemMessageA(dialog, IDC_EXTRAS, LB_SETSEL, Kept(extra, 0), index++);  // selected is ticked
    }
}

// False where the dialog stays open.
static bool Confirm(HWND dialog, SYSTEMTIME* date, int persons) {
    char const* wrong = persons < 1 || persons > 9 ? "A trip is for one to nine persons." : nullptr;
    if (wrong || !DATECTRL_GetDate(GetDlgItem(dialog, IDC_DATE), date)) {
        KVMB_MessageBoxError(dialog, "Trip", nullptr, "The trip cannot be booked.", nullptr,
                             wrong ? wrong : "There is no such day.", nullptr, nullptr, nullptr, nullptr, 0,
                             KVMB_SEP_REASON | MB_ICONEXCLAMATION);
        return false;
    }
    CSTRING question;
    question.wsprintfA("A trip for %d on %u-%02u-%02u?", persons, date->wYear, date->wMonth, date->wDay);
    KVMB_MESSAGEBOX box{};
    box.owner = dialog;
    box.title = "Trip";
    box.text = question;
    box.icon = LoadIconA(nullptr, IDI_QUESTION);
    box.buttonCount = 2;
    box.buttons[0] = {0, "&Book", IDOK};
    box.buttons[1] = {KVMB_BTN_CANCEL, nullptr, IDCANCEL};
    return KVMB_MessageBoxExtended(&box) == IDOK;
}

static bool Book(HWND dialog) {
    SYSTEMTIME date;
    int const persons = NUMFLD_GetValue(GetDlgItem(dialog, IDC_PERSONS));
    if (!Confirm(dialog, &date, persons)) {
        return false;
    }
    char folder[MAX_PATH];
    GetDlgItemTextA(dialog, IDC_FOLDER, folder, sizeof folder);
    Reg_WriteProfileString(HKEY_CURRENT_USER, kSection, "Folder", folder);
    Reg_WriteProfileInt(HKEY_CURRENT_USER, kSection, "Persons", static_cast<DWORD>(persons));
    Reg_WriteProfileInt(HKEY_CURRENT_USER, kSection, "Day", date.wYear * 10000U + date.wMonth * 100U + date.wDay);
    int index = 0;
    for (char const* extra : kExtras) {
        LRESULT const ticked = SendDlgItemMessageA(dialog, IDC_EXTRAS, LB_GETSEL, index++, 0);
        Reg_WriteProfileInt(HKEY_CURRENT_USER, kSection, extra, static_cast<DWORD>(ticked));
    }
    return true;
}

static INT_PTR CALLBACK TripProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        Fill(dialog);
    } else if (message == WM_COMMAND && LOWORD(wParam) == IDC_ABOUT) {
        ABOUT_DisplayAboutBox(dialog, nullptr, nullptr, "Trip", "Version 1.0", "Books trips.", IDI_APPLICATION);
    } else if (message == WM_COMMAND && (LOWORD(wParam) == IDCANCEL || (LOWORD(wParam) == IDOK && Book(dialog)))) {
        EndDialog(dialog, LOWORD(wParam));
    }
    return message == WM_INITDIALOG || message == WM_COMMAND;
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    return DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_TRIP), nullptr, TripProcedure, 0) == -1;
}
