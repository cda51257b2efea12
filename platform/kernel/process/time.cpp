#include <cvplatform.h>
#include <windows.h>

#include <cerrno>
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

void CvPlatformDriveClock(ULONGLONG milliseconds) {
    platform::base::DriveClock(milliseconds);
}
