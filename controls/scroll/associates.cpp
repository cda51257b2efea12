// The arrow keys of associates: one procedure for all of them, and a table of the procedures that it stands in front
// of.
#include "controls/scroll/bar.h"

#include <algorithm>
#include <array>

namespace scroll {

namespace {

struct Slot {
    HWND window;  ///< null in a free slot
    WNDPROC former;
};

// Unguarded: bars and associates live on the one user-interface thread.
std::array<Slot, 80> g_slots;

LRESULT CALLBACK AssociateProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

bool IsHooked(HWND window) {
    return GetWindowLongPtrA(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&AssociateProcedure);
}

// A second bar on one associate saves this very procedure, which leads nowhere: such a slot is passed over.
WNDPROC FormerProcedure(HWND window) {
    auto const slot = std::find_if(g_slots.begin(), g_slots.end(), [=](Slot const& candidate) {
        return candidate.window == window && candidate.former != AssociateProcedure;
    });
    return slot == g_slots.end() ? nullptr : slot->former;
}

LRESULT Forward(WNDPROC former, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return former ? CallWindowProcA(former, window, message, wParam, lParam)
                  : DefWindowProcA(window, message, wParam, lParam);
}

void ClearSlots(HWND window) {
    for (Slot& slot : g_slots) {
        if (slot.window == window) {
            slot = {};
        }
    }
}

// The hook ends before the message goes on, so the associate's own procedure never sees it: the message ends in
// DefWindowProcA. Applications rely on the order. Only an associate that somebody subclassed after the bar did keeps
// its chain.
LRESULT Unhook(HWND window, WPARAM wParam, LPARAM lParam) {
    WNDPROC former = FormerProcedure(window);
    if (former && IsHooked(window)) {
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
        former = nullptr;
    }
    ClearSlots(window);
    return Forward(former, window, WM_NCDESTROY, wParam, lParam);
}

LRESULT CALLBACK AssociateProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
            if (wParam == VK_UP || wParam == VK_DOWN) {
                SendMessageA(window, WM_VSCROLL, wParam == VK_DOWN ? 1 : 0, reinterpret_cast<LPARAM>(window));
                return 0;
            }
            break;
        case WM_NCDESTROY:
            return Unhook(window, wParam, lParam);
        default:
            break;
    }
    return Forward(FormerProcedure(window), window, message, wParam, lParam);
}

}  // namespace

void HookArrowKeys(HWND associate) {
    auto const slot =
        std::find_if(g_slots.begin(), g_slots.end(), [](Slot const& candidate) { return !candidate.window; });
    if (slot == g_slots.end()) {
        return;
    }
    slot->window = associate;
    slot->former = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(associate, GWLP_WNDPROC));
    SetWindowLongPtrA(associate, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AssociateProcedure));
}

}  // namespace scroll
