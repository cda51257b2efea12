// Controls of a dialog by their identifiers.
#include <charconv>
#include <cstring>
#include <string>
#include <system_error>
#include <vector>

#include "user/dialog/dialog.h"

using namespace platform::user;

WINUSERAPI HWND WINAPI GetDlgItem(HWND dialog, int id) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(dialog);
    if (!window)
        return nullptr;
    for (const Window* child = window->firstChild; child; child = child->next) {
        if (static_cast<int>(child->id) == id)
            return child->handle;
    }
    return Fail(ERROR_CONTROL_ID_NOT_FOUND, nullptr);
}

WINUSERAPI int WINAPI GetDlgCtrlID(HWND control) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(control);
    return window ? static_cast<int>(window->id) : 0;
}

WINUSERAPI LRESULT WINAPI SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND control = GetDlgItem(dialog, id);
    return control ? SendMessageA(control, message, wParam, lParam) : 0;
}

WINUSERAPI BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    const HWND control = GetDlgItem(dialog, id);
    return control ? SetWindowTextA(control, text) : FALSE;
}

WINUSERAPI UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size) {
    if (!text || size <= 0)
        return 0;
    text[0] = '\0';
    const HWND control = GetDlgItem(dialog, id);
    return control ? static_cast<UINT>(GetWindowTextA(control, text, size)) : 0;
}

WINUSERAPI BOOL WINAPI SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
    const std::string text = isSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
    return SetDlgItemTextA(dialog, id, text.c_str());
}

namespace {

/// Spaces, a minus where the number may have one, digits up to the first character that is none.
bool ReadNumber(const char* text, bool isSigned, UINT& value) {
    text += std::strspn(text, " \t");
    const char* end = text + std::strlen(text);
    if (!isSigned)
        return std::from_chars(text, end, value).ec == std::errc();
    int number = 0;
    const bool read = std::from_chars(text, end, number).ec == std::errc();
    value = static_cast<UINT>(number);
    return read;
}

}  // namespace

WINUSERAPI UINT WINAPI GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned) {
    if (translated)
        *translated = FALSE;
    char text[64];
    UINT value = 0;
    if (GetDlgItemTextA(dialog, id, text, sizeof text) == 0 || !ReadNumber(text, isSigned != FALSE, value))
        return 0;
    if (translated)
        *translated = TRUE;
    return value;
}

WINUSERAPI BOOL WINAPI CheckDlgButton(HWND dialog, int id, UINT check) {
    const HWND control = GetDlgItem(dialog, id);
    if (!control)
        return FALSE;
    SendMessageA(control, BM_SETCHECK, check, 0);
    return TRUE;
}

WINUSERAPI UINT WINAPI IsDlgButtonChecked(HWND dialog, int id) {
    return static_cast<UINT>(SendDlgItemMessageA(dialog, id, BM_GETCHECK, 0, 0));
}

WINUSERAPI BOOL WINAPI CheckRadioButton(HWND dialog, int first, int last, int check) {
    if (!IsWindow(dialog)) {
        return Fail(ERROR_INVALID_WINDOW_HANDLE, FALSE);
    }
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const int id = GetDlgCtrlID(child);
        if (id >= first && id <= last)
            SendMessageA(child, BM_SETCHECK, id == check ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    return TRUE;
}
