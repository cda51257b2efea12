// The "edit" class as a single-line field: text, typing, keys, limits, undo, styles, notifications.
#include "tests/platform/support/edit_control.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

using tests::EditControl;
using tests::KeyHeld;
using Codes = std::vector<UINT>;

class EditTest : public EditControl {};

TEST_F(EditTest, TypedTextReplacesTheSelectionAndNotifiesInOrder) {
    const HWND edit = Make(ES_AUTOHSCROLL, "hello");
    Select(edit, 1, 4);
    EXPECT_EQ("h[ell]o", Marked(edit));
    EXPECT_EQ(MAKELONG(1, 4), Send(edit, EM_GETSEL));
    Type(edit, "a");
    EXPECT_EQ("ha|o", Marked(edit));
    EXPECT_EQ((Codes{EN_UPDATE, EN_CHANGE}), TakeNotified());
    Type(edit, "\b\b");
    EXPECT_EQ("|o", Marked(edit));
    Type(edit, "\b\x1B\r\n");
    EXPECT_EQ("|o", Marked(edit)) << "keys that are no text";
}

TEST_F(EditTest, SelectionByNumbers) {
    const HWND edit = Make(ES_AUTOHSCROLL, "hello");
    Select(edit, 0, -1);
    EXPECT_EQ("[hello]", Marked(edit));
    Select(edit, -1, 0);
    EXPECT_EQ("hello|", Marked(edit));
    Select(edit, 4, 2);
    EXPECT_EQ("he[ll]o", Marked(edit));
    Select(edit, 3, 99);
    EXPECT_EQ("hel[lo]", Marked(edit));
    Select(edit, 99, 99);
    EXPECT_EQ("hello|", Marked(edit));
}

TEST_F(EditTest, KeysMoveAndSelect) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two  three");
    SetFocus(edit);
    struct Step {
        WPARAM key;
        bool control;
        bool shift;
        const char* after;
    };
    for (const Step& step :
         {Step{VK_RIGHT, false, false, "o|ne two  three"},
          Step{VK_DOWN, false, false, "on|e two  three"},  // to the right in one line
          Step{VK_UP, false, false, "o|ne two  three"}, Step{VK_LEFT, false, false, "|one two  three"},
          Step{VK_RIGHT, true, false, "one |two  three"}, Step{VK_RIGHT, true, false, "one two  |three"},
          Step{VK_LEFT, true, false, "one |two  three"}, Step{VK_RIGHT, true, true, "one [two  ]three"},
          Step{VK_LEFT, false, true, "one [two ] three"},
          Step{VK_HOME, false, true, "[one ]two  three"},  // the anchor stays
          Step{VK_END, false, true, "one [two  three]"}, Step{VK_END, false, false, "one two  three|"},
          Step{VK_HOME, false, false, "|one two  three"}, Step{VK_DELETE, false, false, "|ne two  three"}}) {
        const std::unique_ptr<KeyHeld> control(step.control ? new KeyHeld(VK_CONTROL) : nullptr);
        const std::unique_ptr<KeyHeld> shift(step.shift ? new KeyHeld(VK_SHIFT) : nullptr);
        Key(edit, step.key);
        EXPECT_EQ(step.after, Marked(edit)) << step.key;
    }
    Select(edit, 0, 3);
    Key(edit, VK_DELETE);
    EXPECT_EQ("|two  three", Marked(edit));
}

TEST_F(EditTest, LimitHoldsWhatTheUserEnters) {
    const HWND edit = Make();
    Send(edit, EM_LIMITTEXT, 3);
    EXPECT_EQ(3, Send(edit, EM_GETLIMITTEXT));
    Type(edit, "abc");
    TakeNotified();
    Type(edit, "d");
    EXPECT_EQ("abc|", Marked(edit));
    EXPECT_EQ(UINT{EN_MAXTEXT}, TakeNotified().at(0));
    Select(edit, 0, 2);
    Type(edit, "x");
    EXPECT_EQ("x|c", Marked(edit)) << "what is replaced makes room";
    TakeNotified();
    SetWindowTextA(edit, "longer text");
    EXPECT_EQ("longer text", Text(edit)) << "the application is not limited";
    EXPECT_EQ((Codes{EN_UPDATE, EN_CHANGE}), TakeNotified());
}

