// Queues: what comes first, filters, the end of a loop, registered messages, timers.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class MessagesTest : public tests::RecordedTest {
  protected:
    void SetUp() override {
        window = Recorder::Get().Make(WS_POPUP, 10, 10, 100, 100);
        ASSERT_NE(window, nullptr);
        Pump();
        Recorder::Get().Reset();
    }
};

TEST_F(MessagesTest, PostedMessagesKeepTheirOrderAndContents) {
    ASSERT_TRUE(PostMessageA(window, WM_USER + 1, 11, 12));
    ASSERT_TRUE(PostMessageA(nullptr, WM_USER + 2, 21, 22));
    ASSERT_TRUE(PostThreadMessageA(GetCurrentThreadId(), WM_USER + 3, 31, 32));
    MSG message{};
    ASSERT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.hwnd, window);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_USER + 1));
    EXPECT_EQ(message.wParam, 11u);
    EXPECT_EQ(message.lParam, 12);
    EXPECT_LE(message.time, GetTickCount());
    EXPECT_EQ(static_cast<DWORD>(GetMessageTime()), message.time);
    EXPECT_EQ(GetMessagePos(), static_cast<DWORD>(MAKELONG(message.pt.x, message.pt.y)));
    ASSERT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.hwnd, nullptr);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_USER + 2));
    ASSERT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_USER + 3));
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_USER, WM_USER + 9, PM_REMOVE));
}

TEST_F(MessagesTest, PostedOnesQuitPaintingAndTimersComeInThisOrder) {
    ShowWindow(window, SW_SHOWNA);
    UpdateWindow(window);
    Pump();
    ASSERT_NE(SetTimer(window, 1, USER_TIMER_MINIMUM, nullptr), 0u);
    Sleep(40);
    InvalidateRect(window, nullptr, FALSE);
    PostQuitMessage(7);
    PostMessageA(window, WM_USER, 0, 0);
    MSG message{};
    std::vector<UINT> order;
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE));
        EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0) == 0, message.message == WM_QUIT);
        EXPECT_TRUE(message.message != WM_QUIT || message.wParam == 7);
        order.push_back(message.message);
        DispatchMessageA(&message);
    }
    KillTimer(window, 1);
    EXPECT_EQ(order, (std::vector<UINT>{WM_USER, WM_QUIT, WM_PAINT, WM_TIMER}));
}

TEST_F(MessagesTest, FiltersByWindowChildrenAndRange) {
    HWND child = Recorder::Get().Make(WS_CHILD, 0, 0, 10, 10, window);
    HWND other = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    PostMessageA(other, WM_USER + 1, 0, 0);
    PostMessageA(child, WM_USER + 2, 0, 0);
    PostMessageA(window, WM_USER + 3, 0, 0);
    PostMessageA(nullptr, WM_USER + 4, 0, 0);
    MSG message{};
    ASSERT_TRUE(PeekMessageA(&message, window, WM_USER + 3, WM_USER + 9, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_USER + 3));
    ASSERT_TRUE(PeekMessageA(&message, window, WM_USER, WM_USER + 9, PM_REMOVE));
    EXPECT_EQ(message.hwnd, child);
    EXPECT_FALSE(PeekMessageA(&message, window, WM_USER, WM_USER + 9, PM_REMOVE));
    ASSERT_TRUE(
        PeekMessageA(&message, reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)), WM_USER, WM_USER + 9, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_USER + 4));
    // What is posted to a window dies with it.
    DestroyWindow(other);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_USER, WM_USER + 9, PM_REMOVE));
}

TEST_F(MessagesTest, BadWindowsAndThreadsAreRefused) {
    HWND gone = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    DestroyWindow(gone);
    MSG message{};
    EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, tests::ErrorOf([&] { return PostMessageA(gone, WM_USER, 0, 0); }));
    EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, tests::ErrorOf([&] { return SendMessageA(gone, WM_USER, 0, 0); }));
    EXPECT_EQ(GetMessageA(&message, gone, 0, 0), -1);
    EXPECT_FALSE(PeekMessageA(&message, gone, 0, 0, PM_REMOVE));
    EXPECT_FALSE(PostThreadMessageA(0x7FFFFFF3, WM_USER, 0, 0));
    EXPECT_EQ(SetTimer(gone, 1, 100, nullptr), 0u);
    EXPECT_FALSE(KillTimer(window, 99));
}

TEST_F(MessagesTest, RegisteredMessagesAreSharedByName) {
    const UINT first = RegisterWindowMessageA("cv test message one");
    const UINT second = RegisterWindowMessageA("cv test message two");
    EXPECT_GE(first, 0xC000u);
    EXPECT_LE(first, 0xFFFFu);
    EXPECT_NE(first, second);
    EXPECT_EQ(RegisterWindowMessageA("CV TEST message ONE"), first);
    EXPECT_EQ(RegisterWindowMessageA(""), 0u);
}

TEST_F(MessagesTest, WaitingTellsNewFromOld) {
    const auto wait = [] { return MsgWaitForMultipleObjects(0, nullptr, FALSE, 0, QS_POSTMESSAGE); };
    Pump();
    EXPECT_EQ(wait(), static_cast<DWORD>(WAIT_TIMEOUT));
    PostMessageA(window, WM_USER, 0, 0);
    EXPECT_EQ(wait(), 0u);
    // What has been looked at is no news any more, so waiting for news times out.
    MSG message;
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_EQ(wait(), static_cast<DWORD>(WAIT_TIMEOUT));
    PostMessageA(window, WM_USER, 0, 0);
    EXPECT_EQ(wait(), 0u);
    Pump();
}

// The one test that waits for timers; others drive them by sending WM_TIMER.
TEST_F(MessagesTest, TimersBeatCoalescedUntilKilled) {
    ASSERT_EQ(SetTimer(window, 5, 20, nullptr), 5u);
    Sleep(150);  // several periods pass unseen and leave one message
    MSG message{};
    int seen = 0;
    DWORD start = GetTickCount();
    while (PeekMessageA(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
        EXPECT_EQ(message.wParam, 5u);
        EXPECT_EQ(message.lParam, 0);
        ++seen;
    }
    // One for the past, and one for each beat that goes by while the messages are taken.
    EXPECT_GE(seen, 1);
    EXPECT_LE(seen, 2 + static_cast<int>((GetTickCount() - start) / 20));
    start = GetTickCount();
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(GetMessageA(&message, window, WM_TIMER, WM_TIMER));
    }
    EXPECT_GE(GetTickCount() - start, 50u);
    // Setting it anew replaces it.
    ASSERT_EQ(SetTimer(window, 5, 60000, nullptr), 5u);
    Sleep(40);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE));
    EXPECT_TRUE(KillTimer(window, 5));
    EXPECT_FALSE(KillTimer(window, 5));
}

TEST_F(MessagesTest, TimersDieWithTheirWindow) {
    SetTimer(window, 1, USER_TIMER_MINIMUM, nullptr);
    DestroyWindow(window);
    Sleep(30);
    MSG message{};
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE));
}

}  // namespace
