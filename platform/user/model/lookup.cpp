// Finding windows, and walking the tree that they make.
#include <algorithm>

#include "base/immortal.h"
#include "user/model/window.h"

#include "gdi/surface/screen.h"
#include "user/model/above.h"

namespace platform::user {

std::recursive_mutex& UserLock() {
    // Never destroyed: threads may outlive the statics of this library.
    static base::Immortal<std::recursive_mutex> lock;
    return *lock;
}

Window* FindWindowObject(HWND handle) {
    Window* window = PeekWindow(handle);
    if (!window) [[unlikely]] {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    }
    return window;
}

namespace {

Window* MakeRoot(const char* className, const RECT& area) {
    auto* windowClass = new WindowClass;
    windowClass->atom = static_cast<ATOM>(32769);
    windowClass->name = className;
    windowClass->system = true;
    windowClass->procedure = DefWindowProcA;
    auto* root = new Window;
    root->windowClass = windowClass;
    root->procedure = DefWindowProcA;
    root->style = WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_POPUP;
    root->windowRect = root->clientRect = area;
    root->handle = base::ToHandle<HWND>(base::InsertHandle(base::HandleKind::Window, root));
    return root;
}

}  // namespace

Window* Desktop() {
    static Window* const desktop = [] {
        Window* root = MakeRoot("#32769", gdi::ScreenRect());
        PaintDesktop(gdi::Region(root->windowRect));
        return root;
    }();
    return desktop;
}

Window* Orphanage() {
    static Window* const root = MakeRoot("Orphanage", RECT{0, 0, 100, 100});
    return root;
}

int CopyText(std::string_view text, std::size_t size, char* buffer) {
    if (!buffer || size == 0) {
        return 0;
    }
    const std::size_t length = text.copy(buffer, size - 1);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

bool SameName(std::string_view a, std::string_view b) noexcept {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [lower](char x, char y) { return x == y || lower(x) == lower(y); });
}

bool IsNamed(const WindowClass& windowClass, LPCSTR name) {
    return IS_INTRESOURCE(name) ? windowClass.atom == LOWORD(name) : SameName(windowClass.name, name);
}

bool IsShown(const Window* window) {
    for (; window; window = window->parent) {
        if (!(window->style & WS_VISIBLE)) {
            return false;
        }
    }
    return true;
}

bool IsAncestor(const Window* ancestor, const Window* window) {
    while (window && IsChildStyle(window->style)) {
        window = window->parent;
        if (window == ancestor) {
            return true;
        }
    }
    return false;
}

Window* TopLevel(Window* window) {
    if (!window || window == Desktop() || window == Orphanage()) {
        return nullptr;
    }
    while (IsChildStyle(window->style) && window->parent && window->parent != Desktop() &&
           window->parent != Orphanage()) {
        window = window->parent;
    }
    return window;
}

const Window* RootOwner(const Window* window) {
    while (window->owner != nullptr) {
        window = window->owner;
    }
    return window;
}

HWND HandleOf(const Window* window) {
    return window && window != Orphanage() ? window->handle : nullptr;
}

POINT ParentOrigin(const Window* window) {
    const Window* parent = window->parent;
    return parent == nullptr ? POINT{0, 0} : POINT{parent->clientRect.left, parent->clientRect.top};
}

void ShiftTree(Window* window, int dx, int dy) {
    OffsetRect(&window->windowRect, dx, dy);
    OffsetRect(&window->clientRect, dx, dy);
    for (Window* child = window->firstChild; child != nullptr; child = child->next) {
        ShiftTree(child, dx, dy);
    }
}

}  // namespace platform::user
