/// @file window.h
/// What a window and a window class are inside the user module, and the rules by which threads share them.
///
/// One lock guards the window tree, the classes, the update regions and what threads see of each other's queues. A thread
/// may read its own windows without it: only the owner changes or destroys a window. The lock is never held while a window
/// procedure, a hook or the display is called. After any such call a Window pointer may be dead: look its handle up again.
#pragma once

#include <windows.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/fail.h"
#include "base/handle.h"
#include "gdi/surface/region.h"

namespace platform::user {

using base::Fail;

struct ThreadState;
struct DialogState;
struct ControlData;

struct WindowClass {
    ATOM atom = 0;  ///< stands for the name
    std::string name;
    bool system = false;           ///< defined by the layer itself (button, static, #32770 ...), seen by every module
    HINSTANCE instance = nullptr;  ///< the module that registered it
    UINT style = 0;
    WNDPROC procedure = nullptr;
    int windowExtra = 0;
    HICON icon = nullptr;
    HCURSOR cursor = nullptr;
    HBRUSH background = nullptr;
    int windows = 0;  ///< windows of the class that are alive
};

struct WindowProperty {
    std::string name;  ///< as it was first given; compared without regard to case
    HANDLE data = nullptr;
};

struct Window {
    HWND handle = nullptr;
    WindowClass* windowClass = nullptr;
    std::atomic<WNDPROC> procedure{nullptr};
    ThreadState* thread = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0;  ///< child identifier (GWLP_ID)
    HINSTANCE instance = nullptr;
    LONG_PTR userData = 0;
    std::vector<std::byte> extra;
    std::string text;
    std::vector<WindowProperty> properties;

    RECT windowRect{};  ///< screen coordinates
    RECT clientRect{};  ///< screen coordinates

    Window* parent = nullptr;      ///< WS_CHILD: the parent; else the desktop window (null for the desktop itself)
    Window* owner = nullptr;       ///< top-level windows only
    Window* firstChild = nullptr;  ///< top of the z-order
    Window* next = nullptr;        ///< the one below in z-order
    Window* previous = nullptr;    ///< the one above in z-order

    // Painting (painting module). Regions are relative to the window rectangle's top left corner, so they move with it.
    gdi::Region update;
    bool eraseNeeded = false;                 ///< WM_ERASEBKGND is due with the next BeginPaint
    bool frameNeeded = false;                 ///< WM_NCPAINT is due
    bool paintRuns = false;                   ///< its WM_PAINT is being handled and has not come to BeginPaint
    struct PaintState* paintState = nullptr;  ///< the painting module's own: cached visible regions
    bool sizeSent = false;                    ///< WM_SIZE and WM_MOVE were sent; else the first ShowWindow sends them
    bool hiddenByOwner = false;               ///< hidden because its owner was minimised

    RECT restoredRect{};  ///< normal position while minimised or maximised
    bool destroying = false;
    bool goesAlong = false;         ///< is to be told of the end of its owner or parent, which is its own too
    bool ending = false;            ///< its children are gone, or going: no new ones are made
    bool captionActive = false;     ///< how the caption was drawn last (WM_NCACTIVATE)
    bool restoreMaximised = false;  ///< minimised while it was maximised
    unsigned hostReport = 0;        ///< the last one of the host about its being minimised that it has followed
    HICON bigIcon = nullptr;        ///< WM_SETICON
    HICON smallIcon = nullptr;

    // Dialogs and controls: shared, so that a handler that is running outlives its window.
    std::shared_ptr<DialogState> dialog;      ///< made when the dialog procedure first sees the window
    std::shared_ptr<ControlData> control;     ///< what a predefined control keeps (controls/controls.h)
    std::shared_ptr<struct WindowBars> bars;  ///< scroll bars, made when they are first asked about (scrollbar/bar.h)
};

using UserGuard = std::lock_guard<std::recursive_mutex>;
using UserHold = std::unique_lock<std::recursive_mutex>;
std::recursive_mutex& UserLock();

/// Reads a field that other threads may write, without holding the lock longer.
template <class Value>
Value Shared(const Value& field) {
    UserGuard guard(UserLock());
    return field;
}

/// Writes such a field. @returns what it was.
template <class Value>
Value ExchangeShared(Value& field, std::type_identity_t<Value> value) {
    UserGuard guard(UserLock());
    return std::exchange(field, value);
}

/// Does what takes memory. @returns false where there is none.
template <class Action>
bool MemoryAllows(const Action& action) try {
    action();
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

/// @returns the live window of a handle, else null with ERROR_INVALID_WINDOW_HANDLE set. HWND_DESKTOP (null) is not one.
Window* FindWindowObject(HWND handle);

/// The live window of a handle or null; leaves the last error alone.
inline Window* PeekWindow(HWND handle) {
    return base::Find<Window>(handle, base::HandleKind::Window);
}

/// @returns the desktop window, which is made on first use and covers the screen; it belongs to no thread.
Window* Desktop();
/// @returns those of the desktop's children that a test accepts, from the top of the z-order. Takes the lock. Throws bad_alloc.
template <class Accepts>
std::vector<HWND> TopLevelWindows(const Accepts& accepts) {
    UserGuard guard(UserLock());
    std::vector<HWND> windows;
    for (const Window* window = Desktop()->firstChild; window != nullptr; window = window->next) {
        if (accepts(window)) {
            windows.push_back(window->handle);
        }
    }
    return windows;
}

/// The parent of windows whose parent ended and whose thread has yet to end them: never shown, never enumerated.
Window* Orphanage();

/// @returns the handle by which applications may know a window; null for none and for the parent of message-only windows.
HWND HandleOf(const Window* window);

/// Puts as much of a text into a buffer as fits, with a final NUL. @returns how much that is.
int CopyText(std::string_view text, std::size_t size, char* buffer);

/// Compares names of classes and properties: ASCII letters match in either case.
bool SameName(std::string_view a, std::string_view b) noexcept;

/// @returns whether a name, or an atom in its place, is that of a class.
bool IsNamed(const WindowClass& windowClass, LPCSTR name);

/// @returns whether the style is that of a child window: WS_CHILD without WS_POPUP.
inline bool IsChildStyle(DWORD style) {
    return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD;
}

/// @returns whether the window and all its ancestors have WS_VISIBLE.
bool IsShown(const Window* window);
bool IsAncestor(const Window* ancestor, const Window* window);
/// @returns the first window at or above one that is no child by its style: what is activated for it, and what can own others.
/// Null for the desktop.
Window* TopLevel(Window* window);

/// @returns the end of a window's chain of owners.
const Window* RootOwner(const Window* window);

/// Where the parent counts a window's place from: its client area for children, the screen for top-level windows.
POINT ParentOrigin(const Window* window);
/// Moves a window's rectangles and those of its descendants, without a word to them. Lock held.
void ShiftTree(Window* window, int dx, int dy);

/// @returns the point that a mouse message carries.
inline POINT MousePoint(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

}  // namespace platform::user
