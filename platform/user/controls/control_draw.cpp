#include "user/controls/controls.h"
#include "user/dialog/dialog.h"

#include "user/window/above.h"
#include "user/window/class.h"

namespace platform::user {

LRESULT NotifyParent(HWND control, UINT code) {
    const HWND parent = GetParent(control);
    if (!parent)
        return 0;
    return SendMessageA(parent, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code), reinterpret_cast<LPARAM>(control));
}

HBRUSH ControlBrush(HWND control, HDC context, UINT message) {
    const auto dc = reinterpret_cast<WPARAM>(context);
    const auto self = reinterpret_cast<LPARAM>(control);
    const HWND parent = GetParent(control);
    LRESULT brush = parent ? SendMessageA(parent, message, dc, self) : 0;
    if (!brush)
        brush = DefWindowProcA(parent ? parent : control, message, dc, self);
    return reinterpret_cast<HBRUSH>(brush);
}

std::string ControlText(HWND control) try {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(control);
    return window ? window->text : std::string();
} catch (const std::bad_alloc&) {
    return {};
}

void DrawDisabledText(HDC context, const std::string& text, RECT rect, UINT format) {
    const int length = static_cast<int>(text.size());
    const int mode = SetBkMode(context, TRANSPARENT);
    const COLORREF colour = SetTextColor(context, GetSysColor(COLOR_BTNHIGHLIGHT));
    RECT shadow{rect.left + 1, rect.top + 1, rect.right + 1, rect.bottom + 1};
    DrawTextA(context, text.c_str(), length, &shadow, format);
    SetTextColor(context, GetSysColor(COLOR_BTNSHADOW));
    DrawTextA(context, text.c_str(), length, &rect, format);
    SetTextColor(context, colour);
    SetBkMode(context, mode);
}

void RegisterDialogClasses() {
    RegisterSystemClass("#32770", DialogProcedure, CS_DBLCLKS, DLGWINDOWEXTRA, IDC_ARROW, nullptr);
    RegisterSystemClass("Button", ButtonProcedure, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, 0, IDC_ARROW, nullptr);
    RegisterSystemClass("Edit", EditProcedure, CS_DBLCLKS, 0, IDC_IBEAM, nullptr);
    RegisterSystemClass("Static", StaticProcedure, CS_DBLCLKS, 0, IDC_ARROW, nullptr);
    RegisterSystemClass("ListBox", ListBoxProcedure, CS_DBLCLKS, 0, IDC_ARROW, nullptr);
    RegisterSystemClass("ComboBox", ComboBoxProcedure, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, 0, IDC_ARROW, nullptr);
    RegisterSystemClass("ComboLBox", ListBoxProcedure, CS_DBLCLKS, 0, IDC_ARROW, nullptr);
    RegisterSystemClass("ScrollBar", ScrollBarProcedure, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, 0, IDC_ARROW, nullptr);
}

}  // namespace platform::user
