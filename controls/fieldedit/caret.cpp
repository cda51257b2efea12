// A field's caret: a triangle under the character that the next key replaces.
#include "controls/fieldedit/editor.h"

#include <algorithm>
#include <cstdlib>

namespace fieldedit {

namespace {

constexpr int kCaretWidth = 8;
constexpr int kCaretHeight = 4;
// From the client area's bottom up to the caret's top row; one row stays free under it.
constexpr int kCaretRise = 5;

constexpr BYTE kTriangle[kCaretHeight][2] = {{0x18, 0x00}, {0x3C, 0x00}, {0x7E, 0x00}, {0xFF, 0x00}};

HBITMAP CreateCaretBitmap() {
    BITMAP bitmap = {0, kCaretWidth, kCaretHeight, sizeof kTriangle[0], 1, 1, nullptr};
    bitmap.bmBits = const_cast<BYTE*>(&kTriangle[0][0]);
    return CreateBitmapIndirect(&bitmap);
}

/// Width in pixels of the text left of the caret.
int CaretX(HWND field, Data const& data) {
    HDC const dc = GetDC(field);
    if (!dc) {
        return 0;
    }
    HGDIOBJ const former = data.font ? SelectObject(dc, data.font) : nullptr;
    SIZE size = {};
    GetTextExtentPoint32A(dc, data.text, static_cast<int>(data.caretPos), &size);
    if (former) {
        SelectObject(dc, former);
    }
    ReleaseDC(field, dc);
    return size.cx;
}

}  // namespace

namespace {

/// One character on, within the text.
UINT NextPosition(Rules const& rules, UINT position, bool forward) {
    UINT const length = rules.TextLength();
    do {
        if (forward ? position + 1 >= length : position == 0) {
            break;
        }
        position += forward ? 1 : -1;
    } while (rules.IsInsideCharacter(position));
    return position;
}

void ShowCaretAt(HWND field, Data const& data) {
    POINT position = {};
    int const x = CaretX(field, data);
    HideCaret(field);
    GetCaretPos(&position);
    SetCaretPos(x, position.y);
    ShowCaret(field);
}

}  // namespace

void MoveCaret(Rules const& rules, HWND field, int delta) {
    Data* const data = DataOf(field);
    if (delta == 0 || !data || GetFocus() != field) {
        return;
    }
    for (int left = std::abs(delta); left > 0; --left) {
        data->caretPos = NextPosition(rules, data->caretPos, delta > 0);
    }
    // One measurement at the end shows the same caret as one after each step.
    ShowCaretAt(field, *data);
}

void PlaceCaret(Rules const& rules, HWND field) {
    Data* const data = DataOf(field);
    if (!data || GetFocus() != field) {
        return;
    }
    // The text may have become shorter with the settings.
    data->caretPos = std::min(data->caretPos, rules.TextLength() - 1);
    ShowCaretAt(field, *data);
    RECT client = {};
    POINT position = {};
    GetClientRect(field, &client);
    GetCaretPos(&position);
    SetCaretPos(position.x, client.bottom - kCaretRise);
}

void ShowFocus(Rules const& rules, HWND field) {
    // Told of the focus twice, the field has a caret already.
    HideFocus(field);
    if (Data* const data = DataOf(field)) {
        data->caretBitmap = CreateCaretBitmap();
        if (CreateCaret(field, data->caretBitmap, kCaretWidth, kCaretHeight)) {
            ShowCaret(field);
        } else if (data->caretBitmap) {
            DeleteObject(data->caretBitmap);
            data->caretBitmap = nullptr;
        }
    }
    PlaceCaret(rules, field);
}

void HideFocus(HWND field) {
    Data* const data = DataOf(field);
    if (data && data->caretBitmap) {
        DestroyCaret();
        DeleteObject(data->caretBitmap);
        data->caretBitmap = nullptr;
    }
}

// Lands on the character under the pointer: the last one whose left edge is not right of it.
void ReleaseButton(Rules const& rules, HWND field, LPARAM lParam) {
    Data* const data = DataOf(field);
    if (!data || !data->buttonDown) {
        return;
    }
    data->buttonDown = 0;
    if (GetFocus() != field) {
        SetFocus(field);
    }
    int const pointer = static_cast<short>(LOWORD(lParam));
    int const length = static_cast<int>(rules.TextLength());
    HideCaret(field);
    MoveCaret(rules, field, -length);
    bool found = false;
    for (int step = 0; step < length && !found; ++step) {
        POINT position = {};
        GetCaretPos(&position);
        found = position.x > pointer;
        if (!found) {
            MoveCaret(rules, field, 1);
        }
    }
    if (found) {
        MoveCaret(rules, field, -1);
    }
    ShowCaret(field);
}

}  // namespace fieldedit
