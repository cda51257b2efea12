// The keyboard of edit controls.
#include <algorithm>
#include <utility>

#include "user/controls/edit/edit.h"

namespace platform::user {
namespace {

constexpr WPARAM ControlCharacter(char letter) {
    return static_cast<WPARAM>(letter) - '@';
}

std::size_t LineStart(const EditData& data) {
    return data.lines[LineOf(data, data.caret)].start;
}

/// The last place of the caret's line; at a wrap that is in front of the last character.
std::size_t LineEnd(const EditData& data) {
    const std::size_t index = LineOf(data, data.caret);
    const std::size_t end = data.lines[index].End();
    const bool wrapped = index + 1 < data.lines.size() && data.lines[index + 1].start == end;
    return wrapped ? PreviousPosition(data.text, end) : end;
}

/// Left and Right let a selection go on its own side of it.
void StepSideways(HWND edit, EditData& data, bool left, bool shift, bool control) {
    std::size_t position = data.caret;
    if (control) {
        position = left ? WordLeft(data, position) : WordRight(data, position);
    } else if (data.HasSelection() && !shift) {
        position = left ? data.SelectionStart() : data.SelectionEnd();
    } else {
        position = left ? PreviousPosition(data.text, position) : NextPosition(data.text, position);
    }
    MoveEditCaret(edit, data, position, shift);
}

void StepLines(HWND edit, EditData& data, int lines, bool shift) {
    const std::size_t index = LineOf(data, data.caret);
    const int last = static_cast<int>(data.lines.size()) - 1;
    const int target = std::clamp(static_cast<int>(index) + lines, 0, last);
    if (target == static_cast<int>(index)) {
        return;
    }
    POINT point = PointOf(edit, data, data.caret);
    const int column = data.wantedX >= 0 ? data.wantedX : point.x + data.scrollX;
    point.x = column - data.scrollX;
    point.y += (target - static_cast<int>(index)) * data.lineHeight;
    MoveEditCaret(edit, data, PositionAt(edit, data, point), shift);
    data.wantedX = column;
}

void StepPage(HWND edit, EditData& data, int direction, bool shift) {
    const int lines = direction * std::max(1, PageLines(data) - 1);
    ScrollLines(edit, data, lines);
    if (IsWindow(edit)) {
        StepLines(edit, data, lines, shift);
    }
}

void Backspace(HWND edit, EditData& data) {
    if (data.HasSelection()) {
        RemoveText(edit, data, data.SelectionStart(), data.SelectionEnd());
    } else {
        RemoveText(edit, data, PreviousPosition(data.text, data.caret), data.caret);
    }
}

/// Shift+Delete cuts, Ctrl+Delete removes the rest of the line.
void Delete(HWND edit, EditData& data, bool shift, bool control) {
    if (data.HasSelection() && shift) {
        CutSelection(edit, data);
    } else if (data.HasSelection() || shift) {
        // With nothing to cut the key does what Backspace does.
        Backspace(edit, data);
    } else {
        const std::size_t lineEnd = data.lines[LineOf(data, data.caret)].End();
        const std::size_t next = NextPosition(data.text, data.caret);
        RemoveText(edit, data, data.caret, control ? std::max(lineEnd, std::min(next, lineEnd)) : next);
    }
}

void TypeByte(HWND edit, EditData& data, char character) {
    const DWORD style = ControlStyle(edit);
    if ((style & ES_NUMBER) && (character < '0' || character > '9')) {
        return;
    }
    if (data.lead) {
        const char pair[] = {std::exchange(data.lead, '\0'), character};
        InsertText(edit, data, {pair, sizeof pair});
    } else if (IsDBCSLeadByte(static_cast<BYTE>(character))) {
        data.lead = character;
    } else {
        InsertText(edit, data, {&character, 1});
    }
}

}  // namespace

void OnEditKey(HWND edit, EditData& data, WPARAM key) {
    const bool shift = IsHeld(VK_SHIFT);
    const bool control = IsHeld(VK_CONTROL);
    const bool multi = IsMultiLine(edit);
    switch (key) {
        case VK_LEFT:
        case VK_RIGHT:
            return StepSideways(edit, data, key == VK_LEFT, shift, control);
        case VK_UP:
        case VK_DOWN:
            if (!multi) {
                return StepSideways(edit, data, key == VK_UP, shift, false);
            }
            return StepLines(edit, data, key == VK_UP ? -1 : 1, shift);
        case VK_PRIOR:
        case VK_NEXT:
            if (multi) {
                StepPage(edit, data, key == VK_PRIOR ? -1 : 1, shift);
            }
            return;
        case VK_HOME:
            return MoveEditCaret(edit, data, control ? 0 : LineStart(data), shift);
        case VK_END:
            return MoveEditCaret(edit, data, control ? data.text.size() : LineEnd(data), shift);
        case VK_DELETE:
            return Delete(edit, data, shift, control);
        case VK_INSERT:
            if (control && !shift) {
                CopySelection(edit, data);
            } else if (shift && !control) {
                PasteText(edit, data);
            }
            return;
        case VK_TAB:
            if (multi && data.inDialog && control) {
                InsertText(edit, data, "\t");
            }
            return;
        case VK_ESCAPE:
            // The control has taken the key from the dialog, and gives it back.
            if (multi && data.inDialog) {
                PostMessageA(GetParent(edit), WM_CLOSE, 0, 0);
            }
            return;
        default:
            return;
    }
}

void OnEditCharacter(HWND edit, EditData& data, WPARAM character) {
    const DWORD style = ControlStyle(edit);
    switch (character) {
        case VK_BACK:
            return Backspace(edit, data);
        case ControlCharacter('A'):
            return Select(edit, data, 0, data.text.size());
        case ControlCharacter('C'):
            return CopySelection(edit, data);
        case ControlCharacter('X'):
            return CutSelection(edit, data);
        case ControlCharacter('V'):
            return PasteText(edit, data);
        case ControlCharacter('Z'):
            UndoEdit(edit, data);
            return;
        case VK_RETURN:
        case ControlCharacter('J'):  // Ctrl+Enter
            if (style & ES_MULTILINE) {
                InsertText(edit, data, "\r\n");
            }
            return;
        case VK_TAB:
            if (style & ES_MULTILINE) {
                InsertText(edit, data, "\t");
            }
            return;
        default:
            // 0x7F comes of Ctrl+Backspace.
            if ((character & 0xFF) >= ' ' && (character & 0xFF) != 0x7F) {
                TypeByte(edit, data, static_cast<char>(character));
            }
            return;
    }
}

}  // namespace platform::user
