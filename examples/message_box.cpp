// The extended message box with buttons of the application's own.
#include <cvutil32.h>

#include "ids.h"

static void Ask(HWND dialog) {
    KVMB_MESSAGEBOX box{};
    box.owner = dialog;
    box.title = "Import";
    box.text = "The file has changed since it was read. Read it again?";
    box.icon = LoadIconA(nullptr, IDI_QUESTION);
    box.buttonCount = 2;
    box.buttons[0].label = "&Read again";
    box.buttons[0].id = IDRETRY;
    box.buttons[1].kind = KVMB_BTN_CANCEL;
    box.buttons[1].id = IDCANCEL;
    const bool again = KVMB_MessageBoxExtended(&box) == IDRETRY;
    SetDlgItemTextA(dialog, IDC_RESULT, again ? "It is read again." : "It stays as it is.");
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                Ask(dialog);
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
