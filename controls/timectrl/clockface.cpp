#include "controls/timectrl/clockface.h"

namespace clockface {

namespace {

/// An hour as the clock shows it, and what typing has made of it.
struct Shown {
    int hour;
    int advance;
};

Shown EnterTens(int hour, int digit) {
    int const units = hour % 10;
    switch (digit) {
        case 0:
            // From 10 there is no 00 to go to: the hour becomes 1, and nothing is left to type in it.
            return units != 0 ? Shown{units, 1} : Shown{1, 2};
        case 1:
            return {units < 3 ? 10 + units : 10, 1};
        default:
            return {digit, 2};
    }
}

Shown EnterUnits(int hour, int digit) {
    if (hour >= 10) {
        return digit < 3 ? Shown{10 + digit, 1} : Shown{hour, 0};
    }
    return digit > 0 ? Shown{digit, 1} : Shown{hour, 0};
}

}  // namespace

WORD WithDesignator(WORD hour, char letter) {
    bool const morning = letter == 'A' || letter == 'a';
    if (morning && hour > 11) {
        return static_cast<WORD>(hour - 12);
    }
    if (!morning && hour < 12) {
        return static_cast<WORD>(hour + 12);
    }
    return hour;
}

int EnterHour(WORD& hour, int digit, bool tens) {
    bool const afternoon = hour >= 12;
    int const value = afternoon ? hour - 12 : hour;
    int const shown = value == 0 ? 12 : value;
    Shown const entered = tens ? EnterTens(shown, digit) : EnterUnits(shown, digit);
    int const kept = entered.hour == 12 ? 0 : entered.hour;
    hour = static_cast<WORD>(afternoon ? kept + 12 : kept);
    return entered.advance;
}

}  // namespace clockface
