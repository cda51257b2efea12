// Messages between threads.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

#include "tests/platform/support/looking.h"
#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;

constexpr UINT kAdd = WM_USER + 1;
constexpr UINT kNested = WM_USER + 2;
constexpr UINT kHang = WM_USER + 3;
constexpr UINT kStop = WM_USER + 4;

std::atomic<HWND> partner{nullptr};
std::atomic<HWND> mine{nullptr};
HANDLE goOn = nullptr;  // what a window that hangs waits for
std::atomic<DWORD> handlerThread{0};

// Counts down by turns between both threads, each waiting for the other.
LRESULT Nested(HWND window, WPARAM depth) {
    if (depth == 0) {
        return 1;
    }
    HWND other = window == mine ? partner.load() : mine.load();
    return SendMessageA(other, kNested, depth - 1, 0) + 1;
}

LRESULT CALLBACK PartnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kAdd:
            handlerThread = GetCurrentThreadId();
            return static_cast<LRESULT>(wParam) + lParam;
        case kNested:
            return Nested(window, wParam);
        case kHang:
            WaitForSingleObject(goOn, INFINITE);
            return 1;
        case kStop:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

HWND MakeWindow() {
    tests::RegisterPlain("SendTest", PartnerProcedure);
    return CreateWindowExA(0, "SendTest", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

class SendTest : public ::testing::Test {
  protected:
    void SetUp() override {
        goOn = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        mine = MakeWindow();
        ASSERT_NE(mine.load(), nullptr);
        partner = nullptr;
        thread = std::thread([] {
            partner = MakeWindow();
            MSG message;
            while (GetMessageA(&message, nullptr, 0, 0) > 0) {
                DispatchMessageA(&message);
            }
            DestroyWindow(partner);
        });
        while (partner == nullptr) {
            Sleep(1);
        }
    }
    void TearDown() override {
        SetEvent(goOn);
        if (thread.joinable()) {
            PostMessageA(partner, kStop, 0, 0);
            thread.join();
        }
        DestroyWindow(mine);
        Pump();
        CloseHandle(goOn);
    }
    std::thread thread;
};

TEST_F(SendTest, OtherThreadAnswersInItsLoop) {
    EXPECT_EQ(SendMessageA(partner, kAdd, 40, 2), 42);
    EXPECT_NE(handlerThread.load(), GetCurrentThreadId());
    EXPECT_EQ(SendMessageA(mine, kAdd, 1, 2), 3);
    EXPECT_EQ(handlerThread.load(), GetCurrentThreadId());
}

TEST_F(SendTest, BothSidesServeEachOtherWhileTheyWait) {
    EXPECT_EQ(SendMessageA(partner, kNested, 20, 0), 21);
    EXPECT_EQ(SendMessageA(mine, kNested, 21, 0), 22);
}

TEST_F(SendTest, TimeoutGivesUp) {
    DWORD_PTR result = 5;
    EXPECT_EQ(DWORD{ERROR_TIMEOUT},
              tests::ErrorOf([&] { return SendMessageTimeoutA(partner, kHang, 0, 0, SMTO_NORMAL, 30, &result); }));
    SetEvent(goOn);
    EXPECT_NE(SendMessageTimeoutA(partner, kAdd, 2, 3, SMTO_NORMAL, tests::kPatience, &result), 0);
    EXPECT_EQ(result, 5u);
}

TEST_F(SendTest, MessagesWithPointersAreNotPosted) {
    EXPECT_FALSE(PostMessageA(partner, WM_GETTEXT, 0, 0));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MESSAGE_SYNC_ONLY));
}

TEST_F(SendTest, WaitingThreadsAnswerInEveryWait) {
    std::atomic<int> answer{0};
    std::thread sender([&answer] { answer = static_cast<int>(SendMessageA(mine, kAdd, 3, 4)); });
    const DWORD start = GetTickCount();
    MSG message;
    while (answer == 0 && GetTickCount() - start < tests::kPatience) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_POSTMESSAGE);
        PeekMessageA(&message, nullptr, WM_USER + 99, WM_USER + 99, PM_REMOVE);
    }
    sender.join();
    EXPECT_EQ(answer, 7);
}

TEST_F(SendTest, ThreadThatEndsReleasesWhoWaitsForIt) {
    std::atomic<HWND> window{nullptr};
    std::thread deaf([&window] {
        window = MakeWindow();
        Sleep(100);  // never looks at its queue
    });
    while (window == nullptr) {
        Sleep(1);
    }
    EXPECT_EQ(SendMessageA(window, kAdd, 1, 2), 0);
    deaf.join();
}

}  // namespace
