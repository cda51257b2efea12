// The exported functions on date values.
#include "cvutil32/datectrl.h"

#include "controls/datectrl/datevalue.h"

namespace {

constexpr WORD kDecember = 12;

bool IsDateField(WORD field) {
    return field == DATECTRL_DAY || field == DATECTRL_MONTH || field == DATECTRL_YEAR;
}

int CompareDatePart(WORD a, WORD b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

}  // namespace

CVAPI(BOOL) DATECTRL_IsValidDate(const SYSTEMTIME* date) {
    return date && datectrl_IsValid(*date);
}

CVAPI(int) DATECTRL_CompareDate(const SYSTEMTIME* a, const SYSTEMTIME* b) {
    if (!DATECTRL_IsValidDate(a) || !DATECTRL_IsValidDate(b)) {
        return 0;
    }
    if (int const year = CompareDatePart(a->wYear, b->wYear)) {
        return year;
    }
    if (int const month = CompareDatePart(a->wMonth, b->wMonth)) {
        return month;
    }
    return CompareDatePart(a->wDay, b->wDay);
}

// Deliberately without a repair of the day: a month up from 31 January is 31 February. Callers tell from the invalid
// record that the step left the calendar.
CVAPI(BOOL) DATECTRL_IncrementDate(SYSTEMTIME* date, WORD field) {
    if (!DATECTRL_IsValidDate(date) || !IsDateField(field)) {
        return FALSE;
    }
    bool monthStep = field == DATECTRL_MONTH;
    bool yearStep = field == DATECTRL_YEAR;
    if (field == DATECTRL_DAY && ++date->wDay > datectrl_DaysInMonth(date->wMonth, date->wYear)) {
        date->wDay = 1;
        monthStep = true;
    }
    if (monthStep && ++date->wMonth > kDecember) {
        date->wMonth = 1;
        yearStep = true;
    }
    if (yearStep) {
        ++date->wYear;
    }
    return TRUE;
}

CVAPI(BOOL) DATECTRL_DecrementDate(SYSTEMTIME* date, WORD field) {
    if (!DATECTRL_IsValidDate(date) || !IsDateField(field)) {
        return FALSE;
    }
    bool yearStep = field == DATECTRL_YEAR;
    bool const monthStep = field == DATECTRL_MONTH || (field == DATECTRL_DAY && --date->wDay == 0);
    if (monthStep) {
        if (--date->wMonth == 0) {
            date->wMonth = kDecember;
            yearStep = true;
        }
        // The year has not changed yet; it matters to February only, which a change of year never lands on.
        WORD const days = datectrl_DaysInMonth(date->wMonth, date->wYear);
        if (date->wDay == 0 || date->wDay > days) {
            date->wDay = days;
        }
    }
    if (yearStep) {
        --date->wYear;
        // Looks at the day alone, so the 29th of any month becomes the 28th; callers rely on it.
        if (date->wDay == 29 && !datectrl_IsLeapYear(date->wYear)) {
            date->wDay = 28;
        }
    }
    return TRUE;
}
