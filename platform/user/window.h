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
#include <string>
#include <vector>

#include "gdi/region.h"

namespace platform::user {

struct ThreadState;
struct DialogState;
struct ControlData;

struct WindowClass {
    ATOM atom = 0;
    std::string name;
    bool system = false;           ///< defined by the layer itself (button, static, #32770 ...), seen by every module
    HINSTANCE instance = nullptr;  ///< the module that registered it
    UINT style = 0;
    WNDPROC procedure = nullptr;
    int windowExtra = 0;
    HICON icon = nullptr;
    HCURSOR cursor = nullptr;
    HBRUSH background = nullptr;
    std::string menuName;
    LPCSTR menuId = nullptr;  ///< when the menu was given by number
    int classExtra = 0;       ///< as GetClassInfoA tells; nobody can reach the bytes
    int windows = 0;          ///< windows of the class that are alive
};

struct WindowProperty {
    std::string name;  ///< as it was first given, or "#number"; compared without regard to case
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
    bool internalPaint = false;               ///< RDW_INTERNALPAINT
    struct PaintState* paintState = nullptr;  ///< the painting module's own: cached visible regions
    bool sizeSent = false;                    ///< WM_SIZE and WM_MOVE were sent; else the first ShowWindow sends them
    bool hiddenByOwner = false;               ///< hidden because its owner was minimised

    RECT restoredRect{};  ///< normal position while minimised or maximised
    bool destroying = false;
    bool ending = false;            ///< its children are gone, or going: no new ones are made
    bool created = false;           ///< WM_CREATE has returned
    bool captionActive = false;     ///< how the caption was drawn last (WM_NCACTIVATE)
    bool restoreMaximised = false;  ///< minimised while it was maximised
    HICON bigIcon = nullptr;        ///< WM_SETICON
    HICON smallIcon = nullptr;

