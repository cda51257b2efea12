// How a menu lies on the screen and looks: raised, the chosen item highlighted, disabled ones etched.
#include "user/menu/menu_window.h"

#include <algorithm>
#include <string_view>

#include "user/model/thread.h"
#include "user/window/above.h"
#include "user/window/class.h"

namespace platform::user {
namespace {

constexpr char kMenuClass[] = "#32768";

constexpr int kMenuEdge = 3;     // two pixels of bevel, and one between it and the items
constexpr int kBeforeText = 18;  // as wide as the column of check marks
constexpr int kAfterText = 17;
constexpr int kColumnGap = 12;
constexpr int kAboveAndBelow = 4;   // what an item has more than its text
constexpr int kMenuLineHeight = 9;  // of a line between items
constexpr UINT kItemFormat = DT_LEFT | DT_VCENTER | DT_SINGLELINE;

/// What stands in the first column, and in the second.
struct Texts {
    explicit Texts(std::string_view text) : label(text.substr(0, text.find('\t'))) {
        shortcut = label.size() < text.size() ? text.substr(label.size() + 1) : std::string_view();
    }
    std::string_view label;
    std::string_view shortcut;
};

void Draw(HDC context, std::string_view text, RECT* rect, UINT format) {
    DrawTextA(context, text.data(), static_cast<int>(text.size()), rect, format);
}

SIZE Measure(HDC context, std::string_view text) {
    RECT area{};
    Draw(context, text, &area, kItemFormat | DT_CALCRECT);
    return {area.right, area.bottom};
}

void LayOut(OpenMenu& menu) {
    const HDC context = GetDC(nullptr);
    const HGDIOBJ former = SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
    const int itemHeight = static_cast<int>(Measure(context, "X").cy) + kAboveAndBelow;
    LONG labels = 0;
    LONG shortcuts = 0;
    for (const MenuItem& item : menu.items) {
        const Texts texts(item.text);
        labels = std::max(labels, Measure(context, texts.label).cx);
        shortcuts = texts.shortcut.empty() ? shortcuts : std::max(shortcuts, Measure(context, texts.shortcut).cx);
    }
    SelectObject(context, former);
    ReleaseDC(nullptr, context);

    menu.shortcuts = kMenuEdge + kBeforeText + labels + kColumnGap;
    menu.size.cx = 2 * kMenuEdge + kBeforeText + labels + (shortcuts > 0 ? kColumnGap + shortcuts : 0) + kAfterText;
    LONG top = kMenuEdge;
    for (const MenuItem& item : menu.items) {
        const LONG bottom = top + (item.command ? itemHeight : kMenuLineHeight);
        menu.rects.push_back({kMenuEdge, top, menu.size.cx - kMenuEdge, bottom});
        top = bottom;
    }
    menu.size.cy = top + kMenuEdge;
}

/// Where a menu stands so that all of it is seen, as far as the screen is large enough.
POINT Fit(SIZE size, const MenuPlace& place) {
    const RECT area = WorkArea();
    const bool alone = IsRectEmpty(&place.beside);
    LONG x = place.at.x;
    LONG y = alone ? place.at.y : place.beside.bottom;
    if (x + size.cx > area.right) {
        x = alone ? x - size.cx : area.right - size.cx;
    }
    if (y + size.cy > area.bottom) {
        y = (alone ? place.at.y : place.beside.top) - size.cy;
    }
    return {std::max(area.left, std::min(x, area.right - size.cx)),
            std::max(area.top, std::min(y, area.bottom - size.cy))};
}

void DrawLine(HDC context, const RECT& rect) {
    RECT line{rect.left + 1, rect.top + kMenuLineHeight / 2 - 1, rect.right - 1, rect.top + kMenuLineHeight / 2 + 1};
    DrawEdge(context, &line, EDGE_ETCHED, BF_TOP);
}

void DrawTexts(HDC context, const OpenMenu& menu, const Texts& texts, RECT rect, COLORREF colour) {
    SetTextColor(context, colour);
    RECT second = rect;
    rect.left += kBeforeText;
    second.left += menu.shortcuts - kMenuEdge;
    Draw(context, texts.label, &rect, kItemFormat);
    Draw(context, texts.shortcut, &second, kItemFormat);
}

void DrawItem(HDC context, const OpenMenu& menu, std::size_t index) {
    const MenuItem& item = menu.items[index];
    const RECT& rect = menu.rects[index];
    const bool selected = static_cast<int>(index) == menu.selected;
    FillRect(context, &rect, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_MENU));
    if (!item.command) {
        DrawLine(context, rect);
        return;
    }
    const Texts texts(item.text);
    if (!item.enabled && !selected) {
        RECT shifted = rect;
        OffsetRect(&shifted, 1, 1);
        DrawTexts(context, menu, texts, shifted, GetSysColor(COLOR_3DHIGHLIGHT));
    }
    DrawTexts(context, menu, texts, rect,
              GetSysColor(!item.enabled ? COLOR_GRAYTEXT
                          : selected    ? COLOR_HIGHLIGHTTEXT
                                        : COLOR_MENUTEXT));
}

void Paint(const OpenMenu& menu) {
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(menu.window, &paint);
    if (!context) {
        return;
    }
    RECT rect{0, 0, menu.size.cx, menu.size.cy};
    DrawEdge(context, &rect, EDGE_RAISED, BF_RECT);
    InflateRect(&rect, -(kMenuEdge - 1), -(kMenuEdge - 1));
    FrameRect(context, &rect, GetSysColorBrush(COLOR_MENU));
    SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(context, TRANSPARENT);
    for (std::size_t index = 0; index < menu.items.size(); ++index) {
        RECT common;
        if (IntersectRect(&common, &menu.rects[index], &paint.rcPaint)) {
            DrawItem(context, menu, index);
        }
    }
    EndPaint(menu.window, &paint);
}

void Invalidate(const OpenMenu& menu, int index) {
    if (index != OpenMenu::kNone) {
        InvalidateRect(menu.window, &menu.rects[static_cast<std::size_t>(index)], FALSE);
    }
}

void NoteMenu(HWND window, HWND owner) {
    ThreadState* self = CurrentThread();
    const UserGuard guard(UserLock());
    self->menu.window = window;
    self->menu.owner = owner;
}

LRESULT CALLBACK MenuProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* menu = reinterpret_cast<OpenMenu*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (!menu) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    switch (message) {
        case WM_PAINT:
            Paint(*menu);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_MOUSEACTIVATE:
            return MA_NOACTIVATE;
        case WM_CLOSE:
        case WM_CANCELMODE:
            EndMenu(*menu);
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != window) {
                EndMenu(*menu);
            }
            return 0;
        case WM_NCDESTROY:
            SetWindowLongPtrA(window, GWLP_USERDATA, 0);
            menu->window = nullptr;
            NoteMenu(nullptr, nullptr);
            break;
        default:
            break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

void RegisterMenuClass() {
    RegisterSystemClass(kMenuClass, MenuProcedure, 0, 0, IDC_ARROW, nullptr);
}

bool ShowMenu(OpenMenu& menu, HWND owner, const MenuPlace& place) {
    LayOut(menu);
    const POINT corner = Fit(menu.size, place);
    const HWND window =
        CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kMenuClass, "", WS_POPUP, corner.x,
                        corner.y, menu.size.cx, menu.size.cy, GetAncestor(owner, GA_ROOT), nullptr, nullptr, nullptr);
    if (!window) {
        return false;
    }
    menu.window = window;
    NoteMenu(window, owner);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&menu));
    ShowWindow(window, SW_SHOWNA);
    if (menu.window) {
        SetCapture(window);
    }
    return menu.window != nullptr;
}

void EndMenu(OpenMenu& menu) {
    if (menu.window && !menu.ending) {
        // Its end takes the mouse away from it, of which it hears.
        menu.ending = true;
        DestroyWindow(menu.window);
    }
}

void SelectItem(OpenMenu& menu, int index) {
    if (index != menu.selected) {
        Invalidate(menu, menu.selected);
        menu.selected = index;
        Invalidate(menu, index);
    }
}

int ItemAt(const OpenMenu& menu, POINT point) {
    ScreenToClient(menu.window, &point);
    for (std::size_t index = 0; index < menu.items.size(); ++index) {
        if (menu.items[index].command && PtInRect(&menu.rects[index], point)) {
            return static_cast<int>(index);
        }
    }
    return OpenMenu::kNone;
}

}  // namespace platform::user
