/// @file controls.h
/// What the predefined controls share: their registration, the data they keep in their windows, and drawing.
#pragma once

#include <windows.h>

#include <memory>
#include <new>
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
        try {
            window->control = std::make_shared<Data>();
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }
    return std::dynamic_pointer_cast<Data>(window->control);
}

/// What a control answers for which there is no memory: a new one is not made.
inline LRESULT AnswerWithoutData(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return FALSE;
    }
    return DefWindowProcA(control, message, wParam, lParam);
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

/// Asks the parent for the brush of a control's background (WM_CTLCOLOR...), which also sets the context's colours.
HBRUSH ControlBrush(HWND control, HDC context, UINT message);

/// @returns the window's own text, without asking it. Empty when memory has run out.
std::string ControlText(HWND control);

/// Text that is disabled looks embossed: a highlight one pixel below and to the right of the shadow.
void DrawDisabledText(HDC context, const std::string& text, RECT rect, UINT format);

}  // namespace platform::user