TEST_F(EditTest, WithoutScrollingTheTextEndsAtTheEdge) {
    const HWND edit = Make(0, "", 60);
    for (int i = 0; i < 40; ++i)
        Type(edit, "W");
    const int length = GetWindowTextLengthA(edit);
    EXPECT_GT(length, 0);
    EXPECT_LT(length, 40);
    EXPECT_EQ(40 - length, std::count(notified.begin(), notified.end(), UINT{EN_MAXTEXT})) << "once for each";
    const HWND scrolling = Make(ES_AUTOHSCROLL, "", 60);
    for (int i = 0; i < 40; ++i)
        Type(scrolling, "W");
    EXPECT_EQ(40, GetWindowTextLengthA(scrolling));
    EXPECT_LE(PlaceOf(scrolling, 40).x, 60) << "the caret has drawn the text along";
    Key(scrolling, VK_HOME);
    EXPECT_LT(PlaceOf(scrolling, 0).x, PlaceOf(scrolling, 1).x);
    EXPECT_GE(PlaceOf(scrolling, 0).x, 0);
}

TEST_F(EditTest, SetTextStartsAfresh) {
    const HWND edit = Make();
    Type(edit, "abc");
    TakeNotified();
    EXPECT_TRUE(SetWindowTextA(edit, "new"));
    EXPECT_EQ("|new", Marked(edit));
    EXPECT_TRUE(Send(edit, WM_UNDO)) << "always so for a single line";
    EXPECT_EQ("|new", Marked(edit)) << "there is nothing to take back";
    SetWindowTextA(edit, nullptr);
    EXPECT_EQ("|", Marked(edit));
}

TEST_F(EditTest, UndoTakesBackTheLastPieceOfWork) {
    const HWND edit = Make(ES_AUTOHSCROLL, "hello");
    Select(edit, 5, 5);
    Type(edit, " you");
    EXPECT_TRUE(Send(edit, WM_UNDO));
    EXPECT_EQ("hello", Text(edit)) << "typing is taken back as one";
    EXPECT_TRUE(Send(edit, WM_UNDO));
    EXPECT_EQ("hello you", Text(edit)) << "and undoing, too, can be undone";

    Select(edit, 0, 6);
    Send(edit, WM_CLEAR);
    EXPECT_EQ("|you", Marked(edit));
    Send(edit, WM_UNDO);
    EXPECT_EQ("hello you", Text(edit));
}

TEST_F(EditTest, StylesOfTheText) {
    const HWND upper = Make(ES_AUTOHSCROLL | ES_UPPERCASE, "x");
    Type(upper, "aB\xE4");
    EXPECT_EQ("AB\xC4X", Text(upper));
    const HWND lower = Make(ES_AUTOHSCROLL | ES_LOWERCASE);
    Type(lower, "aB");
    EXPECT_EQ("ab", Text(lower));
    const HWND number = Make(ES_AUTOHSCROLL | ES_NUMBER);
    Type(number, "-1a2 .3\b");
    EXPECT_EQ("12", Text(number));
}

TEST_F(EditTest, ReadOnlyTextCanBeReadOnly) {
    const HWND edit = Make(ES_AUTOHSCROLL, "fixed");
    Select(edit, 0, 2);
    Type(edit, "X");
    Select(edit, 0, 1);
    EXPECT_TRUE(Send(edit, EM_SETREADONLY, TRUE));
    EXPECT_TRUE(GetWindowLongA(edit, GWL_STYLE) & ES_READONLY);
    Type(edit, "x\b");
    Key(edit, VK_DELETE);
    for (const UINT message : {WM_CUT, WM_PASTE, WM_CLEAR, WM_UNDO})
        Send(edit, message);
    EXPECT_EQ("[X]xed", Marked(edit));
    Key(edit, VK_END);
    EXPECT_EQ("Xxed|", Marked(edit));
    SetWindowTextA(edit, "set");
    EXPECT_EQ("set", Text(edit));
    Send(edit, EM_SETREADONLY, FALSE);
    Type(edit, "x");
    EXPECT_EQ("xset", Text(edit));
}

