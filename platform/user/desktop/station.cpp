#include "display/display.h"

#include <windows.h>

#include <cstring>

#include "base/fail.h"

using platform::base::Fail;

// There is one station, and it is never closed, so that its handle is a constant below those of the handle table.
static HWINSTA Station() {
    return reinterpret_cast<HWINSTA>(std::uintptr_t{0x2C});
}

HWINSTA WINAPI GetProcessWindowStation() {
    return Station();
}

BOOL WINAPI GetUserObjectInformationA(HANDLE object, int index, PVOID information, DWORD size, LPDWORD needed) {
    if (object != Station()) {
        return Fail(ERROR_INVALID_HANDLE, FALSE);
    }
    const USEROBJECTFLAGS flags{FALSE, FALSE, platform::display::IsInteractive() ? DWORD{WSF_VISIBLE} : 0};
    if (index != UOI_FLAGS) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    if (needed != nullptr) {
        *needed = sizeof flags;
    }
    if (information == nullptr || size < sizeof flags) {
        return Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    }
    std::memcpy(information, &flags, sizeof flags);
    return TRUE;
}
