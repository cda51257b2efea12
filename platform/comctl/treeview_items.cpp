// Inserting, reading, changing, deleting and sorting items.
#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "comctl/treeview.h"

namespace platform::comctl {
namespace {

constexpr UINT kKeptState = TVIS_SELECTED | TVIS_CUT | TVIS_DROPHILITED | TVIS_BOLD | TVIS_EXPANDED |
                            TVIS_EXPANDEDONCE | TVIS_OVERLAYMASK | TVIS_STATEIMAGEMASK;

bool IsRoot(HTREEITEM item) {
    return !item || item == TVI_ROOT;
}

bool Shown(const TreeItem* item) {
    for (item = item->parent; item; item = item->parent) {
        if (!(item->state & TVIS_EXPANDED)) {
            return false;
        }
    }
    return true;
}

int CompareTexts(const std::string& a, const std::string& b) {
    return lstrcmpiA(a.c_str(), b.c_str());
}

void Assign(const TreePointer& tree, TreeItem* item, const TVITEMA& given) {
    if (given.mask & TVIF_TEXT) {
        item->asksText = given.pszText == LPSTR_TEXTCALLBACKA;
        item->text = item->asksText || !given.pszText ? std::string() : given.pszText;
        item->width = -1;
        tree->stale = true;  // the widest row may be another one now
    }
    if (given.mask & TVIF_IMAGE) {
        item->image = given.iImage;
    }
    if (given.mask & TVIF_SELECTEDIMAGE) {
        item->selectedImage = given.iSelectedImage;
    }
    if (given.mask & TVIF_PARAM) {
        item->param = given.lParam;
    }
    if (given.mask & TVIF_CHILDREN) {
        item->children = given.cChildren;
    }
    if (given.mask & TVIF_STATE) {
        const UINT before = item->state;
        const UINT bits = given.stateMask & kKeptState;
        item->state = (item->state & ~bits) | (given.state & bits);
        if ((before ^ item->state) & TVIS_BOLD) {
            item->width = -1;
        }
        tree->stale = tree->stale || ((before ^ item->state) & TVIS_EXPANDED);
    }
}

/// Asks the application for what it keeps itself.
void Ask(const TreePointer& tree, TreeItem* item, UINT mask, NMTVDISPINFOA& answer) {
    answer.hdr = {tree->window, static_cast<UINT_PTR>(GetDlgCtrlID(tree->window)), TVN_GETDISPINFOA};
    answer.item.mask = mask;
    answer.item.hItem = item->handle;
    answer.item.state = item->state;
    answer.item.lParam = item->param;
    SendMessageA(GetParent(tree->window), WM_NOTIFY, answer.hdr.idFrom, reinterpret_cast<LPARAM>(&answer));
}

TreeItem* SortedPlace(const TreePointer& tree, TreeItem* parent, const std::string& text) {
    TreeItem* after = nullptr;
    for (TreeItem* child = parent->first; child && CompareTexts(TextOf(tree, child), text) <= 0; child = child->next) {
        after = child;
    }
    return after;
}

TreeItem* PlaceFor(const TreePointer& tree, TreeItem* parent, HTREEITEM after, const TreeItem* item) {
    if (after == TVI_FIRST) {
        return nullptr;
    }
    if (after == TVI_SORT) {
        return SortedPlace(tree, parent, item->text);
    }
    TreeItem* const found = tree->Find(after);
    return found && tree->ParentOf(found) == parent ? found : parent->last;
}

// What goes is marked first and then taken item by item, as whoever hears of an item's end may do anything to the others: a
// list would take memory, and the application's data must not depend on there being some.

/// Marks an item and everything below it.
void MarkLeaving(TreeItem* top) {
    for (TreeItem* item = top;;) {
        item->leaving = true;
        if (item->first) {
            item = item->first;
            continue;
        }
        while (item != top && !item->next) {
            item = item->parent;
        }
        if (item == top) {
            return;
        }
        item = item->next;
    }
}

TreeItem* FirstLeaving(TreeItem* item) {
    while (item && !item->leaving) {
        item = item->next;
    }
    return item;
}

/// Ends a marked item, or all that are marked (null): whatever is below another comes before it.
void Discard(const TreePointer& tree, HTREEITEM top) {
    while (TreeItem* item = top ? tree->Find(top) : FirstLeaving(tree->root.first)) {
        while (TreeItem* const below = FirstLeaving(item->first)) {
            item = below;
        }
        const HTREEITEM handle = item->handle;
        NotifyItems(*tree, TVN_DELETEITEMA, TVC_UNKNOWN, item, nullptr);
        if ((item = tree->Find(handle))) {
            tree->Unlink(item);
            tree->Free(item);
        }
    }
}

bool IsWithin(const TreeItem* item, const TreeItem* ancestor) {
    while (item && item != ancestor) {
        item = item->parent;
    }
    return item != nullptr;
}

}  // namespace

std::string TextOf(const TreePointer& tree, TreeItem* item) {
    if (!item->asksText) {
        return item->text;
    }
    char buffer[MAX_PATH] = "";
    NMTVDISPINFOA answer{};
    answer.item.pszText = buffer;
    answer.item.cchTextMax = sizeof buffer;
    Ask(tree, item, TVIF_TEXT, answer);
    return answer.item.pszText && answer.item.pszText != LPSTR_TEXTCALLBACKA ? answer.item.pszText : "";
}

int ImageOf(const TreePointer& tree, TreeItem* item, bool selected) {
    const int image = selected ? item->selectedImage : item->image;
    if (image != I_IMAGECALLBACK) {
        return image;
    }
    NMTVDISPINFOA answer{};
    Ask(tree, item, selected ? TVIF_SELECTEDIMAGE : TVIF_IMAGE, answer);
    return selected ? answer.item.iSelectedImage : answer.item.iImage;
}

bool HasChildren(const TreePointer& tree, TreeItem* item) {
    if (item->children != I_CHILDRENCALLBACK) {
        return item->first || item->children > 0;
    }
    NMTVDISPINFOA answer{};
    Ask(tree, item, TVIF_CHILDREN, answer);
    return answer.item.cChildren > 0;
}

HTREEITEM InsertItem(const TreePointer& tree, const TVINSERTSTRUCTA& given) {
    TreeItem* const parent = IsRoot(given.hParent) ? &tree->root : tree->Find(given.hParent);
    if (!parent || parent->leaving) {
        return nullptr;
    }
    TreeItem* const item = tree->New();
    try {
        Assign(tree, item, given.item);
        tree->Link(parent, item, PlaceFor(tree, parent, given.hInsertAfter, item));
    } catch (...) {
        tree->Free(item);
        throw;
    }
    if (parent != &tree->root && parent->children == 0) {
        parent->children = 1;
    }
    if (Shown(item)) {
        InvalidateRect(tree->window, nullptr, FALSE);
    } else if (parent != &tree->root && !item->previous && !item->next) {
        InvalidateItem(*tree, parent);
    }
    return item->handle;
}

bool GetItem(const TreePointer& tree, TVITEMA& given) {
    TreeItem* item = tree->Find(given.hItem);
    if (!item) {
        return false;
    }
    if ((given.mask & TVIF_TEXT) && given.pszText && given.cchTextMax > 0) {
        const std::string text = TextOf(tree, item);
        lstrcpynA(given.pszText, text.c_str(), given.cchTextMax);
    }
    if ((given.mask & TVIF_IMAGE) && (item = tree->Find(given.hItem))) {
        given.iImage = ImageOf(tree, item, false);
    }
    if ((given.mask & TVIF_SELECTEDIMAGE) && (item = tree->Find(given.hItem))) {
        given.iSelectedImage = ImageOf(tree, item, true);
    }
    if ((given.mask & TVIF_CHILDREN) && (item = tree->Find(given.hItem))) {
        given.cChildren = HasChildren(tree, item);
    }
    item = tree->Find(given.hItem);
    if (!item) {
        return false;
    }
    given.state = item->state;
    given.lParam = item->param;
    return true;
}

bool SetItem(const TreePointer& tree, const TVITEMA& given) {
    TreeItem* const item = tree->Find(given.hItem);
    if (!item) {
        return false;
    }
    Assign(tree, item, given);
    if (tree->stale) {
        InvalidateRect(tree->window, nullptr, FALSE);
    } else {
        InvalidateItem(*tree, item);
    }
    return true;
}

bool DeleteItem(const TreePointer& tree, HTREEITEM handle) {
    TreeItem* item = tree->Find(handle);
    if (!item) {
        return false;
    }
    if (tree->caret && IsWithin(tree->caret, item)) {
        const TreeItem* heir = item->next ? item->next : item->previous ? item->previous : item->parent;
        Select(tree, heir ? heir->handle : nullptr, TVC_UNKNOWN);
        item = tree->Find(handle);
        if (!item) {
            return true;
        }
    }
    MarkLeaving(item);
    const HTREEITEM above = item->parent ? item->parent->handle : nullptr;
    Discard(tree, handle);
    TreeItem* const parent = tree->Find(above);
    if (parent && !parent->first && parent->children != I_CHILDRENCALLBACK) {
        parent->children = 0;
        parent->state &= ~static_cast<UINT>(TVIS_EXPANDED);
    }
    InvalidateRect(tree->window, nullptr, FALSE);
    return true;
}

void DeleteAll(const TreePointer& tree) {
    for (TreeItem* item = tree->root.first; item; item = item->next) {
        MarkLeaving(item);
    }
    tree->caret = nullptr;
    tree->dropTarget = nullptr;
    tree->top = tree->left = 0;
    Discard(tree, nullptr);
    if (!tree->ending) {
        InvalidateRect(tree->window, nullptr, FALSE);
    }
}

bool SortChildren(const TreePointer& tree, HTREEITEM handle, const TVSORTCB* order) {
    TreeItem* const parent = IsRoot(handle) ? &tree->root : tree->Find(handle);
    if (!parent) {
        return false;
    }
    struct Entry {
        HTREEITEM item;
        LPARAM param;
        std::string text;
    };
    std::vector<Entry> children;
    for (TreeItem* child = parent->first; child; child = child->next) {
        children.push_back({child->handle, child->param, {}});
    }
    for (Entry& child : children) {
        TreeItem* const item = order ? nullptr : tree->Find(child.item);
        child.text = item ? TextOf(tree, item) : std::string();
    }
    std::stable_sort(children.begin(), children.end(), [&](const Entry& a, const Entry& b) {
        return order ? order->lpfnCompare(a.param, b.param, order->lParam) < 0 : CompareTexts(a.text, b.text) < 0;
    });
    for (const Entry& child : children) {
        TreeItem* const item = tree->Find(child.item);
        if (item && tree->ParentOf(item) == parent) {
            tree->Unlink(item);
            tree->Link(parent, item, parent->last);
        }
    }
    InvalidateRect(tree->window, nullptr, FALSE);
    return true;
}

HTREEITEM NextItem(const TreePointer& tree, WPARAM code, HTREEITEM handle) {
    const auto handleOf = [](const TreeItem* item) { return item ? item->handle : nullptr; };
    tree->Refresh();
    switch (code) {
        case TVGN_ROOT:
            return handleOf(tree->root.first);
        case TVGN_CARET:
            return handleOf(tree->caret);
        case TVGN_DROPHILITE:
            return handleOf(tree->dropTarget);
        case TVGN_FIRSTVISIBLE:
            UpdateBars(tree);
            return tree->rows.empty() ? nullptr : tree->rows[static_cast<std::size_t>(tree->top)]->handle;
        default:
            break;
    }
    if (code == TVGN_CHILD && IsRoot(handle)) {
        return handleOf(tree->root.first);
    }
    const TreeItem* item = tree->Find(handle);
    if (!item) {
        return nullptr;
    }
    switch (code) {
        case TVGN_NEXT:
            return handleOf(item->next);
        case TVGN_PREVIOUS:
            return handleOf(item->previous);
        case TVGN_PARENT:
            return handleOf(item->parent);
        case TVGN_CHILD:
            return handleOf(item->first);
        case TVGN_NEXTVISIBLE:
        case TVGN_PREVIOUSVISIBLE: {
            const int row = item->row < 0 ? -1 : item->row + (code == TVGN_NEXTVISIBLE ? 1 : -1);
            return row < 0 || row >= static_cast<int>(tree->rows.size())
                       ? nullptr
                       : tree->rows[static_cast<std::size_t>(row)]->handle;
        }
        default:
            return nullptr;
    }
}

}  // namespace platform::comctl
