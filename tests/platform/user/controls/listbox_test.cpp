// The "listbox" class: contents, order, selection, scrolling, mouse and keyboard, owner drawing.
#include "tests/platform/support/controls.h"

namespace {

class ListBoxTest : public tests::Controls {
  protected:
    void SetUp() override {
        Controls::SetUp();
        heard = {LBN_SELCHANGE, LBN_DBLCLK, LBN_SETFOCUS, LBN_KILLFOCUS};
    }
    HWND Make(DWORD style, int height = 100) {
        return MakeControl("listbox", "", LBS_NOTIFY | style, 120, height);
    }
    HWND Filled(DWORD style, std::initializer_list<const char*> texts) {
        const HWND list = Make(style);
        for (const char* text : texts)
            Add(list, text);
        return list;
    }
    static LRESULT Add(HWND list, const char* text) {
        return SendText(list, LB_ADDSTRING, 0, text);
    }
    static std::string ItemText(HWND list, int index) {
        char text[64] = "";
        return Send(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)) < 0 ? "none" : text;
    }
    static std::string All(HWND list) {
        std::string all;
        for (int i = 0; i < Send(list, LB_GETCOUNT); ++i)
            all += ItemText(list, i) + " ";
        return all;
    }
    static std::vector<int> Selected(HWND list) {
        std::vector<int> indexes(16);
        const LRESULT count = Send(list, LB_GETSELITEMS, indexes.size(), reinterpret_cast<LPARAM>(indexes.data()));
        indexes.resize(static_cast<size_t>(std::max<LRESULT>(count, 0)));
        return indexes;
    }
    static int ItemHeight(HWND list) {
        return static_cast<int>(Send(list, LB_GETITEMHEIGHT));
    }
};

using Codes = std::vector<UINT>;
using Indexes = std::vector<int>;

TEST_F(ListBoxTest, AddsInsertsSortsAndDeletes) {
    const HWND list = Filled(0, {"one", "two"});
    EXPECT_EQ(1, SendText(list, LB_INSERTSTRING, 1, "between"));
    EXPECT_EQ(3, SendText(list, LB_INSERTSTRING, -1, "last"));
    EXPECT_EQ(LB_ERR, SendText(list, LB_INSERTSTRING, 9, "too far"));
    EXPECT_EQ("one between two last ", All(list));
    EXPECT_EQ(7, Send(list, LB_GETTEXTLEN, 1));
    EXPECT_EQ(LB_ERR, Send(list, LB_GETTEXTLEN, 4));
    EXPECT_EQ(3, Send(list, LB_DELETESTRING, 0));
    EXPECT_EQ(LB_ERR, Send(list, LB_DELETESTRING, 3));
    EXPECT_EQ("between two last ", All(list));
    Send(list, LB_RESETCONTENT);
    EXPECT_EQ(0, Send(list, LB_GETCOUNT));

    const HWND sorted = Filled(LBS_SORT, {"pear", "Apple", "fig", "apple pie", "BANANA"});
    EXPECT_EQ("Apple apple pie BANANA fig pear ", All(sorted));
    EXPECT_EQ(3, Add(sorted, "cherry"));
}

TEST_F(ListBoxTest, FindsTextsAndKeepsValues) {
    const HWND list = Filled(0, {"alpha", "beta", "Alphabet", "gamma"});
    EXPECT_EQ(0, SendText(list, LB_FINDSTRING, -1, "ALPHA"));
    EXPECT_EQ(2, SendText(list, LB_FINDSTRING, 0, "alpha"));
    EXPECT_EQ(0, SendText(list, LB_FINDSTRING, 2, "alpha")) << "the search goes round";
    EXPECT_EQ(LB_ERR, SendText(list, LB_FINDSTRING, -1, "delta"));
    EXPECT_EQ(2, SendText(list, LB_FINDSTRINGEXACT, -1, "alphabet"));
    EXPECT_EQ(LB_ERR, SendText(list, LB_FINDSTRINGEXACT, -1, "alphab"));
    EXPECT_TRUE(notified.empty()) << "messages do not notify";
    EXPECT_TRUE(Send(list, LB_SETITEMDATA, 1, 4711));
    EXPECT_EQ(LB_ERR, Send(list, LB_SETITEMDATA, 4, 1));
    SendText(list, LB_INSERTSTRING, 0, "new");
    EXPECT_EQ(4711, Send(list, LB_GETITEMDATA, 2)) << "it moves along";
}

