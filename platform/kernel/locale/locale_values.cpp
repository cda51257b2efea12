#include "kernel/locale/locale_values.h"

#include <unicode/ucal.h>
#include <unicode/udat.h>
#include <unicode/uloc.h>
#include <unicode/ulocdata.h>
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
    {LOCALE_SLIST, ","},
    {LOCALE_IMEASURE, "1"},
    {LOCALE_SDECIMAL, "."},
    {LOCALE_STHOUSAND, ","},
    {LOCALE_SGROUPING, "3;0"},
    {LOCALE_SCURRENCY, "$"},
    {LOCALE_SINTLSYMBOL, "USD"},
    {LOCALE_SMONDECIMALSEP, "."},
    {LOCALE_SMONTHOUSANDSEP, ","},
    {LOCALE_SMONGROUPING, "3;0"},
    {LOCALE_ICURRDIGITS, "2"},
    {LOCALE_IINTLCURRDIGITS, "2"},
    {LOCALE_ICURRENCY, "0"},
    {LOCALE_INEGCURR, "0"},
    {LOCALE_SSHORTDATE, "M/d/yy"},
    {LOCALE_SLONGDATE, "dddd, MMMM dd, yyyy"},
    {LOCALE_STIMEFORMAT, "h:mm:ss tt"},
    {LOCALE_S1159, "AM"},
    {LOCALE_S2359, "PM"},
    {LOCALE_IFIRSTDAYOFWEEK, "6"},
};

// Common to all locales.
constexpr Item kAlways[] = {
    {LOCALE_IDIGITS, "2"},
    {LOCALE_ILZERO, "1"},
    {LOCALE_SPOSITIVESIGN, ""},
    {LOCALE_INEGNUMBER, "1"},
};

template <std::size_t Count>
const char* Constant(const Item (&items)[Count], LCTYPE type) {
    for (const Item& item : items) {
        if (item.type == type) {
            return item.value;
        }
    }
    return nullptr;
}

using DateFormat = std::unique_ptr<UDateFormat, decltype(&udat_close)>;
using NumberFormat = std::unique_ptr<UNumberFormat, decltype(&unum_close)>;

DateFormat OpenDate(UDateFormatStyle time, UDateFormatStyle date, const std::string& locale) {
    UErrorCode error = U_ZERO_ERROR;
    return {udat_open(time, date, locale.c_str(), nullptr, 0, nullptr, 0, &error), udat_close};
}

