// The "combobox" class: its three kinds, the dropped list under mouse and keyboard, notifications, owner drawing.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace {

using tests::ComboField;
using tests::ComboList;
using Notified = std::vector<int>;

class ComboBoxTest : public ::testing::Test {
  protected:
    static inline std::vector<int> notified;
    static inline std::string textAtChange;
    static inline std::vector<UINT> measured;
    static inline std::vector<DRAWITEMSTRUCT> drawn;
    static std::string TextOf(HWND window) {
        char text[64] = "";
        SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
            case WM_COMMAND:
                // Windows tells of more.
                for (const int code : {CBN_SELCHANGE, CBN_DROPDOWN, CBN_CLOSEUP, CBN_EDITCHANGE, CBN_KILLFOCUS})
                    if (HIWORD(wParam) == code)
                        notified.push_back(code);
                if (HIWORD(wParam) == CBN_SELCHANGE)
                    textAtChange = TextOf(reinterpret_cast<HWND>(lParam));
                return 0;
            case WM_MEASUREITEM:
                measured.push_back(reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam)->itemID);
                reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 18;
                return TRUE;
            case WM_DRAWITEM:
                drawn.push_back(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
                return TRUE;
            default:
                return DefWindowProcA(window, message, wParam, lParam);
        }
    }

    void SetUp() override {
        parent_ = tests::MakeOwner(ParentProcedure);
        SetActiveWindow(parent_);
        Forget();
    }
    void TearDown() override {
        DestroyWindow(parent_);
    }
    static void Forget() {
        notified.clear();
        measured.clear();
        drawn.clear();
        textAtChange.clear();
    }
    HWND Make(DWORD style, int height = 100) {
        return CreateWindowExA(0, "combobox", "", WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, 10, 10, 120, height,
                               parent_, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(55)), nullptr, nullptr);
    }
    HWND Filled(DWORD style) {
        const HWND combo = Make(style);
        for (const char* text : {"ant", "bee", "cat", "dog"})
            Send(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        return combo;
    }
    static LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(window, message, wParam, lParam);
    }
    /// The middle of an item of the list.
    static LPARAM ItemPoint(HWND list, int index) {
        RECT rect{};
        Send(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
        return MAKELPARAM(rect.left + 5, (rect.top + rect.bottom) / 2);
    }
    static int Height(HWND window) {
        RECT rect{};
        GetWindowRect(window, &rect);
        return rect.bottom - rect.top;
    }

    HWND parent_ = nullptr;
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
    EXPECT_EQ("", TextOf(list));
    EXPECT_EQ(2, Send(list, CB_SETCURSEL, 2));
    EXPECT_EQ("cat", TextOf(list));
    EXPECT_EQ(CB_ERR, Send(list, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("x")));
    EXPECT_EQ(CB_ERR, Send(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>("be")));
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
    EXPECT_EQ("", TextOf(list));
    const HWND edit = Filled(CBS_DROPDOWN | CBS_SORT);
    EXPECT_EQ(1, Send(edit, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("ape")));
    SetWindowTextA(edit, "typed");
    EXPECT_EQ("typed", TextOf(edit));
    Send(edit, CB_SETCURSEL, 2);
    EXPECT_EQ("bee", TextOf(ComboField(edit)));
    EXPECT_EQ(CB_ERR, Send(edit, CB_SETCURSEL, static_cast<WPARAM>(-1)));
    EXPECT_EQ("", TextOf(edit));
    Send(edit, CB_RESETCONTENT);
    EXPECT_EQ(0, Send(edit, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("first")));
    EXPECT_TRUE(notified.empty()) << "messages do not notify";
}

TEST_F(ComboBoxTest, FocusIsThatOfTheWhole) {
    const HWND combo = Filled(CBS_DROPDOWN);
    const HWND edit = ComboField(combo);
    SetFocus(combo);
    EXPECT_EQ(edit, GetFocus());
    SetFocus(parent_);
    EXPECT_EQ(Notified{CBN_KILLFOCUS}, notified);
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
    Send(list, WM_MOUSEMOVE, 0, ItemPoint(list, 2));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, ItemPoint(list, 2));
    Send(list, WM_LBUTTONUP, 0, ItemPoint(list, 2));
    EXPECT_FALSE(IsWindowVisible(ComboList(combo)));
    EXPECT_FALSE(IsWindowVisible(list));
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ((Notified{CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELCHANGE}), notified);
    EXPECT_EQ("ant", textAtChange) << "the edit control changes last";
    EXPECT_EQ("cat", TextOf(combo));
}

