// Where the rows of a tree view lie, and scrolling.
#include <algorithm>

#include "comctl/treeview.h"
#include "gdi/context/device_context.h"
#include "user/painting/painting.h"

namespace platform::comctl {
namespace {

constexpr int kGap = 3;    ///< between an item's picture and its label
constexpr int kLine = 20;  ///< pixels that the horizontal arrows scroll

class MeasuringContext {
  public:
    explicit MeasuringContext(const TreeView& tree) : window_(tree.window), context_(GetDC(window_)) {
        former_ = SelectObject(context_, tree.font ? tree.font : GetStockObject(DEFAULT_GUI_FONT));
    }
    ~MeasuringContext() {
        SelectObject(context_, former_);
        ReleaseDC(window_, context_);
    }
    MeasuringContext(const MeasuringContext&) = delete;
    MeasuringContext& operator=(const MeasuringContext&) = delete;

    operator HDC() const {
        return context_;
    }

  private:
    HWND window_;
    HDC context_;
    HGDIOBJ former_;
};

int LabelLeft(const TreeView& tree, const TreeItem* item) {
    return PictureLeft(tree, item) + (tree.images ? tree.imageWidth + kGap : 0);
}

int RowCount(const TreeView& tree) {
    return static_cast<int>(tree.rows.size());
}

SCROLLINFO Bar(int range, int page, int position) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMax = std::max(range - 1, 0);
    // A page is never longer than the range.
    info.nPage = static_cast<UINT>(std::clamp(page, 0, info.nMax + 1));
    info.nPos = position;
    return info;
}

/// Sets a bar when there is something to change: it may take room away from the client area, which comes back here.
void SetBar(const TreeView& tree, int which, const SCROLLINFO& wanted) {
    SCROLLINFO present{};
    present.cbSize = sizeof present;
    present.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    if (!GetScrollInfo(tree.window, which, &present) || present.nMax != wanted.nMax || present.nPage != wanted.nPage ||
        present.nPos != wanted.nPos) {
        SetScrollInfo(tree.window, which, &wanted, TRUE);
    }
}

/// Measures what is new among the rows.
void FindWidest(const TreePointer& tree) {
    const MeasuringContext context(*tree);
    tree->widest = 0;
    for (TreeItem* item : tree->rows) {
        if (item->width < 0) {
            item->width = gdi::WidthOf(context, item->text);
        }
        const int right = LabelLeft(*tree, item) + tree->left + item->width + 2 * kLabelPadding;
        tree->widest = std::max(tree->widest, right);
    }
}

}  // namespace

void Measure(const TreePointer& tree) {
    const MeasuringContext context(*tree);
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    tree->imageWidth = tree->imageHeight = 0;
    if (tree->images) {
        ImageList_GetIconSize(tree->images, &tree->imageWidth, &tree->imageHeight);
    }
    // An even height keeps the dots of the lines in step from row to row.
    tree->rowHeight = (std::max<int>(metrics.tmHeight + 3, tree->imageHeight) + 1) & ~1;
    tree->indent = std::max(tree->indent, tree->imageWidth + kGap);
    tree->stale = true;
    InvalidateRect(tree->window, nullptr, FALSE);
}

int RowsShown(const TreeView& tree) {
    return AreaOf(tree).bottom / tree.rowHeight;
}

int PictureLeft(const TreeView& tree, const TreeItem* item) {
    const int levels = item->depth + (HasStyle(tree, TVS_LINESATROOT) && HasStyle(tree, TVS_HASLINES | TVS_HASBUTTONS));
    return levels * tree.indent - tree.left;
}

RECT RowRect(const TreeView& tree, const TreeItem* item) {
    const int y = (item->row - tree.top) * tree.rowHeight;
    return {0, y, AreaOf(tree).right, y + tree.rowHeight};
}

RECT LabelRect(const TreeView& tree, const TreeItem* item) {
    RECT label = RowRect(tree, item);
    label.left = LabelLeft(tree, item);
    label.right = label.left + item->width + 2 * kLabelPadding;
    return label;
}

RECT ButtonRect(const TreeView& tree, const TreeItem* item) {
    const RECT row = RowRect(tree, item);
    const int x = PictureLeft(tree, item) - tree.indent / 2 - 1;
    const int y = (row.top + row.bottom) / 2;
    return {x - 4, y - 4, x + 5, y + 5};
}

