// How texts lie in static controls here.
#include <gtest/gtest.h>

#include "tests/platform/support/dialog_builder.h"

namespace {

class StaticLookTest : public ::testing::Test {
  protected:
    static constexpr int kWidth = 80;
    static constexpr int kHeight = 24;
    StaticLookTest() : parent_(tests::MakeOwner()) {}
    ~StaticLookTest() override {
        DestroyWindow(parent_);
    }

    HWND Make(DWORD style, const char* text = "", int width = kWidth, int height = kHeight) {
        const HWND control = CreateWindowExA(0, "static", text, WS_CHILD | WS_VISIBLE | style, 30, 40, width, height,
                                             parent_, nullptr, nullptr, nullptr);
        RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return control;
    }
    /// The smallest rectangle, in the parent, around all pixels of a colour near a control of the usual place.
    RECT Extent(COLORREF colour) const {
        RECT box{1000, 1000, -1, -1};
        const HDC context = GetDC(parent_);
        for (int y = 20; y < 90; ++y) {
            for (int x = 10; x < 140; ++x) {
                if (GetPixel(context, x, y) == colour) {
                    box.left = x < box.left ? x : box.left;
                    box.top = y < box.top ? y : box.top;
                    box.right = x >= box.right ? x + 1 : box.right;
                    box.bottom = y >= box.bottom ? y + 1 : box.bottom;
                }
            }
        }
        ReleaseDC(parent_, context);
        return box;
    }

    HWND parent_;
};

TEST_F(StaticLookTest, TextIsCutOffOrCentred) {
    const HWND whole = Make(SS_SIMPLE, "MMMMMMMMMMMMMMMMMMMM");
    EXPECT_EQ(110, Extent(RGB(0, 0, 0)).right);
    DestroyWindow(whole);
    Make(SS_CENTERIMAGE, "M");
    const RECT centred = Extent(RGB(0, 0, 0));
    EXPECT_LE(centred.top - 40 - (64 - centred.bottom), 2);
    EXPECT_GE(centred.top - 40 - (64 - centred.bottom), -2);
}

}  // namespace
