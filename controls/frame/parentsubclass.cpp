#include "controls/frame/parentsubclass.h"

namespace frame {

void ParentSubclass::Install(HWND control) const {
    HWND const parent = GetParent(control);
    if (!parent || GetPropA(parent, property_)) {
        return;
    }
    LONG_PTR const former = GetWindowLongPtrA(parent, GWLP_WNDPROC);
    // Without the property there would be no way back: better no subclass than one that cannot forward.
    if (SetPropA(parent, property_, reinterpret_cast<HANDLE>(former))) {
        SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure_));
    }
}

LRESULT ParentSubclass::Forward(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) const {
    auto const former = reinterpret_cast<WNDPROC>(GetPropA(parent, property_));
    if (!former) {
        return 0;
    }
    if (message == WM_NCDESTROY) {
        End(parent, former);
        return 0;
    }
    return CallWindowProcA(former, parent, message, wParam, lParam);
}

void ParentSubclass::End(HWND parent, WNDPROC former) const {
    CallWindowProcA(former, parent, WM_NCDESTROY, 0, 0);
    if (GetPropA(parent, property_) &&
        GetWindowLongPtrA(parent, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(procedure_)) {
        SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
        RemovePropA(parent, property_);
    }
}

}  // namespace frame
