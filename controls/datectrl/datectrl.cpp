// The date field: the field editor with the rules of dates.
#include "cvutil32/datectrl.h"

#include "controls/datectrl/datetext.h"
#include "controls/datectrl/datevalue.h"
#include "controls/fieldedit/editor.h"

namespace {

class DateRules final : public fieldedit::Rules {
  public:
    UINT TextLength() const override {
        return kDateTextLength;
    }

    int TextSize() const override {
        return kDateTextLength + 1;
    }

    bool IsSeparator(UINT position) const override {
        return position == 2 || position == 5;
    }

    bool IsValid(SYSTEMTIME const& value) const override {
        return datectrl_IsValid(value);
    }

    SYSTEMTIME InitialValue() const override {
        SYSTEMTIME now;
        GetLocalTime(&now);
        now.wHour = now.wMinute = now.wSecond = now.wMilliseconds = 0;
        return now;
    }

    SYSTEMTIME Reduced(SYSTEMTIME const& value) const override {
        SYSTEMTIME date = {};
        date.wYear = value.wYear;
        date.wMonth = value.wMonth;
        date.wDay = value.wDay;
        return date;
    }

    bool Format(SYSTEMTIME const& value, char* text, int size) const override {
        return datectrl_FormatDate(&value, text, size);
    }

    void ReloadSettings() const override {
        WORD order;
        datectrl_GetIntlFormat(&order, TRUE);
    }

    bool Type(char character, UINT position, SYSTEMTIME& value, int& advance) const override {
        if (character < '0' || character > '9') {
            return false;
        }
        SYSTEMTIME work = value;
        BOOL changed = FALSE;
        datectrl_EnterDigit(character, position, &work);
        if (!datectrl_IsValid(work) && !datectrl_FixDate(&work, &changed)) {
            return false;
        }
        value = work;
        // A digit that became the whole field leaves nothing to type in its units.
        advance = changed ? 2 : 1;
        return true;
    }

    bool Step(WORD code, UINT position, SYSTEMTIME& value) const override {
        WORD const field = datectrl_FieldAtPosition(datectrl_CachedOrder(), position);
        switch (code) {
            case SB_LINEUP:
                return DATECTRL_IncrementDate(&value, field);
            case SB_LINEDOWN:
                return DATECTRL_DecrementDate(&value, field);
            default:
                return false;
        }
    }
};

constexpr DateRules kDateRules{};

}  // namespace

CVAPI(BOOL) DATECTRL_RegisterClass(HINSTANCE instance) {
    return fieldedit::RegisterFieldClass(instance, DATECTRL_CLASSNAME, datectrl_EditDateWndProc);
}

CVAPI(BOOL) DATECTRL_SetDate(HWND control, const SYSTEMTIME* date, BOOL redraw) {
    return fieldedit::SetValue(kDateRules, control, date, redraw);
}

CVAPI(BOOL) DATECTRL_GetDate(HWND control, SYSTEMTIME* out) {
    SYSTEMTIME const* const value = fieldedit::GetValue(kDateRules, control);
    if (!value || !out) {
        return FALSE;
    }
    *out = kDateRules.Reduced(*value);
    return TRUE;
}

CVAPI(LRESULT) datectrl_EditDateWndProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    return fieldedit::WindowProcedure(kDateRules, control, message, wParam, lParam);
}
