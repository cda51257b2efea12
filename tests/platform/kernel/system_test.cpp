// Times, threads, the process and facts about the system.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>

namespace {

TEST(FileTime, GoesBothWaysOverTheCalendar) {
    struct {
        SYSTEMTIME time;
        ULONGLONG ticks;
    } const cases[] = {
        {{1601, 1, 1, 1, 0, 0, 0, 0}, 0},
        {{1970, 1, 4, 1, 0, 0, 0, 0}, 116444736000000000ull},
        {{1996, 2, 4, 29, 23, 59, 59, 999}, 124701119999990000ull},
        {{2000, 3, 3, 1, 12, 34, 56, 7}, 125963876960070000ull},
    };
    for (const auto& c : cases) {
        FILETIME fileTime{};
        ASSERT_TRUE(SystemTimeToFileTime(&c.time, &fileTime)) << c.time.wYear;
        EXPECT_EQ(ULONGLONG{fileTime.dwHighDateTime} << 32 | fileTime.dwLowDateTime, c.ticks) << c.time.wYear;
        SYSTEMTIME back{};
        ASSERT_TRUE(FileTimeToSystemTime(&fileTime, &back));
        EXPECT_EQ(std::memcmp(&back, &c.time, sizeof back), 0) << c.time.wYear;
    }
    SYSTEMTIME bad{1995, 13, 0, 1, 0, 0, 0, 0};
    FILETIME fileTime{};
    EXPECT_FALSE(SystemTimeToFileTime(&bad, &fileTime));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(Time, LocalAndSystemTimeAreWholeAndNearEachOther) {
    SYSTEMTIME local{};
    SYSTEMTIME system{};
    GetLocalTime(&local);
    GetSystemTime(&system);
    FILETIME a{};
    FILETIME b{};
    ASSERT_TRUE(SystemTimeToFileTime(&local, &a));
    ASSERT_TRUE(SystemTimeToFileTime(&system, &b));
    const auto ticks = [](const FILETIME& t) {
        return static_cast<LONGLONG>(ULONGLONG{t.dwHighDateTime} << 32 | t.dwLowDateTime);
    };
    const LONGLONG hours = (ticks(a) - ticks(b)) / 36000000000ll;
    EXPECT_LE(hours, 15);
    EXPECT_GE(hours, -15);
}

TEST(Time, SleepPassesOnBothClocks) {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER before{};
    LARGE_INTEGER after{};
    ASSERT_TRUE(QueryPerformanceFrequency(&frequency));
    QueryPerformanceCounter(&before);
    const DWORD tick = GetTickCount();
    Sleep(50);
    QueryPerformanceCounter(&after);
    EXPECT_GE(GetTickCount() - tick, 30u);
    EXPECT_GE((after.QuadPart - before.QuadPart) * 1000 / frequency.QuadPart, 45);
}

struct Work {
    HANDLE begin;
    CRITICAL_SECTION* section;
    int* counter;
    DWORD thread;
};

DWORD WINAPI CountUp(LPVOID parameter) {
    auto* work = static_cast<Work*>(parameter);
    work->thread = GetCurrentThreadId();
    WaitForSingleObject(work->begin, INFINITE);
    for (int i = 0; i < 20000; ++i) {
        EnterCriticalSection(work->section);
        EnterCriticalSection(work->section);
        ++*work->counter;
        LeaveCriticalSection(work->section);
        LeaveCriticalSection(work->section);
    }
    return 40 + 2;
}

TEST(Threads, RunTogetherAndGiveTheirExitCode) {
    CRITICAL_SECTION section;
    InitializeCriticalSection(&section);
    int counter = 0;
    HANDLE begin = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Work work[4];
    HANDLE threads[4];
    for (int i = 0; i < 4; ++i) {
        work[i] = {begin, &section, &counter, 0};
        DWORD id = 0;
        threads[i] = CreateThread(nullptr, 0, CountUp, &work[i], 0, &id);
        ASSERT_NE(threads[i], nullptr);
        EXPECT_NE(id, GetCurrentThreadId());
        DWORD code = 0;
        EXPECT_TRUE(GetExitCodeThread(threads[i], &code));
        EXPECT_EQ(code, static_cast<DWORD>(STILL_ACTIVE));
        EXPECT_EQ(WaitForSingleObject(threads[i], 0), static_cast<DWORD>(WAIT_TIMEOUT));
    }
    SetEvent(begin);
    for (HANDLE thread : threads) {
        EXPECT_EQ(WaitForSingleObject(thread, INFINITE), static_cast<DWORD>(WAIT_OBJECT_0));
        DWORD code = 0;
        EXPECT_TRUE(GetExitCodeThread(thread, &code));
        EXPECT_EQ(code, 42u);
        EXPECT_TRUE(CloseHandle(thread));
    }
    EXPECT_EQ(counter, 80000);
    EXPECT_NE(work[0].thread, work[1].thread);
    CloseHandle(begin);
    DeleteCriticalSection(&section);
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
    ResetEvent(stays);
    EXPECT_EQ(WaitForSingleObject(stays, 0), static_cast<DWORD>(WAIT_TIMEOUT));
    EXPECT_TRUE(CloseHandle(once));
    EXPECT_TRUE(CloseHandle(stays));
    SetLastError(0);
    EXPECT_EQ(WaitForSingleObject(stays, 0), WAIT_FAILED);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

TEST(Interlocked, GiveTheOldOrTheNewValue) {
    LONG value = 5;
    EXPECT_EQ(InterlockedIncrement(&value), 6);
    EXPECT_EQ(InterlockedDecrement(&value), 5);
    EXPECT_EQ(InterlockedExchange(&value, 9), 5);
    EXPECT_EQ(InterlockedExchangeAdd(&value, 3), 9);
    EXPECT_EQ(InterlockedCompareExchange(&value, 1, 12), 12);
    EXPECT_EQ(InterlockedCompareExchange(&value, 7, 12), 1);
    EXPECT_EQ(value, 1);
}

TEST(Environment, SizesAndRemoval) {
    ASSERT_TRUE(SetEnvironmentVariableA("CVUTIL32_TEST_VALUE", "four"));
    char buffer[8] = {};
    EXPECT_EQ(GetEnvironmentVariableA("CVUTIL32_TEST_VALUE", buffer, sizeof buffer), 4u);
    EXPECT_STREQ(buffer, "four");
    EXPECT_EQ(GetEnvironmentVariableA("CVUTIL32_TEST_VALUE", buffer, 4), 5u);
    ASSERT_TRUE(SetEnvironmentVariableA("CVUTIL32_TEST_VALUE", nullptr));
    EXPECT_EQ(GetEnvironmentVariableA("CVUTIL32_TEST_VALUE", buffer, sizeof buffer), 0u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ENVVAR_NOT_FOUND));
}

TEST(System, FactsAreInTheirRanges) {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    ASSERT_TRUE(GetVersionExA(&version));
    EXPECT_GE(version.dwMajorVersion, 4u);
    EXPECT_EQ(GetVersion() & 0xFF, version.dwMajorVersion);
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    EXPECT_GE(info.dwNumberOfProcessors, 1u);
    EXPECT_GE(info.dwPageSize, 4096u);
    MEMORYSTATUS status{};
    status.dwLength = sizeof status;
    GlobalMemoryStatus(&status);
    EXPECT_GT(status.dwTotalPhys, SIZE_T{1} << 20);
    EXPECT_LE(status.dwAvailPhys, status.dwTotalPhys);
    EXPECT_LE(status.dwMemoryLoad, 100u);
    char name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD size = sizeof name;
    ASSERT_TRUE(GetComputerNameA(name, &size));
    EXPECT_EQ(std::strlen(name), size);
    size = 1;
    EXPECT_FALSE(GetComputerNameA(name, &size));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_BUFFER_OVERFLOW));
}

