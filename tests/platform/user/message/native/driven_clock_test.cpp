// A day of timers, waits and clicks in a moment, while the tick counter begins anew.
#include <cvplatform.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "tests/platform/support/hands.h"

namespace {

constexpr ULONGLONG kWrap = ULONGLONG{1} << 32;
constexpr DWORD kHour = 3600 * 1000;

class DrivenClock : public testing::Test {
  protected:
    ~DrivenClock() override {
        if (window_) {
            DestroyWindow(window_);
        }
        CvPlatformDriveClock(0);
    }
    /// So long before the tick counter begins anew.
    void Begin(DWORD before) {
        CvPlatformDriveClock(kWrap - before);
        window_ = CreateWindowExA(0, "#32770", "", WS_POPUP | WS_VISIBLE, 100, 100, 80, 40, nullptr, nullptr, nullptr,
                                  nullptr);
        SetForegroundWindow(window_);
        Drain();
    }
    /// What is queued now, without waiting.
    std::vector<MSG> Drain() const {
        std::vector<MSG> all;
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            all.push_back(message);
            DispatchMessageA(&message);
        }
        return all;
    }

    HWND window_ = nullptr;
};

TEST_F(DrivenClock, ADayOfTimersKeepsItsBeatOverTheWrap) {
    Begin(12 * kHour);
    std::map<UINT_PTR, UINT> const periods = {{1, 1000}, {2, 777}, {3, 50 * 60 * 1000}, {4, 24 * kHour}, {5, 250}};
    for (auto const& [id, period] : periods) {
        ASSERT_NE(0U, SetTimer(window_, id, period, nullptr));
    }
    DWORD const start = GetTickCount();
    std::map<UINT_PTR, unsigned> beats;
    std::map<UINT_PTR, DWORD> last;
    DWORD former = start;
    MSG message;
    while (GetTickCount() - start < 24 * kHour && GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER && message.hwnd == window_) {
            ++beats[message.wParam];
            DWORD const passed = message.time - (last.count(message.wParam) ? last[message.wParam] : start);
            ASSERT_EQ(periods.at(message.wParam), passed)
                << "timer " << message.wParam << " at " << message.time - start;
            last[message.wParam] = message.time;
        }
        ASSERT_EQ(message.time, static_cast<DWORD>(GetMessageTime()));
        ASSERT_LE(message.time - former, 250U) << "time stands still or goes back";
        former = message.time;
        DispatchMessageA(&message);
    }
    for (auto const& [id, period] : periods) {
        // The last beats fall on the day's last moment.
        EXPECT_NEAR(24.0 * kHour / period, beats[id], 1) << "timer " << id;
    }
    EXPECT_LT(GetTickCount(), 13 * kHour) << "it has begun anew";
}

TEST_F(DrivenClock, WaitsLastAsLongOverTheWrap) {
    Begin(2000);
    HANDLE const event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    DWORD const start = GetTickCount();
    EXPECT_EQ(static_cast<DWORD>(WAIT_TIMEOUT), MsgWaitForMultipleObjects(0, nullptr, FALSE, 1500, QS_POSTMESSAGE));
    EXPECT_EQ(1500U, GetTickCount() - start);
    EXPECT_EQ(static_cast<DWORD>(WAIT_TIMEOUT), MsgWaitForMultipleObjects(1, &event, FALSE, 1500, QS_POSTMESSAGE));
    EXPECT_EQ(3000U, GetTickCount() - start);
    EXPECT_GT(start, GetTickCount()) << "it has begun anew";
    CvPlatformDriveClock(kWrap - 100);
    DWORD const again = GetTickCount();
    EXPECT_EQ(static_cast<DWORD>(WAIT_TIMEOUT), WaitForSingleObject(event, 300));
    EXPECT_EQ(300U, GetTickCount() - again);
    Sleep(50);
    EXPECT_EQ(350U, GetTickCount() - again);
    SetEvent(event);
    EXPECT_EQ(static_cast<DWORD>(WAIT_OBJECT_0), WaitForSingleObject(event, 300));
    EXPECT_EQ(350U, GetTickCount() - again) << "nothing to wait for";
    CloseHandle(event);
}

TEST_F(DrivenClock, ADoubleClickMayBeginBeforeTheWrap) {
    constexpr DWORD kDoubleClick = 500;
    for (DWORD const pause : {kDoubleClick - 50, kDoubleClick + 50}) {
        Begin(100);
        const std::vector<INPUT> click{tests::At(120, 110, MOUSEEVENTF_LEFTDOWN),
                                       tests::At(120, 110, MOUSEEVENTF_LEFTUP)};
        tests::Play(click);
        Sleep(pause);
        tests::Play(click);
        bool doubled = false;
        for (MSG const& message : Drain()) {
            doubled = doubled || message.message == WM_LBUTTONDBLCLK;
        }
        EXPECT_EQ(pause < kDoubleClick, doubled) << pause;
        DestroyWindow(window_);
        window_ = nullptr;
    }
}

TEST_F(DrivenClock, TheTimeOfDayGoesAlong) {
    Begin(1000);
    SYSTEMTIME before;
    SYSTEMTIME after;
    GetSystemTime(&before);
    Sleep(24 * kHour);
    GetSystemTime(&after);
    EXPECT_EQ(before.wHour, after.wHour);
    EXPECT_EQ(before.wSecond, after.wSecond);
    EXPECT_NE(before.wDay, after.wDay);
}

}  // namespace
