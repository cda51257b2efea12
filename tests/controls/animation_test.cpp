// The animation control: which picture comes when, where it lies, and what starting, stopping and closing do.
#include <cvutil32/animate.h>
#include <cvutil32/util.h>

#include "tests/controls/resource.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace testing_support;

BOOL Load(HWND control, int width = 8) {
    return ANIMATE_Initialize(control, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_STRIP), width, RGB(255, 0, 255));
}

class Animation : public testing::Test {
  protected:
    Animation() : control_(MakeChild(host_, ANIMATE_CLASSNAME, 0, {10, 10, 30, 25})) {}
    ~Animation() override {
        if (IsWindow(control_)) {
            SendMessageA(control_, WM_CLOSE, 0, 0);
        }
    }

    void Tick() const {
        SendMessageA(control_, WM_TIMER, 1, 0);
    }
    /// The frame that shows, by its colour; its left upper corner is at 6, 4 of the control: half of 7 is 3, and one
    /// more is left at the bottom.
    char Shown() const {
        return Letter(PictureOf(control_).At(13, 10));
    }
    static char Letter(COLORREF colour) {
        return colour == RGB(255, 0, 0)               ? 'r'
               : colour == RGB(0, 255, 0)             ? 'g'
               : colour == RGB(0, 0, 255)             ? 'b'
               : colour == RGB(255, 255, 0)           ? 'y'
               : colour == GetSysColor(COLOR_BTNFACE) ? '.'
                                                      : '?';
    }
    std::string Play(int ticks) const {
        std::string shown;
        for (int i = 0; i < ticks; ++i) {
            Tick();
            shown += Shown();
        }
        return shown;
    }

    TestWindow host_;
    HWND control_;
};

TEST_F(Animation, FramesFollowEachOtherInTheMiddle) {
    ASSERT_TRUE(Load(control_));
    EXPECT_EQ("rgbyr", Play(5)) << "the columns that are left over make no frame";
    Picture const picture = PictureOf(control_);
    EXPECT_EQ('.', Letter(picture.At(6, 3))) << "the mask's colour gives way to the face";
    EXPECT_EQ('r', Letter(picture.At(7, 3)));
    EXPECT_EQ('r', Letter(picture.At(6, 4)));
    EXPECT_EQ('r', Letter(picture.At(13, 10)));
    EXPECT_NE('r', Letter(picture.At(14, 10)));
    EXPECT_NE('r', Letter(picture.At(13, 11)));
}

TEST_F(Animation, StartAndStopRewind) {
    EXPECT_FALSE(ANIMATE_Start(control_)) << "nothing to show";
    EXPECT_FALSE(ANIMATE_Stop(control_));
    ASSERT_TRUE(Load(control_));
    EXPECT_TRUE(ANIMATE_Start(control_));
    EXPECT_EQ("rg", Play(2));
    EXPECT_TRUE(ANIMATE_Start(control_));
    EXPECT_EQ('.', Shown()) << "starting anew blanks";
    EXPECT_EQ("r", Play(1));
    EXPECT_TRUE(ANIMATE_Stop(control_));
    Picture const blank = PictureOf(control_);
    EXPECT_EQ('.', Letter(blank.At(0, 0)));
    EXPECT_EQ('.', Letter(blank.At(19, 14)));
    EXPECT_EQ("rg", Play(2));
    EXPECT_FALSE(ANIMATE_Stop(control_)) << "it does not run";
    EXPECT_EQ("b", Play(1)) << "and so it is not rewound";
}

TEST_F(Animation, PlaysByItself) {
    ASSERT_TRUE(Load(control_));
    ASSERT_TRUE(ANIMATE_Start(control_));
    DWORD const begin = GetTickCount();
    std::string seen;
    while (seen.size() < 3 && GetTickCount() - begin < 60000) {
        // One message at a time: on a slow machine the next frame is due as soon as one has been shown.
        MSG message;
        if (!PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            Sleep(10);
            continue;
        }
        DispatchMessageA(&message);
        if (char const shown = Shown(); shown != '?' && shown != '.' && (seen.empty() || seen.back() != shown)) {
            seen += shown;
        }
    }
    EXPECT_EQ("rgb", seen);
    EXPECT_GE(GetTickCount() - begin, 500u);
    ANIMATE_Stop(control_);
    PumpMessages();
    Sleep(250);
    PumpMessages();
    EXPECT_EQ('.', Shown());
}

