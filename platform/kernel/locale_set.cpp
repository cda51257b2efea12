// The user's own facts about the locale: written to win.ini, where GetLocaleInfoA looks first. A pattern brings along
// what is read out of it, so that no two settings contradict each other.
#include <windows.h>

#include <cstring>
#include <new>
#include <string>

#include "kernel/intl.h"
#include "kernel/locale_patterns.h"

using namespace platform::kernel;

namespace {

constexpr std::size_t kLongestPattern = 80;
constexpr std::size_t kLongestSeparator = 3;

std::size_t LongestOf(LCTYPE type) {
    return type == LOCALE_SDATE || type == LOCALE_STIME ? kLongestSeparator : kLongestPattern - 1;
}

bool Write(LCTYPE type, const std::string& text) {
    return WriteProfileStringA("intl", IntlKey(type), text.c_str()) != FALSE;
}

bool WriteTimeFormat(const std::string& pattern) {
    const std::string clock = Holds(pattern, "H");
    const std::string leadingZero = Holds(pattern, clock == "1" ? "HH" : "hh");
    return Write(LOCALE_STIMEFORMAT, pattern) && Write(LOCALE_ITIME, clock) && Write(LOCALE_ITLZERO, leadingZero) &&
           Write(LOCALE_STIME, PatternSeparator(pattern, ":"));
}

bool WriteShortDate(const std::string& pattern) {
    return Write(LOCALE_SSHORTDATE, pattern) && Write(LOCALE_IDATE, DateOrder(pattern)) &&
           Write(LOCALE_SDATE, PatternSeparator(pattern, "/"));
}

BOOL Fail(DWORD error) {
    SetLastError(error);
    return FALSE;
}

}  // namespace

BOOL WINAPI SetLocaleInfoA(LCID locale, LCTYPE type, LPCSTR data) try {
    if (!data || GetLocaleInfoA(locale, LOCALE_ILANGUAGE, nullptr, 0) == 0) {
        return Fail(ERROR_INVALID_PARAMETER);
    }
    const LCTYPE item = type & ~LCTYPE{LOCALE_NOUSEROVERRIDE | LOCALE_USE_CP_ACP};
    if (!IntlKey(item)) {
        return Fail(ERROR_INVALID_FLAGS);
    }
    if (std::strlen(data) > LongestOf(item)) {
        return Fail(ERROR_INVALID_PARAMETER);
    }
    switch (item) {
        case LOCALE_STIMEFORMAT:
            return WriteTimeFormat(data);
        case LOCALE_SSHORTDATE:
            return WriteShortDate(data);
        default:
            return Write(item, data);
    }
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY);
}
