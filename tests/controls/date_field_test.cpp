// The date field as a window: value, keys, mouse, steps, caret, picture and settings.
#include <cvutil32/datectrl.h>

#include "tests/support/field_driver.h"
#include "tests/support/leaks.h"
#include "tests/support/profile.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

namespace {

using namespace testing_support;

class DateField : public testing::Test, protected FieldDriver {
  protected:
    DateField() {
        Create(DATECTRL_CLASSNAME);
    }
    ~DateField() override {
        host_.Destroy();
    }

    void Set(int year, int month, int day) {
        SYSTEMTIME date = {};
        date.wYear = static_cast<WORD>(year);
        date.wMonth = static_cast<WORD>(month);
        date.wDay = static_cast<WORD>(day);
        date.wHour = 11;
        ASSERT_TRUE(DATECTRL_SetDate(field_, &date, TRUE));
    }

    std::string Value() const {
        SYSTEMTIME date;
        std::memset(&date, 0x55, sizeof date);
        if (!DATECTRL_GetDate(field_, &date)) {
            return date.wYear == 0x5555 ? "none" : "none, but written";
        }
        if (date.wHour || date.wMinute || date.wSecond || date.wMilliseconds || date.wDayOfWeek) {
            return "rest not cleared";
        }
        char text[40];
        wsprintfA(text, "%d-%d-%d", date.wYear, date.wMonth, date.wDay);
        return text;
    }

    void Focus() {
        SetFocus(field_);
        ASSERT_EQ(field_, GetFocus());
    }

    IntlSetting order_{"iDate", "0"};
    IntlSetting separator_{"sDate", "/"};
};

std::string Today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    char text[40];
    wsprintfA(text, "%d-%d-%d", now.wYear, now.wMonth, now.wDay);
    return text;
}

// --- value

TEST_F(DateField, IsEmptyUntilItGetsADate) {
    EXPECT_EQ("none", Value());
    EXPECT_NE(0, GetWindowLongPtrA(field_, GWL_STYLE) & WS_TABSTOP);
    EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTCHARS, SendMessageA(field_, WM_GETDLGCODE, 0, 0));
    Set(1995, 5, 6);
    EXPECT_EQ("1995-5-6", Value());
    EXPECT_TRUE(DATECTRL_SetDate(field_, nullptr, FALSE));
    EXPECT_EQ(Today(), Value());
}

TEST_F(DateField, BadDatesAndWindowsAreRefused) {
    SYSTEMTIME date = {};
    EXPECT_FALSE(DATECTRL_SetDate(nullptr, nullptr, TRUE));
    EXPECT_FALSE(DATECTRL_GetDate(nullptr, &date));
    Set(1995, 5, 6);
    EXPECT_FALSE(DATECTRL_SetDate(field_, &date, TRUE)) << "no date at all";
    EXPECT_EQ("1995-5-6", Value());
    EXPECT_FALSE(DATECTRL_GetDate(field_, nullptr));
    HWND const plain = MakeChild(host_, "static");
    EXPECT_FALSE(DATECTRL_SetDate(plain, nullptr, TRUE));
    EXPECT_FALSE(DATECTRL_GetDate(plain, &date));
    DestroyWindow(field_);
    EXPECT_FALSE(DATECTRL_SetDate(field_, nullptr, TRUE));
    EXPECT_FALSE(DATECTRL_GetDate(field_, &date));
}

TEST_F(DateField, FirstInputOfAnEmptyFieldShowsTodayAndIsDropped) {
    Type("x");
    EXPECT_EQ(Today(), Value());
    Create(DATECTRL_CLASSNAME);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(Today(), Value());
    Create(DATECTRL_CLASSNAME);
    Key(VK_RIGHT);
    EXPECT_EQ("none", Value()) << "a key that only moves the caret is no input";
}

// --- caret and keys

TEST_F(DateField, KeysMoveTheCaret) {
    Set(1995, 5, 6);
    Focus();
    EXPECT_EQ(0, CaretIn("05/06/95"));
    EXPECT_EQ(kHeight - 5, Caret().y);
    // The caret may stand on a separator, at 2.
    for (auto const& [key, position] : {std::pair{VK_LEFT, 0},
                                        {VK_RIGHT, 1},
                                        {VK_RIGHT, 2},
                                        {VK_BACK, 1},
                                        {VK_END, 7},
                                        {VK_RIGHT, 7},
                                        {VK_UP, 7},
                                        {VK_DOWN, 7},
                                        {VK_HOME, 0}}) {
        Key(static_cast<WPARAM>(key));
        EXPECT_EQ(position, CaretIn("05/06/95")) << key;
    }
    EXPECT_EQ("1995-5-6", Value());
}

