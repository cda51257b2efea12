// Filling, framing and inverting rectangles.
#include <algorithm>

#include "gdi/context/raster.h"

using namespace platform::gdi;

namespace {

/// A brush handle, or a system colour's index plus one in its place.
const Brush* BrushOrColour(HBRUSH brush) {
    const std::uint32_t number = platform::base::ToNumber(brush);
    if (number >= 1 && number <= COLOR_GRADIENTINACTIVECAPTION + 1) {
        brush = GetSysColorBrush(static_cast<int>(number) - 1);
    }
    return FindObject<Brush>(brush);
}

/// Draws a frame one pixel wide.
void Frame(DeviceContext& context, const RECT& rect, Operation operation, const Ink& ink) {
    const RECT parts[] = {{rect.left, rect.top, rect.right, rect.top + 1},
                          {rect.left, std::max(rect.bottom - 1, rect.top + 1), rect.right, rect.bottom},
                          {rect.left, rect.top + 1, rect.left + 1, rect.bottom - 1},
                          {std::max(rect.right - 1, rect.left + 1), rect.top + 1, rect.right, rect.bottom - 1}};
    for (const RECT& part : parts) {
        Combine(context, part, operation, &ink);
    }
}

}  // namespace

int WINAPI FillRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const Drawing drawing(handle);
    if (!drawing || !rect) {
        return 0;
    }
    // Without a brush the one that is selected fills.
    const Brush* object = brush ? BrushOrColour(brush) : drawing->state.brush;
    if (!object) {
        return 0;
    }
    return Guarded(0, [&] {
        const Ink ink = InkOf(*drawing, *object);
        if (!ink.none) {
            Combine(*drawing, drawing->ToSurface(*rect), kCopyPattern, &ink);
        }
        return 1;
    });
}

int WINAPI FrameRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const Drawing drawing(handle);
    const Brush* object = drawing && rect ? BrushOrColour(brush) : nullptr;
    if (!object || !Holds(*rect)) {
        return 0;
    }
    return Guarded(0, [&] {
        const Ink ink = InkOf(*drawing, *object);
        if (!ink.none) {
            Frame(*drawing, drawing->ToSurface(*rect), kCopyPattern, ink);
        }
        return 1;
    });
}

BOOL WINAPI InvertRect(HDC handle, const RECT* rect) {
    const Drawing drawing(handle);
    if (!drawing || !rect) {
        return FALSE;
    }
    Combine(*drawing, drawing->ToSurface(*rect), kInvert, nullptr);
    return TRUE;
}

BOOL WINAPI DrawFocusRect(HDC handle, const RECT* rect) {
    return DrawIn(handle, [&](DeviceContext& context) {
        // Every other pixel; exclusive or makes the second call undo the first.
        const std::uint32_t set = context.surface.Mask();
        Ink dots;
        dots.width = dots.height = 2;
        dots.origin = context.origin;
        dots.tile = {set, 0, 0, set};
        if (rect && Holds(*rect)) {
            Frame(context, context.ToSurface(*rect), kXorPattern, dots);
        }
        return BOOL{rect != nullptr};
    });
}
