// A time field with a micro scroll bar: starts with now, in the 12- or 24-hour form of the user's settings.
#include <cvutil32.h>

#include "ids.h"

static void ShowTime(HWND dialog) {
    SYSTEMTIME time;
    char text[64] = "No time yet.";
    if (TIMECTRL_GetTime(GetDlgItem(dialog, IDC_FIELD), &time)) {
        wsprintfA(text, "Departure at %02u:%02u:%02u.", time.wHour, time.wMinute, time.wSecond);
    }
    SetDlgItemTextA(dialog, IDC_RESULT, text);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            TIMECTRL_SetTime(GetDlgItem(dialog, IDC_FIELD), nullptr, TRUE);  // now
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                ShowTime(dialog);
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
