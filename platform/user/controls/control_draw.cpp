#include "user/controls/controls.h"
#include "user/dialog/dialog.h"

#include "user/frame/nonclient.h"
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
    return AskForBrush(GetParent(control), message, context, control);
}

void AskToDraw(DRAWITEMSTRUCT item) {
    if (const HWND parent = GetParent(item.hwndItem)) {
        item.CtlID = static_cast<UINT>(GetDlgCtrlID(item.hwndItem));
        SendMessageA(parent, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    }
}

std::string ControlText(HWND control) try {
    const UserGuard guard(UserLock());
    const Window* window = FindWindowObject(control);
    return window ? window->text : std::string();
} catch (const std::bad_alloc&) {
    return {};
}

void DrawLabel(HDC context, const std::string& text, RECT rect, UINT format, bool disabled) {
    const int length = static_cast<int>(text.size());
    if (!disabled) {
        DrawTextA(context, text.c_str(), length, &rect, format);
        return;
    }
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
