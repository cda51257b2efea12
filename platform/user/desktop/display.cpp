// Connects the screen and the input queues with the display that presents them.
#include "display/display.h"

#include <atomic>
#include <cstdlib>
#include <memory>

#include "gdi/surface/screen.h"
#include "user/desktop/clipboard.h"
#include "user/input/above.h"
#include "user/input/input.h"
#include "user/message/above.h"

namespace platform::user {
namespace {

std::atomic<display::Display*> presenter{nullptr};
std::atomic<unsigned> shape{reinterpret_cast<std::uintptr_t>(IDC_ARROW) & 0xFFFF};

void WakePresenter() {
    if (display::Display* shown = presenter.load(std::memory_order_acquire)) {
        shown->Wake();
    }
}

// The frame's close box on the host: as if the person had closed the window in front.
void CloseRequested() {
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

void LockPicture() {
    gdi::ScreenLock().lock();
}

void UnlockPicture() {
    gdi::ScreenLock().unlock();
}

display::Picture ThePicture() {
    const gdi::ScreenView screen = gdi::Screen();
    return {screen.pixels, screen.width, screen.height, screen.stride};
}

bool TakeDirtyBox(int* left, int* top, int* right, int* bottom) {
    const gdi::Region dirty = gdi::TakeDirty();
    if (dirty.Empty()) {
        return false;
    }
    const RECT box = dirty.Bounds();
    *left = box.left;
    *top = box.top;
    *right = box.right;
    *bottom = box.bottom;
    return true;
}

constexpr display::Sink kSink = {InjectMouseMove, InjectMouseButton, InjectMouseWheel, InjectKey, CloseRequested};
constexpr display::Source kSource = {LockPicture, UnlockPicture, ThePicture, TakeDirtyBox};

// The display has a thread of its own, which must be gone before the process tears down what it uses.
void EndDisplay() {
    gdi::SetDirtyHook(nullptr);
    const std::unique_ptr<display::Display> last(presenter.exchange(nullptr));
}

// A program that never shows a window needs no display.
bool AnythingShown() {
    UserGuard guard(UserLock());
    for (const Window* window = Desktop()->firstChild; window != nullptr; window = window->next) {
        if ((window->style & WS_VISIBLE) != 0) {
            return true;
        }
    }
    return false;
}

void StartDisplay() {
    static std::atomic<bool> started{false};
    if (started.load(std::memory_order_relaxed) || !AnythingShown() || started.exchange(true)) {
        return;
    }
    const RECT screen = gdi::ScreenRect();
    display::Display* shown = display::Create(kSink, kSource, screen.right, screen.bottom).release();
    if (shown == nullptr) {
        return;
    }
    presenter.store(shown, std::memory_order_release);
    gdi::SetDirtyHook(WakePresenter);
    std::atexit(EndDisplay);
    shown->SetCursorShape(shape.load());
    shown->Wake();
}

}  // namespace

void OpenDisplay() {
    if (presenter.load(std::memory_order_relaxed) == nullptr) {
        StartDisplay();
    }
}

void ShowCursorShape(unsigned idc) {
    shape.store(idc);
    if (display::Display* shown = presenter.load(std::memory_order_acquire)) {
        shown->SetCursorShape(idc);
    }
}

bool HasHostClipboard() {
    const display::Display* shown = presenter.load(std::memory_order_acquire);
    return shown != nullptr && shown->Interactive();
}

bool ReadHostClipboard(std::string* utf8) {
    display::Display* shown = presenter.load(std::memory_order_acquire);
    return shown != nullptr && shown->ReadClipboard(utf8);
}

void WriteHostClipboard(const std::string& utf8) {
    if (display::Display* shown = presenter.load(std::memory_order_acquire)) {
        shown->WriteClipboard(utf8);
    }
}

bool ReadHostSelection(std::string* utf8) {
    display::Display* shown = presenter.load(std::memory_order_acquire);
    return shown != nullptr && shown->ReadSelection(utf8);
}

void WriteHostSelection(const std::string& utf8) {
    if (display::Display* shown = presenter.load(std::memory_order_acquire)) {
        shown->WriteSelection(utf8);
    }
}

}  // namespace platform::user
