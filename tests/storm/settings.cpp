// What the user changes in the system while the dialog is up.
#include "tests/storm/storm.h"

#include <cvutil32/reg.h>

namespace storm {

namespace {

BOOL CALLBACK Tell(HWND window, LPARAM section) {
    SendMessageA(window, WM_SETTINGCHANGE, 0, section);
    return TRUE;
}

// The system tells the windows of the top level; dialogs pass it on.
void TellAll() {
    LPARAM const section = reinterpret_cast<LPARAM>("intl");
    EnumThreadWindows(GetCurrentThreadId(), Tell, section);
    if (HWND const page = Page(); page && Die().OneIn(2)) {
        Tell(page, section);
        EnumChildWindows(page, Tell, section);
    }
}

void DateSettings() {
    static char const* const separators[] = {".", "/", "-", "", " ", "--", "\xB7"};
    static char const* const orders[] = {"0", "1", "2", "7", "x", ""};
    WriteProfileStringA("intl", "sDate", Die().OneIn(9) ? nullptr : Die().Of(separators));
    WriteProfileStringA("intl", "iDate", Die().OneIn(9) ? nullptr : Die().Of(orders));
    TellAll();
}

void Clock() {
    static char const* const formats[] = {"HH:mm:ss", "h:mm:ss tt", "hh.mm.ss tt", "H:mm:ss", "tt h:mm:ss"};
    static char const* const separators[] = {":", ".", "", "::"};
    SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, Die().Of(formats));
    if (Die().OneIn(2)) {
        SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, Die().Of(separators));
    }
    TellAll();
}

void Thousands() {
    WriteProfileStringA("intl", "sThousand", Die().OneIn(4) ? nullptr : Die().OneIn(2) ? "." : "'");
}

void Colours() {
    int const indices[] = {Die().Below(25), COLOR_BTNFACE, COLOR_WINDOW};
    COLORREF colours[3];
    for (COLORREF& colour : colours) {
        colour = static_cast<COLORREF>(Die().Next() & 0xFFFFFF);
    }
    SetSysColors(Die().From(1, 3), indices, colours);
}

void RegisteredOwner() {
    constexpr char kKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
    Reg_WriteString(HKEY_LOCAL_MACHINE, kKey, Die().OneIn(2) ? "RegisteredOwner" : "RegisteredOrganization",
                    Die().OneIn(4) ? nullptr : AnyText());
}

Event const kSettingEvents[] = {
    {"date settings", 2, DateSettings}, {"clock settings", 2, Clock},
    {"thousands", 1, Thousands},        {"colours", 2, Colours},
    {"owner", 1, RegisteredOwner},
};

}  // namespace

std::span<Event const> SettingEvents() {
    return kSettingEvents;
}

}  // namespace storm
