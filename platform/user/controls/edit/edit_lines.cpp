// Where an edit control's lines and characters stand, what is selected, and what is scrolled into view.
#include <algorithm>
#include <utility>

#include "user/controls/edit/edit.h"

namespace platform::user {
namespace {

int FormatWidth(const EditData& data) {
    return std::max<LONG>(data.format.right - data.format.left, 0);
}

/// Wraps one paragraph: a line takes as many words as fit, and at least one character.
void Wrap(const EditMeasure& measure, EditData& data, EditLine paragraph) {
    const int width = FormatWidth(data);
    while (paragraph.length > 0) {
        std::size_t fit = measure.Fit(paragraph, width, false);
        if (fit == paragraph.length) {
            break;
        }
        const std::size_t blank = data.text.rfind(' ', paragraph.start + fit);
        if (blank != std::string::npos && blank >= paragraph.start) {
            // The blanks at which a line ends hang over its end.
            fit = blank + 1 - paragraph.start;
            while (fit < paragraph.length && data.text[paragraph.start + fit] == ' ') {
                ++fit;
            }
        } else if (fit == 0) {
            fit = NextPosition(data.text, paragraph.start) - paragraph.start;
        }
        if (fit == paragraph.length) {
            break;
        }
        data.lines.push_back({paragraph.start, fit});
        paragraph.start += fit;
        paragraph.length -= fit;
    }
    data.lines.push_back(paragraph);
}

RECT FormatOf(HWND edit, const EditData& data) {
    RECT rect{};
    GetClientRect(edit, &rect);
    // A frame keeps a pixel away from the text, where there is room for it.
    const bool framed =
        (ControlStyle(edit) & WS_BORDER) || (GetWindowLongA(edit, GWL_EXSTYLE) & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    if (framed && rect.bottom >= data.lineHeight + 2) {
        InflateRect(&rect, -1, -1);
    }
    rect.left += data.margin;
    rect.right = std::max(rect.left, rect.right - data.margin);
    if (!IsMultiLine(edit)) {
        rect.bottom = std::min<LONG>(rect.bottom, rect.top + data.lineHeight);
    }
    return rect;
}

/// Sideways: to a third of the width before the end that the caret has left, on the edge of a character.
bool ScrollSideways(const EditMeasure& measure, EditData& data) {
    const EditLine& line = data.lines[LineOf(data, data.caret)];
    const int width = FormatWidth(data);
    const int x = measure.Width(line.start, data.caret - line.start);
    const int total = measure.Width(line.start, line.length);
    int wanted = data.scrollX;
    if (data.lines.size() == 1 && total < width) {
        wanted = 0;
    } else if (x < wanted) {
        wanted = std::max(0, x - width / 3);
    } else if (x >= wanted + width) {
        wanted = x - width + std::min(width / 3, std::max(1, total - x + 1));
    }
    if (wanted != data.scrollX && wanted > 0) {
        std::size_t count = measure.Fit(line, wanted, false);
        if (measure.Width(line.start, count) < wanted && x > data.scrollX && count < line.length) {
            count = NextPosition(data.text, line.start + count) - line.start;
        }
        wanted = std::min(measure.Width(line.start, count), x);
    }
    return std::exchange(data.scrollX, wanted) != wanted;
}

bool ScrollUpright(EditData& data) {
    const std::size_t line = LineOf(data, data.caret);
    const auto page = static_cast<std::size_t>(PageLines(data));
    std::size_t first = data.firstLine;
    if (line < first) {
        first = line;
    } else if (line >= first + page) {
        first = line - page + 1;
    }
    return std::exchange(data.firstLine, first) != first;
}

}  // namespace

void BreakLines(HWND edit, EditData& data) {
    data.lines.clear();
    if (!IsMultiLine(edit)) {
        data.lines.push_back({0, data.text.size()});
        return;
    }
    const EditMeasure measure(edit, data);
    const bool wraps = FormatWidth(data) > 0;
    for (std::size_t start = 0;;) {
        const std::size_t end = std::min(data.text.find("\r\n", start), data.text.size());
        if (wraps) {
            Wrap(measure, data, {start, end - start});
        } else {
            data.lines.push_back({start, end - start});
        }
        if (end == data.text.size()) {
            break;
        }
        start = end + 2;
    }
    data.firstLine = std::min(data.firstLine, data.lines.size() - 1);
    ShowEditBar(edit, data);
}

void LayOut(HWND edit, EditData& data) {
    data.lineHeight = EditMeasure(edit, data).LineHeight();
    data.format = FormatOf(edit, data);
    BreakLines(edit, data);
    data.scrollX = 0;
    ScrollToCaret(edit, data);
}

void TakeFontMargin(HWND edit, EditData& data) {
    data.margin = data.font ? EditMeasure(edit, data).AverageWidth() / 2 : 0;
}

std::size_t LineOf(const EditData& data, std::size_t position) {
    const auto after = std::upper_bound(data.lines.begin(), data.lines.end(), position,
                                        [](std::size_t wanted, const EditLine& line) { return wanted < line.start; });
    return after == data.lines.begin() ? 0 : static_cast<std::size_t>(after - data.lines.begin()) - 1;
}

int PageLines(const EditData& data) {
    return std::max<int>(1, (data.format.bottom - data.format.top) / data.lineHeight);
}

POINT PointOf(HWND edit, const EditData& data, std::size_t position) {
    const EditMeasure measure(edit, data);
    const std::size_t index = LineOf(data, position);
    const EditLine& line = data.lines[index];
    const std::size_t count = std::min(position, line.End()) - line.start;
    const auto row = static_cast<int>(index) - static_cast<int>(data.firstLine);
    return {data.format.left + measure.Indent(line) + measure.Width(line.start, count) - data.scrollX,
            data.format.top + row * data.lineHeight};
}

std::size_t PositionAt(HWND edit, const EditData& data, POINT point) {
    const EditMeasure measure(edit, data);
    const LONG offset = point.y - data.format.top;
    // Rounded towards minus infinity: a point above the text belongs to the line above.
    const LONG row = offset >= 0 ? offset / data.lineHeight : -((-offset + data.lineHeight - 1) / data.lineHeight);
    const LONG wanted = static_cast<LONG>(data.firstLine) + row;
    const auto index = static_cast<std::size_t>(std::clamp<LONG>(wanted, 0, static_cast<LONG>(data.lines.size()) - 1));
    const EditLine& line = data.lines[index];
    const int distance = point.x - data.format.left - measure.Indent(line) + data.scrollX;
    std::size_t position = line.start + measure.Fit(line, std::max(distance, 0), true);
    // The end of a wrapped line is the beginning of the next one; the caret stays on the line that was meant.
    if (index + 1 < data.lines.size() && position == data.lines[index + 1].start && line.length > 0) {
        position = PreviousPosition(data.text, position);
    }
    return position;
}

void Select(HWND edit, EditData& data, std::size_t anchor, std::size_t caret) {
    const bool redraw = data.HasSelection() || anchor != caret;
    data.anchor = anchor;
    data.caret = caret;
    data.wantedX = -1;
    if (redraw) {
        RedrawEdit(edit);
    }
    PlaceEditCaret(edit, data);
}

void MoveEditCaret(HWND edit, EditData& data, std::size_t position, bool extend) {
    const bool selected = data.HasSelection();
    data.caret = position;
    if (!extend) {
        data.anchor = position;
    }
    data.wantedX = -1;
    if (ScrollToCaret(edit, data) || selected || data.HasSelection()) {
        RedrawEdit(edit);
    }
    PlaceEditCaret(edit, data);
}

bool ScrollToCaret(HWND edit, EditData& data) {
    if (!IsMultiLine(edit)) {
        return ScrollSideways(EditMeasure(edit, data), data);
    }
    const bool scrolled = ScrollUpright(data);
    if (scrolled) {
        ShowEditBar(edit, data);
    }
    return scrolled;
}

void ScrollLines(HWND edit, EditData& data, int lines) {
    const auto last = static_cast<int>(data.lines.size()) - 1;
    const auto first = static_cast<int>(data.firstLine);
    const int wanted = std::clamp(first + lines, 0, std::max(0, std::max(first, last - PageLines(data) + 1)));
    if (wanted == first) {
        return;
    }
    data.firstLine = static_cast<std::size_t>(wanted);
    ShowEditBar(edit, data);
    RedrawEdit(edit);
    PlaceEditCaret(edit, data);
}

}  // namespace platform::user
