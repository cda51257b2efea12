#include "display/display.h"

#include <windows.h>

#include <cstring>

// There is one station, and it is never closed, so that its handle is a constant below those of the handle table.
static HWINSTA Station() {
    return reinterpret_cast<HWINSTA>(std::uintptr_t{0x2C});
}

HWINSTA WINAPI GetProcessWindowStation() {
    return Station();
}

BOOL WINAPI GetUserObjectInformationA(HANDLE object, int index, PVOID information, DWORD size, LPDWORD needed) {
    if (object != Station()) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    const USEROBJECTFLAGS flags{FALSE, FALSE, platform::display::IsInteractive() ? DWORD{WSF_VISIBLE} : 0};
    static constexpr char kName[] = "WinSta0";
    static constexpr char kType[] = "WindowStation";
    const void* value = &flags;
    DWORD length = sizeof flags;
    switch (index) {
        case UOI_FLAGS:
            break;
        case UOI_NAME:
            value = kName;
            length = sizeof kName;
            break;
        case UOI_TYPE:
            value = kType;
            length = sizeof kType;
            break;
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return FALSE;
    }
    if (needed != nullptr) {
        *needed = length;
    }
    if (information == nullptr || size < length) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    std::memcpy(information, value, length);
    return TRUE;
}
