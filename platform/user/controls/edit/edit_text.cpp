// The text of an edit control: characters, words, insertion within the limits, undo.
#include <algorithm>

#include "user/controls/edit/edit.h"

namespace platform::user {
namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

/// The longest beginning that has at most so many bytes and no half character at its end.
std::string_view Beginning(std::string_view text, std::size_t most) {
    if (text.size() <= most) {
        return text;
    }
    std::size_t length = 0;
    while (length < text.size()) {
        const std::size_t size = IsDBCSLeadByte(static_cast<BYTE>(text[length])) && length + 1 < text.size() ? 2 : 1;
        if (length + size > most) {
            break;
        }
        length += size;
    }
    return text.substr(0, length);
}

/// Files a replacement for undo. Typing on, and deleting on in either direction, grow the last step.
void Remember(EditData& data, std::size_t start, std::string_view removed, std::size_t inserted) {
    EditUndo& undo = data.undo;
    const std::size_t insertedEnd = undo.start + undo.inserted;
    if (undo.possible && removed.empty() && start == insertedEnd) {
        undo.inserted += inserted;
    } else if (undo.possible && inserted == 0 && start >= undo.start && start + removed.size() == insertedEnd) {
        undo.inserted -= removed.size();
    } else if (undo.possible && inserted == 0 && undo.inserted == 0 && start + removed.size() == undo.start) {
        undo.removed.insert(0, removed);
        undo.start = start;
    } else if (undo.possible && inserted == 0 && undo.inserted == 0 && start == undo.start) {
        undo.removed.append(removed);
    } else {
        undo = {true, start, inserted, std::string(removed)};
    }
}

/// Exchanges a range of the text and puts the caret behind what was put in.
void Exchange(EditData& data, std::size_t start, std::size_t end, std::string_view text) {
    data.text.replace(start, end - start, text);
    data.anchor = data.caret = start + text.size();
    data.wantedX = -1;
}

/// The parent's two notifications, where it hears of a change, and the picture between them.
void Present(HWND edit, const EditData& data, bool tells) {
    if (tells) {
        NotifyParent(edit, EN_UPDATE);
    }
    if (!IsWindow(edit)) {
        return;
    }
    RedrawEdit(edit);
    PlaceEditCaret(edit, data);
    if (tells) {
        NotifyParent(edit, EN_CHANGE);
    }
}

/// After a change by the user.
void Announce(HWND edit, EditData& data) {
    BreakLines(edit, data);
    ScrollToCaret(edit, data);
    Present(edit, data, true);
}

/// Without automatic scrolling a single line must stay within the format rectangle.
bool FitsRectangle(HWND edit, EditData& data) {
    return (ControlStyle(edit) & (ES_MULTILINE | ES_AUTOHSCROLL)) ||
           EditMeasure(edit, data).Width(0, data.text.size()) <= data.format.right - data.format.left;
}

}  // namespace

std::size_t NextPosition(const std::string& text, std::size_t position) {
    if (position >= text.size()) {
        return text.size();
    }
    if (text[position] == '\r' && position + 1 < text.size() && text[position + 1] == '\n') {
        return position + 2;
    }
    const bool pair = IsDBCSLeadByte(static_cast<BYTE>(text[position])) && position + 1 < text.size();
    return position + (pair ? 2 : 1);
}

std::size_t PreviousPosition(const std::string& text, std::size_t position) {
    if (position == 0) {
        return 0;
    }
    if (position >= 2 && text[position - 1] == '\n' && text[position - 2] == '\r') {
        return position - 2;
    }
    const char* start = text.c_str();
    return static_cast<std::size_t>(CharPrevA(start, start + position) - start);
}

// A password is one word: its inner spaces are as secret as the rest.
std::size_t WordLeft(const EditData& data, std::size_t position) {
    const std::string& text = data.text;
    if (data.password) {
        return 0;
    }
    while (position > 0 && IsBlank(text[position - 1])) {
        --position;
    }
    while (position > 0 && !IsBlank(text[position - 1])) {
        --position;
    }
    return position;
}

std::size_t WordRight(const EditData& data, std::size_t position) {
    const std::string& text = data.text;
    if (data.password) {
        return text.size();
    }
    while (position < text.size() && !IsBlank(text[position])) {
        ++position;
    }
    while (position < text.size() && IsBlank(text[position])) {
        ++position;
    }
    return position;
}

std::string InStyleCase(HWND edit, std::string_view text) {
    std::string result(text);
    const DWORD style = ControlStyle(edit);
    if (style & ES_UPPERCASE) {
        CharUpperBuffA(result.data(), static_cast<DWORD>(result.size()));
    } else if (style & ES_LOWERCASE) {
        CharLowerBuffA(result.data(), static_cast<DWORD>(result.size()));
    }
    return result;
}

void InsertText(HWND edit, EditData& data, std::string_view text) {
    if (IsReadOnly(edit)) {
        return;
    }
    const std::string wanted = InStyleCase(edit, text);
    const std::size_t start = data.SelectionStart();
    const std::string removed = data.text.substr(start, data.SelectionEnd() - start);
    const std::size_t kept = data.text.size() - removed.size();
    std::string_view taken = Beginning(wanted, data.limit > kept ? data.limit - kept : 0);
    Exchange(data, start, start + removed.size(), taken);
    while (!taken.empty() && !FitsRectangle(edit, data)) {
        const std::size_t length = taken.size();
        taken = Beginning(taken, length - 1);
        Exchange(data, start, start + length, taken);
    }
    if (!removed.empty() || !taken.empty()) {
        Remember(data, start, removed, taken.size());
    }
    // Told before the change itself is, with the text and its lines as they are now.
    BreakLines(edit, data);
    if (taken.size() < wanted.size()) {
        NotifyParent(edit, EN_MAXTEXT);
    }
    if ((!removed.empty() || !taken.empty()) && IsWindow(edit)) {
        Announce(edit, data);
    }
}

void RemoveText(HWND edit, EditData& data, std::size_t start, std::size_t end) {
    if (start >= end || IsReadOnly(edit)) {
        return;
    }
    const std::string removed = data.text.substr(start, end - start);
    Exchange(data, start, end, {});
    Remember(data, start, removed, 0);
    Announce(edit, data);
}

void SetEditText(HWND edit, EditData& data, LPCSTR text) {
    data.text = InStyleCase(edit, text ? text : "");
    data.anchor = data.caret = 0;
    data.undo = {};
    data.lead = 0;
    data.scrollX = 0;
    data.firstLine = 0;
    data.wantedX = -1;
    BreakLines(edit, data);
    // Only single-line controls tell the parent of a text that the application has set itself.
    Present(edit, data, !IsMultiLine(edit));
}

bool UndoEdit(HWND edit, EditData& data) {
    if (!data.undo.possible || IsReadOnly(edit)) {
        return false;
    }
    const EditUndo undo = data.undo;
    const std::string inserted = data.text.substr(undo.start, undo.inserted);
    Exchange(data, undo.start, undo.start + undo.inserted, undo.removed);
    // What comes back is selected; undoing once more brings the change back.
    data.anchor = undo.start;
    data.undo = {true, undo.start, undo.removed.size(), inserted};
    Announce(edit, data);
    return true;
}

}  // namespace platform::user
