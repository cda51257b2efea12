// Moving blocks of pixels between contexts.
#include <algorithm>
#include <cstring>

#include "gdi/bitmap/convert.h"
#include "gdi/surface/copy_order.h"

namespace platform::gdi {

namespace {

Ink BrushInk(const DeviceContext& context, Operation operation) {
    return UsesPattern(operation) ? InkOf(context, *context.state.brush) : Ink{};
}

bool ReadsItself(const Surface& from, const Surface& to) {
    return from.bits == to.bits && from.stride == to.stride;
}

/// A copy within one surface of 32 bits: rows move as they are, in an order that keeps what is still to be read.
void CopyWithin(DeviceContext& context, const RECT& target, int dx, int dy) {
    Region area(context.Drawable());
    area.Intersect(target);
    ForEachAgainstMove(area.Rects(), dx, dy, [&](const RECT& rect) {
        const std::size_t bytes = static_cast<std::size_t>(rect.right - rect.left) * 4;
        ForEachRowAgainstMove(rect, dy, [&](int y) {
            std::memmove(context.surface.Row32(y) + rect.left, context.surface.Row32(y - dy) + rect.left - dx, bytes);
        });
        context.Drawn(rect);
    });
}

}  // namespace

void DrawSurface(DeviceContext& context, const RECT& target, const Surface& from, const RECT& source, bool mirrorX,
                 bool mirrorY, Operation operation, const MonoColours& colours) {
    const Ink ink = BrushInk(context, operation);
    const Surface& to = context.surface;
    const RECT bounds = context.Drawable().Bounds();
    const bool stretched = mirrorX || mirrorY || target.right - target.left != source.right - source.left ||
                           target.bottom - target.top != source.bottom - source.top;
    if (stretched) {
        const RECT part = Cut(target, bounds);
        if (Holds(part) && from.width > 0 && from.height > 0) {
            BufferRows rows(
                part, Stretched(from, source, target, part, mirrorX, mirrorY, context.state.stretchMode, to, colours));
            Combine(context, part, operation, &ink, &rows);
        }
        return;
    }
    // What lies outside the source has no pixels to give, and leaves the destination alone.
    const int dx = target.left - source.left;
    const int dy = target.top - source.top;
    const RECT given{dx, dy, from.width + dx, from.height + dy};
    const RECT part = Cut(Cut(target, given), bounds);
    if (!Holds(part)) {
        return;
    }
    if (ReadsItself(from, to)) {
        if (operation == kCopySource && to.bitsPerPixel == 32) {
            CopyWithin(context, part, dx, dy);
            return;
        }
        const RECT read{part.left - dx, part.top - dy, part.right - dx, part.bottom - dy};
        if (Holds(Cut(part, read))) {
            BufferRows rows(part, Stretched(from, read, part, part, false, false, COLORONCOLOR, to, colours));
            Combine(context, part, operation, &ink, &rows);
            return;
        }
    }
    SurfaceRows rows(from, -dx, -dy, to, colours);
    Combine(context, part, operation, &ink, &rows);
}

}  // namespace platform::gdi

using namespace platform::gdi;

namespace {

/// A rectangle given by corner and signed size, in order; the flags tell which axes ran backwards.
struct Block {
    RECT rect;
    bool backX;
    bool backY;
};

Block BlockOf(const DeviceContext& context, int x, int y, int width, int height) {
    const POINT at = context.ToSurface(x, y);
    // A block that runs backwards begins with the pixel at its corner.
    width = Near(width);
    height = Near(height);
    Block block{{at.x, at.y, at.x + width, at.y + height}, width < 0, height < 0};
    if (block.backX) {
        block.rect.left = at.x + width + 1;
        block.rect.right = at.x + 1;
    }
    if (block.backY) {
        block.rect.top = at.y + height + 1;
        block.rect.bottom = at.y + 1;
    }
    return block;
}

BOOL Paint(HDC handle, int x, int y, int width, int height, Operation operation) {
    const Drawing drawing(handle);
    if (!drawing) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        const Block block = BlockOf(*drawing, x, y, width, height);
        const Ink ink = BrushInk(*drawing, operation);
        if (!ink.none) {
            Combine(*drawing, block.rect, operation, &ink);
        }
        return TRUE;
    });
}

MonoColours ColoursOf(const DeviceContext& to, const DeviceContext& from) {
    return {to.state.textColour, to.state.backColour, from.state.backColour};
}

}  // namespace

BOOL WINAPI PatBlt(HDC context, int x, int y, int width, int height, DWORD operation) {
    if (UsesSource(OperationOf(operation))) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return Paint(context, x, y, width, height, OperationOf(operation));
}

BOOL WINAPI BitBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                   DWORD operation) {
    if (!UsesSource(OperationOf(operation))) {
        return Paint(context, x, y, width, height, OperationOf(operation));
    }
    const Drawing to(context);
    const Drawing from(source);
    if (!to || !from) {
        return FALSE;
    }
    if (width <= 0 || height <= 0) {
        return StretchBlt(context, x, y, width, height, source, sourceX, sourceY, width, height, operation);
    }
    return Guarded(FALSE, [&] {
        const RECT target = BlockOf(*to, x, y, width, height).rect;
        const RECT read = BlockOf(*from, sourceX, sourceY, width, height).rect;
        DrawSurface(*to, target, from->surface, read, false, false, OperationOf(operation), ColoursOf(*to, *from));
        return TRUE;
    });
}

BOOL WINAPI StretchBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                       int sourceWidth, int sourceHeight, DWORD operation) {
    if (!UsesSource(OperationOf(operation))) {
        return Paint(context, x, y, width, height, OperationOf(operation));
    }
    const Drawing to(context);
    const Drawing from(source);
    if (!to || !from) {
        return FALSE;
    }
    if (width == 0 || height == 0 || sourceWidth == 0 || sourceHeight == 0) {
        return TRUE;
    }
    return Guarded(FALSE, [&] {
        const Block target = BlockOf(*to, x, y, width, height);
        const Block read = BlockOf(*from, sourceX, sourceY, sourceWidth, sourceHeight);
        DrawSurface(*to, target.rect, from->surface, read.rect, target.backX != read.backX, target.backY != read.backY,
                    OperationOf(operation), ColoursOf(*to, *from));
        return TRUE;
    });
}