TEST_F(ComboBoxTest, ClosedWithoutAChoice) {
    const HWND combo = Filled(CBS_DROPDOWNLIST);
    const HWND list = ComboList(combo);
    SetFocus(combo);
    Send(combo, CB_SETCURSEL, 1);
    Forget();
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    Send(list, WM_MOUSEMOVE, 0, ItemPoint(list, 3));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(300, 300));
    EXPECT_EQ((Notified{CBN_DROPDOWN, CBN_CLOSEUP}), notified) << "a click elsewhere";
    EXPECT_EQ(1, Send(combo, CB_GETCURSEL));
    Forget();
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    Send(combo, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ((Notified{CBN_DROPDOWN, CBN_CLOSEUP}), notified);
    Forget();
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    SetFocus(parent_);
    EXPECT_EQ((Notified{CBN_DROPDOWN, CBN_CLOSEUP, CBN_KILLFOCUS}), notified);
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
    EXPECT_EQ(Notified{CBN_SELCHANGE}, notified);
    EXPECT_EQ("bee", TextOf(combo));
    Send(combo, WM_CHAR, 'd', 1);
    EXPECT_EQ("dog", TextOf(combo));
    Send(combo, WM_KEYDOWN, VK_F4, 1);
    EXPECT_TRUE(IsWindowVisible(ComboList(combo)));
    Forget();
    Send(combo, WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(Notified{CBN_SELCHANGE}, notified);
    MSG escape{combo, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_TRUE(Send(combo, WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)) & DLGC_WANTMESSAGE)
        << "it closes the list, not the dialog";
    Send(combo, WM_KEYDOWN, VK_F4, 1);
    EXPECT_FALSE(IsWindowVisible(ComboList(combo)));
    EXPECT_EQ("cat", TextOf(combo));
}

TEST_F(ComboBoxTest, TypingNotifiesAndKeysOfTheEditControlReachTheList) {
    const HWND combo = Filled(CBS_DROPDOWN);
    const HWND edit = ComboField(combo);
    SetFocus(combo);
    Forget();
    Send(edit, WM_CHAR, 'c', 1);
    EXPECT_EQ(Notified{CBN_EDITCHANGE}, notified);
    Send(edit, WM_CHAR, 'a', 1);
    Send(edit, WM_KEYDOWN, VK_F4, 1);
    EXPECT_EQ(2, Send(combo, CB_GETCURSEL)) << "it opens at what begins so";
    Send(edit, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ("dog", TextOf(combo));
    Send(edit, WM_KEYDOWN, VK_F4, 1);
    EXPECT_FALSE(IsWindowVisible(ComboList(combo)));
}

TEST_F(ComboBoxTest, ASimpleOneHasItsListInView) {
    const HWND combo = Filled(CBS_SIMPLE);
    const HWND list = ComboList(combo);
    EXPECT_TRUE(IsWindowVisible(list));
    EXPECT_EQ(combo, GetParent(list));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, ItemPoint(list, 1));
    Send(list, WM_LBUTTONUP, 0, ItemPoint(list, 1));
    EXPECT_EQ("bee", TextOf(combo));
    EXPECT_EQ(ComboField(combo), GetFocus());
    EXPECT_EQ(CBN_SELCHANGE, notified.back());
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
    EXPECT_NE(measured.end(), std::find(measured.begin(), measured.end(), UINT(-1))) << "the field";
    EXPECT_NE(measured.end(), std::find(measured.begin(), measured.end(), 0U)) << "the items";
    EXPECT_EQ(18, Send(ComboList(combo), LB_GETITEMHEIGHT));
    Send(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one"));
    Send(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("two"));
    Send(combo, CB_SETITEMDATA, 1, 9);
    Send(combo, CB_SETCURSEL, 1);
    drawn.clear();
    InvalidateRect(combo, nullptr, TRUE);
    UpdateWindow(combo);
    ASSERT_FALSE(drawn.empty());
    const DRAWITEMSTRUCT field = drawn.back();
    EXPECT_EQ(UINT{ODT_COMBOBOX}, field.CtlType);
    EXPECT_EQ(55U, field.CtlID);
    EXPECT_EQ(1U, field.itemID);
    EXPECT_EQ(9U, field.itemData);
    EXPECT_EQ(combo, field.hwndItem);
    EXPECT_EQ(UINT{ODS_COMBOBOXEDIT}, field.itemState);
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
