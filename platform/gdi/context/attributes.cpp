// Colours and modes of device contexts, and what the device can do.
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

template <class Value>
Value Get(HDC handle, Value DrawState::*member, Value failure) {
    const auto* context = FindObject<DeviceContext>(handle);
    return context ? context->state.*member : failure;
}

}  // namespace

COLORREF WINAPI SetBkColor(HDC context, COLORREF colour) {
    return Exchange(context, &DrawState::backColour, colour & 0x00FFFFFF, COLORREF{CLR_INVALID});
}

COLORREF WINAPI GetBkColor(HDC context) {
    return Get(context, &DrawState::backColour, COLORREF{CLR_INVALID});
}

int WINAPI SetBkMode(HDC context, int mode) {
    if (mode != TRANSPARENT && mode != OPAQUE) {
        return Fail(ERROR_INVALID_PARAMETER, 0);
    }
    return Exchange(context, &DrawState::backMode, mode, 0);
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

BOOL WINAPI GdiFlush(void) {
    return TRUE;
}

int WINAPI GetDeviceCaps(HDC handle, int index) {
    if (!FindObject<DeviceContext>(handle)) {
        return 0;
    }
    constexpr int kDotsPerInch = 96;
    const RECT screen = ScreenRect();
    switch (index) {
        case HORZRES:
            return screen.right;
        case VERTRES:
            return screen.bottom;
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return kDotsPerInch;
        default:
            return 0;
    }
}
