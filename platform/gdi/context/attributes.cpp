// Colours, modes and origins of device contexts, and what the device can do.
#include "gdi/context/context.h"

using namespace platform::gdi;

namespace {

/// Puts a value into a context; @returns the one before, or `failure` for a bad handle.
template <class Value>
Value Exchange(HDC handle, Value DrawState::*member, Value value, Value failure) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return failure;
    }
    const Value previous = context->state.*member;
    context->state.*member = value;
    return previous;
}

int ExchangeMode(HDC handle, int DrawState::*member, int value, int lowest, int highest) {
    if (value < lowest || value > highest) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return Exchange(handle, member, value, 0);
}

template <class Value>
Value Get(HDC handle, Value DrawState::*member, Value failure) {
    const auto* context = FindObject<DeviceContext>(handle);
    return context ? context->state.*member : failure;
}

BOOL ExchangePoint(HDC handle, POINT DrawState::*member, int x, int y, LPPOINT previous, bool add) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return FALSE;
    }
    POINT& point = context->state.*member;
    if (previous) {
        *previous = point;
    }
    point = add ? POINT{static_cast<LONG>(point.x + x), static_cast<LONG>(point.y + y)} : POINT{x, y};
    return TRUE;
}

BOOL GetPoint(HDC handle, POINT DrawState::*member, LPPOINT point) {
    const auto* context = FindObject<DeviceContext>(handle);
    if (!context || !point) {
        return FALSE;
    }
    *point = context->state.*member;
    return TRUE;
}

}  // namespace

COLORREF WINAPI SetBkColor(HDC context, COLORREF colour) {
    return Exchange(context, &DrawState::backColour, colour & 0x00FFFFFF, COLORREF{CLR_INVALID});
}

COLORREF WINAPI GetBkColor(HDC context) {
    return Get(context, &DrawState::backColour, COLORREF{CLR_INVALID});
}

int WINAPI SetBkMode(HDC context, int mode) {
    return ExchangeMode(context, &DrawState::backMode, mode, TRANSPARENT, OPAQUE);
}

int WINAPI GetBkMode(HDC context) {
    return Get(context, &DrawState::backMode, 0);
}

COLORREF WINAPI SetTextColor(HDC context, COLORREF colour) {
    return Exchange(context, &DrawState::textColour, colour & 0x00FFFFFF, COLORREF{CLR_INVALID});
}

COLORREF WINAPI GetTextColor(HDC context) {
    return Get(context, &DrawState::textColour, COLORREF{CLR_INVALID});
}

int WINAPI SetROP2(HDC context, int mode) {
    return ExchangeMode(context, &DrawState::rop2, mode, R2_BLACK, R2_WHITE);
}

int WINAPI GetROP2(HDC context) {
    return Get(context, &DrawState::rop2, 0);
}

int WINAPI SetStretchBltMode(HDC context, int mode) {
    return ExchangeMode(context, &DrawState::stretchMode, mode, BLACKONWHITE, HALFTONE);
}

int WINAPI GetStretchBltMode(HDC context) {
    return Get(context, &DrawState::stretchMode, 0);
}

int WINAPI SetPolyFillMode(HDC context, int mode) {
    return ExchangeMode(context, &DrawState::polyFillMode, mode, ALTERNATE, WINDING);
}

int WINAPI GetPolyFillMode(HDC context) {
    return Get(context, &DrawState::polyFillMode, 0);
}

UINT WINAPI SetTextAlign(HDC context, UINT align) {
    return Exchange(context, &DrawState::textAlign, align, UINT{GDI_ERROR});
}

UINT WINAPI GetTextAlign(HDC context) {
    return Get(context, &DrawState::textAlign, UINT{GDI_ERROR});
}

int WINAPI SetTextCharacterExtra(HDC context, int extra) {
    return Exchange(context, &DrawState::characterExtra, extra, static_cast<int>(0x80000000));
}

int WINAPI GetTextCharacterExtra(HDC context) {
    return Get(context, &DrawState::characterExtra, static_cast<int>(0x80000000));
}

BOOL WINAPI SetTextJustification(HDC handle, int extra, int count) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return FALSE;
    }
    context->state.breakExtra = count > 0 ? extra : 0;
    context->state.breakCount = count > 0 ? count : 0;
    return TRUE;
}

COLORREF WINAPI GetNearestColor(HDC handle, COLORREF colour) {
    const auto* context = FindObject<DeviceContext>(handle);
    if (!context) {
        return CLR_INVALID;
    }
    return ColourOf(ShownColour(context->surface, NativeColour(context->surface, PixelOf(colour))));
}

