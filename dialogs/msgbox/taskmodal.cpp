#include "dialogs/msgbox/taskmodal.h"

#include "cvutil32/list.h"

namespace msgbox {

namespace {

constexpr DWORD kRoom = 4;
constexpr DWORD kNotAppended = 0xFFFFFFFF;

HWND* Windows(LPVOID list) {
    return static_cast<HWND*>(list);
}

/// @return null when memory runs out, which LIST_Malloc tells by a handle that must not be used.
LPVOID MakeList() {
    auto const noList = reinterpret_cast<LPVOID>(ULONG_PTR{24});
    LPVOID const list = LIST_Malloc(kRoom, sizeof(HWND));
    return list == noList ? nullptr : list;
}

/// The owner's thread; the calling one without an owner or when the owner is gone.
DWORD ThreadOf(HWND owner) {
    DWORD const thread = owner ? GetWindowThreadProcessId(owner, nullptr) : 0;
    return thread ? thread : GetCurrentThreadId();
}

BOOL CALLBACK NoteThreadWindowsProc(HWND window, LPARAM parameter) {
    LIST_Append(reinterpret_cast<LPVOID*>(parameter), &window);
    return TRUE;
}

/// Whether the dialog is still there and has not given its windows back.
bool HoldsRecord(HWND dialog, KVMB_MESSAGEBOX const& box) {
    return GetWindowLongPtrA(dialog, DWLP_USER) == reinterpret_cast<LONG_PTR>(&box);
}

/// A window that cannot be listed could not be enabled again.
void Disable(HWND window, HWND dialog, KVMB_MESSAGEBOX& box) {
    if (!IsWindowEnabled(window) || LIST_Append(&box.disabledWindows, &window) == kNotAppended) {
        return;
    }
    EnableWindow(window, FALSE);
    // Ended before the window was disabled but after it was listed, the dialog had nothing to give back.
    if (!HoldsRecord(dialog, box)) {
        EnableWindow(window, TRUE);
    }
}

}  // namespace

// The windows are noted first: each of them is told when it is disabled, and may end the dialog and with it the record's
// list.
void DisableOthers(HWND dialog, KVMB_MESSAGEBOX& box) {
    LPVOID noted = MakeList();
    if (!noted) {
        return;
    }
    EnumThreadWindows(ThreadOf(box.owner), NoteThreadWindowsProc, reinterpret_cast<LPARAM>(&noted));
    if (HoldsRecord(dialog, box)) {
        box.disabledWindows = MakeList();
    }
    for (DWORD i = 0; i < LIST_GetCount(noted) && HoldsRecord(dialog, box) && box.disabledWindows; ++i) {
        if (HWND const window = Windows(noted)[i]; window != dialog) {
            Disable(window, dialog, box);
        }
    }
    LIST_Free(noted);
}

void EnableOthers(KVMB_MESSAGEBOX const& box) {
    if (!box.disabledWindows) {
        return;
    }
    DWORD const count = LIST_GetCount(box.disabledWindows);
    for (DWORD i = 0; i < count; ++i) {
        EnableWindow(Windows(box.disabledWindows)[i], TRUE);
    }
    LIST_Free(box.disabledWindows);
}

}  // namespace msgbox
