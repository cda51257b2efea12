#include "tests/support/window.h"

#include <gtest/gtest.h>

namespace testing_support {

namespace {

constexpr char kClass[] = "CvTestWindow";

}  // namespace

void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

Picture PictureOf(HDC dc, int width, int height) {
    Picture picture{width, height, {}};
    picture.pixels.reserve(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.pixels.push_back(GetPixel(dc, x, y));
        }
    }
    return picture;
}

Picture PictureOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    HDC const dc = GetDC(window);
    HDC const memory = CreateCompatibleDC(dc);
    HBITMAP const bitmap = CreateCompatibleBitmap(dc, client.right, client.bottom);
    HGDIOBJ const former = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    Picture const picture = PictureOf(memory, client.right, client.bottom);
    SelectObject(memory, former);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, dc);
    return picture;
}

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto const create = reinterpret_cast<CREATESTRUCTA const*>(lParam);
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
        static_cast<TestWindow*>(create->lpCreateParams)->window_ = window;
    }
    if (auto const self = reinterpret_cast<TestWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA))) {
        Message const received{message, wParam, lParam};
        self->received_.push_back(received);
        if (message == WM_NCDESTROY) {
            SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        }
        if (self->answer) {
            if (auto const result = self->answer(received)) {
                return *result;
            }
        }
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND MakeChild(HWND parent, char const* className, DWORD style, RECT const& place, int id, char const* text) {
    return CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, parent,
                           reinterpret_cast<HMENU>(INT_PTR{id}), GetModuleHandleA(nullptr), nullptr);
}

TestWindow::TestWindow(HWND parent, RECT const& place, DWORD style) {
    HINSTANCE const instance = GetModuleHandleA(nullptr);
    WNDCLASSA record = {};
    if (!GetClassInfoA(instance, kClass, &record)) {
        record = {};
        record.lpfnWndProc = Procedure;
        record.hInstance = instance;
        record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        record.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        record.lpszClassName = kClass;
        EXPECT_NE(0, RegisterClassA(&record));
    }
    style |= WS_VISIBLE | (parent ? WS_CHILD : WS_POPUP);
    window_ = CreateWindowExA(0, kClass, "", style, place.left, place.top, place.right - place.left,
                              place.bottom - place.top, parent, nullptr, instance, this);
    EXPECT_NE(nullptr, window_);
    if (!parent) {
        SetForegroundWindow(window_);
        PumpMessages();
    }
}

TestWindow::~TestWindow() {
    Destroy();
}

void TestWindow::Destroy() {
    if (window_ && IsWindow(window_)) {
        DestroyWindow(window_);
        // In front of the window's own procedure may stand one that kept WM_NCDESTROY to itself.
        PumpMessages();
    }
    window_ = nullptr;
}

std::vector<Message> TestWindow::Received(UINT id) const {
    std::vector<Message> found;
    for (Message const& message : received_) {
        if (message.id == id) {
            found.push_back(message);
        }
    }
    return found;
}

}  // namespace testing_support
