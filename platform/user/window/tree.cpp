// The window tree: parents, owners, z-order, and the ways to walk it.
#include "user/window/tree.h"

#include "user/model/window.h"
#include "user/painting/painting.h"

namespace platform::user {
namespace {

/// Links a window in front of `before`, or as the last one when it is null.
void LinkBefore(Window* window, Window* before) {
    Window* parent = window->parent;
    Window* last = nullptr;
    if (before) {
        last = before->previous;
    } else {
        for (last = parent->firstChild; last && last->next;) {
            last = last->next;
        }
    }
    window->previous = last;
    window->next = before;
    (last ? last->next : parent->firstChild) = window;
    if (before) {
        before->previous = window;
    }
}

Window* FirstPlain(Window* window) {
    while (window && IsTopmost(window)) {
        window = window->next;
    }
    return window;
}

}  // namespace

void LinkWindow(Window* window, HWND after) {
    Window* parent = window->parent;
    if (!parent) {
        return;
    }
    const bool topLevel = parent == Desktop();
    Window* firstPlain = topLevel ? FirstPlain(parent->firstChild) : parent->firstChild;
    const Window* sibling = PeekWindow(after);
    if (after == HWND_BOTTOM) {
        LinkBefore(window, topLevel && IsTopmost(window) ? firstPlain : nullptr);
    } else if (!sibling || sibling->parent != parent) {
        LinkBefore(window, topLevel && !IsTopmost(window) ? firstPlain : parent->firstChild);
    } else if (topLevel && IsTopmost(window) != IsTopmost(sibling)) {
        // Topmost windows stay above the others, whatever sibling is named.
        LinkBefore(window, firstPlain);
    } else {
        LinkBefore(window, sibling->next);
    }
    WindowsChanged();
}

void UnlinkWindow(Window* window) {
    if (!window->parent) {
        return;
    }
    (window->previous ? window->previous->next : window->parent->firstChild) = window->next;
    if (window->next) {
        window->next->previous = window->previous;
    }
    window->previous = window->next = nullptr;
    WindowsChanged();
}

bool LeadsTo(const Window* window, const Window* target) {
    for (; window; window = window->parent) {
        if (window == target || (window->owner && LeadsTo(window->owner, target))) {
            return true;
        }
    }
    return false;
}

}  // namespace platform::user

using namespace platform::user;

namespace {

/// The end of the chain of parents, whatever the styles on the way.
Window* RootOf(Window* window) {
    while (window->parent && window->parent != Desktop() && window->parent != Orphanage()) {
        window = window->parent;
    }
    return window;
}

}  // namespace

HWND WINAPI GetDesktopWindow(VOID) {
    return Desktop()->handle;
}

HWND WINAPI GetParent(HWND handle) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window) {
        return nullptr;
    }
    if (window->style & WS_POPUP) {
        return HandleOf(window->owner);
    }
    return IsChildStyle(window->style) ? HandleOf(window->parent) : nullptr;
}

HWND WINAPI GetAncestor(HWND handle, UINT flags) {
    const UserGuard guard(UserLock());
    Window* window = FindWindowObject(handle);
    if (!window || window == Desktop()) {
        return nullptr;
    }
    return flags == GA_ROOT ? HandleOf(RootOf(window)) : nullptr;
}

HWND WINAPI GetWindow(HWND handle, UINT relation) {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(handle);
    if (!window) {
        return nullptr;
    }
    switch (relation) {
        case GW_HWNDNEXT:
            return HandleOf(window->next);
        case GW_HWNDPREV:
            return HandleOf(window->previous);
        case GW_OWNER:
            return HandleOf(window->owner);
        case GW_CHILD:
            return HandleOf(window->firstChild);
        default:
            return Fail(ERROR_INVALID_PARAMETER, nullptr);
    }
}

HWND WINAPI GetTopWindow(HWND handle) {
    return GetWindow(handle ? handle : GetDesktopWindow(), GW_CHILD);
}

BOOL WINAPI IsChild(HWND parentHandle, HWND handle) {
    const UserGuard guard(UserLock());
    const Window* parent = FindWindowObject(parentHandle);
    const Window* window = FindWindowObject(handle);
    return parent && window && IsAncestor(parent, window);
}

HWND WINAPI SetParent(HWND handle, HWND newParent) {
    bool visible = false;
    {
        const UserGuard guard(UserLock());
        const Window* window = FindWindowObject(handle);
        const Window* parent = newParent ? FindWindowObject(newParent) : Desktop();
        if (!window || !parent) {
            return nullptr;
        }
        if (!window->parent) {
            return Fail(ERROR_ACCESS_DENIED, nullptr);
        }
        if (LeadsTo(parent, window)) {
            return Fail(ERROR_INVALID_PARAMETER, nullptr);
        }
        visible = (window->style & WS_VISIBLE) != 0;
    }
    if (visible) {
        ShowWindow(handle, SW_HIDE);
    }
    HWND old = nullptr;
    {
        const UserGuard guard(UserLock());
        Window* window = PeekWindow(handle);
        Window* parent = newParent ? PeekWindow(newParent) : Desktop();
        if (!window || !parent || parent->ending) {
            return Fail(ERROR_INVALID_WINDOW_HANDLE, nullptr);
        }
        // Hiding it has let procedures run.
        if (LeadsTo(parent, window)) {
            return Fail(ERROR_INVALID_PARAMETER, nullptr);
        }
        // It keeps its place within the client area of whoever is its parent.
        const RECT from = window->parent->clientRect;
        const RECT to = parent->clientRect;
        old = HandleOf(window->parent);
        UnlinkWindow(window);
        window->parent = parent;
        if (parent != Desktop()) {
            window->owner = nullptr;
        }
        LinkWindow(window, HWND_TOP);
        ShiftTree(window, to.left - from.left, to.top - from.top);
    }
    if (visible) {
        ShowWindow(handle, SW_SHOWNA);
    }
    return old;
}
