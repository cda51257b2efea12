// The messages that ask an edit control something, or that set something other than its text.
#include <algorithm>
#include <cstring>

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

LRESULT LineIndex(const EditData& data, int line) {
    if (line < 0) {
        return static_cast<LRESULT>(data.lines[LineOf(data, data.caret)].start);
    }
    const auto index = static_cast<std::size_t>(line);
    return index < data.lines.size() ? static_cast<LRESULT>(data.lines[index].start) : -1;
}

/// For -1: what the lines that the selection touches have beside it.
LRESULT LineLength(const EditData& data, int position) {
    if (position >= 0) {
        const auto wanted = static_cast<std::size_t>(position);
        return wanted > data.text.size() ? 0 : static_cast<LRESULT>(data.lines[LineOf(data, wanted)].length);
    }
    const EditLine& first = data.lines[LineOf(data, data.SelectionStart())];
    const EditLine& last = data.lines[LineOf(data, data.SelectionEnd())];
    return static_cast<LRESULT>(data.SelectionStart() - first.start + last.End() -
                                std::min(data.SelectionEnd(), last.End()));
}

/// The buffer's first word tells its size; no NUL is written.
LRESULT GetLine(const EditData& data, std::size_t index, char* buffer) {
    WORD size = 0;
    if (!buffer || index >= data.lines.size()) {
        return 0;
    }
    std::memcpy(&size, buffer, sizeof size);
    const EditLine& line = data.lines[index];
    const std::size_t length = std::min<std::size_t>(line.length, size);
    std::memcpy(buffer, data.text.data() + line.start, length);
    return static_cast<LRESULT>(length);
}

void SetPassword(HWND edit, EditData& data, char character) {
    const DWORD style = ControlStyle(edit);
    if (style & ES_MULTILINE) {
        return;
    }
    data.password = character;
    const DWORD wanted = character ? style | ES_PASSWORD : style & ~DWORD{ES_PASSWORD};
    if (wanted != style) {
        SetWindowLongA(edit, GWL_STYLE, static_cast<LONG>(wanted));
    }
    LayOut(edit, data);
    RedrawEdit(edit);
    PlaceEditCaret(edit, data);
}

LRESULT SetReadOnly(HWND edit, bool readOnly) {
    const DWORD style = ControlStyle(edit);
    const DWORD wanted = readOnly ? style | ES_READONLY : style & ~DWORD{ES_READONLY};
    if (wanted != style) {
        SetWindowLongA(edit, GWL_STYLE, static_cast<LONG>(wanted));
        RedrawEdit(edit);
    }
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
        case EM_LINESCROLL:
            if (!IsMultiLine(edit)) {
                return FALSE;
            }
            ScrollLines(edit, data, static_cast<int>(lParam));
            return TRUE;
        case EM_SCROLLCARET:
            if (ScrollToCaret(edit, data)) {
                RedrawEdit(edit);
                PlaceEditCaret(edit, data);
            }
            return TRUE;
        case EM_GETMODIFY:
            return data.modified;
        case EM_SETMODIFY:
            data.modified = wParam != 0;
            return 0;
        case EM_GETLINECOUNT:
            return static_cast<LRESULT>(data.lines.size());
        case EM_LINEINDEX:
            return LineIndex(data, static_cast<int>(wParam));
        case EM_LINELENGTH:
            return LineLength(data, static_cast<int>(wParam));
        case EM_LINEFROMCHAR: {
            const auto position = static_cast<int>(wParam);
            return static_cast<LRESULT>(
                LineOf(data, position < 0 ? data.SelectionStart() : static_cast<std::size_t>(position)));
        }
        case EM_GETLINE:
            return GetLine(data, IsMultiLine(edit) ? wParam : 0, reinterpret_cast<char*>(lParam));
        case EM_LIMITTEXT:
            data.limit = wParam ? std::min<std::size_t>(wParam, DefaultLimit(edit)) : DefaultLimit(edit);
            return 0;
        case EM_GETLIMITTEXT:
            return static_cast<LRESULT>(data.limit);
        case EM_CANUNDO:
            return data.undo.possible;
        case EM_EMPTYUNDOBUFFER:
            data.undo = {};
            return 0;
        case EM_SETPASSWORDCHAR:
            SetPassword(edit, data, static_cast<char>(wParam));
            return 0;
        case EM_GETPASSWORDCHAR:
            return static_cast<BYTE>(data.password);
        case EM_SETREADONLY:
            return SetReadOnly(edit, wParam != 0);
        default:
            return DefWindowProcA(edit, message, wParam, lParam);
    }
}

}  // namespace platform::user
