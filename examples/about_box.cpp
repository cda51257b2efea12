// The About box, with texts given as they are; they could be identifiers of strings as well.
#include <cvutil32.h>

#include "ids.h"

static void ShowAbout(HWND dialog) {
    ABOUT_DisplayAboutBox(dialog, nullptr, nullptr, "Example", "Version 1.0", "Shows the About box.", IDI_APPLICATION);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDC_SHOW) {
                ShowAbout(dialog);
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
