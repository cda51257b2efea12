#include "kernel/locale/locale_values.h"

#include <unicode/udat.h>
#include <unicode/unum.h>

#include <cstdlib>
#include <memory>

#include "kernel/text/encoding.h"
#include "kernel/locale/locale_patterns.h"

namespace platform::kernel {
namespace {

struct Item {
    LCTYPE type;
    const char* value;
};

// American English is what users without a locale get: its plain answers need no locale data to be loaded.
constexpr Item kAmerican[] = {
    {LOCALE_STHOUSAND, ","},
    {LOCALE_SSHORTDATE, "M/d/yy"},
    {LOCALE_STIMEFORMAT, "h:mm:ss tt"},
};

using DateFormat = std::unique_ptr<UDateFormat, decltype(&udat_close)>;
using NumberFormat = std::unique_ptr<UNumberFormat, decltype(&unum_close)>;

// Runs one of ICU's calls that fill a buffer. Spaces that only typesetting tells apart become plain ones.
template <class Call>
std::u16string Ask(Call call) {
    UChar text[256];
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t length = call(text, 256, &error);
    if (U_FAILURE(error) || length < 0 || length > 256) {
        return {};
    }
    std::u16string result(text, static_cast<std::size_t>(length));
    for (char16_t& character : result) {
        character = character == 0xA0 || character == 0x202F || character == 0x2009 ? u' ' : character;
    }
    // Marks of direction are not for programs of the ANSI kind.
    std::erase_if(result, [](char16_t c) { return c == 0x200E || c == 0x200F || c == 0x61C; });
    return result;
}

std::string EnvironmentLocale(const char* category) {
    for (const char* name : {"LC_ALL", category, "LANG"}) {
        const char* value = std::getenv(name);
        if (value && *value) {
            std::string locale(value);
            locale = locale.substr(0, locale.find_first_of(".@"));
            return locale == "C" || locale == "POSIX" ? "en_US" : locale;
        }
    }
    return "en_US";
}

/// The host's locales, which may differ by subject.
struct LocaleNames {
    std::string language = EnvironmentLocale("LC_MESSAGES");
    std::string time = EnvironmentLocale("LC_TIME");
    std::string numbers = EnvironmentLocale("LC_NUMERIC");
};

const LocaleNames& HostLocales() {
    static const auto& names = *new LocaleNames;
    return names;
}

std::string Pattern(UDateFormatStyle time, UDateFormatStyle date) {
    UErrorCode opened = U_ZERO_ERROR;
    const DateFormat format{udat_open(time, date, HostLocales().time.c_str(), nullptr, 0, nullptr, 0, &opened),
                            udat_close};
    return AnsiFromWide(WindowsPattern(Ask([&](UChar* text, int size, UErrorCode* error) {
        return udat_toPattern(format.get(), false, text, size, error);
    })));
}

std::string ThousandsSeparator() {
    UErrorCode opened = U_ZERO_ERROR;
    const NumberFormat format{unum_open(UNUM_DECIMAL, nullptr, 0, HostLocales().numbers.c_str(), nullptr, &opened),
                              unum_close};
    return AnsiFromWide(Ask([&](UChar* text, int size, UErrorCode* error) {
        return unum_getSymbol(format.get(), UNUM_GROUPING_SEPARATOR_SYMBOL, text, size, error);
    }));
}

}  // namespace

const std::string& HostLanguage() {
    return HostLocales().language;
}

std::optional<std::string> LocaleValue(LCTYPE type) {
    if (HostLocales().time == "en_US" && HostLocales().numbers == "en_US") {
        for (const Item& item : kAmerican) {
            if (item.type == type) {
                return item.value;
            }
        }
    }
    const auto pattern = [](LCTYPE which) { return LocaleValue(which).value_or(std::string()); };
    switch (type) {
        case LOCALE_STHOUSAND:
            return ThousandsSeparator();
        case LOCALE_SSHORTDATE:
            return Pattern(UDAT_NONE, UDAT_SHORT);
        case LOCALE_STIMEFORMAT:
            return Pattern(UDAT_MEDIUM, UDAT_NONE);
        case LOCALE_SDATE:
            return PatternSeparator(pattern(LOCALE_SSHORTDATE), "/");
        case LOCALE_STIME:
            return PatternSeparator(pattern(LOCALE_STIMEFORMAT), ":");
        case LOCALE_IDATE:
            return DateOrder(pattern(LOCALE_SSHORTDATE));
        case LOCALE_ITIME:
            return Holds(pattern(LOCALE_STIMEFORMAT), "H");
        case LOCALE_ITLZERO:
            return Holds(pattern(LOCALE_STIMEFORMAT), "HH") == "1" ? "1" : Holds(pattern(LOCALE_STIMEFORMAT), "hh");
        default:
            return std::nullopt;
    }
}

}  // namespace platform::kernel
