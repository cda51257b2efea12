// A date field with a micro scroll bar: starts with today, and shows what was chosen.
#include <cvutil32.h>

#include "ids.h"

static void ShowDate(HWND dialog) {
    SYSTEMTIME date;
    char text[64] = "No date, or one that does not exist.";
    if (DATECTRL_GetDate(GetDlgItem(dialog, IDC_FIELD), &date)) {
        wsprintfA(text, "Departure on %04u-%02u-%02u.", date.wYear, date.wMonth, date.wDay);
    }
    SetDlgItemTextA(dialog, IDC_RESULT, text);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            DATECTRL_SetDate(GetDlgItem(dialog, IDC_FIELD), nullptr, TRUE);  // today
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                ShowDate(dialog);
            } else if (LOWORD(wParam) == IDCANCEL) {
                EndDialog(dialog, 0);
            }
            return TRUE;
        default:
            return FALSE;
    }
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    return static_cast<int>(DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_EXAMPLE), nullptr, DialogProcedure, 0));
}
