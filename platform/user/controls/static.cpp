// The "static" class: labels, rectangles, frames, etched lines and pictures.
#include "user/controls/controls.h"

namespace platform::user {
namespace {

struct StaticData : ControlData {
    HFONT font = nullptr;
    HBITMAP bitmap = nullptr;
    HBITMAP ownBitmap = nullptr;  ///< loaded from the resource that the text names
    HICON icon = nullptr;

    ~StaticData() override {
        if (ownBitmap)
            DeleteObject(ownBitmap);
    }
};

DWORD StaticKind(HWND control) {
    return ControlStyle(control) & SS_TYPEMASK;
}

// --- painting

UINT TextFormat(DWORD style) {
    UINT format = style & SS_NOPREFIX ? DT_NOPREFIX : 0;
    switch (style & SS_TYPEMASK) {
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
    if (style & SS_CENTERIMAGE)
        format = (format & ~UINT{DT_WORDBREAK}) | DT_SINGLELINE | DT_VCENTER;
    return format;
}

void PaintText(HWND control, HDC context, RECT client, DWORD style) {
    FillRect(context, &client, ControlBrush(control, context, WM_CTLCOLORSTATIC));
    const std::string text = ControlText(control);
    if (text.empty())
        return;
    const UINT format = TextFormat(style);
    if (style & WS_DISABLED)
        DrawDisabledText(context, text, client, format);
    else
        DrawTextA(context, text.c_str(), static_cast<int>(text.size()), &client, format);
}

void PaintBitmap(HWND control, HDC context, const StaticData& data, const RECT& client, DWORD style) {
    FillRect(context, &client, ControlBrush(control, context, WM_CTLCOLORSTATIC));
    BITMAP info{};
    if (!data.bitmap || !GetObjectA(data.bitmap, sizeof info, &info))
        return;
    RECT place{0, 0, info.bmWidth, info.bmHeight};
    DrawCentredBitmap(context, data.bitmap, style & SS_CENTERIMAGE ? client : place);
}

void AskOwner(HWND control, HDC context, const RECT& client, DWORD style) {
    const HWND parent = GetParent(control);
    if (!parent)
        return;
    FillRect(context, &client, ControlBrush(control, context, WM_CTLCOLORSTATIC));
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_STATIC;
    item.CtlID = static_cast<UINT>(GetDlgCtrlID(control));
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = style & WS_DISABLED ? ODS_DISABLED : 0;
    item.hwndItem = control;
    item.hDC = context;
    item.rcItem = client;
    SendMessageA(parent, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

void PaintStatic(HWND control, const StaticData& data, HDC context) {
    const DWORD style = ControlStyle(control);
    RECT client{};
    GetClientRect(control, &client);
    const int saved = SaveDC(context);
    if (data.font)
        SelectObject(context, data.font);
    switch (style & SS_TYPEMASK) {
        case SS_BLACKRECT:
            FillRect(context, &client, GetSysColorBrush(COLOR_3DDKSHADOW));
            break;
        case SS_GRAYRECT:
            FillRect(context, &client, GetSysColorBrush(COLOR_3DSHADOW));
            break;
        case SS_WHITERECT:
            FillRect(context, &client, GetSysColorBrush(COLOR_3DHIGHLIGHT));
            break;
        case SS_BLACKFRAME:
            FrameRect(context, &client, GetSysColorBrush(COLOR_3DDKSHADOW));
            break;
        case SS_GRAYFRAME:
            FrameRect(context, &client, GetSysColorBrush(COLOR_3DSHADOW));
            break;
        case SS_WHITEFRAME:
            FrameRect(context, &client, GetSysColorBrush(COLOR_3DHIGHLIGHT));
            break;
        case SS_ETCHEDHORZ:
            DrawEdge(context, &client, EDGE_ETCHED, BF_TOP | BF_BOTTOM);
            break;
        case SS_ETCHEDVERT:
            DrawEdge(context, &client, EDGE_ETCHED, BF_LEFT | BF_RIGHT);
            break;
        case SS_ETCHEDFRAME:
            DrawEdge(context, &client, EDGE_ETCHED, BF_RECT);
            break;
        case SS_OWNERDRAW:
            AskOwner(control, context, client, style);
            break;
        case SS_BITMAP:
            PaintBitmap(control, context, data, client, style);
            break;
        case SS_ICON:
            FillRect(context, &client, ControlBrush(control, context, WM_CTLCOLORSTATIC));
            break;
        default:
            PaintText(control, context, client, style);
            break;
    }
    RestoreDC(context, saved);
}

void Redraw(HWND control) {
    InvalidateRect(control, nullptr, TRUE);
    UpdateWindow(control);
}

void OnPaint(HWND control, const StaticData& data, HDC given) {
    if (given) {
        PaintStatic(control, data, given);
        return;
    }
    PAINTSTRUCT paint{};
    if (const HDC context = BeginPaint(control, &paint))
        PaintStatic(control, data, context);
    EndPaint(control, &paint);
}

// --- pictures

LRESULT OnSetBitmap(HWND control, StaticData& data, HBITMAP bitmap) {
    if (StaticKind(control) != SS_BITMAP)
        return 0;
    const HBITMAP previous = data.bitmap;
    data.bitmap = bitmap;
    BITMAP info{};
    if (bitmap && GetObjectA(bitmap, sizeof info, &info) && !(ControlStyle(control) & SS_CENTERIMAGE))
        SetWindowPos(control, nullptr, 0, 0, info.bmWidth, info.bmHeight, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Redraw(control);
    return reinterpret_cast<LRESULT>(previous);
}

LRESULT OnSetIcon(HWND control, StaticData& data, HICON icon) {
    if (StaticKind(control) != SS_ICON)
        return 0;
    const HICON previous = data.icon;
    data.icon = icon;
    Redraw(control);
    return reinterpret_cast<LRESULT>(previous);
}

LRESULT GetImage(HWND control, const StaticData& data, WPARAM kind) {
    if (kind == IMAGE_BITMAP && StaticKind(control) == SS_BITMAP)
        return reinterpret_cast<LRESULT>(data.bitmap);
    if (kind == IMAGE_ICON && StaticKind(control) == SS_ICON)
        return reinterpret_cast<LRESULT>(data.icon);
    return 0;
}

LRESULT OnCreate(HWND control, StaticData& data, const CREATESTRUCTA* create) {
    if (StaticKind(control) == SS_BITMAP && create && create->lpszName && create->lpszName[0]) {
        data.ownBitmap = LoadBitmapA(create->hInstance, create->lpszName);
        if (data.ownBitmap)
            OnSetBitmap(control, data, data.ownBitmap);
    }
    return 0;
}

void SinkEdge(HWND control) {
    if (ControlStyle(control) & SS_SUNKEN)
        SetWindowLongA(control, GWL_EXSTYLE, GetWindowLongA(control, GWL_EXSTYLE) | WS_EX_STATICEDGE);
}

void OnEnable(HWND control, bool enabled) {
    if (ControlStyle(control) & SS_NOTIFY)
        NotifyParent(control, enabled ? STN_ENABLE : STN_DISABLE);
    InvalidateRect(control, nullptr, TRUE);
}

}  // namespace

LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto data = ControlOf<StaticData>(window);
    if (!data)
        return DefWindowProcA(window, message, wParam, lParam);
    switch (message) {
        case WM_NCCREATE:
            SinkEdge(window);
            return DefWindowProcA(window, message, wParam, lParam);
        case WM_CREATE:
            return OnCreate(window, *data, reinterpret_cast<const CREATESTRUCTA*>(lParam));
        case WM_GETDLGCODE:
            return DLGC_STATIC;
        case WM_NCHITTEST:
            return ControlStyle(window) & SS_NOTIFY ? HTCLIENT : HTTRANSPARENT;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
        case WM_PRINTCLIENT:
            OnPaint(window, *data, reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_ENABLE:
            OnEnable(window, wParam != 0);
            return 0;
        case WM_SETTEXT: {
            const LRESULT result = DefWindowProcA(window, message, wParam, lParam);
            Redraw(window);
            return result;
        }
        case WM_SETFONT:
            data->font = reinterpret_cast<HFONT>(wParam);
            if (LOWORD(lParam))
                Redraw(window);
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(data->font);
        case WM_LBUTTONDOWN:
            if (ControlStyle(window) & SS_NOTIFY)
                NotifyParent(window, STN_CLICKED);
            return 0;
        case WM_LBUTTONDBLCLK:
            if (ControlStyle(window) & SS_NOTIFY)
                NotifyParent(window, STN_DBLCLK);
            return 0;
        case STM_SETIMAGE:
            if (wParam == IMAGE_BITMAP)
                return OnSetBitmap(window, *data, reinterpret_cast<HBITMAP>(lParam));
            return wParam == IMAGE_ICON ? OnSetIcon(window, *data, reinterpret_cast<HICON>(lParam)) : 0;
        case STM_GETIMAGE:
            return GetImage(window, *data, wParam);
        case STM_SETICON:
            return OnSetIcon(window, *data, reinterpret_cast<HICON>(wParam));
        case STM_GETICON:
            return GetImage(window, *data, IMAGE_ICON);
        case WM_SYSCOLORCHANGE:
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace platform::user
