// Connects the screen and the input queues with the display that presents them.
#include "display/display.h"

#include <atomic>
#include <cstdlib>
#include <memory>
#include <vector>

#include "gdi/surface/screen.h"
#include "user/desktop/clipboard.h"
#include "user/desktop/panes.h"
#include "user/desktop/room.h"
#include "user/input/above.h"
#include "user/input/input.h"
#include "user/message/above.h"

namespace platform::user {
namespace {

std::atomic<display::Display*> presenter{nullptr};
std::atomic<unsigned> shape{static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(IDC_ARROW) & 0xFFFF)};

void WakePresenter() {
    if (display::Display* shown = presenter.load(std::memory_order_acquire)) {
        shown->Wake();
    }
}

// The close box of the window that shows the whole screen: as if the person had closed the window in front.
void CloseRequested(display::PaneId pane) {
    if (pane != 0) {
        CloseFromHost(pane);
        return;
    }
    HWND window = GetForegroundWindow();
    if (window == nullptr) {
        UserGuard guard(UserLock());
        for (const Window* each = Desktop()->firstChild; each != nullptr && window == nullptr; each = each->next) {
            if ((each->style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE) {
                window = each->handle;
            }
        }
    }
    if (window != nullptr) {
        PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
}

// Windows must not move while what they show is taken.
void LockPicture() {
    UserLock().lock();
    gdi::ScreenLock().lock();
}

void UnlockPicture() {
    gdi::ScreenLock().unlock();
    UserLock().unlock();
}

display::Picture ThePicture() {
    const gdi::ScreenView screen = gdi::Screen();
    return {screen.pixels, screen.width, screen.height, screen.stride};
}

void TakeDirtyBoxes(std::vector<display::Box>* boxes) {
    const gdi::Region dirty = gdi::TakeDirty();
    boxes->clear();
    for (const RECT& rect : dirty.Rects()) {
        boxes->push_back({rect.left, rect.top, rect.right, rect.bottom});
    }
}

constexpr display::Sink kSink = {InjectMouseMove,  InjectMouseButton, InjectMouseWheel, InjectKey, CloseRequested,
                                 ActivateFromHost, MinimiseFromHost,  PlaceFromHost,    ChangeRoom};
constexpr display::Source kSource = {LockPicture,    UnlockPicture, ThePicture,
                                     TakeDirtyBoxes, DescribeScene, DescribeIcon};

// The display has a thread of its own, which must be gone before the process tears down what it uses.
void EndDisplay() {
    gdi::SetDirtyHook(nullptr);
    const std::unique_ptr<display::Display> last(presenter.exchange(nullptr));
}

// A program that never shows a window needs no display, unless for the size of its screen.
bool AnythingShown() {
    UserGuard guard(UserLock());
    for (const Window* window = Desktop()->firstChild; window != nullptr; window = window->next) {
        if ((window->style & WS_VISIBLE) != 0) {
            return true;
        }
    }
    return false;
}

// @returns the display, once.
display::Display* StartDisplay(SIZE size) {
    static std::atomic<bool> started{false};
    if (started.exchange(true)) {
        return nullptr;
    }
    display::Display* shown = display::Create(kSink, kSource, size.cx, size.cy).release();
    if (shown == nullptr) {
        return nullptr;
    }
    presenter.store(shown, std::memory_order_release);
    std::atexit(EndDisplay);
    shown->SetCursorShape(shape.load());
    return shown;
}

// The screen is about to be made: on a host whose desktop it is, it is as large as that.
SIZE ChooseScreenSize(SIZE usual) {
    display::Room room;
    const display::Display* shown = display::DesktopIsScreen() ? StartDisplay(usual) : nullptr;
    if (shown == nullptr || !shown->FirstRoom(&room)) {
        return usual;
    }
    SetFirstRoom(room);
    return {room.width, room.height};
}

const bool choosing = [] {
    gdi::chooseScreenSize = ChooseScreenSize;
    return true;
}();

}  // namespace

void OpenDisplay() {
    static std::atomic<bool> awake{false};
    display::Display* shown = presenter.load(std::memory_order_acquire);
    if (awake.load(std::memory_order_relaxed)) {
        if (shown != nullptr && shown->Interactive() && SceneChanged()) {
            shown->Wake();
        }
        return;
    }
    // A display that was made for the screen's size sleeps until there is something to show: it asks for windows, which are
    // not there before the screen is.
    if (!AnythingShown()) {
        return;
    }
    if (shown == nullptr) {
        const RECT screen = gdi::ScreenRect();
        shown = StartDisplay({screen.right, screen.bottom});
    }
    if (shown != nullptr && !awake.exchange(true)) {
        gdi::SetDirtyHook(WakePresenter);
        shown->Wake();
    }
}

void ShowCursorShape(unsigned idc) {
    shape.store(idc);
    if (display::Display* shown = Presenter()) {
        shown->SetCursorShape(idc);
    }
}

display::Display* Presenter() {
    return presenter.load(std::memory_order_acquire);
}

}  // namespace platform::user
