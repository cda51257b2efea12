// Mouse, keyboard and typing to find.
#include <algorithm>

#include "comctl/treeview.h"

namespace platform::comctl {
namespace {

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

/// Selects a row, kept within the rows there are.
void SelectRow(const TreePointer& tree, int row) {
    if (!tree->rows.empty()) {
        row = std::clamp(row, 0, static_cast<int>(tree->rows.size()) - 1);
        Select(tree, tree->rows[static_cast<std::size_t>(row)]->handle, TVC_BYKEYBOARD);
    }
}

/// Left: closes an open item, else goes to the parent. Right: opens a closed one, else goes to the first child.
void Across(const TreePointer& tree, bool right) {
    const TreeItem* item = tree->caret;
    if (!item) {
        return;
    }
    const bool open = item->first && (item->state & TVIS_EXPANDED);
    if (right == open) {
        const TreeItem* to = right ? item->first : item->parent;
        if (to) {
            Select(tree, to->handle, TVC_BYKEYBOARD);
        }
    } else {
        Expand(tree, item->handle, right ? TVE_EXPAND : TVE_COLLAPSE, true);
    }
}

/// Control with a key scrolls and leaves the selection alone.
bool ScrollByKey(const TreePointer& tree, WPARAM key) {
    struct Step {
        WPARAM key;
        UINT message;
        WPARAM code;
    };
    static constexpr Step kSteps[] = {{VK_UP, WM_VSCROLL, SB_LINEUP},    {VK_DOWN, WM_VSCROLL, SB_LINEDOWN},
                                      {VK_PRIOR, WM_VSCROLL, SB_PAGEUP}, {VK_NEXT, WM_VSCROLL, SB_PAGEDOWN},
                                      {VK_HOME, WM_VSCROLL, SB_TOP},     {VK_END, WM_VSCROLL, SB_BOTTOM},
                                      {VK_LEFT, WM_HSCROLL, SB_LINEUP},  {VK_RIGHT, WM_HSCROLL, SB_LINEDOWN}};
    for (const Step& step : kSteps) {
        if (step.key == key) {
            return SendMessageA(tree->window, step.message, step.code, 0), true;
        }
    }
    return false;
}

void Reveal(const TreePointer& tree) {
    // Windows of 1995 choose the first item when a tree without one comes to have the focus.
    tree->Refresh();
    if (!tree->caret && !tree->rows.empty()) {
        Select(tree, tree->rows[static_cast<std::size_t>(tree->top)]->handle, TVC_UNKNOWN);
    }
}

}  // namespace

void OnFocus(const TreePointer& tree, bool has) {
    tree->focused = has;
    if (has) {
        Reveal(tree);
    }
    if (tree->caret) {
        InvalidateItem(*tree, tree->caret);
    }
}

void OnButtonDown(const TreePointer& tree, POINT point, bool twice) {
    const HWND window = tree->window;
    if (GetFocus() != window) {
        SetFocus(window);
    }
    if (tree->ending) {
        return;
    }
    Hit hit = Hit::Nothing;
    const TreeItem* item = HitTest(tree, point, hit);
    const HTREEITEM handle = item ? item->handle : nullptr;
    if (hit == Hit::Item) {
        tree->typing.Forget();
        Select(tree, handle, TVC_BYMOUSE);
    }
    item = tree->ending ? nullptr : tree->Find(handle);
    if (item && (hit == Hit::Button || (hit == Hit::Item && twice))) {
        Expand(tree, handle, item->state & TVIS_EXPANDED ? TVE_COLLAPSE : TVE_EXPAND, true);
    }
}

bool OnKeyDown(const TreePointer& tree, WPARAM key) {
    tree->typing.OnKey(key);
    if (IsDown(VK_CONTROL)) {
        return ScrollByKey(tree, key);
    }
    UpdateBars(tree);
    const int row = tree->caret ? tree->caret->row : -1;
    const int page = std::max(RowsShown(*tree) - 1, 1);
    const HTREEITEM caret = tree->caret ? tree->caret->handle : nullptr;
    switch (key) {
        case VK_UP:
            return SelectRow(tree, row - 1), true;
        case VK_DOWN:
            return SelectRow(tree, row + 1), true;
        case VK_PRIOR:
            return SelectRow(tree, row - page), true;
        case VK_NEXT:
            return SelectRow(tree, row + page), true;
        case VK_HOME:
            return SelectRow(tree, 0), true;
        case VK_END:
            return SelectRow(tree, static_cast<int>(tree->rows.size()) - 1), true;
        case VK_LEFT:
            return Across(tree, false), true;
        case VK_RIGHT:
            return Across(tree, true), true;
        case VK_BACK:
            if (tree->caret && tree->caret->parent) {
                Select(tree, tree->caret->parent->handle, TVC_BYKEYBOARD);
            }
            return true;
        case VK_ADD:
            return Expand(tree, caret, TVE_EXPAND, true), true;
        case VK_SUBTRACT:
            return Expand(tree, caret, TVE_COLLAPSE, true), true;
        default:
            return false;
    }
}

void OnCharacter(const TreePointer& tree, char character) {
    const auto code = static_cast<unsigned char>(character);
    if (code < ' ' || character == '+' || character == '-' || tree->rows.empty()) {
        return;
    }
    tree->Refresh();
    const int row = tree->caret ? std::max(tree->caret->row, 0) : 0;
    const int found = tree->typing.Find(character, row, static_cast<int>(tree->rows.size()), [&](int at) {
        const auto index = static_cast<std::size_t>(at);
        return index < tree->rows.size() ? tree->rows[index]->text : std::string();
    });
    if (found >= 0) {
        SelectRow(tree, found);
    }
}

}  // namespace platform::comctl
