// The "combobox" class: its three kinds, the dropped list under mouse and keyboard, notifications, owner drawing.
#include "tests/platform/support/controls.h"

namespace {

using tests::ComboField;
using tests::ComboList;
using Codes = std::vector<UINT>;

class ComboBoxTest : public tests::Controls {
  protected:
    void SetUp() override {
        Controls::SetUp();
        heard = {CBN_SELCHANGE, CBN_DROPDOWN, CBN_CLOSEUP, CBN_EDITCHANGE, CBN_KILLFOCUS};
    }
    HWND Make(DWORD style, int height = 100) {
        return MakeControl("combobox", "", WS_VSCROLL | style, 120, height);
    }
    HWND Filled(DWORD style) {
        const HWND combo = Make(style);
        for (const char* text : {"ant", "bee", "cat", "dog"})
            SendText(combo, CB_ADDSTRING, 0, text);
        return combo;
    }
    static int Height(HWND window) {
        const RECT place = tests::PlaceOf(window);
        return place.bottom - place.top;
    }
};

TEST_F(ComboBoxTest, AClosedOneIsAsHighAsItsField) {
    const HWND combo = Filled(CBS_DROPDOWNLIST);
    const int closed = Height(combo);
    EXPECT_GT(closed, 10);
    EXPECT_LT(closed, 40);
    MoveWindow(combo, 10, 10, 90, 140, TRUE);
    EXPECT_EQ(closed, Height(combo)) << "the rest is for the list";
    EXPECT_FALSE(GetWindowLongA(combo, GWL_STYLE) & WS_VSCROLL) << "the scroll bar is the list's";
    EXPECT_EQ(120, Height(Make(CBS_SIMPLE, 120)));
}

TEST_F(ComboBoxTest, ContentsSelectionAndText) {
    const HWND list = Filled(CBS_DROPDOWNLIST);
    EXPECT_EQ(CB_ERR, Send(list, CB_GETCURSEL));
    EXPECT_EQ("", Text(list));
    EXPECT_EQ(2, Send(list, CB_SETCURSEL, 2));
    EXPECT_EQ("cat", Text(list));
    EXPECT_EQ(CB_ERR, Send(list, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("x")));
    EXPECT_EQ(CB_ERR, SendText(list, CB_FINDSTRINGEXACT, -1, "be"));
    Send(list, CB_SETITEMDATA, 1, 12);
    EXPECT_EQ(12, Send(list, CB_GETITEMDATA, 1));
    const auto count = Send(list, CB_GETCOUNT);
    char text[16] = "";
    EXPECT_EQ(3, Send(list, CB_GETLBTEXT, 2, reinterpret_cast<LPARAM>(text)));
    EXPECT_STREQ("cat", text);
    EXPECT_EQ(3, Send(list, CB_GETLBTEXTLEN, 2));
    EXPECT_EQ(CB_ERR, Send(list, CB_DELETESTRING, static_cast<WPARAM>(count)));
    EXPECT_EQ(count - 1, Send(list, CB_DELETESTRING, 2)) << "with the one that was chosen";
    EXPECT_EQ(CB_ERR, Send(list, CB_GETCURSEL));
    EXPECT_EQ("", Text(list));
    const HWND edit = Filled(CBS_DROPDOWN | CBS_SORT);
    EXPECT_EQ(1, SendText(edit, CB_ADDSTRING, 0, "ape"));
    SetWindowTextA(edit, "typed");
    EXPECT_EQ("typed", Text(edit));
    Send(edit, CB_SETCURSEL, 2);
    EXPECT_EQ("bee", Text(ComboField(edit)));
    EXPECT_EQ(CB_ERR, Send(edit, CB_SETCURSEL, static_cast<WPARAM>(-1)));
    EXPECT_EQ("", Text(edit));
    Send(edit, CB_RESETCONTENT);
    EXPECT_EQ(0, SendText(edit, CB_ADDSTRING, 0, "first"));
    EXPECT_TRUE(notified.empty()) << "messages do not notify";
}

TEST_F(ComboBoxTest, FocusIsThatOfTheWhole) {
    const HWND combo = Filled(CBS_DROPDOWN);
    const HWND edit = ComboField(combo);
    SetFocus(combo);
    EXPECT_EQ(edit, GetFocus());
    SetFocus(parent_);
    EXPECT_EQ(Codes{CBN_KILLFOCUS}, notified);
    EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTCHARS, Send(combo, WM_GETDLGCODE));
    EnableWindow(combo, FALSE);
    EXPECT_FALSE(IsWindowEnabled(edit));
}

