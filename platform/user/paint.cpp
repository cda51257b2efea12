// The steps of a paint: WM_NCPAINT where the frame is due, WM_ERASEBKGND where the background is, WM_PAINT.
#include "user/paint_list.h"

#include "base/handle.h"
#include "user/painting.h"
#include "user/thread.h"

namespace platform::user {
namespace {

Window* Peek(HWND handle) {
    return base::Find<Window>(handle, base::HandleKind::Window);
}

/// Children lose what their parent paints over.
void InvalidateOverpainted(Window* parent, const gdi::Region& painted) {
    if ((parent->style & WS_CLIPCHILDREN) != 0 || painted.Empty()) {
        return;
    }
    for (Window* child = parent->firstChild; child != nullptr; child = child->next) {
        InvalidateTree(child, painted);
    }
}

bool SubtreeNeedsPaint(const Window* window) {
    if ((window->style & WS_VISIBLE) == 0) {
        return false;
    }
    if (NeedsPaint(window)) {
        return true;
    }
    for (const Window* child = window->firstChild; child != nullptr; child = child->next) {
        if (SubtreeNeedsPaint(child)) {
            return true;
        }
    }
    return false;
}

/// Lists the children that have something to paint; those that show what is beneath them come last.
void ListChildren(const Window* window, PaintList& list) {
    for (const bool transparent : {false, true}) {
        for (const Window* child = window->firstChild; child != nullptr; child = child->next) {
            if (((child->exStyle & WS_EX_TRANSPARENT) != 0) == transparent && SubtreeNeedsPaint(child)) {
                list.Add(child->handle);
            }
        }
    }
}

}  // namespace

void SendFramePaint(HWND handle) {
    {
        UserGuard guard(UserLock());
        Window* window = Peek(handle);
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
        Window* window = Peek(handle);
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
        if (Window* window = Peek(handle); window != nullptr) {
            window->eraseNeeded = true;
        }
    }
}

void UpdateTree(HWND handle, UINT children, bool eraseOnly) {
    bool due = false;
    {
        UserGuard guard(UserLock());
        Window* window = Peek(handle);
        if (window == nullptr || !IsShown(window)) {
            return;
        }
        due = NeedsPaint(window) && PruneUpdate(window);
        if (due && !eraseOnly) {
            TakePaintRequest(window);
        }
    }
    if (due) {
        if (eraseOnly) {
            SendFramePaint(handle);
            SendErase(handle);
        } else {
            SendMessageA(handle, WM_PAINT, 0, 0);
        }
    }
    PaintList list;
    {
        UserGuard guard(UserLock());
        const Window* window = Peek(handle);
        if (window == nullptr || window->firstChild == nullptr || (children & RDW_NOCHILDREN) != 0 ||
            (window->style & WS_MINIMIZE) != 0) {
            return;
        }
        if ((children & RDW_ALLCHILDREN) == 0 && (window->style & WS_CLIPCHILDREN) != 0) {
            return;
        }
        ListChildren(window, list);
    }
    for (HWND child : list) {
        UpdateTree(child, children, eraseOnly);
    }
}

}  // namespace platform::user

using namespace platform::user;
namespace base = platform::base;
namespace gdi = platform::gdi;

HDC WINAPI BeginPaint(HWND handle, LPPAINTSTRUCT paint) {
    if (paint == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
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
        region.Offset(window->windowRect.left, window->windowRect.top);
        region.Intersect(Visible(window, StyleFlags(window)));
        InvalidateOverpainted(window, region);
        TakePaintRequest(window);
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
        if (Window* window = Peek(handle); window != nullptr) {
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
        PresentSoon();
    }
    return TRUE;
}
