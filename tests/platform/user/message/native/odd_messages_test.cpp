// What no caller means: null, -1, numbers at the ends of their range. Nothing may come of it but a refusal.
#include <gtest/gtest.h>
#include <windows.h>

#include <climits>
#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace {

const int kOddNumbers[] = {0, 1, -1, 2, 255, 0x7FFF, 0x8000, 0xFFFF, -0x8000, INT_MAX, INT_MIN};

class OddMessages : public ::testing::Test {
  protected:
    void SetUp() override {
        parent_ = tests::MakeOwner();
    }
    void TearDown() override {
        DestroyWindow(parent_);
        tests::PumpMessages();
    }
    HWND Make(const char* className, DWORD style) {
        return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 10, 10, 120, 100, parent_, nullptr,
                               nullptr, nullptr);
    }
    static LRESULT Send(HWND window, UINT message, int wParam, LPARAM lParam) {
        return SendMessageA(window, message, static_cast<WPARAM>(wParam), lParam);
    }
    HWND parent_ = nullptr;
};

TEST_F(OddMessages, ItemsOfGreatWidthsLieSideBySide) {
    const HWND list = Make("listbox", LBS_MULTICOLUMN | WS_HSCROLL);
    for (int i = 0; i < 40; ++i) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
    }
    Send(list, LB_SETCOLUMNWIDTH, INT_MAX, 0);
    for (const int index : {0, 20, 39}) {
        RECT item{};
        Send(list, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
        EXPECT_LE(item.left, item.right) << index;
        EXPECT_LE(0, item.left) << index;
    }
    DestroyWindow(list);
}

TEST_F(OddMessages, ComboBoxes) {
    for (const DWORD style : {DWORD{CBS_SIMPLE}, DWORD{CBS_DROPDOWN}, DWORD{CBS_DROPDOWNLIST}}) {
        const HWND combo = Make("combobox", style);
        for (const int odd : kOddNumbers) {
            EXPECT_EQ(CB_ERR, Send(combo, CB_SETCURSEL, odd, odd));
            Send(combo, WM_KEYDOWN, VK_F4, 1);
            RECT rect{};
            Send(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
            EXPECT_LE(rect.left, rect.right);
            Send(combo, WM_KEYDOWN, VK_ESCAPE, 1);
        }
    }
}

TEST_F(OddMessages, ScrollBars) {
    const HWND bar = Make("scrollbar", SBS_HORZ);
    EXPECT_EQ(0, SetScrollInfo(bar, SB_CTL, nullptr, TRUE));
    EXPECT_EQ(0, Send(bar, SBM_SETSCROLLINFO, TRUE, 0));
    for (const int low : kOddNumbers) {
        for (const int high : kOddNumbers) {
            for (const int page : kOddNumbers) {
                const SCROLLINFO info{
                    sizeof info, SIF_ALL | SIF_DISABLENOSCROLL, low, high, static_cast<UINT>(page), low, high};
                SetScrollInfo(bar, SB_CTL, &info, TRUE);
                SetScrollInfo(bar, page, &info, TRUE);
                SetScrollInfo(parent_, SB_VERT, &info, FALSE);
            }
        }
    }
}

TEST_F(OddMessages, EditFields) {
    for (const DWORD style : {DWORD{0}, DWORD{ES_MULTILINE}}) {
        const HWND edit = Make("edit", style);
        for (const int odd : kOddNumbers) {
            EXPECT_TRUE(Send(edit, WM_GETDLGCODE, odd, 0) & DLGC_WANTCHARS);
            Send(edit, WM_KEYDOWN, odd, odd);
            Send(edit, WM_CHAR, odd, odd);
        }
        Send(edit, WM_KEYDOWN, VK_ESCAPE, 1);
    }
    // Alone on the screen it has nobody to close.
    const HWND alone =
        CreateWindowExA(0, "edit", "", WS_POPUP | ES_MULTILINE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    Send(alone, WM_GETDLGCODE, 0, 0);
    Send(alone, WM_KEYDOWN, VK_ESCAPE, 1);
    tests::PumpMessages();
    DestroyWindow(alone);
}

TEST_F(OddMessages, Windows) {
    for (const int odd : kOddNumbers) {
        for (const int other : kOddNumbers) {
            for (const DWORD style : {DWORD{WS_CHILD | WS_THICKFRAME}, DWORD{WS_POPUP | WS_THICKFRAME},
                                      DWORD{WS_POPUP | WS_CAPTION | WS_THICKFRAME}}) {
                const HWND window = CreateWindowExA(0, "static", "", style | WS_VISIBLE, odd, other, other, odd,
                                                    parent_, nullptr, nullptr, nullptr);
                ASSERT_NE(nullptr, window);
                const RECT rect{odd, other, other, odd};
                ValidateRect(window, &rect);
                InvalidateRect(window, &rect, TRUE);
                UpdateWindow(window);
                DestroyWindow(window);
            }
        }
    }
    EXPECT_TRUE(ValidateRect(nullptr, nullptr));
}

TEST_F(OddMessages, AFullQueueIsRefused) {
    int posted = 0;
    while (posted < 20000 && PostMessageA(parent_, WM_NULL, 0, 0)) {
        ++posted;
    }
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_QUOTA));
    EXPECT_EQ(posted, 10000);
}

TEST_F(OddMessages, ACaretGoesWithItsWindow) {
    const HWND child = Make("static", 0);
    ASSERT_TRUE(CreateCaret(child, nullptr, 1, 10));
    DestroyWindow(child);
    EXPECT_FALSE(ShowCaret(nullptr));
}

INT_PTR CALLBACK EndInTheBeginning(HWND dialog, UINT message, WPARAM, LPARAM parameter) {
    if (message == WM_INITDIALOG) {
        SetCapture(dialog);
        if (parameter)
            DestroyWindow(dialog);
        else
            EndDialog(dialog, -1);
    }
    return message == WM_INITDIALOG;
}

TEST_F(OddMessages, Dialogs) {
    tests::DialogBuilder builder;
    builder.Title("odd");
    EXPECT_EQ(-1, DialogBoxIndirectParamA(nullptr, nullptr, parent_, EndInTheBeginning, 0));
    EXPECT_EQ(0, DialogBoxIndirectParamA(nullptr, builder.Data(), reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)),
                                         EndInTheBeginning, 0));
    for (const HWND owner : {HWND{}, parent_, GetDesktopWindow()}) {
        EXPECT_EQ(-1, DialogBoxIndirectParamA(nullptr, builder.Data(), owner, EndInTheBeginning, 0));
        EXPECT_EQ(-1, DialogBoxIndirectParamA(nullptr, builder.Data(), owner, EndInTheBeginning, 1));
        EXPECT_EQ(nullptr, GetCapture());
        EXPECT_TRUE(IsWindowEnabled(parent_));
    }
    // Without a procedure Escape ends nothing, but the window can go.
    const HWND dialog = CreateDialogIndirectParamA(nullptr, builder.Data(), parent_, nullptr, 0);
    ASSERT_NE(nullptr, dialog);
    tests::DialogKey(dialog, dialog, VK_ESCAPE);
    tests::DialogKey(dialog, dialog, VK_RETURN);
    EXPECT_TRUE(EndDialog(dialog, 1));
    EXPECT_TRUE(EndDialog(dialog, 1));
    DestroyWindow(dialog);
}

}  // namespace
