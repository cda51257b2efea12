// The "edit" class with several lines: wrapping, line breaks, scrolling, notifications.
#include "tests/platform/support/edit_control.h"

namespace {

using tests::EditControl;
using tests::KeyHeld;

class EditLines : public EditControl {
  protected:
    HWND MakeLines(DWORD style, const char* text, int width = 120) {
        return Make(ES_MULTILINE | style, text, width, 60);
    }
};

TEST_F(EditLines, BreaksAtLineEndsAndWhereTheWidthEnds) {
    const HWND fixed = MakeLines(ES_AUTOHSCROLL | ES_AUTOVSCROLL, "one\r\n\r\nthree");
    const LONG top = PlaceOf(fixed, 0).y;
    const LONG line = PlaceOf(fixed, 5).y - top;
    EXPECT_GT(line, 0);
    EXPECT_EQ(top, PlaceOf(fixed, 3).y);
    EXPECT_EQ(top + 2 * line, PlaceOf(fixed, 7).y);
    EXPECT_EQ(PlaceOf(fixed, 0).x, PlaceOf(fixed, 7).x);
    const std::string words = "several words that are longer than the control is wide";
    const HWND wrapped = MakeLines(ES_AUTOVSCROLL, words.c_str());
    int breaks = 0;
    for (std::size_t at = 1; at < words.size(); ++at) {
        if (PlaceOf(wrapped, static_cast<int>(at)).y != PlaceOf(wrapped, static_cast<int>(at) - 1).y) {
            EXPECT_EQ(' ', words[at - 1]) << "lines end between words: " << at;
            ++breaks;
        }
    }
    EXPECT_GE(breaks, 1);
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
    for (int i = 0; i < 3; ++i)
        Send(edit, WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(top, PlaceOf(edit, 9).y) << "the fourth line is the first to be seen";
    Send(edit, WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(top, PlaceOf(edit, 6).y);
    const KeyHeld control(VK_CONTROL);
    Key(edit, VK_HOME);
    EXPECT_EQ(top, PlaceOf(edit, 0).y);
}

std::vector<int> commands;
int closed = 0;

INT_PTR CALLBACK CountEnds(HWND, UINT message, WPARAM wParam, LPARAM) {
    closed += message == WM_CLOSE;
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED)
        commands.push_back(LOWORD(wParam));
    return message == WM_INITDIALOG;
}

TEST_F(EditLines, InADialogKeepEnterAndLeaveItTabAndEscape) {
    tests::DialogBuilder builder(WS_POPUP | WS_CAPTION | WS_VISIBLE);
    builder.Title("lines");
    for (const short id : {1, 2}) {
        builder.Item("edit", "", id, WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, 5,
                     static_cast<short>(30 * id), 100, 20);
    }
    builder.Item("button", "OK", 3, BS_DEFPUSHBUTTON | WS_TABSTOP, 5, 100, 50, 14);
    const HWND dialog = CreateDialogIndirectParamA(nullptr, builder.Data(), parent_, CountEnds, 0);
    ASSERT_NE(nullptr, dialog);
    commands.clear();
    closed = 0;
    /// Presses a key in a field, and lets all that comes of it happen.
    const auto press = [=](int id, WPARAM key) {
        SetFocus(GetDlgItem(dialog, id));
        tests::DialogKey(dialog, GetFocus(), key);
        for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);) {
            if (!IsDialogMessageA(dialog, &message))
                DispatchMessageA(&message);
        }
        return GetDlgCtrlID(GetFocus());
    };
    EXPECT_EQ(2, press(1, VK_TAB));
    EXPECT_EQ(3, press(2, VK_TAB));
    EXPECT_EQ(2, press(2, VK_RETURN));
    EXPECT_EQ("\r\n", Text(GetDlgItem(dialog, 2)));
    EXPECT_EQ("", Text(GetDlgItem(dialog, 1)));
    {
        const KeyHeld shift(VK_SHIFT);
        EXPECT_EQ(1, press(2, VK_TAB));
    }
    EXPECT_EQ(std::vector<int>{}, commands);
    press(1, VK_ESCAPE);
    EXPECT_EQ(1, closed);
    EXPECT_EQ(std::vector<int>{IDCANCEL}, commands);
    DestroyWindow(dialog);
}

TEST_F(EditLines, OnlyTheUsersChangesAreTold) {
    const HWND edit = MakeLines(ES_AUTOVSCROLL, "text");
    SetWindowTextA(edit, "other");
    EXPECT_EQ(std::vector<UINT>{}, TakeNotified());
    Type(edit, "x");
    EXPECT_EQ((std::vector<UINT>{EN_UPDATE, EN_CHANGE}), TakeNotified());
}

}  // namespace