int WINAPI SetMapMode(HDC handle, int mode) {
    if (!FindObject<DeviceContext>(handle)) {
        return 0;
    }
    if (mode != MM_TEXT) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return MM_TEXT;
}

int WINAPI GetMapMode(HDC handle) {
    return FindObject<DeviceContext>(handle) ? MM_TEXT : 0;
}

BOOL WINAPI SetViewportOrgEx(HDC context, int x, int y, LPPOINT previous) {
    return ExchangePoint(context, &DrawState::viewportOrigin, x, y, previous, false);
}

BOOL WINAPI GetViewportOrgEx(HDC context, LPPOINT origin) {
    return GetPoint(context, &DrawState::viewportOrigin, origin);
}

BOOL WINAPI OffsetViewportOrgEx(HDC context, int x, int y, LPPOINT previous) {
    return ExchangePoint(context, &DrawState::viewportOrigin, x, y, previous, true);
}

BOOL WINAPI SetWindowOrgEx(HDC context, int x, int y, LPPOINT previous) {
    return ExchangePoint(context, &DrawState::windowOrigin, x, y, previous, false);
}

BOOL WINAPI GetWindowOrgEx(HDC context, LPPOINT origin) {
    return GetPoint(context, &DrawState::windowOrigin, origin);
}

BOOL WINAPI OffsetWindowOrgEx(HDC context, int x, int y, LPPOINT previous) {
    return ExchangePoint(context, &DrawState::windowOrigin, x, y, previous, true);
}

BOOL WINAPI SetBrushOrgEx(HDC context, int x, int y, LPPOINT previous) {
    return ExchangePoint(context, &DrawState::brushOrigin, x, y, previous, false);
}

BOOL WINAPI GetBrushOrgEx(HDC context, LPPOINT origin) {
    return GetPoint(context, &DrawState::brushOrigin, origin);
}

BOOL WINAPI LPtoDP(HDC handle, LPPOINT points, int count) {
    const auto* context = FindObject<DeviceContext>(handle);
    if (!context || (!points && count > 0)) {
        return FALSE;
    }
    for (int i = 0; i < count; ++i) {
        points[i] = context->ToDevice(points[i].x, points[i].y);
    }
    return TRUE;
}

BOOL WINAPI DPtoLP(HDC handle, LPPOINT points, int count) {
    const auto* context = FindObject<DeviceContext>(handle);
    if (!context || (!points && count > 0)) {
        return FALSE;
    }
    const POINT zero = context->ToDevice(0, 0);
    for (int i = 0; i < count; ++i) {
        points[i].x -= zero.x;
        points[i].y -= zero.y;
    }
    return TRUE;
}

BOOL WINAPI GetDCOrgEx(HDC handle, LPPOINT origin) {
    const auto* context = FindObject<DeviceContext>(handle);
    if (!context || !origin) {
        return FALSE;
    }
    *origin = context->screen ? context->origin : POINT{};
    return TRUE;
}

BOOL WINAPI GdiFlush(void) {
    return TRUE;
}

int WINAPI GetDeviceCaps(HDC handle, int index) {
    if (!FindObject<DeviceContext>(handle)) {
        return 0;
    }
    constexpr int kDotsPerInch = 96;
    const RECT screen = ScreenRect();
    const auto millimetres = [](LONG pixels) { return static_cast<int>((pixels * 254 + 480) / (kDotsPerInch * 10)); };
    switch (index) {
        case DRIVERVERSION:
            return 0x4000;
        case TECHNOLOGY:
            return DT_RASDISPLAY;
        case HORZSIZE:
            return millimetres(screen.right);
        case VERTSIZE:
            return millimetres(screen.bottom);
        case HORZRES:
        case DESKTOPHORZRES:
            return screen.right;
        case VERTRES:
        case DESKTOPVERTRES:
            return screen.bottom;
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        case NUMBRUSHES:
        case NUMPENS:
        case NUMCOLORS:
            return -1;
        case CLIPCAPS:
            return CP_RECTANGLE | CP_REGION;
        case RASTERCAPS:
            return RC_BITBLT | RC_DI_BITMAP | RC_DIBTODEV | RC_STRETCHBLT | RC_STRETCHDIB;
        case ASPECTX:
        case ASPECTY:
            return 36;
        case ASPECTXY:
            return 51;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return kDotsPerInch;
        default:
            return 0;
    }
}
