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

BOOL CALLBACK DisableThreadWindowsProc(HWND window, LPARAM parameter) {
    auto const list = reinterpret_cast<LPVOID*>(parameter);
    if (!list) {
        return FALSE;
    }
    if (*list && window && IsWindow(window) && IsWindowEnabled(window) && window != Windows(*list)[0]) {
        // A window that cannot be noted could not be enabled again.
        if (LIST_Append(list, &window) != kNotAppended) {
            EnableWindow(window, FALSE);
        }
    }
    return TRUE;
}

}  // namespace

void DisableOthers(HWND dialog, KVMB_MESSAGEBOX& box) {
    box.disabledWindows = MakeList();
    if (!box.disabledWindows) {
        return;
    }
    // Item 0 is the window to leave alone while the others are gone through.
    LIST_Append(&box.disabledWindows, &dialog);
    EnumThreadWindows(ThreadOf(box.owner), DisableThreadWindowsProc, reinterpret_cast<LPARAM>(&box.disabledWindows));
    LIST_Delete(box.disabledWindows, 0);
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
