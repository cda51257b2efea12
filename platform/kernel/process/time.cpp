#include <cvplatform.h>
#include <windows.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <ctime>

#include "base/clock.h"

namespace {

void Store(const tm& parts, long nanoseconds, LPSYSTEMTIME time) {
    *time = {static_cast<WORD>(parts.tm_year + 1900), static_cast<WORD>(parts.tm_mon + 1),
             static_cast<WORD>(parts.tm_wday), static_cast<WORD>(parts.tm_mday), static_cast<WORD>(parts.tm_hour),
             static_cast<WORD>(parts.tm_min),
             // A leap second is not a time that callers know.
             static_cast<WORD>(parts.tm_sec > 59 ? 59 : parts.tm_sec), static_cast<WORD>(nanoseconds / 1000000)};
}

// A file time counts 100 nanoseconds since 1601 began; the calendar is the Gregorian one throughout.
constexpr std::int64_t kTicksPerMillisecond = 10000;
constexpr std::int64_t kMillisecondsPerDay = 86400000;
constexpr auto kFirstDay = std::chrono::sys_days(std::chrono::year(1601) / 1 / 1);

}  // namespace

void WINAPI GetLocalTime(LPSYSTEMTIME time) {
    const timespec now = platform::base::TimeOfDay();
    tm parts{};
    localtime_r(&now.tv_sec, &parts);
    Store(parts, now.tv_nsec, time);
}

void WINAPI GetSystemTime(LPSYSTEMTIME time) {
    const timespec now = platform::base::TimeOfDay();
    tm parts{};
    gmtime_r(&now.tv_sec, &parts);
    Store(parts, now.tv_nsec, time);
}

BOOL WINAPI SystemTimeToFileTime(const SYSTEMTIME* time, LPFILETIME fileTime) {
    const std::chrono::year_month_day date(std::chrono::year(time->wYear), std::chrono::month(time->wMonth),
                                           std::chrono::day(time->wDay));
    if (!date.ok() || time->wYear < 1601 || time->wYear > 30827 || time->wHour > 23 || time->wMinute > 59 ||
        time->wSecond > 59 || time->wMilliseconds > 999) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const std::int64_t days = (std::chrono::sys_days(date) - kFirstDay).count();
    const std::int64_t milliseconds =
        ((time->wHour * 60LL + time->wMinute) * 60 + time->wSecond) * 1000 + time->wMilliseconds;
    const auto ticks = static_cast<std::uint64_t>((days * kMillisecondsPerDay + milliseconds) * kTicksPerMillisecond);
    *fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    return TRUE;
}

BOOL WINAPI FileTimeToSystemTime(const FILETIME* fileTime, LPSYSTEMTIME time) {
    const std::uint64_t ticks = std::uint64_t{fileTime->dwHighDateTime} << 32 | fileTime->dwLowDateTime;
    if (ticks >> 63) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const std::int64_t milliseconds = static_cast<std::int64_t>(ticks) / kTicksPerMillisecond;
    const auto day = kFirstDay + std::chrono::days(milliseconds / kMillisecondsPerDay);
    const std::chrono::year_month_day date(day);
    const std::int64_t rest = milliseconds % kMillisecondsPerDay;
    *time = {static_cast<WORD>(static_cast<int>(date.year())),
             static_cast<WORD>(static_cast<unsigned>(date.month())),
             static_cast<WORD>(std::chrono::weekday(day).c_encoding()),
             static_cast<WORD>(static_cast<unsigned>(date.day())),
             static_cast<WORD>(rest / 3600000),
             static_cast<WORD>(rest / 60000 % 60),
             static_cast<WORD>(rest / 1000 % 60),
             static_cast<WORD>(rest % 1000)};
    return TRUE;
}

DWORD WINAPI GetTickCount(void) {
    return platform::base::TickCount();
}

void WINAPI Sleep(DWORD milliseconds) {
    if (milliseconds != INFINITE && platform::base::SkipTo(platform::base::TickCount64() + milliseconds)) {
        return;
    }
    timespec wait{milliseconds / 1000, static_cast<long>(milliseconds % 1000) * 1000000};
    do {
        while (nanosleep(&wait, &wait) != 0 && errno == EINTR) {
        }
    } while (milliseconds == INFINITE);
}

BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* count) {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    count->QuadPart = static_cast<LONGLONG>(now.tv_sec) * 1000000000 + now.tv_nsec;
    return TRUE;
}

BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency) {
    frequency->QuadPart = 1000000000;
    return TRUE;
}

void CvPlatformDriveClock(ULONGLONG milliseconds) {
    platform::base::DriveClock(milliseconds);
}
