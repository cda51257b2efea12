// The buddy frame's window.
//
// | message   | handler                              |
// |-----------|--------------------------------------|
// | WM_CREATE | Create: finds and arranges the rest  |
// | WM_PAINT  | Paint                                |
#include "cvutil32/buddyfr.h"

#include "controls/buddyfr/layout.h"
#include "controls/frame/classes.h"
#include "controls/frame/drawing.h"

#include <array>

namespace buddyfr {

namespace {

/// What stands before a frame in the tab order.
struct Family {
    HWND field = nullptr;
    bool combo = false;
    std::array<HWND, 3> buttons = {};  ///< the last one first
    int count = 0;

    bool IsComplete() const {
        return field && count > 0;
    }
};

/// A third control ends the search, before anything is known of the one in front of it.
Family FindFamily(HWND parent, HWND window) {
    Family family;
    HWND current = window;
    while (family.count < static_cast<int>(family.buttons.size())) {
        current = GetNextDlgTabItem(parent, current, TRUE);
        char name[128];
        if (!current || !GetClassNameA(current, name, sizeof name)) {
            break;
        }
        family.combo = lstrcmpiA(name, "COMBOBOX") == 0;
        if (family.combo || lstrcmpiA(name, "EDIT") == 0) {
            family.field = current;
            break;
        }
        family.buttons[family.count++] = current;
    }
    return family;
}

RECT PlaceInParent(HWND parent, HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    POINT corners[] = {{rect.left, rect.top}, {rect.right, rect.bottom}};
    for (POINT& corner : corners) {
        ScreenToClient(parent, &corner);
    }
    return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void Place(HWND window, RECT const& rect) {
    SetWindowPos(window, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void PlaceButton(HWND button, RECT const& rect) {
    Place(button, rect);
    if (HWND const child = GetWindow(button, GW_CHILD)) {
        Place(child, {0, 0, rect.right - rect.left, rect.bottom - rect.top});
    }
}

void Create(HWND window) {
    HWND const parent = GetParent(window);
    Family const family = FindFamily(parent, window);
    if (!family.IsComplete()) {
        return;
    }
    Layout const layout = Arrange(PlaceInParent(parent, family.field), family.count, family.combo);
    SetWindowPos(family.field, nullptr, 0, 0, layout.field.cx, layout.field.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Place(window, layout.frame);
    for (int place = 0; place < family.count; ++place) {
        PlaceButton(family.buttons[family.count - 1 - place], ButtonRect(layout, place));
    }
}

void DrawBorder(HDC dc, RECT const& r) {
    auto const line = [dc](int colour, std::initializer_list<POINT> points) {
        frame::OrDefault<HPEN> const pen(nullptr, [=] { return CreatePen(PS_SOLID, 1, GetSysColor(colour)); });
        frame::DrawPath(dc, pen, points);
    };
    line(COLOR_BTNSHADOW, {{r.left, r.bottom - 1}, {r.left, r.top}, {r.right - 1, r.top}});
    line(COLOR_BTNHIGHLIGHT, {{r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left - 1, r.bottom - 1}});
    line(COLOR_3DDKSHADOW, {{r.left + 1, r.bottom - 3}, {r.left + 1, r.top + 1}, {r.right - 2, r.top + 1}});
    line(COLOR_3DLIGHT, {{r.right - 2, r.top + 1}, {r.right - 2, r.bottom - 2}, {r.left + 1, r.bottom - 2}});
}

void Paint(HWND window) {
    PAINTSTRUCT paint;
    if (HDC const dc = BeginPaint(window, &paint)) {
        RECT client = {};
        GetClientRect(window, &client);
        DrawBorder(dc, client);
    }
    EndPaint(window, &paint);
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create(window), 0;
        case WM_PAINT:
            return Paint(window), 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace

}  // namespace buddyfr

CVAPI(BOOL) BUDDYFR_RegisterClass(HINSTANCE instance) {
    return frame::RegisterOwnClass(instance, {.name = BUDDYFR_CLASSNAME,
                                              .style = 0,
                                              .procedure = buddyfr::WindowProcedure,
                                              .extraBytes = 0,
                                              .cursor = IDC_ARROW,
                                              .background = static_cast<HBRUSH>(GetStockObject(NULL_BRUSH))});
}
