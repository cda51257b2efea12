// A list box under mouse and keyboard.
#include <algorithm>

#include "user/controls/listbox/list.h"
#include "user/input/input.h"

namespace platform::user {
namespace {

constexpr UINT_PTR kListScrollTimer = 0xFFFD;
constexpr UINT kListScrollPeriod = 50;

/// The pointer of an extended list goes over items: from the anchor on all are alike.
void DragTo(ListData& list, int index, bool keepOthers) {
    if (!keepOthers) {
        SelectRange(list, list.anchor, index);
    } else {
        for (int i = std::min(list.anchor, index); i <= std::max(list.anchor, index); ++i)
            SelectItem(list, i, list.turnedOn);
    }
    MoveCaret(list, index);
}

void PressExtended(ListData& list, int index, bool shift, bool control) {
    if (shift && list.items.Has(list.anchor)) {
        list.turnedOn = true;
        DragTo(list, index, control);
        return;
    }
    list.anchor = index;
    list.turnedOn = !control || !list.IsSelected(index);
    if (control) {
        SelectItem(list, index, list.turnedOn);
        MoveCaret(list, index);
    } else {
        SelectOnly(list, index);
    }
}

/// Scrolls by one item towards a pointer that is held outside. @returns whether it is outside.
bool ScrollTowards(ListData& list, POINT point) {
    const RECT client = ListClient(list);
    const int step = list.Columns() ? RowsOf(list) : 1;
    const bool before = list.Columns() ? point.x < 0 : point.y < 0;
    const bool behind = list.Columns() ? point.x >= client.right : point.y >= client.bottom;
    if (before)
        ScrollTo(list, list.top - step);
    else if (behind)
        ScrollTo(list, list.top + step);
    return before || behind;
}

/// The item that a drag has come to: one in view, even if the pointer is not.
int DragTarget(const ListData& list, POINT point) {
    bool outside = false;
    const int index = ItemAt(list, point, &outside);
    return std::clamp(index, list.top, std::max(list.top, list.top + PageOf(list) - 1));
}

void Follow(ListData& list, POINT point) {
    const int index = DragTarget(list, point);
    if (!list.items.Has(index))
        return;
    if (!list.Multiple()) {
        if (index != list.chosen)
            SelectOnly(list, index);
    } else if (list.Extended() && index != list.caret) {
        DragTo(list, index, IsHeld(VK_CONTROL));
    }
}

}  // namespace

void NotifyList(const ListData& list, int code) {
    if (list.combo)
        SendMessageA(list.combo, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list.window), code),
                     reinterpret_cast<LPARAM>(list.window));
    else if (list.Style() & LBS_NOTIFY)
        NotifyParent(list.window, static_cast<UINT>(code) & 0xFFFF);
}

void OnListButtonDown(ListData& list, POINT point, WPARAM keys, bool second) {
    // In a combo box the focus is in its field.
    const HWND focus = list.combo ? list.combo : list.window;
    if (GetFocus() != focus && !IsChild(focus, GetFocus())) {
        SetFocus(focus);
        if (!IsWindow(list.window))
            return;
    }
    bool outside = false;
    const int index = ItemAt(list, point, &outside);
    if (index < 0 || outside)
        return;
    list.tracking = true;
    SetCapture(list.window);
    if (list.Extended()) {
        PressExtended(list, index, (keys & MK_SHIFT) != 0, (keys & MK_CONTROL) != 0);
    } else if (list.Multiple()) {
        list.anchor = index;
        SelectItem(list, index, !list.IsSelected(index));
        MoveCaret(list, index);
    } else {
        list.anchor = index;
        SelectOnly(list, index);
    }
    Reveal(list, index);
    if (second) {
        EndTracking(list);
        NotifyList(list, LBN_DBLCLK);
    }
}

void OnListMouseMove(ListData& list, POINT point) {
    bool outside = false;
    if (list.tracking) {
        if (ScrollTowards(list, point))
            SetTimer(list.window, kListScrollTimer, kListScrollPeriod, nullptr);
        else
            KillTimer(list.window, kListScrollTimer);
        Follow(list, point);
    } else if (list.following && ItemAt(list, point, &outside) >= 0 && !outside) {
        Follow(list, point);
    }
}

