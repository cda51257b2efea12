#include "user/help/help_popup.h"

#include <algorithm>

#include "user/model/window.h"

namespace platform::user {
namespace {

constexpr char kClass[] = "CvHelpPopup";
constexpr int kMargin = 8;
constexpr int kUsualWidth = 320;
constexpr int kArrow = 16;
constexpr UINT kFormat = DT_LEFT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX | DT_EXPANDTABS;

/// How a text lies in the popup.
struct Layout {
    int width = 0;  ///< of the text
    int lines = 0;
    int shown = 0;  ///< how many lines there is room for
    int lineHeight = 1;
    int first = 0;  ///< the line at the top

    int LastFirst() const {
        return lines - shown;
    }
    bool Scrolls() const {
        return shown < lines;
    }
    SIZE Window() const {
        return {width + 2 * kMargin + (Scrolls() ? kArrow : 0), shown * lineHeight + 2 * kMargin};
    }
};

HWND g_popup = nullptr;
Layout g_layout;

SIZE Measure(HDC context, const std::string& text, int width) {
    RECT area{0, 0, width, 0};
    DrawTextA(context, text.c_str(), static_cast<int>(text.size()), &area, kFormat | DT_CALCRECT);
    return {area.right, area.bottom};
}

/// As narrow as usual, wider where it would not fit on the screen, and scrolled where that does not help either.
Layout Fit(const std::string& text) {
    const int roomX = std::max(GetSystemMetrics(SM_CXSCREEN) - 2 * kMargin, 1);
    const int roomY = std::max(GetSystemMetrics(SM_CYSCREEN) - 2 * kMargin, 1);
    const HDC context = GetDC(nullptr);
    const HGDIOBJ former = SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
    Layout layout;
    layout.lineHeight = std::max<int>(Measure(context, "x", roomX).cy, 1);
    layout.width = std::min(kUsualWidth, roomX);
    SIZE size = Measure(context, text, layout.width);
    while (size.cy > roomY && layout.width < roomX) {
        layout.width = std::min(layout.width + layout.width / 2, roomX);
        size = Measure(context, text, layout.width);
    }
    if (size.cy > roomY) {
        layout.width = std::max(layout.width - kArrow, 1);
        size = Measure(context, text, layout.width);
    } else {
        layout.width = std::min<int>(size.cx, layout.width);
    }
    SelectObject(context, former);
    ReleaseDC(nullptr, context);
    layout.lines = size.cy / layout.lineHeight;
    layout.shown = std::clamp(roomY / layout.lineHeight, 1, std::max(layout.lines, 1));
    return layout;
}

RECT ArrowBox(HWND window, bool down) {
    RECT box;
    GetClientRect(window, &box);
    InflateRect(&box, -1, -1);
    box.left = box.right - kArrow;
    (down ? box.top : box.bottom) = down ? box.bottom - kArrow : box.top + kArrow;
    return box;
}

void DrawArrow(HDC context, HWND window, bool down, bool leads) {
    RECT box = ArrowBox(window, down);
    const UINT state = (down ? DFCS_SCROLLDOWN : DFCS_SCROLLUP) | (leads ? 0 : DFCS_INACTIVE);
    DrawFrameControl(context, &box, DFC_SCROLL, state);
}

void Paint(HWND window) {
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(window, &paint);
    RECT area;
    GetClientRect(window, &area);
    FillRect(context, &area, GetSysColorBrush(COLOR_INFOBK));
    FrameRect(context, &area, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    if (g_layout.Scrolls()) {
        DrawArrow(context, window, false, g_layout.first > 0);
        DrawArrow(context, window, true, g_layout.first < g_layout.LastFirst());
    }
    const int top = area.top + kMargin;
    area = {area.left + kMargin, top - g_layout.first * g_layout.lineHeight, area.left + kMargin + g_layout.width,
            top + g_layout.shown * g_layout.lineHeight};
    IntersectClipRect(context, area.left, top, area.right, area.bottom);
    SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
    SetTextColor(context, GetSysColor(COLOR_INFOTEXT));
    SetBkMode(context, TRANSPARENT);
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    DrawTextA(context, text.data(), GetWindowTextA(window, text.data(), static_cast<int>(text.size())), &area, kFormat);
    EndPaint(window, &paint);
}

void Scroll(HWND window, int lines) {
    const int first = std::clamp(g_layout.first + lines, 0, g_layout.LastFirst());
    if (first != g_layout.first) {
        g_layout.first = first;
        InvalidateRect(window, nullptr, FALSE);
    }
}

/// @returns how far a key scrolls, 0 for one that does not.
int LinesOf(WPARAM key) {
    const int page = std::max(g_layout.shown - 1, 1);
    switch (key) {
        case VK_UP:
            return -1;
        case VK_DOWN:
            return 1;
        case VK_PRIOR:
            return -page;
        case VK_NEXT:
            return page;
        case VK_HOME:
            return -g_layout.lines;
        case VK_END:
            return g_layout.lines;
        default:
            return 0;
    }
}

/// @returns whether a message scrolls the popup, which it then has done.
bool ScrollsBy(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    int lines = 0;
    if (!g_layout.Scrolls()) {
        return false;
    }
    if (message == WM_MOUSEWHEEL) {
        constexpr int kLinesOfANotch = 3;
        lines = -GET_WHEEL_DELTA_WPARAM(wParam) * kLinesOfANotch / WHEEL_DELTA;
    } else if (message == WM_LBUTTONDOWN) {
        const POINT point = MousePoint(lParam);
        for (const bool down : {false, true}) {
            const RECT box = ArrowBox(window, down);
            lines = PtInRect(&box, point) ? (down ? 1 : -1) : lines;
        }
    } else if (message == WM_KEYDOWN) {
        lines = LinesOf(wParam);
    }
    if (lines == 0 && message != WM_MOUSEWHEEL) {
        return false;
    }
    Scroll(window, lines);
    return true;
}

LRESULT CALLBACK PopupProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (g_popup == window && ScrollsBy(window, message, wParam, lParam)) {
        return 0;
    }
    switch (message) {
        case WM_PAINT:
            Paint(window);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_KILLFOCUS:
        case WM_CAPTURECHANGED:
            // Each of them may be a consequence of the end itself.
            if (g_popup == window) {
                g_popup = nullptr;
                DestroyWindow(window);
            }
            return 0;
        case WM_NCDESTROY:
            if (g_popup == window) {
                g_popup = nullptr;
            }
            break;
        default:
            break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void RegisterPopup() {
    WNDCLASSA record = {};
    if (!GetClassInfoA(GetModuleHandleA(nullptr), kClass, &record)) {
        record = {};
        record.lpfnWndProc = PopupProcedure;
        record.hInstance = GetModuleHandleA(nullptr);
        record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        record.lpszClassName = kClass;
        RegisterClassA(&record);
    }
}

}  // namespace

bool ShowHelpPopup(HWND owner, POINT at, const std::string& text) {
    RegisterPopup();
    CloseHelpPopup();
    g_layout = Fit(text);
    const SIZE size = g_layout.Window();
    const int x = std::max(0, std::min<int>(at.x - size.cx / 2, GetSystemMetrics(SM_CXSCREEN) - size.cx));
    const int y = std::max(0, std::min<int>(at.y + 2, GetSystemMetrics(SM_CYSCREEN) - size.cy));
    const HWND window = CreateWindowExA(WS_EX_TOPMOST, kClass, text.c_str(), WS_POPUP, x, y, size.cx, size.cy, owner,
                                        nullptr, GetModuleHandleA(nullptr), nullptr);
    if (!window) {
        return false;
    }
    ShowWindow(window, SW_SHOW);
    SetFocus(window);
    SetCapture(window);
    g_popup = window;
    return true;
}

void CloseHelpPopup() {
    if (const HWND popup = g_popup) {
        DestroyWindow(popup);
    }
}

}  // namespace platform::user
