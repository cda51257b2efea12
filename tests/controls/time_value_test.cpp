// Times without a window: stepping, comparison, text, fields and typing, and the clock face as a table.
#include <cvutil32/timectrl.h>

#include "controls/timectrl/clockface.h"
#include "controls/timectrl/timetext.h"
#include "tests/support/clock_settings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using testing_support::ClockSettings;

SYSTEMTIME Time(int hour, int minute, int second) {
    SYSTEMTIME time = {1995, 5, 1, 6, 0, 0, 0, 77};
    time.wHour = static_cast<WORD>(hour);
    time.wMinute = static_cast<WORD>(minute);
    time.wSecond = static_cast<WORD>(second);
    return time;
}

std::string ClockOf(SYSTEMTIME const& time) {
    char text[40];
    wsprintfA(text, "%d:%02d:%02d", time.wHour, time.wMinute, time.wSecond);
    return time.wYear == 1995 && time.wMonth == 5 && time.wDay == 6 && time.wMilliseconds == 77 ? text
                                                                                                : "date not left alone";
}

std::string Up(SYSTEMTIME time, WORD field) {
    EXPECT_TRUE(TIMECTRL_IncrementTime(&time, field));
    return ClockOf(time);
}

std::string Down(SYSTEMTIME time, WORD field) {
    EXPECT_TRUE(TIMECTRL_DecrementTime(&time, field));
    return ClockOf(time);
}

std::string Text(int hour, int minute, int second) {
    SYSTEMTIME const time = Time(hour, minute, second);
    char text[40] = "";
    EXPECT_TRUE(timectrl_FormatTime(&time, text, sizeof text));
    return text;
}

void Load() {
    WORD mode;
    timectrl_GetIntlFormat(&mode, TRUE);
}

TEST(TimeValue, ValidTimes) {
    EXPECT_FALSE(TIMECTRL_IsValidTime(nullptr));
    SYSTEMTIME time = Time(23, 59, 59);
    EXPECT_TRUE(TIMECTRL_IsValidTime(&time));
    for (SYSTEMTIME const& bad : {Time(24, 0, 0), Time(0, 60, 0), Time(0, 0, 60), Time(65535, 0, 0)}) {
        EXPECT_FALSE(TIMECTRL_IsValidTime(&bad));
        time = bad;
        EXPECT_FALSE(TIMECTRL_IncrementTime(&time, TIMECTRL_HOUR));
        EXPECT_FALSE(TIMECTRL_DecrementTime(&time, TIMECTRL_HOUR));
        EXPECT_EQ(0, std::memcmp(&bad, &time, sizeof time)) << "nothing is changed";
    }
}

TEST(TimeValue, SecondsDecideBeforeMinutesAndHours) {
    struct {
        SYSTEMTIME a, b;
        int expected;
    } const cases[] = {
        {Time(10, 0, 30), Time(11, 0, 0), 1}, {Time(10, 0, 0), Time(11, 0, 0), -1}, {Time(10, 5, 0), Time(9, 6, 0), -1},
        {Time(10, 5, 7), Time(10, 5, 7), 0},  {Time(24, 0, 0), Time(1, 0, 0), 0},   {Time(1, 0, 0), Time(1, 60, 0), 0},
    };
    for (auto const& each : cases) {
        EXPECT_EQ(each.expected, TIMECTRL_CompareTime(&each.a, &each.b));
        EXPECT_EQ(-each.expected, TIMECTRL_CompareTime(&each.b, &each.a));
    }
    EXPECT_EQ(0, TIMECTRL_CompareTime(nullptr, &cases[0].a));
    EXPECT_EQ(0, TIMECTRL_CompareTime(&cases[0].a, nullptr));
}

TEST(TimeValue, StepsCarryWithinTheDay) {
    EXPECT_EQ("0:00:00", Up(Time(23, 59, 59), TIMECTRL_SECOND));
    EXPECT_EQ("23:59:59", Down(Time(0, 0, 0), TIMECTRL_SECOND));
    EXPECT_EQ("11:00:00", Up(Time(10, 59, 0), TIMECTRL_MINUTE));
    EXPECT_EQ("9:59:30", Down(Time(10, 0, 30), TIMECTRL_MINUTE));
    EXPECT_EQ("0:10:00", Up(Time(23, 10, 0), TIMECTRL_HOUR));
    EXPECT_EQ("23:10:00", Down(Time(0, 10, 0), TIMECTRL_HOUR));
    EXPECT_EQ("8:20:31", Up(Time(8, 20, 30), TIMECTRL_SECOND));
    SYSTEMTIME time = Time(8, 20, 30);
    for (WORD const field : {0, 5, 65535}) {
        EXPECT_FALSE(TIMECTRL_IncrementTime(&time, field));
        EXPECT_FALSE(TIMECTRL_DecrementTime(&time, field));
    }
    EXPECT_FALSE(TIMECTRL_IncrementTime(nullptr, TIMECTRL_HOUR));
    EXPECT_FALSE(TIMECTRL_DecrementTime(nullptr, TIMECTRL_HOUR));
    EXPECT_EQ("8:20:30", ClockOf(time));
}

