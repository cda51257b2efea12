// The system's side of input: where the keys and the cursor are, and which thread an event belongs to.
#include "user/input/input.h"

#include <algorithm>

#include "base/clock.h"
#include "gdi/surface/screen.h"
#include "user/input/above.h"
#include "user/model/input_state.h"
#include "user/model/thread.h"

namespace platform::user {
namespace {

Window* WindowBelow(Window* parent, POINT point) {
    for (Window* child = parent->firstChild; child != nullptr; child = child->next) {
        if ((child->style & WS_VISIBLE) == 0 || !PtInRect(&child->windowRect, point)) {
            continue;
        }
        const bool inside = (child->style & WS_MINIMIZE) == 0 && PtInRect(&child->clientRect, point);
        Window* deeper = inside ? WindowBelow(child, point) : nullptr;
        return deeper != nullptr ? deeper : child;
    }
    return nullptr;
}

bool AnyButton(const InputState& input) {
    return ((input.keys[VK_LBUTTON] | input.keys[VK_RBUTTON] | input.keys[VK_MBUTTON]) & 0x80) != 0;
}

// A thread that holds the mouse gets all of it as long as it is in the foreground or a button is down; else the thread
// of the window under the cursor does.
ThreadState* MouseThread(InputState& input, POINT point) {
    if (input.buttonThread != nullptr && input.buttonThread->capture != nullptr) {
        return input.buttonThread;
    }
    if (input.foreground != nullptr && input.foreground->capture != nullptr) {
        return input.foreground;
    }
    const Window* window = WindowAt(point);
    return window != nullptr ? window->thread : input.buttonThread;
}

DWORD BitOf(InputKind kind) {
    switch (kind) {
        case InputKind::Move:
            return QS_MOUSEMOVE;
        case InputKind::Key:
            return QS_KEY;
        default:
            return QS_MOUSEBUTTON;
    }
}

POINT OnScreen(POINT point) {
    const RECT screen = gdi::ScreenRect();
    return {std::clamp<LONG>(point.x, 0, screen.right - 1), std::clamp<LONG>(point.y, 0, screen.bottom - 1)};
}

void File(ThreadState* thread, const InputEvent& event) {
    if (event.kind == InputKind::Move && !thread->input.empty() && thread->input.back().kind == InputKind::Move) {
        InputEvent& last = thread->input.back();
        last.point = event.point;
        last.time = event.time;
    } else if (!MemoryAllows([&] { thread->input.push_back(event); })) {
        return;  // as a full hardware queue loses input
    }
    WakeThread(thread, BitOf(event.kind));
}

}  // namespace

Window* WindowAt(POINT point) {
    return WindowBelow(Desktop(), point);
}

void ApplyKey(BYTE (&keys)[256], BYTE key, bool down) {
    const auto apply = [&keys, down](BYTE which) {
        if (down && (keys[which] & 0x80) == 0) {
            keys[which] ^= 0x01;
        }
        keys[which] = static_cast<BYTE>(down ? keys[which] | 0x80 : keys[which] & ~0x80);
    };
    apply(key);
    const auto fold = [&](BYTE both, BYTE left, BYTE right) {
        if (key == left || key == right) {
            const bool held = ((keys[left] | keys[right]) & 0x80) != 0;
            if (held != ((keys[both] & 0x80) != 0)) {
                keys[both] ^= held ? 0x81 : 0x80;
            }
        }
    };
    fold(VK_SHIFT, VK_LSHIFT, VK_RSHIFT);
    fold(VK_CONTROL, VK_LCONTROL, VK_RCONTROL);
    fold(VK_MENU, VK_LMENU, VK_RMENU);
}

WPARAM MouseFlags(const BYTE (&keys)[256]) {
    WPARAM flags = 0;
    flags |= (keys[VK_LBUTTON] & 0x80) != 0 ? MK_LBUTTON : 0;
    flags |= (keys[VK_RBUTTON] & 0x80) != 0 ? MK_RBUTTON : 0;
    flags |= (keys[VK_MBUTTON] & 0x80) != 0 ? MK_MBUTTON : 0;
    flags |= (keys[VK_SHIFT] & 0x80) != 0 ? MK_SHIFT : 0;
    flags |= (keys[VK_CONTROL] & 0x80) != 0 ? MK_CONTROL : 0;
    return flags;
}

void Inject(InputEvent event) {
    UserGuard guard(UserLock());
    InputState& input = Input();
    if (event.time == 0) {
        event.time = base::TickCount();
    }
    if (event.kind == InputKind::Move) {
        input.cursor = OnScreen(event.point);
    }
    event.point = input.cursor;
    event.number = ++input.lastNumber;
    ThreadState* thread = nullptr;
    if (event.kind == InputKind::Move || event.kind == InputKind::Button) {
        const bool first = event.kind == InputKind::Button && event.down && !AnyButton(input);
        thread = MouseThread(input, event.point);
        if (first) {
            input.buttonThread = thread;
        }
    } else {
        thread = input.foreground;
    }
    if (event.kind == InputKind::Button || event.kind == InputKind::Key) {
        ApplyKey(input.keys, event.code, event.down);
    }
    if (event.kind == InputKind::Button && !AnyButton(input)) {
        input.buttonThread = nullptr;
    }
    if (thread != nullptr) {
        File(thread, event);
    } else if (event.kind == InputKind::Move) {
        // Over the desktop nobody is asked for a cursor.
        ShowCursorShape(static_cast<unsigned>(reinterpret_cast<ULONG_PTR>(IDC_ARROW)));
    }
}

void InjectMouseMove(int x, int y) {
    Inject({.point = {x, y}});
}

void InjectMouseButton(int button, bool down) {
    static constexpr BYTE kButtons[] = {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON};
    if (button >= 0 && button <= 2) {
        Inject({.kind = InputKind::Button, .down = down, .code = kButtons[button]});
    }
}

void InjectMouseWheel(int delta) {
    Inject({.kind = InputKind::Wheel, .wheel = delta});
}

void InjectKey(unsigned virtualKey, unsigned scanCode, bool extended, bool down, unsigned unicode) {
    if (virtualKey != 0 && virtualKey <= 0xFF) {
        Inject({.kind = InputKind::Key,
                .down = down,
                .extended = extended,
                .code = static_cast<BYTE>(virtualKey),
                .scan = static_cast<WORD>(scanCode),
                .unicode = unicode});
    }
}

}  // namespace platform::user
