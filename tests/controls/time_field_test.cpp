// The time field as a window, where it differs from the date field: clocks, designator, refused keys, settings.
#include <cvutil32/timectrl.h>

#include "tests/support/clock_settings.h"
#include "tests/support/field_driver.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using namespace testing_support;

class TimeField : public testing::Test, protected FieldDriver {
  protected:
    TimeField() {
        Create(TIMECTRL_CLASSNAME);
    }
    ~TimeField() override {
        host_.Destroy();
    }

    /// A field with the focus that shows a time by a clock.
    void Show(LPCSTR format, int hour, int minute, int second) {
        clock_.Change(format);
        Create(TIMECTRL_CLASSNAME);
        SYSTEMTIME time = {};
        time.wHour = static_cast<WORD>(hour);
        time.wMinute = static_cast<WORD>(minute);
        time.wSecond = static_cast<WORD>(second);
        ASSERT_TRUE(TIMECTRL_SetTime(field_, &time, TRUE));
        SetFocus(field_);
    }

    std::string Value() const {
        SYSTEMTIME time = {1999, 4, 5, 6, 7, 8, 9, 10};
        bool const known = TIMECTRL_GetTime(field_, &time);
        if (time.wYear != 1999 || time.wMonth != 4 || time.wDayOfWeek != 5 || time.wDay != 6) {
            return "date not left alone";
        }
        if (!known) {
            return time.wHour == 7 && time.wMilliseconds == 10 ? "none" : "none, but written";
        }
        char text[40];
        wsprintfA(text, "%d:%02d:%02d", time.wHour, time.wMinute, time.wSecond);
        return time.wMilliseconds == 0 ? text : "milliseconds left";
    }

    ClockSettings clock_{"HH:mm:ss"};
};

TEST_F(TimeField, IsEmptyUntilItGetsATime) {
    EXPECT_EQ("none", Value());
    UpdateWindow(field_);
    EXPECT_EQ(Expected(""), PictureOf(field_));
    SYSTEMTIME before;
    GetLocalTime(&before);
    Type("7");
    SYSTEMTIME shown = {};
    ASSERT_TRUE(TIMECTRL_GetTime(field_, &shown)) << "the first key shows the time";
    SYSTEMTIME after;
    GetLocalTime(&after);
    auto const seconds = [](SYSTEMTIME const& t) { return (t.wHour * 60 + t.wMinute) * 60 + t.wSecond; };
    int const day = 24 * 60 * 60;
    EXPECT_LE((seconds(shown) - seconds(before) + day) % day, (seconds(after) - seconds(before) + day) % day)
        << "that of now, without the key";

    SYSTEMTIME bad = {};
    bad.wMinute = 60;
    EXPECT_FALSE(TIMECTRL_SetTime(field_, &bad, TRUE));
    EXPECT_NE("none", Value());
    EXPECT_FALSE(TIMECTRL_SetTime(nullptr, nullptr, TRUE));
    EXPECT_FALSE(TIMECTRL_GetTime(nullptr, &bad));
    EXPECT_FALSE(TIMECTRL_GetTime(field_, nullptr));
}

TEST_F(TimeField, TwentyFourHoursRefuseWhatIsNoTime) {
    Show("HH:mm:ss", 5, 20, 30);
    EXPECT_EQ(0, CaretIn("05:20:30"));
    Type("3");
    EXPECT_EQ("5:20:30", Value());
    EXPECT_EQ(0, CaretIn("05:20:30"));
    Type("19");
    EXPECT_EQ("19:20:30", Value());
    EXPECT_EQ(3, CaretIn("19:20:30")) << "past the separator";
    Type("6p");
    EXPECT_EQ("19:20:30", Value());
    EXPECT_EQ(3, CaretIn("19:20:30"));
    Type("5948");
    EXPECT_EQ("19:59:48", Value());
    EXPECT_EQ(7, CaretIn("19:59:48")) << "behind the last digit there is nothing";
    Key(VK_HOME);
    Key(VK_END);
    EXPECT_EQ(7, CaretIn("19:59:48"));
}

// What the manual warns of: each digit is judged by the one beside it.
TEST_F(TimeField, ATimeTypedOverAnotherOneMayComeOutAsAThird) {
    Show("HH:mm:ss", 4, 0, 4);
    Type("235053");
    EXPECT_EQ("5:30:04", Value());
    Show("h:mm:ss tt", 22, 24, 42);
    Type("062457P");
    EXPECT_EQ("13:24:57", Value());
}

