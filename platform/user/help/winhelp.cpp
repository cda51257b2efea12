// Help topics in a popup window, which the next click or key takes away.
#include <windows.h>

#include <algorithm>
#include <exception>
#include <string>

#include "user/help/help_topics.h"

using namespace platform::user;

namespace {

constexpr char kClass[] = "CvHelpPopup";
constexpr int kMargin = 8;
constexpr int kMostWidth = 320;
constexpr UINT kFormat = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS;

HWND g_popup = nullptr;

void PaintPopup(HWND window) {
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(window, &paint);
    RECT area;
    GetClientRect(window, &area);
    FillRect(context, &area, GetSysColorBrush(COLOR_INFOBK));
    FrameRect(context, &area, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    InflateRect(&area, -kMargin, -kMargin);
    SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
    SetTextColor(context, GetSysColor(COLOR_INFOTEXT));
    SetBkMode(context, TRANSPARENT);
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    DrawTextA(context, text.data(), GetWindowTextA(window, text.data(), static_cast<int>(text.size())), &area, kFormat);
    EndPaint(window, &paint);
}

LRESULT CALLBACK PopupProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            PaintPopup(window);
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
        record.style = CS_SAVEBITS;
        record.lpfnWndProc = PopupProcedure;
        record.hInstance = GetModuleHandleA(nullptr);
        record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        record.lpszClassName = kClass;
        RegisterClassA(&record);
    }
}

SIZE Measure(const std::string& text) {
    const HDC context = GetDC(nullptr);
    const HGDIOBJ former = SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
    RECT area = {0, 0, kMostWidth, 0};
    DrawTextA(context, text.c_str(), static_cast<int>(text.size()), &area, kFormat | DT_CALCRECT);
    SelectObject(context, former);
    ReleaseDC(nullptr, context);
    return {area.right + 2 * kMargin, area.bottom + 2 * kMargin};
}

// Under a point and about it, on the screen.
BOOL ShowPopup(HWND owner, POINT at, const std::string& text) {
    RegisterPopup();
    const SIZE size = Measure(text);
    const int x = std::max(0, std::min<int>(at.x - size.cx / 2, GetSystemMetrics(SM_CXSCREEN) - size.cx));
    const int y = std::max(0, std::min<int>(at.y + 2, GetSystemMetrics(SM_CYSCREEN) - size.cy));
    if (g_popup) {
        DestroyWindow(g_popup);
    }
    const HWND window = CreateWindowExA(WS_EX_TOPMOST, kClass, text.c_str(), WS_POPUP, x, y, size.cx, size.cy, owner,
                                        nullptr, GetModuleHandleA(nullptr), nullptr);
    if (!window) {
        return FALSE;
    }
    ShowWindow(window, SW_SHOW);
    SetFocus(window);
    SetCapture(window);
    g_popup = window;
    return TRUE;
}

/// @returns the topic of a control or of what holds it, 0 for none.
DWORD TopicOf(const DWORD* table, HWND control) {
    for (; control; control = (GetWindowLongA(control, GWL_STYLE) & WS_CHILD) ? GetParent(control) : nullptr) {
        const auto id = static_cast<DWORD>(GetDlgCtrlID(control));
        for (const DWORD* pair = table; id && pair[0]; pair += 2) {
            if (pair[0] == id) {
                return pair[1];
            }
        }
    }
    return 0;
}

POINT Below(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return {(place.left + place.right) / 2, place.bottom};
}

}  // namespace

BOOL WINAPI WinHelpA(HWND window, LPCSTR helpFile, UINT command, ULONG_PTR data) {
    POINT at = {};
    GetCursorPos(&at);
    DWORD topic = 0;
    switch (command) {
        case HELP_QUIT:
            if (const HWND popup = g_popup) {
                DestroyWindow(popup);
            }
            return TRUE;
        case HELP_CONTEXT:
        case HELP_CONTEXTPOPUP:
            topic = static_cast<DWORD>(data);
            break;
        case HELP_CONTEXTMENU: {
            // Dialogs name the control that was clicked, or themselves when it is not enabled.
            const auto* table = reinterpret_cast<const DWORD*>(data);
            topic = table ? TopicOf(table, window) : 0;
            topic = topic || !table ? topic : TopicOf(table, WindowFromPoint(at));
            break;
        }
        case HELP_WM_HELP:
            topic = data && window ? TopicOf(reinterpret_cast<const DWORD*>(data), window) : 0;
            at = window ? Below(window) : at;
            break;
        default:
            return FALSE;
    }
    try {
        const std::string text = FindTopic(ReadTopics(helpFile), topic);
        return !text.empty() && ShowPopup(window ? GetAncestor(window, GA_ROOT) : nullptr, at, text);
    } catch (const std::exception&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return FALSE;
    }
}
