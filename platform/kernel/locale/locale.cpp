// Facts about the user's locale: settings in win.ini come before what the host knows, and those that are set are written there.
#include <windows.h>

#include <unicode/uloc.h>

#include <cstring>

#include "base/fail.h"
#include "kernel/guarded.h"
#include "kernel/locale/intl.h"
#include "kernel/locale/locale_patterns.h"
#include "kernel/locale/locale_values.h"

using namespace platform::kernel;
namespace base = platform::base;

namespace {

bool IsUsersLocale(LCID locale) {
    return locale == LOCALE_USER_DEFAULT || locale == LOCALE_SYSTEM_DEFAULT;
}

std::optional<std::string> UsersValue(LCTYPE type) {
    const char* key = IntlKey(type);
    if (!key) {
        return std::nullopt;
    }
    char value[256];
    constexpr char kMissing[] = "\x01";
    GetProfileStringA("intl", key, kMissing, value, sizeof value);
    return std::strcmp(value, kMissing) == 0 ? std::nullopt : std::optional<std::string>(value);
}

int Find(LCID locale, LCTYPE type, LPSTR buffer, int size) {
    if (!IsUsersLocale(locale) || size < 0 || (size > 0 && !buffer)) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    std::optional<std::string> value = UsersValue(type);
    if (!value) {
        value = LocaleValue(type);
    }
    if (!value) {
        return base::Fail(ERROR_INVALID_FLAGS, 0);
    }
    const auto needed = static_cast<int>(value->size()) + 1;
    if (size == 0) {
        return needed;
    }
    if (needed > size) {
        return base::Fail(ERROR_INSUFFICIENT_BUFFER, 0);
    }
    std::memcpy(buffer, value->c_str(), static_cast<std::size_t>(needed));
    return needed;
}

bool Write(LCTYPE type, const std::string& text) {
    return WriteProfileStringA("intl", IntlKey(type), text.c_str()) != FALSE;
}

/// A pattern brings along what is read out of it, so that no two settings contradict each other.
bool WriteTimeFormat(const std::string& pattern) {
    const std::string clock = Holds(pattern, "H");
    const std::string leadingZero = Holds(pattern, clock == "1" ? "HH" : "hh");
    return Write(LOCALE_STIMEFORMAT, pattern) && Write(LOCALE_ITIME, clock) && Write(LOCALE_ITLZERO, leadingZero) &&
           Write(LOCALE_STIME, PatternSeparator(pattern, ":"));
}

}  // namespace

namespace platform::kernel {

LANGID UsersLanguage() {
    static const LCID number = uloc_getLCID(HostLanguage().c_str());
    constexpr LANGID kAmerican = 0x0409;
    return number ? static_cast<LANGID>(number) : kAmerican;
}

}  // namespace platform::kernel

int WINAPI GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR buffer, int size) {
    return Guarded(0, [&] { return Find(locale, type, buffer, size); });
}

BOOL WINAPI SetLocaleInfoA(LCID locale, LCTYPE type, LPCSTR data) {
    if (!data || !IsUsersLocale(locale)) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    if (type != LOCALE_STIME && type != LOCALE_STIMEFORMAT) {
        return base::Fail(ERROR_INVALID_FLAGS, FALSE);
    }
    constexpr std::size_t kLongestPattern = 79;
    constexpr std::size_t kLongestSeparator = 3;
    if (std::strlen(data) > (type == LOCALE_STIME ? kLongestSeparator : kLongestPattern)) {
        return base::Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    return Guarded(FALSE, [&] { return BOOL{type == LOCALE_STIME ? Write(type, data) : WriteTimeFormat(data)}; });
}