TEST_F(ListBoxTest, SingleSelection) {
    const HWND list = Filled(0, {"a", "b", "c", "d"});
    EXPECT_EQ(LB_ERR, Send(list, LB_GETCURSEL));
    EXPECT_EQ(2, Send(list, LB_SETCURSEL, 2));
    EXPECT_EQ(1, Send(list, LB_GETSEL, 2));
    EXPECT_EQ(0, Send(list, LB_GETSEL, 1));
    EXPECT_EQ(LB_ERR, Send(list, LB_GETSEL, 4));
    EXPECT_EQ(LB_ERR, Send(list, LB_SETCURSEL, 4));
    EXPECT_EQ(2, Send(list, LB_GETCURSEL)) << "an index that is none changes nothing";
    SendText(list, LB_INSERTSTRING, 0, "first");
    EXPECT_EQ(3, Send(list, LB_GETCURSEL));
    Send(list, LB_DELETESTRING, 3);
    EXPECT_EQ(LB_ERR, Send(list, LB_GETCURSEL));
    Send(list, LB_SETCURSEL, 1);
    EXPECT_EQ(LB_ERR, Send(list, LB_SETCURSEL, static_cast<WPARAM>(-1)));
    EXPECT_EQ(LB_ERR, Send(list, LB_GETCURSEL));
}

TEST_F(ListBoxTest, MultipleSelectionByMessages) {
    const HWND list = Filled(LBS_MULTIPLESEL, {"a", "b", "c", "d", "e"});
    EXPECT_EQ(LB_ERR, Send(list, LB_SETCURSEL, 1));
    Send(list, LB_SETSEL, TRUE, 1);
    Send(list, LB_SETSEL, TRUE, 3);
    EXPECT_EQ((Indexes{1, 3}), Selected(list));
    EXPECT_EQ(2, Send(list, LB_GETSELCOUNT));
    EXPECT_EQ(3, Send(list, LB_GETCARETINDEX));
    Send(list, LB_SELITEMRANGE, TRUE, MAKELPARAM(2, 4));
    EXPECT_EQ((Indexes{1, 2, 3, 4}), Selected(list));
    Send(list, LB_SELITEMRANGE, FALSE, MAKELPARAM(2, 3));
    EXPECT_EQ((Indexes{1, 4}), Selected(list));
    Send(list, LB_DELETESTRING, 0);
    EXPECT_EQ((Indexes{0, 3}), Selected(list));
    Send(list, LB_SETSEL, TRUE, -1);
    EXPECT_EQ(4, Send(list, LB_GETSELCOUNT));
    EXPECT_EQ(LB_ERR, Send(list, LB_SETSEL, TRUE, 9));
}

TEST_F(ListBoxTest, ClicksSelectAndNotify) {
    const HWND list = Filled(0, {"a", "b", "c", "d"});
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, PointIn(list, 1));
    EXPECT_EQ(list, GetCapture());
    EXPECT_EQ(list, GetFocus());
    EXPECT_EQ(1, Send(list, LB_GETCURSEL));
    Send(list, WM_MOUSEMOVE, MK_LBUTTON, PointIn(list, 2));
    EXPECT_EQ(2, Send(list, LB_GETCURSEL));
    EXPECT_EQ(Codes{LBN_SETFOCUS}, notified) << "the choice is not made yet";
    Send(list, WM_LBUTTONUP, 0, PointIn(list, 2));
    EXPECT_EQ((Codes{LBN_SETFOCUS, LBN_SELCHANGE}), notified);
    EXPECT_EQ(nullptr, GetCapture());
    notified.clear();
    Send(list, WM_LBUTTONDBLCLK, MK_LBUTTON, PointIn(list, 2));
    Send(list, WM_LBUTTONUP, 0, PointIn(list, 2));
    EXPECT_EQ(1, std::count(notified.begin(), notified.end(), UINT{LBN_DBLCLK}));
    notified.clear();
    SetFocus(parent_);
    EXPECT_EQ(Codes{LBN_KILLFOCUS}, notified);

    const HWND multiple = Filled(LBS_MULTIPLESEL, {"a", "b", "c", "d"});
    Click(multiple, 1);
    Click(multiple, 3);
    Click(multiple, 1);
    EXPECT_EQ(Indexes{3}, Selected(multiple));
    EXPECT_EQ(1, Send(multiple, LB_GETCURSEL)) << "the focus is where the last click was";
}

