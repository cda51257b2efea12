// The numeric field: filter, limits, value, steps, the subclass of its parent.
#include <cvutil32/numfld.h>

#include "controls/numfld/number.h"
#include "tests/support/modal.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace {

using namespace testing_support;

class NumericField : public testing::Test {
  protected:
    NumericField() : field_(MakeChild(host_, NUMFLD_CLASSNAME, ES_AUTOHSCROLL)) {}

    void Type(char const* characters) const {
        for (; *characters; ++characters) {
            SendMessageA(field_, WM_CHAR, static_cast<unsigned char>(*characters), 1);
        }
    }
    std::string Text() const {
        return TextOf(field_);
    }
    /// Sets a text, steps it and gives the new text.
    std::string Stepped(char const* text, WORD code) const {
        SetWindowTextA(field_, text);
        SendMessageA(field_, WM_VSCROLL, MAKEWPARAM(code, 0), 0);
        return Text();
    }
    int ValueOf(char const* text) const {
        SetWindowTextA(field_, text);
        return NUMFLD_GetValue(field_);
    }

    TestWindow host_;
    HWND field_;
};

TEST_F(NumericField, TakesDigitsAndBackspaceOnly) {
    NUMFLD_SetLimits(field_, 0, 99999);
    Type(
        "a1 2-+.,\t\x16\x03\x1A\x7F\xC4\xE9"
        "3\r");
    EXPECT_EQ("123", Text());
    Type("\b");
    EXPECT_EQ("12", Text());
    for (int character = 1; character < 128; ++character) {
        SetWindowTextA(field_, "");
        SendMessageA(field_, WM_CHAR, static_cast<WPARAM>(character), 1);
        EXPECT_EQ(character >= '0' && character <= '9' ? std::string(1, static_cast<char>(character)) : "", Text())
            << character;
    }
}

TEST_F(NumericField, PastedTextIsNotFiltered) {
    NUMFLD_SetLimits(field_, 0, 99999);
    for (auto const& [pasted, text, value] :
         {std::tuple{"-12x", "-12x", -12}, std::tuple{"abc", "abc", 0}, std::tuple{"123456789012", "12345", 12345}}) {
        HGLOBAL const block = GlobalAlloc(GMEM_MOVEABLE, 20);
        lstrcpyA(static_cast<LPSTR>(GlobalLock(block)), pasted);
        GlobalUnlock(block);
        ASSERT_TRUE(OpenClipboard(host_));
        EmptyClipboard();
        SetClipboardData(CF_TEXT, block);
        CloseClipboard();
        SetWindowTextA(field_, "");
        Type("\x16");
        EXPECT_EQ("", Text()) << "Ctrl+V is a character that is dropped";
        SendMessageA(field_, WM_PASTE, 0, 0);
        EXPECT_EQ(text, Text());
        EXPECT_EQ(value, NUMFLD_GetValue(field_));
        SendMessageA(field_, WM_VSCROLL, SB_LINEUP, 0);
    }
    EXPECT_EQ("12346", Text());
    ASSERT_TRUE(OpenClipboard(host_));
    EmptyClipboard();
    CloseClipboard();
}

TEST_F(NumericField, LimitsSetTheLengthOfTheText) {
    struct {
        DWORD maximum;
        LRESULT digits;
    } const cases[] = {{0, 1},    {9, 1},    {10, 2},    {99, 2},    {100, 3},    {999, 3},
                       {1000, 4}, {9999, 4}, {10000, 5}, {99999, 5}, {100000, 5}, {4294967295u, 5}};
    for (auto const& each : cases) {
        NUMFLD_SetLimits(field_, 0, each.maximum);
        EXPECT_EQ(each.digits, SendMessageA(field_, EM_GETLIMITTEXT, 0, 0)) << each.maximum;
    }
    NUMFLD_SetLimits(field_, 1, 12);
    Type("123");
    EXPECT_EQ("12", Text());
    SetWindowTextA(field_, "4711");
    NUMFLD_SetLimits(field_, 1, 9);
    EXPECT_EQ("4711", Text()) << "the text stays as it is";
}