NumberFormat OpenNumber(UNumberFormatStyle style, const std::string& locale) {
    UErrorCode error = U_ZERO_ERROR;
    return {unum_open(style, nullptr, 0, locale.c_str(), nullptr, &error), unum_close};
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

std::string DateSymbol(UDateFormatSymbolType kind, int index, const std::string& locale) {
    const DateFormat format = OpenDate(UDAT_SHORT, UDAT_SHORT, locale);
    return AnsiFromWide(Ask([&](UChar* text, int size, UErrorCode* error) {
        return udat_getSymbols(format.get(), kind, index, text, size, error);
    }));
}

std::string NumberSymbol(UNumberFormatStyle style, UNumberFormatSymbol symbol, const std::string& locale) {
    const NumberFormat format = OpenNumber(style, locale);
    return AnsiFromWide(Ask([&](UChar* text, int size, UErrorCode* error) {
        return unum_getSymbol(format.get(), symbol, text, size, error);
    }));
}

std::string Grouping(UNumberFormatStyle style, const std::string& locale) {
    const NumberFormat format = OpenNumber(style, locale);
    const int first = format ? unum_getAttribute(format.get(), UNUM_GROUPING_SIZE) : 3;
    const int second = format ? unum_getAttribute(format.get(), UNUM_SECONDARY_GROUPING_SIZE) : 0;
    if (first <= 0) {
        return "0";
    }
    return std::to_string(first) + (second > 0 && second != first ? ";" + std::to_string(second) : "") + ";0";
}

// 0 before, 1 behind, 2 before with a blank, 3 behind with a blank.
int CurrencyPlace(const std::string& locale) {
    const NumberFormat format = OpenNumber(UNUM_CURRENCY, locale);
    const std::u16string pattern = Ask([&](UChar* text, int size, UErrorCode* error) {
        return unum_toPattern(format.get(), false, text, size, error);
    });
    const std::size_t sign = pattern.find(u'\u00A4');
    const std::size_t digits = pattern.find_first_of(u"#0");
    const bool blank = pattern.substr(0, pattern.find(u';')).find(u' ') != std::u16string::npos;
    const bool behind = sign != std::u16string::npos && digits != std::u16string::npos && sign > digits;
    return (behind ? 1 : 0) + (blank ? 2 : 0);
}

std::string CurrencyDigits(const std::string& locale) {
    const NumberFormat format = OpenNumber(UNUM_CURRENCY, locale);
    return std::to_string(format ? unum_getAttribute(format.get(), UNUM_FRACTION_DIGITS) : 2);
}

// Monday is 0.
std::string FirstDayOfWeek(const std::string& locale) {
    UErrorCode error = U_ZERO_ERROR;
    UCalendar* calendar = ucal_open(nullptr, 0, locale.c_str(), UCAL_DEFAULT, &error);
    const int day = U_SUCCESS(error) ? ucal_getAttribute(calendar, UCAL_FIRST_DAY_OF_WEEK) : UCAL_SUNDAY;
    ucal_close(calendar);
    return std::to_string((day + 5) % 7);
}

std::string Measure(const std::string& locale) {
    UErrorCode error = U_ZERO_ERROR;
    return ulocdata_getMeasurementSystem(locale.c_str(), &error) == UMS_US ? "1" : "0";
}

template <class Display>
std::string DisplayName(Display display, const std::string& locale, const std::string& in) {
    return AnsiFromWide(Ask([&](UChar* text, int size, UErrorCode* error) {
        return display(locale.c_str(), in.c_str(), text, size, error);
    }));
}

template <class Part>
std::string Code(Part part, const std::string& locale) {
    char code[16];
    UErrorCode error = U_ZERO_ERROR;
    const int length = part(locale.c_str(), code, sizeof code, &error);
    return U_SUCCESS(error) && length > 0 && length < 16 ? std::string(code) : std::string();
}

std::string LanguageNumber(const std::string& locale) {
    char text[16];
    wsprintfA(text, "%04x", uloc_getLCID(locale.c_str()) & 0xFFFF);
    return text;
}

std::optional<std::string> LanguageValue(const std::string& locale, LCTYPE type) {
    switch (type) {
        case LOCALE_ILANGUAGE:
        case LOCALE_IDEFAULTLANGUAGE:
            return LanguageNumber(locale);
        case LOCALE_SLANGUAGE:
            return DisplayName(uloc_getDisplayName, locale, locale);
        case LOCALE_SENGLANGUAGE:
            return DisplayName(uloc_getDisplayLanguage, locale, "en");
        case LOCALE_SNATIVELANGNAME:
            return DisplayName(uloc_getDisplayLanguage, locale, locale);
        case LOCALE_SCOUNTRY:
        case LOCALE_SNATIVECTRYNAME:
            return DisplayName(uloc_getDisplayCountry, locale, locale);
        case LOCALE_SENGCOUNTRY:
            return DisplayName(uloc_getDisplayCountry, locale, "en");
        case LOCALE_SISO639LANGNAME:
            return Code(uloc_getLanguage, locale);
        case LOCALE_SISO3166CTRYNAME:
            return Code(uloc_getCountry, locale);
        case LOCALE_IDEFAULTCODEPAGE:
            return std::to_string(GetOEMCP());
        case LOCALE_IDEFAULTANSICODEPAGE:
            return std::to_string(GetACP());
        default:
            return std::nullopt;
    }
}

std::optional<std::string> NumberValue(const LocaleNames& names, LCTYPE type) {
    switch (type) {
        case LOCALE_SDECIMAL:
            return NumberSymbol(UNUM_DECIMAL, UNUM_DECIMAL_SEPARATOR_SYMBOL, names.numbers);
        case LOCALE_STHOUSAND:
            return NumberSymbol(UNUM_DECIMAL, UNUM_GROUPING_SEPARATOR_SYMBOL, names.numbers);
        case LOCALE_SNEGATIVESIGN:
            return "-";
        case LOCALE_SGROUPING:
            return Grouping(UNUM_DECIMAL, names.numbers);
        case LOCALE_SLIST:
            // A list is divided by what does not divide a number.
            return LocaleValue(names, LOCALE_SDECIMAL) == "," ? ";" : ",";
        case LOCALE_IMEASURE:
            return Measure(names.numbers);
        case LOCALE_SCURRENCY:
            return NumberSymbol(UNUM_CURRENCY, UNUM_CURRENCY_SYMBOL, names.money);
        case LOCALE_SINTLSYMBOL:
            return NumberSymbol(UNUM_CURRENCY, UNUM_INTL_CURRENCY_SYMBOL, names.money);
        case LOCALE_SMONDECIMALSEP:
            return NumberSymbol(UNUM_CURRENCY, UNUM_MONETARY_SEPARATOR_SYMBOL, names.money);
        case LOCALE_SMONTHOUSANDSEP:
            return NumberSymbol(UNUM_CURRENCY, UNUM_MONETARY_GROUPING_SEPARATOR_SYMBOL, names.money);
        case LOCALE_SMONGROUPING:
            return Grouping(UNUM_CURRENCY, names.money);
        case LOCALE_ICURRDIGITS:
        case LOCALE_IINTLCURRDIGITS:
            return CurrencyDigits(names.money);
        case LOCALE_ICURRENCY:
            return std::to_string(CurrencyPlace(names.money));
        case LOCALE_INEGCURR:
            // The minus sign stands in front of all, for each of the four places.
            return std::string(1, "1598"[CurrencyPlace(names.money)]);
        default:
            return std::nullopt;
    }
}

std::optional<std::string> TimeValue(const LocaleNames& names, LCTYPE type) {
    const auto pattern = [&](LCTYPE which) { return LocaleValue(names, which).value_or(std::string()); };
    switch (type) {
        case LOCALE_SSHORTDATE:
            return Pattern(UDAT_NONE, UDAT_SHORT, names.time);
        case LOCALE_SLONGDATE:
            return Pattern(UDAT_NONE, UDAT_FULL, names.time);
        case LOCALE_STIMEFORMAT:
            return Pattern(UDAT_MEDIUM, UDAT_NONE, names.time);
        case LOCALE_S1159:
        case LOCALE_S2359:
            return DateSymbol(UDAT_AM_PMS, type == LOCALE_S2359, names.time);
        case LOCALE_IFIRSTDAYOFWEEK:
            return FirstDayOfWeek(names.time);
        case LOCALE_SDATE:
            return PatternSeparator(pattern(LOCALE_SSHORTDATE), "/");
        case LOCALE_STIME:
            return PatternSeparator(pattern(LOCALE_STIMEFORMAT), ":");
        case LOCALE_IDATE:
            return DateOrder(pattern(LOCALE_SSHORTDATE));
        case LOCALE_ILDATE:
            return DateOrder(pattern(LOCALE_SLONGDATE));
        case LOCALE_ICENTURY:
            return Holds(pattern(LOCALE_SSHORTDATE), "yyyy");
        case LOCALE_IDAYLZERO:
            return Holds(pattern(LOCALE_SSHORTDATE), "dd");
        case LOCALE_IMONLZERO:
            return Holds(pattern(LOCALE_SSHORTDATE), "MM");
        case LOCALE_ITIME:
            return Holds(pattern(LOCALE_STIMEFORMAT), "H");
        case LOCALE_ITLZERO:
            return Holds(pattern(LOCALE_STIMEFORMAT), "HH") == "1" ? "1" : Holds(pattern(LOCALE_STIMEFORMAT), "hh");
        case LOCALE_ITIMEMARKPOSN:
            return pattern(LOCALE_STIMEFORMAT).starts_with('t') ? "1" : "0";
        default:
            break;
    }
    // ICU counts days from Sunday as 1, and months from 0.
    if (type >= LOCALE_SDAYNAME1 && type <= LOCALE_SDAYNAME7) {
        return DateSymbol(UDAT_STANDALONE_WEEKDAYS, static_cast<int>(type - LOCALE_SDAYNAME1 + 1) % 7 + 1, names.time);
    }
    if (type >= LOCALE_SABBREVDAYNAME1 && type <= LOCALE_SABBREVDAYNAME7) {
        return DateSymbol(UDAT_STANDALONE_SHORT_WEEKDAYS, static_cast<int>(type - LOCALE_SABBREVDAYNAME1 + 1) % 7 + 1,
                          names.time);
    }
    if (type >= LOCALE_SMONTHNAME1 && type <= LOCALE_SMONTHNAME12) {
        return DateSymbol(UDAT_STANDALONE_MONTHS, static_cast<int>(type - LOCALE_SMONTHNAME1), names.time);
    }
    if (type >= LOCALE_SABBREVMONTHNAME1 && type <= LOCALE_SABBREVMONTHNAME12) {
        return DateSymbol(UDAT_STANDALONE_SHORT_MONTHS, static_cast<int>(type - LOCALE_SABBREVMONTHNAME1), names.time);
    }
    return std::nullopt;
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
                                                EnvironmentLocale("LC_NUMERIC"), EnvironmentLocale("LC_MONETARY")};
    return names;
}

std::optional<std::string> LocaleValue(const LocaleNames& names, LCTYPE type) {
    if (const char* value = Constant(kAlways, type)) {
        return value;
    }
    if (auto value = LanguageValue(names.language, type)) {
        return value;
    }
    if (names.time == "en_US" && names.numbers == "en_US" && names.money == "en_US") {
        if (const char* value = Constant(kAmerican, type)) {
            return value;
        }
    }
    if (auto value = NumberValue(names, type)) {
        return value;
    }
    return TimeValue(names, type);
}

}  // namespace platform::kernel
