#include "user/dialog/dialog.h"

namespace platform::user {

SIZE FontBaseUnits(HFONT font) {
    static constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE base{8, 16};
    const HDC screen = GetDC(nullptr);
    if (!screen)
        return base;
    const HGDIOBJ previous = SelectObject(screen, font ? static_cast<HGDIOBJ>(font) : GetStockObject(SYSTEM_FONT));
    SIZE size{};
    TEXTMETRICA metrics{};
    if (GetTextExtentPoint32A(screen, kLetters, 52, &size) && GetTextMetricsA(screen, &metrics) && size.cx > 0) {
        // The average of the 52 letters, rounded half up.
        base = {(size.cx / 26 + 1) / 2, metrics.tmHeight};
    }
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    return base;
}

}  // namespace platform::user

using namespace platform::user;

WINUSERAPI BOOL WINAPI MapDialogRect(HWND dialog, LPRECT rect) {
    const auto state = FindDialogState(dialog);
    if (!state)
        return FALSE;
    if (!rect) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    if (state->base.cx == 0)
        state->base = FontBaseUnits(state->font);
    rect->left = MulDiv(rect->left, state->base.cx, 4);
    rect->right = MulDiv(rect->right, state->base.cx, 4);
    rect->top = MulDiv(rect->top, state->base.cy, 8);
    rect->bottom = MulDiv(rect->bottom, state->base.cy, 8);
    return TRUE;
}

WINUSERAPI LONG WINAPI GetDialogBaseUnits() {
    const SIZE base = FontBaseUnits(nullptr);
    return MAKELONG(base.cx, base.cy);
}