TEST_F(ComboBoxTest, ClickingAnItemTakesIt) {
    const HWND combo = Filled(CBS_DROPDOWN);
    const HWND list = ComboList(combo);
    RECT client{};
    GetClientRect(combo, &client);
    const POINT arrow{client.right - 8, client.bottom / 2};
    SetFocus(combo);
    Send(combo, CB_SETCURSEL, 0);
    Forget();
    Send(combo, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(arrow.x, arrow.y));
    EXPECT_TRUE(IsWindowVisible(ComboList(combo)));
    EXPECT_TRUE(IsWindowVisible(list));
    EXPECT_NE(nullptr, GetCapture());
    EXPECT_EQ(ComboField(combo), GetFocus());
    // Whoever has the mouse while the arrow is held hears that it is let go.
    POINT point{10 + arrow.x, 10 + arrow.y};
    MapWindowPoints(parent_, GetCapture(), &point, 1);
    Send(GetCapture(), WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(list, GetCapture());
    EXPECT_TRUE(IsWindowVisible(ComboList(combo))) << "it stays down when the arrow is let go";
    Send(list, WM_MOUSEMOVE, 0, PointIn(list, 2));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, PointIn(list, 2));
    Send(list, WM_LBUTTONUP, 0, PointIn(list, 2));
    EXPECT_FALSE(IsWindowVisible(ComboList(combo)));
    EXPECT_FALSE(IsWindowVisible(list));
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ((Codes{CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELCHANGE}), notified);
    EXPECT_EQ("ant", textAtNotice) << "the edit control changes last";
    EXPECT_EQ("cat", Text(combo));
}

