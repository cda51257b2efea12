// Making dialogs, and the loops of modal ones.
#include <new>

#include "user/dialog/dialog.h"

namespace platform::user {

DialogState::~DialogState() {
    if (ownFont)
        DeleteObject(ownFont);
}

std::shared_ptr<DialogState> FindDialogState(HWND dialog) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(dialog);
    return window ? window->dialog : nullptr;
}

std::shared_ptr<DialogState> NeedDialogState(HWND dialog) {
    const UserGuard guard(UserLock());
    Window* window = FindWindowObject(dialog);
    if (!window)
        return nullptr;
    if (!window->dialog && !window->destroying) {
        try {
            window->dialog = std::make_shared<DialogState>();
        } catch (const std::bad_alloc&) {
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        }
    }
    return window->dialog;
}

namespace {

/// The owner is enabled before the dialog goes, so that activation falls to it and not to another application's window.
void ReleaseOwner(DialogState& state) {
    const HWND owner = state.disabledOwner;
    state.disabledOwner = nullptr;
    if (owner && IsWindow(owner))
        EnableWindow(owner, TRUE);
}

/// Takes what is in the queue, telling the owner first when there is nothing. @returns false on WM_QUIT.
bool NextDialogMessage(HWND dialog, HWND owner, bool tellIdle, MSG& message) {
    if (tellIdle && owner && !PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        SendMessageA(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(dialog));
        // The owner may have ended the dialog; nothing would then wake the loop.
        const auto state = FindDialogState(dialog);
        if (!state || state->ended) {
            message = MSG{};
            return true;
        }
    }
    return GetMessageA(&message, nullptr, 0, 0) != 0;
}

void RunModalLoop(HWND dialog, HWND owner, const std::shared_ptr<DialogState>& state) {
    const bool tellIdle = !(GetWindowLongA(dialog, GWL_STYLE) & DS_NOIDLEMSG);
    while (!state->ended && IsWindow(dialog)) {
        MSG message{};
        if (!NextDialogMessage(dialog, owner, tellIdle, message)) {
            // It is for the loops further out too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (message.message == WM_NULL && !message.hwnd)
            continue;
        if (!IsDialogMessageA(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
}

}  // namespace

INT_PTR RunDialog(HINSTANCE instance, const DialogTemplate& dialogTemplate, HWND owner, DLGPROC procedure,
                  LPARAM initParam) {
    if (owner && !IsWindow(owner)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return 0;
    }
    if (owner == GetDesktopWindow())
        owner = nullptr;
    const HWND root = owner ? GetAncestor(owner, GA_ROOT) : nullptr;
    // An owner that was disabled before stays so afterwards.
    const HWND disabled = root && IsWindowEnabled(root) ? root : nullptr;
    if (disabled)
        EnableWindow(disabled, FALSE);

    const HWND dialog = CreateDialogFromTemplate(instance, dialogTemplate, owner, procedure, initParam, true, disabled);
    const auto state = dialog ? FindDialogState(dialog) : nullptr;
    if (!state) {
        const DWORD error = GetLastError();
        if (disabled && IsWindow(disabled))
            EnableWindow(disabled, TRUE);
        SetLastError(error);
        return -1;
    }
    RunModalLoop(dialog, root, state);
    ReleaseOwner(*state);
    if (IsWindow(dialog))
        DestroyWindow(dialog);
    return state->result;
}

}  // namespace platform::user

using namespace platform::user;

namespace {

/// Memory that ran out: nothing is left behind, the caller gets the neutral result.
template <class Action, class Result>
Result Guarded(const Action& action, Result neutral) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return neutral;
    }
}

bool ReadTemplateInMemory(LPCDLGTEMPLATEA memory, DialogTemplate& parsed) {
    if (ParseDialogTemplate(memory, kLargestTemplate, parsed))
        return true;
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

bool CheckOwner(HWND owner) {
    if (!owner || IsWindow(owner))
        return true;
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return false;
}

}  // namespace

WINUSERAPI HWND WINAPI CreateDialogParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure,
                                          LPARAM initParam) {
    return Guarded(
        [&]() -> HWND {
            DialogTemplate parsed;
            if (!CheckOwner(owner) || !LoadDialogTemplate(instance, templateName, parsed))
                return nullptr;
            return CreateDialogFromTemplate(instance, parsed, owner, procedure, initParam, false, nullptr);
        },
        HWND{});
}

WINUSERAPI HWND WINAPI CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialogTemplate, HWND owner,
                                                  DLGPROC procedure, LPARAM initParam) {
    return Guarded(
        [&]() -> HWND {
            DialogTemplate parsed;
            if (!CheckOwner(owner) || !ReadTemplateInMemory(dialogTemplate, parsed))
                return nullptr;
            return CreateDialogFromTemplate(instance, parsed, owner, procedure, initParam, false, nullptr);
        },
        HWND{});
}

WINUSERAPI INT_PTR WINAPI DialogBoxParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure,
                                          LPARAM initParam) {
    return Guarded(
        [&]() -> INT_PTR {
            DialogTemplate parsed;
            if (!LoadDialogTemplate(instance, templateName, parsed))
                return -1;
            return RunDialog(instance, parsed, owner, procedure, initParam);
        },
        INT_PTR{-1});
}

WINUSERAPI INT_PTR WINAPI DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialogTemplate, HWND owner,
                                                  DLGPROC procedure, LPARAM initParam) {
    return Guarded(
        [&]() -> INT_PTR {
            DialogTemplate parsed;
            if (!ReadTemplateInMemory(dialogTemplate, parsed))
                return -1;
            return RunDialog(instance, parsed, owner, procedure, initParam);
        },
        INT_PTR{-1});
}

WINUSERAPI BOOL WINAPI EndDialog(HWND dialog, INT_PTR result) {
    const auto state = FindDialogState(dialog);
    if (!state) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    const HWND owner = GetWindow(dialog, GW_OWNER);
    const bool wasActive = GetActiveWindow() == dialog;
    state->ended = true;
    state->result = result;
    ReleaseOwner(*state);
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    if (wasActive && owner && GetActiveWindow() != owner && IsWindowEnabled(owner))
        SetActiveWindow(owner);
    // The loop may be waiting for a message.
    PostMessageA(dialog, WM_NULL, 0, 0);
    return TRUE;
}
