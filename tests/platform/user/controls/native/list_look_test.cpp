// How list boxes, combo boxes and scroll bars look here, and that they leave nothing behind.
#include "tests/platform/support/controls.h"

#include "tests/support/leaks.h"

namespace {

const COLORREF kWhite = RGB(255, 255, 255);

class ListLookTest : public tests::Controls {
  protected:
    void SetUp() override {
        Controls::SetUp();
        tests::PumpMessages();
    }
    HWND Make(const char* name, DWORD style, int height = 80) {
        return MakeControl(name, "", style, 120, height);
    }
    static COLORREF Pixel(HWND window, int x, int y) {
        const HDC context = GetWindowDC(window);
        const COLORREF colour = GetPixel(context, x, y);
        ReleaseDC(window, context);
        return colour;
    }
    static void Fill(HWND list, UINT message, int count) {
        for (int i = 0; i < count; ++i)
            SendMessageA(list, message, 0, reinterpret_cast<LPARAM>("HHHH"));
    }

    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF light = GetSysColor(COLOR_3DLIGHT);
    const COLORREF highlight = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_3DDKSHADOW);
    const COLORREF selection = GetSysColor(COLOR_HIGHLIGHT);
};

TEST_F(ListLookTest, ASelectedItemIsHighlightedFromEdgeToEdge) {
    const HWND list = Make("listbox", LBS_NOINTEGRALHEIGHT);
    Fill(list, LB_ADDSTRING, 2);
    SendMessageA(list, LB_SETCURSEL, 1, 0);
    tests::PumpMessages();
    const int height = static_cast<int>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    EXPECT_EQ(kWhite, Pixel(list, 0, 0));
    EXPECT_EQ(selection, Pixel(list, 0, height));
    EXPECT_EQ(selection, Pixel(list, 119, 2 * height - 1));
    EXPECT_EQ(kWhite, Pixel(list, 0, 2 * height));
    SetFocus(list);
    EXPECT_NE(Pixel(list, 0, height) == selection, Pixel(list, 1, height) == selection) << "dots around it";
    SendMessageA(list, LB_SETCURSEL, 0, 0);
    EXPECT_EQ(kWhite, Pixel(list, 100, height)) << "drawn at once";
}

TEST_F(ListLookTest, AScrollBarIsRaisedOnChequeredGround) {
    const HWND list = Make("listbox", LBS_NOINTEGRALHEIGHT | WS_VSCROLL);
    Fill(list, LB_ADDSTRING, 50);
    tests::PumpMessages();
    EXPECT_EQ(light, Pixel(list, 104, 0));
    EXPECT_EQ(highlight, Pixel(list, 105, 1));
    EXPECT_EQ(dark, Pixel(list, 119, 15));
    EXPECT_EQ(light, Pixel(list, 104, 16)) << "the thumb at the top";
    EXPECT_NE(Pixel(list, 110, 50) == kWhite, Pixel(list, 111, 50) == kWhite) << "every second pixel";
    EXPECT_NE(Pixel(list, 110, 50), Pixel(list, 110, 51));
    SendMessageA(list, WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_EQ(dark, Pixel(list, 119, 63)) << "the thumb at the bottom";
    EXPECT_NE(Pixel(list, 110, 20) == kWhite, Pixel(list, 111, 20) == kWhite);
}

TEST_F(ListLookTest, AComboBoxIsSunkenWithARaisedArrow) {
    const HWND combo = Make("combobox", CBS_DROPDOWNLIST);
    tests::PumpMessages();
    const RECT place = tests::PlaceOf(combo);
    const int bottom = place.bottom - place.top - 1;
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), Pixel(combo, 0, 0));
    EXPECT_EQ(highlight, Pixel(combo, 119, bottom));
    EXPECT_EQ(kWhite, Pixel(combo, 4, 4));
    EXPECT_EQ(light, Pixel(combo, 102, 2));
    EXPECT_EQ(dark, Pixel(combo, 117, bottom - 2));
    SetFocus(combo);
    EXPECT_EQ(selection, Pixel(combo, 50, 10));
}

TEST_F(ListLookTest, NothingIsLeftBehind) {
    const auto once = [&] {
        for (const DWORD style : {CBS_SIMPLE, CBS_DROPDOWN, CBS_DROPDOWNLIST}) {
            const HWND combo = Make("combobox", style | WS_VSCROLL);
            Fill(combo, CB_ADDSTRING, 20);
            SetFocus(combo);
            SendMessageA(combo, WM_KEYDOWN, VK_F4, 1);
            tests::PumpMessages();
            DestroyWindow(combo);
        }
        const HWND list = Make("listbox", WS_VSCROLL | WS_HSCROLL | LBS_EXTENDEDSEL);
        Fill(list, LB_ADDSTRING, 20);
        SendMessageA(list, LB_SETSEL, TRUE, -1);
        SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        tests::PumpMessages();
        DestroyWindow(list);
        const HWND bar = Make("scrollbar", SBS_VERT | WS_TABSTOP);
        const SCROLLINFO range{sizeof range, SIF_RANGE, 0, 9, 0, 0, 0};
        SetScrollInfo(bar, SB_CTL, &range, TRUE);
        SetFocus(bar);
        tests::PumpMessages();
        DestroyWindow(bar);
    };
    once();  // what is made on first use and kept
    const testing_support::LeakCheck leaks;
    once();
}

TEST_F(ListLookTest, ControlsEndedByTheirParentInTheMiddle) {
    destroyOn = kAny;
    const HWND list = Make("listbox", LBS_NOTIFY | LBS_EXTENDEDSEL);
    Fill(list, LB_ADDSTRING, 5);
    Click(list, 0);
    EXPECT_FALSE(IsWindow(list));
    for (const DWORD style : {CBS_SIMPLE, CBS_DROPDOWN, CBS_DROPDOWNLIST}) {
        const HWND combo = Make("combobox", style);
        const HWND field = tests::ComboField(combo);
        const HWND dropped = tests::ComboList(combo);
        Fill(combo, CB_ADDSTRING, 5);
        SendMessageA(field, WM_KEYDOWN, VK_DOWN, 1);
        EXPECT_FALSE(IsWindow(combo));
        EXPECT_FALSE(IsWindow(dropped));
        const HWND dropping = Make("combobox", CBS_DROPDOWN);
        SendMessageA(dropping, WM_KEYDOWN, VK_F4, 1);
        EXPECT_FALSE(IsWindow(dropping));
    }
    EXPECT_EQ(nullptr, GetCapture());
}

/// Takes all items away while one is drawn.
LRESULT CALLBACK EmptyingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM) {
        SendMessageA(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem, LB_RESETCONTENT, 0, 0);
        return TRUE;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

TEST_F(ListLookTest, AnOwnerThatEmptiesTheListWhileItIsDrawn) {
    const HWND list = Make("listbox", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL);
    Fill(list, LB_ADDSTRING, 5);
    SetFocus(list);
    SetWindowLongPtrA(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(EmptyingProcedure));
    SendMessageA(list, LB_SETSEL, TRUE, 2);
    EXPECT_EQ(0, SendMessageA(list, LB_GETCOUNT, 0, 0));
    UpdateWindow(list);
}

}  // namespace