TEST(TimeText, FollowsClockAndLeadingZero) {
    ClockSettings const clock("h:mm:ss tt");
    Load();
    EXPECT_EQ("12:05:09 AM", Text(0, 5, 9));
    EXPECT_EQ(" 9:05:09 AM", Text(9, 5, 9));
    EXPECT_EQ("12:00:00 PM", Text(12, 0, 0));
    EXPECT_EQ(" 1:00:00 PM", Text(13, 0, 0));
    EXPECT_EQ("11:59:59 PM", Text(23, 59, 59));
    EXPECT_EQ(11u, timectrl_TextLength());
    clock.Change("hh:mm:ss tt");
    EXPECT_EQ(" 1:00:00 PM", Text(13, 0, 0)) << "known settings are not read again";
    Load();
    EXPECT_EQ("01:00:00 PM", Text(13, 0, 0));
    clock.Change("H:mm:ss");
    Load();
    EXPECT_EQ(" 0:05:09", Text(0, 5, 9));
    EXPECT_EQ("13:00:00", Text(13, 0, 0));
    EXPECT_EQ(8u, timectrl_TextLength());
    clock.Change("HH.mm.ss", ".");
    Load();
    EXPECT_EQ("00.05.09", Text(0, 5, 9));

    SYSTEMTIME const time = Time(1, 2, 3);
    char buffer[5] = "zzzz";
    EXPECT_FALSE(timectrl_FormatTime(nullptr, buffer, 5));
    EXPECT_FALSE(timectrl_FormatTime(&time, nullptr, 5));
    EXPECT_FALSE(timectrl_FormatTime(&time, buffer, 0));
    EXPECT_STREQ("zzzz", buffer);
    EXPECT_TRUE(timectrl_FormatTime(&time, buffer, 4));
    EXPECT_STREQ("01.", buffer);
    EXPECT_EQ(nullptr, timectrl_GetIntlFormat(nullptr, TRUE));
}

TEST(TimeText, FieldsLieWhereTheTextShowsThem) {
    ClockSettings const clock("h:mm:ss tt");
    Load();
    SYSTEMTIME time = Time(9, 0, 0);
    EXPECT_EQ(0, timectrl_EnterKey('5', 11, &time)) << "behind the text";
    EXPECT_EQ("9:00:00", ClockOf(time));
    WORD const twelve[] = {2, 2, 1, 1, 1, 3, 3, 3, 4, 4, 4, 0, 0};
    for (UINT position = 0; position < std::size(twelve); ++position) {
        EXPECT_EQ(twelve[position], timectrl_FieldAtPosition(TIMECTRL_MODE_12H, position)) << position;
        EXPECT_EQ(position < 8 ? twelve[position] : 0, timectrl_FieldAtPosition(TIMECTRL_MODE_24H, position));
        EXPECT_EQ(0, timectrl_FieldAtPosition(TIMECTRL_MODE_NONE, position));
        EXPECT_EQ(position == 2 || position == 5 || position == 8, timectrl_IsSeparator(position)) << position;
    }
}

/// What a person sees at once on a 12-hour clock: the hour as two digits.
struct Face {
    int shown;
    int advance;
    bool operator==(Face const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, Face const& face) {
        return out << face.shown << " +" << face.advance;
    }
};

// By the hour shown, 1 to 12: what becomes of its tens.
constexpr Face kZeroTyped[12] = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1},
                                 {7, 1}, {8, 1}, {9, 1}, {1, 2}, {1, 1}, {2, 1}};
constexpr int kOneTyped[12] = {11, 12, 10, 10, 10, 10, 10, 10, 10, 10, 11, 12};

Face Wanted(int shown, int digit, UINT position) {
    if (position == 0) {
        return digit == 0 ? kZeroTyped[shown - 1] : digit == 1 ? Face{kOneTyped[shown - 1], 1} : Face{digit, 2};
    }
    int const typed = shown < 10 ? digit : 10 + digit;
    return typed == 0 || typed > 12 ? Face{shown, 0} : Face{typed, 1};
}

TEST(TimeText, EveryDigitOnEveryHourOfTheClockFace) {
    ClockSettings const clock("h:mm:ss tt");
    Load();
    for (int hour = 0; hour < 24; ++hour) {
        int const shown = hour % 12 == 0 ? 12 : hour % 12;
        for (int digit = 0; digit <= 9; ++digit) {
            for (UINT const position : {0u, 1u}) {
                SYSTEMTIME time = Time(hour, 20, 30);
                int const advance = timectrl_EnterKey(static_cast<char>('0' + digit), position, &time);
                Face const face{time.wHour % 12 == 0 ? 12 : time.wHour % 12, advance};
                EXPECT_EQ(Wanted(shown, digit, position), face)
                    << "hour " << hour << ", digit " << digit << " at " << position;
                EXPECT_EQ(hour >= 12, time.wHour >= 12) << "the half of the day stays";
                EXPECT_EQ(20, time.wMinute);
                EXPECT_EQ(30, time.wSecond);
            }
        }
    }
}

}  // namespace
