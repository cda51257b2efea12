#include "gallery/pages/fields/chosen_date.h"

#include <cvutil32.h>

#include <cstdio>

namespace gallery {

void ChosenDate::SetToday() {
    for (HWND field : fields) {
        DATECTRL_SetDate(field, nullptr, TRUE);
    }
    isSet = DATECTRL_GetDate(fields[0], &date) != FALSE;
}

bool ChosenDate::SetIsoText(const std::string& text) {
    SYSTEMTIME wanted{};
    if (std::sscanf(text.c_str(), "%4hu-%2hu-%2hu", &wanted.wYear, &wanted.wMonth, &wanted.wDay) != 3 ||
        !DATECTRL_IsValidDate(&wanted)) {
        return false;
    }
    for (HWND field : fields) {
        DATECTRL_SetDate(field, &wanted, TRUE);
    }
    date = wanted;
    isSet = true;
    return true;
}

bool ChosenDate::Follow() {
    for (int edited = 0; edited < 2; ++edited) {
        SYSTEMTIME shown;
        if (DATECTRL_GetDate(fields[edited], &shown) && Differs(shown)) {
            date = shown;
            isSet = true;
            DATECTRL_SetDate(fields[1 - edited], &date, TRUE);
            return true;
        }
    }
    return false;
}

std::string ChosenDate::IsoText() const {
    if (!isSet) {
        return "";
    }
    char text[24];
    std::snprintf(text, sizeof text, "%04u-%02u-%02u", unsigned{date.wYear}, unsigned{date.wMonth},
                  unsigned{date.wDay});
    return text;
}

bool ChosenDate::Differs(const SYSTEMTIME& other) const {
    return !isSet || date.wYear != other.wYear || date.wMonth != other.wMonth || date.wDay != other.wDay;
}

}  // namespace gallery
