// The "button" class: states, notifications, mouse and keyboard, owner drawing.
#include "tests/platform/support/controls.h"

namespace {

using Codes = std::vector<UINT>;

class ButtonTest : public tests::Controls {
  protected:
    HWND Make(DWORD style, int id = kId) {
        return MakeControl("button", "&Text", style, 80, 24, id);
    }
    /// The documented bits of the state.
    static LRESULT State(HWND button) {
        return Send(button, BM_GETSTATE) & (BST_CHECKED | BST_INDETERMINATE | BST_PUSHED | BST_FOCUS);
    }
};

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
    EXPECT_EQ(Codes{BN_CLICKED}, TakeNotified());
    EXPECT_EQ(nullptr, GetCapture());

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
    EXPECT_EQ(Codes{BN_CLICKED}, TakeNotified());
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
    EXPECT_EQ((Codes{BN_CLICKED, BN_CLICKED}), notified);

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
    ASSERT_FALSE(drawn.empty());
    const DRAWITEMSTRUCT first = drawn.back();
    EXPECT_EQ(UINT{ODA_DRAWENTIRE}, first.itemAction);
    EXPECT_EQ(UINT{ODT_BUTTON}, first.CtlType);
    EXPECT_EQ(321U, first.CtlID);
    EXPECT_EQ(button, first.hwndItem);
    EXPECT_EQ(80, first.rcItem.right);
    EXPECT_EQ(0U, first.itemState);
    SetFocus(button);
    EXPECT_EQ(UINT{ODA_FOCUS}, drawn.back().itemAction);
    EXPECT_EQ(UINT{ODS_FOCUS}, drawn.back().itemState);
    Send(button, BM_SETSTATE, TRUE);
    EXPECT_EQ(UINT{ODA_SELECT}, drawn.back().itemAction);
    EXPECT_EQ(UINT{ODS_FOCUS | ODS_SELECTED}, drawn.back().itemState);
    Send(button, BM_SETSTATE, FALSE);
    EnableWindow(button, FALSE);
    UpdateWindow(button);
    EXPECT_TRUE(drawn.back().itemState & ODS_DISABLED);
}

TEST_F(ButtonTest, DestroyedByItsOwnClick) {
    const HWND button = Make(BS_PUSHBUTTON);
    destroyOn = BN_CLICKED;
    Send(button, BM_CLICK);
    EXPECT_FALSE(IsWindow(button));
}

}  // namespace
