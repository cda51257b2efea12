// The graphic button's window, and its parent's answers for it.
//
// | message      | handler                                           |
// |--------------|---------------------------------------------------|
// | WM_NCCREATE  | Create: data, style, validity, parent; goes on    |
// | WM_NCDESTROY | Destroy: validity, bitmaps, data; goes on         |
//
// | message of the parent | handler                                      |
// |-----------------------|----------------------------------------------|
// | WM_DRAWITEM           | DrawItem; goes on if it is not for us; 0     |
// | WM_NCDESTROY          | goes on, then ends the subclass              |
#include "cvutil32/grbutton.h"

#include "controls/frame/classes.h"
#include "controls/frame/parentsubclass.h"
#include "controls/frame/validity.h"
#include "controls/frame/windowdata.h"

#include <utility>

namespace grbutton {

namespace {

struct Data {
    HBITMAP image;
    HBITMAP mask;
};

frame::BaseClass g_base;
constexpr frame::ValidityProperty kValid("GrButton_IsValid");

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam);
constexpr frame::ParentSubclass kParents("GrButton_ParentWndProc", ParentProcedure);

frame::DataSlot<Data> Slot() {
    return frame::DataSlot<Data>(g_base.extraBytes);
}

/// @return null for a window that is no graphic button.
Data* DataOf(HWND button) {
    return kValid.IsSet(button) ? Slot().Get(button) : nullptr;
}

/// The button is drawn through its parent whatever kind the creator asked for.
void ForceOwnerDraw(HWND button) {
    auto const style = static_cast<DWORD>(GetWindowLongA(button, GWL_STYLE));
    SetWindowLongA(button, GWL_STYLE, static_cast<LONG>((style & 0xFFFF0000) | BS_OWNERDRAW));
}

void Create(HWND button) {
    auto data = globalblock::Make<Data>();
    if (data) {
        ForceOwnerDraw(button);
        kValid.Set(button);
        kParents.Install(button);
    }
    Slot().Put(button, std::move(data));
}

void Destroy(HWND button) {
    auto const data = Slot().Take(button);
    if (!data) {
        return;
    }
    kValid.Remove(button);
    for (HBITMAP bitmap : {data->image, data->mask}) {
        if (bitmap) {
            DeleteObject(bitmap);
        }
    }
}

LRESULT CALLBACK WindowProcedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
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

void Draw(DRAWITEMSTRUCT const& item, Data const& data) {
    BOOL const pressed = (item.itemState & ODS_SELECTED) != 0;
    // The ring belongs to a change of the pressed state, not to the state: users take it for the click's answer.
    BOOL const outline = (item.itemAction & ODA_SELECT) != 0;
    RECT face = {};
    GRBUTTON_DrawButtonFrame(item.hDC, &item.rcItem, &face, pressed, outline, nullptr, nullptr, nullptr, nullptr);
    GRBUTTON_DrawButtonFace(item.hDC, &face, pressed, (item.itemState & ODS_FOCUS) != 0,
                            (item.itemState & ODS_DISABLED) != 0, data.image, data.mask, nullptr, FALSE);
}

void DrawItem(HWND parent, LPARAM lParam) {
    auto const item = reinterpret_cast<DRAWITEMSTRUCT const*>(lParam);
    if (!item) {
        return;
    }
    if (item->CtlType != ODT_BUTTON || !kValid.IsSet(item->hwndItem)) {
        kParents.Forward(parent, WM_DRAWITEM, item->CtlID, lParam);
    } else if (Data const* const data = Slot().Get(item->hwndItem)) {
        Draw(*item, *data);
    }
}

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DRAWITEM:
            return DrawItem(parent, lParam), 0;
        default:
            return kParents.Forward(parent, message, wParam, lParam);
    }
}

}  // namespace

}  // namespace grbutton

CVAPI(BOOL) GRBUTTON_RegisterClass(HINSTANCE instance) {
    return frame::RegisterSuperclass(instance, GRBUTTON_CLASSNAME, "button", grbutton::WindowProcedure,
                                     grbutton::g_base);
}

CVAPI(BOOL) GRBUTTON_SetBitmaps(HWND button, HINSTANCE instance, LPCSTR image, LPCSTR mask) {
    grbutton::Data* const data = button && instance && image ? grbutton::DataOf(button) : nullptr;
    if (!data) {
        return FALSE;
    }
    data->image = LoadBitmapA(instance, image);
    if (mask) {
        data->mask = LoadBitmapA(instance, mask);
    }
    return data->image != nullptr;
}

CVAPI(BOOL) GRBUTTON_SetHBitmaps(HWND button, HBITMAP image, HBITMAP mask) {
    grbutton::Data* const data = button && image && mask ? grbutton::DataOf(button) : nullptr;
    if (!data) {
        return FALSE;
    }
    *data = {image, mask};
    return TRUE;
}