TEST_F(NumericField, ReadsAndWritesItsText) {
    EXPECT_EQ(0, NUMFLD_GetValue(field_));
    EXPECT_EQ(7, ValueOf("007"));
    EXPECT_EQ(-12, ValueOf(" \t-12abc"));
    EXPECT_EQ(12, ValueOf("+12.9"));
    EXPECT_EQ(0, ValueOf("abc"));
    EXPECT_EQ(0, ValueOf("- 5"));
    EXPECT_EQ(2147483647, ValueOf("2147483647"));
    EXPECT_EQ(-1, ValueOf("4294967295"));
    EXPECT_EQ(1, ValueOf("0000000000000000000000000000001234567")) << "the first 31 characters";
    EXPECT_TRUE(NUMFLD_SetValue(field_, -5));
    EXPECT_EQ("-5", Text());
    EXPECT_EQ(-5, NUMFLD_GetValue(field_));
    NUMFLD_SetLimits(field_, 1, 12);
    EXPECT_TRUE(NUMFLD_SetValue(field_, 123456));
    EXPECT_EQ(123456, NUMFLD_GetValue(field_)) << "the application is not limited";
    EXPECT_FALSE(NUMFLD_SetValue(nullptr, 5));
    EXPECT_EQ(0, NUMFLD_GetValue(nullptr));
    NUMFLD_SetLimits(nullptr, 1, 2);
}

TEST_F(NumericField, StepsBetweenItsLimits) {
    NUMFLD_SetLimits(field_, 1, 12);
    EXPECT_EQ("12", Stepped("11", SB_LINEUP));
    EXPECT_EQ("12", Stepped("12", SB_LINEUP));
    EXPECT_EQ("1", Stepped("1", SB_LINEDOWN));
    EXPECT_EQ("1", Stepped("", SB_LINEUP));
    EXPECT_EQ("15", Stepped("15", SB_LINEUP));
    EXPECT_EQ("14", Stepped("15", SB_LINEDOWN)) << "towards the limits from outside";
    EXPECT_EQ("1", Stepped("0", SB_LINEUP));
    EXPECT_EQ("0", Stepped("0", SB_LINEDOWN));
    EXPECT_EQ("7", Stepped("007", SB_ENDSCROLL)) << "every code writes the text anew";
    EXPECT_EQ("-5", Stepped("-5", SB_LINEDOWN)) << "too long as the unsigned number it is taken for";
    std::string const long32(32, '0');
    EXPECT_EQ(long32, Stepped(long32.c_str(), SB_LINEUP));
    std::string const long31(31, '0');
    EXPECT_EQ("1", Stepped(long31.c_str(), SB_LINEUP));

    NUMFLD_SetLimits(field_, 0, 100000);
    EXPECT_EQ("99999", Stepped("99998", SB_LINEUP));
    EXPECT_EQ("99999", Stepped("99999", SB_LINEUP)) << "there is no room for a sixth digit";
    NUMFLD_SetLimits(field_, 10, 5);
    EXPECT_EQ("7", Stepped("7", SB_LINEUP));
    EXPECT_EQ("7", Stepped("7", SB_LINEDOWN));
    NUMFLD_SetLimits(field_, 0, 4294967295u);
    SendMessageA(field_, EM_LIMITTEXT, 10, 0);
    EXPECT_EQ("4294967295", Stepped("4294967294", SB_LINEUP));
    EXPECT_EQ("4294967295", Stepped("4294967295", SB_LINEUP));
    EXPECT_EQ("4294967294", Stepped("4294967295", SB_LINEDOWN));
}

TEST_F(NumericField, BeforeTheLimitsAreSetOnlyDownIsPossible) {
    EXPECT_EQ("5", Stepped("5", SB_LINEUP));
    EXPECT_EQ("4", Stepped("5", SB_LINEDOWN));
    EXPECT_EQ("0", Stepped("0", SB_LINEDOWN));
}

TEST_F(NumericField, ParentMayEndItWhileItSteps) {
    NUMFLD_SetLimits(field_, 0, 9);
    host_.answer = [this](Message const& message) -> std::optional<LRESULT> {
        if (message.id == WM_COMMAND && HIWORD(message.wParam) == EN_CHANGE && IsWindow(field_)) {
            DestroyWindow(field_);
        }
        return std::nullopt;
    };
    SendMessageA(field_, WM_VSCROLL, SB_LINEUP, 0);
    EXPECT_FALSE(IsWindow(field_));
    host_.answer = nullptr;
}

TEST_F(NumericField, TakesAForeignPropertyAlong) {
    EXPECT_EQ(nullptr, GetPropA(field_, "NumField_IsValid"));
    SetPropA(field_, "NumField_IsValid", reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(1)));
    DestroyWindow(field_);
    EXPECT_FALSE(IsWindow(field_));
}

}  // namespace
