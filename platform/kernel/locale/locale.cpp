// Locales: numbers of them, and facts about them. A user's own settings in win.ini come before what the host knows.
#include <windows.h>

#include <unicode/uloc.h>

#include <cstring>
#include <new>
#include <optional>
#include <string>

#include "base/fail.h"
#include "kernel/locale/intl.h"
#include "kernel/locale/locale_values.h"

using namespace platform::kernel;
namespace base = platform::base;

namespace {

constexpr LCID kAmerican = 0x0409;

LCID HostNumber() {
    static const LCID number = [] {
        const LCID found = uloc_getLCID(HostLocales().language.c_str());
        return found ? found : kAmerican;
    }();
    return number;
}

bool IsUsersLocale(LCID locale) {
    return locale == LOCALE_USER_DEFAULT || locale == LOCALE_SYSTEM_DEFAULT || locale == LOCALE_NEUTRAL ||
           locale == HostNumber();
}

// The locale of a number, by the host's name; nothing for a number that means none.
std::optional<LocaleNames> NamesOf(LCID locale) {
    if (IsUsersLocale(locale)) {
        return HostLocales();
    }
    char name[64];
    UErrorCode error = U_ZERO_ERROR;
    const int length = uloc_getLocaleForLCID(locale & 0xFFFF, name, sizeof name, &error);
    if (U_FAILURE(error) || length <= 0 || length >= 64) {
        return std::nullopt;
    }
    return LocaleNames{name, name, name};
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
    const std::optional<LocaleNames> names = NamesOf(locale);
    if (!names || size < 0 || (size > 0 && !buffer)) {
        return base::Fail(ERROR_INVALID_PARAMETER, 0);
    }
    const LCTYPE item = type & ~LCTYPE{LOCALE_NOUSEROVERRIDE | LOCALE_USE_CP_ACP};
    std::optional<std::string> value;
    if (!(type & LOCALE_NOUSEROVERRIDE) && IsUsersLocale(locale)) {
        value = UsersValue(item);
    }
    if (!value) {
        value = LocaleValue(*names, item);
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

}  // namespace

namespace platform::kernel {

LANGID UsersLanguage() {
    return LANGIDFROMLCID(HostNumber());
}

}  // namespace platform::kernel

int WINAPI GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR buffer, int size) {
    try {
        return Find(locale, type, buffer, size);
    } catch (const std::bad_alloc&) {
        return base::Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
    }
}
