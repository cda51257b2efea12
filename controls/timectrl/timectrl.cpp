// The time field: the field editor with the rules of times.
#include "cvutil32/timectrl.h"

#include "controls/fieldedit/editor.h"
#include "controls/timectrl/timetext.h"

static_assert(kMaxTimeTextSize <= fieldedit::kMaxTextSize);

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsDesignatorLetter(char character) {
    return character == 'A' || character == 'a' || character == 'P' || character == 'p';
}

class TimeRules final : public fieldedit::Rules {
  public:
    UINT TextLength() const override {
        return timectrl_TextLength();
    }

    int TextSize() const override {
        return kMaxTimeTextSize;
    }

    bool IsSeparator(UINT position) const override {
        return timectrl_IsSeparator(position);
    }

    bool IsInsideCharacter(UINT position) const override {
        return timectrl_IsInsideSeparator(position);
    }

    bool IsValid(SYSTEMTIME const& value) const override {
        return TIMECTRL_IsValidTime(&value);
    }

    SYSTEMTIME InitialValue() const override {
        SYSTEMTIME now;
        GetLocalTime(&now);
        return now;
    }

    SYSTEMTIME Reduced(SYSTEMTIME const& value) const override {
        SYSTEMTIME time = {};
        time.wHour = value.wHour;
        time.wMinute = value.wMinute;
        time.wSecond = value.wSecond;
        return time;
    }

    bool Format(SYSTEMTIME const& value, char* text, int size) const override {
        return timectrl_FormatTime(&value, text, size);
    }

    void ReloadSettings() const override {
        WORD mode;
        timectrl_GetIntlFormat(&mode, TRUE);
    }

    bool Type(char character, UINT position, SYSTEMTIME& value, int& advance) const override {
        bool const onDesignator = timectrl_FieldAtPosition(timectrl_CachedMode(), position) == TIMECTRL_AMPM;
        bool const taken = onDesignator ? IsDesignatorLetter(character) && !timectrl_Is24Hour() : IsDigit(character);
        if (!taken) {
            return false;
        }
        SYSTEMTIME work = value;
        int const moves = timectrl_EnterKey(character, position, &work);
        // Nothing is repaired: a digit that leads to no time is not taken.
        if (!IsValid(work)) {
            return false;
        }
        value = work;
        advance = moves;
        return true;
    }

    bool Step(WORD code, UINT position, SYSTEMTIME& value) const override {
        WORD const field = timectrl_FieldAtPosition(timectrl_CachedMode(), position);
        switch (code) {
            case SB_LINEUP:
                return TIMECTRL_IncrementTime(&value, field);
            case SB_LINEDOWN:
                return TIMECTRL_DecrementTime(&value, field);
            default:
                return false;
        }
    }
};

constexpr TimeRules kTimeRules{};

}  // namespace

CVAPI(BOOL) TIMECTRL_RegisterClass(HINSTANCE instance) {
    return fieldedit::RegisterFieldClass(instance, TIMECTRL_CLASSNAME, timectrl_EditTimeWndProc);
}

CVAPI(BOOL) TIMECTRL_SetTime(HWND control, const SYSTEMTIME* time, BOOL redraw) {
    return fieldedit::SetValue(kTimeRules, control, time, redraw);
}

CVAPI(BOOL) TIMECTRL_GetTime(HWND control, SYSTEMTIME* out) {
    SYSTEMTIME const* const value = fieldedit::GetValue(kTimeRules, control);
    if (!value || !out) {
        return FALSE;
    }
    out->wHour = value->wHour;
    out->wMinute = value->wMinute;
    out->wSecond = value->wSecond;
    out->wMilliseconds = 0;
    return TRUE;
}

CVAPI(LRESULT) timectrl_EditTimeWndProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return fieldedit::WindowProcedure(kTimeRules, control, message, wParam, lParam);
}
