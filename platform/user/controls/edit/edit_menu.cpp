// What an edit control offers for the text and the selection: its context menu.
#include <algorithm>

#include "user/controls/edit/edit.h"
#include "user/menu/menu.h"

namespace platform::user {
namespace {

/// A command is the message that carries it out, so that a subclass hears of it.
std::vector<MenuItem> EditItems(HWND edit, const EditData& data) {
    const bool changes = !IsReadOnly(edit);
    const bool selected = data.HasSelection();
    const bool copies = selected && !data.password;
    const bool all = data.SelectionStart() == 0 && data.SelectionEnd() == data.text.size();
    return {{WM_UNDO, "&Undo", changes && data.undo.possible},
            {0, "", false},
            {WM_CUT, "Cu&t", changes && copies},
            {WM_COPY, "&Copy", copies},
            {WM_PASTE, "&Paste", changes && CanPaste(edit)},
            {WM_CLEAR, "&Delete", changes && selected},
            {0, "", false},
            {EM_SETSEL, "Select &All", !all}};
}

/// At the pointer, or below the line that the caret is in.
MenuPlace PlaceOf(HWND edit, const EditData& data, POINT point, bool byKeyboard) {
    if (!byKeyboard) {
        return {point};
    }
    POINT caret = PointOf(edit, data, data.caret);
    caret.x = std::max(data.format.left, std::min(caret.x, data.format.right));
    caret.y = std::max(data.format.top, std::min(caret.y, data.format.bottom));
    RECT line{caret.x, caret.y, caret.x + 1, caret.y + data.lineHeight};
    MapWindowPoints(edit, nullptr, reinterpret_cast<POINT*>(&line), 2);
    return {{line.left, line.top}, line};
}

}  // namespace

bool OnEditContextMenu(HWND edit, EditData& data, LPARAM where) {
    const POINT point = MousePoint(where);
    const bool byKeyboard = point.x == -1 && point.y == -1;
    const LRESULT part = byKeyboard ? HTCLIENT : SendMessageA(edit, WM_NCHITTEST, 0, where);
    if (part == HTVSCROLL || part == HTHSCROLL || !IsWindow(edit)) {
        return false;
    }
    if (GetFocus() != edit) {
        SetFocus(edit);
    }
    if (!IsWindow(edit)) {
        return true;
    }
    const UINT command = RunMenu(edit, EditItems(edit, data), PlaceOf(edit, data, point, byKeyboard)).command;
    if (command && IsWindow(edit)) {
        SendMessageA(edit, command, 0, command == EM_SETSEL ? -1 : 0);
    }
    if (command == EM_SETSEL) {
        OfferSelection(data);
    }
    return true;
}

}  // namespace platform::user
