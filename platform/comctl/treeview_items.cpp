// Inserting, reading, deleting and sorting items.
#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "comctl/treeview.h"

namespace platform::comctl {
namespace {

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

void Assign(TreeItem* item, const TVITEMA& given) {
    if (given.mask & TVIF_TEXT) {
        item->text = given.pszText ? given.pszText : "";
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
}

TreeItem* PlaceFor(const TreePointer& tree, TreeItem* parent, HTREEITEM after) {
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

/// Ends all that are marked: whatever is below another comes before it.
void Discard(const TreePointer& tree) {
    while (TreeItem* item = FirstLeaving(tree->root.first)) {
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

}  // namespace

bool HasChildren(const TreeItem* item) {
    return item->first || item->children > 0;
}

HTREEITEM InsertItem(const TreePointer& tree, const TVINSERTSTRUCTA& given) {
    TreeItem* const parent = IsRoot(given.hParent) ? &tree->root : tree->Find(given.hParent);
    if (!parent || parent->leaving) {
        return nullptr;
    }
    TreeItem* const item = tree->New();
    try {
        Assign(item, given.item);
        tree->Link(parent, item, PlaceFor(tree, parent, given.hInsertAfter));
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
    const TreeItem* item = tree->Find(given.hItem);
    if (!item) {
        return false;
    }
    if ((given.mask & TVIF_TEXT) && given.pszText && given.cchTextMax > 0) {
        lstrcpynA(given.pszText, item->text.c_str(), given.cchTextMax);
    }
    if (given.mask & TVIF_IMAGE) {
        given.iImage = item->image;
    }
    if (given.mask & TVIF_SELECTEDIMAGE) {
        given.iSelectedImage = item->selectedImage;
    }
    if (given.mask & TVIF_CHILDREN) {
        given.cChildren = HasChildren(item);
    }
    given.state = item->state;
    given.lParam = item->param;
    return true;
}

void DeleteAll(const TreePointer& tree) {
    for (TreeItem* item = tree->root.first; item; item = item->next) {
        MarkLeaving(item);
    }
    tree->caret = nullptr;
    tree->top = tree->left = 0;
    Discard(tree);
    if (!tree->ending) {
        InvalidateRect(tree->window, nullptr, FALSE);
    }
}

bool SortChildren(const TreePointer& tree, HTREEITEM handle) {
    TreeItem* const parent = IsRoot(handle) ? &tree->root : tree->Find(handle);
    if (!parent) {
        return false;
    }
    std::vector<TreeItem*> children;
    for (TreeItem* child = parent->first; child; child = child->next) {
        children.push_back(child);
    }
    std::stable_sort(children.begin(), children.end(), [](const TreeItem* a, const TreeItem* b) {
        return lstrcmpiA(a->text.c_str(), b->text.c_str()) < 0;
    });
    for (TreeItem* child : children) {
        tree->Unlink(child);
        tree->Link(parent, child, parent->last);
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
