/// @file region.h
/// Areas of pixels: what windows see, what has to be painted, where drawing may go.
#pragma once

#include <windef.h>

#include <pixman.h>

#include <algorithm>
#include <span>

namespace platform::gdi {

/// @returns what two rectangles have in common; inverted where they have nothing.
inline RECT Cut(const RECT& a, const RECT& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

/// @returns the smallest rectangle around two that hold something.
inline RECT Around(const RECT& a, const RECT& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

/// @returns whether there is a pixel in it.
inline bool Holds(const RECT& rect) {
    return rect.left < rect.right && rect.top < rect.bottom;
}

/// A set of pixels, kept as non-overlapping rectangles in y-x bands. Rectangles exclude right and bottom, and an empty
/// or inverted one adds nothing. When memory runs out the result is empty and Valid() turns false.
class Region {
  public:
    Region() noexcept;
    explicit Region(const RECT& rect) noexcept;
    explicit Region(std::span<const RECT> rects) noexcept;
    Region(const Region& other) noexcept;
    Region(Region&& other) noexcept;
    Region& operator=(const Region& other) noexcept;
    Region& operator=(Region&& other) noexcept;
    ~Region();

    bool Empty() const noexcept;
    bool Valid() const noexcept;
    /// @returns whether the region is one rectangle.
    bool IsRect() const noexcept;
    /// @returns the smallest rectangle around it; all zero when empty.
    RECT Bounds() const noexcept;
    bool Contains(POINT point) const noexcept;
    /// @returns whether any of the rectangle lies inside.
    bool Touches(const RECT& rect) const noexcept;
    bool operator==(const Region& other) const noexcept;

    void Clear() noexcept;
    void Set(const RECT& rect) noexcept;
    void Offset(int dx, int dy) noexcept;
    Region& Union(const Region& other) noexcept;
    Region& Intersect(const Region& other) noexcept;
    Region& Intersect(const RECT& rect) noexcept;
    Region& Subtract(const Region& other) noexcept;
    Region& Subtract(const RECT& rect) noexcept;

    /// The rectangles from top to bottom, and from left to right within a band. Valid until the region changes.
    std::span<const RECT> Rects() const noexcept;

  private:
    mutable pixman_region32_t region_;
};

}  // namespace platform::gdi
