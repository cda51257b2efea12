// The order of windows: owned windows stay above their owners, and owners come along when an owned window is brought
// up.
#include <algorithm>
#include <new>
#include <vector>

#include "base/handle.h"
#include "user/painting/painting.h"
#include "user/window/position.h"
#include "user/window/tree.h"

namespace platform::user {
namespace {

bool OwnedBy(const Window* window, const Window* owner) {
    for (const Window* at = window->owner; at != nullptr; at = at->owner) {
        if (at == owner) {
            return true;
        }
    }
    return false;
}

/// The windows that one owns, directly or not, from the top of the z-order.
std::vector<Window*> OwnedWindows(const Window* owner) {
    std::vector<Window*> owned;
    for (Window* window = Desktop()->firstChild; window != nullptr; window = window->next) {
        if (window->owner != nullptr && OwnedBy(window, owner)) {
            owned.push_back(window);
        }
    }
    return owned;
}

void SetTopmost(Window* window, bool topmost) {
    window->exStyle = topmost ? window->exStyle | WS_EX_TOPMOST : window->exStyle & ~DWORD{WS_EX_TOPMOST};
}

/// Children are never topmost: for them the values for that mean the top.
HWND PlaceFor(const Window* window, HWND after) {
    const bool kind = after == HWND_TOPMOST || after == HWND_NOTOPMOST;
    return kind && window->parent != Desktop() ? HWND_TOP : after;
}

void Relink(Window* window, HWND after) {
    UnlinkWindow(window);
    LinkWindow(window, after);
}

void PlaceAbove(Window* window, const Window* below) {
    if (window->next == below) {
        return;
    }
    UnlinkWindow(window);
    LinkWindow(window, below->previous != nullptr ? below->previous->handle : HWND_TOP);
}

bool LiesBelow(const Window* window, const Window* above) {
    for (const Window* at = above->next; at != nullptr; at = at->next) {
        if (at == window) {
            return true;
        }
    }
    return false;
}

/// Brings a window's owners up beneath it, each with what else it owns.
void RaiseOwners(const Window* window) {
    const Window* lowest = window;
    for (Window* owner = window->owner; owner != nullptr; owner = owner->owner) {
        if (IsTopmost(owner) != IsTopmost(window)) {
            return;
        }
        const std::vector<Window*> owned = OwnedWindows(owner);
        Relink(owner, lowest->handle);
        for (Window* other : owned) {
            if (IsTopmost(other) == IsTopmost(owner) && LiesBelow(other, owner)) {
                PlaceAbove(other, owner);
            }
        }
        lowest = owner;
    }
}

}  // namespace

bool InPlace(const Window* window, HWND after) {
    after = PlaceFor(window, after);
    if (after == HWND_TOP) {
        const Window* above = window->previous;
        // What a window owns lies above it wherever it goes.
        while (above != nullptr && above->owner != nullptr && OwnedBy(above, window)) {
            above = above->previous;
        }
        return above == nullptr || (IsTopmost(above) && !IsTopmost(window));
    }
    if (after == HWND_BOTTOM) {
        return window->next == nullptr && !IsTopmost(window);
    }
    if (after == HWND_TOPMOST) {
        return IsTopmost(window) && window->previous == nullptr;
    }
    if (after == HWND_NOTOPMOST) {
        return !IsTopmost(window);
    }
    return after == window->handle || (window->previous != nullptr && window->previous->handle == after);
}

void CollectGroup(Window* window, std::vector<Window*>& group) {
    const Window* root = RootOwner(window);
    for (Window* other = Desktop()->firstChild; other != nullptr; other = other->next) {
        if (other != window && RootOwner(other) == root) {
            group.push_back(other);
        }
    }
}

void ChangeOrder(Window* window, HWND after, UINT flags) {
    if (window->parent != Desktop()) {
        Relink(window, PlaceFor(window, after));
        return;
    }
    try {
        const std::vector<Window*> owned = OwnedWindows(window);
        if (after == HWND_TOPMOST || after == HWND_NOTOPMOST || after == HWND_BOTTOM) {
            SetTopmost(window, after == HWND_TOPMOST);
            for (Window* other : owned) {
                SetTopmost(other, after == HWND_TOPMOST);
            }
            for (Window* owner = window->owner; owner != nullptr && after == HWND_NOTOPMOST; owner = owner->owner) {
                SetTopmost(owner, false);
            }
            after = after == HWND_BOTTOM ? after : HWND_TOP;
        }
        Relink(window, after);
        for (Window* other : owned) {
            if (IsTopmost(other) == IsTopmost(window)) {
                PlaceAbove(other, window);
            }
        }
        if (after == HWND_TOP && (flags & SWP_NOOWNERZORDER) == 0) {
            RaiseOwners(window);
        }
        if (window->owner != nullptr && LiesBelow(window, window->owner)) {
            PlaceAbove(window, window->owner);
        }
    } catch (const std::bad_alloc&) {
        Relink(window, after == HWND_BOTTOM ? HWND_BOTTOM : HWND_TOP);
    }
}

}  // namespace platform::user
