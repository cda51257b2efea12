#include "gallery/pages/fields/datetime_page.h"

#include "gallery/pages/fields/clock.h"
#include "gallery/pages/fields/datetime_page_ids.h"
#include "gallery/pages/fields/horizontal_step.h"
#include "gallery/text.h"

#include <string>

namespace gallery {
namespace {

constexpr DWORD kLongestVisit = 480;
constexpr int kUsualVisit = 30;
constexpr int kTimeFields[] = {IDC_TIME_VERTICAL, IDC_TIME_HORIZONTAL, IDC_VISIT_TIME};

// The date and the time are read into one record: each field leaves the members of the other one alone, as long as the
// date, which clears the rest, is read first.
std::string Appointment(HWND page) {
    SYSTEMTIME visit{};
    if (!DATECTRL_GetDate(GetDlgItem(page, IDC_VISIT_DATE), &visit) ||
        !TIMECTRL_GetTime(GetDlgItem(page, IDC_VISIT_TIME), &visit)) {
        return LoadText(page, IDS_DATETIME_NONE);
    }
    char text[64];
    wsprintfA(text, LoadText(page, IDS_DATETIME_VISIT).c_str(), visit.wYear, visit.wMonth, visit.wDay, visit.wHour,
              visit.wMinute, visit.wSecond, NUMFLD_GetValue(GetDlgItem(page, IDC_VISIT_MINUTES)));
    return text;
}

/// Fields send no notifications, so their values are read after each message.
void Follow(HWND page) {
    const std::string text = Appointment(page);
    char shown[64] = "";
    GetDlgItemTextA(page, IDC_VISIT, shown, sizeof shown);
    if (text != shown) {
        SetDlgItemTextA(page, IDC_VISIT, text.c_str());
    }
}

void ShowNow(HWND page) {
    for (const int id : kTimeFields) {
        TIMECTRL_SetTime(GetDlgItem(page, id), nullptr, TRUE);
    }
    DATECTRL_SetDate(GetDlgItem(page, IDC_VISIT_DATE), nullptr, TRUE);
    Follow(page);
}

void ShowClock(HWND page) {
    const Clock clock = Clock::Current();
    CheckRadioButton(page, IDC_CLOCK_12, IDC_CLOCK_24, clock.is24Hour ? IDC_CLOCK_24 : IDC_CLOCK_12);
    CheckDlgButton(page, IDC_CLOCK_ZERO, clock.leadingZero ? BST_CHECKED : BST_UNCHECKED);
}

/// Only top-level windows are told of new settings, so the page passes the news on. A field writes its text anew when it
/// gets a value.
void TakeSettings(HWND page, LPARAM section) {
    ShowClock(page);
    for (HWND child = GetWindow(page, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageA(child, WM_WININICHANGE, 0, section);
    }
    for (const int id : kTimeFields) {
        const HWND field = GetDlgItem(page, id);
        SYSTEMTIME time{};
        if (TIMECTRL_GetTime(field, &time)) {
            TIMECTRL_SetTime(field, &time, TRUE);
        }
    }
}

void ChangeClock(HWND page) {
    const Clock wanted{IsDlgButtonChecked(page, IDC_CLOCK_24) == BST_CHECKED,
                       IsDlgButtonChecked(page, IDC_CLOCK_ZERO) == BST_CHECKED};
    if (wanted.Apply()) {
        TakeSettings(page, reinterpret_cast<LPARAM>("intl"));
    } else {
        ShowClock(page);
    }
}

void OnInitDialog(HWND page) {
    StepSideways(GetDlgItem(page, IDC_TIME_HORIZONTAL));
    NUMFLD_SetLimits(GetDlgItem(page, IDC_VISIT_MINUTES), 1, kLongestVisit);
    NUMFLD_SetValue(GetDlgItem(page, IDC_VISIT_MINUTES), kUsualVisit);
    ShowClock(page);
    ShowNow(page);
}

void OnDestroy(HWND page) {
    StopSteppingSideways(GetDlgItem(page, IDC_TIME_HORIZONTAL));
}

void OnCommand(HWND page, int id, int code) {
    if (code != BN_CLICKED) {
        return;
    }
    switch (id) {
        case IDC_TIME_NOW:
            ShowNow(page);
            break;
        case IDC_CLOCK_12:
        case IDC_CLOCK_24:
        case IDC_CLOCK_ZERO:
            ChangeClock(page);
            break;
        default:
            break;
    }
}

INT_PTR CALLBACK DateTimePageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(page);
            return TRUE;
        case kFollowFields:
            Follow(page);
            return TRUE;
        case WM_COMMAND:
            OnCommand(page, LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_WININICHANGE:
            TakeSettings(page, lParam);
            return TRUE;
        case WM_DESTROY:
            OnDestroy(page);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

const Page& DateTimePage() {
    static const Page page{IDS_DATETIME_TITLE, MAKEINTRESOURCEA(IDD_DATETIME_PAGE), DateTimePageProcedure};
    return page;
}

}  // namespace gallery
