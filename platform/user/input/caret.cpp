// The caret: a block of inverted pixels that blinks where text goes in. A queue has one.
//
// What was inverted is remembered with its exact area, so that taking the caret away restores those pixels even when
// the window has changed since. Whoever draws over it or moves its window suspends it first.
#include <algorithm>
#include <new>
#include <vector>

#include "base/clock.h"
#include "gdi/surface/screen.h"
#include "user/input/input.h"
#include "user/message/above.h"
#include "user/model/thread.h"
#include "user/painting/above.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

constexpr UINT kBlinkTime = 530;
constexpr std::uint32_t kAllInk = 0x00FFFFFF;
const HBITMAP kGreyCaret = reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(1));

void Combine(const ThreadState* thread) {
    const auto& caret = thread->caret;
    gdi::ScreenGuard guard(gdi::ScreenLock());
    const gdi::ScreenView screen = gdi::Screen();
    for (const RECT& drawn : caret.drawnArea.Rects()) {
        // The screen may have become smaller since.
        const RECT rect = gdi::Cut(drawn, gdi::ScreenRect());
        for (LONG y = rect.top; y < rect.bottom; ++y) {
            const std::size_t row = static_cast<std::size_t>(y - caret.drawnOrigin.y) * caret.width;
            for (LONG x = rect.left; x < rect.right; ++x) {
                screen.pixels[static_cast<std::ptrdiff_t>(y) * screen.stride + x] ^=
                    caret.pattern[row + static_cast<std::size_t>(x - caret.drawnOrigin.x)];
            }
        }
        gdi::MarkDirty(rect);
    }
}

void Erase(ThreadState* thread) {
    if (thread->caret.drawn) {
        Combine(thread);
        thread->caret.drawn = false;
    }
}

bool IsSuspended(const ThreadState* thread, const Window* window) {
    return std::any_of(thread->caretSuspensions.begin(), thread->caretSuspensions.end(), [window](HWND handle) {
        const Window* suspended = PeekWindow(handle);
        return suspended != nullptr && (suspended == window || IsAncestor(suspended, window));
    });
}

void Draw(ThreadState* thread) {
    auto& caret = thread->caret;
    Window* window = caret.window != nullptr ? PeekWindow(caret.window) : nullptr;
    if (caret.drawn || window == nullptr || caret.hideCount > 0 || !caret.blinkOn || IsSuspended(thread, window)) {
        return;
    }
    const POINT origin{window->clientRect.left + caret.position.x, window->clientRect.top + caret.position.y};
    gdi::Region area = Visible(window, StyleFlags(window) | kVisibleClipChildren);
    area.Intersect(RECT{origin.x, origin.y, origin.x + caret.width, origin.y + caret.height});
    area.Intersect(gdi::ScreenRect());
    if (area.Empty()) {
        return;
    }
    caret.drawnArea = area;
    caret.drawnOrigin = origin;
    Combine(thread);
    caret.drawn = true;
}

// Starts a new blink with the caret visible.
void Restart(ThreadState* thread) {
    thread->caret.blinkOn = true;
    thread->caret.due = base::TickCount64() + kBlinkTime;
    Draw(thread);
}

void Discard(ThreadState* thread) {
    Erase(thread);
    thread->caret = {};
}

// What each pixel of a bitmap inverts. A monochrome bitmap inverts where its bits are 1.
std::vector<std::uint32_t> PatternOf(HBITMAP bitmap, const BITMAP& shape) {
    BITMAPINFO info{{sizeof info.bmiHeader, shape.bmWidth, -shape.bmHeight, 1, 32}};
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(shape.bmWidth) *
                                      static_cast<std::size_t>(shape.bmHeight));
    const HDC context = CreateCompatibleDC(nullptr);
    const int rows =
        GetDIBits(context, bitmap, 0, static_cast<UINT>(shape.bmHeight), pixels.data(), &info, DIB_RGB_COLORS);
    DeleteDC(context);
    if (rows == 0) {
        pixels.clear();
    }
    for (std::uint32_t& pixel : pixels) {
        pixel &= kAllInk;
    }
    return pixels;
}

std::vector<std::uint32_t> BlockPattern(int width, int height, bool grey) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kAllInk);
    for (std::size_t i = 0; grey && i < pixels.size(); ++i) {
        const std::size_t x = i % static_cast<std::size_t>(width);
        const std::size_t y = i / static_cast<std::size_t>(width);
        if ((x + y) % 2 != 0) {
            pixels[i] = 0;
        }
    }
    return pixels;
}

