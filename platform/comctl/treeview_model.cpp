// The items of a tree view: handles, links, and the rows that can be seen.
#include <algorithm>
#include <new>

#include "comctl/treeview.h"
#include "user/model/window.h"

namespace platform::comctl {
namespace {

// A handle is slot + 1 below and the number of uses above; it stays clear of TVI_ROOT and its kin.
constexpr std::uint32_t kSlotBits = 23;
constexpr std::uint32_t kSlotMask = (1U << kSlotBits) - 1;
constexpr std::uint32_t kUsesMask = (1U << (31 - kSlotBits)) - 1;

HTREEITEM HandleOf(std::uint32_t slot, std::uint32_t uses) {
    return reinterpret_cast<HTREEITEM>(std::uintptr_t{(uses & kUsesMask) << kSlotBits | (slot + 1)});
}

TreeItem* NextRow(TreeItem* item) {
    if (item->first && (item->state & TVIS_EXPANDED)) {
        return item->first;
    }
    while (item && !item->next) {
        item = item->parent;
    }
    return item ? item->next : nullptr;
}

}  // namespace

TreeItem* TreeView::Find(HTREEITEM handle) const {
    const auto number = reinterpret_cast<std::uintptr_t>(handle);
    const std::uint32_t slot = (static_cast<std::uint32_t>(number) & kSlotMask) - 1;
    if (number > INT32_MAX || slot >= slots.size()) {
        return nullptr;
    }
    TreeItem* const item = slots[slot].item.get();
    return item && item->handle == handle ? item : nullptr;
}

TreeItem* TreeView::New() {
    if (freeSlots.empty() && slots.size() >= kSlotMask) {
        throw std::bad_alloc();
    }
    auto item = std::make_unique<TreeItem>();
    std::uint32_t slot;
    if (freeSlots.empty()) {
        // Room for the way back first, so that freeing cannot fail.
        freeSlots.reserve(slots.size() + 1);
        slot = static_cast<std::uint32_t>(slots.size());
        slots.emplace_back();
    } else {
        slot = freeSlots.back();
        freeSlots.pop_back();
    }
    item->handle = HandleOf(slot, slots[slot].uses);
    slots[slot].item = std::move(item);
    ++count;
    return slots[slot].item.get();
}

void TreeView::Free(TreeItem* item) {
    const auto number = reinterpret_cast<std::uintptr_t>(item->handle);
    const std::uint32_t slot = (static_cast<std::uint32_t>(number) & kSlotMask) - 1;
    ForgetRows();
    if (caret == item) {
        caret = nullptr;
    }
    ++slots[slot].uses;
    slots[slot].item.reset();
    freeSlots.push_back(slot);
    --count;
}

void TreeView::Link(TreeItem* parent, TreeItem* item, TreeItem* after) {
    item->parent = parent == &root ? nullptr : parent;
    item->depth = item->parent ? parent->depth + 1 : 0;
    item->previous = after;
    item->next = after ? after->next : parent->first;
    (item->previous ? item->previous->next : parent->first) = item;
    (item->next ? item->next->previous : parent->last) = item;
    stale = true;
}

void TreeView::Unlink(TreeItem* item) {
    TreeItem* const parent = ParentOf(item);
    (item->previous ? item->previous->next : parent->first) = item->next;
    (item->next ? item->next->previous : parent->last) = item->previous;
    item->previous = item->next = nullptr;
    stale = true;
}

void TreeView::ForgetRows() {
    for (TreeItem* item : rows) {
        item->row = -1;
    }
    rows.clear();
    stale = true;
}

void TreeView::Refresh() {
    if (!stale) {
        return;
    }
    ForgetRows();
    for (TreeItem* item = root.first; item; item = NextRow(item)) {
        item->row = static_cast<int>(rows.size());
        rows.push_back(item);
    }
    stale = false;
}

}  // namespace platform::comctl
