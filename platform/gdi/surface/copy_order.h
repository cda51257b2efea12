/// @file copy_order.h
/// In what order the rectangles of a region may be moved when source and destination overlap.
#pragma once

#include <windef.h>

#include <cstddef>
#include <span>

namespace platform::gdi {

/// Calls copy(rect) for destination rectangles (bands from the top, left to right within a band, as regions hold them)
/// so that nothing that is still to be read is overwritten: bands go against the move, and so do the rectangles of a
/// band.
template <class Copy>
void ForEachAgainstMove(std::span<const RECT> rects, int dx, int dy, Copy&& copy) {
    std::size_t low = 0;
    std::size_t high = rects.size();
    while (low < high) {
        std::size_t begin = low;
        std::size_t end = high;
        if (dy > 0) {
            begin = end - 1;
            while (begin > low && rects[begin - 1].top == rects[begin].top) {
                --begin;
            }
            high = begin;
        } else {
            end = begin + 1;
            while (end < high && rects[end].top == rects[begin].top) {
                ++end;
            }
            low = end;
        }
        for (std::size_t i = 0; i < end - begin; ++i) {
            copy(dx > 0 ? rects[end - 1 - i] : rects[begin + i]);
        }
    }
}

/// Calls row(y) for the rows of a rectangle against a vertical move.
template <class Row>
void ForEachRowAgainstMove(const RECT& rect, int dy, Row&& row) {
    if (dy > 0) {
        for (int y = rect.bottom; y-- > rect.top;) {
            row(y);
        }
    } else {
        for (int y = rect.top; y < rect.bottom; ++y) {
            row(y);
        }
    }
}

}  // namespace platform::gdi
