#include "controls/datectrl/datevalue.h"

namespace {

constexpr WORD kMonths = 12;
constexpr WORD kFebruary = 2;
constexpr WORD kDaysPerMonth[kMonths + 1] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Brings @p value down to @p maximum. @return whether it became a single digit.
bool Lower(WORD& value, WORD maximum) {
    if (value <= maximum) {
        return false;
    }
    bool const single = (value - maximum) / 10 != 0;
    value = single ? static_cast<WORD>(value / 10) : maximum;
    return single;
}

}  // namespace

BOOL datectrl_IsLeapYear(WORD year) {
    if (year % 400 == 0) {
        return TRUE;
    }
    return (year & 3) == 0 && year % 100 != 0;
}

WORD datectrl_DaysInMonth(WORD month, WORD year) {
    if (month > kMonths) {
        return 0;
    }
    return month == kFebruary && datectrl_IsLeapYear(year) ? 29 : kDaysPerMonth[month];
}

BOOL datectrl_IsValid(SYSTEMTIME const& date) {
    return date.wDay != 0 && date.wDay <= datectrl_DaysInMonth(date.wMonth, date.wYear);
}

BOOL datectrl_FixDate(SYSTEMTIME* date, BOOL* changed) {
    bool const singleMonth = Lower(date->wMonth, kMonths);
    bool const singleDay = Lower(date->wDay, datectrl_DaysInMonth(date->wMonth, date->wYear));
    if (changed) {
        *changed = singleMonth || singleDay;
    }
    return datectrl_IsValid(*date);
}
