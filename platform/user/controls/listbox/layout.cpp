// Where the items of a list box lie, and how it scrolls.
#include <algorithm>
#include <cstdint>

#include "user/controls/listbox/list.h"
#include "user/painting/painting.h"

namespace platform::user {

RECT ListClient(const ListData& list) {
    RECT client{};
    GetClientRect(list.window, &client);
    return client;
}

int RowsOf(const ListData& list) {
    return std::max(1, static_cast<int>(ListClient(list).bottom) / std::max(1, list.itemHeight));
}

namespace {

int ColumnsInView(const ListData& list) {
    return std::max(1, static_cast<int>(ListClient(list).right) / std::max(1, list.columnWidth));
}

}  // namespace

int PageOf(const ListData& list) {
    return list.Columns() ? RowsOf(list) * ColumnsInView(list) : RowsOf(list);
}

int LastTop(const ListData& list) {
    const int count = list.items.Count();
    if (list.Columns()) {
        const int rows = RowsOf(list);
        const int columns = (count + rows - 1) / rows;
        return std::max(0, columns - ColumnsInView(list)) * rows;
    }
    return std::max(0, count - RowsOf(list));
}

namespace {

/// A distance of many items: no screen is as wide as this, and numbers do not overflow.
LONG Distance(int count, int each) {
    constexpr std::int64_t kFar = 1 << 30;
    return static_cast<LONG>(std::clamp(std::int64_t{count} * each, -kFar, kFar));
}

}  // namespace

RECT RectOf(const ListData& list, int index) {
    const RECT client = ListClient(list);
    if (list.Columns()) {
        const int rows = RowsOf(list);
        const int from = index - list.top;
        const int column = from >= 0 ? from / rows : -((rows - 1 - from) / rows);
        const int row = from - column * rows;
        return {Distance(column, list.columnWidth), Distance(row, list.itemHeight),
                Distance(column + 1, list.columnWidth), Distance(row + 1, list.itemHeight)};
    }
    const LONG top = Distance(index - list.top, list.itemHeight);
    return {0, top, client.right, top + list.itemHeight};
}

int ItemAt(const ListData& list, POINT point, bool* outside) {
    const RECT client = ListClient(list);
    *outside = !PtInRect(&client, point);
    const int count = list.items.Count();
    if (count == 0)
        return -1;
    int index = list.top;
    if (list.Columns()) {
        const int rows = RowsOf(list);
        const int width = std::max(1, list.columnWidth);
        const int column = point.x >= 0 ? static_cast<int>(point.x) / width : -1;
        const int row = std::clamp(static_cast<int>(point.y) / std::max(1, list.itemHeight), 0, rows - 1);
        index += column * rows + row;
    } else {
        index += point.y >= 0 ? static_cast<int>(point.y) / std::max(1, list.itemHeight) : -1;
    }
    return std::clamp(index, 0, count - 1);
}

void FitHeight(ListData& list) {
    const DWORD style = list.Style();
    if ((style & LBS_NOINTEGRALHEIGHT) || list.fitting || list.itemHeight <= 0)
        return;
    const RECT client = ListClient(list);
    const int spare = client.bottom % list.itemHeight;
    RECT rect{};
    if (spare == 0 || client.bottom < list.itemHeight || !GetWindowRect(list.window, &rect))
        return;
    list.fitting = true;
    SetWindowPos(list.window, nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top - spare,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    list.fitting = false;
}

namespace {

void SetBar(ListData& list, int bar, int last, int page, int position) {
    const SCROLLINFO info{
        sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS, 0, std::max(0, last), static_cast<UINT>(page), position, 0};
    SetScrollInfo(list.window, bar, &info, list.redraw);
}

}  // namespace

void UpdateBars(ListData& list) {
    if (!list.redraw)
        return;
    const int rows = RowsOf(list);
    if (list.vertical && !list.Columns())
        SetBar(list, SB_VERT, list.items.Count() - 1, rows, list.top);
    if (list.horizontal && list.Columns())
        SetBar(list, SB_HORZ, (list.items.Count() + rows - 1) / rows - 1, ColumnsInView(list), list.top / rows);
    const int last = LastTop(list);
    if (list.top > last)
        ScrollTo(list, last);
}

void ScrollTo(ListData& list, int top) {
    top = std::clamp(top, 0, LastTop(list));
    if (list.Columns())
        top -= top % RowsOf(list);
    if (top == list.top)
        return;
    const RECT client = ListClient(list);
    const RECT place = RectOf(list, top);
    list.top = top;
    if (list.Columns()) {
        if (list.horizontal)
            SetScrollPos(list.window, SB_HORZ, top / RowsOf(list), list.redraw);
    } else if (list.vertical) {
        SetScrollPos(list.window, SB_VERT, top, list.redraw);
    }
    if (!list.redraw || !IsWindowVisible(list.window))
        return;
    if (list.Columns() || place.top >= client.bottom || place.top <= -client.bottom)
        InvalidateRect(list.window, nullptr, TRUE);
    else
        ScrollClient(list.window, 0, -place.top, true);
}

void Reveal(ListData& list, int index) {
    if (!list.items.Has(index))
        return;
    if (index < list.top) {
        ScrollTo(list, index);
    } else if (list.Columns()) {
        const int rows = RowsOf(list);
        const int beyond = index / rows - list.top / rows - ColumnsInView(list) + 1;
        if (beyond > 0)
            ScrollTo(list, list.top + beyond * rows);
    } else if (index >= list.top + PageOf(list)) {
        ScrollTo(list, index - PageOf(list) + 1);
    }
}

void OnScroll(ListData& list, bool vertical, WPARAM wParam) {
    const int bar = vertical ? SB_VERT : SB_HORZ;
    const bool columns = list.Columns();
    const int step = columns ? RowsOf(list) : 1;
    const int page = PageOf(list);
    int wanted = list.top;
    switch (LOWORD(wParam)) {
        case SB_LINEUP:
            wanted -= step;
            break;
        case SB_LINEDOWN:
            wanted += step;
            break;
        case SB_PAGEUP:
            wanted -= page;
            break;
        case SB_PAGEDOWN:
            wanted += page;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: {
            wanted = HIWORD(wParam);
            // The message has room for 16 bits only.
            SCROLLINFO info{sizeof info, SIF_RANGE | SIF_TRACKPOS, 0, 0, 0, 0, 0};
            if (GetScrollInfo(list.window, bar, &info) && info.nMax > 0xFFFF)
                wanted = info.nTrackPos;
            if (columns)
                wanted *= step;
            break;
        }
        case SB_TOP:
            wanted = 0;
            break;
        case SB_BOTTOM:
            wanted = LastTop(list);
            break;
        default:
            return;
    }
    ScrollTo(list, wanted);
    UpdateWindow(list.window);
}

}  // namespace platform::user