TEST_F(DateField, CaretKeepsItsPlaceWithoutFocusAndFollowsTheSize) {
    Set(1995, 5, 6);
    Focus();
    MoveTo(4);
    SetFocus(host_);
    Key(VK_HOME);
    SetFocus(field_);
    EXPECT_EQ(4, CaretIn("05/06/95")) << "keys move the caret of the focus window only";
    SetWindowPos(field_, nullptr, 0, 0, kWidth, kHeight + 10, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(kHeight + 10 - 5, Caret().y);
    EXPECT_EQ(4, CaretIn("05/06/95"));
}

TEST_F(DateField, ClickPutsTheCaretUnderThePointer) {
    Set(1995, 5, 6);
    for (int position = 0; position < 8; ++position) {
        int const x = Extent("05/06/95", position);
        SendMessageA(field_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x + 1, 5));
        SendMessageA(field_, WM_LBUTTONUP, 0, MAKELPARAM(x + 1, 5));
        EXPECT_EQ(field_, GetFocus());
        EXPECT_EQ(position, CaretIn("05/06/95"));
    }
    for (auto const& [x, position] : {std::pair{-20, 0}, {kWidth - 1, 7}}) {
        SendMessageA(field_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 5));
        SendMessageA(field_, WM_LBUTTONUP, 0, MAKELPARAM(x, 5));
        EXPECT_EQ(position, CaretIn("05/06/95"));
    }
    SendMessageA(field_, WM_LBUTTONUP, 0, MAKELPARAM(0, 5));
    EXPECT_EQ(7, CaretIn("05/06/95")) << "a release without a press";
}

// --- typing

TEST_F(DateField, TypingReplacesDigitsAndSkipsSeparators) {
    Set(1995, 5, 5);
    Focus();
    Type("1");
    EXPECT_EQ("1995-12-5", Value()) << "15 is a little too large";
    EXPECT_EQ(1, CaretIn("12/05/95"));
    Type("1");
    EXPECT_EQ("1995-11-5", Value());
    EXPECT_EQ(3, CaretIn("11/05/95"));
    Type("2906");
    EXPECT_EQ("2006-11-29", Value());
    EXPECT_EQ(7, CaretIn("11/29/06")) << "behind the last digit there is nothing";
    Type("7");
    EXPECT_EQ("2007-11-29", Value());
}

TEST_F(DateField, TensDigitThatBecomesTheFieldJumpsOn) {
    Set(1995, 5, 5);
    Focus();
    Type("3");
    EXPECT_EQ("1995-3-5", Value());
    EXPECT_EQ(3, CaretIn("03/05/95"));
    Type("9");
    EXPECT_EQ("1995-3-9", Value());
    EXPECT_EQ(6, CaretIn("03/09/95"));
}

// What the manual warns of: each digit is judged by what stands beside it at that moment.
TEST_F(DateField, ADateTypedOverAnotherOneMayComeOutAsAThird) {
    Focus();
    Set(1998, 11, 30);
    Type("080122");
    EXPECT_EQ("2028-8-12", Value()) << "the 0 would have left day 0";
    Set(1975, 5, 5);
    MoveTo(7);
    Type("6");
    EXPECT_EQ("2076-5-5", Value()) << "a year that only looked like one of those that can be typed";
}

TEST_F(DateField, AMonthThatIsTypedOnTheWayCutsTheDay) {
    order_.Change("1");
    Create(DATECTRL_CLASSNAME);
    Focus();
    Set(2006, 12, 28);
    Type("300762");
    EXPECT_EQ("2062-7-28", Value()) << "30 February on the way to 30 July";
}

TEST_F(DateField, ImpossibleKeystrokesAreDropped) {
    Set(1995, 10, 10);
    Focus();
    Type("0");
    EXPECT_EQ("1995-10-10", Value()) << "month 0";
    EXPECT_EQ(0, CaretIn("10/10/95"));
    MoveTo(4);
    Type("a /\xB9");
    EXPECT_EQ("1995-10-10", Value());
    EXPECT_EQ(4, CaretIn("10/10/95"));
    for (int separator : {2, 5}) {
        MoveTo(separator);
        Type("1");
        Scroll(SB_LINEUP);
        EXPECT_EQ("1995-10-10", Value());
        EXPECT_EQ(separator, CaretIn("10/10/95"));
    }
}

// --- steps

TEST_F(DateField, ScrollMessagesStepTheFieldAboveTheCaret) {
    Set(1995, 12, 31);
    Focus();
    MoveTo(3);
    Scroll(SB_LINEUP);
    EXPECT_EQ("1996-1-1", Value());
    Scroll(SB_LINEDOWN);
    EXPECT_EQ("1995-12-31", Value());
    MoveTo(6);
    Scroll(SB_LINEUP);
    EXPECT_EQ("1996-12-31", Value());
    MoveTo(1);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ("1996-11-30", Value());
    Scroll(SB_PAGEUP);
    Scroll(SB_ENDSCROLL);
    EXPECT_EQ("1996-11-30", Value());
}

