#include "controls/timectrl/timetext.h"

#include "controls/timectrl/clockface.h"
#include "cvutil32/timectrl.h"

namespace {

struct Settings {
    WORD mode = TIMECTRL_MODE_NONE;
    BOOL is24Hour = FALSE;
    BOOL leadingZero = FALSE;
    char separator[4] = ":";
    UINT separatorSize = 1;
};

Settings g_settings;
char g_timeTemplate[44];
LPSTR g_loadedTimeTemplate = nullptr;

// Until the settings could be read.
constexpr char kFallbackTemplate[] = "%2d%s%02d%s%02d";

/// Where the parts of the text begin. A digit pair is followed by its separator, the seconds by a space.
struct Layout {
    UINT minute;
    UINT second;
    UINT designator;  ///< the space before it
    UINT end;

    static Layout Of(WORD mode) {
        UINT const part = 2 + g_settings.separatorSize;
        UINT const secondEnd = 2 * part + 2;
        return {part, 2 * part, secondEnd, mode == TIMECTRL_MODE_24H ? secondEnd : secondEnd + 3};
    }
};

bool IsTens(Layout const& layout, UINT position) {
    return position == 0 || position == layout.minute || position == layout.second;
}

void LoadTimeSettings() {
    g_loadedTimeTemplate = g_timeTemplate;
    if (g_settings.mode == TIMECTRL_MODE_NONE) {
        lstrcpyA(g_timeTemplate, kFallbackTemplate);
    }
    char separator[4] = {};
    char clock[2];
    char leadingZero[2];
    if (!GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, separator, sizeof separator) ||
        !GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, clock, sizeof clock) ||
        !GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITLZERO, leadingZero, sizeof leadingZero)) {
        return;
    }
    g_settings.is24Hour = lstrcmpA(clock, "1") == 0;
    g_settings.leadingZero = lstrcmpA(leadingZero, "1") == 0;
    // One character, whole, even if it takes two bytes.
    *CharNextA(separator) = '\0';
    lstrcpyA(g_settings.separator, separator);
    g_settings.separatorSize = static_cast<UINT>(lstrlenA(separator));
    lstrcpyA(g_timeTemplate, g_settings.leadingZero ? "%02d" : "%2d");
    lstrcatA(g_timeTemplate, g_settings.is24Hour ? "%s%02d%s%02d" : "%s%02d%s%02d %s");
    g_settings.mode = g_settings.is24Hour ? TIMECTRL_MODE_24H : TIMECTRL_MODE_12H;
}

WORD* ValueAt(WORD field, SYSTEMTIME& time) {
    switch (field) {
        case TIMECTRL_HOUR:
        case TIMECTRL_AMPM:
            return &time.wHour;
        case TIMECTRL_MINUTE:
            return &time.wMinute;
        case TIMECTRL_SECOND:
            return &time.wSecond;
        default:
            return nullptr;
    }
}

}  // namespace

LPCSTR timectrl_GetIntlFormat(WORD* mode, BOOL reload) {
    if (!mode) {
        return nullptr;
    }
    if (reload || !g_loadedTimeTemplate || g_settings.mode == TIMECTRL_MODE_NONE) {
        LoadTimeSettings();
    }
    *mode = g_settings.mode;
    return g_loadedTimeTemplate;
}

WORD timectrl_CachedMode() {
    return g_settings.mode;
}

BOOL timectrl_Is24Hour() {
    return g_settings.is24Hour;
}

UINT timectrl_TextLength() {
    return Layout::Of(g_settings.mode).end;
}

BOOL timectrl_IsSeparator(UINT position) {
    Layout const layout = Layout::Of(g_settings.mode);
    return (position >= 2 && position < layout.minute) || (position >= layout.minute + 2 && position < layout.second) ||
           position == layout.designator;
}

BOOL timectrl_IsInsideSeparator(UINT position) {
    Layout const layout = Layout::Of(g_settings.mode);
    return (position > 2 && position < layout.minute) || (position > layout.minute + 2 && position < layout.second);
}

BOOL timectrl_FormatTime(const SYSTEMTIME* time, char* buffer, int size) {
    if (!time || !buffer || size <= 0) {
        return FALSE;
    }
    WORD mode;
    LPCSTR const format = timectrl_GetIntlFormat(&mode, FALSE);
    if (!format) {
        return FALSE;
    }
    LPCSTR const separator = g_settings.separator;
    // Wide enough for parts of any value.
    char work[32] = {};
    int written;
    if (mode == TIMECTRL_MODE_12H) {
        bool const afternoon = time->wHour >= 12;
        int const hour = time->wHour % 12;
        written = wsprintfA(work, format, hour == 0 ? 12 : hour, separator, time->wMinute, separator, time->wSecond,
                            afternoon ? "PM" : "AM");
    } else {
        written = wsprintfA(work, format, time->wHour, separator, time->wMinute, separator, time->wSecond);
    }
    return lstrcpynA(buffer, work, size) != nullptr && written > 0;
}

WORD timectrl_FieldAtPosition(WORD mode, UINT position) {
    Layout const layout = Layout::Of(mode);
    if (mode == TIMECTRL_MODE_NONE || position >= layout.end) {
        return 0;
    }
    // A separator belongs to the field behind it.
    return position < 2                   ? TIMECTRL_HOUR
           : position < layout.minute + 2 ? TIMECTRL_MINUTE
           : position < layout.designator ? TIMECTRL_SECOND
                                          : TIMECTRL_AMPM;
}

int timectrl_EnterKey(char key, UINT position, SYSTEMTIME* time) {
    WORD mode;
    if (!timectrl_GetIntlFormat(&mode, FALSE)) {
        return 0;
    }
    WORD const field = timectrl_FieldAtPosition(mode, position);
    WORD* const value = ValueAt(field, *time);
    if (!value) {
        return 0;
    }
    int const digit = key - '0';
    if (digit > 9) {
        if (!g_settings.is24Hour) {
            *value = clockface::WithDesignator(*value, key);
        }
        return 0;
    }
    bool const tens = IsTens(Layout::Of(mode), position);
    if (position < 2 && mode == TIMECTRL_MODE_12H) {
        return clockface::EnterHour(*value, digit, tens);
    }
    *value = static_cast<WORD>(tens ? *value % 10 + 10 * digit : *value / 10 * 10 + digit);
    return 1;
}
