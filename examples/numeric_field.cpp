// A numeric field with a micro scroll bar, which steps it between two limits.
#include <cvutil32.h>

#include "ids.h"

static void ShowNumber(HWND dialog) {
    char text[64];
    wsprintfA(text, "%d copies.", NUMFLD_GetValue(GetDlgItem(dialog, IDC_FIELD)));
    SetDlgItemTextA(dialog, IDC_RESULT, text);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            NUMFLD_SetLimits(GetDlgItem(dialog, IDC_FIELD), 1, 99);
            NUMFLD_SetValue(GetDlgItem(dialog, IDC_FIELD), 1);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                ShowNumber(dialog);
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
