// The user's own facts about the locale: written to win.ini, where GetLocaleInfoA looks first. A pattern brings along
// what is read out of it, so that no two settings contradict each other.
#include <windows.h>

#include <cstring>
#include <new>
#include <string>

#include "base/fail.h"
#include "kernel/locale/intl.h"
#include "kernel/locale/locale_patterns.h"

using namespace platform::kernel;
namespace base = platform::base;

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

}  // namespace

BOOL WINAPI SetLocaleInfoA(LCID locale, LCTYPE type, LPCSTR data) try {
    if (!data || GetLocaleInfoA(locale, LOCALE_ILANGUAGE, nullptr, 0) == 0) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    const LCTYPE item = type & ~LCTYPE{LOCALE_NOUSEROVERRIDE | LOCALE_USE_CP_ACP};
    if (!IntlKey(item)) {
        return base::Fail(ERROR_INVALID_FLAGS, FALSE);
    }
    if (std::strlen(data) > LongestOf(item)) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
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
    return base::Fail(ERROR_NOT_ENOUGH_MEMORY, FALSE);
}
