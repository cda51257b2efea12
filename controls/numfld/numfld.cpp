// The numeric field: the system's edit class with a filter, limits and steps.
//
// | message      | handler               | goes on to the edit class            |
// |--------------|-----------------------|--------------------------------------|
// | WM_NCCREATE  | Create: data, parent  | yes                                  |
// | WM_NCDESTROY | Destroy               | yes                                  |
// | WM_CHAR      | IsTaken               | if it is taken                       |
// | WM_VSCROLL   | StepValue             | only if the field has no data        |
#include "cvutil32/numfld.h"

#include "controls/frame/classes.h"
#include "controls/frame/parentsubclass.h"
#include "controls/frame/validity.h"
#include "controls/frame/windowdata.h"
#include "controls/numfld/number.h"

#include <utility>

namespace numfld {

namespace {

constexpr char kParentProperty[] = "NumField_ParentWndProc";

// Never set by the field; whoever sets it for purposes of their own relies on its going with the field.
constexpr frame::ValidityProperty kValidity("NumField_IsValid");

frame::BaseClass g_base;

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam);
constexpr frame::ParentSubclass kParent(kParentProperty, ParentProcedure);

frame::DataSlot<Limits> Slot() {
    return frame::DataSlot<Limits>(g_base.extraBytes);
}

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!GetPropA(parent, kParentProperty)) {
        return 0;
    }
    if (message == WM_NCDESTROY) {
        return kParent.Forward(parent, message, 0, 0), 0;
    }
    return kParent.Forward(parent, message, wParam, lParam);
}

void Create(HWND field) {
    auto limits = globalblock::Make<Limits>();
    if (limits) {
        kParent.Install(field);
    }
    Slot().Put(field, std::move(limits));
}

void Destroy(HWND field) {
    if (auto const limits = Slot().Take(field)) {
        kValidity.Remove(field);
    }
}

/// A digit of the code page, or Backspace. Control characters such as that of Ctrl+V are not.
bool IsTaken(WPARAM wParam) {
    auto const character = static_cast<char>(LOBYTE(wParam));
    return character == VK_BACK || (IsCharAlphaNumericA(character) && !IsCharAlphaA(character));
}

// The limits are a copy: whoever answers a message to the field may have ended it.
void StepValue(HWND field, Limits limits, WORD code) {
    if (GetWindowTextLengthA(field) >= kTextSize) {
        return;
    }
    auto const value = static_cast<std::uint32_t>(NUMFLD_GetValue(field));
    auto const most = static_cast<DWORD>(SendMessageA(field, EM_GETLIMITTEXT, 0, 0));
    char text[kTextSize];
    if (static_cast<DWORD>(wsprintfA(text, "%u", Step(value, code, limits))) <= most) {
        SetWindowTextA(field, text);
    }
}

LRESULT CALLBACK WindowProcedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            Create(field);
            break;
        case WM_NCDESTROY:
            Destroy(field);
            break;
        case WM_CHAR:
            if (!IsTaken(wParam)) {
                return 0;
            }
            break;
        case WM_VSCROLL:
            if (Limits const* const limits = Slot().Get(field)) {
                return StepValue(field, *limits, LOWORD(wParam)), 0;
            }
            break;
        default:
            break;
    }
    return g_base.Call(field, message, wParam, lParam);
}

}  // namespace

}  // namespace numfld

CVAPI(BOOL) NUMFLD_RegisterClass(HINSTANCE instance) {
    return frame::RegisterSuperclass(instance, NUMFLD_CLASSNAME, "edit", numfld::WindowProcedure, numfld::g_base) != 0;
}

CVAPI(void) NUMFLD_SetLimits(HWND field, DWORD minimum, DWORD maximum) {
    if (!numfld::Slot().Get(field)) {
        return;
    }
    SendMessageA(field, EM_LIMITTEXT, numfld::DigitsOf(maximum), 0);
    if (numfld::Limits* const limits = numfld::Slot().Get(field)) {
        *limits = {minimum, maximum};
    }
}

CVAPI(int) NUMFLD_GetValue(HWND field) {
    char text[numfld::kTextSize];
    if (GetWindowTextA(field, text, sizeof text) == 0) {
        return 0;
    }
    return static_cast<int>(numfld::Parse(text));
}

CVAPI(BOOL) NUMFLD_SetValue(HWND field, int value) {
    char text[numfld::kTextSize];
    wsprintfA(text, "%d", value);
    return SetWindowTextA(field, text);
}
