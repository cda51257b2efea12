#include "gdi/surface/region.h"

#include <cstdint>
#include <utility>

namespace platform::gdi {

static_assert(sizeof(pixman_box32_t) == sizeof(RECT) && sizeof(pixman_box32_t::x1) == sizeof(LONG));

namespace {

// The library counts a rectangle's sides unsigned, so one that is wider than 31 bits is cut to what a screen can hold.
RECT Sane(const RECT& rect) {
    constexpr LONG kFar = 1 << 29;
    const auto clamp = [](LONG value) { return value < -kFar ? -kFar : value > kFar ? kFar : value; };
    return {clamp(rect.left), clamp(rect.top), clamp(rect.right), clamp(rect.bottom)};
}

pixman_box32_t Box(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

}  // namespace

Region::Region() noexcept {
    pixman_region32_init(&region_);
}

Region::Region(const RECT& rect) noexcept {
    pixman_region32_init(&region_);
    Set(rect);
}

Region::Region(std::span<const RECT> rects) noexcept {
    if (!pixman_region32_init_rects(&region_, reinterpret_cast<const pixman_box32_t*>(rects.data()),
                                    static_cast<int>(rects.size()))) {
        pixman_region32_init(&region_);
    }
}

Region::Region(const Region& other) noexcept {
    pixman_region32_init(&region_);
    pixman_region32_copy(&region_, &other.region_);
}

Region::Region(Region&& other) noexcept : region_(other.region_) {
    pixman_region32_init(&other.region_);
}

Region& Region::operator=(const Region& other) noexcept {
    if (this != &other) {
        pixman_region32_copy(&region_, &other.region_);
    }
    return *this;
}

Region& Region::operator=(Region&& other) noexcept {
    if (this != &other) {
        pixman_region32_fini(&region_);
        region_ = other.region_;
        pixman_region32_init(&other.region_);
    }
    return *this;
}

Region::~Region() {
    pixman_region32_fini(&region_);
}

bool Region::Empty() const noexcept {
    return !pixman_region32_not_empty(&region_);
}

bool Region::Valid() const noexcept {
    return pixman_region32_selfcheck(&region_);
}

bool Region::IsRect() const noexcept {
    return region_.data == nullptr;
}

RECT Region::Bounds() const noexcept {
    if (Empty()) {
        return {};
    }
    const pixman_box32_t& box = region_.extents;
    return {box.x1, box.y1, box.x2, box.y2};
}

bool Region::Contains(POINT point) const noexcept {
    return pixman_region32_contains_point(&region_, point.x, point.y, nullptr);
}

bool Region::Touches(const RECT& rect) const noexcept {
    pixman_box32_t box = Box(rect);
    return Holds(rect) && pixman_region32_contains_rectangle(&region_, &box) != PIXMAN_REGION_OUT;
}

bool Region::operator==(const Region& other) const noexcept {
    if (Empty() || other.Empty()) {
        return Empty() == other.Empty();
    }
    return pixman_region32_equal(&region_, &other.region_);
}

void Region::Clear() noexcept {
    pixman_region32_clear(&region_);
}

void Region::Set(const RECT& rect) noexcept {
    Clear();
    if (const RECT sane = Sane(rect); Holds(sane)) {
        pixman_box32_t box = Box(sane);
        pixman_region32_reset(&region_, &box);
    }
}

void Region::Offset(int dx, int dy) noexcept {
    if (!Empty()) {
        pixman_region32_translate(&region_, dx, dy);
    }
}

Region& Region::Union(const Region& other) noexcept {
    pixman_region32_union(&region_, &region_, &other.region_);
    return *this;
}

Region& Region::Intersect(const Region& other) noexcept {
    pixman_region32_intersect(&region_, &region_, &other.region_);
    return *this;
}

Region& Region::Intersect(const RECT& rect) noexcept {
    return Intersect(Region(rect));
}

Region& Region::Subtract(const Region& other) noexcept {
    pixman_region32_subtract(&region_, &region_, &other.region_);
    return *this;
}

Region& Region::Subtract(const RECT& rect) noexcept {
    return Subtract(Region(rect));
}

std::span<const RECT> Region::Rects() const noexcept {
    int count = 0;
    const pixman_box32_t* boxes = pixman_region32_rectangles(&region_, &count);
    if (Empty()) {
        count = 0;
    }
    return {reinterpret_cast<const RECT*>(boxes), static_cast<std::size_t>(count)};
}

}  // namespace platform::gdi
