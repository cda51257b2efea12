#include "user/dialog/dialog.h"

namespace platform::user {
namespace {

constexpr UINT kSetSelection = 0x00B1;  // EM_SETSEL
constexpr UINT kPushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;

/// Calls visit for the dialog's controls and those of pages within it, parents first.
template <class Visit>
void ForEachControl(HWND parent, const Visit& visit) {
    HWND next = nullptr;
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = next) {
        next = GetWindow(child, GW_HWNDNEXT);
        visit(child);
        if (GetWindowLongA(child, GWL_EXSTYLE) & WS_EX_CONTROLPARENT)
            ForEachControl(child, visit);
    }
}

HWND FindControl(HWND parent, int id) {
    if (HWND direct = GetDlgItem(parent, id))
        return direct;
    HWND found = nullptr;
    ForEachControl(parent, [&](HWND control) {
        if (!found && GetDlgCtrlID(control) == id)
            found = control;
    });
    return found;
}

void SetButtonKind(HWND button, LONG kind) {
    SendMessageA(button, BM_SETSTYLE, static_cast<WPARAM>(kind), TRUE);
}

}  // namespace

UINT DialogCode(HWND control) {
    return static_cast<UINT>(SendMessageA(control, WM_GETDLGCODE, 0, 0));
}

void MoveDefaultButton(HWND dialog, HWND newFocus) {
    const auto state = FindDialogState(dialog);
    if (!state)
        return;
    HWND target = nullptr;
    if (newFocus && newFocus != dialog && (DialogCode(newFocus) & kPushButton))
        target = newFocus;
    else if (state->hasDefault)
        target = FindControl(dialog, state->defaultId);

    ForEachControl(dialog, [&](HWND control) {
        if (control != target && (DialogCode(control) & DLGC_DEFPUSHBUTTON))
            SetButtonKind(control, BS_PUSHBUTTON);
    });
    if (target && (DialogCode(target) & DLGC_UNDEFPUSHBUTTON))
        SetButtonKind(target, BS_DEFPUSHBUTTON);
}

void SetDefaultId(HWND dialog, int id) {
    const auto state = NeedDialogState(dialog);
    if (!state)
        return;
    state->defaultId = id;
    state->hasDefault = true;
    const HWND focus = GetFocus();
    MoveDefaultButton(dialog, focus && IsChild(dialog, focus) ? focus : nullptr);
}

void FocusControl(HWND dialog, HWND control) {
    if (!control)
        return;
    if (DialogCode(control) & DLGC_HASSETSEL)
        SendMessageA(control, kSetSelection, 0, -1);
    SetFocus(control);
    // The control that lost the focus may have moved it elsewhere.
    const HWND focus = GetFocus();
    if (IsWindow(dialog) && focus && IsChild(dialog, focus))
        MoveDefaultButton(dialog, focus);
}

void FocusNext(HWND dialog, bool previous) {
    const HWND focus = GetFocus();
    const HWND from = focus && IsChild(dialog, focus) ? focus : nullptr;
    FocusControl(dialog, GetNextDlgTabItem(dialog, from, previous));
}

HWND FirstFocus(HWND dialog) {
    const HWND stop = GetNextDlgTabItem(dialog, nullptr, FALSE);
    return stop ? stop : GetNextDlgGroupItem(dialog, nullptr, FALSE);
}

}  // namespace platform::user
