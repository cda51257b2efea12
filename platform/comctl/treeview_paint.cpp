// Painting a tree view: each row in turn, its ground first, so that nothing flickers.
#include <algorithm>
#include <array>

#include "comctl/treeview.h"
#include "gdi/context/objects.h"

namespace platform::comctl {
namespace {

struct Pencil {
    HDC context;
    HBRUSH dots;
};

COLORREF Ground(const TreeView& tree) {
    return GetSysColor(IsWindowEnabled(tree.window) ? COLOR_WINDOW : COLOR_BTNFACE);
}

/// A brush of every other pixel.
HBRUSH MakeDots() {
    static constexpr std::array<WORD, 8> kRows = {0x5500, 0xAA00, 0x5500, 0xAA00, 0x5500, 0xAA00, 0x5500, 0xAA00};
    std::array<BYTE, 16> bits{};
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        bits[2 * i] = static_cast<BYTE>(kRows[i] >> 8);
    }
    const HBITMAP pattern = CreateBitmap(8, 8, 1, 1, bits.data());
    const HBRUSH brush = gdi::MakePatternBrush(pattern);
    DeleteObject(pattern);
    return brush;
}

void FillDots(const Pencil& pencil, const RECT& rect) {
    const COLORREF text = SetTextColor(pencil.context, GetSysColor(COLOR_BTNSHADOW));
    FillRect(pencil.context, &rect, pencil.dots);
    SetTextColor(pencil.context, text);
}

/// The lines that lead to an item, and those that pass it on their way from an ancestor to its next sibling.
void PaintLines(const TreeView& tree, const Pencil& pencil, const TreeItem* item) {
    const bool atRoot = HasStyle(tree, TVS_LINESATROOT);
    const RECT row = RowRect(tree, item);
    const int middle = (row.top + row.bottom) / 2;
    for (const TreeItem* level = item; level && (level->depth > 0 || atRoot); level = level->parent) {
        const int x = PictureLeft(tree, level) - tree.indent / 2 - 1;
        if (level == item) {
            const bool above = level->previous || level->parent;
            FillDots(pencil, {x, above ? row.top : middle, x + 1, level->next ? row.bottom : middle + 1});
            FillDots(pencil, {x, middle, PictureLeft(tree, level) - 1, middle + 1});
        } else if (level->next) {
            FillDots(pencil, {x, row.top, x + 1, row.bottom});
        }
    }
}

void Fill(HDC context, const RECT& rect, COLORREF colour) {
    const COLORREF former = SetBkColor(context, colour);
    ExtTextOutA(context, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    SetBkColor(context, former);
}

void PaintButton(const TreeView& tree, HDC context, const TreeItem* item) {
    const RECT box = ButtonRect(tree, item);
    const COLORREF sign = GetSysColor(COLOR_WINDOWTEXT);
    Fill(context, box, GetSysColor(COLOR_BTNSHADOW));
    Fill(context, {box.left + 1, box.top + 1, box.right - 1, box.bottom - 1}, GetSysColor(COLOR_WINDOW));
    Fill(context, {box.left + 2, box.top + 4, box.right - 2, box.top + 5}, sign);
    if (!(item->state & TVIS_EXPANDED)) {
        Fill(context, {box.left + 4, box.top + 2, box.left + 5, box.bottom - 2}, sign);
    }
}

void PaintPicture(const TreeView& tree, HDC context, const TreeItem* item) {
    const int image = item == tree.caret ? item->selectedImage : item->image;
    const int y = RowRect(tree, item).top + (tree.rowHeight - tree.imageHeight) / 2;
    ImageList_Draw(tree.images, image, context, PictureLeft(tree, item), y, ILD_TRANSPARENT);
}

void PaintLabel(const TreeView& tree, HDC context, const TreeItem* item) {
    const RECT label = LabelRect(tree, item);
    COLORREF ground = Ground(tree);
    COLORREF ink = GetSysColor(IsWindowEnabled(tree.window) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
    const bool strong = item == tree.caret && tree.focused;
    if (strong) {
        ground = GetSysColor(COLOR_HIGHLIGHT);
        ink = GetSysColor(COLOR_HIGHLIGHTTEXT);
    } else if (item == tree.caret && HasStyle(tree, TVS_SHOWSELALWAYS)) {
        ground = GetSysColor(COLOR_BTNFACE);
        ink = GetSysColor(COLOR_BTNTEXT);
    }
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    SetTextColor(context, ink);
    SetBkColor(context, ground);
    ExtTextOutA(context, label.left + kLabelPadding, label.top + (tree.rowHeight - metrics.tmHeight) / 2, ETO_OPAQUE,
                &label, item->text.c_str(), static_cast<UINT>(item->text.size()), nullptr);
    if (strong) {
        DrawFocusRect(context, &label);
    }
}

void PaintRow(const TreeView& tree, const Pencil& pencil, const TreeItem* item) {
    Fill(pencil.context, RowRect(tree, item), Ground(tree));
    if (HasStyle(tree, TVS_HASLINES) && pencil.dots) {
        SetBkColor(pencil.context, Ground(tree));
        PaintLines(tree, pencil, item);
    }
    if (HasStyle(tree, TVS_HASBUTTONS) && (item->depth > 0 || HasStyle(tree, TVS_LINESATROOT)) && HasChildren(item)) {
        PaintButton(tree, pencil.context, item);
    }
    if (tree.images) {
        PaintPicture(tree, pencil.context, item);
    }
    PaintLabel(tree, pencil.context, item);
}

}  // namespace

void Paint(const TreePointer& tree, HDC context, const RECT& area) {
    const RECT client = AreaOf(*tree);
    const HGDIOBJ font = SelectObject(context, tree->font ? tree->font : GetStockObject(DEFAULT_GUI_FONT));
    const Pencil pencil{context, HasStyle(*tree, TVS_HASLINES) ? MakeDots() : nullptr};
    int row = tree->top + std::max<int>(area.top, 0) / tree->rowHeight;
    int y = (row - tree->top) * tree->rowHeight;
    for (; y < area.bottom && row < static_cast<int>(tree->rows.size()); ++row, y += tree->rowHeight) {
        PaintRow(*tree, pencil, tree->rows[static_cast<std::size_t>(row)]);
    }
    if (y < client.bottom) {
        Fill(context, {0, y, client.right, client.bottom}, Ground(*tree));
    }
    if (pencil.dots) {
        DeleteObject(pencil.dots);
    }
    SelectObject(context, font);
}

}  // namespace platform::comctl
