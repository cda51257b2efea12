// Changing a window's place, size, order and visibility, in the documented steps: WM_WINDOWPOSCHANGING, the new client area,
// the change itself with the pixels that stay good, what was uncovered and what is new, WM_WINDOWPOSCHANGED.
#include "user/window/position.h"

#include <algorithm>

#include "gdi/surface/screen.h"
#include "user/input/input.h"
#include "user/model/thread.h"
#include "user/painting/above.h"
#include "user/painting/painting.h"
#include "user/window/above.h"

namespace platform::user {
namespace {

bool SameSize(const RECT& a, const RECT& b) {
    return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

RECT Moved(const RECT& rect, int dx, int dy) {
    return RECT{rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

LONG Clamp(LONG value) {
    return std::clamp<LONG>(value, -0x8000, 0x7fff);
}

/// Leaves only those flags away that the change would make true anyway.
void Reduce(const Window* window, WINDOWPOS& position) {
    const RECT& rect = window->windowRect;
    const POINT origin = ParentOrigin(window);
    position.cx = std::clamp(position.cx, 0, 0x7fff);
    position.cy = std::clamp(position.cy, 0, 0x7fff);
    position.x = Clamp(position.x);
    position.y = Clamp(position.y);
    UINT& flags = position.flags;
    if ((flags & SWP_NOMOVE) != 0 || (position.x == rect.left - origin.x && position.y == rect.top - origin.y)) {
        flags |= SWP_NOMOVE;
        position.x = rect.left - origin.x;
        position.y = rect.top - origin.y;
    }
    if ((flags & SWP_NOSIZE) != 0 || (position.cx == rect.right - rect.left && position.cy == rect.bottom - rect.top)) {
        flags |= SWP_NOSIZE;
        position.cx = rect.right - rect.left;
        position.cy = rect.bottom - rect.top;
    }
    flags &= ~static_cast<UINT>((window->style & WS_VISIBLE) != 0 ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    const bool topLevel = window->parent == Desktop();
    const bool appears =
        (((window->style & WS_VISIBLE) != 0) || (flags & SWP_SHOWWINDOW) != 0) && (flags & SWP_HIDEWINDOW) == 0;
    HWND& after = position.hwndInsertAfter;
    if (topLevel && appears && (flags & SWP_NOACTIVATE) == 0 && (window->style & WS_DISABLED) == 0 &&
        (window->thread == nullptr || window->thread->active != window->handle)) {
        // A window that is activated comes to the top of its kind.
        if ((flags & SWP_NOZORDER) != 0 || (after != HWND_TOPMOST && after != HWND_NOTOPMOST)) {
            after = HWND_TOP;
        }
        flags &= ~static_cast<UINT>(SWP_NOZORDER);
    }
    if ((flags & SWP_NOZORDER) == 0 && InPlace(window, after)) {
        flags |= SWP_NOZORDER;
    }
}

constexpr UINT kNothing = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
constexpr UINT kSomething = SWP_SHOWWINDOW | SWP_HIDEWINDOW | SWP_FRAMECHANGED;

bool ChangesAnything(UINT flags) {
    return (flags & kNothing) != kNothing || (flags & kSomething) != 0;
}

/// WM_WINDOWPOSCHANGING, and what remains of the change afterwards. @returns false when the window is gone.
bool Announce(Step& step) {
    WINDOWPOS& position = step.position;
    const HWND handle = position.hwnd;
    {
        UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            return false;
        }
        const POINT origin = ParentOrigin(window);
        if ((position.flags & SWP_NOMOVE) != 0) {
            position.x = window->windowRect.left - origin.x;
            position.y = window->windowRect.top - origin.y;
        }
        if ((position.flags & SWP_NOSIZE) != 0) {
            position.cx = window->windowRect.right - window->windowRect.left;
            position.cy = window->windowRect.bottom - window->windowRect.top;
        }
    }
    SendMessageA(handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
    position.hwnd = handle;
    UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (window == nullptr) {
        return false;
    }
    Reduce(window, position);
    const POINT origin = ParentOrigin(window);
    step.oldWindow = window->windowRect;
    step.oldClient = window->clientRect;
    step.newWindow = RECT{position.x + origin.x, position.y + origin.y, position.x + origin.x + position.cx,
                          position.y + origin.y + position.cy};
    step.newClient =
        Moved(step.oldClient, step.newWindow.left - step.oldWindow.left, step.newWindow.top - step.oldWindow.top);
    step.order = (position.flags & SWP_NOZORDER) == 0;
    return true;
}

/// The new client area, and which of the old pixels stay good: those at its upper left corner, unless the class wants to be
/// drawn anew.
void CalculateClient(Step& step) {
    const UINT flags = step.position.flags;
    step.keep = Keep::Window;
    UserGuard guard(UserLock());
    const Window* window = PeekWindow(step.position.hwnd);
    if (window == nullptr || ((flags & SWP_NOSIZE) != 0 && (flags & SWP_FRAMECHANGED) == 0)) {
        return;
    }
    step.newClient = ClientFromWindow(window, step.newWindow);
    const RECT& before = step.oldClient;
    const RECT& after = step.newClient;
    const LONG oldWidth = before.right - before.left;
    const LONG oldHeight = before.bottom - before.top;
    const LONG newWidth = after.right - after.left;
    const LONG newHeight = after.bottom - after.top;
    const UINT classStyle = window->windowClass->style;
    if (((classStyle & CS_HREDRAW) != 0 && oldWidth != newWidth) ||
        ((classStyle & CS_VREDRAW) != 0 && oldHeight != newHeight)) {
        step.keep = Keep::Nothing;
        return;
    }
    step.keep = Keep::Client;
    const LONG width = std::min(oldWidth, newWidth);
    const LONG height = std::min(oldHeight, newHeight);
    step.validSource = {before.left, before.top, before.left + width, before.top + height};
    step.validTarget = {after.left, after.top, after.left + width, after.top + height};
}

/// WM_WINDOWPOSCHANGED and what goes with it, once the change has been made.
void Report(Step& step) {
    WINDOWPOS& position = step.position;
    const HWND handle = position.hwnd;
    UINT& flags = position.flags;
    const RECT& before = step.oldClient;
    const RECT& after = step.newClient;
    if (SameSize(before, after)) {
        flags |= kNoClientSize;
    }
    if (before.left == after.left && before.top == after.top) {
        flags |= kNoClientMove;
    }
    if ((flags & SWP_HIDEWINDOW) != 0) {
        if (Window* window = PeekWindow(handle); window != nullptr) {
            LeaveDisabledOrHidden(window, true);
        }
    }
    if ((flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) == 0) {
        bool shown = false;
        {
            UserGuard guard(UserLock());
            const Window* window = PeekWindow(handle);
            shown =
                window != nullptr && (window->style & WS_CHILD) == 0 && window->parent == Desktop() && IsShown(window);
        }
        if (shown) {
            ActivateWindow(handle, false);
        }
    }
    if (!ChangesAnything(flags) || PeekWindow(handle) == nullptr) {
        return;
    }
    // Documented for the place: what the window came to, even where it was not asked for.
    SendMessageA(handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
}

}  // namespace

void HideForDestruction(Window* window) {
    UserGuard guard(UserLock());
    if ((window->style & WS_VISIBLE) == 0) {
        return;
    }
    SuspendCaret(window->handle);
    const gdi::Region lost = Visible(window, kVisibleWhole | kVisibleClipSiblings);
    window->style &= ~static_cast<DWORD>(WS_VISIBLE);
    WindowsChanged();
    ExposeWithin(window->parent, lost);
    RefreshContexts();
    ResumeCaret(window->handle);
}

}  // namespace platform::user

using namespace platform::user;

BOOL WINAPI SetWindowPos(HWND handle, HWND after, int x, int y, int width, int height, UINT flags) {
    Step step;
    step.position = {handle, after, x, y, width, height, flags};
    {
        UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        if (window == nullptr) {
            return FALSE;
        }
        if (window == Desktop()) {
            return Fail(ERROR_ACCESS_DENIED, FALSE);
        }
        if ((flags & SWP_NOZORDER) == 0 && !IsInsertAfter(after)) {
            const Window* sibling = FindWindowObject(after);
            if (sibling == nullptr) {
                return FALSE;
            }
            if (sibling == window || sibling->parent != window->parent) {
                step.position.flags |= SWP_NOZORDER;
            }
        }
    }
    if (!Announce(step)) {
        return FALSE;
    }
    if (ChangesAnything(step.position.flags)) {
        CalculateClient(step);
        ThreadState* thread = CurrentThread();
        const HWND caret = thread == nullptr ? nullptr : thread->caret.window;
        SuspendCaret(caret);
        Apply(step);
        ResumeCaret(caret);
    }
    Report(step);
    return TRUE;
}

BOOL WINAPI MoveWindow(HWND handle, int x, int y, int width, int height, BOOL repaint) {
    return SetWindowPos(handle, nullptr, x, y, width, height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0U : SWP_NOREDRAW));
}
