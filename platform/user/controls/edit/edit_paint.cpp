// How an edit control looks: its text, the selection in the highlight colours, and the caret.
#include <algorithm>

#include "gdi/context/device_context.h"
#include "user/controls/edit/edit.h"

namespace platform::user {
namespace {

struct Colours {
    COLORREF text;
    COLORREF highlight;
    COLORREF highlightText;
};

void DrawRun(HDC context, const std::string& text, int x, int y) {
    const auto length = static_cast<int>(text.size());
    if (text.find('\t') != std::string::npos) {
        gdi::DrawTabbedText(context, x, y, text);
    } else {
        TextOutA(context, x, y, text.c_str(), length);
    }
}

/// What of a line lies in the format rectangle: long lines are not drawn beyond it. Tabs need the line from its start.
EditLine VisiblePart(const EditMeasure& measure, const EditData& data, const EditLine& line) {
    const int width = data.format.right - data.format.left;
    if (measure.Width(line.start, line.length) <= width || data.text.find('\t', line.start) < line.End()) {
        return line;
    }
    const std::size_t first = measure.Fit(line, data.scrollX, false);
    std::size_t end = line.start + measure.Fit(line, data.scrollX + width, false);
    end = std::min(NextPosition(data.text, end), line.End());
    return {line.start + first, end - line.start - first};
}

void DrawLine(const EditMeasure& measure, const EditData& data, HDC context, const EditLine& line, int y,
              const Colours& colours, bool highlight) {
    const EditLine part = VisiblePart(measure, data, line);
    const int left = data.format.left + measure.Indent(line) - data.scrollX;
    const int x = left + measure.Width(line.start, part.start - line.start);
    const std::string text = Shown(data, part.start, part.length);
    SetTextColor(context, colours.text);
    DrawRun(context, text, x, y);

    const std::size_t start = std::clamp(data.SelectionStart(), line.start, line.End());
    const std::size_t end = std::clamp(data.SelectionEnd(), line.start, line.End());
    if (!highlight || start == end) {
        return;
    }
    const int saved = SaveDC(context);
    const RECT selected{left + measure.Width(line.start, start - line.start), y,
                        left + measure.Width(line.start, end - line.start), y + data.lineHeight};
    IntersectClipRect(context, selected.left, selected.top, selected.right, selected.bottom);
    SetBkColor(context, colours.highlight);
    ExtTextOutA(context, 0, 0, ETO_OPAQUE, &selected, nullptr, 0, nullptr);
    SetTextColor(context, colours.highlightText);
    DrawRun(context, text, x, y);
    RestoreDC(context, saved);
}

}  // namespace

void PaintEdit(HWND edit, const EditData& data, HDC context) {
    const int saved = SaveDC(context);
    RECT client{};
    GetClientRect(edit, &client);
    // What cannot be typed into has the colours of a label.
    const bool disabled = (ControlStyle(edit) & WS_DISABLED) != 0;
    const bool label = disabled || IsReadOnly(edit);
    FillRect(context, &client, ControlBrush(edit, context, label ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT));
    if (data.font) {
        SelectObject(context, data.font);
    }
    SetBkMode(context, TRANSPARENT);
    IntersectClipRect(context, data.format.left, data.format.top, data.format.right, data.format.bottom);
    const Colours colours{disabled ? GetSysColor(COLOR_GRAYTEXT) : GetTextColor(context), GetSysColor(COLOR_HIGHLIGHT),
                          GetSysColor(COLOR_HIGHLIGHTTEXT)};
    const EditMeasure measure(edit, data);
    int y = data.format.top;
    for (std::size_t index = data.firstLine; index < data.lines.size() && y < data.format.bottom; ++index) {
        DrawLine(measure, data, context, data.lines[index], y, colours, data.focused);
        y += data.lineHeight;
    }
    RestoreDC(context, saved);
}

void RedrawEdit(HWND edit) {
    InvalidateRect(edit, nullptr, FALSE);
    UpdateWindow(edit);
}

void PlaceEditCaret(HWND edit, const EditData& data) {
    if (!data.focused || GetFocus() != edit) {
        return;
    }
    POINT point = PointOf(edit, data, data.caret);
    // Behind a text that reaches to the right edge the caret stands on its last pixel.
    if (point.x == data.format.right) {
        point.x = std::max(data.format.left, data.format.right - 1);
    }
    SetCaretPos(point.x, point.y);
}

}  // namespace platform::user
