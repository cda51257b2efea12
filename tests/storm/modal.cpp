// Boxes and dialogs that wait in loops of their own, one in the other, and how they end.
#include "tests/storm/ids.h"
#include "tests/storm/storm.h"

#include <cvutil32.h>

namespace storm {

namespace {

constexpr int kDeepest = 3;
int g_depth = 0;

HWND Owner() {
    return Die().OneIn(6) ? nullptr : Die().OneIn(5) ? StaleWindow() : Die().OneIn(2) ? TopWindow() : Dialog();
}

void SystemBox() {
    Nesting const nesting;
    if (nesting.allowed()) {
        UINT const type = static_cast<UINT>(Die().Below(6) | Die().Below(5) << 4 | Die().Below(3) << 8);
        Note(" %X", type);
        MessageBoxA(Owner(), AnyText(), AnyText(), type);
    }
}

void ExtendedBox() {
    Nesting const nesting;
    if (!nesting.allowed()) {
        return;
    }
    POINT const place = {Die().From(-50, 900), Die().From(-50, 700)};
    KVMB_MESSAGEBOX box = {};
    box.owner = Owner();
    box.title = Die().OneIn(4) ? nullptr : AnyText();
    box.text = Die().OneIn(6) ? nullptr : AnyText();
    box.icon = Die().OneIn(2) ? LoadIconA(nullptr, IDI_QUESTION) : nullptr;
    box.flags =
        static_cast<WORD>(Die().Below(2) * KVMB_SMALL | Die().Below(2) * KVMB_LARGE | Die().Below(2) * KVMB_TASKMODAL);
    box.position = Die().OneIn(3) ? &place : nullptr;
    box.defaultButton = static_cast<WORD>(Die().Below(10));
    box.buttonCount = static_cast<WORD>(Die().From(0, KVMB_MAXBUTTONS));
    for (int i = 0; i < box.buttonCount; ++i) {
        box.buttons[i].kind = static_cast<DWORD>(Die().Below(4));
        box.buttons[i].label = Die().OneIn(3) ? AnyText() : nullptr;
        box.buttons[i].id = Die().From(1, 9);
    }
    Note(" %u buttons, flags %X", box.buttonCount, box.flags);
    KVMB_MessageBoxExtended(&box);
}

void ErrorBox() {
    Nesting const nesting;
    if (nesting.allowed()) {
        static DWORD const icons[] = {0, MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK};
        HINSTANCE const own = GetModuleHandleA(nullptr);
        KVMB_MessageBoxError(Owner(), "Storm", nullptr, Die().OneIn(3) ? MAKEINTRESOURCEA(101) : AnyText(), own,
                             Die().OneIn(2) ? nullptr : AnyText(), nullptr, Die().OneIn(2) ? nullptr : AnyText(),
                             nullptr, nullptr, 0, static_cast<DWORD>(Die().Below(4)) | Die().Of(icons));
    }
}

void About() {
    Nesting const nesting;
    if (nesting.allowed()) {
        ABOUT_DisplayAboutBox(Owner(), GetModuleHandleA(nullptr), Die().OneIn(2) ? nullptr : AnyText(), AnyText(),
                              Die().OneIn(2) ? MAKEINTRESOURCEA(100) : nullptr, AnyText(), nullptr);
    }
}

void Browse() {
    Nesting const nesting;
    if (nesting.allowed()) {
        char buffer[200];
        DWORD const flags = static_cast<DWORD>(Die().Below(4));
        UINT const length = static_cast<UINT>(Die().OneIn(3) ? Die().From(1, 20) : static_cast<int>(sizeof buffer));
        Note(" %lu", static_cast<unsigned long>(flags));
        BROWSE_DisplayBrowseDialog(Owner(), Die().OneIn(2) ? "C:\\alpha" : nullptr, Die().OneIn(2) ? "a.txt" : nullptr,
                                   buffer, length, flags);
    }
}

void Nested() {
    Nesting const nesting;
    if (nesting.allowed()) {
        DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_NESTED), Owner(), NestedProcedure, 0);
    }
}

BOOL CALLBACK TakeDialog(HWND window, LPARAM found) {
    if (window != Dialog() && Is(window, "#32770")) {
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

/// Whatever is up ends, by one of the ways there are.
void EndOne() {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeDialog, reinterpret_cast<LPARAM>(&box));
    if (!box) {
        return;
    }
    int const way = Die().Below(7);
    Note(" way %d", way);
    switch (way) {
        case 0:
            EndDialog(box, Die().Below(9));
            break;
        case 1:
            PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
            break;
        case 2:
            PostMessageA(box, WM_CLOSE, 0, 0);
            break;
        case 3:
            SendMessageA(box, WM_COMMAND, static_cast<WPARAM>(Die().From(1, 9)), 0);
            break;
        case 4:
            SendMessageA(box, WM_SYSCOMMAND, SC_CLOSE, 0);
            break;
        case 5:
            if (HWND const button = GetDlgItem(box, Die().From(1, 9))) {
                SendMessageA(button, BM_CLICK, 0, 0);
            }
            break;
        default:
            End(box);
            break;
    }
}

void Quit() {
    if (Nesting::Depth() > 0 && Die().OneIn(20)) {
        Note(" now");
        PostQuitMessage(3);
    }
}

Event const kModalEvents[] = {
    {"message box", 1, SystemBox}, {"extended box", 2, ExtendedBox},
    {"error box", 1, ErrorBox},    {"about", 1, About},
    {"browse", 1, Browse},         {"nested", 1, Nested},
    {"end of a box", 30, EndOne},  {"quit", 1, Quit},
};

}  // namespace

Nesting::Nesting() : allowed_(g_depth < kDeepest) {
    ++g_depth;
}

Nesting::~Nesting() {
    --g_depth;
}

int Nesting::Depth() {
    return g_depth;
}

std::span<Event const> ModalEvents() {
    return kModalEvents;
}

}  // namespace storm
