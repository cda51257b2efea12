/// @file list.h
/// The list box: what its files share. items.cpp holds the items, layout.cpp knows where they lie, paint.cpp draws them,
/// select.cpp selects, contents.cpp adds, removes and searches, input.cpp answers mouse and keyboard, listbox.cpp is the
/// window procedure. The combo box uses one for its list.
///
/// The parent is called in the middle of most operations and may take items away or end the window: an index is checked again
/// after every such call.
#pragma once

#include <string>
#include <vector>

#include "user/controls/controls.h"

namespace platform::user {

struct ListItem {
    std::string text;
    ULONG_PTR data = 0;  ///< the application's value
    bool selected = false;
};

/// The items, by pointer: inserting into the middle of a long list moves nothing else.
class ListItems {
  public:
    ListItems() = default;
    ListItems(const ListItems&) = delete;
    ListItems& operator=(const ListItems&) = delete;
    ~ListItems() {
        Clear();
    }

    int Count() const {
        return static_cast<int>(items_.size());
    }
    bool Has(int index) const {
        return index >= 0 && index < Count();
    }
    ListItem& operator[](int index) {
        return *items_[static_cast<std::size_t>(index)];
    }
    const ListItem& operator[](int index) const {
        return *items_[static_cast<std::size_t>(index)];
    }
    /// @returns false without memory.
    bool Insert(int index, const char* text);
    void Remove(int index);
    void Clear();

  private:
    std::vector<ListItem*> items_;
};

struct ListData : ControlData {
    HWND window = nullptr;
    HWND combo = nullptr;  ///< the combo box that the list belongs to
    ListItems items;

    int itemHeight = 1;
    int columnWidth = 0;
    int top = 0;  ///< the first item in view
    bool vertical = false;
    bool horizontal = false;  ///< made with a scroll bar, which comes and goes
    bool redraw = true;       ///< WM_SETREDRAW
    bool fitting = false;     ///< is giving itself a height

    int chosen = -1;  ///< the selected item of a list with single selection
    int caret = -1;   ///< the item with the focus rectangle
    int anchor = -1;  ///< where an extended selection begins
    bool focused = false;

    bool tracking = false;   ///< the mouse is held
    bool turnedOn = true;    ///< what a drag in an extended list does to the items that it passes
    bool following = false;  ///< a drop-down list under the pointer: it follows without a button

    DWORD Style() const {
        return ControlStyle(window);
    }
    bool OwnerDrawn() const {
        return (Style() & LBS_OWNERDRAWFIXED) != 0;
    }
    bool Multiple() const {
        return (Style() & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    }
    bool Extended() const {
        return (Style() & LBS_EXTENDEDSEL) != 0;
    }
    bool Columns() const {
        return (Style() & LBS_MULTICOLUMN) != 0;
    }
    bool IsSelected(int index) const {
        return Multiple() ? items[index].selected : index == chosen;
    }
};

// --- layout.cpp

RECT ListClient(const ListData& list);
/// @returns how many items a column shows whole, at least 1.
int RowsOf(const ListData& list);
/// @returns how many items the list shows whole, at least 1.
int PageOf(const ListData& list);
/// @returns the greatest index that can come to the top.
int LastTop(const ListData& list);
/// @returns the rectangle of an item, which may lie outside the client area.
RECT RectOf(const ListData& list, int index);
/// @returns the item nearest to a point, -1 for none; outside: whether the point lies outside the client area.
int ItemAt(const ListData& list, POINT point, bool* outside);
/// Cuts the height to whole items where the style wants that.
void FitHeight(ListData& list);
/// Brings scroll bars and top index up to date after items, sizes or fonts changed.
void UpdateBars(ListData& list);
void ScrollTo(ListData& list, int top);
/// Scrolls as little as brings an item into view.
void Reveal(ListData& list, int index);
void OnScroll(ListData& list, bool vertical, WPARAM wParam);

// --- paint.cpp

void PaintItems(ListData& list, HDC context, const RECT& area);
/// Draws one item at once if it is in view. action: ODA_SELECT after it was selected or not, ODA_FOCUS after it got or lost the
/// focus rectangle.
void RedrawItem(ListData& list, int index, UINT action);
/// Marks an item and all that follow it for painting.
void InvalidateFrom(ListData& list, int index);

// --- select.cpp

/// Selects an item or takes its selection back, and draws it. Nothing is notified.
void SelectItem(ListData& list, int index, bool selected);
/// Selects exactly the items from one to the other.
void SelectRange(ListData& list, int from, int to);
void SelectOnly(ListData& list, int index);
void MoveCaret(ListData& list, int index);
LRESULT OnSelectionMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnLayoutMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam);

// --- contents.cpp

/// The messages of a list. Each file that answers some of them hands the others on: contents, selection, layout.
LRESULT OnContentsMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam);
/// @returns the first item after `start` that begins with a text (exact: is that text), going round; LB_ERR for none.
int FindItem(const ListData& list, int start, const char* wanted, bool exact);
/// Asks for the height of owner-drawn items.
int MeasureItem(const ListData& list);

// --- input.cpp

void OnListButtonDown(ListData& list, POINT point, WPARAM keys, bool second);
void OnListMouseMove(ListData& list, POINT point);
void OnListButtonUp(ListData& list);
void OnListTimer(ListData& list);
void EndTracking(ListData& list);
void OnListKey(ListData& list, WPARAM key);
void OnListCharacter(ListData& list, WPARAM character);
/// Mouse messages to the list of a combo box, which has its own ways (combobox/drop.cpp). @returns whether it is done with.
bool OnDroppedListInput(ListData& list, UINT message, WPARAM wParam, LPARAM lParam);
/// Tells the owner what the user did. Only LBS_NOTIFY lists do, and those of combo boxes.
void NotifyList(const ListData& list, int code);

/// The window that is asked about items (owner drawing), and as whose control.
struct ListOwner {
    HWND parent;
    HWND control;
    UINT kind;
    UINT id;
};
ListOwner OwnerOf(const ListData& list);

}  // namespace platform::user
