// The "static" class: the mouse, notifications, pictures.
#include <gtest/gtest.h>

#include <vector>

#include "dialog_builder.h"

namespace {

std::vector<UINT> notified;

LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND)
        notified.push_back(HIWORD(wParam));
    return DefWindowProcA(window, message, wParam, lParam);
}

class StaticTest : public ::testing::Test {
  protected:
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

TEST_F(StaticTest, ABitmapGivesTheControlItsSize) {
    const HWND control = Make(SS_BITMAP, "");
    const HBITMAP bitmap = CreateBitmap(30, 20, 1, 1, nullptr);
    EXPECT_EQ(0, SendMessageA(control, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    RECT client;
    GetClientRect(control, &client);
    EXPECT_EQ(30, client.right);
    EXPECT_EQ(20, client.bottom);
    EXPECT_EQ(reinterpret_cast<LRESULT>(bitmap), SendMessageA(control, STM_GETIMAGE, IMAGE_BITMAP, 0));
    EXPECT_EQ(reinterpret_cast<LRESULT>(bitmap), SendMessageA(control, STM_SETIMAGE, IMAGE_BITMAP, 0));
    DeleteObject(bitmap);
    const HWND text = Make(SS_LEFT);
    EXPECT_EQ(0, SendMessageA(text, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    EXPECT_EQ(0, SendMessageA(text, STM_GETIMAGE, IMAGE_BITMAP, 0));
}

TEST_F(StaticTest, ASunkenOneHasAnEdge) {
    EXPECT_TRUE(GetWindowLongA(Make(SS_LEFT | SS_SUNKEN), GWL_EXSTYLE) & WS_EX_STATICEDGE);
    RECT client;
    GetClientRect(Make(SS_LEFT | SS_SUNKEN), &client);
    EXPECT_EQ(78, client.right);
}

}  // namespace
