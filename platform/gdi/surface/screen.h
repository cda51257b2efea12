/// @file screen.h
/// The one virtual screen: its pixels, the lock that guards them, and what changed since it was last presented.
#pragma once

#include <windef.h>

#include <cstdint>
#include <mutex>

#include "gdi/surface/region.h"

namespace platform::gdi {

/// Pixels are 0x00RRGGBB, the top row first; stride counts pixels.
struct ScreenView {
    std::uint32_t* pixels;
    int width;
    int height;
    int stride;
};

/// Held while drawing to the screen or reading it. Contexts on the screen take it themselves, call by call.
std::recursive_mutex& ScreenLock();
using ScreenGuard = std::lock_guard<std::recursive_mutex>;

/// Asked once, before the screen is made: how large it is to be. usual: 1024 by 768, or what the environment variable
/// CVUTIL32_SCREEN says (WIDTHxHEIGHT). Null: as usual.
extern SIZE (*chooseScreenSize)(SIZE usual);

/// The screen, made on first use. Without memory for it, a view of 0 by 0 pixels. Its pixels are good until it is resized.
ScreenView Screen();

/// Gives the screen another size. What it shows stays, from the top left corner; what is new is not drawn yet. The lock of
/// the screen is held, and whoever kept a view takes a new one. @returns false without memory: it is as it was.
bool ResizeScreen(SIZE size);

/// @returns the screen's rectangle, from (0, 0).
RECT ScreenRect();

/// Notes that an area, in screen coordinates, was drawn. Screen lock held.
void MarkDirty(const RECT& area);

/// @returns what was drawn since the last call, and starts afresh. Takes the lock.
Region TakeDirty();

/// Names the function to call when the dirty area becomes non-empty; null for none. It is called with the screen lock
/// held, on the thread that draws, and must only wake the presenter.
void SetDirtyHook(void (*hook)());

/// Moves pixels: the rectangle `from` appears with its top left corner at `to`, drawn only inside `clip` (destination,
/// screen coordinates). Overlap is fine. Takes the lock.
void CopyScreenArea(const RECT& from, POINT to, const Region& clip);

}  // namespace platform::gdi
