/// @file controls.h
/// What the predefined controls share: their registration, the data they keep in their windows, and drawing.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "user/model/window.h"

namespace platform::user {

LRESULT CALLBACK ButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ListBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ComboBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ScrollBarProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// What a control keeps in its window. Handlers hold it shared: it outlives the window while one of them runs.
struct ControlData {
    HFONT font = nullptr;  ///< WM_GETFONT

    virtual ~ControlData() = default;
};

/// @returns a control's data, made on first use; null when the window is dead, belongs to another kind of control or
/// memory has run out.
template <class Data>
std::shared_ptr<Data> ControlOf(HWND handle) {
    const UserGuard guard(UserLock());
    Window* window = FindWindowObject(handle);
    if (!window)
        return nullptr;
    if (!window->control) {
        MemoryAllows([=] { window->control = std::make_shared<Data>(); });
    }
    return std::dynamic_pointer_cast<Data>(window->control);
}

/// The procedure of a kind of control: `handle` gets what not all of them answer alike. One for which there is no memory is
/// not made.
template <class Data>
LRESULT AnswerAs(HWND control, UINT message, WPARAM wParam, LPARAM lParam,
                 LRESULT (*handle)(HWND, Data&, UINT, WPARAM, LPARAM)) {
    const auto data = ControlOf<Data>(control);
    if (!data) {
        return message == WM_NCCREATE ? Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE)
                                      : DefWindowProcA(control, message, wParam, lParam);
    }
    switch (message) {
        case WM_ERASEBKGND:
            return TRUE;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(data->font);
        case WM_SYSCOLORCHANGE:
            InvalidateRect(control, nullptr, TRUE);
            return 0;
        default:
            return handle(control, *data, message, wParam, lParam);
    }
}

inline DWORD ControlStyle(HWND control) {
    return static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE));
}

/// WM_PAINT: `draw` gets the context, and what of the control is due.
template <class Draw>
LRESULT PaintWith(HWND control, const Draw& draw) {
    PAINTSTRUCT paint{};
    if (const HDC context = BeginPaint(control, &paint))
        draw(context, paint.rcPaint);
    EndPaint(control, &paint);
    return 0;
}

/// WM_COMMAND to the parent.
LRESULT NotifyParent(HWND control, UINT code);

/// Asks the parent to draw a control or an item of one (WM_DRAWITEM), of which the identifier is filled in.
void AskToDraw(DRAWITEMSTRUCT item);

/// Asks the parent for the brush of a control's background (WM_CTLCOLOR...), which also sets the context's colours.
HBRUSH ControlBrush(HWND control, HDC context, UINT message);

/// @returns the window's own text, without asking it. Empty when memory has run out.
std::string ControlText(HWND control);

/// Text that is disabled looks embossed: a highlight one pixel below and to the right of the shadow.
void DrawLabel(HDC context, const std::string& text, RECT rect, UINT format, bool disabled);

/// Draws a control at once if it can be seen.
template <class Draw>
void DrawNow(HWND control, const Draw& draw) {
    if (!IsWindowVisible(control))
        return;
    if (const HDC context = GetDC(control)) {
        draw(context);
        ReleaseDC(control, context);
    }
}

inline bool IsHeld(int key) {
    return GetKeyState(key) < 0;
}

}  // namespace platform::user
