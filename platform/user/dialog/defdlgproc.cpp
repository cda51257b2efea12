// The dialog class: what a dialog does with what its dialog procedure leaves to it.
#include "user/dialog/dialog.h"
#include "user/frame/nonclient.h"

namespace platform::user {
namespace {

/// Messages whose answer is the dialog procedure's own result; for all others that is DWLP_MSGRESULT.
bool AnswersDirectly(UINT message) {
    const bool asksForBrush = message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC;
    return asksForBrush || message == WM_VKEYTOITEM || message == WM_INITDIALOG;
}

void SaveFocus(HWND dialog, DialogState& state) {
    const HWND focus = GetFocus();
    if (focus && IsChild(dialog, focus))
        state.savedFocus = focus;
}

bool CanTakeFocus(HWND dialog, HWND control) {
    for (; control && control != dialog; control = GetParent(control)) {
        if ((GetWindowLongA(control, GWL_STYLE) & (WS_VISIBLE | WS_DISABLED)) != WS_VISIBLE)
            return false;
    }
    return control == dialog;
}

/// @returns whether there was a control to give the focus back to.
bool RestoreFocus(HWND dialog, DialogState& state) {
    const HWND control = state.savedFocus;
    state.savedFocus = nullptr;
    if (!control || !IsWindow(control) || !CanTakeFocus(dialog, control))
        return false;
    SetFocus(control);
    if (IsWindow(dialog))
        MoveDefaultButton(dialog, GetFocus());
    return true;
}

void OnActivate(HWND dialog, WPARAM wParam, DialogState& state) {
    if (LOWORD(wParam) == WA_INACTIVE) {
        SaveFocus(dialog, state);
        return;
    }
    if (HIWORD(wParam) || RestoreFocus(dialog, state))
        return;
    // A hidden dialog is activated by whoever gives one of its controls the focus.
    const HWND focus = GetFocus();
    if (IsWindowVisible(dialog) && (!focus || !IsChild(dialog, focus)))
        SetFocus(dialog);
}

void OnSetFocus(HWND dialog, DialogState& state) {
    if (RestoreFocus(dialog, state))
        return;
    const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
    if (first)
        FocusControl(dialog, first);
}

void EraseDialog(HWND dialog, HDC context) {
    const HBRUSH brush = AskForBrush(dialog, WM_CTLCOLORDLG, context, dialog);
    RECT client{};
    GetClientRect(dialog, &client);
    FillRect(context, &client, brush);
}

void NextControl(HWND dialog, WPARAM wParam, LPARAM lParam) {
    if (LOWORD(lParam))
        FocusControl(dialog, reinterpret_cast<HWND>(wParam));
    else
        FocusNext(dialog, wParam != 0);
}

void Close(HWND dialog) {
    const HWND cancel = GetDlgItem(dialog, IDCANCEL);
    if (cancel && !IsWindowEnabled(cancel))
        MessageBeep(0);
    else
        PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), reinterpret_cast<LPARAM>(cancel));
}

LRESULT DefaultAnswer(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, DialogState& state) {
    switch (message) {
        case WM_ERASEBKGND:
            EraseDialog(dialog, reinterpret_cast<HDC>(wParam));
            return TRUE;
        case WM_SHOWWINDOW:
            if (!wParam)
                SaveFocus(dialog, state);
            return DefWindowProcA(dialog, message, wParam, lParam);
        case WM_ACTIVATE:
            OnActivate(dialog, wParam, state);
            return 0;
        case WM_SETFOCUS:
            OnSetFocus(dialog, state);
            return 0;
        case DM_SETDEFID:
            SetDefaultId(dialog, LOWORD(wParam));
            return TRUE;
        case DM_GETDEFID:
            return state.hasDefault ? static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(state.defaultId, DC_HASDEFID)))
                                    : 0;
        case WM_NEXTDLGCTL:
            NextControl(dialog, wParam, lParam);
            return 0;
        case WM_CLOSE:
            Close(dialog);
            return 0;
        case WM_SETFONT:
            state.font = reinterpret_cast<HFONT>(wParam);
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(state.font);
        default:
            return DefWindowProcA(dialog, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto state = NeedDialogState(dialog);
    if (!state)
        return 0;
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrA(dialog, DWLP_DLGPROC));
    if (procedure) {
        SetWindowLongPtrA(dialog, DWLP_MSGRESULT, 0);
        const INT_PTR handled = procedure(dialog, message, wParam, lParam);
        if (handled && AnswersDirectly(message))
            return handled;
        if (handled)
            return GetWindowLongPtrA(dialog, DWLP_MSGRESULT);
        if (!IsWindow(dialog))
            return 0;
    }
    return DefaultAnswer(dialog, message, wParam, lParam, *state);
}

}  // namespace platform::user
