// The part of a combo box that is always seen: a sunken field, and the arrow at its right.
#include <algorithm>

#include "gdi/context/device_context.h"
#include "user/controls/combobox/combo.h"
#include "user/frame/nonclient.h"

namespace platform::user {
namespace {

constexpr int kFieldEdge = 2;
constexpr int kInset = 1;    // between the edge and the text's place
constexpr int kSpacing = 2;  // what a line of text gets on top of the font's height

/// The field's colours are those of an edit control; a disabled one is as grey as a label.
HBRUSH FieldBrush(const ComboData& combo, HDC context) {
    return ControlBrush(combo.window, context, combo.Style() & WS_DISABLED ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT);
}

void AskOwner(const ComboData& combo, HDC context, const RECT& rect, bool focus) {
    const int index = Current(combo);
    const UINT state = ODS_COMBOBOXEDIT | (focus ? UINT{ODS_FOCUS | ODS_SELECTED} : 0U) |
                       (combo.Style() & WS_DISABLED ? UINT{ODS_DISABLED} : 0U);
    const LRESULT value = index >= 0 ? SendMessageA(combo.list, LB_GETITEMDATA, static_cast<WPARAM>(index), 0) : 0;
    IntersectClipRect(context, rect.left, rect.top, rect.right, rect.bottom);
    AskToDraw({ODT_COMBOBOX, 0, static_cast<UINT>(index), ODA_DRAWENTIRE, state, combo.window, context, rect,
               static_cast<ULONG_PTR>(value)});
}

void DrawChoice(const ComboData& combo, HDC context, const RECT& rect, bool focus) {
    const std::string text = ItemText(combo, Current(combo));
    if (focus) {
        SetTextColor(context, GetSysColor(COLOR_HIGHLIGHTTEXT));
        SetBkColor(context, GetSysColor(COLOR_HIGHLIGHT));
    } else if (combo.Style() & WS_DISABLED) {
        SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
    }
    ExtTextOutA(context, rect.left + kInset, rect.top + kInset, ETO_OPAQUE | ETO_CLIPPED, &rect, text.c_str(),
                static_cast<UINT>(text.size()), nullptr);
    if (focus)
        DrawFocusRect(context, &rect);
}

}  // namespace

int ClosedHeight(const ComboData& combo) {
    return combo.fieldHeight + 2 * (kFieldEdge + kInset);
}

RECT ArrowRect(const ComboData& combo) {
    RECT client{};
    GetClientRect(combo.window, &client);
    if (!combo.Drops())
        return {};
    const int right = client.right - kFieldEdge;
    return {std::max(kFieldEdge, right - GetSystemMetrics(SM_CXVSCROLL)), kFieldEdge, right,
            ClosedHeight(combo) - kFieldEdge};
}

RECT TextRect(const ComboData& combo) {
    RECT client{};
    GetClientRect(combo.window, &client);
    const int right = combo.Drops() ? ArrowRect(combo).left : client.right - kFieldEdge;
    return {kFieldEdge + kInset, kFieldEdge + kInset, std::max(kFieldEdge + kInset, right - kInset),
            kFieldEdge + kInset + combo.fieldHeight};
}

void LayOutCombo(ComboData& combo) {
    const RECT text = TextRect(combo);
    if (combo.edit)
        MoveWindow(combo.edit, text.left, text.top, text.right - text.left, text.bottom - text.top, TRUE);
    if (!combo.Drops() && combo.list) {
        RECT client{};
        GetClientRect(combo.window, &client);
        const int top = ClosedHeight(combo);
        MoveWindow(combo.list, 0, top, client.right, std::max<int>(0, client.bottom - top), TRUE);
    }
}

void MeasureField(ComboData& combo) {
    if (!combo.heightGiven) {
        const HDC context = GetDC(combo.window);
        if (!context)
            return;
        const int saved = SaveDC(context);
        if (combo.font)
            SelectObject(context, combo.font);
        TEXTMETRICA metrics{};
        GetTextMetricsA(context, &metrics);
        RestoreDC(context, saved);
        ReleaseDC(combo.window, context);
        combo.fieldHeight = std::max<int>(1, metrics.tmHeight) + kSpacing;
    }
    RECT rect{};
    if (combo.Drops() && GetWindowRect(combo.window, &rect))
        SetWindowPos(combo.window, nullptr, 0, 0, rect.right - rect.left, ClosedHeight(combo),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    LayOutCombo(combo);
}

void PaintCombo(const ComboData& combo, HDC context) {
    const int saved = SaveDC(context);
    if (combo.font)
        SelectObject(context, combo.font);
    RECT frame{};
    GetClientRect(combo.window, &frame);
    frame.bottom = std::min<LONG>(frame.bottom, ClosedHeight(combo));
    DrawEdge(context, &frame, EDGE_SUNKEN, BF_RECT);
    const RECT arrow = ArrowRect(combo);
    DrawPart(context, arrow, DFC_SCROLL, DFCS_SCROLLCOMBOBOX, combo.pressed, combo.Style() & WS_DISABLED);
    RECT field = frame;
    InflateRect(&field, -kFieldEdge, -kFieldEdge);
    if (!IsRectEmpty(&arrow))
        field.right = arrow.left;
    const RECT text = TextRect(combo);
    const HBRUSH brush = FieldBrush(combo, context);
    if (combo.edit) {
        // The edit control draws its own part.
        gdi::ExcludeFromClip(context, text);
        FillRect(context, &field, brush);
    } else {
        const bool focus = combo.focused && !combo.dropped;
        FillRect(context, &field, brush);
        if (combo.OwnerDrawn())
            AskOwner(combo, context, text, focus);
        else
            DrawChoice(combo, context, text, focus);
    }
    RestoreDC(context, saved);
}

void RedrawCombo(const ComboData& combo) {
    DrawNow(combo.window, [&](HDC context) { PaintCombo(combo, context); });
}

}  // namespace platform::user
