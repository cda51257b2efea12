// Drawing frames: two-pixel bevels, the caption with its text and buttons.
#include <new>
#include <string>

#include "gdi/context/objects.h"
#include "user/frame/nonclient.h"
#include "user/frame/scrollbar/bar.h"
#include "user/resource/icons.h"
#include "user/window/above.h"

namespace platform::user {
namespace {

/// A window as its frame is drawn, so that no lock is held meanwhile.
struct Picture {
    DWORD style;
    DWORD exStyle;
    RECT rect;  ///< (0, 0) is the window's corner
    CaptionParts caption;
    std::string text;
    bool active;
    HICON icon;
};

bool Describe(HWND handle, Picture* picture) try {
    const UserGuard guard(UserLock());
    const Window* window = PeekWindow(handle);
    if (!window) {
        return false;
    }
    picture->style = window->style;
    picture->exStyle = window->exStyle;
    picture->rect = window->windowRect;
    OffsetRect(&picture->rect, -picture->rect.left, -picture->rect.top);
    picture->caption = LayOutCaption(window, picture->rect);
    picture->text = window->text;
    picture->active = window->captionActive;
    picture->icon = CaptionIcon(window);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

/// The ring between a rectangle and the one `width` pixels inside it.
void FillRing(HDC context, const RECT& rect, int width, int colour) {
    HBRUSH brush = GetSysColorBrush(colour);
    const RECT sides[] = {{rect.left, rect.top, rect.right, rect.top + width},
                          {rect.left, rect.bottom - width, rect.right, rect.bottom},
                          {rect.left, rect.top + width, rect.left + width, rect.bottom - width},
                          {rect.right - width, rect.top + width, rect.right, rect.bottom - width}};
    for (const RECT& side : sides) {
        FillRect(context, &side, brush);
    }
}

void DrawBorders(HDC context, const Picture& picture, RECT& rect) {
    const int width = FrameWidth(picture.style, picture.exStyle);
    const bool raised = (picture.exStyle & WS_EX_DLGMODALFRAME) || (picture.style & (WS_THICKFRAME | WS_DLGFRAME));
    if (raised) {
        DrawEdge(context, &rect, EDGE_RAISED, BF_RECT);
        RECT inner = rect;
        InflateRect(&inner, -2, -2);
        const int colour = !(picture.style & WS_THICKFRAME) ? COLOR_3DFACE
                           : picture.active                 ? COLOR_ACTIVEBORDER
                                                            : COLOR_INACTIVEBORDER;
        FillRing(context, inner, width - 2, colour);
    } else if (picture.exStyle & WS_EX_STATICEDGE) {
        DrawEdge(context, &rect, BDR_SUNKENOUTER, BF_RECT);
        if (picture.style & WS_BORDER) {
            RECT inner = rect;
            InflateRect(&inner, -1, -1);
            FrameRect(context, &inner, GetSysColorBrush(COLOR_WINDOWFRAME));
        }
    } else if (width > 0) {
        FrameRect(context, &rect, GetSysColorBrush(COLOR_WINDOWFRAME));
    }
    InflateRect(&rect, -width, -width);
}

HFONT CaptionFont() {
    static const HFONT font = [] {
        NONCLIENTMETRICSA metrics{};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        const HFONT made = CreateFontIndirectA(&metrics.lfCaptionFont);
        // It is the system's own, and no application is to answer for it.
        if (auto* object = gdi::FindObject<gdi::Font>(made)) {
            gdi::NoteStock(object);
        }
        return made;
    }();
    return font;
}

/// The bar is put together in memory and arrives on the screen at once.
void DrawCaption(HDC context, const Picture& picture, int pressed) {
    CaptionParts parts = picture.caption;
    const POINT place{parts.bar.left, parts.bar.top};
    const int width = parts.bar.right - parts.bar.left;
    const int height = parts.bar.bottom - parts.bar.top;
    if (width <= 0 || height <= 0) {
        return;
    }
    for (RECT* part : {&parts.bar, &parts.icon, &parts.close, &parts.minimize, &parts.maximize, &parts.help}) {
        OffsetRect(part, -place.x, -place.y);
    }
    HDC memory = CreateCompatibleDC(context);
    HBITMAP bitmap = CreateCompatibleBitmap(context, width, height + 1);
    if (!memory || !bitmap) {
        DeleteDC(memory);
        DeleteObject(bitmap);
        return;
    }
    HGDIOBJ oldBitmap = SelectObject(memory, bitmap);
    FillRect(memory, &parts.bar, GetSysColorBrush(picture.active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    const RECT line{parts.bar.left, parts.bar.bottom, parts.bar.right, parts.bar.bottom + 1};
    FillRect(memory, &line, GetSysColorBrush(COLOR_3DFACE));
    const bool maximized = (picture.style & WS_MAXIMIZE) != 0;
    DrawPart(memory, parts.close, DFC_CAPTION, DFCS_CAPTIONCLOSE, pressed == HTCLOSE, false);
    DrawPart(memory, parts.maximize, DFC_CAPTION, maximized ? DFCS_CAPTIONRESTORE : DFCS_CAPTIONMAX,
             pressed == HTMAXBUTTON, !(picture.style & WS_MAXIMIZEBOX));
    DrawPart(memory, parts.minimize, DFC_CAPTION, picture.style & WS_MINIMIZE ? DFCS_CAPTIONRESTORE : DFCS_CAPTIONMIN,
             pressed == HTMINBUTTON, !(picture.style & WS_MINIMIZEBOX));
    DrawPart(memory, parts.help, DFC_CAPTION, DFCS_CAPTIONHELP, pressed == HTHELP, false);
    RECT text = parts.bar;
    if (!IsRectEmpty(&parts.icon)) {
        DrawIconIn(memory, parts.icon, picture.icon);
        text.left = parts.icon.right;
    }
    text.left += 3;
    text.right = !IsRectEmpty(&parts.minimize) ? parts.minimize.left
                 : !IsRectEmpty(&parts.help)   ? parts.help.left
                 : !IsRectEmpty(&parts.close)  ? parts.close.left
                                               : parts.bar.right;
    text.right -= 2;
    HGDIOBJ oldFont = SelectObject(memory, CaptionFont());
    SetBkMode(memory, TRANSPARENT);
    SetTextColor(memory, GetSysColor(picture.active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    DrawTextA(memory, picture.text.c_str(), static_cast<int>(picture.text.size()), &text,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(memory, oldFont);
    BitBlt(context, place.x, place.y, width, height + 1, memory, 0, 0, SRCCOPY);
    SelectObject(memory, oldBitmap);
    DeleteObject(bitmap);
    DeleteDC(memory);
}

}  // namespace

void DrawPart(HDC context, RECT rect, UINT type, UINT kind, bool pressed, bool disabled) {
    if (!IsRectEmpty(&rect)) {
        DrawFrameControl(context, &rect, type, kind | (pressed ? DFCS_PUSHED : 0U) | (disabled ? DFCS_INACTIVE : 0U));
    }
}

void PaintFrame(HWND handle, int pressed) {
    Picture picture;
    if (!Describe(handle, &picture)) {
        return;
    }
    const bool bare = FrameWidth(picture.style, picture.exStyle) == 0 && !(picture.exStyle & WS_EX_CLIENTEDGE) &&
                      picture.caption.height == 0 && !(picture.style & (WS_HSCROLL | WS_VSCROLL));
    if (bare) {
        return;
    }
    HDC context = GetWindowDC(handle);
    if (!context) {
        return;
    }
    RECT rect = picture.rect;
    DrawBorders(context, picture, rect);
    if (picture.caption.height) {
        DrawCaption(context, picture, pressed);
        rect.top += picture.caption.height;
    }
    if ((picture.exStyle & WS_EX_CLIENTEDGE) && !(picture.style & WS_MINIMIZE)) {
        DrawEdge(context, &rect, EDGE_SUNKEN, BF_RECT);
    }
    if ((picture.style & (WS_HSCROLL | WS_VSCROLL)) && !(picture.style & WS_MINIMIZE)) {
        DrawWindowBars(handle, context);
    }
    ReleaseDC(handle, context);
}

}  // namespace platform::user
