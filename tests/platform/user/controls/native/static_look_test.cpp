// How pictures and texts lie in static controls here: the styles that fix a size, a corner or the middle.
#include <gtest/gtest.h>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/expect_rect.h"

namespace {

class StaticLookTest : public ::testing::Test {
  protected:
    static constexpr int kWidth = 80;
    static constexpr int kHeight = 24;
    static constexpr COLORREF kRed = RGB(255, 0, 0);

    StaticLookTest() : parent_(tests::MakeOwner()), bitmap_(CreateBitmap(20, 10, 1, 32, nullptr)) {
        const HDC context = CreateCompatibleDC(nullptr);
        const HGDIOBJ former = SelectObject(context, bitmap_);
        const HBRUSH red = CreateSolidBrush(kRed);
        const RECT all{0, 0, 20, 10};
        FillRect(context, &all, red);
        DeleteObject(red);
        SelectObject(context, former);
        DeleteDC(context);
    }
    ~StaticLookTest() override {
        DestroyWindow(parent_);
        DeleteObject(bitmap_);
    }

    HWND Make(DWORD style, const char* text = "", int width = kWidth, int height = kHeight) {
        const HWND control = CreateWindowExA(0, "static", text, WS_CHILD | WS_VISIBLE | style, 30, 40, width, height,
                                             parent_, nullptr, nullptr, nullptr);
        if ((style & SS_TYPEMASK) == SS_BITMAP)
            SendMessageA(control, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap_));
        RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return control;
    }
    RECT PlaceOf(HWND control) const {
        RECT place{};
        GetWindowRect(control, &place);
        MapWindowPoints(nullptr, parent_, reinterpret_cast<POINT*>(&place), 2);
        return place;
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
    HBITMAP bitmap_;
};

TEST_F(StaticLookTest, APictureKeepsOneCorner) {
    ExpectRect(PlaceOf(Make(SS_BITMAP)), 30, 40, 50, 50);
}

TEST_F(StaticLookTest, APictureLiesInTheMiddle) {
    ExpectRect(PlaceOf(Make(SS_BITMAP | SS_CENTERIMAGE)), 30, 40, 110, 64);
    ExpectRect(Extent(kRed), 60, 47, 80, 57);
}

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
