// Frames under the pointer: input that nobody else can disturb, and colours of the 1995 scheme.
#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

#include "tests/platform/support/expect_rect.h"
#include "tests/platform/support/hands.h"
#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::At;
using tests::Heard;
using tests::Key;
using tests::Pump;
using tests::Recorder;

class FrameInput : public tests::RecordedTest {
  protected:
    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MAXIMIZEBOX, 100, 100, 200,
                   150);
        SetWindowTextA(window, "Caption");
        Pump();
        Recorder::Get().Clear();
    }
    static void Play(const std::vector<INPUT>& inputs) {
        tests::Play(inputs);
        Pump();
    }
    RECT Place() const {
        return tests::PlaceOf(window);
    }
    static COLORREF Pixel(int x, int y) {
        return tests::PixelOf(nullptr, x, y);
    }
};

TEST_F(FrameInput, TheCaptionDragsTheWindow) {
    Play({At(180, 112, MOUSEEVENTF_LEFTDOWN), At(190, 130, 0), At(200, 142, 0), At(210, 152, MOUSEEVENTF_LEFTUP)});
    EXPECT_EQ(Place().left, 130);
    EXPECT_EQ(Place().top, 140);
    EXPECT_EQ(Place().right, 330);
    EXPECT_EQ(Recorder::Get().Count(WM_EXITSIZEMOVE), 1);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(FrameInput, TheCaptionStaysInReach) {
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    // How much of the caption there is to take hold of on the screen.
    const auto grip = [&] {
        int seen = 0;
        const int y = Place().top + 12;
        for (int x = 0; x < width && y >= 0 && y < height; ++x) {
            seen += SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(x, y)) == HTCAPTION ? 1 : 0;
        }
        return seen;
    };
    const int whole = grip();
    const POINT corners[] = {{0, 0}, {width - 1, 0}, {0, height - 1}, {width - 1, height - 1}};
    for (const POINT corner : corners) {
        // By either end of the caption.
        for (const int from : {104, 240}) {
            SetWindowPos(window, nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            Play({At(from, 106, MOUSEEVENTF_LEFTDOWN), At(200, 150, 0), At(corner.x, corner.y, 0),
                  At(corner.x, corner.y, MOUSEEVENTF_LEFTUP)});
            EXPECT_GE(Place().top, 0);
            EXPECT_LE(Place().top + GetSystemMetrics(SM_CYCAPTION), height);
            EXPECT_GE(grip(), 30) << corner.x << ", " << corner.y << " from " << from;
            EXPECT_LE(grip(), whole);
        }
    }
}

TEST_F(FrameInput, BordersSizeWithinTheLimits) {
    Play({At(299, 180, MOUSEEVENTF_LEFTDOWN), At(319, 180, 0), At(339, 190, MOUSEEVENTF_LEFTUP)});
    EXPECT_EQ(Place().right, 340);
    EXPECT_EQ(Place().bottom, 250);
    Play({At(100, 180, MOUSEEVENTF_LEFTDOWN), At(330, 180, 0), At(330, 180, MOUSEEVENTF_LEFTUP)});
    EXPECT_EQ(Place().left, 340 - 112);
}

TEST_F(FrameInput, TheCloseBoxClosesOnlyWhenReleasedThere) {
    Play({At(288, 112, MOUSEEVENTF_LEFTDOWN), At(200, 200, 0), At(200, 200, MOUSEEVENTF_LEFTUP)});
    EXPECT_TRUE(IsWindow(window));
    Play({At(288, 112, MOUSEEVENTF_LEFTDOWN), At(200, 200, 0), At(288, 112, 0), At(288, 112, MOUSEEVENTF_LEFTUP)});
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(FrameInput, ADoubleClickOnTheCaptionMaximisesAndRestores) {
    INPUT down = At(180, 112, MOUSEEVENTF_LEFTDOWN);
    INPUT up = At(180, 112, MOUSEEVENTF_LEFTUP);
    down.mi.time = up.mi.time = GetTickCount();  // at one moment, however long the machine takes over it
    Play({down, up, down, up});
    EXPECT_TRUE(IsZoomed(window));
    SendMessageA(window, WM_SYSCOMMAND, SC_RESTORE, 0);
    EXPECT_FALSE(IsZoomed(window));
    EXPECT_EQ(Place().left, 100);
}

TEST_F(FrameInput, AWindowMayGoWhileItIsDragged) {
    for (const bool sized : {false, true}) {
        HWND going =
            Recorder::Get().Make(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME, 100, 100, 200, 150);
        SetForegroundWindow(going);
        Pump();
        Recorder::Get().answer = [=](const Heard& heard, LRESULT*) {
            if (heard.message == WM_WINDOWPOSCHANGING && heard.window == going) {
                DestroyWindow(going);
            }
            return false;
        };
        const int x = sized ? 299 : 180;
        const int y = sized ? 180 : 112;
        Play({At(x, y, MOUSEEVENTF_LEFTDOWN), At(x + 20, y + 9, 0), At(x + 30, y + 9, MOUSEEVENTF_LEFTUP)});
        EXPECT_FALSE(IsWindow(going)) << sized;
        Recorder::Get().answer = nullptr;
        EXPECT_EQ(GetCapture(), nullptr);
    }
}

TEST_F(FrameInput, TheEndOfTheProgramEndsADrag) {
    Recorder::Get().answer = [](const Heard& heard, LRESULT*) {
        if (heard.message == WM_WINDOWPOSCHANGED) {
            PostQuitMessage(5);
        }
        return false;
    };
    tests::Play({At(180, 112, MOUSEEVENTF_LEFTDOWN), At(190, 130, 0)});
    MSG message;
    int taken = 0;
    while (GetMessageA(&message, nullptr, 0, 0) > 0 && ++taken < 100) {
        DispatchMessageA(&message);
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 5U);
    Play({At(190, 130, MOUSEEVENTF_LEFTUP)});
}

TEST_F(FrameInput, TheCaptionShowsWhetherTheWindowIsActive) {
    EXPECT_EQ(Pixel(200, 106), GetSysColor(COLOR_ACTIVECAPTION));
    EXPECT_EQ(Pixel(101, 101), GetSysColor(COLOR_3DHIGHLIGHT));
    EXPECT_EQ(Pixel(299, 249), GetSysColor(COLOR_3DDKSHADOW));
    HWND other = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 500, 500, 50, 50);
    SetForegroundWindow(other);
    Pump();
    EXPECT_EQ(Pixel(200, 106), GetSysColor(COLOR_INACTIVECAPTION));
    DestroyWindow(other);
    EXPECT_EQ(Pixel(200, 106), GetSysColor(COLOR_ACTIVECAPTION));
}

TEST_F(FrameInput, NewColoursAreToldAndDrawn) {
    const INT index = COLOR_ACTIVECAPTION;
    const COLORREF before = GetSysColor(index);
    const COLORREF wanted = RGB(10, 20, 30);
    SetSysColors(1, &index, &wanted);
    Pump();
    EXPECT_EQ(Recorder::Get().Count(WM_SYSCOLORCHANGE), 1);
    EXPECT_EQ(Pixel(200, 106), wanted);
    SetSysColors(1, &index, &before);
    Pump();
    EXPECT_EQ(Pixel(200, 106), before);
}

TEST_F(FrameInput, PlacesAreChosenWhereNoneIsGiven) {
    const auto place = [](DWORD style) {
        const HWND made = Recorder::Get().Make(style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT);
        const RECT rect = tests::PlaceOf(made);
        DestroyWindow(made);
        return rect;
    };
    RECT work;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    const RECT first = place(WS_OVERLAPPEDWINDOW);
    const RECT second = place(WS_OVERLAPPEDWINDOW);
    EXPECT_NE(first.left, second.left) << "none hides the one before";
    EXPECT_GT(first.right - first.left, (work.right - work.left) / 3);
    RECT common;
    EXPECT_TRUE(IntersectRect(&common, &first, &work));
    ExpectRect(place(WS_POPUP), 0, 0, 0, 0);
}

}  // namespace
