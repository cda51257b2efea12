// Selecting, expanding and collapsing.
#include <algorithm>

#include "comctl/treeview.h"

namespace platform::comctl {
namespace {

bool IsBelow(const TreeItem* item, const TreeItem* ancestor) {
    for (item = item ? item->parent : nullptr; item; item = item->parent) {
        if (item == ancestor) {
            return true;
        }
    }
    return false;
}

/// Expands what lies above an item.
void ShowAncestors(const TreePointer& tree, HTREEITEM handle) {
    std::vector<HTREEITEM> closed;
    const TreeItem* item = tree->Find(handle);
    for (item = item ? item->parent : nullptr; item; item = item->parent) {
        if (!(item->state & TVIS_EXPANDED)) {
            closed.push_back(item->handle);
        }
    }
    for (auto one = closed.rbegin(); one != closed.rend(); ++one) {
        Expand(tree, *one, TVE_EXPAND, false);
    }
}

void SetSelected(const TreePointer& tree, TreeItem* item, bool selected) {
    if (item) {
        item->state = selected ? item->state | TVIS_SELECTED : item->state & ~static_cast<UINT>(TVIS_SELECTED);
        InvalidateItem(*tree, item);
    }
}

/// Scrolls so that as many as possible of an expanded item's children are seen, and the item itself in any case.
void ShowChildren(const TreePointer& tree, HTREEITEM handle) {
    tree->Refresh();
    const TreeItem* item = tree->Find(handle);
    if (!item || item->row < 0 || !item->last) {
        return;
    }
    const int shown = RowsShown(*tree);
    const int children = std::min<int>(item->last->row - item->row, shown - 1);
    if (item->row + children >= tree->top + shown) {
        ScrollTo(tree, item->row + children - shown + 1, tree->left);
    }
}

bool Open(const TreePointer& tree, HTREEITEM handle, bool byUser) {
    TreeItem* item = tree->Find(handle);
    if (item->state & TVIS_EXPANDED) {
        return true;
    }
    if (!HasChildren(item)) {
        return false;
    }
    const bool tells = byUser || !(item->state & TVIS_EXPANDEDONCE);
    if (tells && NotifyItems(*tree, TVN_ITEMEXPANDINGA, TVE_EXPAND, nullptr, item)) {
        return false;
    }
    item = tree->Find(handle);
    if (!item || !item->first) {
        // Nothing came: the item keeps its button, and may be asked again.
        return false;
    }
    item->state |= TVIS_EXPANDED | TVIS_EXPANDEDONCE;
    tree->stale = true;
    InvalidateFrom(*tree, item);
    // A bar that comes or goes sends messages.
    UpdateBars(tree);
    if (byUser) {
        ShowChildren(tree, handle);
    }
    return true;
}

bool Close(const TreePointer& tree, HTREEITEM handle, bool byUser) {
    TreeItem* item = tree->Find(handle);
    if (!item->first || !(item->state & TVIS_EXPANDED)) {
        return false;
    }
    const bool tells = byUser || !(item->state & TVIS_EXPANDEDONCE);
    if (tells && NotifyItems(*tree, TVN_ITEMEXPANDINGA, TVE_COLLAPSE, nullptr, item)) {
        return false;
    }
    item = tree->Find(handle);
    if (!item) {
        return true;
    }
    if (IsBelow(tree->caret, item)) {
        Select(tree, handle, TVC_UNKNOWN);
        if (!(item = tree->Find(handle))) {
            return true;
        }
    }
    item->state &= ~static_cast<UINT>(TVIS_EXPANDED);
    InvalidateFrom(*tree, item);
    tree->stale = true;
    UpdateBars(tree);
    return true;
}

}  // namespace

bool Select(const TreePointer& tree, HTREEITEM handle, UINT action) {
    TreeItem* item = tree->Find(handle);
    if (handle && !item) {
        return false;
    }
    if (item == tree->caret) {
        return true;
    }
    const HTREEITEM before = tree->caret ? tree->caret->handle : nullptr;
    SetSelected(tree, tree->caret, false);
    tree->caret = item;
    SetSelected(tree, item, true);
    if (item) {
        EnsureVisible(tree, handle);
        item = tree->Find(handle);
    }
    NotifyItems(*tree, TVN_SELCHANGEDA, action, tree->Find(before), item);
    return true;
}

bool Expand(const TreePointer& tree, HTREEITEM handle, UINT code, bool byUser) {
    if (!tree->Find(handle)) {
        return false;
    }
    return code == TVE_EXPAND ? Open(tree, handle, byUser) : code == TVE_COLLAPSE && Close(tree, handle, byUser);
}

void EnsureVisible(const TreePointer& tree, HTREEITEM handle) {
    ShowAncestors(tree, handle);
    UpdateBars(tree);
    const TreeItem* item = tree->Find(handle);
    if (!item || item->row < 0) {
        return;
    }
    const int shown = std::max(RowsShown(*tree), 1);
    int top = tree->top;
    if (item->row < top) {
        top = item->row;
    } else if (item->row >= top + shown) {
        top = item->row - shown + 1;
    }
    const RECT client = AreaOf(*tree);
    const RECT label = LabelRect(*tree, item);
    int left = tree->left;
    const int begin = PictureLeft(*tree, item);
    if (begin < 0) {
        left += begin;
    } else if (label.right > client.right) {
        left += std::min<int>(label.right - client.right, begin);
    }
    ScrollTo(tree, top, left);
}

}  // namespace platform::comctl
