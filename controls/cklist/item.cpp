#include "controls/cklist/item.h"

#include "controls/frame/drawing.h"
#include "core/globalblock.h"

#include <algorithm>

namespace cklist {

namespace {

constexpr int kBoxLeft = 10;    // of the client area
constexpr int kTextGap = 18;    // from the item's left edge to its text, besides the box's width
constexpr int kTextRoom = 256;  // of the characters that are shown, with the end

BITMAP SizeOf(HBITMAP bitmap) {
    BITMAP size = {};
    if (bitmap) {
        GetObjectA(bitmap, sizeof size, &size);
    }
    return size;
}

/// @return the width of a box.
LONG DrawBox(DRAWITEMSTRUCT const& item) {
    BITMAP const boxes = SizeOf(g_boxes);
    LONG const width = boxes.bmWidth / 2;
    // Selected and nothing else: with the focus, or disabled, an item shows the empty box. Callers know it this way.
    LONG const source = item.itemState == ODS_SELECTED ? width : 0;
    LONG const height = item.rcItem.bottom - item.rcItem.top;
    LONG const offset = (height - boxes.bmHeight) / 2;
    if (HDC const memory = CreateCompatibleDC(item.hDC)) {
        frame::Selected const selected(memory, g_boxes);
        BitBlt(item.hDC, kBoxLeft, item.rcItem.top + offset, width, offset > 0 ? boxes.bmHeight : height, memory,
               source, 0, SRCCOPY);
        DeleteDC(memory);
    }
    return width;
}

/// A list box copies a text as a whole, whatever room there is: a long one is fetched into a block of its own.
void FetchText(DRAWITEMSTRUCT const& item, char (&text)[kTextRoom]) {
    LRESULT const length = SendMessageA(item.hwndItem, LB_GETTEXTLEN, item.itemID, 0);
    if (length < kTextRoom) {
        SendMessageA(item.hwndItem, LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(text));
        return;
    }
    if (void* const block = globalblock::Allocate(static_cast<SIZE_T>(length) + 1)) {
        SendMessageA(item.hwndItem, LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(block));
        lstrcpynA(text, static_cast<char const*>(block), kTextRoom);
        globalblock::Release(block);
    }
}

}  // namespace

HBITMAP g_boxes = nullptr;

void Draw(DRAWITEMSTRUCT const& item) {
    if (item.itemAction & ODA_FOCUS) {
        DrawFocusRect(item.hDC, &item.rcItem);
        return;
    }
    RECT rect = item.rcItem;
    frame::FillSystemColour(item.hDC, rect, COLOR_WINDOW);
    LONG const width = DrawBox(item);
    SetBkMode(item.hDC, TRANSPARENT);
    char text[kTextRoom] = {};
    FetchText(item, text);
    rect.left += width + kTextGap;
    DrawTextA(item.hDC, text, -1, &rect, DT_SINGLELINE | DT_VCENTER);
}

void Measure(HWND parent, MEASUREITEMSTRUCT& item) {
    HWND const list = GetDlgItem(parent, static_cast<int>(item.CtlID));
    TEXTMETRICA metrics = {};
    if (HDC const dc = GetDC(list)) {
        GetTextMetricsA(dc, &metrics);
        ReleaseDC(list, dc);
    }
    RECT client = {};
    GetClientRect(list, &client);
    LONG const least = g_boxes ? SizeOf(g_boxes).bmHeight / 3 + 2 : 0;
    item.itemWidth = static_cast<UINT>(client.right - client.left);
    // The ascent, not the height: the rows stand close.
    item.itemHeight = static_cast<UINT>(std::max(metrics.tmAscent, least));
}

}  // namespace cklist
