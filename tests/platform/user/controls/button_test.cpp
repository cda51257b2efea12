// The "button" class: states, notifications, mouse and keyboard, owner drawing.
#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace {

class ButtonTest : public ::testing::Test {
  protected:
    static inline std::vector<UINT> notified;
    static inline DRAWITEMSTRUCT drawn{};
    static inline std::vector<UINT> drawActions;
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_COMMAND) {
            notified.push_back(HIWORD(wParam));
            return 0;
        }
        if (message == WM_DRAWITEM) {
            drawn = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            drawActions.push_back(drawn.itemAction);
            return TRUE;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }
    static LRESULT CALLBACK DestroyingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_COMMAND)
            DestroyWindow(reinterpret_cast<HWND>(lParam));
        return DefWindowProcA(window, message, wParam, lParam);
    }

    void SetUp() override {
        parent_ = tests::MakeOwner(ParentProcedure);
        SetActiveWindow(parent_);
        notified.clear();
        drawActions.clear();
        drawn = DRAWITEMSTRUCT{};
    }
    void TearDown() override {
        DestroyWindow(parent_);
    }
    HWND Make(DWORD style, int id = 100) {
        return CreateWindowExA(0, "button", "&Text", WS_CHILD | WS_VISIBLE | style, 10, 10, 80, 24, parent_,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }
    static LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(window, message, wParam, lParam);
    }
    /// The documented bits of the state.
    static LRESULT State(HWND button) {
        return Send(button, BM_GETSTATE) & (BST_CHECKED | BST_INDETERMINATE | BST_PUSHED | BST_FOCUS);
    }

    HWND parent_ = nullptr;
};

TEST_F(ButtonTest, DialogCodes) {
    EXPECT_EQ(DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, Send(Make(BS_PUSHBUTTON), WM_GETDLGCODE));
    EXPECT_EQ(DLGC_BUTTON | DLGC_DEFPUSHBUTTON, Send(Make(BS_DEFPUSHBUTTON), WM_GETDLGCODE));
    EXPECT_EQ(DLGC_BUTTON | DLGC_RADIOBUTTON, Send(Make(BS_AUTORADIOBUTTON), WM_GETDLGCODE));
    EXPECT_EQ(DLGC_BUTTON, Send(Make(BS_AUTOCHECKBOX), WM_GETDLGCODE));
    EXPECT_EQ(DLGC_STATIC, Send(Make(BS_GROUPBOX), WM_GETDLGCODE));
}

