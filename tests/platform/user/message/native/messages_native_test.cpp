// What the layer promises of messages, activation and carets where other hosts are known to differ.
#include <gtest/gtest.h>
#include <windows.h>

#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class MessagesNativeTest : public tests::RecordedTest {
  protected:
    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE, 100, 100, 300, 200);
        ASSERT_EQ(GetActiveWindow(), window);
    }
};

TEST_F(MessagesNativeTest, AFullQueueIsRefused) {
    int posted = 0;
    while (posted < 20000 && PostMessageA(window, WM_NULL, 0, 0)) {
        ++posted;
    }
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_QUOTA));
    EXPECT_EQ(posted, 10000);
}

TEST_F(MessagesNativeTest, CaretGoesWithItsWindow) {
    HWND child = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, window);
    ASSERT_TRUE(CreateCaret(child, nullptr, 1, 10));
    DestroyWindow(child);
    EXPECT_FALSE(ShowCaret(nullptr));
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