TEST_F(DateField, StepOutOfTheCalendarStaysUntilADigitRepairsIt) {
    Set(1995, 1, 31);
    Focus();
    SetFocus(host_);
    Picture const before = PictureOf(field_);
    SetFocus(field_);
    Scroll(SB_LINEUP);
    EXPECT_EQ("none", Value());
    Scroll(SB_LINEUP);
    Scroll(SB_LINEDOWN);
    EXPECT_EQ("none", Value());
    SetFocus(host_);
    EXPECT_EQ(before, PictureOf(field_)) << "nothing is drawn over the old picture";
    SetFocus(field_);
    Type("0");
    EXPECT_EQ("1995-2-28", Value());
}

// --- picture

TEST_F(DateField, PaintsItsTextOnTheWindowColour) {
    UpdateWindow(field_);
    EXPECT_EQ(Expected(""), PictureOf(field_)) << "an empty field";
    Set(1995, 5, 6);
    EXPECT_EQ(Expected("05/06/95"), PictureOf(field_));
    EXPECT_NE(Expected(""), PictureOf(field_));
}

TEST_F(DateField, AsksItsParentForTheBackground) {
    HBRUSH const brush = CreateSolidBrush(RGB(0, 255, 0));
    host_.answer = [brush](Message const& message) -> std::optional<LRESULT> {
        if (message.id != WM_CTLCOLOREDIT) {
            return std::nullopt;
        }
        SetBkColor(reinterpret_cast<HDC>(message.wParam), RGB(0, 255, 0));
        return reinterpret_cast<LRESULT>(brush);
    };
    Set(1995, 5, 6);
    Picture const picture = PictureOf(field_);
    EXPECT_EQ(RGB(0, 255, 0), picture.At(kWidth - 1, kHeight - 1));
    EXPECT_EQ(RGB(0, 255, 0), picture.At(0, 0));
    host_.Forget();
    HDC const dc = GetDC(field_);
    EXPECT_NE(0, SendMessageA(field_, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0));
    ReleaseDC(field_, dc);
    auto const asked = host_.Received(WM_CTLCOLOREDIT);
    ASSERT_EQ(1u, asked.size());
    EXPECT_EQ(reinterpret_cast<WPARAM>(dc), asked[0].wParam);
    EXPECT_EQ(reinterpret_cast<LPARAM>(field_), asked[0].lParam);
    host_.answer = nullptr;
    DeleteObject(brush);
}

TEST_F(DateField, RepaintsOnlyWhenAsked) {
    Set(1995, 5, 6);
    host_.Forget();
    DATECTRL_SetDate(field_, nullptr, FALSE);
    testing_support::PumpMessages();
    EXPECT_TRUE(host_.Received(WM_CTLCOLOREDIT).empty());
    DATECTRL_SetDate(field_, nullptr, TRUE);
    EXPECT_FALSE(host_.Received(WM_CTLCOLOREDIT).empty());
}

TEST_F(DateField, UsesItsFontForTextAndCaret) {
    Set(1995, 5, 6);
    Focus();
    MoveTo(4);
    auto const font = static_cast<HFONT>(GetStockObject(ANSI_FIXED_FONT));
    SendMessageA(field_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    HDC const dc = GetDC(field_);
    HGDIOBJ const former = SelectObject(dc, font);
    SIZE size = {};
    GetTextExtentPoint32A(dc, "05/0", 4, &size);
    SelectObject(dc, former);
    ReleaseDC(field_, dc);
    EXPECT_EQ(size.cx, Caret().x);
}

// --- settings

TEST_F(DateField, NewSettingsCountForFieldsAtOnceAndForTheTextLater) {
    Set(1995, 5, 6);
    Focus();
    MoveTo(0);
    order_.Change("1");
    SendMessageA(field_, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("Fonts"));
    SendMessageA(field_, WM_WININICHANGE, 0, 0);
    Scroll(SB_LINEUP);
    EXPECT_EQ("1995-6-6", Value()) << "another section";
    SetFocus(host_);
    SendMessageA(field_, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("INTL"));
    EXPECT_EQ(Expected("06/06/95"), PictureOf(field_));
    SendMessageA(field_, WM_VSCROLL, SB_LINEUP, 0);
    EXPECT_EQ("1995-6-7", Value()) << "the day lies first now";
    EXPECT_EQ(Expected("07/06/95"), PictureOf(field_));
}

TEST_F(DateField, WithoutASeparatorOnlyTheFirstFieldIsShown) {
    separator_.Change("");
    SendMessageA(field_, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
    Set(1995, 5, 6);
    EXPECT_EQ(Expected("05"), PictureOf(field_));
}

// --- lifetime

TEST_F(DateField, ToldOfTheFocusTwiceItHasOneCaret) {
    SetFocus(host_);
    LeakCheck const leaks;
    for (int i = 0; i < 3; ++i) {
        SendMessageA(field_, WM_SETFOCUS, 0, 0);
    }
    SendMessageA(field_, WM_KILLFOCUS, 0, 0);
}

}  // namespace
