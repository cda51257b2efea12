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

LRESULT InsertAt(ListData& list, int index, const char* text) {
    if (!list.items.Insert(index, text))
        return LB_ERRSPACE;
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

LRESULT OnAdd(ListData& list, const char* text) {
    return InsertAt(list, list.Style() & LBS_SORT ? SortedPlace(list, text) : list.items.Count(), text);
}

LRESULT OnInsert(ListData& list, int index, const char* text) {
    if (index == -1)
        index = list.items.Count();
    if (index < 0 || index > list.items.Count())
        return LB_ERR;
    return InsertAt(list, index, text);
}

void Forget(int& place, int index) {
    if (place > index)
        --place;
}

LRESULT OnDelete(ListData& list, int index) {
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

/// The index -1 means all items.
LRESULT OnSetItemData(ListData& list, int index, ULONG_PTR data) {
    if (index != -1 && !list.items.Has(index))
        return LB_ERR;
    const int end = index == -1 ? list.items.Count() : index + 1;
    for (int i = std::max(index, 0); i < end; ++i)
        list.items[i].data = data;
    return TRUE;
}

LRESULT OnGetText(const ListData& list, int index, char* buffer) {
    if (!list.items.Has(index))
        return LB_ERR;
    const std::string& text = list.items[index].text;
    if (buffer)
        std::memcpy(buffer, text.c_str(), text.size() + 1);
    return static_cast<LRESULT>(text.size());
}

bool Matches(const std::string& text, const char* wanted, bool exact) {
    const std::size_t length = std::strlen(wanted);
    if (exact ? text.size() != length : text.size() < length)
        return false;
    return CompareTexts(wanted, length, text.c_str(), length) == 0;
}

}  // namespace

int FindItem(const ListData& list, int start, const char* wanted, bool exact) {
    if (!wanted)
        return LB_ERR;
    const int count = list.items.Count();
    if (start < -1 || start >= count)
        start = -1;
    for (int step = 1; step <= count; ++step) {
        const int index = (start + step) % count;
        if (Matches(list.items[index].text, wanted, exact))
            return index;
    }
    return LB_ERR;
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
    const auto* text = reinterpret_cast<const char*>(lParam);
    switch (message) {
        case LB_ADDSTRING:
            return OnAdd(list, text ? text : "");
        case LB_INSERTSTRING:
            return OnInsert(list, index, text ? text : "");
        case LB_DELETESTRING:
            return OnDelete(list, index);
        case LB_RESETCONTENT:
            list.items.Clear();
            list.chosen = list.anchor = -1;
            list.caret = list.top = 0;
            UpdateBars(list);
            InvalidateFrom(list, 0);
            return LB_OKAY;
        case LB_GETCOUNT:
            return list.items.Count();
        case LB_GETTEXT:
            return OnGetText(list, index, reinterpret_cast<char*>(lParam));
        case LB_GETTEXTLEN:
            return OnGetText(list, index, nullptr);
        case LB_GETITEMDATA:
            return list.items.Has(index) ? static_cast<LRESULT>(list.items[index].data) : LB_ERR;
        case LB_SETITEMDATA:
            return OnSetItemData(list, index, static_cast<ULONG_PTR>(lParam));
        case LB_FINDSTRING:
        case LB_FINDSTRINGEXACT:
            return FindItem(list, index, text, message == LB_FINDSTRINGEXACT);
        default:
            return OnSelectionMessage(list, message, wParam, lParam);
    }
}

}  // namespace platform::user
