// Windows for desktop.sh and agree.sh to play with. The frame says on standard output what happens to it, one line each,
// and does what keys ask for: B a message box, P a popup without a caption, O a window beside it and D its end, M
// minimises, Q ends. With a number, so many more windows stand there.
#include <windows.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {

HWND g_popup = nullptr;
HWND g_beside = nullptr;

void Say(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    std::puts("");
    std::fflush(stdout);
}

HWND Make(const char* title, DWORD style, int x, int y, HWND owner) {
    return CreateWindowExA(0, "DesktopWindow", title, style, x, y, 300, 200, owner, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

void Press(HWND window, WPARAM key) {
    switch (key) {
        case 'B':
            Say("asking");
            MessageBoxA(window, "Is it in front?", "Question", MB_OK);
            Say("answered");
            break;
        case 'P':
            if (g_popup != nullptr) {
                DestroyWindow(g_popup);
                g_popup = nullptr;
            } else {
                g_popup = Make("", WS_POPUP | WS_BORDER, 600, 300, window);
                ShowWindow(g_popup, SW_SHOWNOACTIVATE);
            }
            break;
        case 'O':
            g_beside = Make("Beside", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, 600, 500, nullptr);
            g_popup = Make("", WS_POPUP | WS_BORDER, 650, 450, g_beside);
            ShowWindow(g_beside, SW_SHOW);
            ShowWindow(g_popup, SW_SHOWNOACTIVATE);
            break;
        case 'D':
            DestroyWindow(g_beside);
            g_beside = g_popup = nullptr;
            break;
        case 'M':
            ShowWindow(window, SW_MINIMIZE);
            break;
        case 'Q':
            DestroyWindow(window);
            break;
        default:
            break;
    }
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool frame =
        GetWindow(window, GW_OWNER) == nullptr && (GetWindowLongA(window, GWL_STYLE) & WS_THICKFRAME) != 0;
    switch (message) {
        case WM_ACTIVATE:
            if (frame) {
                Say(LOWORD(wParam) != WA_INACTIVE ? "active" : "inactive");
            }
            break;
        case WM_SIZE:
            if (frame) {
                Say(wParam == SIZE_MINIMIZED ? "minimised" : "size %d %d", LOWORD(lParam), HIWORD(lParam));
            }
            break;
        case WM_KEYDOWN:
            Press(window, wParam);
            return 0;
        case WM_EXITSIZEMOVE: {
            RECT rect;
            GetWindowRect(window, &rect);
            Say("put %ld %ld", static_cast<long>(rect.left), static_cast<long>(rect.top));
            break;
        }
        case WM_LBUTTONDOWN:
            Say("press %d %d", static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
            return 0;
        case WM_DISPLAYCHANGE:
            if (frame) {
                RECT rect;
                GetWindowRect(window, &rect);
                Say("screen %d %d", LOWORD(lParam), HIWORD(lParam));
            }
            return 0;
        case WM_CLOSE:
            Say("close %s", frame ? "frame" : "other");
            break;
        case WM_DESTROY:
            if (frame) {
                PostQuitMessage(0);
            }
            return 0;
        default:
            break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR arguments, int) {
    WNDCLASSA record{};
    record.lpfnWndProc = Procedure;
    record.hInstance = instance;
    record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    record.hIcon = LoadIconA(nullptr, IDI_QUESTION);
    record.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    record.lpszClassName = "DesktopWindow";
    RegisterClassA(&record);
    RECT work;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    Say("screen %d %d work %ld %ld %ld %ld", GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
        static_cast<long>(work.left), static_cast<long>(work.top), static_cast<long>(work.right),
        static_cast<long>(work.bottom));
    const HWND frame = Make("Frame", WS_OVERLAPPEDWINDOW, 200, 150, nullptr);
    for (int i = std::atoi(arguments); i > 0; --i) {
        ShowWindow(Make("One of many", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, i % 20 * 40, i / 20 * 60, nullptr),
                   SW_SHOW);
    }
    ShowWindow(frame, SW_SHOW);
    SetForegroundWindow(frame);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    Say("end");
    return 0;
}
