// UTIL_: places of windows, numbers as text, and what exists in the file system.
#include "cvutil32/util.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

namespace {

/// The last character of a path; a backslash may be the second byte of a double-byte character.
char const* LastCharacter(char const* path) {
    char const* last = path;
    for (char const* at = path; *at; at = CharNextA(at)) {
        last = at;
    }
    return last;
}

/// A copy of a path with room for one character more; null without memory.
std::unique_ptr<char[]> CopyPath(char const* path) {
    std::size_t const size = std::strlen(path) + 1;
    std::unique_ptr<char[]> copy(new (std::nothrow) char[size + 1]);
    if (copy) {
        std::memcpy(copy.get(), path, size);
    }
    return copy;
}

bool IsRootOfDrive(char const* path) {
    auto const root = CopyPath(path);
    if (!root) {
        return false;
    }
    if (*LastCharacter(path) != '\\') {
        lstrcatA(root.get(), "\\");
    }
    UINT const type = GetDriveTypeA(root.get());
    return type != DRIVE_UNKNOWN && type != DRIVE_NO_ROOT_DIR;
}

}  // namespace

CVAPI(void) UTIL_CenterPopup(HWND window) {
    RECT own;
    if (!window || !IsWindow(window) || !GetWindowRect(window, &own)) {
        return;
    }
    int const width = own.right - own.left;
    int const height = own.bottom - own.top;
    int const screenWidth = GetSystemMetrics(SM_CXSCREEN);
    int const screenHeight = GetSystemMetrics(SM_CYSCREEN);
    int x = (screenWidth - width) / 2;
    int y = (screenHeight - height) / 2;
    RECT around;
    if (HWND const parent = GetParent(window); parent && GetWindowRect(parent, &around)) {
        x = (around.left + around.right - width) / 2;
        y = (around.top + around.bottom - height) / 2;
    }
    x = std::max(0, std::min(x, screenWidth - width));
    y = std::max(0, std::min(y, screenHeight - height));
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

CVAPI(void) UTIL_LongToStringWithCommas(long value, char* out, int outSize) {
    if (!out) {
        return;
    }
    char text[16];
    int const length = wsprintfA(text, "%ld", static_cast<LONG>(value));
    char separator[4] = "";
    GetProfileStringA("intl", "sThousand", ",", separator, sizeof separator);
    char grouped[64] = "";
    char* to = grouped;
    // The sign counts as a digit; callers know the comma behind it.
    for (int i = 0; i < length; ++i) {
        if (i > 0 && (length - i) % 3 == 0) {
            lstrcpyA(to, separator);
            to += lstrlenA(separator);
        }
        *to++ = text[i];
    }
    *to = '\0';
    lstrcpynA(out, grouped, outSize);
}

CVAPI(BOOL) UTIL_DirExists(const char* path) {
    if (!path || !*path) {
        return FALSE;
    }
    auto const folder = CopyPath(path);
    if (!folder) {
        return FALSE;
    }
    char* const last = folder.get() + (LastCharacter(path) - path);
    if (*last == '\\') {
        *last = '\0';
    }
    WIN32_FIND_DATAA found;
    HANDLE const search = FindFirstFileA(folder.get(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return IsRootOfDrive(path);
    }
    FindClose(search);
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

CVAPI(BOOL) UTIL_FileExists(const char* path) {
    if (!path || !*path) {
        return FALSE;
    }
    WIN32_FIND_DATAA found;
    HANDLE const search = FindFirstFileA(path, &found);
    if (search == INVALID_HANDLE_VALUE || !FindClose(search)) {
        return FALSE;
    }
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}
