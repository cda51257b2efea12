#include "kernel/locale/locale_values.h"

#include <unicode/udat.h>
#include <unicode/uloc.h>
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
    {LOCALE_SDECIMAL, "."},
    {LOCALE_STHOUSAND, ","},
    {LOCALE_SSHORTDATE, "M/d/yy"},
    {LOCALE_SLONGDATE, "dddd, MMMM dd, yyyy"},
    {LOCALE_STIMEFORMAT, "h:mm:ss tt"},
    {LOCALE_S1159, "AM"},
    {LOCALE_S2359, "PM"},
};

using DateFormat = std::unique_ptr<UDateFormat, decltype(&udat_close)>;
using NumberFormat = std::unique_ptr<UNumberFormat, decltype(&unum_close)>;

DateFormat OpenDate(UDateFormatStyle time, UDateFormatStyle date, const std::string& locale) {
    UErrorCode error = U_ZERO_ERROR;
    return {udat_open(time, date, locale.c_str(), nullptr, 0, nullptr, 0, &error), udat_close};
}

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

std::string Pattern(UDateFormatStyle time, UDateFormatStyle date, const std::string& locale) {
    const DateFormat format = OpenDate(time, date, locale);
    return AnsiFromWide(WindowsPattern(Ask([&](UChar* text, int size, UErrorCode* error) {
        return udat_toPattern(format.get(), false, text, size, error);
    })));
}

std::string DayHalf(int index, const std::string& locale) {
    const DateFormat format = OpenDate(UDAT_SHORT, UDAT_SHORT, locale);
    return AnsiFromWide(Ask([&](UChar* text, int size, UErrorCode* error) {
        return udat_getSymbols(format.get(), UDAT_AM_PMS, index, text, size, error);
    }));
}

std::string NumberSymbol(UNumberFormatSymbol symbol, const std::string& locale) {
    UErrorCode opened = U_ZERO_ERROR;
    const NumberFormat format{unum_open(UNUM_DECIMAL, nullptr, 0, locale.c_str(), nullptr, &opened), unum_close};
    return AnsiFromWide(Ask([&](UChar* text, int size, UErrorCode* error) {
        return unum_getSymbol(format.get(), symbol, text, size, error);
    }));
}

std::string LanguageNumber(const std::string& locale) {
    char text[16];
    wsprintfA(text, "%04x", uloc_getLCID(locale.c_str()) & 0xFFFF);
    return text;
}

std::optional<std::string> HostValue(const LocaleNames& names, LCTYPE type) {
    const auto pattern = [&](LCTYPE which) { return LocaleValue(names, which).value_or(std::string()); };
    switch (type) {
        case LOCALE_ILANGUAGE:
            return LanguageNumber(names.language);
        case LOCALE_SDECIMAL:
            return NumberSymbol(UNUM_DECIMAL_SEPARATOR_SYMBOL, names.numbers);
        case LOCALE_STHOUSAND:
            return NumberSymbol(UNUM_GROUPING_SEPARATOR_SYMBOL, names.numbers);
        case LOCALE_SSHORTDATE:
            return Pattern(UDAT_NONE, UDAT_SHORT, names.time);
        case LOCALE_SLONGDATE:
            return Pattern(UDAT_NONE, UDAT_FULL, names.time);
        case LOCALE_STIMEFORMAT:
            return Pattern(UDAT_MEDIUM, UDAT_NONE, names.time);
        case LOCALE_S1159:
        case LOCALE_S2359:
            return DayHalf(type == LOCALE_S2359, names.time);
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

}  // namespace

const LocaleNames& HostLocales() {
    static const auto& names = *new LocaleNames{EnvironmentLocale("LC_MESSAGES"), EnvironmentLocale("LC_TIME"),
                                                EnvironmentLocale("LC_NUMERIC")};
    return names;
}

std::optional<std::string> LocaleValue(const LocaleNames& names, LCTYPE type) {
    if (names.time == "en_US" && names.numbers == "en_US") {
        for (const Item& item : kAmerican) {
            if (item.type == type) {
                return item.value;
            }
        }
    }
    return HostValue(names, type);
}

}  // namespace platform::kernel
