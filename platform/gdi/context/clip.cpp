// The clip region of device contexts.
#include "gdi/context/context.h"

using namespace platform::gdi;

namespace platform::gdi {

int Complexity(const Region& region) {
    return region.Empty() ? NULLREGION : region.IsRect() ? SIMPLEREGION : COMPLEXREGION;
}

}  // namespace platform::gdi

namespace {

/// What can be drawn to, in device coordinates: where a first clip region comes from.
Region DeviceArea(const DeviceContext& context) {
    Region area(context.visible);
    area.Offset(-context.origin.x, -context.origin.y);
    return area;
}

Region DeviceRect(const DeviceContext& context, int left, int top, int right, int bottom) {
    const POINT a = context.ToDevice(left < right ? left : right, top < bottom ? top : bottom);
    const POINT b = context.ToDevice(left < right ? right : left, top < bottom ? bottom : top);
    return Region(RECT{a.x, a.y, b.x, b.y});
}

int Result(DeviceContext& context) {
    context.ClipChanged();
    return Complexity(context.Drawable());
}

}  // namespace

int WINAPI GetClipBox(HDC handle, LPRECT box) {
    const Drawing drawing(handle);
    if (!drawing || !box) {
        return ERROR;
    }
    const Region& area = drawing->Drawable();
    const RECT bounds = area.Bounds();
    *box = {};
    if (!area.Empty()) {
        const POINT zero = drawing->ToSurface(0, 0);
        *box = {bounds.left - zero.x, bounds.top - zero.y, bounds.right - zero.x, bounds.bottom - zero.y};
    }
    return Complexity(area);
}

int WINAPI GetClipRgn(HDC handle, HRGN region) {
    const auto* context = FindObject<DeviceContext>(handle);
    auto* object = FindObject<RegionObject>(region);
    if (!context || !object) {
        return -1;
    }
    if (!context->state.clip) {
        return 0;
    }
    object->region = *context->state.clip;
    return 1;
}

int WINAPI SelectClipRgn(HDC handle, HRGN region) {
    return ExtSelectClipRgn(handle, region, RGN_COPY);
}

int WINAPI ExtSelectClipRgn(HDC handle, HRGN region, int mode) {
    const Drawing drawing(handle);
    if (!drawing) {
        return ERROR;
    }
    std::optional<Region>& clip = drawing->state.clip;
    if (!region) {
        if (mode != RGN_COPY) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return ERROR;
        }
        clip.reset();
        return Result(*drawing);
    }
    const auto* object = FindObject<RegionObject>(region);
    if (!object) {
        return ERROR;
    }
    const Region& other = object->region;
    if (mode == RGN_COPY) {
        clip = other;
        return Result(*drawing);
    }
    if (!clip) {
        clip = DeviceArea(*drawing);
    }
    switch (mode) {
        case RGN_AND:
            clip->Intersect(other);
            break;
        case RGN_OR:
            clip->Union(other);
            break;
        case RGN_DIFF:
            clip->Subtract(other);
            break;
        case RGN_XOR: {
            Region both(*clip);
            both.Intersect(other);
            clip->Union(other).Subtract(both);
            break;
        }
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return ERROR;
    }
    return Result(*drawing);
}

int WINAPI IntersectClipRect(HDC handle, int left, int top, int right, int bottom) {
    const Drawing drawing(handle);
    if (!drawing) {
        return ERROR;
    }
    Region rect = DeviceRect(*drawing, left, top, right, bottom);
    if (drawing->state.clip) {
        drawing->state.clip->Intersect(rect);
    } else {
        drawing->state.clip = std::move(rect);
    }
    return Result(*drawing);
}

int WINAPI ExcludeClipRect(HDC handle, int left, int top, int right, int bottom) {
    const Drawing drawing(handle);
    if (!drawing) {
        return ERROR;
    }
    if (!drawing->state.clip) {
        drawing->state.clip = DeviceArea(*drawing);
    }
    drawing->state.clip->Subtract(DeviceRect(*drawing, left, top, right, bottom));
    return Result(*drawing);
}

int WINAPI OffsetClipRgn(HDC handle, int dx, int dy) {
    const Drawing drawing(handle);
    if (!drawing) {
        return ERROR;
    }
    if (drawing->state.clip) {
        drawing->state.clip->Offset(dx, dy);
    }
    return Result(*drawing);
}

BOOL WINAPI PtVisible(HDC handle, int x, int y) {
    const Drawing drawing(handle);
    return drawing && drawing->Drawable().Contains(drawing->ToSurface(x, y));
}

BOOL WINAPI RectVisible(HDC handle, const RECT* rect) {
    const Drawing drawing(handle);
    return drawing && rect && drawing->Drawable().Touches(drawing->ToSurface(*rect));
}
