// The keyboard of dialogs: Tab, arrows, Enter, Escape, mnemonics.
#include <string>
#include <vector>

#include "user/dialog/dialog.h"
#include "user/frame/mnemonic.h"

namespace platform::user {

std::string TextOf(HWND window) {
    const int length = GetWindowTextLengthA(window);
    std::string text(static_cast<size_t>(length > 0 ? length : 0) + 1, '\0');
    text.resize(static_cast<size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

namespace {

UINT CodeFor(const MSG& message) {
    MSG copy = message;
    return static_cast<UINT>(
        SendMessageA(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&copy)));
}

// --- arrows

void MoveInGroup(HWND dialog, HWND from, bool previous) {
    HWND first = nullptr;
    HWND next = from;
    UINT code = 0;
    do {
        next = GetNextDlgGroupItem(dialog, next, previous);
        if (!next || next == from || next == first)
            return;
        if (!first)
            first = next;
        code = DialogCode(next);
    } while (code & DLGC_STATIC);
    FocusControl(dialog, next);
    const LONG kind = GetWindowLongA(next, GWL_STYLE) & BS_TYPEMASK;
    if ((code & (DLGC_BUTTON | DLGC_RADIOBUTTON)) == (DLGC_BUTTON | DLGC_RADIOBUTTON) && kind == BS_AUTORADIOBUTTON &&
        SendMessageA(next, BM_GETCHECK, 0, 0) != BST_CHECKED)
        SendMessageA(next, BM_CLICK, 0, 0);
}

// --- Enter and Escape

void SendCommand(HWND dialog, int id, HWND control) {
    if (control && !IsWindowEnabled(control)) {
        MessageBeep(0);
        return;
    }
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(control));
}

void PressDefault(HWND dialog, HWND focus) {
    if (focus != dialog && (DialogCode(focus) & DLGC_DEFPUSHBUTTON)) {
        SendCommand(GetParent(focus), GetDlgCtrlID(focus), focus);
        return;
    }
    const LRESULT answer = SendMessageA(dialog, DM_GETDEFID, 0, 0);
    const int id = HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : IDOK;
    SendCommand(dialog, id, GetDlgItem(dialog, id));
}

// --- mnemonics

bool HasMnemonic(HWND control, char wanted) {
    const UINT code = DialogCode(control);
    // Where characters are typed, the text is the user's and no label.
    if (code & DLGC_WANTCHARS)
        return false;
    if ((code & DLGC_STATIC) && !(code & DLGC_BUTTON)) {
        char name[16] = "";
        GetClassNameA(control, name, sizeof name);
        if (lstrcmpiA(name, "static") == 0 && (GetWindowLongA(control, GWL_STYLE) & SS_NOPREFIX))
            return false;
    }
    return MnemonicOf(TextOf(control)) == wanted;
}

/// Focuses the next control with this mnemonic after the focus, and clicks it when it is a button that has no rival.
bool FollowMnemonic(HWND dialog, HWND focus, char character) {
    const char wanted = Capital(character);
    std::vector<HWND> controls;
    CollectMembers(dialog, controls);
    std::erase_if(controls, [](HWND control) { return !IsReachable(control); });
    const size_t count = controls.size();
    size_t start = count - 1;
    for (size_t index = 0; index < count; ++index) {
        if (controls[index] == focus || IsChild(controls[index], focus))
            start = index;
    }
    HWND found = nullptr;
    int matches = 0;
    for (size_t step = 1; step <= count; ++step) {
        const HWND control = controls[(start + step) % count];
        if (!HasMnemonic(control, wanted))
            continue;
        ++matches;
        if (!found)
            found = control;
    }
    if (!found)
        return false;
    const UINT code = DialogCode(found);
    if (code & DLGC_STATIC) {
        const HWND next = GetNextDlgTabItem(dialog, found, FALSE);
        if (next && next != found)
            SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
        return true;
    }
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(found), TRUE);
    if (matches == 1 && IsWindow(found) && (code & (DLGC_BUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)))
        SendMessageA(found, BM_CLICK, 0, 0);
    return true;
}

// --- messages

bool OnKeyDown(HWND dialog, const MSG& message) {
    const UINT code = CodeFor(message);
    if (code & DLGC_WANTMESSAGE)
        return false;
    switch (message.wParam) {
        case VK_TAB:
            SendMessageA(dialog, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0, 0);
            return true;
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
            if (code & DLGC_WANTARROWS)
                return false;
            MoveInGroup(dialog, message.hwnd, message.wParam == VK_LEFT || message.wParam == VK_UP);
            return true;
        case VK_ESCAPE:
            SendCommand(dialog, IDCANCEL, GetDlgItem(dialog, IDCANCEL));
            return true;
        case VK_RETURN:
            PressDefault(dialog, message.hwnd);
            return true;
        default:
            return false;
    }
}

bool OnCharacter(HWND dialog, const MSG& message, bool withAlt) {
    if (!withAlt && (CodeFor(message) & (DLGC_WANTCHARS | DLGC_WANTMESSAGE)))
        return false;
    const auto character = static_cast<char>(message.wParam);
    // The space bar belongs to the button with the focus, and with Alt to the window menu.
    if (static_cast<unsigned char>(character) <= ' ')
        return false;
    return FollowMnemonic(dialog, message.hwnd, character);
}

bool HandleKey(HWND dialog, const MSG& message) {
    switch (message.message) {
        case WM_KEYDOWN:
            return OnKeyDown(dialog, message);
        case WM_CHAR:
            return OnCharacter(dialog, message, false);
        case WM_SYSCHAR:
            return OnCharacter(dialog, message, true);
        case WM_LBUTTONDOWN:
            // A click moves the default outline as Tab does.
            if (message.hwnd != dialog && GetFocus() && IsWindowEnabled(message.hwnd))
                MoveDefaultButton(dialog, (DialogCode(message.hwnd) & DLGC_STATIC) ? GetFocus() : message.hwnd);
            return false;
        default:
            return false;
    }
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

WINUSERAPI BOOL WINAPI IsDialogMessageA(HWND dialog, MSG* message) try {
    if (!message || !IsWindow(dialog) || !message->hwnd)
        return FALSE;
    if (message->hwnd != dialog && !IsChild(dialog, message->hwnd))
        return FALSE;
    if (!HandleKey(dialog, *message)) {
        TranslateMessage(message);
        DispatchMessageA(message);
    }
    return TRUE;
} catch (const std::bad_alloc&) {
    return FALSE;
}
