// Cooking keyboard input: the message that a key makes depends on Alt, on what has the focus and on what was down
// before.
#include <algorithm>

#include "user/input/above.h"
#include "user/input/input.h"
#include "user/message/above.h"
#include "user/message/queue.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

bool IsDown(const BYTE (&keys)[256], BYTE key) {
    return (keys[key] & 0x80) != 0;
}

void RunHelpKey(const SentMessage& errand) {
    POINT pointer{};
    GetCursorPos(&pointer);
    if (PeekWindow(errand.window) != nullptr) {
        AskForHelp(errand.window, pointer);
    }
}

/// @returns the key that stands for both sides of a modifier; other keys as they are.
BYTE GenericKey(BYTE key) {
    switch (key) {
        case VK_LSHIFT:
        case VK_RSHIFT:
            return VK_SHIFT;
        case VK_LCONTROL:
        case VK_RCONTROL:
            return VK_CONTROL;
        case VK_LMENU:
        case VK_RMENU:
            return VK_MENU;
        default:
            return key;
    }
}

}  // namespace

Cooked CookKey(ThreadState* self, const InputEvent& event, bool (*wanted)(const MSG&, const void*), const void* filter,
               bool remove, MSG* message) {
    BYTE keys[256];
    std::copy(std::begin(self->keyState), std::end(self->keyState), keys);
    const bool wasDown = IsDown(keys, event.code);
    const BYTE key = GenericKey(event.code);
    bool altAlone = self->altAlone;
    ApplyKey(keys, event.code, event.down);
    if (event.down) {
        altAlone = key == VK_MENU && (altAlone || !wasDown);
    }

    const bool control = IsDown(keys, VK_CONTROL);
    bool system = key == VK_F10 || (IsDown(keys, VK_MENU) && key != VK_MENU);
    if (key == VK_MENU) {
        // Releasing Alt after a combination is an ordinary release, so that it does not open the menu.
        system = event.down || altAlone;
    }
    system = system && !control;
    const HWND window = self->focus != nullptr ? self->focus : self->active;
    // Without a focus keys go to the active window, marked so that it does not take them for text.
    system = system || self->focus == nullptr;

    DWORD data = 1 | static_cast<DWORD>(event.scan & 0xFF) << 16;
    data |= event.extended ? 0x01000000u : 0;
    data |= IsDown(keys, VK_MENU) ? 0x20000000u : 0;
    data |= wasDown || !event.down ? 0x40000000u : 0;
    data |= event.down ? 0 : 0x80000000u;
    const UINT base = system ? WM_SYSKEYDOWN : WM_KEYDOWN;
    *message = {window,     event.down ? base : base + 1,
                key,        static_cast<LPARAM>(static_cast<LONG>(data)),
                event.time, Input().cursor};
    const bool deliver = window != nullptr;
    if (deliver && !wanted(*message, filter)) {
        return Cooked::Skip;
    }
    if (remove || !deliver) {
        std::copy(std::begin(keys), std::end(keys), self->keyState);
        self->altAlone = altAlone && (key != VK_MENU || event.down);
        self->lastKey = {key, message->lParam, event.unicode};
    }
    if (remove && deliver && event.down && !wasDown && key == VK_F1 && !IsDown(keys, VK_MENU) && !control &&
        !IsDown(keys, VK_SHIFT)) {
        // The key asks for help whatever the window does with it, and after it has heard of it.
        EnqueueErrand(self, RunHelpKey, window);
    }
    return deliver ? Cooked::Message : Cooked::Dropped;
}

}  // namespace platform::user
