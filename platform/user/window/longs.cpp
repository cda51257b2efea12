// The longs of windows: styles, procedures, identifiers, extra bytes.
#include <cstring>
#include <utility>

#include "user/model/thread.h"
#include "user/model/window.h"
#include "user/painting/painting.h"

using namespace platform::user;

namespace {

/// Extra bytes at an offset, or null with ERROR_INVALID_INDEX set.
std::byte* Extra(std::vector<std::byte>& extra, int index, std::size_t size) {
    if (index < 0 || static_cast<std::size_t>(index) + size > extra.size()) {
        return Fail(ERROR_INVALID_INDEX, nullptr);
    }
    return extra.data() + index;
}

template <class Number>
Number ReadExtra(std::vector<std::byte>& extra, int index) {
    Number value = 0;
    if (const std::byte* at = Extra(extra, index, sizeof value)) {
        std::memcpy(&value, at, sizeof value);
    }
    return value;
}

template <class Number>
Number WriteExtra(std::vector<std::byte>& extra, int index, Number value) {
    Number old = 0;
    if (std::byte* at = Extra(extra, index, sizeof value)) {
        std::memcpy(&old, at, sizeof old);
        std::memcpy(at, &value, sizeof value);
    }
    return old;
}

LONG ChangeStyle(DWORD& style, DWORD value) {
    WindowsChanged();
    return static_cast<LONG>(std::exchange(style, value));
}

/// A window whose longs may be set: the desktop belongs to nobody.
Window* FindChangeable(HWND handle) {
    Window* window = FindWindowObject(handle);
    if (window && !window->thread) {
        return Fail(ERROR_ACCESS_DENIED, nullptr);
    }
    return window;
}

/// Where pointers are wider than a LONG, those longs that hold one have no narrow form.
bool TooWide(int index, bool wide) {
    return !wide && sizeof(LONG_PTR) > sizeof(LONG) && (index == GWLP_WNDPROC || index == GWLP_HINSTANCE);
}

LONG_PTR Get(HWND handle, int index, bool wide) {
    UserHold hold(UserLock(), std::defer_lock);
    Window* window = FindWindowObject(handle);
    if (window && window->thread != CurrentThread()) {
        hold.lock();
        window = FindWindowObject(handle);
    }
    if (!window) {
        return 0;
    }
    if (TooWide(index, wide)) {
        return Fail(ERROR_INVALID_INDEX, 0);
    }
    switch (index) {
        case GWL_STYLE:
            return static_cast<LONG>(window->style);
        case GWL_EXSTYLE:
            return static_cast<LONG>(window->exStyle);
        case GWLP_ID:
            return window->id;
        case GWLP_USERDATA:
            return window->userData;
        case GWLP_WNDPROC:
            return reinterpret_cast<LONG_PTR>(window->procedure.load());
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(window->instance);
        default:
            return wide ? ReadExtra<LONG_PTR>(window->extra, index) : ReadExtra<LONG>(window->extra, index);
    }
}

LONG_PTR Set(HWND handle, int index, LONG_PTR value, bool wide) {
    const UserGuard guard(UserLock());
    Window* window = FindChangeable(handle);
    if (!window) {
        return 0;
    }
    if (TooWide(index, wide)) {
        return Fail(ERROR_INVALID_INDEX, 0);
    }
    switch (index) {
        case GWL_STYLE:
            return ChangeStyle(window->style, static_cast<DWORD>(value));
        case GWL_EXSTYLE:
            // Only SetWindowPos changes the z-order.
            return ChangeStyle(window->exStyle,
                               (static_cast<DWORD>(value) & ~DWORD{WS_EX_TOPMOST}) | (window->exStyle & WS_EX_TOPMOST));
        case GWLP_ID:
            return std::exchange(window->id, value);
        case GWLP_USERDATA:
            return std::exchange(window->userData, value);
        case GWLP_WNDPROC:
            return reinterpret_cast<LONG_PTR>(window->procedure.exchange(reinterpret_cast<WNDPROC>(value)));
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(std::exchange(window->instance, reinterpret_cast<HINSTANCE>(value)));
        default:
            return wide ? WriteExtra<LONG_PTR>(window->extra, index, value)
                        : WriteExtra<LONG>(window->extra, index, static_cast<LONG>(value));
    }
}

}  // namespace

LONG WINAPI GetWindowLongA(HWND window, int index) {
    return static_cast<LONG>(Get(window, index, false));
}

LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index) {
    return Get(window, index, true);
}

LONG WINAPI SetWindowLongA(HWND window, int index, LONG value) {
    return static_cast<LONG>(Set(window, index, value, false));
}

LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    return Set(window, index, value, true);
}
