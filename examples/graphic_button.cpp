// A push button with a picture; the mask lets the face show around it.
#include <cvutil32.h>

#include "ids.h"

static HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            GRBUTTON_SetBitmaps(GetDlgItem(dialog, IDC_SHOW), Instance(), MAKEINTRESOURCEA(IDB_PICTURE),
                                MAKEINTRESOURCEA(IDB_MASK));
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                SetDlgItemTextA(dialog, IDC_RESULT, "The folder was opened.");
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
