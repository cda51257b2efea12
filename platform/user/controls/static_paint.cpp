// How static controls look: text, frames, etched lines and icons.
#include "user/controls/static.h"
#include "user/resource/icons.h"

namespace platform::user {
namespace {

UINT TextFormat(DWORD style) {
    UINT format = style & SS_NOPREFIX ? DT_NOPREFIX : 0;
    switch (StaticKind(style)) {
        case SS_CENTER:
            format |= DT_CENTER | DT_EXPANDTABS | DT_WORDBREAK;
            break;
        case SS_RIGHT:
            format |= DT_RIGHT | DT_EXPANDTABS | DT_WORDBREAK;
            break;
        case SS_SIMPLE:
            format |= DT_SINGLELINE;
            break;
        case SS_LEFTNOWORDWRAP:
            format |= DT_EXPANDTABS;
            break;
        default:
            format |= DT_EXPANDTABS | DT_WORDBREAK;
            break;
    }
    if (style & SS_EDITCONTROL)
        format |= DT_EDITCONTROL;
    if (style & SS_CENTERIMAGE)
        format |= DT_SINGLELINE | DT_VCENTER;
    return format & DT_SINGLELINE ? format & ~UINT{DT_WORDBREAK} : format;
}

struct StaticPainter {
    HWND control;
    const StaticData& data;
    HDC context;
    DWORD style;
    RECT client;

    void Erase() const {
        FillRect(context, &client, ControlBrush(control, context, WM_CTLCOLORSTATIC));
    }

    void Text() const {
        Erase();
        const std::string text = ControlText(control);
        if (text.empty())
            return;
        DrawLabel(context, text, client, TextFormat(style), style & WS_DISABLED);
    }

    void Icon() const {
        Erase();
        const SIZE size = IconSize(data.icon);
        if (size.cx <= 0)
            return;
        const bool centred = style & SS_CENTERIMAGE;
        RECT place{0, 0, size.cx, size.cy};
        OffsetRect(&place, centred ? (client.right - size.cx) / 2 : 0, centred ? (client.bottom - size.cy) / 2 : 0);
        DrawIconIn(context, place, data.icon);
    }

    void AskOwner() const {
        if (!GetParent(control))
            return;
        Erase();
        const UINT state = style & WS_DISABLED ? ODS_DISABLED : 0;
        AskToDraw({ODT_STATIC, 0, 0, ODA_DRAWENTIRE, state, control, context, client, 0});
    }

    void Frame(int colour) const {
        FrameRect(context, &client, GetSysColorBrush(colour));
    }

    void Edges(UINT sides) const {
        RECT place = client;
        DrawEdge(context, &place, EDGE_ETCHED, sides);
    }

    void Paint() const {
        switch (StaticKind(style)) {
            case SS_BLACKFRAME:
                Frame(COLOR_3DDKSHADOW);
                break;
            case SS_GRAYFRAME:
                Frame(COLOR_3DSHADOW);
                break;
            case SS_WHITEFRAME:
                Frame(COLOR_3DHIGHLIGHT);
                break;
            case SS_ETCHEDHORZ:
                Edges(BF_TOP | BF_BOTTOM);
                break;
            case SS_ETCHEDVERT:
                Edges(BF_LEFT | BF_RIGHT);
                break;
            case SS_ETCHEDFRAME:
                Edges(BF_RECT);
                break;
            case SS_OWNERDRAW:
                AskOwner();
                break;
            case SS_ICON:
                Icon();
                break;
            default:
                Text();
                break;
        }
    }
};

}  // namespace

void PaintStatic(HWND control, const StaticData& data, HDC context) {
    RECT client{};
    GetClientRect(control, &client);
    const int saved = SaveDC(context);
    // A picture kept in its own size may be larger than the control.
    IntersectClipRect(context, 0, 0, client.right, client.bottom);
    if (data.font)
        SelectObject(context, data.font);
    StaticPainter{control, data, context, ControlStyle(control), client}.Paint();
    RestoreDC(context, saved);
}

}  // namespace platform::user