TEST_F(ListBoxTest, ExtendedSelectionByMouse) {
    const HWND list = Filled(LBS_EXTENDEDSEL, {"a", "b", "c", "d", "e"});
    Click(list, 1);
    Click(list, 3, MK_SHIFT);
    EXPECT_EQ((Indexes{1, 2, 3}), Selected(list));
    Click(list, 2, MK_CONTROL);
    EXPECT_EQ((Indexes{1, 3}), Selected(list));
    Click(list, 4);
    EXPECT_EQ(Indexes{4}, Selected(list));
    Send(list, WM_LBUTTONDOWN, MK_LBUTTON, PointIn(list, 0));
    Send(list, WM_MOUSEMOVE, MK_LBUTTON, PointIn(list, 2));
    EXPECT_EQ((Indexes{0, 1, 2}), Selected(list));
    Send(list, WM_MOUSEMOVE, MK_LBUTTON, PointIn(list, 1));
    EXPECT_EQ((Indexes{0, 1}), Selected(list)) << "a drag that goes back gives items up";
    Send(list, WM_LBUTTONUP, 0, PointIn(list, 1));
}

TEST_F(ListBoxTest, KeysMoveAndSelect) {
    const HWND list = Filled(0, {"ant", "bee", "cat", "bat", "cow", "dog"});
    SetFocus(list);
    Send(list, LB_SETCURSEL, 1);
    notified.clear();
    const auto press = [&](HWND window, WPARAM key) {
        Send(window, WM_KEYDOWN, key, 1);
        return Send(window, LB_GETCURSEL);
    };
    EXPECT_EQ(2, press(list, VK_DOWN));
    EXPECT_EQ(1, press(list, VK_UP));
    EXPECT_EQ(5, press(list, VK_END));
    EXPECT_EQ(5, press(list, VK_DOWN));
    EXPECT_EQ(0, press(list, VK_HOME));
    EXPECT_EQ(UINT{LBN_SELCHANGE}, notified.front());
    Send(list, WM_CHAR, 'c', 1);
    EXPECT_EQ(2, Send(list, LB_GETCURSEL));
    Send(list, WM_CHAR, 'C', 1);
    EXPECT_EQ(4, Send(list, LB_GETCURSEL)) << "the next one that begins so";
    Send(list, WM_CHAR, 'c', 1);
    Send(list, WM_CHAR, 'z', 1);
    EXPECT_EQ(2, Send(list, LB_GETCURSEL));

    const HWND multiple = Filled(LBS_MULTIPLESEL, {"a", "b", "c"});
    SetFocus(multiple);
    press(multiple, VK_DOWN);
    press(multiple, VK_DOWN);
    EXPECT_EQ(0, Send(multiple, LB_GETSELCOUNT)) << "moving selects nothing";
    press(multiple, VK_SPACE);
    EXPECT_EQ(Indexes{2}, Selected(multiple));
    press(multiple, VK_SPACE);
    EXPECT_EQ(0, Send(multiple, LB_GETSELCOUNT));

    const HWND extended = Filled(LBS_EXTENDEDSEL, {"a", "b", "c", "d"});
    Click(extended, 1);
    press(extended, VK_DOWN);
    EXPECT_EQ(Indexes{2}, Selected(extended));
    {
        const tests::KeyHeld shift(VK_SHIFT);
        press(extended, VK_DOWN);
    }
    EXPECT_EQ((Indexes{2, 3}), Selected(extended));
}

TEST_F(ListBoxTest, HeightIsCutToWholeItems) {
    const HWND list = Make(0, 100);
    EXPECT_EQ(100 / ItemHeight(list) * ItemHeight(list), tests::ClientOf(list).bottom);
    MoveWindow(list, 10, 10, 120, 200, TRUE);
    EXPECT_EQ(200 / ItemHeight(list) * ItemHeight(list), tests::ClientOf(list).bottom);
    EXPECT_EQ(101, tests::ClientOf(Make(LBS_NOINTEGRALHEIGHT, 101)).bottom);
}

