// A field's picture.
#include "controls/fieldedit/editor.h"

namespace fieldedit {

void Repaint(HWND field) {
    HideCaret(field);
    InvalidateRect(field, nullptr, FALSE);
    UpdateWindow(field);
    ShowCaret(field);
}

LRESULT FillBackground(HWND field, HDC dc) {
    RECT client = {};
    GetClientRect(field, &client);
    auto brush = reinterpret_cast<HBRUSH>(
        SendMessageA(GetParent(field), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(field)));
    if (brush) {
        return FillRect(dc, &client, brush);
    }
    brush = CreateSolidBrush(GetSysColor(COLOR_WINDOW));
    if (!brush) {
        return 0;
    }
    int const result = FillRect(dc, &client, brush);
    DeleteObject(brush);
    return result;
}

namespace {

void DrawValue(Rules const& rules, HWND field, HDC dc, Data const& data) {
    RECT area = {};
    GetClientRect(field, &area);
    area.left = 1;
    area.top = 1;
    HGDIOBJ const former = data.font ? SelectObject(dc, data.font) : nullptr;
    FillBackground(field, dc);
    // Asked for its colours, the parent may have ended the field.
    if (DataOf(field) == &data) {
        DrawTextA(dc, data.text, lstrlenA(data.text), &area, DT_TOP | DT_LEFT);
        PlaceCaret(rules, field);
    }
    if (former) {
        SelectObject(dc, former);
    }
}

}  // namespace

// A field without a valid value draws nothing: an empty one shows the erased background, one that was stepped out of
// the calendar its last picture.
void Paint(Rules const& rules, HWND field) {
    PAINTSTRUCT paint;
    HDC const dc = BeginPaint(field, &paint);
    Data const* const data = DataOf(field);
    if (dc && data && data->hasValue && data->text[0] && rules.IsValid(data->value)) {
        DrawValue(rules, field, dc, *data);
    }
    EndPaint(field, &paint);
}

}  // namespace fieldedit
