#include "kernel/intl.h"

#include <unicode/udat.h>
#include <unicode/uloc.h>
#include <unicode/unum.h>
#include <windows.h>

#include <cstdlib>
#include <map>

#include "kernel/codepage.h"

namespace platform::kernel {
namespace {

using Values = std::map<std::string, std::string>;

// The locale by the usual variables; "C" and "POSIX" are American English, as is anything unknown.
std::string HostLocale(const char* category) {
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

std::string Narrow(const UChar* text, int length) {
    char narrow[64];
    const int size =
        WideCharToMultiByte(CP_ACP, 0, text, length, narrow, sizeof narrow, "?", nullptr);
    return {narrow, static_cast<std::size_t>(size)};
}

std::string Pattern(UDateFormatStyle time, UDateFormatStyle date, const char* locale) {
    UErrorCode error = U_ZERO_ERROR;
    UDateFormat* format = udat_open(time, date, locale, nullptr, 0, nullptr, 0, &error);
    if (U_FAILURE(error)) {
        return {};
    }
    UChar pattern[128];
    const int length = udat_toPattern(format, false, pattern, 128, &error);
    udat_close(format);
    return U_SUCCESS(error) ? Narrow(pattern, length) : std::string();
}

std::string DayHalf(int half, const char* locale) {
    UErrorCode error = U_ZERO_ERROR;
    UDateFormat* format = udat_open(UDAT_SHORT, UDAT_NONE, locale, nullptr, 0, nullptr, 0, &error);
    UChar text[32];
    const int length = udat_getSymbols(format, UDAT_AM_PMS, half, text, 32, &error);
    udat_close(format);
    return U_SUCCESS(error) ? Narrow(text, length) : std::string(half ? "PM" : "AM");
}

std::string Symbol(UNumberFormatSymbol which, const char* locale) {
    UErrorCode error = U_ZERO_ERROR;
    UNumberFormat* format = unum_open(UNUM_DECIMAL, nullptr, 0, locale, nullptr, &error);
    UChar text[16];
    const int length = unum_getSymbol(format, which, text, 16, &error);
    unum_close(format);
    // Narrow and unbreakable spaces, which most locales group with, are a plain space to programs of the ANSI kind.
    const bool space = length == 1 && (text[0] == 0xA0 || text[0] == 0x202F || text[0] == 0x2009);
    return U_FAILURE(error) ? std::string() : space ? " " : Narrow(text, length);
}

// The first character of a pattern that is neither a letter nor quoted.
std::string Separator(const std::string& pattern, const char* otherwise) {
    for (const char character : pattern) {
        if (!IsCharAlphaNumericA(character) && character != ' ' && character != '\'') {
            return {character};
        }
    }
    return otherwise;
}

Values Read() {
    const std::string timeLocale = HostLocale("LC_TIME");
    const std::string numberLocale = HostLocale("LC_NUMERIC");
    Values values{{"idate", "0"}, {"sdate", "/"}, {"itime", "0"}, {"stime", ":"}, {"itlzero", "0"},
                  {"s1159", "AM"}, {"s2359", "PM"}, {"sthousand", ","}, {"sdecimal", "."}, {"slist", ","}};
    if (timeLocale != "en_US") {
        const std::string date = Pattern(UDAT_NONE, UDAT_SHORT, timeLocale.c_str());
        const std::size_t day = date.find('d');
        const std::size_t month = date.find_first_of("ML");
        const std::size_t year = date.find_first_of("yu");
        if (day != std::string::npos && month != std::string::npos && year != std::string::npos) {
            values["idate"] = year < month ? "2" : day < month ? "1" : "0";
            values["sdate"] = Separator(date, "/");
        }
        const std::string time = Pattern(UDAT_SHORT, UDAT_NONE, timeLocale.c_str());
        values["itime"] = time.find('H') != std::string::npos ? "1" : "0";
        values["itlzero"] = time.find("HH") != std::string::npos || time.find("hh") != std::string::npos ? "1" : "0";
        values["stime"] = Separator(time, ":");
        values["s1159"] = DayHalf(0, timeLocale.c_str());
        values["s2359"] = DayHalf(1, timeLocale.c_str());
    }
    if (numberLocale != "en_US") {
        values["sthousand"] = Symbol(UNUM_GROUPING_SEPARATOR_SYMBOL, numberLocale.c_str());
        values["sdecimal"] = Symbol(UNUM_DECIMAL_SEPARATOR_SYMBOL, numberLocale.c_str());
    }
    return values;
}

}  // namespace

const std::string* HostIntlValue(const std::string& key) {
    static const Values& values = *new Values(Read());
    std::string lower(key);
    CharLowerBuffA(lower.data(), static_cast<DWORD>(lower.size()));
    const auto found = values.find(lower);
    return found == values.end() ? nullptr : &found->second;
}

}  // namespace platform::kernel