// Does something to the calling thread's caret, if it belongs to the window (null: to any window of the thread).
template <class Action>
BOOL ChangeCaret(HWND window, const Action& action) {
    UserGuard guard(UserLock());
    ThreadState* self = CurrentThread();
    if (self == nullptr || self->caret.window == nullptr || (window != nullptr && self->caret.window != window)) {
        return Fail(ERROR_ACCESS_DENIED, FALSE);
    }
    action(self);
    return TRUE;
}

}  // namespace

std::uint64_t CheckCaret(ThreadState* self) {
    auto& caret = self->caret;
    if (caret.window == nullptr || caret.hideCount > 0) {
        return UINT64_MAX;
    }
    if (base::TickCount64() >= caret.due) {
        caret.due = base::TickCount64() + kBlinkTime;
        caret.blinkOn = !caret.blinkOn;
        if (caret.blinkOn) {
            Draw(self);
        } else {
            Erase(self);
        }
    }
    return caret.due;
}

void ForgetCaret(Window* window) {
    if (window->thread != nullptr && window->thread->caret.window == window->handle) {
        Discard(window->thread);
    }
}

void SuspendCaret(HWND window) {
    UserGuard guard(UserLock());
    const Window* target = PeekWindow(window);
    if (target == nullptr || target->thread == nullptr) {
        return;
    }
    ThreadState* thread = target->thread;
    if (!MemoryAllows([=] { thread->caretSuspensions.push_back(window); })) {
        return;
    }
    const Window* owner = thread->caret.window != nullptr ? PeekWindow(thread->caret.window) : nullptr;
    if (owner != nullptr && IsSuspended(thread, owner)) {
        Erase(thread);
    }
}

void ResumeCaret(HWND window) {
    UserGuard guard(UserLock());
    const Window* target = PeekWindow(window);
    if (target == nullptr || target->thread == nullptr) {
        return;
    }
    auto& suspensions = target->thread->caretSuspensions;
    const auto last = std::find(suspensions.rbegin(), suspensions.rend(), window);
    if (last != suspensions.rend()) {
        suspensions.erase(std::next(last).base());
    }
    Draw(target->thread);
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI CreateCaret(HWND window, HBITMAP bitmap, int width, int height) {
    ThreadState* self = CurrentThread();
    UserGuard guard(UserLock());
    if (self == nullptr || FindOwnWindow(window) == nullptr) {
        return FALSE;
    }
    try {
        std::vector<std::uint32_t> pattern;
        if (bitmap == nullptr || bitmap == kGreyCaret) {
            width = width != 0 ? width : GetSystemMetrics(SM_CXBORDER);
            height = height != 0 ? height : GetSystemMetrics(SM_CYBORDER);
            if (width < 0 || height < 0) {
                return Fail(ERROR_INVALID_PARAMETER, FALSE);
            }
            pattern = BlockPattern(width, height, bitmap == kGreyCaret);
        } else {
            BITMAP shape{};
            if (GetObjectA(bitmap, sizeof shape, &shape) != sizeof shape) {
                return Fail(ERROR_INVALID_HANDLE, FALSE);
            }
            width = shape.bmWidth;
            height = shape.bmHeight;
            pattern = PatternOf(bitmap, shape);
            if (pattern.empty()) {
                return FALSE;
            }
        }
        Discard(self);
        auto& caret = self->caret;
        caret.window = window;
        caret.width = width;
        caret.height = height;
        caret.pattern = std::move(pattern);
        return TRUE;
    } catch (const std::bad_alloc&) {
        return Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
    }
}

BOOL WINAPI DestroyCaret(VOID) {
    return ChangeCaret(nullptr, Discard);
}

BOOL WINAPI ShowCaret(HWND window) {
    return ChangeCaret(window, [](ThreadState* self) {
        if (self->caret.hideCount > 0 && --self->caret.hideCount == 0) {
            Restart(self);
        }
    });
}

BOOL WINAPI HideCaret(HWND window) {
    return ChangeCaret(window, [](ThreadState* self) {
        ++self->caret.hideCount;
        Erase(self);
    });
}

BOOL WINAPI SetCaretPos(int x, int y) {
    return ChangeCaret(nullptr, [=](ThreadState* self) {
        if (self->caret.position.x != x || self->caret.position.y != y) {
            Erase(self);
            self->caret.position = {x, y};
            Restart(self);
        }
    });
}

BOOL WINAPI GetCaretPos(LPPOINT position) {
    const ThreadState* self = CurrentThread();
    if (self == nullptr || position == nullptr) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    *position = self->caret.position;
    return TRUE;
}
