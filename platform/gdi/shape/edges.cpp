// The bevels of the 1995 look: an outer and an inner line, each raised or sunken.
#include <algorithm>

#include "gdi/shape/system_ink.h"

namespace platform::gdi {

namespace {

struct Bevel {
    int topLeft;
    int bottomRight;
};

Bevel OuterBevel(UINT edge, UINT flags) {
    if (flags & BF_FLAT) {
        return {COLOR_BTNSHADOW, COLOR_BTNSHADOW};
    }
    if (edge & BDR_RAISEDOUTER) {
        return {flags & BF_SOFT ? COLOR_BTNHIGHLIGHT : COLOR_3DLIGHT, COLOR_3DDKSHADOW};
    }
    return {flags & BF_SOFT ? COLOR_3DDKSHADOW : COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT};
}

Bevel InnerBevel(UINT edge, UINT flags) {
    if (flags & BF_FLAT) {
        return {COLOR_BTNFACE, COLOR_BTNFACE};
    }
    if (edge & BDR_RAISEDINNER) {
        return {flags & BF_SOFT ? COLOR_3DLIGHT : COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW};
    }
    return {flags & BF_SOFT ? COLOR_BTNSHADOW : COLOR_3DDKSHADOW, COLOR_3DLIGHT};
}

/// The bottom and right lines own the corners they share with the others.
void Layer(SystemPainter& painter, RECT& rect, const Bevel& bevel, UINT flags) {
    if (flags & BF_LEFT) {
        painter.Fill(rect.left, rect.top, rect.left + 1, rect.bottom, bevel.topLeft);
    }
    if (flags & BF_TOP) {
        painter.Fill(rect.left, rect.top, rect.right, rect.top + 1, bevel.topLeft);
    }
    if (flags & BF_RIGHT) {
        painter.Fill(rect.right - 1, rect.top, rect.right, rect.bottom, bevel.bottomRight);
    }
    if (flags & BF_BOTTOM) {
        painter.Fill(rect.left, rect.bottom - 1, rect.right, rect.bottom, bevel.bottomRight);
    }
    rect.left += flags & BF_LEFT ? 1 : 0;
    rect.top += flags & BF_TOP ? 1 : 0;
    rect.right -= flags & BF_RIGHT ? 1 : 0;
    rect.bottom -= flags & BF_BOTTOM ? 1 : 0;
}

}  // namespace

void SystemPainter::Dither(const RECT& rect, int first, int second) {
    const std::uint32_t a = NativeColour(context_.surface, SystemColourPixel(first));
    const std::uint32_t b = NativeColour(context_.surface, SystemColourPixel(second));
    Ink ink;
    ink.width = ink.height = 2;
    ink.origin = context_.origin;
    ink.tile = {a, b, b, a};
    Combine(context_, context_.ToSurface(rect), kCopyPattern, &ink);
}

bool PaintEdge(SystemPainter& painter, RECT& rect, UINT edge, UINT flags) {
    if ((edge & BDR_OUTER) == BDR_OUTER || (edge & BDR_INNER) == BDR_INNER) {
        return false;
    }
    RECT inside = rect;
    if (edge & BDR_OUTER) {
        Layer(painter, inside, OuterBevel(edge, flags), flags);
    }
    if (edge & BDR_INNER) {
        Layer(painter, inside, InnerBevel(edge, flags), flags);
    }
    if (flags & BF_MIDDLE) {
        painter.Fill(inside, COLOR_BTNFACE);
    }
    if (flags & BF_ADJUST) {
        rect = inside;
    }
    return true;
}

}  // namespace platform::gdi

using namespace platform::gdi;

BOOL WINAPI DrawEdge(HDC handle, LPRECT rect, UINT edge, UINT flags) {
    return DrawIn(handle, [&](DeviceContext& context) {
        SystemPainter painter(context);
        return BOOL{rect && PaintEdge(painter, *rect, edge, flags)};
    });
}
