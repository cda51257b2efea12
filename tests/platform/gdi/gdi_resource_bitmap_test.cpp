// Bitmaps from resources.
#include "tests/platform/support/gdi_canvas.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

HBITMAP Load(int id) {
    return LoadBitmapA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id));
}

TEST(GdiResourceBitmaps, EveryDepthShowsItsColours) {
    for (const int id : {3100, 3101, 3102, 3103}) {
        const HBITMAP bitmap = Load(id);
        ASSERT_NE(nullptr, bitmap) << id;
        BITMAP info{};
        GetObjectA(bitmap, sizeof info, &info);
        EXPECT_EQ(2, info.bmWidth);
        EXPECT_EQ(2, info.bmHeight);
        const HDC memory = CreateCompatibleDC(nullptr);
        const HGDIOBJ previous = SelectObject(memory, bitmap);
        EXPECT_EQ(kBlue, GetPixel(memory, 0, 0)) << id;
        EXPECT_EQ(id == 3100 ? kRed : kGreen, GetPixel(memory, 1, 0)) << id;
        EXPECT_EQ(kRed, GetPixel(memory, 0, 1)) << id;
        EXPECT_EQ(kBlue, GetPixel(memory, 1, 1)) << id;
        SelectObject(memory, previous);
        DeleteDC(memory);
        EXPECT_TRUE(DeleteObject(bitmap));
    }
    EXPECT_EQ(nullptr, Load(3199)) << "there is none";
}

TEST(GdiResourceBitmaps, LoadImageStretches) {
    const HANDLE image =
        LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(3102), IMAGE_BITMAP, 4, 6, LR_DEFAULTCOLOR);
    ASSERT_NE(nullptr, image);
    BITMAP size{};
    ASSERT_EQ(static_cast<int>(sizeof size), GetObjectA(image, sizeof size, &size));
    EXPECT_EQ(4, size.bmWidth);
    EXPECT_EQ(6, size.bmHeight);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(memory, image);
    EXPECT_EQ(kBlue, GetPixel(memory, 0, 0));
    EXPECT_EQ(kGreen, GetPixel(memory, 2, 0));
    EXPECT_EQ(kRed, GetPixel(memory, 0, 3));
    SelectObject(memory, previous);
    DeleteDC(memory);
    DeleteObject(image);
}

}  // namespace
