// Windows that keep a record of what they are told, for the tests of painting and positions.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/platform/support/expect_rect.h"
#include "tests/platform/support/looking.h"

/// What a window paints itself with, and what it has heard.
struct Painted {
    COLORREF background = RGB(255, 255, 255);
    bool erases = true;
    bool paints = true;  ///< answers WM_PAINT with BeginPaint and EndPaint
    std::vector<UINT> heard;
    std::vector<RECT> updates;  ///< rcPaint of each WM_PAINT
    std::vector<BOOL> eraseLeft;
    WINDOWPOS lastPosition{};
    LPARAM lastSize = 0;

    int Count(UINT message) const {
        return static_cast<int>(std::count(heard.begin(), heard.end(), message));
    }
    /// Where a message comes in the record; -1 when it does not.
    int Position(UINT message) const {
        const auto found = std::find(heard.begin(), heard.end(), message);
        return found == heard.end() ? -1 : static_cast<int>(found - heard.begin());
    }
    void Forget() {
        heard.clear();
        updates.clear();
        eraseLeft.clear();
    }
};

class PaintedWindows : public ::testing::Test {
  protected:
    static constexpr const char* kClass = "PaintedWindow";
    // Most tests use children of the ground: hosts differ in whether top-level windows share one picture.
    static constexpr DWORD kPlain = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
    static constexpr DWORD kTop = WS_POPUP | WS_VISIBLE;

    static constexpr COLORREF kGround = RGB(0, 0, 128);
    static constexpr COLORREF kRed = RGB(255, 0, 0);
    static constexpr COLORREF kGreen = RGB(0, 128, 0);
    static constexpr COLORREF kBlue = RGB(0, 0, 255);
    static constexpr COLORREF kYellow = RGB(255, 255, 0);

    void SetUp() override {
        Register(kClass, 0);
        // Something of one colour to stand on, whatever else is on the screen.
        ground = Make(kTop | WS_CLIPCHILDREN, 0, 0, 400, 300, nullptr, kGround, WS_EX_TOPMOST);
        Settle();
    }

    void TearDown() override {
        for (auto each = windows.rbegin(); each != windows.rend(); ++each) {
            if (IsWindow(*each)) {
                DestroyWindow(*each);
            }
        }
        for (const std::string& name : classes) {
            UnregisterClassA(name.c_str(), GetModuleHandleA(nullptr));
        }
        Records().clear();
    }

    void Register(const char* name, UINT style) {
        WNDCLASSA definition{};
        definition.style = style;
        definition.lpfnWndProc = Procedure;
        definition.hInstance = GetModuleHandleA(nullptr);
        definition.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        definition.lpszClassName = name;
        ASSERT_NE(RegisterClassA(&definition), 0);
        classes.push_back(name);
    }

    HWND Make(DWORD style, int x, int y, int width, int height, HWND parent, COLORREF background, DWORD exStyle = 0,
              const char* className = kClass) {
        Painted record;
        record.background = background;
        HWND window = CreateWindowExA(exStyle, className, "painted", style, x, y, width, height, parent, nullptr,
                                      GetModuleHandleA(nullptr), &record);
        EXPECT_NE(window, nullptr);
        windows.push_back(window);
        return window;
    }

    HWND Child(HWND parent, int x, int y, int width, int height, COLORREF background, DWORD style = 0) {
        return Make(WS_CHILD | WS_VISIBLE | style, x, y, width, height, parent, background);
    }

    static Painted& Of(HWND window) {
        return *Records()[window];
    }

    /// Lets everything that is due be painted, and forgets what was heard.
    void Settle() {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        for (auto& [window, record] : Records()) {
            record->Forget();
        }
    }

    /// The colour that is seen at a point of a window's client area.
    static COLORREF PixelAt(HWND window, int x, int y) {
        HWND top = GetAncestor(window, GA_ROOT);
        const RECT place = tests::PlaceOf(top);
        POINT point{x, y};
        ClientToScreen(window, &point);
        HDC context = GetWindowDC(top);
        const COLORREF colour = GetPixel(context, point.x - place.left, point.y - place.top);
        ReleaseDC(top, context);
        return colour;
    }

    /// A yellow point in a window, to be found again.
    static void Mark(HWND window, int x, int y) {
        HDC context = GetDC(window);
        SetPixel(context, x, y, kYellow);
        ReleaseDC(window, context);
    }

    static RECT UpdateOf(HWND window) {
        RECT rect{-1, -1, -1, -1};
        GetUpdateRect(window, &rect, FALSE);
        return rect;
    }

    HWND ground = nullptr;

  private:
    static std::map<HWND, std::unique_ptr<Painted>>& Records() {
        static std::map<HWND, std::unique_ptr<Painted>> records;
        return records;
    }

    static void AnswerPaint(HWND window, Painted& record) {
        PAINTSTRUCT paint;
        HDC context = BeginPaint(window, &paint);
        EXPECT_NE(context, nullptr);
        record.updates.push_back(paint.rcPaint);
        record.eraseLeft.push_back(paint.fErase);
        EndPaint(window, &paint);
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
            Records()[window] = std::make_unique<Painted>(*static_cast<const Painted*>(creation->lpCreateParams));
        }
        const auto found = Records().find(window);
        if (found == Records().end()) {
            return DefWindowProcA(window, message, wParam, lParam);
        }
        Painted& record = *found->second;
        record.heard.push_back(message);
        switch (message) {
            case WM_ERASEBKGND: {
                if (!record.erases) {
                    return 0;
                }
                RECT client;
                GetClientRect(window, &client);
                HBRUSH brush = CreateSolidBrush(record.background);
                FillRect(reinterpret_cast<HDC>(wParam), &client, brush);
                DeleteObject(brush);
                return 1;
            }
            case WM_PAINT:
                if (record.paints) {
                    AnswerPaint(window, record);
                    return 0;
                }
                break;
            case WM_WINDOWPOSCHANGED:
                record.lastPosition = *reinterpret_cast<const WINDOWPOS*>(lParam);
                break;
            case WM_SIZE:
                record.lastSize = lParam;
                break;
            default:
                break;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    std::vector<HWND> windows;
    std::vector<std::string> classes;
};
