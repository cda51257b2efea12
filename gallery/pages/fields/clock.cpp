#include "gallery/pages/fields/clock.h"

#include <string>

namespace gallery {
namespace {

constexpr UINT kPatienceMilliseconds = 500;

std::string Setting(LCTYPE type) {
    char text[80] = "";
    GetLocaleInfoA(LOCALE_USER_DEFAULT, type, text, sizeof text);
    return text;
}

}  // namespace

Clock Clock::Current() {
    return {Setting(LOCALE_ITIME) == "1", Setting(LOCALE_ITLZERO) == "1"};
}

bool Clock::Apply() const {
    const std::string separator = Setting(LOCALE_STIME);
    const std::string hour(leadingZero ? 2 : 1, is24Hour ? 'H' : 'h');
    const std::string format = hour + separator + "mm" + separator + "ss" + (is24Hour ? "" : " tt");
    if (!SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, format.c_str())) {
        return false;
    }
    // A window of another program that does not answer is not waited for.
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"), SMTO_ABORTIFHUNG,
                        kPatienceMilliseconds, &answer);
    return true;
}

}  // namespace gallery
