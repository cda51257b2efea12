/// @file treeview.h
/// What the files of the tree view share: items, where they lie, and the steps that change them.
///
/// A notification may bring anything: items come and go in it, and the window may end. Whoever sends one holds the tree by
/// its shared pointer and looks items up again by their handles.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "comctl/typing.h"
#include "user/controls/controls.h"

namespace platform::comctl {

inline constexpr int kLabelPadding = 2;  ///< between a label's edge and its text

struct TreeItem {
    HTREEITEM handle = nullptr;
    TreeItem* parent = nullptr;  ///< null: stands at the root
    TreeItem* first = nullptr;
    TreeItem* last = nullptr;
    TreeItem* previous = nullptr;
    TreeItem* next = nullptr;
    int depth = 0;
    std::string text;
    bool leaving = false;  ///< is being deleted: gets no more items below it
    int image = 0;
    int selectedImage = 0;
    int children = 0;  ///< 0 or 1, as the application said or as children came and went
    UINT state = 0;
    LPARAM param = 0;
    int width = -1;  ///< of the text in pixels; -1: not measured yet
    int row = -1;    ///< among the rows; right while these are not stale
};

struct TreeView : user::ControlData {
    HWND window = nullptr;

    // --- items. A handle holds the item's slot and how often that slot was used.
    struct Slot {
        std::unique_ptr<TreeItem> item;
        std::uint32_t uses = 0;
    };
    std::vector<Slot> slots;
    std::vector<std::uint32_t> freeSlots;
    TreeItem root;  ///< stands above the items of the root; `first` and `last` alone count
    unsigned count = 0;

    TreeItem* Find(HTREEITEM handle) const;
    /// @returns an item in no list yet. Throws bad_alloc.
    TreeItem* New();
    void Free(TreeItem* item);
    TreeItem* ParentOf(TreeItem* item) {
        return item->parent ? item->parent : &root;
    }
    void Link(TreeItem* parent, TreeItem* item, TreeItem* after);
    void Unlink(TreeItem* item);

    // --- rows: the items whose ancestors are all expanded, from the top
    std::vector<TreeItem*> rows;
    bool stale = false;
    void Refresh();
    /// The rows never name an item that is gone.
    void ForgetRows();

    // --- what the user sees
    TreeItem* caret = nullptr;
    HIMAGELIST images = nullptr;
    HFONT font = nullptr;
    int rowHeight = 16;
    int indent = 19;
    int imageWidth = 0;
    int imageHeight = 0;
    int top = 0;     ///< the first row shown
    int left = 0;    ///< pixels scrolled to the left
    int widest = 0;  ///< the right end of the widest row
    bool focused = false;
    bool ending = false;
    int wheel = 0;  ///< what the wheel has turned and not scrolled yet

    Typing typing;
};

using TreePointer = std::shared_ptr<TreeView>;

// --- items (treeview_items.cpp)

HTREEITEM InsertItem(const TreePointer& tree, const TVINSERTSTRUCTA& given);
bool GetItem(const TreePointer& tree, TVITEMA& item);
void DeleteAll(const TreePointer& tree);
bool SortChildren(const TreePointer& tree, HTREEITEM parent);
HTREEITEM NextItem(const TreePointer& tree, WPARAM code, HTREEITEM item);

bool HasChildren(const TreeItem* item);

// --- notifications (treeview_notify.cpp)

LRESULT NotifyItems(const TreeView& tree, UINT code, UINT action, const TreeItem* before, const TreeItem* after);

// --- selecting and expanding (treeview_select.cpp)

/// @returns false when there is no such item.
bool Select(const TreePointer& tree, HTREEITEM item, UINT action);
/// byUser: notifications are sent each time, not only the first.
bool Expand(const TreePointer& tree, HTREEITEM item, UINT code, bool byUser);
void EnsureVisible(const TreePointer& tree, HTREEITEM item);

// --- where things lie (treeview_layout.cpp)

void Measure(const TreePointer& tree);
/// Whole ones.
int RowsShown(const TreeView& tree);
/// The x at which an item's picture begins.
int PictureLeft(const TreeView& tree, const TreeItem* item);
RECT RowRect(const TreeView& tree, const TreeItem* item);
/// The part with the text.
RECT LabelRect(const TreeView& tree, const TreeItem* item);
RECT ButtonRect(const TreeView& tree, const TreeItem* item);
/// What of a row lies under a point.
enum class Hit { Nothing, Button, Item };
TreeItem* HitTest(const TreePointer& tree, POINT point, Hit& hit);
void ScrollTo(const TreePointer& tree, int top, int left);
/// Takes changes of the rows in: sets the scroll bars and keeps the view within the rows.
void UpdateBars(const TreePointer& tree);
void InvalidateItem(const TreeView& tree, const TreeItem* item);
/// Invalidates an item and all below it.
void InvalidateFrom(const TreeView& tree, const TreeItem* item);
void OnScroll(const TreePointer& tree, int bar, UINT code);
void OnWheel(const TreePointer& tree, int turned);

/// The client area.
inline RECT AreaOf(const TreeView& tree) {
    RECT client{};
    GetClientRect(tree.window, &client);
    return client;
}

inline bool HasStyle(const TreeView& tree, DWORD style) {
    return (user::ControlStyle(tree.window) & style) != 0;
}

// --- painting (treeview_paint.cpp)

void Paint(const TreePointer& tree, HDC context, const RECT& area);

// --- mouse and keyboard (treeview_input.cpp)

void OnButtonDown(const TreePointer& tree, POINT point, bool twice);
bool OnKeyDown(const TreePointer& tree, WPARAM key);
void OnCharacter(const TreePointer& tree, char character);
void OnFocus(const TreePointer& tree, bool has);

}  // namespace platform::comctl