TEST_F(ListBoxTest, ScrollsItemsIntoView) {
    const HWND list = Make(WS_VSCROLL | LBS_NOINTEGRALHEIGHT, 100);
    EXPECT_FALSE(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL) << "nothing to scroll";
    for (int i = 0; i < 50; ++i)
        Add(list, ("item " + std::to_string(i)).c_str());
    EXPECT_TRUE(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL);
    EXPECT_EQ(120 - GetSystemMetrics(SM_CXVSCROLL), tests::ClientOf(list).right);
    const int page = 100 / ItemHeight(list);
    SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    ASSERT_TRUE(GetScrollInfo(list, SB_VERT, &info));
    EXPECT_EQ(49, info.nMax);
    EXPECT_EQ(UINT(page), info.nPage);

    Send(list, LB_SETCURSEL, 20);
    const int top = static_cast<int>(Send(list, LB_GETTOPINDEX));
    EXPECT_LE(top, 20);
    EXPECT_GT(top + page, 20);
    Send(list, LB_SETTOPINDEX, 10);
    EXPECT_EQ(10, Send(list, LB_GETTOPINDEX));
    EXPECT_EQ(10, GetScrollPos(list, SB_VERT));
    Send(list, LB_SETTOPINDEX, 49);
    EXPECT_EQ(50 - page, Send(list, LB_GETTOPINDEX)) << "the last page is full";
    Send(list, WM_VSCROLL, SB_TOP);
    Send(list, WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(1, Send(list, LB_GETTOPINDEX));
    Send(list, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 7));
    EXPECT_EQ(7, Send(list, LB_GETTOPINDEX));
    while (Send(list, LB_GETCOUNT) > 2)
        Send(list, LB_DELETESTRING, 0);
    EXPECT_EQ(0, Send(list, LB_GETTOPINDEX));
    EXPECT_FALSE(GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(ListBoxTest, AnOwnerMeasuresAndDraws) {
    const HWND list = Make(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    EXPECT_EQ(1U, measured.size()) << "once, while it is created";
    EXPECT_EQ(17, ItemHeight(list));
    Add(list, "one");
    Add(list, "two");
    Send(list, LB_SETITEMDATA, 1, 22);
    UpdateWindow(list);
    ASSERT_GE(drawn.size(), 2U);
    const DRAWITEMSTRUCT second = drawn.back();
    ExpectDrawn(second, ODT_LISTBOX, 1, 22, ODA_DRAWENTIRE, 0);
    EXPECT_EQ(list, second.hwndItem);
    EXPECT_EQ(17, second.rcItem.top);
    EXPECT_EQ(34, second.rcItem.bottom);

    drawn.clear();
    Send(list, LB_SETCURSEL, 1);
    const auto select = std::find_if(drawn.begin(), drawn.end(), [](const DRAWITEMSTRUCT& item) {
        return item.itemID == 1 && (item.itemAction & ODA_SELECT);
    });
    ASSERT_NE(drawn.end(), select);
    EXPECT_TRUE(select->itemState & ODS_SELECTED);
    drawn.clear();
    SetFocus(list);
    ASSERT_FALSE(drawn.empty());
    EXPECT_TRUE(drawn.back().itemAction & ODA_FOCUS);
    EXPECT_TRUE(drawn.back().itemState & ODS_FOCUS);
    EnableWindow(list, FALSE);
    drawn.clear();
    UpdateWindow(list);
    ASSERT_FALSE(drawn.empty());
    EXPECT_TRUE(drawn.front().itemState & ODS_DISABLED);
}

TEST_F(ListBoxTest, ColumnsAreFilledOneAfterTheOther) {
    const HWND list = Make(LBS_MULTICOLUMN | LBS_NOINTEGRALHEIGHT | WS_HSCROLL, 60);
    Send(list, LB_SETCOLUMNWIDTH, 40);
    for (int i = 0; i < 5; ++i)
        Add(list, "x");
    const int rows = tests::ClientOf(list).bottom / ItemHeight(list);
    ASSERT_LT(rows, 5);
    RECT rect{};
    Send(list, LB_GETITEMRECT, static_cast<WPARAM>(rows), reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(40, rect.left);
    EXPECT_EQ(80, rect.right);
    EXPECT_EQ(0, rect.top);
}

TEST_F(ListBoxTest, SixtyThousandItems) {
    const HWND list = Make(WS_VSCROLL);
    Send(list, WM_SETREDRAW, FALSE);
    for (int i = 0; i < 60000; ++i)
        ASSERT_EQ(i, Add(list, std::to_string(i).c_str()));
    Send(list, WM_SETREDRAW, TRUE);
    EXPECT_EQ(60000, Send(list, LB_GETCOUNT));
    EXPECT_EQ(59999, SendText(list, LB_FINDSTRINGEXACT, -1, "59999"));
    Send(list, WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(60000 - tests::ClientOf(list).bottom / ItemHeight(list), Send(list, LB_GETTOPINDEX));
    UpdateWindow(list);
}

}  // namespace
