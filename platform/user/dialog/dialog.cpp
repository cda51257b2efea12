// Making dialogs, and the loops of modal ones.
#include <new>
#include <utility>

#include "gdi/context/device_context.h"
#include "user/dialog/dialog.h"

namespace platform::user {

DialogState::~DialogState() {
    // A control that is painting may have it selected: whoever answers it can end the dialog.
    if (ownFont)
        gdi::DeleteFontWhenFree(ownFont);
}

std::shared_ptr<DialogState> FindDialogState(HWND dialog) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(dialog);
    return window ? window->dialog : nullptr;
}

std::shared_ptr<DialogState> NeedDialogState(HWND handle) {
    const UserGuard guard(UserLock());
    Window* window = FindWindowObject(handle);
    if (!window)
        return nullptr;
    if (!window->dialog && !window->destroying) {
        if (!MemoryAllows([=] { window->dialog = std::make_shared<DialogState>(); }))
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
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

/// The active window hears that a modal dialog comes; an owner has heard so as it was disabled.
void CancelMode(HWND disabled) {
    const HWND active = GetActiveWindow();
    if (active && active != disabled)
        SendMessageA(active, WM_CANCELMODE, 0, 0);
}

/// Whoever holds the mouse would get what is meant for the dialog.
void TakeMouse() {
    if (const HWND holder = GetCapture())
        SendMessageA(holder, WM_CANCELMODE, 0, 0);
    if (GetCapture())
        ReleaseCapture();
}

/// The messages of a modal dialog, until it has ended.
class ModalLoop {
  public:
    ModalLoop(HWND dialog, HWND owner, std::shared_ptr<DialogState> state)
        : dialog_(dialog), owner_(owner), state_(std::move(state)) {
        const LONG style = GetWindowLongA(dialog, GWL_STYLE);
        shown_ = (style & WS_VISIBLE) != 0;
        if (style & DS_NOIDLEMSG)
            owner_ = nullptr;
    }

    void Run() {
        TakeMouse();
        while (Runs()) {
            MSG message{};
            if (!Next(message)) {
                // It is for the loops further out too.
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            if (message.message == WM_NULL && !message.hwnd)
                continue;
            if (!IsDialogMessageA(dialog_, &message)) {
                TranslateMessage(&message);
                DispatchMessageA(&message);
            }
        }
    }

  private:
    bool Runs() const {
        return !state_->ended && IsWindow(dialog_);
    }

    /// Timers come when there is nothing else, and may come for ever.
    static bool Idle() {
        MSG message;
        return !PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) || message.message == WM_TIMER;
    }

    /// Takes what is in the queue. When there is nothing, the dialog is shown, so that one that a waiting message ends is
    /// never seen, and then the owner is told. Either may end it; nothing would then wake the loop. @returns false on WM_QUIT.
    bool Next(MSG& message) {
        if (!shown_ && Idle()) {
            shown_ = true;
            ShowDialog(dialog_);
        }
        if (owner_ && Runs() && !PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE))
            SendMessageA(owner_, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(dialog_));
        return !Runs() || GetMessageA(&message, nullptr, 0, 0) != 0;
    }

    const HWND dialog_;
    HWND owner_;
    const std::shared_ptr<DialogState> state_;
    bool shown_;
};

/// What is disabled for an owner that was named: the first window at or above it that is no child.
HWND TopLevelOf(HWND owner) {
    const UserGuard guard(UserLock());
    return HandleOf(TopLevel(owner ? FindWindowObject(owner) : nullptr));
}

}  // namespace

void ShowDialog(HWND dialog) {
    ShowWindow(dialog, SW_SHOWNORMAL);
    if (IsWindow(dialog))
        UpdateWindow(dialog);
}