TEST_F(ButtonTest, MousePressesLeavesReturnsAndClicks) {
    const HWND button = Make(BS_PUSHBUTTON);
    Send(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(button, GetCapture());
    EXPECT_EQ(button, GetFocus());
    EXPECT_EQ(BST_PUSHED | BST_FOCUS, State(button));
    Send(button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-1, 5));
    EXPECT_EQ(BST_FOCUS, State(button));
    Send(button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(BST_PUSHED | BST_FOCUS, State(button));
    EXPECT_TRUE(notified.empty());
    Send(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(std::vector<UINT>{BN_CLICKED}, notified);
    EXPECT_EQ(nullptr, GetCapture());

    notified.clear();
    Send(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    Send(button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 50));
    Send(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 50));
    EXPECT_TRUE(notified.empty());

    Send(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ReleaseCapture();
    EXPECT_EQ(BST_FOCUS, State(button)) << "losing the mouse ends the press";
    Send(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(notified.empty());
}

TEST_F(ButtonTest, SpaceClicksOnRelease) {
    const HWND button = Make(BS_PUSHBUTTON);
    SetFocus(button);
    Send(button, WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_TRUE(State(button) & BST_PUSHED);
    EXPECT_TRUE(notified.empty());
    Send(button, WM_KEYUP, VK_SPACE, 1);
    EXPECT_EQ(std::vector<UINT>{BN_CLICKED}, notified);
    notified.clear();
    Send(button, WM_KEYDOWN, VK_SPACE, 1);
    SetFocus(parent_);
    EXPECT_EQ(0, State(button));
    EXPECT_TRUE(notified.empty());
}

TEST_F(ButtonTest, AutomaticKindsChangeBeforeTheyNotify) {
    const HWND check = Make(BS_AUTOCHECKBOX);
    Send(check, BM_CLICK);
    EXPECT_EQ(BST_CHECKED, Send(check, BM_GETCHECK));
    Send(check, BM_CLICK);
    EXPECT_EQ(BST_UNCHECKED, Send(check, BM_GETCHECK));
    EXPECT_EQ((std::vector<UINT>{BN_CLICKED, BN_CLICKED}), notified);

    const HWND three = Make(BS_AUTO3STATE);
    for (const LRESULT expected : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        Send(three, BM_CLICK);
        EXPECT_EQ(expected, Send(three, BM_GETCHECK));
    }

    const HWND manual = Make(BS_CHECKBOX);
    Send(manual, BM_CLICK);
    EXPECT_EQ(BST_UNCHECKED, Send(manual, BM_GETCHECK));
    Send(manual, BM_SETCHECK, BST_INDETERMINATE);
    EXPECT_EQ(BST_CHECKED, Send(manual, BM_GETCHECK)) << "it has two states";
    const HWND push = Make(BS_PUSHBUTTON);
    Send(push, BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(BST_UNCHECKED, Send(push, BM_GETCHECK));
}

TEST_F(ButtonTest, ARadioButtonUnchecksItsGroupOnly) {
    const HWND first = Make(BS_AUTORADIOBUTTON | WS_GROUP, 1);
    const HWND second = Make(BS_AUTORADIOBUTTON, 2);
    const HWND check = Make(BS_AUTOCHECKBOX, 3);
    const HWND other = Make(BS_AUTORADIOBUTTON | WS_GROUP, 4);
    Send(other, BM_SETCHECK, BST_CHECKED);
    Send(check, BM_SETCHECK, BST_CHECKED);
    Send(first, BM_CLICK);
    Send(second, BM_CLICK);
    EXPECT_EQ(BST_UNCHECKED, Send(first, BM_GETCHECK));
    EXPECT_EQ(BST_CHECKED, Send(second, BM_GETCHECK));
    EXPECT_EQ(BST_CHECKED, Send(other, BM_GETCHECK));
    EXPECT_EQ(BST_CHECKED, Send(check, BM_GETCHECK));
    EXPECT_FALSE(GetWindowLongA(first, GWL_STYLE) & WS_TABSTOP);
    EXPECT_TRUE(GetWindowLongA(second, GWL_STYLE) & WS_TABSTOP);
    CheckRadioButton(parent_, 1, 2, 1);
    EXPECT_EQ(BST_CHECKED, Send(first, BM_GETCHECK));
    EXPECT_EQ(BST_UNCHECKED, Send(second, BM_GETCHECK));
}

TEST_F(ButtonTest, AGroupBoxLetsTheMouseThrough) {
    const HWND group = Make(BS_GROUPBOX);
    RECT rect;
    GetWindowRect(group, &rect);
    EXPECT_EQ(HTTRANSPARENT, Send(group, WM_NCHITTEST, 0, MAKELPARAM(rect.left + 5, rect.top + 5)));
}

TEST_F(ButtonTest, OwnerDrawing) {
    const HWND button = Make(BS_OWNERDRAW, 321);
    UpdateWindow(button);
    ASSERT_FALSE(drawActions.empty());
    EXPECT_EQ(UINT{ODA_DRAWENTIRE}, drawActions.back());
    EXPECT_EQ(UINT{ODT_BUTTON}, drawn.CtlType);
    EXPECT_EQ(321U, drawn.CtlID);
    EXPECT_EQ(button, drawn.hwndItem);
    EXPECT_EQ(80, drawn.rcItem.right);
    EXPECT_EQ(0U, drawn.itemState);
    SetFocus(button);
    EXPECT_EQ(UINT{ODA_FOCUS}, drawActions.back());
    EXPECT_EQ(UINT{ODS_FOCUS}, drawn.itemState);
    Send(button, BM_SETSTATE, TRUE);
    EXPECT_EQ(UINT{ODA_SELECT}, drawActions.back());
    EXPECT_EQ(UINT{ODS_FOCUS | ODS_SELECTED}, drawn.itemState);
    Send(button, BM_SETSTATE, FALSE);
    EnableWindow(button, FALSE);
    UpdateWindow(button);
    EXPECT_TRUE(drawn.itemState & ODS_DISABLED);
}

TEST_F(ButtonTest, StyleChangesKeepTheOtherStyles) {
    const HWND button = Make(BS_PUSHBUTTON | WS_TABSTOP);
    const LONG before = GetWindowLongA(button, GWL_STYLE);
    Send(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(before | BS_DEFPUSHBUTTON, GetWindowLongA(button, GWL_STYLE));
}

TEST_F(ButtonTest, DestroyedByItsOwnClick) {
    const HWND button = Make(BS_PUSHBUTTON);
    SetWindowLongPtrA(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DestroyingProcedure));
    Send(button, BM_CLICK);
    EXPECT_FALSE(IsWindow(button));
}

}  // namespace
