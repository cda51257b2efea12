// The exported functions on time values.
#include "cvutil32/timectrl.h"

#include "controls/timectrl/timetext.h"

namespace {

constexpr WORD kHours = 24;
constexpr WORD kMinutes = 60;
constexpr WORD kNoon = 12;

bool IsTimeField(WORD field) {
    return field >= TIMECTRL_MINUTE && field <= TIMECTRL_AMPM;
}

int CompareTimePart(WORD a, WORD b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

/// @return whether the value has begun anew, so that the next larger one steps too.
bool StepUp(WORD& value, WORD count) {
    value = static_cast<WORD>(value + 1 < count ? value + 1 : 0);
    return value == 0;
}

bool StepDown(WORD& value, WORD count) {
    bool const begins = value == 0;
    value = static_cast<WORD>(begins ? count - 1 : value - 1);
    return begins;
}

/// Seconds carry into minutes and minutes into hours; hours carry nowhere.
BOOL Step(SYSTEMTIME* time, WORD field, bool (*step)(WORD& value, WORD count)) {
    if (!TIMECTRL_IsValidTime(time) || !IsTimeField(field)) {
        return FALSE;
    }
    bool const minuteStep = field == TIMECTRL_MINUTE || (field == TIMECTRL_SECOND && step(time->wSecond, kMinutes));
    bool const hourStep = field == TIMECTRL_HOUR || (minuteStep && step(time->wMinute, kMinutes));
    if (hourStep) {
        step(time->wHour, kHours);
    }
    if (field == TIMECTRL_AMPM && !timectrl_Is24Hour()) {
        time->wHour = static_cast<WORD>(time->wHour >= kNoon ? time->wHour - kNoon : time->wHour + kNoon);
    }
    return TRUE;
}

}  // namespace

CVAPI(BOOL) TIMECTRL_IsValidTime(const SYSTEMTIME* time) {
    return time && time->wHour < kHours && time->wMinute < kMinutes && time->wSecond < kMinutes;
}

// Seconds decide before minutes and hours; callers rely on it.
CVAPI(int) TIMECTRL_CompareTime(const SYSTEMTIME* a, const SYSTEMTIME* b) {
    if (!TIMECTRL_IsValidTime(a) || !TIMECTRL_IsValidTime(b)) {
        return 0;
    }
    if (int const second = CompareTimePart(a->wSecond, b->wSecond)) {
        return second;
    }
    if (int const minute = CompareTimePart(a->wMinute, b->wMinute)) {
        return minute;
    }
    return CompareTimePart(a->wHour, b->wHour);
}

CVAPI(BOOL) TIMECTRL_IncrementTime(SYSTEMTIME* time, WORD field) {
    return Step(time, field, StepUp);
}

CVAPI(BOOL) TIMECTRL_DecrementTime(SYSTEMTIME* time, WORD field) {
    return Step(time, field, StepDown);
}
