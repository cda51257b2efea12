// A date field with its bar, and a default button that asks a question: what held_arrow.sh drives. Prints the date when the
// question comes up, and when it is answered.
#include <cvutil32.h>

#include <cstdio>
#include <string>

#include "held_arrow.h"

namespace {

std::string DateOf(HWND dialog) {
    SYSTEMTIME date{};
    char text[16] = "none";
    if (DATECTRL_GetDate(GetDlgItem(dialog, IDC_FIELD), &date)) {
        wsprintfA(text, "%04u-%02u-%02u", date.wYear, date.wMonth, date.wDay);
    }
    return text;
}

INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        const SYSTEMTIME date{1997, 2, 0, 14, 0, 0, 0, 0};
        DATECTRL_SetDate(GetDlgItem(dialog, IDC_FIELD), &date, TRUE);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {
        std::puts(DateOf(dialog).c_str());
        std::fflush(stdout);
        MessageBoxA(dialog, "Is that the day?", "Question", MB_OK);
        std::puts(DateOf(dialog).c_str());
        EndDialog(dialog, 0);
    }
    return message == WM_COMMAND;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    return static_cast<int>(DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_HELD), nullptr, Procedure, 0));
}
