#include <gtest/gtest.h>

#include <windows.h>

#include <set>

namespace {

class Icons : public ::testing::Test {
  protected:
    static constexpr COLORREF kGround = RGB(1, 2, 3);
    Icons() {
        HDC screen = GetDC(nullptr);
        context = CreateCompatibleDC(screen);
        bitmap = CreateCompatibleBitmap(screen, 64, 64);
        ReleaseDC(nullptr, screen);
        before = SelectObject(context, bitmap);
        HBRUSH brush = CreateSolidBrush(kGround);
        const RECT all{0, 0, 64, 64};
        FillRect(context, &all, brush);
        DeleteObject(brush);
    }
    ~Icons() override {
        SelectObject(context, before);
        DeleteObject(bitmap);
        DeleteDC(context);
    }
    int Painted(int left, int top, int right, int bottom) const {
        int count = 0;
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                count += GetPixel(context, x, y) != kGround;
            }
        }
        return count;
    }
    HDC context;
    HBITMAP bitmap;
    HGDIOBJ before;
};

TEST_F(Icons, OfTheSystemAreSharedAndKnownByNumber) {
    std::set<HICON> all;
    for (LPCSTR name : {IDI_APPLICATION, IDI_HAND, IDI_QUESTION, IDI_EXCLAMATION, IDI_ASTERISK}) {
        HICON icon = LoadIconA(nullptr, name);
        ASSERT_NE(icon, nullptr);
        EXPECT_EQ(LoadIconA(nullptr, name), icon);
        all.insert(icon);
    }
    EXPECT_EQ(all.size(), 5U);
    SetLastError(0);
    EXPECT_EQ(LoadIconA(GetModuleHandleA(nullptr), "NoSuchIcon"), nullptr);
    EXPECT_NE(GetLastError(), 0U);
    EXPECT_EQ(LoadCursorA(nullptr, IDC_IBEAM), LoadCursorA(nullptr, IDC_IBEAM));
    EXPECT_NE(LoadCursorA(nullptr, IDC_IBEAM), LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(Icons, LetTheGroundShowAroundThem) {
    EXPECT_TRUE(DrawIcon(context, 8, 8, LoadIconA(nullptr, IDI_EXCLAMATION)));
    EXPECT_EQ(GetPixel(context, 8, 8), kGround);
    EXPECT_GT(Painted(8, 8, 40, 40), 200);
    EXPECT_EQ(Painted(40, 0, 64, 64), 0);
    EXPECT_EQ(Painted(0, 0, 8, 64), 0);
}

TEST_F(Icons, ComeFromResourcesWithTheirMask) {
    HICON icon = LoadIconA(GetModuleHandleA(nullptr), "SmallIcon");
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(LoadIconA(GetModuleHandleA(nullptr), "SMALLICON"), icon);
    // Its 8 by 8 pixels are drawn four times as large.
    EXPECT_TRUE(DrawIcon(context, 0, 0, icon));
    // The mask is clear in the corner, and the picture's blue inverts the ground there.
    EXPECT_EQ(GetPixel(context, 1, 1), kGround ^ RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(context, 5, 1), RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(context, 1, 5), RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(context, 13, 29), RGB(0, 255, 0));
    EXPECT_EQ(GetPixel(context, 32, 29), kGround);
    EXPECT_EQ(LoadIconA(GetModuleHandleA(nullptr), "DamagedIcon"), nullptr);
}

}  // namespace
