// The browse button's window, and its parent's answers for it.
//
// | message      | handler                                                        |
// |--------------|----------------------------------------------------------------|
// | WM_CREATE    | FindBuddy, picture; goes on                                    |
// | WM_NCCREATE  | Create: data, options, validity, parent; goes on               |
// | WM_NCDESTROY | Destroy: file specs, validity, data; goes on                   |
//
// | message of the parent | handler                                                 |
// |-----------------------|---------------------------------------------------------|
// | WM_COMMAND            | goes on, then Browse; 0                                 |
// | WM_NCDESTROY          | goes on, then ends the subclass; 0                      |
#include "cvutil32/browse.h"

#include "controls/browse/button.h"
#include "controls/frame/classes.h"
#include "controls/frame/parentsubclass.h"
#include "controls/frame/validity.h"
#include "controls/frame/windowdata.h"
#include "core/resource.h"
#include "cvutil32/grbutton.h"
#include "cvutil32/util.h"

#include <new>
#include <utility>

namespace browse {

namespace {

constexpr DWORD kDialogOptions = BROWSE_FILEMODE | BROWSE_APPEND | BROWSE_MULTISELECT | BROWSE_NOTIFY;

frame::BaseClass g_base;
constexpr frame::ValidityProperty kValid("Browse_IsValid");

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam);
constexpr frame::ParentSubclass kParents("Browse_ParentWndProc", ParentProcedure);

frame::DataSlot<Data> Slot() {
    return frame::DataSlot<Data>(g_base.extraBytes);
}

void Create(HWND button) {
    auto data = globalblock::Make<Data>();
    if (data) {
        new (data->specs) CSTRING;
        kValid.Set(button);
        // Before the graphic button replaces the style's low word.
        data->options = static_cast<DWORD>(GetWindowLongA(button, GWL_STYLE));
        kParents.Install(button);
    }
    Slot().Put(button, std::move(data));
}

void Destroy(HWND button) {
    if (auto const data = Slot().Take(button)) {
        data->Specs().~CSTRING();
        kValid.Remove(button);
    }
}

bool CanBeBuddy(HWND window) {
    CSTRING name(32U);
    name.GetClassNameA(window);
    return name.Compare("Edit") == 0 || name.Compare("ComboBox") == 0;
}

HWND FindBuddy(HWND button) {
    HWND window = GetWindow(button, GW_HWNDPREV);
    while (window && !CanBeBuddy(window)) {
        window = GetWindow(window, GW_HWNDPREV);
    }
    return window;
}

void Complete(HWND button) {
    Data* const data = Slot().Get(button);
    if (!data) {
        return;
    }
    data->buddy = data->options & BROWSE_AUTOBUDDY ? FindBuddy(button) : nullptr;
    GRBUTTON_SetBitmaps(button, UTIL_GetModuleInstance(), MAKEINTRESOURCEA(CVRES_BROWSE),
                        MAKEINTRESOURCEA(CVRES_BROWSE_MASK));
}

LRESULT CALLBACK WindowProcedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            Complete(button);
            break;
        case WM_NCCREATE:
            Create(button);
            break;
        case WM_NCDESTROY:
            Destroy(button);
            break;
        default:
            break;
    }
    return g_base.Call(button, message, wParam, lParam);
}

void Command(HWND parent, WPARAM wParam, LPARAM lParam) {
    WORD const id = LOWORD(wParam);
    WORD const code = HIWORD(wParam);
    HWND const control = reinterpret_cast<HWND>(lParam);
    kParents.Forward(parent, WM_COMMAND, MAKEWPARAM(id, code), lParam);
    if (code == BN_CLICKED && control && IsWindow(control) && IsBrowseButton(control)) {
        Browse(parent, control, id);
    }
}

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            return Command(parent, wParam, lParam), 0;
        default:
            return kParents.Forward(parent, message, wParam, lParam);
    }
}

}  // namespace

Data* DataOf(HWND button) {
    return button && IsWindow(button) ? Slot().Get(button) : nullptr;
}

bool IsBrowseButton(HWND window) {
    return kValid.IsSet(window);
}

}  // namespace browse

CVAPI(BOOL) BROWSE_RegisterClass(HINSTANCE instance) {
    return frame::RegisterSuperclass(instance, BROWSE_CLASSNAME, GRBUTTON_CLASSNAME, browse::WindowProcedure,
                                     browse::g_base);
}

CVAPI(DWORD) BROWSE_GetDialogOptions(HWND button) {
    browse::Data const* const data = browse::DataOf(button);
    return data ? data->options & browse::kDialogOptions : 0;
}

CVAPI(DWORD) BROWSE_SetDialogOptions(HWND button, DWORD options) {
    browse::Data* const data = browse::DataOf(button);
    if (!data) {
        return 0;
    }
    // The word as a whole, unlike what the getter tells: callers put it back as they got it.
    return std::exchange(data->options,
                         (options & browse::kDialogOptions) | (data->options & ~DWORD{browse::kDialogOptions}));
}

CVAPI(HWND) BROWSE_SetBuddyWindow(HWND button, HWND buddy) {
    browse::Data* const data = buddy && IsWindow(buddy) ? browse::DataOf(button) : nullptr;
    return data ? std::exchange(data->buddy, buddy) : nullptr;
}

CVAPI(BOOL) BROWSE_GetFileSpecs(HWND button, const char** out) {
    browse::Data* const data = out ? browse::DataOf(button) : nullptr;
    if (!data) {
        return FALSE;
    }
    *out = std::as_const(data->Specs());
    return TRUE;
}

CVAPI(BOOL) BROWSE_SetFileSpecs(HWND button, const char* specs) {
    if (browse::Data* const data = specs ? browse::DataOf(button) : nullptr) {
        data->Specs() = specs;
    }
    // Callers rely on FALSE, whether or not the text was taken.
    return FALSE;
}
