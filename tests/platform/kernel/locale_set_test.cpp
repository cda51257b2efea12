// The user's own time settings: what is set is what is read, and what a pattern implies changes with it.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace {

std::string Users(LCTYPE type) {
    char text[80] = "";
    GetLocaleInfoA(LOCALE_USER_DEFAULT, type, text, sizeof text);
    return text;
}

TEST(SetLocaleInfo, TimeFormatSetsTheClockAndTheLeadingZero) {
    const std::string format = Users(LOCALE_STIMEFORMAT);
    const std::string separator = Users(LOCALE_STIME);
    struct {
        const char* format;
        const char* clock;
        const char* zero;
    } const cases[] = {
        {"h:mm:ss tt", "0", "0"}, {"hh:mm:ss tt", "0", "1"}, {"H:mm:ss", "1", "0"}, {"HH:mm:ss", "1", "1"}};
    for (const auto& each : cases) {
        EXPECT_TRUE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, each.format));
        EXPECT_EQ(each.format, Users(LOCALE_STIMEFORMAT));
        EXPECT_EQ(each.clock, Users(LOCALE_ITIME)) << each.format;
        EXPECT_EQ(each.zero, Users(LOCALE_ITLZERO)) << each.format;
    }
    EXPECT_TRUE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, "."));
    EXPECT_EQ(".", Users(LOCALE_STIME));

    EXPECT_FALSE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, nullptr));
    EXPECT_EQ(".", Users(LOCALE_STIME));
    SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, format.c_str());
    SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STIME, separator.c_str());
}

}  // namespace
