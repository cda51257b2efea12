// Times, threads, the process and facts about the system.
#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(Time, LocalAndSystemTimeAreWholeAndNearEachOther) {
    SYSTEMTIME local{};
    SYSTEMTIME system{};
    GetLocalTime(&local);
    GetSystemTime(&system);
    for (const SYSTEMTIME& time : {local, system}) {
        EXPECT_GE(time.wYear, 2024);
        EXPECT_TRUE(time.wMonth >= 1 && time.wMonth <= 12) << time.wMonth;
    }
    // Time zones are less than a day apart.
    const int days = (local.wDayOfWeek - system.wDayOfWeek + 7) % 7;
    EXPECT_TRUE(days <= 1 || days == 6) << days;
}

struct Work {
    HANDLE begin;
    LONG answer;
    DWORD thread;
};

DWORD WINAPI Answer(LPVOID parameter) {
    auto* work = static_cast<Work*>(parameter);
    work->thread = GetCurrentThreadId();
    WaitForSingleObject(work->begin, INFINITE);
    work->answer = 42;
    return 0;
}

TEST(Threads, RunTogetherAndAreWaitedFor) {
    HANDLE begin = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Work work[4];
    HANDLE threads[4];
    for (int i = 0; i < 4; ++i) {
        work[i] = {begin, 0, 0};
        DWORD id = 0;
        threads[i] = CreateThread(nullptr, 0, Answer, &work[i], 0, &id);
        ASSERT_NE(threads[i], nullptr);
        EXPECT_NE(id, GetCurrentThreadId());
        EXPECT_EQ(WaitForSingleObject(threads[i], 0), static_cast<DWORD>(WAIT_TIMEOUT));
    }
    SetEvent(begin);
    for (HANDLE thread : threads) {
        EXPECT_EQ(WaitForSingleObject(thread, INFINITE), static_cast<DWORD>(WAIT_OBJECT_0));
        EXPECT_TRUE(CloseHandle(thread));
    }
    for (const Work& each : work) {
        EXPECT_EQ(each.answer, 42);
    }
    EXPECT_NE(work[0].thread, work[1].thread);
    CloseHandle(begin);
}

TEST(Events, ResetThemselvesOrStaySet) {
    HANDLE once = CreateEventA(nullptr, FALSE, TRUE, nullptr);
    EXPECT_EQ(WaitForSingleObject(once, 0), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(WaitForSingleObject(once, 10), static_cast<DWORD>(WAIT_TIMEOUT));
    HANDLE stays = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    EXPECT_EQ(WaitForSingleObject(stays, 0), static_cast<DWORD>(WAIT_TIMEOUT));
    SetEvent(stays);
    EXPECT_EQ(WaitForSingleObject(stays, 0), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(WaitForSingleObject(stays, 0), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_TRUE(CloseHandle(once));
    EXPECT_TRUE(CloseHandle(stays));
    SetLastError(0);
    EXPECT_EQ(WaitForSingleObject(stays, 0), WAIT_FAILED);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

TEST(VirtualMemory, ProtectionIsObeyed) {
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    const DWORD page = info.dwPageSize;
    for (const DWORD protection : {PAGE_READWRITE, PAGE_READONLY, PAGE_NOACCESS}) {
        void* memory = VirtualAlloc(nullptr, page * 2, MEM_COMMIT | MEM_RESERVE, protection);
        ASSERT_NE(memory, nullptr);
        EXPECT_EQ(IsBadWritePtr(memory, page * 2) != FALSE, protection != PAGE_READWRITE);
        EXPECT_EQ(lstrcpyA(static_cast<LPSTR>(memory), "text") == nullptr, protection != PAGE_READWRITE);
        EXPECT_EQ(lstrlenA(static_cast<LPCSTR>(memory)), protection == PAGE_READWRITE ? 4 : 0);
        EXPECT_TRUE(VirtualFree(memory, 0, MEM_RELEASE));
        EXPECT_FALSE(VirtualFree(memory, 0, MEM_RELEASE));
    }
}

}  // namespace
