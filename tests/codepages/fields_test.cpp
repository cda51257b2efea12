// Fields with double-byte characters: a time separator of two bytes moves what stands behind it, and carets never stop inside
// a character.
#include <cvutil32/timectrl.h>

#include "tests/support/clock_settings.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using testing_support::ClockSettings;

/// A character of two bytes whose second one looks like a letter.
std::string TwoBytes() {
    switch (GetACP()) {
        case 932:
            return "\x83\x41";
        case 950:
            return "\xA4\x41";
        default:
            return "\x81\x41";
    }
}

class DoubleByteFields : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(IsDBCSLeadByte(static_cast<BYTE>(TwoBytes()[0]))) << GetACP();
    }

    HWND Create(LPCSTR name, DWORD style) const {
        HWND const field = testing_support::MakeChild(host_, name, style, {10, 10, 210, 36});
        SetForegroundWindow(host_);
        SetFocus(field);
        return field;
    }
    static void Type(HWND field, std::string const& text) {
        for (char const character : text) {
            SendMessageA(field, WM_CHAR, static_cast<BYTE>(character), 1);
        }
    }
    static void Key(HWND field, WPARAM key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            SendMessageA(field, WM_KEYDOWN, key, 1);
        }
    }
    static std::string Time(HWND field) {
        SYSTEMTIME time = {};
        char text[20] = "none";
        if (TIMECTRL_GetTime(field, &time)) {
            wsprintfA(text, "%d:%02d:%02d", time.wHour, time.wMinute, time.wSecond);
        }
        return text;
    }

    testing_support::TestWindow const host_;
};

TEST_F(DoubleByteFields, TimeIsTypedPastSeparatorsOfTwoBytes) {
    for (bool const afternoon : {false, true}) {
        ClockSettings const clock(afternoon ? "hh:mm:ss tt" : "HH:mm:ss", TwoBytes().c_str());
        HWND const field = Create(TIMECTRL_CLASSNAME, 0);
        SYSTEMTIME time = {};
        time.wHour = 1;
        ASSERT_TRUE(TIMECTRL_SetTime(field, &time, TRUE));
        Type(field, "112233");
        EXPECT_EQ("11:22:33", Time(field));
        if (afternoon) {
            Type(field, "p");
            EXPECT_EQ("23:22:33", Time(field)) << "the caret has come to the designator";
        }
        // Two digits and the separator as one character are three steps.
        Key(field, VK_HOME);
        Key(field, VK_RIGHT, 3);
        SendMessageA(field, WM_VSCROLL, SB_LINEUP, 0);
        EXPECT_EQ(afternoon ? "23:23:33" : "11:23:33", Time(field)) << "the minute";
        Key(field, VK_LEFT);
        SendMessageA(field, WM_VSCROLL, SB_LINEUP, 0);
        Type(field, "5");
        EXPECT_EQ(afternoon ? "23:23:33" : "11:23:33", Time(field)) << "on the separator nothing happens";
        Key(field, VK_LEFT);
        Type(field, "0");
        EXPECT_EQ(afternoon ? "22:23:33" : "10:23:33", Time(field)) << "the units of the hour";
        Key(field, VK_END);
        SendMessageA(field, WM_VSCROLL, SB_LINEDOWN, 0);
        EXPECT_EQ(afternoon ? "10:23:33" : "10:23:32", Time(field)) << "the last place of the text";
        DestroyWindow(field);
    }
}

TEST_F(DoubleByteFields, EditFieldsTakeCharactersWhole) {
    HWND const edit = Create("edit", ES_AUTOHSCROLL);
    std::string const pair = TwoBytes();
    auto const text = [edit] {
        char buffer[40] = "";
        GetWindowTextA(edit, buffer, sizeof buffer);
        return std::string(buffer);
    };
    Type(edit, "a" + pair + "b");
    EXPECT_EQ("a" + pair + "b", text());
    Key(edit, VK_LEFT, 2);
    EXPECT_EQ(MAKELONG(1, 1), SendMessageA(edit, EM_GETSEL, 0, 0));
    Key(edit, VK_DELETE);
    EXPECT_EQ("ab", text());
    Type(edit, pair + "\b");
    EXPECT_EQ("ab", text());
    SendMessageA(edit, EM_LIMITTEXT, 3, 0);
    Type(edit, pair);
    EXPECT_EQ("ab", text()) << "no half of a character";
    Type(edit, "x");
    EXPECT_EQ("axb", text());
}

}  // namespace
