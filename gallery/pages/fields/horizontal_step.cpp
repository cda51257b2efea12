#include "gallery/pages/fields/horizontal_step.h"

namespace gallery {
namespace {

constexpr char kFormer[] = "Gallery_SidewaysProcedure";

LRESULT CALLBACK SidewaysProcedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto former = reinterpret_cast<WNDPROC>(GetPropA(field, kFormer));
    return CallWindowProcA(former, field, message == WM_HSCROLL ? WM_VSCROLL : message, wParam, lParam);
}

}  // namespace

void StepSideways(HWND field) {
    const LONG_PTR former = GetWindowLongPtrA(field, GWLP_WNDPROC);
    if (SetPropA(field, kFormer, reinterpret_cast<HANDLE>(former))) {
        SetWindowLongPtrA(field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SidewaysProcedure));
    }
}

void StopSteppingSideways(HWND field) {
    if (const HANDLE former = RemovePropA(field, kFormer)) {
        SetWindowLongPtrA(field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
    }
}

}  // namespace gallery
