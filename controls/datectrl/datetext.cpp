#include "controls/datectrl/datetext.h"

#include "cvutil32/datectrl.h"

namespace {

// The separators are written into the template in place.
char g_dateTemplate[] = "%02d/%02d/%02d";
constexpr int kFirstSeparator = 4;
constexpr int kSecondSeparator = 9;

WORD g_order = DATECTRL_ORDER_NONE;
LPSTR g_loadedDateTemplate = nullptr;

WORD OrderOf(UINT iDate) {
    switch (iDate) {
        case 0:
            return DATECTRL_ORDER_MDY;
        case 1:
            return DATECTRL_ORDER_DMY;
        case 2:
            return DATECTRL_ORDER_YMD;
        default:
            return DATECTRL_ORDER_NONE;
    }
}

void LoadDateSettings() {
    g_order = OrderOf(GetProfileIntA("Intl", "iDate", DATECTRL_ORDER_NONE));
    char separator[2] = {};
    GetProfileStringA("Intl", "sDate", "/", separator, sizeof separator);
    g_loadedDateTemplate = g_dateTemplate;
    g_dateTemplate[kSecondSeparator] = separator[0];
    g_dateTemplate[kFirstSeparator] = separator[0];
}

WORD* FieldOf(SYSTEMTIME& date, WORD field) {
    switch (field) {
        case DATECTRL_DAY:
            return &date.wDay;
        case DATECTRL_MONTH:
            return &date.wMonth;
        case DATECTRL_YEAR:
            return &date.wYear;
        default:
            return nullptr;
    }
}

/// Two digits of a year stand for one of 1980 to 2079.
WORD FullYear(int year) {
    int const lastTwo = year % 1000 % 100;
    return static_cast<WORD>(lastTwo + (lastTwo < 80 ? 2000 : 1900));
}

}  // namespace

LPCSTR datectrl_GetIntlFormat(WORD* order, BOOL reload) {
    if (!order) {
        return nullptr;
    }
    if (reload || !g_loadedDateTemplate || g_order == DATECTRL_ORDER_NONE) {
        LoadDateSettings();
    }
    *order = g_order;
    return g_loadedDateTemplate;
}

WORD datectrl_CachedOrder() {
    return g_order;
}

BOOL datectrl_FormatDate(const SYSTEMTIME* date, char* buffer, int size) {
    if (!date || !buffer || size <= 0) {
        return FALSE;
    }
    WORD order;
    LPCSTR const format = datectrl_GetIntlFormat(&order, FALSE);
    if (!format) {
        return FALSE;
    }
    int const year = date->wYear % 100;
    // Wide enough for months and days of any value.
    char work[24] = {};
    int written = 0;
    switch (order) {
        case DATECTRL_ORDER_MDY:
            written = wsprintfA(work, format, date->wMonth, date->wDay, year);
            break;
        case DATECTRL_ORDER_DMY:
            written = wsprintfA(work, format, date->wDay, date->wMonth, year);
            break;
        case DATECTRL_ORDER_YMD:
            written = wsprintfA(work, format, year, date->wMonth, date->wDay);
            break;
        default:
            return FALSE;
    }
    return lstrcpynA(buffer, work, size) != nullptr && written > 0;
}

WORD datectrl_FieldAtPosition(WORD order, UINT position) {
    static constexpr WORD kFields[][3] = {
        {DATECTRL_MONTH, DATECTRL_DAY, DATECTRL_YEAR},
        {DATECTRL_DAY, DATECTRL_MONTH, DATECTRL_YEAR},
        {DATECTRL_YEAR, DATECTRL_MONTH, DATECTRL_DAY},
    };
    if (order < DATECTRL_ORDER_MDY || order > DATECTRL_ORDER_YMD || position >= kDateTextLength) {
        return 0;
    }
    return kFields[order - DATECTRL_ORDER_MDY][position < 2 ? 0 : position < 5 ? 1 : 2];
}

void datectrl_EnterDigit(char digit, UINT position, SYSTEMTIME* date) {
    WORD order;
    if (!datectrl_GetIntlFormat(&order, FALSE)) {
        return;
    }
    WORD const field = datectrl_FieldAtPosition(order, position);
    WORD* const value = FieldOf(*date, field);
    if (!value) {
        return;
    }
    bool const tens = position % 3 == 0;
    int const entered = digit - '0';
    int const replaced = tens ? *value % 10 + 10 * entered : *value / 10 * 10 + entered;
    *value = field == DATECTRL_YEAR ? FullYear(replaced) : static_cast<WORD>(replaced);
}