TreeItem* HitTest(const TreePointer& tree, POINT point, Hit& hit) {
    hit = Hit::Nothing;
    const RECT client = AreaOf(*tree);
    if (!PtInRect(&client, point)) {
        return nullptr;
    }
    UpdateBars(tree);
    const int row = tree->top + point.y / tree->rowHeight;
    if (row >= RowCount(*tree)) {
        return nullptr;
    }
    TreeItem* const item = tree->rows[static_cast<std::size_t>(row)];
    const bool button =
        HasStyle(*tree, TVS_HASBUTTONS) && (item->depth > 0 || HasStyle(*tree, TVS_LINESATROOT)) && HasChildren(item);
    const int picture = PictureLeft(*tree, item);
    if (point.x >= picture) {
        hit = point.x < LabelRect(*tree, item).right ? Hit::Item : Hit::Nothing;
    } else if (button && point.x >= picture - tree->indent) {
        hit = Hit::Button;
    }
    return item;
}

void ScrollTo(const TreePointer& tree, int top, int left) {
    UpdateBars(tree);
    const RECT client = AreaOf(*tree);
    top = std::clamp(top, 0, std::max(RowCount(*tree) - std::max(RowsShown(*tree), 1), 0));
    left = std::clamp(left, 0, std::max<int>(tree->widest - client.right, 0));
    const int dx = tree->left - left;
    const int dy = (tree->top - top) * tree->rowHeight;
    if (dx == 0 && dy == 0) {
        return;
    }
    tree->top = top;
    tree->left = left;
    user::ScrollClient(tree->window, dx, dy, false);
    UpdateBars(tree);
}

void UpdateBars(const TreePointer& tree) {
    const bool changed = tree->stale;
    tree->Refresh();
    if (changed) {
        FindWidest(tree);
    }
    // A bar that comes or goes changes the client area, and with it what the other one has to show.
    for (int pass = 0; pass < 2; ++pass) {
        const RECT client = AreaOf(*tree);
        const int shown = std::max(RowsShown(*tree), 1);
        const int top = std::clamp(tree->top, 0, std::max(RowCount(*tree) - shown, 0));
        const int left = std::clamp(tree->left, 0, std::max<int>(tree->widest - client.right, 0));
        if (top != tree->top || left != tree->left) {
            tree->top = top;
            tree->left = left;
            InvalidateRect(tree->window, nullptr, FALSE);
        }
        SetBar(*tree, SB_VERT, Bar(RowCount(*tree), shown, tree->top));
        SetBar(*tree, SB_HORZ, Bar(tree->widest, client.right, tree->left));
    }
}

void InvalidateItem(const TreeView& tree, const TreeItem* item) {
    if (tree.stale) {
        InvalidateRect(tree.window, nullptr, FALSE);
    } else if (item->row >= 0) {
        const RECT row = RowRect(tree, item);
        InvalidateRect(tree.window, &row, FALSE);
    }
}

void InvalidateFrom(const TreeView& tree, const TreeItem* item) {
    RECT client = AreaOf(tree);
    if (item->row >= 0) {
        client.top = RowRect(tree, item).top;
    }
    InvalidateRect(tree.window, &client, FALSE);
}

void OnScroll(const TreePointer& tree, int bar, UINT code) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(tree->window, bar, &info);
    const bool vertical = bar == SB_VERT;
    const int line = vertical ? 1 : kLine;
    const int page = std::max(static_cast<int>(info.nPage) - (vertical ? 1 : 0), 1);
    int position = vertical ? tree->top : tree->left;
    switch (code) {
        case SB_LINEUP:
            position -= line;
            break;
        case SB_LINEDOWN:
            position += line;
            break;
        case SB_PAGEUP:
            position -= page;
            break;
        case SB_PAGEDOWN:
            position += page;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            position = info.nTrackPos;
            break;
        case SB_TOP:
            position = 0;
            break;
        case SB_BOTTOM:
            position = info.nMax;
            break;
        default:
            return;
    }
    ScrollTo(tree, vertical ? position : tree->top, vertical ? tree->left : position);
    UpdateWindow(tree->window);
}

void OnWheel(const TreePointer& tree, int turned) {
    constexpr int kRowsPerNotch = 3;
    tree->wheel += turned;
    const int notches = tree->wheel / WHEEL_DELTA;
    tree->wheel -= notches * WHEEL_DELTA;
    ScrollTo(tree, tree->top - notches * kRowsPerNotch, tree->left);
}

}  // namespace platform::comctl