TEST_F(Animation, CloseReleasesThePicturesAndLeavesTheWindow) {
    ASSERT_TRUE(Load(control_));
    SendMessageA(control_, WM_CLOSE, 0, 0);
    LeakCheck const leaks;
    ASSERT_TRUE(Load(control_));
    ANIMATE_Start(control_);
    Tick();
    SendMessageA(control_, WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindow(control_));
    EXPECT_EQ('.', Shown());
    EXPECT_FALSE(ANIMATE_Start(control_));
    Tick();
    EXPECT_EQ('.', Shown());
}

TEST_F(Animation, SmallWindowShowsTheMiddleOfTheFrame) {
    HWND const small = MakeChild(host_, ANIMATE_CLASSNAME, 0, {10, 10, 17, 15});
    ASSERT_TRUE(Load(small));
    SendMessageA(small, WM_TIMER, 99, 0);
    // 7 - 8 and 5 - 8 are halved downwards: the frame begins at -1, -2 and its white pixel 2, 3 lies at 1, 1.
    Picture const picture = PictureOf(small);
    EXPECT_EQ(RGB(255, 255, 255), picture.At(1, 1));
    EXPECT_EQ(RGB(255, 0, 0), picture.At(0, 0));
    SendMessageA(small, WM_CLOSE, 0, 0);
}

TEST_F(Animation, OtherFramesTakeThePlaceOfTheFormer) {
    ASSERT_TRUE(Load(control_));
    auto const first = reinterpret_cast<HIMAGELIST>(GetWindowLongPtrA(control_, 0));
    Play(3);
    EXPECT_FALSE(ANIMATE_Initialize(control_, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(999), 8, CLR_NONE));
    EXPECT_EQ(first, reinterpret_cast<HIMAGELIST>(GetWindowLongPtrA(control_, 0))) << "a failed load changes nothing";
    ASSERT_TRUE(ANIMATE_Initialize(control_, GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_STRIP), 16, CLR_NONE));
    // Two frames of 16: there is no fourth, and what comes next is the first.
    Tick();
    EXPECT_EQ('g', (Tick(), Shown()));
    EXPECT_EQ(4, ImageList_GetImageCount(first)) << "the former ones are not released";
    EXPECT_TRUE(ImageList_Destroy(first));
}

TEST_F(Animation, RunningOneGoesWithItsParent) {
    ASSERT_TRUE(Load(control_));
    ANIMATE_Start(control_);
    Tick();
    auto const images = reinterpret_cast<HIMAGELIST>(GetWindowLongPtrA(control_, 0));
    host_.Destroy();
    Sleep(250);
    PumpMessages();
    EXPECT_FALSE(ANIMATE_Stop(control_));
    EXPECT_TRUE(ImageList_Destroy(images)) << "without WM_CLOSE the pictures stay";
}

TEST_F(Animation, OtherClassesAreRefused) {
    WNDCLASSA record = {};
    ASSERT_TRUE(GetClassInfoA(UTIL_GetModuleInstance(), ANIMATE_CLASSNAME, &record));
    record.lpszClassName = "CvTestAnimation";
    record.hInstance = GetModuleHandleA(nullptr);
    ASSERT_NE(0, RegisterClassA(&record));
    HWND const other = MakeChild(host_, "CvTestAnimation");
    for (HWND window : {other, host_.Handle(), HWND{nullptr}}) {
        EXPECT_FALSE(Load(window));
        EXPECT_FALSE(ANIMATE_Start(window));
        EXPECT_FALSE(ANIMATE_Stop(window));
    }
    DestroyWindow(other);
    UnregisterClassA("CvTestAnimation", GetModuleHandleA(nullptr));
}

}  // namespace
