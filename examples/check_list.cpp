// A list box whose items are ticked when they are selected.
#include <cvutil32.h>

#include "ids.h"

static void ShowCount(HWND dialog) {
    char text[64];
    wsprintfA(text, "%d parts.", static_cast<int>(SendDlgItemMessageA(dialog, IDC_FIELD, LB_GETSELCOUNT, 0, 0)));
    SetDlgItemTextA(dialog, IDC_RESULT, text);
}

static void Fill(HWND list) {
    static const char* const parts[] = {"Air filter", "Brake pads", "Drive belt", "Fuel pump"};
    for (const char* part : parts) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(part));
    }
    SendMessageA(list, LB_SETSEL, TRUE, 1);  // ticked
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            Fill(GetDlgItem(dialog, IDC_FIELD));
            ShowCount(dialog);
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_FIELD && HIWORD(wParam) == LBN_SELCHANGE) {
                ShowCount(dialog);
            } else if (LOWORD(wParam) == IDCANCEL) {
                EndDialog(dialog, 0);
            }
            return TRUE;
        default:
            return FALSE;
    }
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    LoadLibraryA("CVUTIL32.dll");  // nothing else here calls the library, and unloaded it has no window classes
    return static_cast<int>(DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_EXAMPLE), nullptr, DialogProcedure, 0));
}
