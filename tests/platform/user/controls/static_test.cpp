// The "static" class: the mouse, notifications, pictures.
#include "tests/platform/support/controls.h"
#include "tests/platform/support/expect_rect.h"

namespace {

class StaticTest : public tests::Controls {
  protected:
    HWND Make(DWORD style, const char* text = "text") {
        return MakeControl("static", text, style, 80, 24);
    }
};

TEST_F(StaticTest, OnlyNotifyingOnesTakeTheMouse) {
    EXPECT_EQ(HTTRANSPARENT, Send(Make(SS_LEFT), WM_NCHITTEST, 0, MAKELPARAM(15, 15)));
    const HWND notifying = Make(SS_LEFT | SS_NOTIFY);
    EXPECT_EQ(HTCLIENT, Send(notifying, WM_NCHITTEST, 0, MAKELPARAM(15, 15)));
    Send(notifying, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    Send(notifying, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    EnableWindow(notifying, FALSE);
    EnableWindow(notifying, TRUE);
    EXPECT_EQ((std::vector<UINT>{STN_CLICKED, STN_DBLCLK, STN_DISABLE, STN_ENABLE}), notified);
}

TEST_F(StaticTest, AnIconGivesTheControlItsSize) {
    const HICON hand = LoadIconA(nullptr, IDI_HAND);
    const HWND control = Make(SS_ICON, "");
    EXPECT_EQ(0, Send(control, STM_SETICON, reinterpret_cast<WPARAM>(hand)));
    const RECT place = tests::PlaceOf(control);
    POINT corner{10, 10};
    ClientToScreen(parent_, &corner);
    ExpectRect(place, corner.x, corner.y, corner.x + 32, corner.y + 32);
    EXPECT_EQ(reinterpret_cast<LRESULT>(hand), Send(control, STM_GETICON));
    EXPECT_EQ(reinterpret_cast<LRESULT>(hand), Send(control, STM_SETICON));

    const HWND centred = Make(SS_ICON | SS_CENTERIMAGE, "");
    Send(centred, STM_SETICON, reinterpret_cast<WPARAM>(hand));
    ExpectRect(tests::PlaceOf(centred), corner.x, corner.y, corner.x + 80, corner.y + 24);
    EXPECT_EQ(0, Send(Make(SS_LEFT), STM_SETICON, reinterpret_cast<WPARAM>(hand)));
}

TEST_F(StaticTest, AnIconIsDrawnOnTheParentsGround) {
    const HWND control = Make(SS_ICON, "");
    Send(control, STM_SETICON, reinterpret_cast<WPARAM>(LoadIconA(nullptr, IDI_HAND)));
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const COLORREF ground = tests::PixelOf(control, 0, 0);
    EXPECT_EQ(GetSysColor(COLOR_3DFACE), ground) << "the mask lets it show";
    EXPECT_NE(ground, tests::PixelOf(control, 16, 4));
}

TEST_F(StaticTest, ASunkenOneHasAnEdge) {
    EXPECT_TRUE(GetWindowLongA(Make(SS_LEFT | SS_SUNKEN), GWL_EXSTYLE) & WS_EX_STATICEDGE);
    EXPECT_EQ(78, tests::ClientOf(Make(SS_LEFT | SS_SUNKEN)).right);
}

}  // namespace
