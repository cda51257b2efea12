// Start and end of the component library: one count a thread.
#include <windows.h>

#include <objbase.h>

#include "shell/live.h"

namespace {

thread_local unsigned t_starts = 0;

}  // namespace

HRESULT WINAPI CoInitialize(LPVOID reserved) {
    if (reserved) {
        return E_INVALIDARG;
    }
    if (platform::shell::FailsNow()) {
        return E_OUTOFMEMORY;
    }
    return t_starts++ == 0 ? S_OK : S_FALSE;
}

void WINAPI CoUninitialize(void) {
    if (t_starts > 0) {
        --t_starts;
    }
}
