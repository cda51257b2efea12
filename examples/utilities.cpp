// UTIL_: numbers, files and folders, a field of paths, a popup in the middle.
#include <cvutil32.h>

#include "check.h"

static void OnDisk() {
    char folder[MAX_PATH];
    char program[MAX_PATH];
    GetTempPathA(sizeof folder, folder);
    GetModuleFileNameA(nullptr, program, sizeof program);
    CHECK(UTIL_DirExists(folder) && !UTIL_FileExists(folder));
    CHECK(UTIL_FileExists(program) && !UTIL_DirExists(program));
    CHECK(!UTIL_FileExists("C:\\NO\\SUCH.TXT"));
}

static void FieldOfPaths() {
    HWND const window = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    HWND const field = CreateWindowExA(0, "edit", "C:\\A;\"C:\\My files\"", WS_CHILD, 0, 0, 200, 20, window,
                                       reinterpret_cast<HMENU>(INT_PTR{10}), nullptr, nullptr);
    char text[80];
    UTIL_AddRemoveSubdirSymbol(window, 10, TRUE);  // "and their subfolders"
    GetWindowTextA(field, text, sizeof text);
    CHECK(lstrcmpA(text, "C:\\A+;\"C:\\My files\"+") == 0);
    UTIL_AddRemoveSubdirSymbol(window, 10, FALSE);
    GetWindowTextA(field, text, sizeof text);
    CHECK(lstrcmpA(text, "C:\\A;\"C:\\My files\"") == 0);

    UTIL_CenterPopup(window);
    RECT place;
    GetWindowRect(window, &place);
    CHECK(place.left == (GetSystemMetrics(SM_CXSCREEN) - 200) / 2);
    DestroyWindow(window);
}

int main() {
    char number[16];
    UTIL_LongToStringWithCommas(1234567, number, sizeof number);  // "1,234,567", with the user's own separator
    CHECK(lstrlenA(number) >= 7);
    OnDisk();
    FieldOfPaths();
    CHECK(UTIL_GetModuleInstance() != nullptr);  // the library's own resources
    return wrong;
}
