// Waiting for messages and kernel objects together.
#include <gtest/gtest.h>
#include <windows.h>

#include <thread>

#include "tests/platform/support/recorder.h"

namespace {

constexpr DWORD kTimeout = static_cast<DWORD>(WAIT_TIMEOUT);

DWORD Wait(DWORD count, const HANDLE* events, DWORD milliseconds, DWORD mask, BOOL all = FALSE) {
    return MsgWaitForMultipleObjects(count, events, all, milliseconds, mask);
}

class WaitTest : public ::testing::Test {
  protected:
    void SetUp() override {
        // An event that resets itself, one that stays set.
        events[0] = CreateEventA(nullptr, FALSE, FALSE, nullptr);
        events[1] = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        tests::Pump();
    }
    void TearDown() override {
        for (HANDLE event : events) {
            CloseHandle(event);
        }
        tests::Pump();
    }
    HANDLE events[2] = {};
};

TEST_F(WaitTest, ASignalledObjectIsTakenAndNoOther) {
    EXPECT_EQ(kTimeout, Wait(2, events, 0, 0));
    SetEvent(events[0]);
    SetEvent(events[1]);
    EXPECT_EQ(DWORD{WAIT_OBJECT_0}, Wait(2, events, INFINITE, 0));
    EXPECT_EQ(DWORD{WAIT_OBJECT_0 + 1}, Wait(2, events, INFINITE, 0));
    EXPECT_EQ(kTimeout, Wait(1, events, 0, 0));
    EXPECT_EQ(DWORD{WAIT_OBJECT_0}, WaitForSingleObject(events[1], 0));
}

TEST_F(WaitTest, ObjectsAndMessagesOfOtherThreadsEndAWaitThatHasBegun) {
    const DWORD self = GetCurrentThreadId();
    std::thread setter([&] { SetEvent(events[1]); });
    // The desktop has messages of its own for a thread, and they end a wait too.
    DWORD came = Wait(2, events, INFINITE, QS_ALLINPUT);
    for (; came == WAIT_OBJECT_0 + 2; came = Wait(2, events, INFINITE, QS_ALLINPUT)) {
        tests::Pump();
    }
    EXPECT_EQ(DWORD{WAIT_OBJECT_0 + 1}, came);
    setter.join();
    std::thread poster([&] { PostThreadMessageA(self, WM_USER, 0, 0); });
    EXPECT_EQ(DWORD{WAIT_OBJECT_0 + 1}, Wait(1, events, INFINITE, QS_ALLINPUT));
    poster.join();
    std::thread both([&] {
        for (int i = 0; i < 200; ++i) {
            SetEvent(events[0]);
            PostThreadMessageA(self, WM_USER, 0, 0);
        }
    });
    int objects = 0;
    int messages = 0;
    while (messages < 201) {
        came = Wait(1, events, INFINITE, QS_ALLINPUT);
        ASSERT_LE(came, DWORD{WAIT_OBJECT_0 + 1});
        objects += came == WAIT_OBJECT_0 ? 1 : 0;
        for (MSG message; PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE);) {
            ++messages;
        }
    }
    both.join();
    EXPECT_GE(objects, 1);
}

TEST_F(WaitTest, AllMeansAMessageToo) {
    SetEvent(events[0]);
    SetEvent(events[1]);
    EXPECT_EQ(kTimeout, Wait(2, events, 20, QS_POSTMESSAGE, TRUE));
    PostThreadMessageA(GetCurrentThreadId(), WM_USER, 0, 0);
    WaitForSingleObject(events[0], 0);
    // One of them is missing, and the other is not used up.
    EXPECT_EQ(kTimeout, Wait(2, events, 20, QS_POSTMESSAGE, TRUE));
    std::thread setter([&] { SetEvent(events[0]); });
    EXPECT_EQ(DWORD{WAIT_OBJECT_0}, Wait(2, events, INFINITE, QS_POSTMESSAGE, TRUE));
    setter.join();
    EXPECT_EQ(kTimeout, Wait(1, events, 0, 0));
    EXPECT_EQ(DWORD{WAIT_OBJECT_0}, WaitForSingleObject(events[1], 0));
}

TEST_F(WaitTest, WhatCannotBeWaitedForIsRefused) {
    const HANDLE stale = CreateEventA(nullptr, TRUE, TRUE, nullptr);
    CloseHandle(stale);
    for (const HANDLE bad : {stale, HANDLE{nullptr}, reinterpret_cast<HANDLE>(INT_PTR{0x7FFF1234})}) {
        const HANDLE mixed[2] = {events[0], bad};
        SetLastError(0);
        EXPECT_EQ(WAIT_FAILED, Wait(2, mixed, 0, QS_ALLINPUT));
        EXPECT_EQ(DWORD{ERROR_INVALID_HANDLE}, GetLastError());
    }
    HANDLE many[MAXIMUM_WAIT_OBJECTS];
    for (HANDLE& each : many) {
        each = events[0];
    }
    EXPECT_EQ(WAIT_FAILED, Wait(MAXIMUM_WAIT_OBJECTS, many, 0, QS_ALLINPUT));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, GetLastError());
    EXPECT_EQ(WAIT_FAILED, Wait(0xFFFFFFFF, many, 0, QS_ALLINPUT));
}

}  // namespace