INT_PTR RunDialog(HINSTANCE instance, const DialogTemplate& dialogTemplate, HWND owner, DLGPROC procedure,
                  LPARAM initParam) {
    if (owner && !IsWindow(owner)) {
        return Fail(ERROR_INVALID_WINDOW_HANDLE, 0);
    }
    if (owner == GetDesktopWindow())
        owner = nullptr;
    const HWND root = TopLevelOf(owner);
    // An owner that was disabled before stays so afterwards.
    const HWND disabled = root && IsWindowEnabled(root) ? root : nullptr;
    if (disabled)
        EnableWindow(disabled, FALSE);
    CancelMode(disabled);

    const HWND dialog = CreateDialogFromTemplate(instance, dialogTemplate, owner, procedure, initParam, true, disabled);
    const auto state = dialog ? FindDialogState(dialog) : nullptr;
    if (!state) {
        const DWORD error = GetLastError();
        if (disabled && IsWindow(disabled))
            EnableWindow(disabled, TRUE);
        return Fail(error, -1);
    }
    ModalLoop(dialog, root, state).Run();
    ReleaseOwner(*state);
    if (IsWindow(dialog))
        DestroyWindow(dialog);
    return state->result;
}

}  // namespace platform::user

using namespace platform::user;

namespace {

/// Reads a template of a module, or one in memory where there is one, and goes on with it. Where memory runs out nothing is left
/// behind, and the caller gets the neutral result.
template <class Result, class Action>
Result WithTemplate(HINSTANCE instance, LPCSTR name, LPCDLGTEMPLATEA memory, Result neutral, const Action& action) try {
    DialogTemplate parsed;
    if (name) {
        return LoadDialogTemplate(instance, name, parsed) ? action(parsed) : neutral;
    }
    if (!ParseDialogTemplate(memory, kLargestTemplate, parsed)) {
        return Fail(ERROR_INVALID_PARAMETER, neutral);
    }
    return action(parsed);
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, neutral);
}

HWND Create(HINSTANCE instance, LPCSTR name, LPCDLGTEMPLATEA memory, HWND owner, DLGPROC procedure, LPARAM initParam) {
    if (owner && !IsWindow(owner)) {
        return Fail(ERROR_INVALID_WINDOW_HANDLE, nullptr);
    }
    return WithTemplate(instance, name, memory, HWND{}, [&](const DialogTemplate& parsed) {
        return CreateDialogFromTemplate(instance, parsed, owner, procedure, initParam, false, nullptr);
    });
}

INT_PTR Run(HINSTANCE instance, LPCSTR name, LPCDLGTEMPLATEA memory, HWND owner, DLGPROC procedure, LPARAM initParam) {
    return WithTemplate(instance, name, memory, INT_PTR{-1}, [&](const DialogTemplate& parsed) {
        return RunDialog(instance, parsed, owner, procedure, initParam);
    });
}

}  // namespace

WINUSERAPI HWND WINAPI CreateDialogParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure,
                                          LPARAM initParam) {
    return Create(instance, templateName, nullptr, owner, procedure, initParam);
}

WINUSERAPI HWND WINAPI CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialogTemplate, HWND owner,
                                                  DLGPROC procedure, LPARAM initParam) {
    return Create(instance, nullptr, dialogTemplate, owner, procedure, initParam);
}

WINUSERAPI INT_PTR WINAPI DialogBoxParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure,
                                          LPARAM initParam) {
    return Run(instance, templateName, nullptr, owner, procedure, initParam);
}

WINUSERAPI INT_PTR WINAPI DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA dialogTemplate, HWND owner,
                                                  DLGPROC procedure, LPARAM initParam) {
    return Run(instance, nullptr, dialogTemplate, owner, procedure, initParam);
}

WINUSERAPI BOOL WINAPI EndDialog(HWND dialog, INT_PTR result) {
    const auto state = FindDialogState(dialog);
    if (!state) {
        return Fail(ERROR_INVALID_WINDOW_HANDLE, FALSE);
    }
    const HWND owner = GetWindow(dialog, GW_OWNER);
    const bool wasActive = GetActiveWindow() == dialog;
    state->ended = true;
    state->result = result;
    // Whoever disabled the owner of a modeless dialog made it a modal one.
    if (owner && !state->modal && !IsWindowEnabled(owner))
        state->disabledOwner = owner;
    ReleaseOwner(*state);
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    if (wasActive && owner && GetActiveWindow() != owner && IsWindowEnabled(owner))
        SetActiveWindow(owner);
    // The loop may be waiting for a message.
    PostMessageA(dialog, WM_NULL, 0, 0);
    return TRUE;
}