    // Dialogs and controls: shared, so that a handler that is running outlives its window.
    std::shared_ptr<DialogState> dialog;      ///< made when the dialog procedure first sees the window
    std::shared_ptr<ControlData> control;     ///< what a predefined control keeps (controls/controls.h)
    std::shared_ptr<struct WindowBars> bars;  ///< scroll bars, made when they are first asked about (scrollbar/bar.h)
};

using UserGuard = std::lock_guard<std::recursive_mutex>;
std::recursive_mutex& UserLock();

// --- windows (window.cpp, tree.cpp, class.cpp)

/// @returns the live window of a handle, else null with ERROR_INVALID_WINDOW_HANDLE set. HWND_DESKTOP (null) is not one.
Window* FindWindowObject(HWND handle);

/// @returns the desktop window, which is made on first use and covers the screen; it belongs to no thread.
Window* Desktop();

/// Puts a window into its parent's child list: after == HWND_TOP, HWND_BOTTOM, HWND_TOPMOST, HWND_NOTOPMOST or a sibling.
/// Topmost windows stay above the others. Lock held.
void LinkWindow(Window* window, HWND after);
void UnlinkWindow(Window* window);

/// @returns whether the window and all its ancestors have WS_VISIBLE.
bool IsShown(const Window* window);
bool IsAncestor(const Window* ancestor, const Window* window);
/// @returns the top-level window above (or at) a window; null for the desktop.
Window* TopLevel(Window* window);

/// Registers a class of the layer's own. The controls and dialogs call it from InitialiseClasses.
void RegisterSystemClass(const char* name, WNDPROC procedure, UINT style, int windowExtra, LPCSTR cursor,
                         HBRUSH background);
/// Registers all system classes once; called before the first class look-up.
void InitialiseClasses();

/// @returns whether the style is that of a child window: WS_CHILD without WS_POPUP.
inline bool IsChildStyle(DWORD style) {
    return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD;
}

/// Moves the rectangles of a window and of all its descendants, without a word to them. Lock held.
void OffsetTree(Window* window, int dx, int dy);

/// @returns the class that a module sees under a name or atom (its own, then global ones, then the system's), else null.
/// Lock held.
WindowClass* FindClass(HINSTANCE instance, LPCSTR name);

/// The size and tracking limits of a window as WM_GETMINMAXINFO leaves them. Sends; no lock held.
MINMAXINFO QueryMinMax(HWND window);

/// WM_SETCURSOR's default, once the parents have been asked. @returns whether a cursor was set.
bool SetHitCursor(HWND hit, int hitCode, UINT mouseMessage);

/// @returns the number of the system cursor that a cursor shows (IDC_ARROW ... as a number), 0 for none.
unsigned CursorShape(HCURSOR cursor);

// --- non-client area (nonclient*.cpp)

/// The insets that style and extended style give a window: client rectangle of a window rectangle.
RECT ClientFromWindow(const Window* window, const RECT& windowRect);
/// WM_NCPAINT, WM_NCHITTEST, WM_NCCALCSIZE, WM_NCLBUTTONDOWN, WM_SYSCOMMAND, ... as DefWindowProcA answers them.
LRESULT DefaultNonClient(Window* window, UINT message, WPARAM wParam, LPARAM lParam);

// --- positions (position.cpp)

/// Hides a window that is about to be destroyed and exposes what lay under it, without asking it (no WM_WINDOWPOSCHANGING).
void HideForDestruction(Window* window);

// --- painting (visible.cpp, update.cpp, paint.cpp)

/// The part of the screen, in screen coordinates, that drawing to the window (or only its client area) reaches: cut by
/// ancestors, by siblings above it where WS_CLIPSIBLINGS is set (top-level windows always cut each other) and by its own
/// children where WS_CLIPCHILDREN is set or clipChildren is asked. Lock held.
gdi::Region VisibleRegion(Window* window, bool clientOnly, bool clipChildren);

/// Invalidates whatever lies in an area of the screen that nobody has drawn: windows from the top of the z-order, and the
/// desktop's background. Area in screen coordinates.
void ExposeScreen(const gdi::Region& area);

/// @returns whether the window has something to paint (update region or internal paint). Lock held.
bool NeedsPaint(const Window* window);

/// @returns the next window of a thread that is to get WM_PAINT: `within` (null: any) or a descendant; parents before
/// children, top-level windows from the top of the z-order. Sends nothing. Lock held.
Window* NextPaintWindow(ThreadState* thread, Window* within);

/// Forgets device contexts and regions of a window that is going away.
void ForgetPainting(Window* window);

/// Called after any change of the tree, of a rectangle, of WS_VISIBLE, WS_CLIPCHILDREN, WS_CLIPSIBLINGS, WS_MINIMIZE or
/// WS_EX_TRANSPARENT: visible regions are worked out anew when they are next asked for. Cheap. Lock held.
void WindowsChanged();

/// A window's WM_PAINT leaves the queue: an internal paint request is over with it. Lock held.
void TakePaintRequest(Window* window);

/// @returns how many window contexts are handed out and not released yet, for GetGuiResources.
int ContextsInUse();

// --- input state (thread.h's owner: focus.cpp, activation.cpp, capture.cpp, timer.cpp, caret.cpp)

/// Takes a dying window out of focus, activation, capture, timers, caret, posted messages and mouse tracking, and
/// activates another window where it was the active one.
void ForgetInput(Window* window);

/// A window was disabled or hidden: gives up capture, moves focus or activation away as documented.
void LeaveDisabledOrHidden(Window* window);

/// Activates a top-level window (WM_NCACTIVATE, WM_ACTIVATE, WM_ACTIVATEAPP, focus, z-order). @returns false when the
/// window refused or cannot be activated (disabled, hidden, a child).
bool ActivateWindow(HWND window, bool byMouse);

/// The caret is taken off the screen while its window is painted or moved, and comes back after. Calls nest.
void SuspendCaret(HWND window);
void ResumeCaret(HWND window);

// --- desktop-wide

/// Calls a window's procedure directly (same thread).
LRESULT CallProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Sends a message to all top-level windows of all threads (WM_SYSCOLORCHANGE, WM_WININICHANGE); bounded wait.
void BroadcastSetting(UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform::user
