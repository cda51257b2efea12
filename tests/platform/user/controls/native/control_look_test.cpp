// How dialogs and controls look here: the 1995 scheme, with 6 by 13 base units.
#include <gtest/gtest.h>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/expect_rect.h"
#include "tests/platform/support/looking.h"

namespace {

using tests::DialogBuilder;

/// One dialog in the usual font, with its pixels.
class ControlLookTest : public ::testing::Test {
  protected:
    static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM, LPARAM) {
        return message == WM_INITDIALOG;
    }

    void SetUp() override {
        DialogBuilder builder(WS_POPUP | WS_VISIBLE | DS_SETFONT);
        builder.Title("", "MS Sans Serif")
            .Item("button", "Default", 1, BS_DEFPUSHBUTTON | WS_TABSTOP, 4, 8, 50, 14)
            .Item("button", "Plain", 2, BS_PUSHBUTTON, 64, 8, 50, 14)
            .Item("button", "Grey", 3, BS_PUSHBUTTON | WS_DISABLED, 4, 32, 50, 14)
            .Item("button", "Check", 4, BS_AUTOCHECKBOX, 64, 32, 50, 10)
            .Item("static", "HHHH", 5, SS_LEFT, 4, 56, 50, 8)
            .Item("static", "HHHH", 6, SS_RIGHT, 4, 72, 50, 8)
            .Item("static", "HHHH", 7, SS_LEFT | WS_DISABLED, 64, 56, 50, 8)
            .Item("static", "", 8, SS_BLACKFRAME, 64, 72, 8, 8)
            .Item("static", "", 10, SS_ETCHEDHORZ, 80, 72, 20, 4)
            .Item("button", "Group", 9, BS_GROUPBOX, 4, 88, 100, 30);
        dialog_ = CreateDialogIndirectParamA(nullptr, builder.Data(), nullptr, Procedure, 0);
        ASSERT_NE(nullptr, dialog_);
        RedrawWindow(dialog_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    void TearDown() override {
        DestroyWindow(dialog_);
    }
    COLORREF Pixel(int id, int x, int y) {
        return tests::PixelOf(GetDlgItem(dialog_, id), x, y);
    }
    /// How many pixels of a colour a rectangle of a control has.
    int Count(int id, COLORREF colour, const RECT& rect) {
        return tests::CountPixels(GetDlgItem(dialog_, id), rect, colour);
    }
    RECT Client(int id) {
        return tests::ClientOf(GetDlgItem(dialog_, id));
    }

    HWND dialog_ = nullptr;
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF highlight = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = GetSysColor(COLOR_3DDKSHADOW);
    const COLORREF black = RGB(0, 0, 0);
};

TEST_F(ControlLookTest, BaseUnitsAreSixByThirteen) {
    RECT rect{4, 8, 40, 80};
    ASSERT_TRUE(MapDialogRect(dialog_, &rect));
    ExpectRect(rect, 6, 13, 60, 130);
    EXPECT_EQ(75, Client(1).right);
    EXPECT_EQ(23, Client(1).bottom);
}

TEST_F(ControlLookTest, TheDefaultButtonHasAnOutlineAndFocusDots) {
    EXPECT_EQ(black, Pixel(1, 0, 0));
    EXPECT_EQ(black, Pixel(1, 74, 22));
    EXPECT_EQ(highlight, Pixel(1, 1, 1));
    EXPECT_EQ(dark, Pixel(1, 73, 21));
    // Every second pixel of the focus rectangle's top is dark.
    int dots = 0;
    for (int x = 4; x < 71; ++x)
        dots += Pixel(1, x, 4) != face;
    EXPECT_NEAR(67 / 2, dots, 1);
    EXPECT_NE(Pixel(1, 10, 4) == face, Pixel(1, 11, 4) == face);
}

TEST_F(ControlLookTest, APressedButtonShiftsItsText) {
    const auto leftmost = [&](int from) {
        for (int x = from; x < 60; ++x) {
            if (Count(1, black, {x, 6, x + 1, 17}))
                return x;
        }
        return -1;
    };
    const int before = leftmost(6);
    SendMessageA(GetDlgItem(dialog_, 1), BM_SETSTATE, TRUE, 0);
    EXPECT_EQ(before + 1, leftmost(6));
    EXPECT_EQ(black, Pixel(1, 0, 0));
    EXPECT_EQ(shadow, Pixel(1, 1, 1)) << "flat: a line of shadow";
    EXPECT_EQ(face, Pixel(1, 2, 2));
    SendMessageA(GetDlgItem(dialog_, 1), BM_SETSTATE, FALSE, 0);
    EXPECT_EQ(highlight, Pixel(1, 1, 1));
    EXPECT_EQ(before, leftmost(6));
}

TEST_F(ControlLookTest, DisabledTextIsEmbossed) {
    const RECT inside{3, 3, 72, 20};
    EXPECT_EQ(0, Count(3, black, inside));
    EXPECT_GT(Count(3, shadow, inside), 10);
    EXPECT_GT(Count(3, highlight, inside), 10);
    EXPECT_EQ(0, Count(7, black, Client(7)));
    // The highlight of an H's left stem lies one pixel below and to the right of it.
    EXPECT_GT(Count(7, shadow, Client(7)), 10);
    EXPECT_GT(Count(7, highlight, Client(7)), 10);
}

TEST_F(ControlLookTest, ACheckBoxShowsItsState) {
    const RECT box{0, 1, 13, 14};
    const int unchecked = Count(4, black, box);
    SendMessageA(GetDlgItem(dialog_, 4), BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_GT(Count(4, black, box), unchecked + 10);
    SendMessageA(GetDlgItem(dialog_, 4), BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(unchecked, Count(4, black, box));
    EXPECT_EQ(shadow, Pixel(4, 0, 1)) << "sunken";
}

TEST_F(ControlLookTest, StaticTextAndFrames) {
    const int left = Count(5, black, {0, 0, 38, 13});
    EXPECT_GT(left, 20);
    EXPECT_EQ(0, Count(5, black, {38, 0, 75, 13}));
    EXPECT_EQ(0, Count(6, black, {0, 0, 37, 13}));
    EXPECT_EQ(left, Count(6, black, {37, 0, 75, 13}));
    EXPECT_EQ(2 * 12 + 2 * 11, Count(8, dark, Client(8))) << "one pixel wide, 12 by 13 around";
    EXPECT_EQ(shadow, Pixel(10, 3, 0));
    EXPECT_EQ(highlight, Pixel(10, 3, 1));
    SetDlgItemTextA(dialog_, 5, "");
    EXPECT_EQ(0, Count(5, black, Client(5)));
}

TEST_F(ControlLookTest, LyingTemplatesAreRefused) {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    for (const int id : {2001, 2002, 2003}) {
        EXPECT_EQ(nullptr, CreateDialogParamA(instance, MAKEINTRESOURCEA(id), nullptr, Procedure, 0)) << id;
        EXPECT_EQ(-1, DialogBoxParamA(instance, MAKEINTRESOURCEA(id), nullptr, Procedure, 0)) << id;
    }
}

}  // namespace
