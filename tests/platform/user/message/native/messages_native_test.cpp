// What the layer promises of messages, activation and carets where other hosts are known to differ.
#include <gtest/gtest.h>
#include <windows.h>

#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class MessagesNativeTest : public ::testing::Test {
  protected:
    void SetUp() override {
        window = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 100, 100, 300, 200);
        ASSERT_NE(window, nullptr);
        ASSERT_EQ(GetActiveWindow(), window);
        Pump();
        Recorder::Get().Reset();
    }
    void TearDown() override {
        Recorder::Get().Reset();
        if (other != nullptr && IsWindow(other)) {
            DestroyWindow(other);
        }
        DestroyWindow(window);
        Pump();
    }
    HWND window = nullptr;
    HWND other = nullptr;
};

TEST_F(MessagesNativeTest, ThreadsWithoutAQueueAreRefused) {
    SetLastError(0);
    EXPECT_FALSE(PostThreadMessageA(0x7FFFFFF3, WM_USER, 0, 0));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_THREAD_ID));
}

TEST_F(MessagesNativeTest, AFullQueueIsRefused) {
    int posted = 0;
    while (posted < 20000 && PostMessageA(window, WM_NULL, 0, 0)) {
        ++posted;
    }
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_QUOTA));
    EXPECT_EQ(posted, 10000);
}

TEST_F(MessagesNativeTest, ActivationRaisesTheWindow) {
    other = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 450, 100, 100, 100);
    ASSERT_EQ(GetWindow(other, GW_HWNDNEXT), window);
    SetActiveWindow(window);
    EXPECT_EQ(GetWindow(window, GW_HWNDNEXT), other);
}

TEST_F(MessagesNativeTest, CaretGoesWithItsWindow) {
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, window);
    ASSERT_TRUE(CreateCaret(child, nullptr, 1, 10));
    DestroyWindow(child);
    EXPECT_FALSE(ShowCaret(nullptr));
}

TEST_F(MessagesNativeTest, CaretShowsOnTheScreen) {
    UpdateWindow(window);
    ASSERT_TRUE(CreateCaret(window, reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(1)), 4, 4));
    SetCaretPos(30, 40);
    ShowCaret(window);
    HDC screen = GetDC(nullptr);
    int inverted = 0;
    for (int y = 140; y < 144; ++y) {
        for (int x = 130; x < 134; ++x) {
            inverted += GetPixel(screen, x, y) == RGB(0, 0, 0);
        }
    }
    EXPECT_EQ(inverted, 8) << "a grey caret inverts every other pixel";
    // The part that another window covers is not touched.
    other = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 132, 100, 100, 100);
    UpdateWindow(other);
    EXPECT_EQ(GetPixel(screen, 132, 140), RGB(255, 255, 255));
    EXPECT_EQ(GetPixel(screen, 133, 140), RGB(255, 255, 255));
    DestroyCaret();
    DestroyWindow(other);
    UpdateWindow(window);
    for (int y = 140; y < 144; ++y) {
        for (int x = 130; x < 134; ++x) {
            EXPECT_EQ(GetPixel(screen, x, y), RGB(255, 255, 255)) << x << ' ' << y;
        }
    }
    ReleaseDC(nullptr, screen);
}

TEST_F(MessagesNativeTest, ModifiersKeepTheirSides) {
    INPUT inputs[2] = {};
    inputs[0].type = inputs[1].type = INPUT_KEYBOARD;
    inputs[0].ki = {VK_RCONTROL, 0x1D, 0, 0, 0};
    inputs[1].ki = {VK_RCONTROL, 0x1D, KEYEVENTF_KEYUP, 0, 0};
    ASSERT_EQ(SendInput(1, inputs, sizeof(INPUT)), 1u);
    Pump();
    EXPECT_LT(GetKeyState(VK_RCONTROL), 0);
    EXPECT_LT(GetKeyState(VK_CONTROL), 0);
    EXPECT_GE(GetKeyState(VK_LCONTROL), 0);
    EXPECT_EQ(Recorder::Get().Find(WM_KEYDOWN)->wParam, static_cast<WPARAM>(VK_CONTROL));
    ASSERT_EQ(SendInput(1, inputs + 1, sizeof(INPUT)), 1u);
    Pump();
    EXPECT_GE(GetKeyState(VK_CONTROL), 0);
}

}  // namespace