TEST(System, FoldersTellTheirLength) {
    char folder[MAX_PATH];
    const UINT needed = GetWindowsDirectoryA(nullptr, 0);
    ASSERT_GT(needed, 3u);
    EXPECT_EQ(GetWindowsDirectoryA(folder, sizeof folder), needed - 1);
    EXPECT_EQ(folder[1], ':');
    EXPECT_EQ(GetWindowsDirectoryA(folder, needed - 1), needed);
    const DWORD length = GetTempPathA(sizeof folder, folder);
    ASSERT_GT(length, 0u);
    EXPECT_EQ(folder[length - 1], '\\');
}

TEST(VirtualMemory, ProtectionIsObeyedAndGivenBack) {
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    const DWORD page = info.dwPageSize;
    auto* memory = static_cast<char*>(VirtualAlloc(nullptr, page * 2, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    ASSERT_NE(memory, nullptr);
    EXPECT_FALSE(IsBadWritePtr(memory, page * 2));
    DWORD former = 0;
    ASSERT_TRUE(VirtualProtect(memory + page, page, PAGE_READONLY, &former));
    EXPECT_EQ(former, static_cast<DWORD>(PAGE_READWRITE));
    EXPECT_TRUE(IsBadWritePtr(memory, page + 1));
    EXPECT_FALSE(IsBadReadPtr(memory, page * 2));
    ASSERT_TRUE(VirtualProtect(memory + page, page, PAGE_NOACCESS, &former));
    EXPECT_EQ(former, static_cast<DWORD>(PAGE_READONLY));
    EXPECT_TRUE(IsBadReadPtr(memory + page - 1, 2));

    // A text that runs into a page without access.
    std::memset(memory, 'x', page);
    char copy[8] = "kept";
    EXPECT_EQ(lstrlenA(memory), 0);
    EXPECT_EQ(lstrcpyA(copy, memory + page - 4), nullptr);
    EXPECT_STREQ(copy, "kept");
    EXPECT_TRUE(IsBadStringPtrA(memory + page - 4, 5));
    EXPECT_FALSE(IsBadStringPtrA(memory + page - 4, 4));
    EXPECT_EQ(lstrcpynA(copy, memory + page - 4, 5), copy);
    EXPECT_STREQ(copy, "xxxx");
    EXPECT_TRUE(VirtualFree(memory, 0, MEM_RELEASE));
    EXPECT_FALSE(VirtualFree(memory, 0, MEM_RELEASE));
}

}  // namespace
