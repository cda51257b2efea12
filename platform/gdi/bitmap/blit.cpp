// Moving blocks of pixels between contexts.
#include <algorithm>

#include "gdi/bitmap/convert.h"

namespace platform::gdi {

namespace {

Ink BrushInk(const DeviceContext& context, Operation operation) {
    return UsesPattern(operation) ? InkOf(context, *context.state.brush) : Ink{};
}

bool ReadsItself(const Surface& from, const Surface& to) {
    return from.bits == to.bits && from.stride == to.stride;
}

}  // namespace

void DrawSurface(DeviceContext& context, const RECT& target, const Surface& from, const RECT& source, Shrink shrink,
                 Operation operation, const MonoColours& colours) {
    if (!Holds(target) || !Holds(source)) {
        return;
    }
    const Ink ink = BrushInk(context, operation);
    const Surface& to = context.surface;
    const RECT bounds = context.Drawable().Bounds();
    const bool stretched = target.right - target.left != source.right - source.left ||
                           target.bottom - target.top != source.bottom - source.top;
    if (stretched) {
        const RECT part = Cut(target, bounds);
        if (Holds(part) && from.width > 0 && from.height > 0) {
            BufferRows rows(part, Stretched(from, source, target, part, shrink, to, colours));
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
        const RECT read{part.left - dx, part.top - dy, part.right - dx, part.bottom - dy};
        if (Holds(Cut(part, read))) {
            BufferRows rows(part, Stretched(from, read, part, part, shrink, to, colours));
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

RECT BlockOf(const DeviceContext& context, int x, int y, int width, int height) {
    const POINT at = context.ToSurface(x, y);
    return {at.x, at.y, at.x + Near(width), at.y + Near(height)};
}

BOOL Paint(HDC handle, int x, int y, int width, int height, Operation operation) {
    return DrawIn(handle, [&](DeviceContext& context) {
        const Ink ink = BrushInk(context, operation);
        if (!ink.none) {
            Combine(context, BlockOf(context, x, y, width, height), operation, &ink);
        }
        return TRUE;
    });
}

}  // namespace

BOOL WINAPI PatBlt(HDC context, int x, int y, int width, int height, DWORD operation) {
    if (UsesSource(OperationOf(operation))) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    return Paint(context, x, y, width, height, OperationOf(operation));
}

BOOL WINAPI BitBlt(HDC context, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                   DWORD operation) {
    return StretchBlt(context, x, y, width, height, source, sourceX, sourceY, width, height, operation);
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
    return Guarded(FALSE, [&] {
        DrawSurface(*to, BlockOf(*to, x, y, width, height), from->surface,
                    BlockOf(*from, sourceX, sourceY, sourceWidth, sourceHeight), Shrink::Mix, OperationOf(operation),
                    {to->state.textColour, to->state.backColour, from->state.backColour});
        return TRUE;
    });
}
