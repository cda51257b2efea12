#include "user/dialog/dialog.h"

namespace platform::user {

void FontBaseUnits(HFONT font, int& baseX, int& baseY) {
    static constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    baseX = 8;
    baseY = 16;
    const HDC screen = GetDC(nullptr);
    if (!screen)
        return;
    const HGDIOBJ previous = SelectObject(screen, font ? static_cast<HGDIOBJ>(font) : GetStockObject(SYSTEM_FONT));
    SIZE size{};
    TEXTMETRICA metrics{};
    if (GetTextExtentPoint32A(screen, kLetters, 52, &size) && GetTextMetricsA(screen, &metrics) && size.cx > 0) {
        // The average of the 52 letters, rounded half up.
        baseX = (size.cx / 26 + 1) / 2;
        baseY = metrics.tmHeight;
    }
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
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
    if (state->baseX == 0)
        FontBaseUnits(state->font, state->baseX, state->baseY);
    rect->left = MulDiv(rect->left, state->baseX, 4);
    rect->right = MulDiv(rect->right, state->baseX, 4);
    rect->top = MulDiv(rect->top, state->baseY, 8);
    rect->bottom = MulDiv(rect->bottom, state->baseY, 8);
    return TRUE;
}

WINUSERAPI LONG WINAPI GetDialogBaseUnits() {
    int baseX = 0;
    int baseY = 0;
    FontBaseUnits(nullptr, baseX, baseY);
    return MAKELONG(baseX, baseY);
}