void OnListTimer(ListData& list) {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(list.window, &point);
    if (!list.tracking || !ScrollTowards(list, point)) {
        KillTimer(list.window, kListScrollTimer);
        return;
    }
    Follow(list, point);
}

void OnListButtonUp(ListData& list) {
    if (!list.tracking)
        return;
    EndTracking(list);
    NotifyList(list, LBN_SELCHANGE);
}

void EndTracking(ListData& list) {
    list.tracking = false;
    KillTimer(list.window, kListScrollTimer);
    if (!list.following)
        LetGoOfMouse(list.window);
}

namespace {

/// The parent of a list that wants keys may act on them: -2 for done, an item to go to, or -1 for the usual.
int AskAboutKey(const ListData& list, WPARAM key) {
    const ListOwner owner = OwnerOf(list);
    if (!(list.Style() & LBS_WANTKEYBOARDINPUT) || !owner.parent)
        return -1;
    return static_cast<int>(SendMessageA(owner.parent, WM_VKEYTOITEM, MAKEWPARAM(key, std::max(list.caret, 0)),
                                         reinterpret_cast<LPARAM>(list.window)));
}

/// Where a key leads from the item with the focus rectangle, -1 when it is no key of movement.
int TargetOf(const ListData& list, WPARAM key) {
    const int last = list.items.Count() - 1;
    const int rows = RowsOf(list);
    const int page = PageOf(list);
    const bool fresh = !list.Multiple() && list.chosen < 0;
    const int from = std::clamp(list.caret, 0, std::max(0, last));
    const auto by = [&](int distance) { return fresh ? from : std::clamp(from + distance, 0, last); };
    switch (key) {
        case VK_UP:
            return by(-1);
        case VK_DOWN:
            return by(1);
        case VK_LEFT:
            return list.Columns() ? (from >= rows ? by(-rows) : from) : by(-1);
        case VK_RIGHT:
            return list.Columns() ? (from + rows <= last ? by(rows) : from) : by(1);
        case VK_PRIOR:
            // First to the top of the view, then a page further up.
            return from > list.top ? list.top : std::max(0, from - std::max(1, page - 1));
        case VK_NEXT:
            return from < list.top + page - 1 ? std::min(last, list.top + page - 1)
                                              : std::min(last, from + std::max(1, page - 1));
        case VK_HOME:
            return 0;
        case VK_END:
            return last;
        default:
            return -1;
    }
}

/// A key goes to an item and selects as the list's style says.
void GoTo(ListData& list, int index) {
    if (!list.items.Has(index))
        return;
    bool changed = true;
    if (list.Extended()) {
        if (IsHeld(VK_SHIFT) && list.items.Has(list.anchor)) {
            DragTo(list, index, false);
        } else {
            list.anchor = index;
            SelectOnly(list, index);
        }
    } else if (list.Multiple()) {
        // The owner hears of every move, even though nothing is selected by it.
        MoveCaret(list, index);
    } else {
        changed = index != list.chosen;
        SelectOnly(list, index);
    }
    Reveal(list, index);
    if (changed)
        NotifyList(list, LBN_SELCHANGE);
}

void OnSpace(ListData& list) {
    const int index = list.caret;
    if (!list.items.Has(index))
        return;
    if (list.Extended() && !IsHeld(VK_CONTROL)) {
        GoTo(list, index);
        return;
    }
    if (list.Multiple()) {
        list.anchor = index;
        SelectItem(list, index, !list.IsSelected(index));
    } else if (list.chosen == index) {
        return;
    } else {
        SelectItem(list, index, true);
    }
    Reveal(list, index);
    NotifyList(list, LBN_SELCHANGE);
}

}  // namespace

void OnListKey(ListData& list, WPARAM key) {
    const int wish = AskAboutKey(list, key);
    if (wish == -2 || !IsWindow(list.window))
        return;
    if (wish >= 0)
        GoTo(list, wish);
    else if (key == VK_SPACE)
        OnSpace(list);
    else if (list.items.Count() > 0)
        GoTo(list, TargetOf(list, key));
}

void OnListCharacter(ListData& list, WPARAM character) {
    // The space bar selects; control characters are no text.
    if (character <= ' ')
        return;
    const char text[2] = {static_cast<char>(character), '\0'};
    GoTo(list, FindItem(list, list.Multiple() ? list.caret : list.chosen, text, false));
}

}  // namespace platform::user
