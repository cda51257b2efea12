// The "edit" class with several lines: wrapping, line breaks, lines by number, scrolling, notifications.
#include "tests/platform/support/edit_control.h"

namespace {

using tests::EditControl;
using tests::KeyHeld;

class EditLines : public EditControl {
  protected:
    HWND MakeLines(DWORD style, const char* text, int width = 120) {
        return Make(ES_MULTILINE | style, text, width, 60);
    }
    static std::string Line(HWND edit, int index) {
        char text[80] = {79, 0};
        const LRESULT length = Send(edit, EM_GETLINE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
        return {text, static_cast<std::size_t>(length)};
    }
};

TEST_F(EditLines, BreaksAtLineEndsAndWhereTheWidthEnds) {
    const HWND fixed = MakeLines(ES_AUTOHSCROLL | ES_AUTOVSCROLL, "one\r\n\r\nthree");
    EXPECT_EQ(3, Send(fixed, EM_GETLINECOUNT));
    EXPECT_EQ("one", Line(fixed, 0));
    EXPECT_EQ("", Line(fixed, 1));
    EXPECT_EQ("three", Line(fixed, 2));
    EXPECT_EQ(5, Send(fixed, EM_LINEINDEX, 1));
    EXPECT_EQ(7, Send(fixed, EM_LINEINDEX, 2));
    EXPECT_EQ(-1, static_cast<int>(Send(fixed, EM_LINEINDEX, 3)));
    EXPECT_EQ(2, Send(fixed, EM_LINEFROMCHAR, 9));
    EXPECT_EQ(5, Send(fixed, EM_LINELENGTH, 9));

    const HWND wrapped = MakeLines(ES_AUTOVSCROLL, "several words that are longer than the control is wide");
    const auto count = static_cast<int>(Send(wrapped, EM_GETLINECOUNT));
    EXPECT_GE(count, 2);
    std::string all;
    for (int index = 0; index < count; ++index) {
        const std::string line = Line(wrapped, index);
        EXPECT_TRUE(index + 1 == count || line.back() == ' ') << "lines end between words: '" << line << "'";
        all += line;
    }
    EXPECT_EQ("several words that are longer than the control is wide", all);
}

TEST_F(EditLines, EnterBreaksTheLineAndKeysGoUpAndDown) {
    const HWND edit = MakeLines(ES_AUTOHSCROLL | ES_AUTOVSCROLL, "");
    SetFocus(edit);
    Type(edit, "ab\rcd\rx");
    EXPECT_EQ("ab\r\ncd\r\nx|", Marked(edit));
    Key(edit, VK_UP);
    Key(edit, VK_HOME);
    EXPECT_EQ("ab\r\n|cd\r\nx", Marked(edit));
    Key(edit, VK_LEFT);
    EXPECT_EQ("ab|\r\ncd\r\nx", Marked(edit)) << "over both bytes of the line end";
    Key(edit, VK_DELETE);
    EXPECT_EQ("ab|cd\r\nx", Marked(edit));
    Key(edit, VK_DOWN);
    EXPECT_EQ("abcd\r\nx|", Marked(edit));
    {
        const KeyHeld control(VK_CONTROL);
        Key(edit, VK_HOME);
    }
    EXPECT_EQ("|abcd\r\nx", Marked(edit));
}

TEST_F(EditLines, ScrollsLinesAndFollowsTheCaret) {
    const HWND edit = MakeLines(ES_AUTOHSCROLL | ES_AUTOVSCROLL, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9");
    const LONG top = PlaceOf(edit, 0).y;
    EXPECT_GT(PlaceOf(edit, 3).y, top);
    EXPECT_TRUE(Send(edit, EM_LINESCROLL, 0, 3));
    EXPECT_EQ(top, PlaceOf(edit, 9).y) << "the fourth line is the first to be seen";
    Send(edit, WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(top, PlaceOf(edit, 6).y);
    Select(edit, 0, 0);
    Send(edit, EM_SCROLLCARET);
    EXPECT_EQ(top, PlaceOf(edit, 0).y);
}

TEST_F(EditLines, OnlyTheUsersChangesAreTold) {
    const HWND edit = MakeLines(ES_AUTOVSCROLL, "text");
    SetWindowTextA(edit, "other");
    EXPECT_EQ(std::vector<UINT>{}, TakeNotified());
    Replace(edit, "x");
    EXPECT_EQ((std::vector<UINT>{EN_UPDATE, EN_CHANGE}), TakeNotified());
}

}  // namespace
