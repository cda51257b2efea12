// The tree of folders, and the path of the one that is selected.
#include <cvutil32.h>

#include "ids.h"

static void ShowFolder(HWND dialog) {
    char folder[MAX_PATH];
    TREELIST_GetFolder(GetDlgItem(dialog, IDC_FIELD), folder);  // empty where the item is no folder on the disk
    SetDlgItemTextA(dialog, IDC_RESULT, folder);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            ShowFolder(dialog);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_FIELD && HIWORD(wParam) == TREELIST_SELCHANGE) {
                ShowFolder(dialog);
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