TEST_F(ComboBoxTest, ClosedWithoutAChoice) {
    const HWND combo = Filled(CBS_DROPDOWNLIST);
    const HWND list = ComboList(combo);
    SetFocus(combo);
    Send(combo, CB_SETCURSEL, 1);
    Forget();
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    Send(list, WM_MOUSEMOVE, 0, PointIn(list, 3));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(300, 300));
    EXPECT_EQ((Codes{CBN_DROPDOWN, CBN_CLOSEUP}), notified) << "a click elsewhere";
    EXPECT_EQ(1, Send(combo, CB_GETCURSEL));
    Forget();
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    Send(combo, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ((Codes{CBN_DROPDOWN, CBN_CLOSEUP}), notified);
    Forget();
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    SetFocus(parent_);
    EXPECT_EQ((Codes{CBN_DROPDOWN, CBN_CLOSEUP, CBN_KILLFOCUS}), notified);
    EXPECT_EQ(nullptr, GetCapture());
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    DestroyWindow(combo);
    EXPECT_FALSE(IsWindow(list));
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(ComboBoxTest, KeysWhileClosedAndDropped) {
    const HWND combo = Filled(CBS_DROPDOWNLIST);
    SetFocus(combo);
    Send(combo, CB_SETCURSEL, 0);
    Forget();
    Send(combo, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Codes{CBN_SELCHANGE}, notified);
    EXPECT_EQ("bee", Text(combo));
    Send(combo, WM_CHAR, 'd', 1);
    EXPECT_EQ("dog", Text(combo));
    Send(combo, WM_KEYDOWN, VK_F4, 1);
    EXPECT_TRUE(IsWindowVisible(ComboList(combo)));
    Forget();
    Send(combo, WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(Codes{CBN_SELCHANGE}, notified);
    MSG escape{combo, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_TRUE(Send(combo, WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)) & DLGC_WANTMESSAGE)
        << "it closes the list, not the dialog";
    Send(combo, WM_KEYDOWN, VK_F4, 1);
    EXPECT_FALSE(IsWindowVisible(ComboList(combo)));
    EXPECT_EQ("cat", Text(combo));
}

TEST_F(ComboBoxTest, TypingNotifiesAndKeysOfTheEditControlReachTheList) {
    const HWND combo = Filled(CBS_DROPDOWN);
    const HWND edit = ComboField(combo);
    SetFocus(combo);
    Forget();
    Send(edit, WM_CHAR, 'c', 1);
    EXPECT_EQ(Codes{CBN_EDITCHANGE}, notified);
    Send(edit, WM_CHAR, 'a', 1);
    Send(edit, WM_KEYDOWN, VK_F4, 1);
    EXPECT_EQ(2, Send(combo, CB_GETCURSEL)) << "it opens at what begins so";
    Send(edit, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ("dog", Text(combo));
    Send(edit, WM_KEYDOWN, VK_F4, 1);
    EXPECT_FALSE(IsWindowVisible(ComboList(combo)));
}

TEST_F(ComboBoxTest, ASimpleOneHasItsListInView) {
    const HWND combo = Filled(CBS_SIMPLE);
    const HWND list = ComboList(combo);
    EXPECT_TRUE(IsWindowVisible(list));
    EXPECT_EQ(combo, GetParent(list));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, PointIn(list, 1));
    Send(list, WM_LBUTTONUP, 0, PointIn(list, 1));
    EXPECT_EQ("bee", Text(combo));
    EXPECT_EQ(ComboField(combo), GetFocus());
    EXPECT_EQ(UINT{CBN_SELCHANGE}, notified.back());
}

// Its list does not scroll, and hands nothing back.
TEST_F(ComboBoxTest, TheWheelOverAShortSimpleOneComesToAnEnd) {
    const HWND combo = Filled(CBS_SIMPLE);
    const HWND list = FindWindowExA(combo, nullptr, "ComboLBox", nullptr);
    ASSERT_NE(nullptr, list);
    for (const HWND window : {combo, list}) {
        Send(window, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    }
    EXPECT_EQ(0, Send(list, LB_GETTOPINDEX));
}

TEST_F(ComboBoxTest, AnOwnerDrawsFieldAndItems) {
    const HWND combo = Make(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    for (const UINT item : {UINT(-1), UINT{0}}) {  // the field and the items
        EXPECT_TRUE(
            std::any_of(measured.begin(), measured.end(), [=](const auto& each) { return each.itemID == item; }));
    }
    EXPECT_EQ(17, Send(ComboList(combo), LB_GETITEMHEIGHT));
    SendText(combo, CB_ADDSTRING, 0, "one");
    SendText(combo, CB_ADDSTRING, 0, "two");
    Send(combo, CB_SETITEMDATA, 1, 9);
    Send(combo, CB_SETCURSEL, 1);
    drawn.clear();
    InvalidateRect(combo, nullptr, TRUE);
    UpdateWindow(combo);
    ASSERT_FALSE(drawn.empty());
    const DRAWITEMSTRUCT field = drawn.back();
    ExpectDrawn(field, ODT_COMBOBOX, 1, 9, field.itemAction, ODS_COMBOBOXEDIT);
    EXPECT_EQ(combo, field.hwndItem);
    drawn.clear();
    Send(combo, WM_KEYDOWN, VK_F4, 1);
    UpdateWindow(ComboList(combo));
    const auto second = std::find_if(drawn.begin(), drawn.end(), [](const DRAWITEMSTRUCT& item) {
        return item.itemID == 1 && !(item.itemState & ODS_COMBOBOXEDIT);
    });
    ASSERT_NE(drawn.end(), second);
    EXPECT_TRUE(second->itemState & ODS_SELECTED);
    EXPECT_EQ(combo, second->hwndItem);
    Send(combo, WM_KEYDOWN, VK_ESCAPE, 1);
}

INT_PTR CALLBACK DialogProcedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

TEST_F(ComboBoxTest, InADialogTabLeavesIt) {
    tests::DialogBuilder builder(WS_POPUP | WS_VISIBLE | DS_SETFONT);
    builder.Title("", "MS Sans Serif")
        .Item("combobox", "", 1, CBS_DROPDOWN | WS_TABSTOP, 4, 8, 60, 80)
        .NumberedItem(0x0085, "", 2, CBS_DROPDOWNLIST | WS_TABSTOP, 4, 30, 60, 80)
        .NumberedItem(0x0083, "", 3, LBS_NOTIFY | WS_TABSTOP, 4, 50, 60, 30);
    const HWND dialog = CreateDialogIndirectParamA(nullptr, builder.Data(), parent_, DialogProcedure, 0);
    ASSERT_NE(nullptr, dialog);
    const HWND edit = ComboField(GetDlgItem(dialog, 1));
    EXPECT_EQ(edit, GetFocus());
    tests::DialogKey(dialog, edit, VK_TAB);
    EXPECT_EQ(GetDlgItem(dialog, 2), GetFocus());
    tests::DialogKey(dialog, GetFocus(), VK_TAB);
    EXPECT_EQ(GetDlgItem(dialog, 3), GetFocus());
    {
        const tests::KeyHeld shift(VK_SHIFT);
        tests::DialogKey(dialog, GetFocus(), VK_TAB);
        tests::DialogKey(dialog, GetFocus(), VK_TAB);
    }
    EXPECT_EQ(edit, GetFocus());
    DestroyWindow(dialog);
}

}  // namespace
