// The clip region of device contexts.
#include "gdi/context/context.h"

#include <algorithm>

#include "gdi/context/device_context.h"

using namespace platform::gdi;

namespace {

int Complexity(const Region& region) {
    return region.Empty() ? NULLREGION : region.IsRect() ? SIMPLEREGION : COMPLEXREGION;
}

/// What can be drawn to, in device coordinates: where a first clip region comes from.
Region DeviceArea(const DeviceContext& context) {
    Region area(context.visible);
    area.Offset(-context.origin.x, -context.origin.y);
    return area;
}

}  // namespace

namespace platform::gdi {

RECT ClipBounds(HDC handle) {
    const Drawing drawing(handle);
    if (!drawing || drawing->Drawable().Empty()) {
        return {};
    }
    RECT bounds = drawing->Drawable().Bounds();
    OffsetRect(&bounds, -drawing->origin.x, -drawing->origin.y);
    return bounds;
}

void ExcludeFromClip(HDC handle, const RECT& rect) {
    const Drawing drawing(handle);
    if (drawing) {
        if (!drawing->state.clip) {
            drawing->state.clip = DeviceArea(*drawing);
        }
        drawing->state.clip->Subtract(rect);
        drawing->ClipChanged();
    }
}

}  // namespace platform::gdi

int WINAPI IntersectClipRect(HDC handle, int left, int top, int right, int bottom) {
    const Drawing drawing(handle);
    if (!drawing) {
        return ERROR;
    }
    Region rect(RECT{Near(std::min(left, right)), Near(std::min(top, bottom)), Near(std::max(left, right)),
                     Near(std::max(top, bottom))});
    if (drawing->state.clip) {
        drawing->state.clip->Intersect(rect);
    } else {
        drawing->state.clip = std::move(rect);
    }
    drawing->ClipChanged();
    return Complexity(drawing->Drawable());
}
