// Arithmetic on rectangles.
#include <windows.h>

#include "gdi/surface/region.h"

using platform::gdi::Around;
using platform::gdi::Cut;
using platform::gdi::Holds;

namespace {

/// Coordinates wrap at 32 bits, as the calls always did.
LONG Plus(LONG value, int delta) {
    return static_cast<LONG>(static_cast<unsigned>(value) + static_cast<unsigned>(delta));
}

}  // namespace

BOOL WINAPI SetRect(LPRECT rect, int left, int top, int right, int bottom) {
    if (!rect) {
        return FALSE;
    }
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL WINAPI SetRectEmpty(LPRECT rect) {
    return SetRect(rect, 0, 0, 0, 0);
}

BOOL WINAPI CopyRect(LPRECT rect, const RECT* source) {
    if (!rect || !source) {
        return FALSE;
    }
    *rect = *source;
    return TRUE;
}

BOOL WINAPI InflateRect(LPRECT rect, int dx, int dy) {
    if (!rect) {
        return FALSE;
    }
    const int outX = static_cast<int>(0u - static_cast<unsigned>(dx));
    const int outY = static_cast<int>(0u - static_cast<unsigned>(dy));
    *rect = {Plus(rect->left, outX), Plus(rect->top, outY), Plus(rect->right, dx), Plus(rect->bottom, dy)};
    return TRUE;
}

BOOL WINAPI OffsetRect(LPRECT rect, int dx, int dy) {
    if (!rect) {
        return FALSE;
    }
    *rect = {Plus(rect->left, dx), Plus(rect->top, dy), Plus(rect->right, dx), Plus(rect->bottom, dy)};
    return TRUE;
}

BOOL WINAPI IntersectRect(LPRECT rect, const RECT* first, const RECT* second) {
    if (!rect) {
        return FALSE;
    }
    const RECT common = first && second && Holds(*first) && Holds(*second) ? Cut(*first, *second) : RECT{};
    *rect = Holds(common) ? common : RECT{};
    return Holds(common);
}

BOOL WINAPI UnionRect(LPRECT rect, const RECT* first, const RECT* second) {
    if (!rect || !first || !second) {
        return FALSE;
    }
    const bool holds[] = {Holds(*first), Holds(*second)};
    *rect = holds[0] && holds[1] ? Around(*first, *second) : holds[0] ? *first : holds[1] ? *second : RECT{};
    return holds[0] || holds[1];
}

BOOL WINAPI PtInRect(const RECT* rect, POINT point) {
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

BOOL WINAPI IsRectEmpty(const RECT* rect) {
    return !rect || !Holds(*rect);
}

BOOL WINAPI EqualRect(const RECT* first, const RECT* second) {
    return first && second && first->left == second->left && first->top == second->top &&
           first->right == second->right && first->bottom == second->bottom;
}
