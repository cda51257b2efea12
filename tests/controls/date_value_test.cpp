// Dates without a window: calendar, stepping, comparison, text and typing.
#include <cvutil32/datectrl.h>

#include "controls/datectrl/datetext.h"
#include "controls/datectrl/datevalue.h"
#include "tests/support/profile.h"

#include <gtest/gtest.h>

namespace {

using testing_support::IntlSetting;

SYSTEMTIME Date(int year, int month, int day) {
    SYSTEMTIME date = {};
    date.wYear = static_cast<WORD>(year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    return date;
}

struct YearMonthDay {
    int year, month, day;
    bool operator==(YearMonthDay const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, YearMonthDay const& d) {
        return out << d.year << '-' << d.month << '-' << d.day;
    }
};

YearMonthDay Parts(SYSTEMTIME const& date) {
    return {date.wYear, date.wMonth, date.wDay};
}

YearMonthDay Up(YearMonthDay d, WORD field) {
    SYSTEMTIME date = Date(d.year, d.month, d.day);
    EXPECT_TRUE(DATECTRL_IncrementDate(&date, field));
    return Parts(date);
}

YearMonthDay Down(YearMonthDay d, WORD field) {
    SYSTEMTIME date = Date(d.year, d.month, d.day);
    EXPECT_TRUE(DATECTRL_DecrementDate(&date, field));
    return Parts(date);
}

BOOL IsValid(int year, int month, int day) {
    SYSTEMTIME const date = Date(year, month, day);
    return DATECTRL_IsValidDate(&date);
}

TEST(DateValue, KnowsTheCalendar) {
    EXPECT_FALSE(DATECTRL_IsValidDate(nullptr));
    EXPECT_TRUE(IsValid(1995, 1, 31));
    EXPECT_FALSE(IsValid(1995, 0, 1));
    EXPECT_FALSE(IsValid(1995, 13, 1));
    EXPECT_FALSE(IsValid(1995, 65535, 1));
    EXPECT_FALSE(IsValid(1995, 1, 0));
    EXPECT_FALSE(IsValid(1995, 4, 31));
    EXPECT_FALSE(IsValid(1900, 2, 29));
    EXPECT_TRUE(IsValid(2000, 2, 29));
    EXPECT_TRUE(IsValid(1996, 2, 29));
    EXPECT_FALSE(IsValid(1997, 2, 29));
    EXPECT_TRUE(IsValid(0, 2, 29));
    EXPECT_TRUE(IsValid(65535, 12, 31));
    int days = 0;
    for (WORD month = 0; month <= 13; ++month) {
        days += datectrl_DaysInMonth(month, 1999);
    }
    EXPECT_EQ(365, days);
}

TEST(DateValue, ComparesFieldByField) {
    SYSTEMTIME const early = Date(1995, 6, 15);
    SYSTEMTIME const none = Date(1995, 2, 30);
    struct {
        SYSTEMTIME other;
        int expected;
    } const cases[] = {{Date(1995, 6, 15), 0}, {Date(1995, 6, 16), -1}, {Date(1995, 7, 1), -1}, {Date(1996, 1, 1), -1},
                       {Date(1995, 6, 14), 1}, {Date(1994, 12, 31), 1}, {Date(40000, 1, 1), -1}};
    for (auto const& c : cases) {
        EXPECT_EQ(c.expected, DATECTRL_CompareDate(&early, &c.other));
        EXPECT_EQ(-c.expected, DATECTRL_CompareDate(&c.other, &early));
    }
    EXPECT_EQ(0, DATECTRL_CompareDate(&early, &none));
    EXPECT_EQ(0, DATECTRL_CompareDate(nullptr, &early));
    EXPECT_EQ(0, DATECTRL_CompareDate(&early, nullptr));
}

TEST(DateValue, StepsUp) {
    EXPECT_EQ((YearMonthDay{1996, 1, 1}), Up({1995, 12, 31}, DATECTRL_DAY));
    EXPECT_EQ((YearMonthDay{1996, 2, 29}), Up({1996, 2, 28}, DATECTRL_DAY));
    EXPECT_EQ((YearMonthDay{1995, 3, 1}), Up({1995, 2, 28}, DATECTRL_DAY));
    EXPECT_EQ((YearMonthDay{1996, 1, 15}), Up({1995, 12, 15}, DATECTRL_MONTH));
    EXPECT_EQ((YearMonthDay{1995, 2, 31}), Up({1995, 1, 31}, DATECTRL_MONTH)) << "the day is not adapted";
    EXPECT_EQ((YearMonthDay{1997, 2, 29}), Up({1996, 2, 29}, DATECTRL_YEAR));
    EXPECT_EQ((YearMonthDay{0, 5, 5}), Up({65535, 5, 5}, DATECTRL_YEAR));
}

TEST(DateValue, StepsDown) {
    EXPECT_EQ((YearMonthDay{1995, 12, 31}), Down({1996, 1, 1}, DATECTRL_DAY));
    EXPECT_EQ((YearMonthDay{1996, 2, 29}), Down({1996, 3, 1}, DATECTRL_DAY));
    EXPECT_EQ((YearMonthDay{1995, 2, 28}), Down({1995, 3, 1}, DATECTRL_DAY));
    EXPECT_EQ((YearMonthDay{1995, 2, 28}), Down({1995, 3, 31}, DATECTRL_MONTH));
    EXPECT_EQ((YearMonthDay{1994, 12, 31}), Down({1995, 1, 31}, DATECTRL_MONTH));
    EXPECT_EQ((YearMonthDay{1995, 2, 28}), Down({1996, 2, 29}, DATECTRL_YEAR));
    EXPECT_EQ((YearMonthDay{1995, 7, 28}), Down({1996, 7, 29}, DATECTRL_YEAR)) << "the 29th of any month";
    EXPECT_EQ((YearMonthDay{2000, 1, 29}), Down({2001, 1, 29}, DATECTRL_YEAR));
    EXPECT_EQ((YearMonthDay{1994, 12, 28}), Down({1995, 1, 29}, DATECTRL_MONTH))
        << "also when a month took the year along";
    EXPECT_EQ((YearMonthDay{65535, 1, 1}), Down({0, 1, 1}, DATECTRL_YEAR));
}

TEST(DateValue, RefusedStepsChangeNothing) {
    EXPECT_FALSE(DATECTRL_IncrementDate(nullptr, DATECTRL_DAY));
    EXPECT_FALSE(DATECTRL_DecrementDate(nullptr, DATECTRL_DAY));
    for (WORD field : {WORD{0}, WORD{4}, WORD{0xFFFF}}) {
        SYSTEMTIME date = Date(1995, 5, 5);
        EXPECT_FALSE(DATECTRL_IncrementDate(&date, field));
        EXPECT_FALSE(DATECTRL_DecrementDate(&date, field));
        EXPECT_EQ((YearMonthDay{1995, 5, 5}), Parts(date));
    }
    SYSTEMTIME invalid = Date(1995, 2, 31);
    EXPECT_FALSE(DATECTRL_IncrementDate(&invalid, DATECTRL_DAY));
    EXPECT_FALSE(DATECTRL_DecrementDate(&invalid, DATECTRL_MONTH));
    EXPECT_EQ((YearMonthDay{1995, 2, 31}), Parts(invalid));
}

TEST(DateValue, RepairsWhatTypingMadeTooLarge) {
    struct {
        YearMonthDay typed;
        YearMonthDay repaired;
        bool valid;
        bool changed;
    } const cases[] = {
        {{1995, 35, 5}, {1995, 3, 5}, true, true},   {{1995, 15, 5}, {1995, 12, 5}, true, false},
        {{1995, 21, 5}, {1995, 12, 5}, true, false}, {{1995, 22, 5}, {1995, 2, 5}, true, true},
        {{1995, 4, 39}, {1995, 4, 30}, true, false}, {{1995, 4, 49}, {1995, 4, 4}, true, true},
        {{1995, 2, 29}, {1995, 2, 28}, true, false}, {{1995, 0, 5}, {1995, 0, 0}, false, false},
        {{1995, 5, 0}, {1995, 5, 0}, false, false},  {{1995, 5, 5}, {1995, 5, 5}, true, false},
    };
    for (auto const& c : cases) {
        SYSTEMTIME date = Date(c.typed.year, c.typed.month, c.typed.day);
        BOOL changed = 2;
        EXPECT_EQ(c.valid, datectrl_FixDate(&date, &changed) != FALSE) << c.typed;
        EXPECT_EQ(c.repaired, Parts(date)) << c.typed;
        EXPECT_EQ(c.changed, changed == TRUE) << c.typed;
        date = Date(c.typed.year, c.typed.month, c.typed.day);
        EXPECT_EQ(c.valid, datectrl_FixDate(&date, nullptr) != FALSE);
    }
}

// --- text

class DateText : public testing::Test {
  protected:
    void Use(char const* order, char const* separator) {
        order_.Change(order);
        separator_.Change(separator);
        WORD read = 0;
        EXPECT_NE(nullptr, datectrl_GetIntlFormat(&read, TRUE));
    }

    static std::string Format(SYSTEMTIME const& date) {
        char text[9] = "untouch";
        return datectrl_FormatDate(&date, text, sizeof text) ? text : std::string("failed ") + text;
    }

    static YearMonthDay Typed(YearMonthDay d, char digit, UINT position) {
        SYSTEMTIME date = Date(d.year, d.month, d.day);
        datectrl_EnterDigit(digit, position, &date);
        return Parts(date);
    }

    IntlSetting order_{"iDate", "0"};
    IntlSetting separator_{"sDate", "/"};
};

TEST_F(DateText, FollowsOrderAndSeparator) {
    SYSTEMTIME const date = Date(2007, 3, 9);
    Use("0", "/");
    EXPECT_EQ("03/09/07", Format(date));
    Use("1", ".");
    EXPECT_EQ("09.03.07", Format(date));
    Use("2", "-");
    EXPECT_EQ("07-03-09", Format(date));
    Use("2", nullptr);
    EXPECT_EQ("07/03/09", Format(date)) << "a missing separator is the slash";
}

TEST_F(DateText, UnknownOrderFailsUntilItIsSet) {
    Use("7", "/");
    EXPECT_EQ("failed untouch", Format(Date(1995, 1, 1)));
    WORD order = 0;
    EXPECT_NE(nullptr, datectrl_GetIntlFormat(&order, FALSE));
    EXPECT_EQ(DATECTRL_ORDER_NONE, order);
    EXPECT_EQ((YearMonthDay{1995, 5, 5}), Typed({1995, 5, 5}, '1', 0));
    order_.Change("1");
    EXPECT_EQ("01/01/95", Format(Date(1995, 1, 1))) << "looked for again without being asked to reload";
    order_.Change("2");
    EXPECT_EQ("01/01/95", Format(Date(1995, 1, 1))) << "a known order is kept";
}

TEST_F(DateText, BadArgumentsFail) {
    Use("0", "/");
    SYSTEMTIME const date = Date(1995, 1, 1);
    char text[4] = "abc";
    EXPECT_FALSE(datectrl_FormatDate(nullptr, text, sizeof text));
    EXPECT_FALSE(datectrl_FormatDate(&date, nullptr, 9));
    EXPECT_FALSE(datectrl_FormatDate(&date, text, 0));
    EXPECT_FALSE(datectrl_FormatDate(&date, text, -1));
    EXPECT_STREQ("abc", text);
    EXPECT_TRUE(datectrl_FormatDate(&date, text, sizeof text));
    EXPECT_STREQ("01/", text);
    EXPECT_EQ(nullptr, datectrl_GetIntlFormat(nullptr, TRUE));
}

TEST_F(DateText, FieldsLieWhereTheOrderPutsThem) {
    struct {
        WORD order;
        char const* fields;  // for positions 0 to 8
    } const cases[] = {{DATECTRL_ORDER_MDY, "221113330"},
                       {DATECTRL_ORDER_DMY, "112223330"},
                       {DATECTRL_ORDER_YMD, "332221110"},
                       {DATECTRL_ORDER_NONE, "000000000"},
                       {9, "000000000"}};
    for (auto const& c : cases) {
        for (UINT position = 0; position < 9; ++position) {
            EXPECT_EQ(c.fields[position] - '0', datectrl_FieldAtPosition(c.order, position))
                << c.order << " at " << position;
        }
        EXPECT_EQ(0, datectrl_FieldAtPosition(c.order, 0xFFFFFFFF));
    }
}

TEST_F(DateText, DigitsReplaceOneDigit) {
    Use("0", "/");
    EXPECT_EQ((YearMonthDay{1995, 15, 5}), Typed({1995, 5, 5}, '1', 0));
    EXPECT_EQ((YearMonthDay{1985, 5, 5}), Typed({1995, 5, 5}, '8', 6));
    EXPECT_EQ((YearMonthDay{2005, 5, 5}), Typed({1995, 5, 5}, '0', 6));
    EXPECT_EQ((YearMonthDay{2007, 5, 5}), Typed({2005, 5, 5}, '7', 7));
    EXPECT_EQ((YearMonthDay{2079, 5, 5}), Typed({1999, 5, 5}, '7', 6));
    EXPECT_EQ((YearMonthDay{2005, 5, 5}), Typed({2005, 5, 5}, '7', 8)) << "behind the text";
    Use("2", "/");
    EXPECT_EQ((YearMonthDay{2005, 5, 15}), Typed({2005, 5, 5}, '1', 6)) << "another order";
}

}  // namespace
