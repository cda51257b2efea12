// The extended message box: its dialog, laid out at run time, and what happens around it.
#include "cvutil32/msgbox.h"
#include "cvutil32/util.h"
#include "dialogs/msgbox/layout.h"
#include "dialogs/msgbox/resource.h"
#include "dialogs/msgbox/taskmodal.h"

#include <cstddef>

// Applications in other languages fill the record by its offsets.
static_assert(sizeof(void*) != 4 ||
              (offsetof(KVMB_MESSAGEBOX, flags) == 18 && offsetof(KVMB_MESSAGEBOX, position) == 24 &&
               offsetof(KVMB_MESSAGEBOX, buttons) == 32 && sizeof(KVMB_MESSAGEBOX) == 132));

namespace {

constexpr int kLongestNarrow = 140;  // characters of a message in the narrow box
constexpr int kNameSize = 48;
constexpr int kFailed = -1;

/// What the created buttons have in common.
struct ButtonPattern {
    char className[kNameSize];
    DWORD style;
    HFONT font;
};

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(SendMessageA(control, WM_GETFONT, 0, 0));
}

RECT RectIn(HWND dialog, HWND control) {
    RECT rect = {};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

SIZE SizeOf(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

int ClientHeight(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    return client.bottom;
}

/// @return what a text needs when its words are wrapped at a width. Tabs and "&" count as the characters they are.
SIZE MeasureText(HWND dialog, HFONT font, LPCSTR text, RECT rect) {
    HDC const context = GetDC(dialog);
    HGDIOBJ const former = font ? SelectObject(context, font) : nullptr;
    DrawTextA(context, text ? text : "", -1, &rect, DT_WORDBREAK | DT_NOCLIP | DT_CALCRECT | DT_NOPREFIX);
    if (former) {
        SelectObject(context, former);
    }
    ReleaseDC(dialog, context);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

/// Fills the controls of the template, and shows or hides the icon. @return the icon's height, 0 without one.
int FillIn(HWND dialog, KVMB_MESSAGEBOX const& box) {
    HWND const icon = GetDlgItem(dialog, CVMB_ICON);
    if (box.icon) {
        SendMessageA(icon, STM_SETICON, reinterpret_cast<WPARAM>(box.icon), 0);
    } else {
        ShowWindow(icon, SW_HIDE);
    }
    if (box.title) {
        SetWindowTextA(dialog, box.title);
    }
    if (box.text) {
        SetDlgItemTextA(dialog, CVMB_MESSAGE, box.text);
    }
    return box.icon ? GetSystemMetrics(SM_CYICON) : 0;
}

/// Measures the template's controls and takes its two buttons away.
msgbox::Measured Measure(HWND dialog, KVMB_MESSAGEBOX const& box, int iconHeight, ButtonPattern& pattern) {
    HWND const message = GetDlgItem(dialog, CVMB_MESSAGE);
    HWND const panel = GetDlgItem(dialog, CVMB_PANEL);
    HWND const first = GetDlgItem(dialog, IDOK);
    HWND const second = GetDlgItem(dialog, IDCANCEL);

    pattern.font = FontOf(message);
    msgbox::Measured in = {};
    in.message = RectIn(dialog, message);
    in.text = MeasureText(dialog, pattern.font, box.text, in.message);
    in.iconLeft = RectIn(dialog, GetDlgItem(dialog, CVMB_ICON)).left;
    in.iconHeight = iconHeight;
    in.panel = {SizeOf(panel).cx, ClientHeight(panel)};
    in.button = RectIn(dialog, first);
    DestroyWindow(first);
    in.secondButton = RectIn(dialog, second).top;
    GetClassNameA(second, pattern.className, kNameSize);
    pattern.style = static_cast<DWORD>(GetWindowLongA(second, GWL_STYLE)) | WS_VISIBLE;
    DestroyWindow(second);
    in.buttonCount = box.buttonCount;
    in.window = SizeOf(dialog);
    in.clientHeight = ClientHeight(dialog);
    return in;
}

void MakeDefault(HWND dialog, HWND button) {
    // The answer's high word is not cut off, so that only an answer without one finds a button.
    auto const former = static_cast<int>(SendMessageA(dialog, DM_GETDEFID, 0, 0));
    if (HWND const formerButton = former ? GetDlgItem(dialog, former) : nullptr) {
        SendMessageA(formerButton, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    }
    SendMessageA(dialog, DM_SETDEFID, static_cast<WPARAM>(GetWindowLongPtrA(button, GWLP_ID)), 0);
    SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    SetFocus(button);
}

HWND MakeButton(HWND dialog, KVMB_BUTTON const& button, ButtonPattern const& pattern, RECT const& place) {
    HINSTANCE const module = UTIL_GetModuleInstance();
    char standard[kNameSize] = {};
    if (!button.label) {
        LoadStringA(module, CVMB_FIRST_LABEL + button.kind, standard, kNameSize);
    }
    HWND const window =
        CreateWindowExA(0, pattern.className, button.label ? button.label : standard, pattern.style, place.left,
                        place.top, place.right - place.left, place.bottom - place.top, dialog,
                        reinterpret_cast<HMENU>(static_cast<LONG_PTR>(button.id)), module, nullptr);
    if (window && pattern.font) {
        SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(pattern.font), FALSE);
    }
    return window;
}

bool MakeButtons(HWND dialog, KVMB_MESSAGEBOX& box, ButtonPattern const& pattern, msgbox::Layout const& layout) {
    if (box.defaultButton >= box.buttonCount) {
        box.defaultButton = 0;
    }
    for (WORD i = 0; i < box.buttonCount; ++i) {
        RECT place = layout.button;
        OffsetRect(&place, 0, i * layout.step);
        HWND const button = MakeButton(dialog, box.buttons[i], pattern, place);
        if (!button) {
            return false;
        }
        if (i == box.defaultButton) {
            MakeDefault(dialog, button);
        }
    }
    return true;
}

void Place(HWND dialog, KVMB_MESSAGEBOX const& box) {
    if (box.position) {
        SetWindowPos(dialog, nullptr, box.position->x, box.position->y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    } else if (GetParent(dialog)) {
        UTIL_CenterPopup(dialog);
    }
}

void OnInitDialog(HWND dialog, KVMB_MESSAGEBOX& box) {
    SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&box));
    box.disabledWindows = nullptr;

    int const iconHeight = FillIn(dialog, box);
    ButtonPattern pattern = {};
    msgbox::Measured const measured = Measure(dialog, box, iconHeight, pattern);
    msgbox::Layout const layout = msgbox::LayOut(measured);

    RECT const& message = layout.message;
    SetWindowPos(GetDlgItem(dialog, CVMB_MESSAGE), nullptr, message.left, message.top, message.right - message.left,
                 message.bottom - message.top, SWP_NOZORDER);
    SetWindowPos(GetDlgItem(dialog, CVMB_PANEL), nullptr, 0, 0, layout.panel.cx, layout.panel.cy,
                 SWP_NOMOVE | SWP_NOZORDER);
    if (!MakeButtons(dialog, box, pattern, layout)) {
        EndDialog(dialog, kFailed);
        return;
    }
    SetWindowPos(dialog, nullptr, 0, 0, layout.window.cx, layout.window.cy, SWP_NOMOVE | SWP_NOZORDER);
    Place(dialog, box);
    if (box.flags & KVMB_TASKMODAL) {
        msgbox::DisableOthers(dialog, box);
    }
}

/// Takes the record from the dialog, and gives the windows back that it had disabled. Whatever ends the box comes here; the
/// record is taken first, since the windows are told and may send what ends the box once more.
/// @return false if that was done before.
bool Release(HWND dialog) {
    auto const box = reinterpret_cast<KVMB_MESSAGEBOX*>(SetWindowLongPtrA(dialog, DWLP_USER, 0));
    if (box) {
        msgbox::EnableOthers(*box);
    }
    return box != nullptr;
}

// The first command decides.
void OnCommand(HWND dialog, WPARAM command) {
    if (Release(dialog)) {
        EndDialog(dialog, static_cast<INT_PTR>(command));
    }
}

INT_PTR CALLBACK MessageBoxDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(dialog, *reinterpret_cast<KVMB_MESSAGEBOX*>(lParam));
            return FALSE;  // a button has the focus
        case WM_COMMAND:
            OnCommand(dialog, wParam);
            return TRUE;
        case WM_DESTROY:
            Release(dialog);
            return FALSE;
        case WM_WINDOWPOSCHANGING:
            return TRUE;  // keeps the default treatment away from the sizes set here
        default:
            return FALSE;
    }
}

HWND ResolveOwner(HWND owner) {
    if (IsWindow(owner) && owner != GetDesktopWindow()) {
        return owner;
    }
    HWND const active = GetActiveWindow();
    return active ? active : owner;
}

int TemplateOf(KVMB_MESSAGEBOX const& box) {
    if (box.flags & KVMB_SMALL) {
        return CVMB_NARROW;
    }
    return (box.flags & KVMB_LARGE) || lstrlenA(box.text) > kLongestNarrow ? CVMB_WIDE : CVMB_NARROW;
}

}  // namespace

CVAPI(int) KVMB_MessageBoxExtended(KVMB_MESSAGEBOX* box) {
    HWND const wanted = box->owner;  // the record need not outlive the box
    HWND const owner = ResolveOwner(wanted);
    HWND const focus = GetFocus();
    INT_PTR const result = DialogBoxParamA(UTIL_GetModuleInstance(), MAKEINTRESOURCEA(TemplateOf(*box)), owner,
                                           MessageBoxDlgProc, reinterpret_cast<LPARAM>(box));
    if (owner != wanted && IsWindow(focus) && GetFocus() != focus) {
        SetFocus(focus);
    }
    return result == kFailed ? 0 : static_cast<int>(result);
}
