// From a parsed template to a dialog with its controls.
#include <algorithm>

#include "user/dialog/dialog.h"
#include "user/window/above.h"

namespace platform::user {
namespace {

constexpr int kMessageFontSize = 0x7FFF;  // the point size that stands for the font of message boxes

HFONT MakeFont(const DialogTemplate& dialogTemplate) {
    LOGFONTA font{};
    const HDC screen = GetDC(nullptr);
    const int size = dialogTemplate.pointSize == kMessageFontSize ? 8 : dialogTemplate.pointSize;
    font.lfHeight = -MulDiv(size, GetDeviceCaps(screen, LOGPIXELSY), 72);
    ReleaseDC(nullptr, screen);
    font.lfWeight = dialogTemplate.weight;
    font.lfItalic = dialogTemplate.italic;
    font.lfCharSet = dialogTemplate.charSet;
    const std::string& face = dialogTemplate.face;
    face.copy(font.lfFaceName, std::min(face.size(), sizeof font.lfFaceName - 1));
    return CreateFontIndirectA(&font);
}

DWORD WindowStyle(const DialogTemplate& dialogTemplate) {
    DWORD style = dialogTemplate.style & ~DWORD{WS_VISIBLE};
    if (style & DS_CONTROL)
        style &= ~DWORD{WS_CAPTION | WS_SYSMENU};
    return style;
}

DWORD WindowExStyle(const DialogTemplate& dialogTemplate) {
    DWORD exStyle = dialogTemplate.exStyle;
    if (dialogTemplate.style & DS_MODALFRAME)
        exStyle |= WS_EX_DLGMODALFRAME;
    if (dialogTemplate.style & DS_CONTROL)
        exStyle |= WS_EX_CONTROLPARENT;
    if (dialogTemplate.style & DS_CONTEXTHELP)
        exStyle |= WS_EX_CONTEXTHELP;
    return exStyle;
}

/// Where the dialog's window goes. Top-level dialogs are kept within the work area as far as they fit.
POINT PlaceDialog(const DialogTemplate& dialogTemplate, HWND owner, DWORD style, SIZE base, int width, int height) {
    const RECT area = WorkArea();
    POINT place{MulDiv(dialogTemplate.x, base.cx, 4), MulDiv(dialogTemplate.y, base.cy, 8)};
    const bool child = (style & WS_CHILD) != 0;
    if (dialogTemplate.style & DS_CENTER) {
        place = {(area.left + area.right) / 2 - width / 2, (area.top + area.bottom) / 2 - height / 2};
    } else if (owner && !child) {
        ClientToScreen(owner, &place);
    }
    if (child)
        return place;
    place.x = std::max(std::min(place.x, area.right - width), area.left);
    place.y = std::max(std::min(place.y, area.bottom - height), area.top);
    return place;
}

HWND CreateItem(HWND dialog, HINSTANCE instance, const DialogItem& item, SIZE base) {
    DWORD style = (item.style & ~DWORD{WS_POPUP}) | WS_CHILD;
    DWORD exStyle = item.exStyle | WS_EX_NOPARENTNOTIFY;
    // Dialogs look three-dimensional: a control's border is a sunken edge.
    if ((style & WS_CAPTION) == WS_BORDER) {
        style &= ~DWORD{WS_BORDER};
        exStyle |= WS_EX_CLIENTEDGE;
    }
    return CreateWindowExA(exStyle, item.className.c_str(), item.text.c_str(), style, MulDiv(item.x, base.cx, 4),
                           MulDiv(item.y, base.cy, 8), MulDiv(item.width, base.cx, 4), MulDiv(item.height, base.cy, 8),
                           dialog, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(item.id)), instance, nullptr);
}

/// @returns false when a control could not be made.
bool CreateItems(HWND dialog, HINSTANCE instance, const DialogTemplate& dialogTemplate, DialogState& state) {
    HWND defaultButton = nullptr;
    for (const DialogItem& item : dialogTemplate.items) {
        const HWND control = CreateItem(dialog, instance, item, state.base);
        if (!control || !IsWindow(dialog))
            return false;
        if (state.ownFont)
            SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(state.ownFont), FALSE);
        if (DialogCode(control) & DLGC_DEFPUSHBUTTON) {
            if (defaultButton)
                SendMessageA(defaultButton, BM_SETSTYLE, BS_PUSHBUTTON, FALSE);
            defaultButton = control;
            state.defaultId = item.id;
            state.hasDefault = true;
        }
    }
    return true;
}

HWND CreateFrame(HINSTANCE instance, const DialogTemplate& dialogTemplate, HWND owner, SIZE base) {
    const DWORD style = WindowStyle(dialogTemplate);
    const DWORD exStyle = WindowExStyle(dialogTemplate);
    RECT rect{0, 0, MulDiv(dialogTemplate.width, base.cx, 4), MulDiv(dialogTemplate.height, base.cy, 8)};
    AdjustWindowRectEx(&rect, style, FALSE, exStyle);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const POINT place = PlaceDialog(dialogTemplate, owner, style, base, width, height);
    return CreateWindowExA(exStyle, WC_DIALOG, dialogTemplate.title.c_str(), style, place.x, place.y, width, height,
                           owner, nullptr, instance, nullptr);
}

/// WM_INITDIALOG, and the default focus where the procedure leaves it to us.
void Initialise(HWND dialog, const DialogTemplate& dialogTemplate, LPARAM initParam) {
    const HWND focus = FirstFocus(dialog);
    const bool wanted = SendMessageA(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(focus), initParam) != 0;
    const auto state = FindDialogState(dialog);
    if (!state || state->ended)
        return;
    const bool embedded = (dialogTemplate.style & DS_CONTROL) && !(dialogTemplate.style & WS_VISIBLE);
    if (!wanted || embedded)
        return;
    // The procedure may have disabled or removed what was first.
    const HWND first = FirstFocus(dialog);
    state->savedFocus = first;
    FocusControl(dialog, first);
}

}  // namespace

HWND CreateDialogFromTemplate(HINSTANCE instance, const DialogTemplate& dialogTemplate, HWND owner, DLGPROC procedure,
                              LPARAM initParam, bool modal, HWND disabledOwner) {
    // Held here until the dialog's state takes it over, so that every early return deletes it.
    DialogState measured;
    if (dialogTemplate.hasFont)
        measured.font = measured.ownFont = MakeFont(dialogTemplate);
    measured.base = FontBaseUnits(measured.font);

    const HWND dialog = CreateFrame(instance, dialogTemplate, owner, measured.base);
    if (!dialog)
        return nullptr;
    const auto state = NeedDialogState(dialog);
    if (!state) {
        DestroyWindow(dialog);
        return nullptr;
    }
    std::swap(state->font, measured.font);
    std::swap(state->ownFont, measured.ownFont);
    state->base = measured.base;
    state->disabledOwner = disabledOwner;
    state->modal = modal;
    SetWindowLongPtrA(dialog, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(procedure));
    if (state->ownFont)
        SendMessageA(dialog, WM_SETFONT, reinterpret_cast<WPARAM>(state->ownFont), 0);

    if (!CreateItems(dialog, instance, dialogTemplate, *state)) {
        const DWORD error = GetLastError();
        if (IsWindow(dialog))
            DestroyWindow(dialog);
        return Fail(error, nullptr);
    }
    Initialise(dialog, dialogTemplate, initParam);
    if (!IsWindow(dialog))
        return nullptr;
    if ((dialogTemplate.style & WS_VISIBLE) && !state->ended)
        ShowDialog(dialog);
    return IsWindow(dialog) ? dialog : nullptr;
}

}  // namespace platform::user
