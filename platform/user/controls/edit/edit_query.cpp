// The messages that ask an edit control something, or that set something other than its text.
#include <algorithm>

#include "user/controls/edit/edit.h"

namespace platform::user {
namespace {

LRESULT GetSelection(const EditData& data, DWORD* start, DWORD* end) {
    const auto first = static_cast<DWORD>(data.SelectionStart());
    const auto last = static_cast<DWORD>(data.SelectionEnd());
    if (start) {
        *start = first;
    }
    if (end) {
        *end = last;
    }
    return first > 0xFFFF || last > 0xFFFF ? -1 : MAKELONG(first, last);
}

LRESULT SetSelection(HWND edit, EditData& data, int start, int end) {
    const std::size_t size = data.text.size();
    const auto position = [size](int value) {
        return value < 0 ? size : std::min(static_cast<std::size_t>(value), size);
    };
    if (start < 0) {
        Select(edit, data, data.caret, data.caret);
    } else {
        Select(edit, data, position(start), position(end));
    }
    return 1;
}

LRESULT SetReadOnly(HWND edit, bool readOnly) {
    const DWORD style = ControlStyle(edit);
    SetWindowLongA(edit, GWL_STYLE, static_cast<LONG>(readOnly ? style | ES_READONLY : style & ~DWORD{ES_READONLY}));
    RedrawEdit(edit);
    return TRUE;
}

std::size_t DefaultLimit(HWND edit) {
    return IsMultiLine(edit) ? 0xFFFFFFFF : 0x7FFFFFFE;
}

}  // namespace

LRESULT OnEditQuery(HWND edit, EditData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case EM_GETSEL:
            return GetSelection(data, reinterpret_cast<DWORD*>(wParam), reinterpret_cast<DWORD*>(lParam));
        case EM_SETSEL:
            return SetSelection(edit, data, static_cast<int>(wParam), static_cast<int>(lParam));
        case EM_LIMITTEXT:
            data.limit = wParam ? std::min<std::size_t>(wParam, DefaultLimit(edit)) : DefaultLimit(edit);
            return 0;
        case EM_GETLIMITTEXT:
            return static_cast<LRESULT>(data.limit);
        case EM_SETREADONLY:
            return SetReadOnly(edit, wParam != 0);
        default:
            return DefWindowProcA(edit, message, wParam, lParam);
    }
}

}  // namespace platform::user
