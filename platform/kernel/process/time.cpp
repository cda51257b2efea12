#include <cvplatform.h>
#include <windows.h>

#include <cerrno>
#include <ctime>

#include "base/clock.h"

namespace {

/// Tells the time of day as the host's call takes it apart.
void Tell(tm* (*split)(const std::time_t*, tm*), LPSYSTEMTIME time) {
    const timespec now = platform::base::TimeOfDay();
    tm parts{};
    split(&now.tv_sec, &parts);
    *time = {static_cast<WORD>(parts.tm_year + 1900), static_cast<WORD>(parts.tm_mon + 1),
             static_cast<WORD>(parts.tm_wday), static_cast<WORD>(parts.tm_mday), static_cast<WORD>(parts.tm_hour),
             static_cast<WORD>(parts.tm_min),
             // A leap second is not a time that callers know.
             static_cast<WORD>(parts.tm_sec > 59 ? 59 : parts.tm_sec), static_cast<WORD>(now.tv_nsec / 1000000)};
}

}  // namespace

void WINAPI GetLocalTime(LPSYSTEMTIME time) {
    Tell(localtime_r, time);
}

void WINAPI GetSystemTime(LPSYSTEMTIME time) {
    Tell(gmtime_r, time);
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
