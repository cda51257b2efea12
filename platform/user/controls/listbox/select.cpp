// Which items of a list box are selected, and where the focus rectangle is.
#include <algorithm>

#include "user/controls/listbox/list.h"

namespace platform::user {

void SelectItem(ListData& list, int index, bool selected) {
    if (!list.items.Has(index) || list.IsSelected(index) == selected)
        return;
    if (list.Multiple()) {
        list.items[index].selected = selected;
    } else {
        const int before = list.chosen;
        list.chosen = selected ? index : -1;
        if (before != index)
            RedrawItem(list, before, ODA_SELECT);
    }
    RedrawItem(list, index, ODA_SELECT);
}

void SelectRange(ListData& list, int from, int to) {
    const int low = std::min(from, to);
    const int high = std::max(from, to);
    for (int i = 0; i < list.items.Count(); ++i)
        SelectItem(list, i, i >= low && i <= high);
}

void MoveCaret(ListData& list, int index) {
    const int before = list.caret;
    if (index == before)
        return;
    list.caret = index;
    if (list.focused) {
        RedrawItem(list, before, ODA_FOCUS);
        RedrawItem(list, index, ODA_FOCUS);
    }
}

void SelectOnly(ListData& list, int index) {
    const bool moves = index != list.caret;
    if (moves)
        MoveCaret(list, -1);
    if (list.Multiple())
        SelectRange(list, index, index);
    else
        SelectItem(list, index, true);
    if (moves)
        MoveCaret(list, index);
}

namespace {

LRESULT OnSetCurrent(ListData& list, int index) {
    if (list.Multiple())
        return LB_ERR;
    if (!list.items.Has(index)) {
        if (index == -1)
            SelectItem(list, list.chosen, false);
        return LB_ERR;
    }
    SelectOnly(list, index);
    Reveal(list, index);
    return index;
}

LRESULT OnSetSelected(ListData& list, bool selected, int index) {
    if (!list.Multiple())
        return LB_ERR;
    if (index == -1) {
        for (int i = 0; i < list.items.Count(); ++i)
            SelectItem(list, i, selected);
        return LB_OKAY;
    }
    if (!list.items.Has(index))
        return LB_ERR;
    SelectItem(list, index, selected);
    if (selected) {
        list.anchor = index;
        MoveCaret(list, index);
        Reveal(list, index);
    }
    return LB_OKAY;
}

/// Selects a range, or takes its selection back; it may reach beyond the items.
LRESULT OnSelectRange(ListData& list, int first, int last, bool selected) {
    if (!list.Multiple())
        return LB_ERR;
    for (int i = std::max(0, first); i <= last && list.items.Has(i); ++i)
        SelectItem(list, i, selected);
    return LB_OKAY;
}

/// @returns how many items are selected; writes the first of them to a buffer if there is one.
int Collect(const ListData& list, int* buffer, int room) {
    int count = 0;
    for (int i = 0; i < list.items.Count(); ++i) {
        if (!list.IsSelected(i))
            continue;
        if (buffer) {
            if (count == room)
                break;
            buffer[count] = i;
        }
        ++count;
    }
    return count;
}

}  // namespace

LRESULT OnSelectionMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    const int first = static_cast<int>(wParam);
    switch (message) {
        case LB_SETCURSEL:
            return OnSetCurrent(list, first);
        case LB_GETCURSEL:
            if (list.Multiple())
                return list.items.Has(list.caret) ? list.caret : LB_ERR;
            return list.items.Has(list.chosen) ? list.chosen : LB_ERR;
        case LB_GETSEL:
            return list.items.Has(first) ? list.IsSelected(first) : LB_ERR;
        case LB_SETSEL:
            return OnSetSelected(list, wParam != 0, static_cast<int>(lParam));
        case LB_GETSELCOUNT:
            return list.Multiple() ? Collect(list, nullptr, 0) : LB_ERR;
        case LB_GETSELITEMS:
            return list.Multiple() ? Collect(list, reinterpret_cast<int*>(lParam), first) : LB_ERR;
        case LB_SELITEMRANGE:
            return OnSelectRange(list, LOWORD(lParam), HIWORD(lParam), wParam != 0);
        case LB_SETANCHORINDEX:
            if (!list.items.Has(first))
                return LB_ERR;
            list.anchor = first;
            return LB_OKAY;
        case LB_SETCARETINDEX:
            if (!list.items.Has(first))
                return LB_ERR;
            MoveCaret(list, first);
            Reveal(list, first);
            return LB_OKAY;
        case LB_GETCARETINDEX:
            return list.caret;
        default:
            return OnLayoutMessage(list, message, wParam, lParam);
    }
}

}  // namespace platform::user
