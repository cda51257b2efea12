// Pictures out of one bitmap, five a second. The pictures must be released before the dialog goes.
#include <cvutil32.h>

#include "ids.h"

static HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            ANIMATE_Initialize(GetDlgItem(dialog, IDC_FIELD), Instance(), MAKEINTRESOURCEA(IDB_PICTURE), 32,
                               RGB(255, 0, 255));
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_START) {
                ANIMATE_Start(GetDlgItem(dialog, IDC_FIELD));
            } else if (LOWORD(wParam) == IDC_STOP) {
                ANIMATE_Stop(GetDlgItem(dialog, IDC_FIELD));
            } else if (LOWORD(wParam) == IDCANCEL) {
                EndDialog(dialog, 0);
            }
            return TRUE;
        case WM_DESTROY:
            SendDlgItemMessageA(dialog, IDC_FIELD, WM_CLOSE, 0, 0);
            return TRUE;
        default:
            return FALSE;
    }
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    return static_cast<int>(DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_EXAMPLE), nullptr, DialogProcedure, 0));
}
