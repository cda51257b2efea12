// The clock of the user's locale for the length of a test.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace testing_support {

/// Sets the time format ("h:mm:ss tt", "HH:mm:ss") and the time separator, and puts back what was there.
class ClockSettings {
  public:
    explicit ClockSettings(LPCSTR format, LPCSTR separator = ":") : format_(Get(LOCALE_STIMEFORMAT)) {
        separator_ = Get(LOCALE_STIME);
        Change(format, separator);
    }
    ~ClockSettings() {
        Change(format_.c_str(), separator_.c_str());
    }

    ClockSettings(ClockSettings const&) = delete;
    ClockSettings& operator=(ClockSettings const&) = delete;

    void Change(LPCSTR format, LPCSTR separator = ":") const {
        EXPECT_TRUE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, format));
        if (*separator) {
            EXPECT_TRUE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, separator));
        }
    }

  private:
    static std::string Get(LCTYPE type) {
        char text[80] = "";
        GetLocaleInfoA(LOCALE_USER_DEFAULT, type, text, sizeof text);
        return text;
    }

    std::string format_;
    std::string separator_;
};

}  // namespace testing_support
