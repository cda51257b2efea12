// A thread that waits sleeps until something comes.
#include <gtest/gtest.h>
#include <windows.h>

#include <sys/resource.h>

#include <atomic>
#include <thread>

namespace {

/// How often the calling thread has gone to sleep.
long Sleeps() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

TEST(Waiting, DoesNotPoll) {
    const HANDLE event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    std::atomic<bool> begun{false};
    long sleeps = 0;
    std::thread waiter([&] {
        MSG message;
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
        begun = true;
        const long before = Sleeps();
        EXPECT_EQ(DWORD{WAIT_OBJECT_0}, MsgWaitForMultipleObjects(1, &event, FALSE, INFINITE, QS_ALLINPUT));
        sleeps = Sleeps() - before;
    });
    while (!begun) {
        std::this_thread::yield();
    }
    // However slow the machine is, a wait in which nothing happens is one sleep; looking again and again would be many.
    Sleep(500);
    SetEvent(event);
    waiter.join();
    CloseHandle(event);
    EXPECT_LT(sleeps, 10);
}

TEST(Waiting, IsNeverForAllObjectsTogether) {
    const HANDLE event = CreateEventA(nullptr, TRUE, TRUE, nullptr);
    EXPECT_EQ(WAIT_FAILED, MsgWaitForMultipleObjects(1, &event, TRUE, 0, QS_ALLINPUT));
    EXPECT_EQ(DWORD{ERROR_NOT_SUPPORTED}, GetLastError());
    CloseHandle(event);
}

TEST(Waiting, ForOneObjectTwiceIsLikeForItOnce) {
    const HANDLE event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    const HANDLE twice[2] = {event, event};
    EXPECT_EQ(DWORD{WAIT_TIMEOUT}, MsgWaitForMultipleObjects(2, twice, FALSE, 0, 0));
    std::thread setter([&] { SetEvent(event); });
    EXPECT_EQ(DWORD{WAIT_OBJECT_0}, MsgWaitForMultipleObjects(2, twice, FALSE, INFINITE, 0));
    setter.join();
    EXPECT_EQ(DWORD{WAIT_TIMEOUT}, MsgWaitForMultipleObjects(2, twice, FALSE, 0, 0));
    CloseHandle(event);
}

}  // namespace
