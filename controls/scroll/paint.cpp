// A micro scroll bar's picture.
#include "controls/frame/drawing.h"
#include "controls/scroll/bar.h"

#include <algorithm>

namespace scroll {

using frame::DrawPath;
using frame::Selected;

namespace {

constexpr int kSystemColours[kTones] = {COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT, COLOR_BTNTEXT, COLOR_WINDOWFRAME};

void DrawEdges(HDC dc, RECT const& r, Data const& data, bool pressed) {
    {
        Selected const pen(dc, data.pens[kFrame]);
        DrawPath(dc, {{r.left, r.top}, {r.right, r.top}, {r.right, r.bottom}, {r.left, r.bottom}, {r.left, r.top}});
    }
    if (pressed) {
        Selected const pen(dc, data.pens[kShadow]);
        DrawPath(dc, {{r.left + 1, r.bottom - 1}, {r.left + 1, r.top + 1}, {r.right, r.top + 1}});
        return;
    }
    {
        Selected const pen(dc, data.pens[kHighlight]);
        DrawPath(dc, {{r.left + 1, r.bottom - 1}, {r.left + 1, r.top + 1}, {r.right - 1, r.top + 1}});
    }
    Selected const pen(dc, data.pens[kShadow]);
    DrawPath(dc, {{r.right - 1, r.top + 1}, {r.right - 1, r.bottom - 1}, {r.left, r.bottom - 1}});
    DrawPath(dc, {{r.right - 2, r.top + 2}, {r.right - 2, r.bottom - 2}, {r.left + 1, r.bottom - 2}});
}

void DrawArrow(HDC dc, HWND bar, Data const& data, Arrow arrow) {
    bool const vertical = IsVertical(bar);
    RECT const rect = ArrowRect(bar, arrow);
    bool const held = arrow == Arrow::kFirst ? data.firstPressed : data.secondPressed;
    bool const pressed = held && data.inside;
    DrawEdges(dc, rect, data, pressed);
    Selected const pen(dc, data.pens[kText]);
    for (Line const& line : GlyphLines(ArrowGlyph(vertical, arrow), rect, pressed)) {
        DrawPath(dc, {line.from, line.to});
    }
}

bool ColoursChanged(Data const& data) {
    return !std::equal(data.colours, data.colours + kTones, kSystemColours,
                       [](COLORREF colour, int index) { return colour == GetSysColor(index); });
}

}  // namespace

void CreatePens(Data& data) {
    for (int tone = 0; tone < kTones; ++tone) {
        data.colours[tone] = GetSysColor(kSystemColours[tone]);
        data.pens[tone] = CreatePen(PS_SOLID, 1, data.colours[tone]);
    }
}

void DeletePens(Data& data) {
    for (HPEN& pen : data.pens) {
        if (pen) {
            DeleteObject(pen);
            pen = nullptr;
        }
    }
}

void TakeColours(HWND bar) {
    if (Data* const data = DataOf(bar)) {
        DeletePens(*data);
        CreatePens(*data);
    }
}

void Paint(HWND bar) {
    PAINTSTRUCT paint;
    HDC const dc = BeginPaint(bar, &paint);
    Data const* data = DataOf(bar);
    // The system tells top-level windows only when its colours change.
    if (dc && data && (GetWindowLongPtrA(bar, GWL_STYLE) & WS_CHILD) && ColoursChanged(*data)) {
        SendMessageA(bar, WM_SYSCOLORCHANGE, 0, 0);
        // Somebody who stands in front of the bar's procedure may have ended it.
        data = DataOf(bar);
    }
    if (dc && data) {
        DrawArrow(dc, bar, *data, Arrow::kFirst);
        DrawArrow(dc, bar, *data, Arrow::kSecond);
    }
    EndPaint(bar, &paint);
}

}  // namespace scroll
