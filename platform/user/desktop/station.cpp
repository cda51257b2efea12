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
    if (index != UOI_FLAGS) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (needed != nullptr) {
        *needed = sizeof flags;
    }
    if (information == nullptr || size < sizeof flags) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    std::memcpy(information, &flags, sizeof flags);
    return TRUE;
}
