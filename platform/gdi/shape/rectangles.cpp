// Arithmetic on rectangles.
#include <windows.h>

#include <algorithm>

namespace {

bool Empty(const RECT& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

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
    RECT common{};
    if (first && second && !Empty(*first) && !Empty(*second)) {
        common = {std::max(first->left, second->left), std::max(first->top, second->top),
                  std::min(first->right, second->right), std::min(first->bottom, second->bottom)};
    }
    if (Empty(common)) {
        SetRectEmpty(rect);
        return FALSE;
    }
    *rect = common;
    return TRUE;
}

BOOL WINAPI UnionRect(LPRECT rect, const RECT* first, const RECT* second) {
    if (!rect || !first || !second) {
        return FALSE;
    }
    if (Empty(*first)) {
        if (Empty(*second)) {
            SetRectEmpty(rect);
            return FALSE;
        }
        *rect = *second;
    } else if (Empty(*second)) {
        *rect = *first;
    } else {
        *rect = {std::min(first->left, second->left), std::min(first->top, second->top),
                 std::max(first->right, second->right), std::max(first->bottom, second->bottom)};
    }
    return TRUE;
}

BOOL WINAPI PtInRect(const RECT* rect, POINT point) {
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

BOOL WINAPI IsRectEmpty(const RECT* rect) {
    return !rect || Empty(*rect);
}

BOOL WINAPI EqualRect(const RECT* first, const RECT* second) {
    return first && second && first->left == second->left && first->top == second->top &&
           first->right == second->right && first->bottom == second->bottom;
}
