// Widths of an edit control's text in its font.
#include <algorithm>

#include "gdi/context/device_context.h"
#include "user/controls/edit/edit.h"

namespace platform::user {

EditMeasure::EditMeasure(HWND edit, const EditData& data) : edit_(edit), data_(data), context_(GetDC(edit)) {
    if (context_ && data.font) {
        former_ = SelectObject(context_, data.font);
    }
}

EditMeasure::~EditMeasure() {
    if (former_) {
        SelectObject(context_, former_);
    }
    if (context_) {
        ReleaseDC(edit_, context_);
    }
}

std::string Shown(const EditData& data, std::size_t start, std::size_t count) {
    // Lines may be behind the text where memory has run out between the two.
    const std::string_view text = std::string_view(data.text).substr(std::min(start, data.text.size()), count);
    return data.password ? std::string(text.size(), data.password) : std::string(text);
}

int EditMeasure::Width(std::size_t start, std::size_t count) const {
    const std::string text = Shown(data_, start, count);
    const auto length = static_cast<int>(text.size());
    if (text.find('\t') != std::string::npos) {
        return gdi::TabbedTextWidth(context_, text);
    }
    SIZE size{};
    GetTextExtentPoint32A(context_, text.c_str(), length, &size);
    return size.cx;
}

std::size_t EditMeasure::Fit(const EditLine& line, int distance, bool nearest) const {
    std::size_t low = line.start;
    std::size_t high = line.End();
    // Widths grow with the text, so the place can be halved in on; it is then set on a whole character.
    while (low < high) {
        const std::size_t middle = low + (high - low + 1) / 2;
        if (Width(line.start, middle - line.start) <= distance) {
            low = middle;
        } else {
            high = middle - 1;
        }
    }
    std::size_t position = low;
    if (position > line.start && position < line.End()) {
        position = NextPosition(data_.text, PreviousPosition(data_.text, position));
        position = position > low ? PreviousPosition(data_.text, position) : position;
    }
    if (nearest && position < line.End()) {
        const std::size_t next = std::min(NextPosition(data_.text, position), line.End());
        const int left = Width(line.start, position - line.start);
        const int right = Width(line.start, next - line.start);
        if (distance - left > (right - left) / 2) {
            position = next;
        }
    }
    return position - line.start;
}

int EditMeasure::Indent(const EditLine& line) const {
    const DWORD style = ControlStyle(edit_);
    if (!(style & (ES_CENTER | ES_RIGHT))) {
        return 0;
    }
    const int room = std::max(0, data_.format.right - data_.format.left - Width(line.start, line.length));
    return style & ES_RIGHT ? room : room / 2;
}

int EditMeasure::LineHeight() const {
    TEXTMETRICA metrics{};
    return GetTextMetricsA(context_, &metrics) && metrics.tmHeight > 0 ? metrics.tmHeight : 1;
}

int EditMeasure::AverageWidth() const {
    TEXTMETRICA metrics{};
    return GetTextMetricsA(context_, &metrics) ? metrics.tmAveCharWidth : 0;
}

}  // namespace platform::user
