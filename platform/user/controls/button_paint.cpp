// How buttons look: raised two-pixel bevels, a black outline on the default button, a dotted focus rectangle.
#include <algorithm>

#include "user/controls/button.h"

namespace platform::user {
namespace {

constexpr int kBoxSize = 13;      // of check boxes and radio buttons
constexpr int kBoxGap = 3;        // between a box and its text
constexpr int kEdge = 2;          // width of the bevel
constexpr int kSideGap = 2;       // between the bevel and text at a push button's side
constexpr int kCaptionInset = 9;  // of a group box's text from its left edge
constexpr int kCaptionGap = 2;    // that the frame keeps from the text

struct ButtonPainter {
    HWND button;
    const ButtonData& data;
    HDC context;
    DWORD style;
    RECT client;
    std::string text;

    DWORD Kind() const {
        return ButtonKind(style);
    }
    bool Disabled() const {
        return (style & WS_DISABLED) != 0;
    }
    bool Pushed() const {
        return (data.state & BST_PUSHED) != 0;
    }
    bool Focused() const {
        return (data.state & BST_FOCUS) != 0;
    }
    bool LooksPush() const {
        return !IsCheckKind(Kind()) && !IsRadioKind(Kind());
    }
};

UINT TextFormat(const ButtonPainter& painter) {
    return DT_SINGLELINE | (painter.LooksPush() ? DT_CENTER : DT_LEFT);
}

/// @returns the rectangle that the text fills within an area.
RECT PlaceText(const ButtonPainter& painter, const RECT& area, UINT format) {
    RECT measured = area;
    DrawTextA(painter.context, painter.text.c_str(), static_cast<int>(painter.text.size()), &measured,
              format | DT_CALCRECT);
    const int width = measured.right - measured.left;
    const int height = measured.bottom - measured.top;
    RECT place = area;
    if (format & DT_CENTER)
        place.left = area.left + std::max<int>(0, (area.right - area.left - width) / 2);
    place.right = std::min<int>(area.right, place.left + width);
    // Text that is too tall loses its last pixels, not its first.
    place.top = area.top + (area.bottom - area.top - height) / 2;
    place.bottom = place.top + height;
    return place;
}

void DrawContents(const ButtonPainter& painter, const RECT& area) {
    if (painter.text.empty())
        return;
    const UINT format = TextFormat(painter);
    const int saved = SaveDC(painter.context);
    IntersectClipRect(painter.context, painter.client.left + kEdge, painter.client.top + kEdge,
                      painter.client.right - kEdge, painter.client.bottom - kEdge);
    SetBkMode(painter.context, TRANSPARENT);
    SetTextColor(painter.context, GetSysColor(COLOR_BTNTEXT));
    RECT within = area;
    InflateRect(&within, format & DT_CENTER ? 0 : -kSideGap, 0);
    DrawLabel(painter.context, painter.text, PlaceText(painter, within, format), format, painter.Disabled());
    RestoreDC(painter.context, saved);
}

void PaintPush(const ButtonPainter& painter) {
    ControlBrush(painter.button, painter.context, WM_CTLCOLORBTN);
    RECT frame = painter.client;
    const bool isDefault = painter.Kind() == BS_DEFPUSHBUTTON;
    if (isDefault) {
        FrameRect(painter.context, &frame, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&frame, -1, -1);
    }
    if (isDefault && painter.Pushed()) {
        // The outlined button goes flat when pressed: a single line of shadow.
        FillRect(painter.context, &frame, GetSysColorBrush(COLOR_BTNFACE));
        FrameRect(painter.context, &frame, GetSysColorBrush(COLOR_BTNSHADOW));
    } else {
        RECT bevel = frame;
        DrawFrameControl(painter.context, &bevel, DFC_BUTTON, DFCS_BUTTONPUSH | (painter.Pushed() ? DFCS_PUSHED : 0));
    }
    // The contents are laid out in the whole button, so that the outline does not move them.
    RECT area = painter.client;
    InflateRect(&area, -kEdge, -kEdge);
    if (painter.Pushed())
        OffsetRect(&area, 1, 1);
    DrawContents(painter, area);
    if (painter.Focused()) {
        RECT focus = frame;
        InflateRect(&focus, -(kEdge + 1), -(kEdge + 1));
        if (focus.left < focus.right && focus.top < focus.bottom)
            DrawFocusRect(painter.context, &focus);
    }
}

UINT BoxState(const ButtonPainter& painter) {
    UINT state = IsRadioKind(painter.Kind()) ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
    if (painter.data.state & BST_INDETERMINATE)
        state = DFCS_BUTTON3STATE | DFCS_CHECKED;
    else if (painter.data.state & BST_CHECKED)
        state |= DFCS_CHECKED;
    if (painter.Pushed())
        state |= DFCS_PUSHED;
    if (painter.Disabled())
        state |= DFCS_INACTIVE;
    return state;
}

void PaintBox(const ButtonPainter& painter) {
    const HBRUSH brush = ControlBrush(painter.button, painter.context, WM_CTLCOLORSTATIC);
    FillRect(painter.context, &painter.client, brush);
    const bool boxAtRight = painter.style & BS_LEFTTEXT;
    RECT area = painter.client;
    (boxAtRight ? area.right : area.left) += boxAtRight ? -(kBoxSize + kBoxGap) : kBoxSize + kBoxGap;
    const UINT format = TextFormat(painter);
    RECT place = PlaceText(painter, area, format);

    RECT box = painter.client;
    if (boxAtRight)
        box.left = box.right - kBoxSize;
    box.right = box.left + kBoxSize;
    box.top += (painter.client.bottom - painter.client.top - kBoxSize) / 2;
    box.bottom = box.top + kBoxSize;
    DrawFrameControl(painter.context, &box, DFC_BUTTON, BoxState(painter));

    if (painter.text.empty())
        return;
    DrawLabel(painter.context, painter.text, place, format, painter.Disabled());
    if (painter.Focused()) {
        InflateRect(&place, 1, 1);
        RECT focus{};
        if (IntersectRect(&focus, &place, &painter.client))
            DrawFocusRect(painter.context, &focus);
    }
}

void PaintGroup(const ButtonPainter& painter) {
    const HBRUSH brush = ControlBrush(painter.button, painter.context, WM_CTLCOLORSTATIC);
    TEXTMETRICA metrics{};
    GetTextMetricsA(painter.context, &metrics);
    RECT frame = painter.client;
    frame.top += metrics.tmHeight / 2 - 1;
    DrawEdge(painter.context, &frame, EDGE_ETCHED, BF_RECT);
    if (painter.text.empty())
        return;
    RECT area = painter.client;
    area.left += kCaptionInset;
    area.right -= kCaptionInset;
    RECT measured = area;
    const UINT format = DT_SINGLELINE;
    DrawTextA(painter.context, painter.text.c_str(), static_cast<int>(painter.text.size()), &measured,
              format | DT_CALCRECT);
    const int width = std::max<int>(0, std::min(measured.right - measured.left, area.right - area.left));
    area.right = area.left + width;
    area.bottom = area.top + metrics.tmHeight;
    RECT behind{area.left - kCaptionGap, area.top, area.right + kCaptionGap, area.bottom};
    FillRect(painter.context, &behind, brush);
    DrawLabel(painter.context, painter.text, area, format, painter.Disabled());
}

void AskOwner(const ButtonPainter& painter, UINT action) {
    ControlBrush(painter.button, painter.context, WM_CTLCOLORBTN);
    const UINT state = (painter.Pushed() ? ODS_SELECTED : 0U) | (painter.Focused() ? ODS_FOCUS : 0U) |
                       (painter.Disabled() ? ODS_DISABLED : 0U);
    AskToDraw({ODT_BUTTON, 0, 0, action, state, painter.button, painter.context, painter.client, 0});
}

}  // namespace

void PaintButton(HWND button, const ButtonData& data, HDC context, UINT action) {
    ButtonPainter painter{button, data, context, ControlStyle(button), {}, ControlText(button)};
    GetClientRect(button, &painter.client);
    const int saved = SaveDC(context);
    if (data.font)
        SelectObject(context, data.font);
    if (painter.Kind() == BS_OWNERDRAW)
        AskOwner(painter, action);
    else if (painter.Kind() == BS_GROUPBOX)
        PaintGroup(painter);
    else if (painter.LooksPush())
        PaintPush(painter);
    else
        PaintBox(painter);
    RestoreDC(context, saved);
}

}  // namespace platform::user
