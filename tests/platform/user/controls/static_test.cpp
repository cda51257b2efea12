// The "static" class: the mouse, notifications, pictures.
#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/support/dialog_builder.h"

namespace {

class StaticTest : public ::testing::Test {
  protected:
    static inline std::vector<UINT> notified;
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_COMMAND)
            notified.push_back(HIWORD(wParam));
        return DefWindowProcA(window, message, wParam, lParam);
    }

    void SetUp() override {
        parent_ = tests::MakeOwner(ParentProcedure);
        notified.clear();
    }
    void TearDown() override {
        DestroyWindow(parent_);
    }
    HWND Make(DWORD style, const char* text = "text") {
        return CreateWindowExA(0, "static", text, WS_CHILD | WS_VISIBLE | style, 10, 10, 80, 24, parent_, nullptr,
                               nullptr, nullptr);
    }
    HWND parent_ = nullptr;
};

TEST_F(StaticTest, OnlyNotifyingOnesTakeTheMouse) {
    EXPECT_EQ(HTTRANSPARENT, SendMessageA(Make(SS_LEFT), WM_NCHITTEST, 0, MAKELPARAM(15, 15)));
    const HWND notifying = Make(SS_LEFT | SS_NOTIFY);
    EXPECT_EQ(HTCLIENT, SendMessageA(notifying, WM_NCHITTEST, 0, MAKELPARAM(15, 15)));
    SendMessageA(notifying, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    SendMessageA(notifying, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    EnableWindow(notifying, FALSE);
    EnableWindow(notifying, TRUE);
    EXPECT_EQ((std::vector<UINT>{STN_CLICKED, STN_DBLCLK, STN_DISABLE, STN_ENABLE}), notified);
}

RECT PlaceIn(HWND parent, HWND control) {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

TEST_F(StaticTest, AnIconGivesTheControlItsSize) {
    const HICON hand = LoadIconA(nullptr, IDI_HAND);
    const HWND control = Make(SS_ICON, "");
    EXPECT_EQ(0, SendMessageA(control, STM_SETICON, reinterpret_cast<WPARAM>(hand), 0));
    RECT place = PlaceIn(parent_, control);
    EXPECT_EQ(10, place.left);
    EXPECT_EQ(10, place.top);
    EXPECT_EQ(42, place.right);
    EXPECT_EQ(42, place.bottom);
    EXPECT_EQ(reinterpret_cast<LRESULT>(hand), SendMessageA(control, STM_GETICON, 0, 0));
    EXPECT_EQ(reinterpret_cast<LRESULT>(hand), SendMessageA(control, STM_SETICON, 0, 0));

    const HWND centred = Make(SS_ICON | SS_CENTERIMAGE, "");
    SendMessageA(centred, STM_SETICON, reinterpret_cast<WPARAM>(hand), 0);
    place = PlaceIn(parent_, centred);
    EXPECT_EQ(90, place.right);
    EXPECT_EQ(34, place.bottom);
    EXPECT_EQ(0, SendMessageA(Make(SS_LEFT), STM_SETICON, reinterpret_cast<WPARAM>(hand), 0));
}

TEST_F(StaticTest, AnIconIsDrawnOnTheParentsGround) {
    const HWND control = Make(SS_ICON, "");
    SendMessageA(control, STM_SETICON, reinterpret_cast<WPARAM>(LoadIconA(nullptr, IDI_HAND)), 0);
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const HDC context = GetDC(control);
    const COLORREF ground = GetPixel(context, 0, 0);
    EXPECT_EQ(GetSysColor(COLOR_3DFACE), ground) << "the mask lets it show";
    EXPECT_NE(ground, GetPixel(context, 16, 4));
    ReleaseDC(control, context);
}

TEST_F(StaticTest, ASunkenOneHasAnEdge) {
    EXPECT_TRUE(GetWindowLongA(Make(SS_LEFT | SS_SUNKEN), GWL_EXSTYLE) & WS_EX_STATICEDGE);
    RECT client;
    GetClientRect(Make(SS_LEFT | SS_SUNKEN), &client);
    EXPECT_EQ(78, client.right);
}

}  // namespace
