// Region objects: the public face of Region.
#include <algorithm>

#include "gdi/context/context.h"
#include "gdi/context/device_context.h"
#include "gdi/shape/shapes.h"

namespace platform::gdi {

Region RegionOf(HRGN region) {
    const auto* object = base::Find<RegionObject>(region, RegionObject::kKind);
    return object ? object->region : Region();
}

bool AssignRegion(HRGN region, const Region& value) {
    auto* object = base::Find<RegionObject>(region, RegionObject::kKind);
    if (object) {
        object->region = value;
    }
    return object != nullptr;
}

HRGN MakeRegionObject(const Region& value) {
    auto object = NewObject<RegionObject>();
    if (object) {
        object->region = value;
    }
    return FileObject<HRGN>(std::move(object));
}

}  // namespace platform::gdi

using namespace platform::gdi;

namespace {

RECT Ordered(int left, int top, int right, int bottom) {
    return {std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom)};
}

}  // namespace

HRGN WINAPI CreateRectRgn(int left, int top, int right, int bottom) {
    return MakeRegionObject(Region(Ordered(left, top, right, bottom)));
}

HRGN WINAPI CreateRectRgnIndirect(const RECT* rect) {
    return rect ? CreateRectRgn(rect->left, rect->top, rect->right, rect->bottom) : nullptr;
}

HRGN WINAPI CreateEllipticRgn(int left, int top, int right, int bottom) {
    return Guarded<HRGN>(nullptr, [&] { return MakeRegionObject(EllipseArea(Ordered(left, top, right, bottom))); });
}

HRGN WINAPI CreateRoundRectRgn(int left, int top, int right, int bottom, int width, int height) {
    return Guarded<HRGN>(
        nullptr, [&] { return MakeRegionObject(RoundRectArea(Ordered(left, top, right, bottom), width, height)); });
}

HRGN WINAPI CreatePolygonRgn(const POINT* points, int count, int mode) {
    if (!points || count < 2 || mode < ALTERNATE || mode > WINDING) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return Guarded<HRGN>(nullptr, [&] {
        return MakeRegionObject(PolygonArea({points, static_cast<std::size_t>(count)}, mode == WINDING));
    });
}

int WINAPI CombineRgn(HRGN result, HRGN first, HRGN second, int mode) {
    auto* target = FindObject<RegionObject>(result);
    const auto* a = FindObject<RegionObject>(first);
    if (!target || !a) {
        return ERROR;
    }
    if (mode == RGN_COPY) {
        target->region = a->region;
        return Complexity(target->region);
    }
    const auto* b = FindObject<RegionObject>(second);
    if (!b) {
        return ERROR;
    }
    Region combined(a->region);
    switch (mode) {
        case RGN_AND:
            combined.Intersect(b->region);
            break;
        case RGN_OR:
            combined.Union(b->region);
            break;
        case RGN_DIFF:
            combined.Subtract(b->region);
            break;
        case RGN_XOR: {
            Region both(combined);
            both.Intersect(b->region);
            combined.Union(b->region).Subtract(both);
            break;
        }
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return ERROR;
    }
    target->region = std::move(combined);
    return Complexity(target->region);
}

int WINAPI OffsetRgn(HRGN region, int dx, int dy) {
    auto* object = FindObject<RegionObject>(region);
    if (!object) {
        return ERROR;
    }
    object->region.Offset(dx, dy);
    return Complexity(object->region);
}

int WINAPI GetRgnBox(HRGN region, LPRECT box) {
    const auto* object = FindObject<RegionObject>(region);
    if (!object || !box) {
        return ERROR;
    }
    *box = object->region.Bounds();
    return Complexity(object->region);
}

BOOL WINAPI PtInRegion(HRGN region, int x, int y) {
    const auto* object = FindObject<RegionObject>(region);
    return object && object->region.Contains(POINT{x, y});
}

BOOL WINAPI RectInRegion(HRGN region, const RECT* rect) {
    const auto* object = FindObject<RegionObject>(region);
    return object && rect && object->region.Touches(Ordered(rect->left, rect->top, rect->right, rect->bottom));
}

BOOL WINAPI EqualRgn(HRGN first, HRGN second) {
    const auto* a = FindObject<RegionObject>(first);
    const auto* b = FindObject<RegionObject>(second);
    return a && b && a->region == b->region;
}

BOOL WINAPI SetRectRgn(HRGN region, int left, int top, int right, int bottom) {
    auto* object = FindObject<RegionObject>(region);
    if (!object) {
        return FALSE;
    }
    object->region.Set(Ordered(left, top, right, bottom));
    return TRUE;
}
