// GetOpenFileNameA.
#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

#include <new>

#include "comdlg/filedialog.h"

namespace {

thread_local DWORD t_error = 0;

bool Refuse(DWORD error) {
    t_error = error;
    return false;
}

bool IsSound(const OPENFILENAMEA* record) {
    if (!record) {
        return Refuse(CDERR_INITIALIZATION);
    }
    if (record->lStructSize != sizeof *record && record->lStructSize != OPENFILENAME_SIZE_VERSION_400A) {
        return Refuse(CDERR_STRUCTSIZE);
    }
    if ((record->Flags & OFN_ENABLEHOOK) && !record->lpfnHook) {
        return Refuse(CDERR_NOHOOK);
    }
    return true;
}

}  // namespace

BOOL WINAPI GetOpenFileNameA(LPOPENFILENAMEA record) {
    t_error = 0;
    if (!IsSound(record)) {
        return FALSE;
    }
    try {
        platform::comdlg::FileDialog dialog(*record);
        const bool chosen = platform::comdlg::RunFileDialog(dialog);
        t_error = dialog.error;
        return chosen;
    } catch (const std::bad_alloc&) {
        return Refuse(CDERR_MEMALLOCFAILURE);
    }
}

DWORD WINAPI CommDlgExtendedError(void) {
    return t_error;
}
