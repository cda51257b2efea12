// The steps of a paint: WM_NCPAINT where the frame is due, WM_ERASEBKGND where the background is, WM_PAINT.
#include <new>
#include <utility>
#include <vector>

#include "base/handle.h"
#include "user/message/above.h"
#include "user/message/queue.h"
#include "user/painting/above.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

/// Children lose what their parent paints over.
void InvalidateOverpainted(Window* parent, const gdi::Region& painted) {
    if ((parent->style & WS_CLIPCHILDREN) != 0 || painted.Empty()) {
        return;
    }
    for (Window* child = parent->firstChild; child != nullptr; child = child->next) {
        InvalidateTree(child, painted);
    }
}

/// Lists the children that have something to paint. What is left out for want of memory gets its WM_PAINT from the queue.
void ListChildren(const Window* window, std::vector<HWND>& list) try {
    for (const Window* child = window->firstChild; child != nullptr; child = child->next) {
        if (SubtreeNeedsPaint(child)) {
            list.push_back(child->handle);
        }
    }
} catch (const std::bad_alloc&) {
    return;
}

}  // namespace

void SendFramePaint(HWND handle) {
    {
        UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (window == nullptr || !window->frameNeeded) {
            return;
        }
        window->frameNeeded = false;
        const gdi::Region due = ScreenUpdate(window);
        RECT client = window->clientRect;
        gdi::Region frame = Visible(window, (StyleFlags(window) & ~kVisibleClipChildren) | kVisibleWhole);
        frame.Subtract(client);
        OffsetRect(&client, -window->windowRect.left, -window->windowRect.top);
        window->update.Intersect(client);

        frame.Intersect(due);
        if (frame.Empty()) {
            return;
        }
    }
    // 1 stands for all of the frame.
    SendMessageA(handle, WM_NCPAINT, 1, 0);
}

void SendErase(HWND handle) {
    HDC context = nullptr;
    {
        UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (window == nullptr || !window->eraseNeeded) {
            return;
        }
        gdi::Region region = ScreenUpdate(window);
        region.Intersect(window->clientRect);
        if (region.Empty()) {
            return;
        }
        context = AcquireContext(window, false, &region, false);
        if (context == nullptr) {
            return;
        }
        window->eraseNeeded = false;
    }
    const bool erased = SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0) != 0;
    ReleaseContext(context);
    if (!erased) {
        UserGuard guard(UserLock());
        if (Window* window = PeekWindow(handle); window != nullptr) {
            window->eraseNeeded = true;
        }
    }
}

LRESULT CallPaint(HWND handle, WPARAM wParam, LPARAM lParam) {
    WNDPROC procedure = nullptr;
    bool outer = false;
    {
        UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (window == nullptr) {
            return 0;
        }
        procedure = window->procedure;
        outer = std::exchange(window->paintRuns, true);
    }
    const LRESULT result = CallProcedure(procedure, handle, WM_PAINT, wParam, lParam);
    UserGuard guard(UserLock());
    Window* window = PeekWindow(handle);
    if (window == nullptr) {
        return result;
    }
    window->paintRuns = window->paintRuns && outer;
    if (!window->paintRuns && NeedsPaint(window) && window->thread != nullptr) {
        // The queue may have passed it over meanwhile.
        window->thread->paintWindows = 1;
        WakeThread(window->thread, QS_PAINT);
    }
    return result;
}

void UpdateTree(HWND handle, bool allChildren, bool eraseOnly) {
    bool due = false;
    bool own = false;
    {
        UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        if (window == nullptr || !IsShown(window)) {
            return;
        }
        due = NeedsPaint(window) && PruneUpdate(window);
        own = window->thread == CurrentThread();
    }
    if (due) {
        if (eraseOnly) {
            SendFramePaint(handle);
            SendErase(handle);
        } else if (own) {
            CallPaint(handle, 0, 0);
        } else {
            SendMessageA(handle, WM_PAINT, 0, 0);
        }
    }
    std::vector<HWND> list;
    {
        UserGuard guard(UserLock());
        const Window* window = PeekWindow(handle);
        if (window == nullptr || (window->style & WS_MINIMIZE) != 0 ||
            (!allChildren && (window->style & WS_CLIPCHILDREN) != 0)) {
            return;
        }
        ListChildren(window, list);
    }
    for (HWND child : list) {
        UpdateTree(child, allChildren, eraseOnly);
    }
}

}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;
namespace gdi = platform::gdi;

HDC WINAPI BeginPaint(HWND handle, LPPAINTSTRUCT paint) {
    if (paint == nullptr) {
        return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
    *paint = PAINTSTRUCT{};
    bool frame = false;
    {
        UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            return nullptr;
        }
        frame = window->frameNeeded;
    }
    SuspendCaret(handle);
    if (frame) {
        SendFramePaint(handle);
    }
    bool erase = false;
    HDC context = nullptr;
    {
        UserGuard guard(UserLock());
        Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            ResumeCaret(handle);
            return nullptr;
        }
        gdi::Region region = std::move(window->update);
        window->update.Clear();
        window->paintRuns = false;
        region.Offset(window->windowRect.left, window->windowRect.top);
        region.Intersect(Visible(window, StyleFlags(window)));
        InvalidateOverpainted(window, region);
        erase = window->eraseNeeded && !region.Empty();
        window->eraseNeeded = false;
        context = AcquireContext(window, false, &region, true);
        if (context == nullptr) {
            // Kept for another try, when there is memory again.
            MarkInvalid(window, std::move(region), erase, false);
            ResumeCaret(handle);
            return nullptr;
        }
        if (!region.Empty()) {
            paint->rcPaint = region.Bounds();
            OffsetRect(&paint->rcPaint, -window->clientRect.left, -window->clientRect.top);
        }
    }
    paint->hdc = context;
    if (erase && SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0) == 0) {
        paint->fErase = TRUE;
        UserGuard guard(UserLock());
        if (Window* window = PeekWindow(handle); window != nullptr) {
            window->eraseNeeded = true;
        }
    }
    return context;
}

BOOL WINAPI EndPaint(HWND handle, const PAINTSTRUCT* paint) {
    if (paint == nullptr) {
        return FALSE;
    }
    bool painting = false;
    if (ReleaseContext(paint->hdc, &painting) && painting) {
        ResumeCaret(handle);
        OpenDisplay();
    }
    return TRUE;
}
