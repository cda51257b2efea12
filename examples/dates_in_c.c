/* The library from plain C: a date field, and the arithmetic of dates. */
#include <cvutil32.h>

#include "ids.h"

static void ShowNextDay(HWND dialog) {
    SYSTEMTIME date;
    char text[64] = "No date, or one that does not exist.";
    if (DATECTRL_GetDate(GetDlgItem(dialog, IDC_FIELD), &date) && DATECTRL_IncrementDate(&date, DATECTRL_DAY)) {
        wsprintfA(text, "The day after is %04u-%02u-%02u.", date.wYear, date.wMonth, date.wDay);
    }
    SetDlgItemTextA(dialog, IDC_RESULT, text);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    (void)lParam;
    switch (message) {
        case WM_INITDIALOG:
            DATECTRL_SetDate(GetDlgItem(dialog, IDC_FIELD), NULL, TRUE); /* today */
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                ShowNextDay(dialog);
            } else if (LOWORD(wParam) == IDCANCEL) {
                EndDialog(dialog, 0);
            }
            return TRUE;
        default:
            return FALSE;
    }
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show) {
    (void)previous;
    (void)commandLine;
    (void)show;
    return (int)DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_EXAMPLE), NULL, DialogProcedure, 0);
}
