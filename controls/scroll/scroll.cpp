// The micro scroll bar's window.
//
// | message            | handler                                    |
// |--------------------|--------------------------------------------|
// | WM_CREATE          | Create: data, associate, hook, place, pens |
// | WM_DESTROY         | Destroy                                    |
// | WM_PAINT           | Paint                                      |
// | WM_SYSCOLORCHANGE  | TakeColours                                |
// | WM_TIMER           | Repeat                                     |
// | WM_MOUSEMOVE       | Track                                      |
// | WM_LBUTTONDOWN     | Press                                      |
// | WM_LBUTTONDBLCLK   | Press                                      |
// | WM_LBUTTONUP       | Release                                    |
// | WM_CAPTURECHANGED  | LoseCapture                                |
#include "cvutil32/scroll.h"

#include "controls/frame/classes.h"
#include "controls/frame/windowdata.h"
#include "controls/scroll/bar.h"

#include <utility>

namespace scroll {

namespace {

constexpr frame::DataSlot<Data> kSlot(0);

/// Takes the bar's width away from the associate and lays the bar there; a border of the associate stays under the bar.
void Attach(HWND bar, HWND associate, bool vertical) {
    RECT place = {};
    GetWindowRect(associate, &place);
    int const height = place.bottom - place.top;
    int const width = place.right - place.left;
    int const barWidth = AttachedWidth(vertical, height);
    POINT corner = {place.left + width - barWidth, place.top};
    ScreenToClient(GetParent(bar), &corner);
    SetWindowPos(associate, nullptr, 0, 0, width - barWidth + GetSystemMetrics(SM_CXBORDER), height,
                 SWP_NOMOVE | SWP_NOZORDER);
    SetWindowPos(bar, nullptr, corner.x, corner.y, barWidth, height, SWP_NOZORDER);
}

LRESULT Create(HWND bar) {
    Data* const data = kSlot.Put(bar, globalblock::Make<Data>());
    if (!data) {
        return -1;
    }
    LONG_PTR const style = GetWindowLongPtrA(bar, GWL_STYLE);
    HWND const associate = style & SCROLL_PREVSIBLING ? GetWindow(bar, GW_HWNDPREV) : GetParent(bar);
    data->associate = associate;
    CreatePens(*data);
    if (associate && IsWindow(associate)) {
        if (style & SCROLL_ARROWKEYS) {
            HookArrowKeys(associate);
        }
        // Last of all: a window that is moved may end the bar.
        if (style & SCROLL_ATTACH) {
            Attach(bar, associate, (style & SCROLL_VERTICAL) != 0);
        }
    }
    return 0;
}

void Destroy(HWND bar) {
    if (auto const data = kSlot.Take(bar)) {
        DeletePens(*data);
    }
}

LRESULT CALLBACK WindowProcedure(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create(bar);
        case WM_DESTROY:
            return Destroy(bar), 0;
        case WM_PAINT:
            return Paint(bar), 0;
        case WM_SYSCOLORCHANGE:
            return TakeColours(bar), 0;
        case WM_TIMER:
            return Repeat(bar, wParam), 0;
        case WM_MOUSEMOVE:
            return Track(bar, lParam), 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return Press(bar, lParam), 0;
        case WM_LBUTTONUP:
            return Release(bar, lParam), 0;
        case WM_CAPTURECHANGED:
            return LoseCapture(bar, lParam), 0;
        default:
            return DefWindowProcA(bar, message, wParam, lParam);
    }
}

}  // namespace

Data* DataOf(HWND bar) {
    return kSlot.Get(bar);
}

bool IsVertical(HWND bar) {
    return (GetWindowLongPtrA(bar, GWL_STYLE) & SCROLL_VERTICAL) != 0;
}

RECT ArrowRect(HWND bar, Arrow arrow) {
    RECT client = {};
    GetClientRect(bar, &client);
    return ArrowRect(IsVertical(bar), arrow, client);
}

void InvalidateArrow(HWND bar, Data const& data) {
    RECT const rect = ArrowRect(bar, data.PressedArrow());
    InvalidateRect(bar, &rect, TRUE);
}

}  // namespace scroll

CVAPI(BOOL) SCROLL_RegisterClass(HINSTANCE instance) {
    return frame::RegisterOwnClass(instance, {.name = SCROLL_CLASSNAME,
                                              .style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                              .procedure = scroll::WindowProcedure,
                                              .extraBytes = sizeof(LONG_PTR),
                                              .cursor = IDC_ARROW,
                                              .background = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1)});
}

CVAPI(HWND) SCROLL_SetAssociateWindow(HWND bar, HWND associate) {
    if (!bar || !associate || !IsWindow(bar) || !IsWindow(associate)) {
        return nullptr;
    }
    scroll::Data* const data = scroll::DataOf(bar);
    return data ? std::exchange(data->associate, associate) : nullptr;
}
