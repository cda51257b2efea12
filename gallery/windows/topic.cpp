// In a popup window of our own: WinHelpA() leads to no more than a notice there, since the system has no viewer for it any more.
#include "gallery/topic.h"

#include <algorithm>
#include <fstream>

namespace gallery {
namespace {

constexpr char kClass[] = "GalleryTopic";
constexpr int kMargin = 8;
constexpr int kMostWidth = 320;
constexpr UINT kFormat = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX;
constexpr LPARAM kRepeated = 1 << 30;

// The lines behind "[topic]", up to the next one.
std::string ReadTopic(const std::string& path, DWORD topic) {
    char heading[16];
    wsprintfA(heading, "[%lu]", topic);
    std::ifstream file(path);
    std::string text;
    std::string line;
    while (std::getline(file, line) && line != heading) {
    }
    while (std::getline(file, line) && (line.empty() || line.front() != '[')) {
        text += line + "\n";
    }
    return text.substr(0, text.find_last_not_of('\n') + 1);
}

HFONT Font() {
    return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

void Paint(HWND popup) {
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(popup, &paint);
    RECT area;
    GetClientRect(popup, &area);
    InflateRect(&area, -kMargin, -kMargin);
    const HGDIOBJ former = SelectObject(context, Font());
    SetTextColor(context, GetSysColor(COLOR_INFOTEXT));
    SetBkMode(context, TRANSPARENT);
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(popup)) + 1, '\0');
    const int length = GetWindowTextA(popup, text.data(), static_cast<int>(text.size()));
    DrawTextA(context, text.c_str(), length, &area, kFormat);
    SelectObject(context, former);
    EndPaint(popup, &paint);
}

// Ends the popup. The end of a window that has the focus and the mouse brings further reasons to end it.
void End(HWND popup) {
    if (GetWindowLongPtrA(popup, GWLP_USERDATA) == 0) {
        SetWindowLongPtrA(popup, GWLP_USERDATA, 1);
        DestroyWindow(popup);
    }
}

LRESULT CALLBACK Procedure(HWND popup, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint(popup);
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if ((lParam & kRepeated) == 0) {
                End(popup);
            }
            return 0;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_KILLFOCUS:
        case WM_CAPTURECHANGED:
            End(popup);
            return 0;
        default:
            return DefWindowProcA(popup, message, wParam, lParam);
    }
}

void RegisterOnce(HINSTANCE instance) {
    WNDCLASSA record = {};
    if (!GetClassInfoA(instance, kClass, &record)) {
        record = {};
        record.lpfnWndProc = Procedure;
        record.hInstance = instance;
        record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        record.hbrBackground = GetSysColorBrush(COLOR_INFOBK);
        record.lpszClassName = kClass;
        RegisterClassA(&record);
    }
}

SIZE SizeOf(const std::string& text) {
    const HDC context = GetDC(nullptr);
    const HGDIOBJ former = SelectObject(context, Font());
    RECT area = {0, 0, kMostWidth, 0};
    DrawTextA(context, text.c_str(), static_cast<int>(text.size()), &area, kFormat | DT_CALCRECT);
    SelectObject(context, former);
    ReleaseDC(nullptr, context);
    AdjustWindowRect(&area, WS_POPUP | WS_BORDER, FALSE);
    return {area.right - area.left + 2 * kMargin, area.bottom - area.top + 2 * kMargin};
}

// Under the middle of the control or the cursor, on that screen.
POINT PlaceOf(HWND control, UINT command, SIZE size) {
    POINT at;
    GetCursorPos(&at);
    if (command == HELP_WM_HELP) {
        RECT place;
        GetWindowRect(control, &place);
        at = {(place.left + place.right) / 2, place.bottom};
    }
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    GetMonitorInfoA(MonitorFromPoint(at, MONITOR_DEFAULTTONEAREST), &screen);
    const RECT& work = screen.rcWork;
    return {std::max(work.left, std::min(at.x - size.cx / 2, work.right - size.cx)),
            std::max(work.top, std::min(at.y + 2, work.bottom - size.cy))};
}

}  // namespace

bool ShowTopic(HWND control, const std::string& file, UINT command, DWORD topic) {
    const std::string text = ReadTopic(file + ".txt", topic);
    if (text.empty()) {
        return false;
    }
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    RegisterOnce(instance);
    const SIZE size = SizeOf(text);
    const POINT place = PlaceOf(control, command, size);
    const HWND popup =
        CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kClass, text.c_str(), WS_POPUP | WS_BORDER, place.x, place.y,
                        size.cx, size.cy, GetAncestor(control, GA_ROOT), nullptr, instance, nullptr);
    if (popup == nullptr) {
        return false;
    }
    ShowWindow(popup, SW_SHOW);
    SetFocus(popup);
    SetCapture(popup);
    return true;
}

}  // namespace gallery