TEST_F(EditTest, AlignmentMovesTheText) {
    const LONG left = PlaceOf(Make(ES_AUTOHSCROLL, "ab"), 0).x;
    const LONG centre = PlaceOf(Make(ES_CENTER, "ab"), 0).x;
    const LONG right = PlaceOf(Make(ES_RIGHT, "ab"), 0).x;
    EXPECT_GT(centre, left + 20);
    EXPECT_GT(right, centre + 20);
}

TEST_F(EditTest, FocusIsTold) {
    const HWND edit = Make(ES_AUTOHSCROLL, "hello");
    SetFocus(edit);
    EXPECT_EQ(Codes{EN_SETFOCUS}, TakeNotified());
    SetFocus(parent_);
    EXPECT_EQ(Codes{EN_KILLFOCUS}, TakeNotified());
}

TEST_F(EditTest, MouseSelects) {
    const HWND edit = Make(ES_AUTOHSCROLL, "one two three", 200);
    const auto at = [edit](int position) {
        const POINT place = PlaceOf(edit, position);
        return MAKELPARAM(place.x + 1, place.y + 3);
    };
    const LPARAM first = at(1);
    const LPARAM second = at(2);
    const LPARAM fifth = at(5);
    const LPARAM ninth = at(9);
    SetFocus(parent_);
    Send(edit, WM_LBUTTONDOWN, MK_LBUTTON, second);
    EXPECT_EQ(edit, GetFocus());
    EXPECT_EQ(edit, GetCapture());
    Send(edit, WM_MOUSEMOVE, MK_LBUTTON, fifth);
    EXPECT_EQ("on[e t]wo three", Marked(edit));
    Send(edit, WM_LBUTTONUP, 0, fifth);
    EXPECT_NE(edit, GetCapture());
    Send(edit, WM_MOUSEMOVE, 0, ninth);
    EXPECT_EQ("on[e t]wo three", Marked(edit)) << "the drag has ended";
    Send(edit, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, first);
    Send(edit, WM_LBUTTONUP, 0, first);
    EXPECT_EQ("o[n]e two three", Marked(edit)) << "Shift keeps the anchor";
    Send(edit, WM_LBUTTONDOWN, MK_LBUTTON, fifth);
    Send(edit, WM_LBUTTONUP, 0, fifth);
    Send(edit, WM_LBUTTONDBLCLK, MK_LBUTTON, fifth);
    Send(edit, WM_LBUTTONUP, 0, fifth);
    EXPECT_EQ("one [two ]three", Marked(edit));
}

TEST_F(EditTest, ParentMayEndTheControlInAnyNotification) {
    for (const UINT code : {EN_SETFOCUS, EN_UPDATE, EN_CHANGE, EN_MAXTEXT, EN_KILLFOCUS}) {
        const HWND edit = Make(ES_AUTOHSCROLL, "text");
        Send(edit, EM_LIMITTEXT, 5);
        destroyOn = code;
        SetFocus(edit);
        Type(edit, "x");
        Type(edit, "y");
        SetFocus(parent_);
        destroyOn = kNever;
        EXPECT_FALSE(IsWindow(edit)) << std::hex << code;
    }
}

TEST_F(EditTest, TabSelectsAll) {
    tests::DialogBuilder builder(WS_POPUP | WS_VISIBLE);
    builder.Title("").Item("edit", "first", 1, WS_TABSTOP | ES_AUTOHSCROLL, 5, 5, 60, 12);
    builder.Item("edit", "second", 2, WS_TABSTOP | ES_AUTOHSCROLL, 5, 25, 60, 12);
    const HWND dialog = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), builder.Data(), parent_, nullptr, 0);
    ASSERT_NE(nullptr, dialog);
    const HWND first = GetDlgItem(dialog, 1);
    SetFocus(first);
    tests::DialogKey(dialog, first, VK_TAB);
    const HWND second = GetDlgItem(dialog, 2);
    EXPECT_EQ(second, GetFocus());
    EXPECT_EQ("[second]", Marked(second));
    DestroyWindow(dialog);
}

}  // namespace
