// The check list's window, and its parent's answers for it.
//
// | message      | handler                            |
// |--------------|------------------------------------|
// | WM_NCCREATE  | Create: validity, parent; goes on  |
// | WM_NCDESTROY | validity ends; goes on             |
//
// | message of the parent | handler                                  |
// |-----------------------|------------------------------------------|
// | WM_DRAWITEM           | DrawItem; goes on if it is not for us; 0 |
// | WM_MEASUREITEM        | MeasureItem; never goes on; 0            |
// | WM_NCDESTROY          | goes on, then ends the subclass          |
#include "controls/cklist/cklist.h"

#include "cvutil32/cklist.h"

#include "controls/cklist/item.h"
#include "controls/frame/classes.h"
#include "controls/frame/parentsubclass.h"
#include "controls/frame/validity.h"
#include "core/resource.h"

namespace cklist {

namespace {

frame::BaseClass g_base;
constexpr frame::ValidityProperty kValid("CKLIST_IsValid");

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam);
constexpr frame::ParentSubclass kParents("CKLIST_ParentWndProc", ParentProcedure);

// In place before the list box asks its parent for the height of its items, which it does while it is created.
void Create(HWND list) {
    kValid.Set(list);
    kParents.Install(list);
}

LRESULT CALLBACK WindowProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            Create(list);
            break;
        case WM_NCDESTROY:
            kValid.Remove(list);
            break;
        default:
            break;
    }
    return g_base.Call(list, message, wParam, lParam);
}

void DrawItem(HWND parent, LPARAM lParam) {
    auto const item = reinterpret_cast<DRAWITEMSTRUCT const*>(lParam);
    if (!item) {
        return;
    }
    if (item->CtlType == ODT_LISTBOX && kValid.IsSet(item->hwndItem)) {
        Draw(*item);
    } else {
        kParents.Forward(parent, WM_DRAWITEM, item->CtlID, lParam);
    }
}

void MeasureItem(HWND parent, LPARAM lParam) {
    auto const item = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
    if (item && IsWindow(parent) && item->CtlType == ODT_LISTBOX) {
        Measure(parent, *item);
    }
}

LRESULT CALLBACK ParentProcedure(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DRAWITEM:
            return DrawItem(parent, lParam), 0;
        case WM_MEASUREITEM:
            return MeasureItem(parent, lParam), 0;
        default:
            return kParents.Forward(parent, message, wParam, lParam);
    }
}

}  // namespace

BOOL WINAPI Register(HINSTANCE instance) {
    WNDCLASSA record = {};
    bool const known = instance && GetClassInfoA(instance, CKLIST_CLASSNAME, &record);
    frame::Difference const difference = {.extraBytes = 0, .withoutStyle = CS_DBLCLKS};
    BOOL const registered =
        frame::RegisterSuperclass(instance, CKLIST_CLASSNAME, "listbox", WindowProcedure, g_base, difference);
    if (!registered || g_boxes) {
        return registered;
    }
    g_boxes = LoadBitmapA(instance, MAKEINTRESOURCEA(CVRES_CHECKS));
    if (!g_boxes && !known) {
        UnregisterClassA(CKLIST_CLASSNAME, instance);
        return FALSE;
    }
    return registered;
}

BOOL WINAPI Unregister(HINSTANCE instance) {
    if (g_boxes) {
        DeleteObject(g_boxes);
        g_boxes = nullptr;
    }
    return UnregisterClassA(CKLIST_CLASSNAME, instance);
}

}  // namespace cklist
