/// @file position.h
/// Changes of place, order and visibility, and one window's way through such a change.
#pragma once

#include <windows.h>

#include <vector>

#include "gdi/surface/region.h"
#include "user/model/window.h"

namespace platform::user {

/// Moves a window in the z-order, together with the windows it owns and, unless SWP_NOOWNERZORDER is set, its owners.
/// touched: gets every window that moved, the window first.
void ChangeOrder(Window* window, HWND after, UINT flags);

/// Hides a window that is about to be destroyed and exposes what lay under it, without asking it (no WM_WINDOWPOSCHANGING).
void HideForDestruction(Window* window);

/// What WM_WINDOWPOSCHANGED says of the client area beyond the public flags; DefWindowProcA decides on WM_SIZE and
/// WM_MOVE by them.
constexpr UINT kNoClientSize = 0x0800;
constexpr UINT kNoClientMove = 0x1000;

/// Send WM_SIZE and WM_MOVE with what the window has come to.
void SendSize(HWND handle);
void SendMove(HWND handle);

/// @returns what a maximised window fills and minimised ones line up in: the work area, or the parent's client area. Lock held.
RECT Ground(const Window* window);

/// @returns where a window lies when it is maximised, after WM_GETMINMAXINFO has had its say. Sends; no lock held.
RECT MaximisedPlace(HWND handle);

/// Which pixels of a window stay good over a change.
enum class Keep { Window, Client, Nothing };

struct Step {
    WINDOWPOS position{};
    bool order = false;  ///< its place in the z-order changes
    RECT oldWindow{}, oldClient{}, newWindow{}, newClient{};
    Keep keep = Keep::Window;
    RECT validSource{}, validTarget{};  ///< with Keep::Client
    gdi::Region oldPixels;              ///< what the window showed
};

/// Makes the change in the window tree and brings the screen's pixels and the update regions in line. Takes the lock.
void Apply(Step& step);

/// @returns whether a value names a place in the z-order other than a sibling.
inline bool IsInsertAfter(HWND after) {
    return after == HWND_TOP || after == HWND_BOTTOM || after == HWND_TOPMOST || after == HWND_NOTOPMOST;
}

/// @returns whether a window lies in the z-order where it is to go.
bool InPlace(const Window* window, HWND after);

/// The windows that a change of order may move besides the window itself: those of the same owner group.
void CollectGroup(Window* window, std::vector<Window*>& group);

}  // namespace platform::user
