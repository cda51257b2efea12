// How the items of a list box look, and how their owner is asked to draw them.
#include <algorithm>

#include "user/controls/listbox/list.h"
#include "user/frame/nonclient.h"

namespace platform::user {
namespace {

constexpr int kTextInset = 2;

/// A drawing context set up as for painting, for as long as it lasts.
struct Brush {
    HDC context;
    HBRUSH ground;
    int saved;

    Brush(const ListData& list, HDC given) : context(given), saved(SaveDC(given)) {
        if (list.font)
            SelectObject(context, list.font);
        // The owner of a combo box colours its list as well.
        ground = AskForBrush(OwnerOf(list).parent, WM_CTLCOLORLISTBOX, context, list.window);
    }
    ~Brush() {
        RestoreDC(context, saved);
    }
    Brush(const Brush&) = delete;
    Brush& operator=(const Brush&) = delete;
};

bool ShowsCaret(const ListData& list, int index) {
    return list.focused && index == list.caret;
}

void AskOwner(const ListData& list, HDC context, int index, const RECT& rect, UINT action, bool focus) {
    const ListOwner owner = OwnerOf(list);
    const UINT state = (index >= 0 && list.IsSelected(index) ? UINT{ODS_SELECTED} : 0U) |
                       (focus ? UINT{ODS_FOCUS} : 0U) | (list.Style() & WS_DISABLED ? UINT{ODS_DISABLED} : 0U);
    AskToDraw({owner.kind, 0, static_cast<UINT>(index), action, state, owner.control, context, rect,
               index >= 0 ? list.items[index].data : 0});
}

void DrawOwnItem(const ListData& list, const Brush& brush, int index, RECT rect) {
    const HDC context = brush.context;
    const bool disabled = (list.Style() & WS_DISABLED) != 0;
    const bool selected = list.IsSelected(index);
    const COLORREF text = GetTextColor(context);
    const COLORREF ground = GetBkColor(context);
    if (selected) {
        SetTextColor(context, GetSysColor(COLOR_HIGHLIGHTTEXT));
        SetBkColor(context, GetSysColor(COLOR_HIGHLIGHT));
    } else {
        FillRect(context, &rect, brush.ground);
    }
    if (disabled)
        SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
    const std::string& label = list.items[index].text;
    ExtTextOutA(context, rect.left + kTextInset, rect.top, ETO_OPAQUE | ETO_CLIPPED, &rect, label.c_str(),
                static_cast<UINT>(label.size()), nullptr);
    if (ShowsCaret(list, index))
        DrawFocusRect(context, &rect);
    SetTextColor(context, text);
    SetBkColor(context, ground);
}

/// An owner draws an item as if it had no focus, and the focus apart: a focus rectangle that is drawn by exclusive or comes and
/// goes with ODA_FOCUS alone.
void DrawOwnersItem(ListData& list, const Brush& brush, int index, const RECT& rect, UINT action) {
    const bool focus = ShowsCaret(list, index);
    if (action == ODA_FOCUS) {
        AskOwner(list, brush.context, index, rect, ODA_FOCUS, focus);
        return;
    }
    if (action == ODA_SELECT && focus)
        AskOwner(list, brush.context, index, rect, ODA_FOCUS, false);
    if (list.items.Has(index))
        AskOwner(list, brush.context, index, rect, action, false);
    // A whole list has its focus drawn last.
    if (action == ODA_SELECT && focus && list.items.Has(index) && ShowsCaret(list, index))
        AskOwner(list, brush.context, index, rect, ODA_FOCUS, true);
}

void DrawOne(ListData& list, const Brush& brush, int index, UINT action) {
    const RECT rect = RectOf(list, index);
    if (list.OwnerDrawn())
        DrawOwnersItem(list, brush, index, rect, action);
    else
        DrawOwnItem(list, brush, index, rect);
}

}  // namespace

void PaintItems(ListData& list, HDC context, const RECT& area) {
    const Brush brush(list, context);
    const RECT client = ListClient(list);
    RECT rest = client;
    for (int i = list.top; list.items.Has(i); ++i) {
        const RECT rect = RectOf(list, i);
        if (list.Columns() ? rect.left >= client.right : rect.top >= client.bottom)
            break;
        RECT due{};
        if (IntersectRect(&due, &rect, &area))
            DrawOne(list, brush, i, ODA_DRAWENTIRE);
        if (list.Columns()) {
            // Behind the last row, and below the last item of the last column.
            RECT below{rect.left, rect.bottom, rect.right, client.bottom};
            if (i == list.items.Count() - 1 || i % RowsOf(list) == RowsOf(list) - 1)
                FillRect(context, &below, brush.ground);
            rest.left = rect.right;
        } else {
            rest.top = rect.bottom;
        }
    }
    if (!IsRectEmpty(&rest))
        FillRect(context, &rest, brush.ground);
    RECT focus{};
    if (list.OwnerDrawn() && list.focused && list.items.Has(list.caret)) {
        const RECT rect = RectOf(list, list.caret);
        if (IntersectRect(&focus, &rect, &area))
            AskOwner(list, context, list.caret, rect, ODA_FOCUS, true);
    }
    // An empty list with the focus shows it in the place of its first item.
    if (list.items.Count() == 0 && list.focused) {
        RECT first{0, 0, client.right, std::min<LONG>(client.bottom, list.itemHeight)};
        if (list.OwnerDrawn())
            AskOwner(list, context, -1, first, ODA_FOCUS, true);
        else
            DrawFocusRect(context, &first);
    }
}

void RedrawItem(ListData& list, int index, UINT action) {
    if (!list.redraw || !list.items.Has(index))
        return;
    const RECT rect = RectOf(list, index);
    const RECT client = ListClient(list);
    RECT seen{};
    if (!IntersectRect(&seen, &rect, &client))
        return;
    DrawNow(list.window, [&](HDC context) {
        const Brush brush(list, context);
        if (list.items.Has(index))
            DrawOne(list, brush, index, action);
    });
}

void InvalidateFrom(ListData& list, int index) {
    if (!list.redraw)
        return;
    const RECT client = ListClient(list);
    const int first = std::max(index, list.top);
    // Far below the view: most items of a long list that is being filled.
    if (first - list.top > client.bottom * (list.Columns() ? client.right : 1))
        return;
    RECT area = RectOf(list, first);
    if (list.Columns())
        area.top = 0;
    area.bottom = client.bottom;
    area.right = client.right;
    if (area.top < client.bottom && area.left < client.right)
        InvalidateRect(list.window, &area, TRUE);
}

}  // namespace platform::user
