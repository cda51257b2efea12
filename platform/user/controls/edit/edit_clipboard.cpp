// Cutting, copying and pasting in edit controls.
#include <algorithm>
#include <cstring>
#include <utility>

#include "user/controls/above.h"
#include "user/controls/edit/edit.h"

namespace platform::user {
namespace {

/// Passwords do not leave the control.
bool MayCopy(const EditData& data) {
    return data.HasSelection() && !data.password;
}

std::string Selected(const EditData& data) {
    return data.text.substr(data.SelectionStart(), data.SelectionEnd() - data.SelectionStart());
}

bool PutOnClipboard(HWND edit, std::string_view text) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (!block) {
        return false;
    }
    auto* bytes = static_cast<char*>(GlobalLock(block));
    std::memcpy(bytes, text.data(), text.size());
    bytes[text.size()] = '\0';
    GlobalUnlock(block);
    bool kept = false;
    if (OpenClipboard(edit)) {
        kept = EmptyClipboard() && SetClipboardData(CF_TEXT, block);
        CloseClipboard();
    }
    if (!kept) {
        GlobalFree(block);
    }
    return kept;
}

/// One line has room for the first one.
std::string Fitting(HWND edit, std::string text) {
    if (!IsMultiLine(edit)) {
        text.resize(std::min(text.find_first_of("\r\n"), text.size()));
    }
    return text;
}

std::string TextOnClipboard(HWND edit) {
    if (!OpenClipboard(edit)) {
        return {};
    }
    std::string text;
    const HANDLE block = GetClipboardData(CF_TEXT);
    if (const auto* bytes = static_cast<const char*>(block ? GlobalLock(block) : nullptr)) {
        text.assign(bytes, strnlen(bytes, GlobalSize(block)));
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

}  // namespace

void CopySelection(HWND edit, const EditData& data) {
    if (MayCopy(data)) {
        PutOnClipboard(edit, Selected(data));
    }
}

void CutSelection(HWND edit, EditData& data) {
    // What could not be put away is not taken from the text.
    if (MayCopy(data) && !IsReadOnly(edit) && PutOnClipboard(edit, Selected(data))) {
        RemoveText(edit, data, data.SelectionStart(), data.SelectionEnd());
    }
}

void PasteText(HWND edit, EditData& data) {
    const std::string text = Fitting(edit, TextOnClipboard(edit));
    if (!text.empty()) {
        InsertText(edit, data, text);
    }
}

bool CanPaste(HWND edit) {
    return !TextOnClipboard(edit).empty();
}

void OfferSelection(const EditData& data) {
    if (MayCopy(data)) {
        OfferPrimarySelection(Selected(data));
    }
}

void OnEditMiddlePress(HWND edit, EditData& data, LPARAM point) {
    std::string text;
    if (IsReadOnly(edit) || !ReadPrimarySelection(&text)) {
        return;
    }
    text = Fitting(edit, std::move(text));
    if (text.empty()) {
        return;
    }
    if (GetFocus() != edit) {
        SetFocus(edit);
    }
    if (IsWindow(edit)) {
        MoveEditCaret(edit, data, PositionAt(edit, data, MousePoint(point)), false);
        InsertText(edit, data, text);
    }
}

}  // namespace platform::user