TEST_F(TimeField, TwelveHoursAreTypedAsTheyAreRead) {
    Show("h:mm:ss tt", 9, 15, 0);
    Type("1");
    EXPECT_EQ("10:15:00", Value());
    EXPECT_EQ(1, CaretIn("10:15:00 AM"));
    Key(VK_END);
    EXPECT_EQ(10, CaretIn("10:15:00 AM"));
    MoveTo(0);
    Type("5");
    EXPECT_EQ("5:15:00", Value());
    EXPECT_EQ(3, CaretIn(" 5:15:00 AM")) << "the hour is complete";
    MoveTo(7);
    Type("2");
    EXPECT_EQ(9, CaretIn(" 5:15:02 AM")) << "past the space, on the designator";
    Type("7xp");
    EXPECT_EQ("17:15:02", Value());
    EXPECT_EQ(9, CaretIn(" 5:15:02 PM"));
    Type("P");
    EXPECT_EQ("17:15:02", Value());
    MoveTo(10);
    Type("a");
    EXPECT_EQ("5:15:02", Value());
    MoveTo(8);
    Type("p1");
    Scroll(SB_LINEUP);
    EXPECT_EQ("5:15:02", Value()) << "the space";
    MoveTo(0);
    Type("a");
    EXPECT_EQ("5:15:02", Value()) << "letters count on the designator alone";
}

TEST_F(TimeField, ScrollMessagesStepTheFieldAboveTheCaret) {
    Show("h:mm:ss tt", 0, 0, 0);
    MoveTo(7);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ("23:59:59", Value());
    Scroll(SB_LINEUP);
    EXPECT_EQ("0:00:00", Value());
    MoveTo(3);
    Scroll(SB_LINEUP);
    MoveTo(1);
    Scroll(SB_LINEUP);
    EXPECT_EQ("1:01:00", Value());
    MoveTo(9);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ("13:01:00", Value());
    Scroll(SB_LINEDOWN);
    EXPECT_EQ("1:01:00", Value()) << "both ways to the other half of the day";
    Scroll(SB_PAGEUP);
    EXPECT_EQ("1:01:00", Value());

    SYSTEMTIME time = {};
    time.wHour = 13;
    EXPECT_TRUE(TIMECTRL_DecrementTime(&time, TIMECTRL_AMPM));
    EXPECT_EQ(1, time.wHour);
    Show("HH:mm:ss", 0, 0, 0);
    EXPECT_TRUE(TIMECTRL_IncrementTime(&time, TIMECTRL_AMPM));
    EXPECT_EQ(1, time.wHour) << "by the 24-hour clock there is nothing to change";
}

TEST_F(TimeField, PaintsWhatItsSettingsSay) {
    Show("hh:mm:ss tt", 21, 5, 6);
    SetFocus(host_);
    EXPECT_EQ(Expected("09:05:06 PM"), PictureOf(field_));
    clock_.Change("HH.mm.ss", ".");
    SendMessageA(field_, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("Ports"));
    SetFocus(field_);
    Key(VK_END);
    EXPECT_EQ(10, CaretIn("09:05:06 PM")) << "another section";
    SendMessageA(field_, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    EXPECT_EQ(7, CaretIn("09:05:06 PM")) << "the caret keeps within the new length at once";
    SetFocus(host_);
    EXPECT_EQ(Expected("09:05:06 PM"), PictureOf(field_)) << "the text changes with the value";
    SetFocus(field_);
    Scroll(SB_LINEUP);
    SetFocus(host_);
    EXPECT_EQ(Expected("21.05.07"), PictureOf(field_));
}

TEST_F(TimeField, AnyCharacterAtAnyPositionLeavesAValidTime) {
    std::string const digits = "0123456789";
    std::string const letters = "AaPp";
    std::string const others = "\x01\b\t\r\x16\x1B :./-+BbQqMm@`\x7F\x80\xB2\xE4\xFF";
    for (LPCSTR const format : {"HH:mm:ss", "h:mm:ss tt"}) {
        Show(format, 0, 0, 0);
        SYSTEMTIME time = {};
        time.wHour = 19;
        time.wMinute = 58;
        time.wSecond = 37;
        for (int position = 0; position < 11; ++position) {
            for (char const character : digits + letters + others) {
                TIMECTRL_SetTime(field_, &time, FALSE);
                MoveTo(position);
                SendMessageA(field_, WM_CHAR, static_cast<unsigned char>(character), 1);
                ASSERT_NE("none", Value()) << format << " at " << position << ": " << int{character};
                if (others.find(character) != std::string::npos) {
                    ASSERT_EQ("19:58:37", Value()) << format << " at " << position << ": " << int{character};
                }
            }
        }
    }
}

}  // namespace
