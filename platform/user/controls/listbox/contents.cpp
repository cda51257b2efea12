// What a list box holds: adding, sorting, removing and searching items.
#include <algorithm>
#include <cstring>

#include "user/controls/listbox/list.h"

namespace platform::user {
namespace {

int CompareTexts(const char* a, std::size_t lengthA, const char* b, std::size_t lengthB) {
    return CompareStringA(LOCALE_USER_DEFAULT, NORM_IGNORECASE, a, static_cast<int>(lengthA), b,
                          static_cast<int>(lengthB)) -
           CSTR_EQUAL;
}

/// @returns where a new item goes in the order: behind those that are equal to it.
int SortedPlace(const ListData& list, const char* text) {
    const std::size_t length = std::strlen(text);
    int low = 0;
    int high = list.items.Count();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        const std::string& other = list.items[middle].text;
        if (CompareTexts(text, length, other.c_str(), other.size()) < 0)
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

LRESULT NoSpace(const ListData& list) {
    NotifyList(list, LBN_ERRSPACE);
    return LB_ERRSPACE;
}

LRESULT InsertAt(ListData& list, int index, LPARAM what) {
    const bool texts = list.HasTexts();
    const char* text = texts ? reinterpret_cast<const char*>(what) : nullptr;
    if (!list.items.Insert(index, text, texts ? 0 : static_cast<ULONG_PTR>(what)))
        return NoSpace(list);
    if (list.chosen >= index)
        ++list.chosen;
    if (list.caret >= index && list.items.Count() > 1)
        ++list.caret;
    if (list.anchor >= index)
        ++list.anchor;
    UpdateBars(list);
    InvalidateFrom(list, index);
    return index;
}

LRESULT OnAdd(ListData& list, LPARAM what) {
    if (list.HasTexts() && !what)
        what = reinterpret_cast<LPARAM>("");
    // Without texts there is no order.
    const bool sorted = (list.Style() & LBS_SORT) && list.HasTexts();
    return InsertAt(list, sorted ? SortedPlace(list, reinterpret_cast<const char*>(what)) : list.items.Count(), what);
}

LRESULT OnInsert(ListData& list, int index, LPARAM what) {
    if (index == -1)
        index = list.items.Count();
    if (index < 0 || index > list.items.Count())
        return LB_ERR;
    return InsertAt(list, index, what);
}

/// Tells the owner of an item that goes. Items without a value mean nothing to the owner of a list that draws itself.
void TellDeleted(const ListData& list, int index) {
    const ULONG_PTR data = list.items[index].data;
    const ListOwner owner = OwnerOf(list);
    if ((!list.OwnerDrawn() && !data) || !owner.parent)
        return;
    DELETEITEMSTRUCT item{owner.kind, owner.id, static_cast<UINT>(index), owner.control, data};
    SendMessageA(owner.parent, WM_DELETEITEM, owner.id, reinterpret_cast<LPARAM>(&item));
}

void Forget(int& place, int index) {
    if (place > index)
        --place;
}

LRESULT OnDelete(ListData& list, int index) {
    if (!list.items.Has(index))
        return LB_ERR;
    TellDeleted(list, index);
    if (!list.items.Has(index))
        return LB_ERR;
    // What is removed may be out of view at the top.
    InvalidateFrom(list, index);
    list.items.Remove(index);
    if (list.chosen == index)
        list.chosen = -1;
    for (int* place : {&list.chosen, &list.caret, &list.anchor})
        Forget(*place, index);
    list.caret = std::min(list.caret, std::max(0, list.items.Count() - 1));
    list.anchor = std::min(list.anchor, list.items.Count() - 1);
    UpdateBars(list);
    InvalidateFrom(list, std::min(index, list.items.Count()));
    return list.items.Count();
}

LRESULT OnGetText(const ListData& list, int index, char* buffer) {
    if (!list.items.Has(index))
        return LB_ERR;
    const ListItem& item = list.items[index];
    if (!list.HasTexts()) {
        if (buffer)
            std::memcpy(buffer, &item.data, sizeof item.data);
        return sizeof item.data;
    }
    if (buffer)
        std::memcpy(buffer, item.text.c_str(), item.text.size() + 1);
    return static_cast<LRESULT>(item.text.size());
}

bool Matches(const ListData& list, int index, LPARAM wanted, bool exact) {
    const ListItem& item = list.items[index];
    if (!list.HasTexts())
        return item.data == static_cast<ULONG_PTR>(wanted);
    const auto* text = reinterpret_cast<const char*>(wanted);
    const std::size_t length = std::strlen(text);
    if (exact ? item.text.size() != length : item.text.size() < length)
        return false;
    return CompareTexts(text, length, item.text.c_str(), length) == 0;
}

}  // namespace

int FindItem(const ListData& list, int start, LPARAM wanted, bool exact) {
    if (list.HasTexts() && !wanted)
        return LB_ERR;
    const int count = list.items.Count();
    if (start < -1 || start >= count)
        start = -1;
    for (int step = 1; step <= count; ++step) {
        const int index = (start + step) % count;
        if (list.items.Has(index) && Matches(list, index, wanted, exact))
            return index;
    }
    return LB_ERR;
}

void RemoveAll(ListData& list) {
    // The owner hears of each item and may ask for the same again.
    if (list.emptying)
        return;
    list.emptying = true;
    while (list.items.Count() > 0) {
        const int last = list.items.Count() - 1;
        TellDeleted(list, last);
        if (list.items.Has(last))
            list.items.Remove(last);
    }
    list.emptying = false;
    list.chosen = list.anchor = -1;
    list.caret = list.top = 0;
}

int MeasureItem(const ListData& list) {
    const ListOwner owner = OwnerOf(list);
    MEASUREITEMSTRUCT item{};
    item.CtlType = owner.kind;
    item.CtlID = owner.id;
    item.itemID = list.combo ? 0 : static_cast<UINT>(-1);
    item.itemWidth = static_cast<UINT>(ListClient(list).right);
    item.itemHeight = static_cast<UINT>(list.itemHeight);
    if (owner.parent)
        SendMessageA(owner.parent, WM_MEASUREITEM, owner.id, reinterpret_cast<LPARAM>(&item));
    return std::clamp(static_cast<int>(item.itemHeight), 1, 0xFFFF);
}

LRESULT OnContentsMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case LB_ADDSTRING:
            return OnAdd(list, lParam);
        case LB_INSERTSTRING:
            return OnInsert(list, index, lParam);
        case LB_DELETESTRING:
            return OnDelete(list, index);
        case LB_RESETCONTENT:
            RemoveAll(list);
            UpdateBars(list);
            InvalidateFrom(list, 0);
            return LB_OKAY;
        case LB_GETCOUNT:
            return list.items.Count();
        case LB_GETTEXT:
            return OnGetText(list, index, reinterpret_cast<char*>(lParam));
        case LB_GETTEXTLEN:
            return OnGetText(list, index, nullptr);
        case LB_FINDSTRING:
        case LB_FINDSTRINGEXACT:
            return FindItem(list, index, lParam, message == LB_FINDSTRINGEXACT);
        default:
            return LB_ERR;
    }
}

}  // namespace platform::user
