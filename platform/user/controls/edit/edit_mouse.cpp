// The mouse of edit controls: a press puts the caret, dragging selects, a double click takes a word.
#include <algorithm>

#include "user/controls/edit/edit.h"
#include "user/input/input.h"

namespace platform::user {
namespace {

constexpr UINT_PTR kEditScrollTimer = 1;
constexpr UINT kEditScrollMilliseconds = 50;

/// A point outside is drawn to its edge and one character beyond, so that a drag scrolls at the pace of its timer.
std::size_t PositionNear(HWND edit, const EditData& data, POINT point) {
    const RECT& format = data.format;
    if (point.x < format.left) {
        return PreviousPosition(data.text, PositionAt(edit, data, {format.left, point.y}));
    }
    if (point.x >= format.right) {
        return NextPosition(data.text, PositionAt(edit, data, {format.right - 1, point.y}));
    }
    return PositionAt(edit, data, point);
}

void Begin(HWND edit, EditData& data, EditData::Drag drag, POINT point) {
    data.drag = drag;
    data.dragPoint = point;
    SetCapture(edit);
    SetTimer(edit, kEditScrollTimer, kEditScrollMilliseconds, nullptr);
}

/// By words, the word that the drag began in stays selected, whichever way it goes.
void Follow(HWND edit, EditData& data) {
    const std::size_t position = PositionNear(edit, data, data.dragPoint);
    if (data.drag == EditData::Drag::Characters) {
        if (position != data.caret) {
            MoveEditCaret(edit, data, position, true);
        }
        return;
    }
    const bool backwards = position < data.wordStart;
    const std::size_t end = position > data.wordEnd ? WordRight(data, position) : data.wordEnd;
    const std::size_t start = backwards ? WordLeft(data, NextPosition(data.text, position)) : data.wordStart;
    data.anchor = backwards ? data.wordEnd : data.wordStart;
    MoveEditCaret(edit, data, backwards ? start : end, true);
}

}  // namespace

void OnEditPress(HWND edit, EditData& data, WPARAM flags, LPARAM point) {
    const POINT place = MousePoint(point);
    Begin(edit, data, EditData::Drag::Characters, place);
    if (GetFocus() != edit) {
        SetFocus(edit);
    }
    // Whoever heard of the focus may have ended the press, or the control.
    if (IsWindow(edit) && data.drag == EditData::Drag::Characters) {
        MoveEditCaret(edit, data, PositionAt(edit, data, place), (flags & MK_SHIFT) != 0);
    }
}

void OnEditDoubleClick(HWND edit, EditData& data, LPARAM point) {
    const POINT place = MousePoint(point);
    const std::size_t position = PositionAt(edit, data, place);
    data.wordStart = WordLeft(data, std::min(NextPosition(data.text, position), data.text.size()));
    data.wordEnd = WordRight(data, data.wordStart);
    Begin(edit, data, EditData::Drag::Words, place);
    data.anchor = data.wordStart;
    MoveEditCaret(edit, data, data.wordEnd, true);
}

void OnEditMove(HWND edit, EditData& data, LPARAM point) {
    if (data.drag != EditData::Drag::None) {
        data.dragPoint = MousePoint(point);
        Follow(edit, data);
    }
}

void OnEditTimer(HWND edit, EditData& data) {
    if (data.drag != EditData::Drag::None && !PtInRect(&data.format, data.dragPoint)) {
        Follow(edit, data);
    }
}

void EndEditDrag(HWND edit, EditData& data) {
    if (data.drag == EditData::Drag::None) {
        return;
    }
    data.drag = EditData::Drag::None;
    KillTimer(edit, kEditScrollTimer);
    LetGoOfMouse(edit);
}

}  // namespace platform::user
