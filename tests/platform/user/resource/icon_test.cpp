#include <gtest/gtest.h>

#include <windows.h>

#include <set>

#include "tests/platform/support/gdi_canvas.h"

namespace {

constexpr std::uint32_t kGround = 0x010203;

TEST(Icons, OfTheSystemAreSharedAndKnownByNumber) {
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

TEST(Icons, LetTheGroundShowAroundThem) {
    Canvas context(64, 64);
    context.Clear(kGround);
    EXPECT_TRUE(DrawIcon(context, 8, 8, LoadIconA(nullptr, IDI_EXCLAMATION)));
    EXPECT_EQ(context.At(8, 8), kGround);
    EXPECT_LT(context.Count({8, 8, 40, 40}, kGround), 32 * 32 - 200);
    EXPECT_EQ(context.Count({40, 0, 64, 64}, kGround), 24 * 64);
    EXPECT_EQ(context.Count({0, 0, 8, 64}, kGround), 8 * 64);
}

TEST(Icons, ComeFromResourcesWithTheirMask) {
    HICON icon = LoadIconA(GetModuleHandleA(nullptr), "SmallIcon");
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(LoadIconA(GetModuleHandleA(nullptr), "SMALLICON"), icon);
    // Its 8 by 8 pixels are drawn four times as large.
    Canvas context(64, 64);
    context.Clear(kGround);
    EXPECT_TRUE(DrawIcon(context, 0, 0, icon));
    // The mask is clear in the corner, and the picture's blue inverts the ground there.
    EXPECT_EQ(context.At(1, 1), kGround ^ 0xFFU);
    EXPECT_EQ(context.At(5, 1), 0xFFU);
    EXPECT_EQ(context.At(1, 5), 0xFFU);
    EXPECT_EQ(context.At(13, 29), 0xFF00U);
    EXPECT_EQ(context.At(32, 29), kGround);
    EXPECT_EQ(LoadIconA(GetModuleHandleA(nullptr), "DamagedIcon"), nullptr);
}

}  // namespace
