/// @file device_context.h
/// What the user module asks of device contexts beyond the public calls: contexts that draw to the screen.
#pragma once

#include <windef.h>

#include <cstddef>

#include "gdi/surface/region.h"

namespace platform::gdi {

/// Makes a context whose point (0, 0) lies at the screen point `origin` and which draws inside `visible` only (screen
/// coordinates). @returns null when memory or handles have run out.
HDC CreateScreenContext(POINT origin, const Region& visible);

/// Gives a screen context a new place and a new visible area; its attributes and its clip region stay.
/// @returns false when the handle is not a screen context.
bool ReplaceVisible(HDC context, POINT origin, const Region& visible);

/// Ends a screen context; its selected objects become free. Other handles are left alone.
void DeleteScreenContext(HDC context);

/// Puts a context back to its defaults (objects, colours, modes, origins, clip region, saved states).
void ResetContext(HDC context);

/// The window that a context draws to, for WindowFromDC; null unless set.
void SetContextWindow(HDC context, HWND window);
HWND GetContextWindow(HDC context);

/// @returns the screen point of the context's device point (0, 0); (0, 0) for memory contexts.
POINT ContextOrigin(HDC context);

/// @returns the area, in screen coordinates, that a screen context was given as visible.
Region VisibleArea(HDC context);

/// @returns a copy of a region object's pixels; empty when the handle is not a region.
Region RegionOf(HRGN region);

/// Overwrites a region object. @returns false when the handle is not a region.
bool AssignRegion(HRGN region, const Region& value);

/// Makes a region object. @returns null when memory or handles have run out.
HRGN MakeRegionObject(const Region& value);

/// Deletes a font at once, or when the last context lets go of it that has it selected.
void DeleteFontWhenFree(HFONT font);

/// @returns the number of live pens, brushes, fonts, bitmaps, regions and contexts, without the stock objects, the
/// system colour brushes and the window contexts that the user module keeps.
std::size_t CountObjects();

}  // namespace platform::gdi
