/// @file device_context.h
/// What the modules above ask of device contexts beyond the public calls: contexts that draw to the screen, bitmaps drawn on.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "gdi/surface/region.h"

namespace platform::gdi {

/// A context in memory with a bitmap selected into it. Test it before use: there may be no memory, and a bitmap may be
/// selected elsewhere.
class MemoryContext {
  public:
    explicit MemoryContext(HBITMAP bitmap)
        : context_(bitmap ? CreateCompatibleDC(nullptr) : nullptr),
          former_(context_ ? SelectObject(context_, bitmap) : nullptr) {}
    ~MemoryContext() {
        if (former_) {
            SelectObject(context_, former_);
        }
        if (context_) {
            DeleteDC(context_);
        }
    }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;

    explicit operator bool() const {
        return former_ != nullptr;
    }
    operator HDC() const {
        return context_;
    }

  private:
    HDC context_;
    HGDIOBJ former_;
};

/// Makes a context whose point (0, 0) lies at the screen point `origin` and which draws inside `visible` only (screen
/// coordinates). @returns null when memory or handles have run out.
HDC CreateScreenContext(POINT origin, const Region& visible);

/// Gives a screen context a new place and a new visible area; its attributes and its clip region stay.
/// @returns false when the handle is not a screen context.
bool ReplaceVisible(HDC context, POINT origin, const Region& visible);

/// Ends a screen context; its selected objects become free. Other handles are left alone.
void DeleteScreenContext(HDC context);

/// Puts a context back to its defaults (objects, colours, modes, clip region, saved states).
void ResetContext(HDC context);

/// @returns the rectangle around all that a context can draw to; empty for a bad handle.
RECT ClipBounds(HDC context);

/// Takes a rectangle out of what a context can draw to, until its clip region changes.
void ExcludeFromClip(HDC context, const RECT& rect);

/// The width of a text with the font that is selected.
inline int WidthOf(HDC context, const std::string& text) {
    SIZE size{};
    GetTextExtentPoint32A(context, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
}

/// Text whose tabs go on to stops that lie eight average characters apart.
void DrawTabbedText(HDC context, int x, int y, const std::string& text);
int TabbedTextWidth(HDC context, const std::string& text);

/// Deletes a font at once, or when the last context lets go of it that has it selected.
void DeleteFontWhenFree(HFONT font);

/// @returns the number of live pens, brushes, fonts, bitmaps and contexts, without the stock objects, the system colour
/// brushes and the window contexts that the user module keeps.
std::size_t CountObjects();

}  // namespace platform::gdi
