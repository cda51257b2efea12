// A field for a file's path, with the button that opens the dialog; the field tells when its text has changed.
#include <cvutil32.h>

#include "ids.h"

static void ShowFile(HWND dialog) {
    char path[MAX_PATH];
    GetDlgItemTextA(dialog, IDC_FIELD, path, sizeof path);
    SetDlgItemTextA(dialog, IDC_RESULT, UTIL_FileExists(path) ? "There is such a file." : "There is no such file.");
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_FIELD && HIWORD(wParam) == EN_CHANGE) {
                ShowFile(dialog);
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
