#include <windows.h>
#include <commctrl.h>

#include "tests/platform/support/gdi_canvas.h"

namespace {

constexpr COLORREF kMagenta = RGB(255, 0, 255);

/// Pictures of 8 by 8 pixels with a mask.
class ImageList : public testing::Test {
  protected:
    static constexpr std::uint32_t kGround = 0x3344CC;
    static constexpr std::uint32_t kRed = 0xFF0000;
    static constexpr std::uint32_t kGreen = 0x00FF00;
    static constexpr std::uint32_t kBlue = 0x0000FF;

    ImageList() : list(ImageList_Create(8, 8, ILC_COLOR24 | ILC_MASK, 1, 1)), canvas(24, 16) {
        canvas.Clear(kGround);
    }
    ~ImageList() override {
        EXPECT_TRUE(ImageList_Destroy(list));
    }

    /// Adds one picture of a colour, whose left half is see-through.
    int AddHalf(COLORREF colour) {
        Canvas source(8, 8);
        source.Clear(PixelOf(kMagenta));
        const RECT right{4, 0, 8, 8};
        const HBRUSH brush = CreateSolidBrush(colour);
        FillRect(source, &right, brush);
        DeleteObject(brush);
        return AddMasked(source);
    }
    /// A bitmap that is added must not be selected anywhere.
    int AddMasked(Canvas& source) {
        const HBITMAP bitmap = CopyOf(source, 8);
        const int index = ImageList_AddMasked(list, bitmap, kMagenta);
        DeleteObject(bitmap);
        return index;
    }
    static HBITMAP CopyOf(Canvas& source, int width) {
        const HDC screen = GetDC(nullptr);
        const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, 8);
        const HDC memory = CreateCompatibleDC(screen);
        const HGDIOBJ former = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, width, 8, source, 0, 0, SRCCOPY);
        SelectObject(memory, former);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
        return bitmap;
    }

    HIMAGELIST list;
    Canvas canvas;
};

TEST_F(ImageList, MaskedPictureLetsTheBackgroundThrough) {
    ASSERT_EQ(0, AddHalf(RGB(255, 0, 0)));
    SetTextColor(canvas, RGB(1, 2, 3));
    ASSERT_TRUE(ImageList_Draw(list, 0, canvas, 2, 3, ILD_NORMAL));
    EXPECT_EQ(32, canvas.Count({6, 3, 10, 11}, kRed));
    EXPECT_EQ(24 * 16 - 32, canvas.Count(canvas.All(), kGround));
    EXPECT_EQ(RGB(1, 2, 3), GetTextColor(canvas)) << "the context's colours are its own again";

    EXPECT_EQ(static_cast<COLORREF>(CLR_NONE), ImageList_SetBkColor(list, RGB(0, 255, 0)));
    EXPECT_EQ(RGB(0, 255, 0), ImageList_GetBkColor(list));
    ImageList_Draw(list, 0, canvas, 2, 3, ILD_NORMAL);
    EXPECT_EQ(32, canvas.Count({2, 3, 6, 11}, kGreen));
    canvas.Clear(kGround);
    ImageList_Draw(list, 0, canvas, 2, 3, ILD_TRANSPARENT);
    EXPECT_EQ(0, canvas.Count(canvas.All(), kGreen));
}

TEST_F(ImageList, PartsMasksAndOverlays) {
    AddHalf(RGB(255, 0, 0));
    ImageList_DrawEx(list, 0, canvas, 0, 0, 6, 2, RGB(0, 0, 255), CLR_NONE, ILD_NORMAL);
    EXPECT_EQ(8, canvas.Count(canvas.All(), kBlue));
    EXPECT_EQ(4, canvas.Count(canvas.All(), kRed));

    canvas.Clear(kGround);
    SetTextColor(canvas, RGB(0, 0, 0));
    ImageList_Draw(list, 0, canvas, 0, 0, ILD_MASK);
    EXPECT_EQ(32, canvas.Count({4, 0, 8, 8}, Canvas::kBlack));

    canvas.Clear(kGround);
    Canvas corner(8, 8);
    corner.Clear(PixelOf(kMagenta));
    corner.Put(7, 7, kGreen);
    ASSERT_EQ(1, AddMasked(corner));
    ASSERT_TRUE(ImageList_SetOverlayImage(list, 1, 2));
    EXPECT_FALSE(ImageList_SetOverlayImage(list, 5, 1));
    ImageList_Draw(list, 0, canvas, 0, 0, ILD_NORMAL | INDEXTOOVERLAYMASK(2));
    EXPECT_EQ(31, canvas.Count(canvas.All(), kRed));
    EXPECT_EQ(kGreen, canvas.At(7, 7));
}

TEST_F(ImageList, SelectedPictureIsMixedWithTheColour) {
    AddHalf(RGB(255, 0, 0));
    ImageList_DrawEx(list, 0, canvas, 0, 0, 0, 0, CLR_NONE, RGB(0, 0, 255), ILD_SELECTED);
    EXPECT_EQ(0, canvas.Count({0, 0, 4, 8}, kRed));
    EXPECT_EQ(32, canvas.Count({0, 0, 4, 8}, kGround)) << "only the picture is mixed";
    int red = 0;
    int blue = 0;
    for (int y = 0; y < 8; ++y) {
        for (int x = 4; x < 8; ++x) {
            red += canvas.At(x, y) >> 16;
            blue += canvas.At(x, y) & 0xFF;
        }
    }
    // Half of each, be it in every pixel or in every other one.
    EXPECT_NEAR(32 * 127, red, 32 * 3);
    EXPECT_NEAR(32 * 127, blue, 32 * 3);
}

TEST_F(ImageList, GrowsAndClosesGaps) {
    const COLORREF colours[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(255, 255, 0)};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(i, AddHalf(colours[i]));
    }
    EXPECT_TRUE(ImageList_Remove(list, 1));
    EXPECT_FALSE(ImageList_Remove(list, 3));
    EXPECT_EQ(3, ImageList_GetImageCount(list));
    const std::uint32_t left[] = {kRed, kBlue, 0xFFFF00};
    for (int i = 0; i < 3; ++i) {
        canvas.Clear(kGround);
        ImageList_Draw(list, i, canvas, 0, 0, ILD_NORMAL);
        EXPECT_EQ(32, canvas.Count({4, 0, 8, 8}, left[i])) << i;
        EXPECT_EQ(32, canvas.Count({0, 0, 4, 8}, kGround)) << i;
    }
    EXPECT_TRUE(ImageList_RemoveAll(list));
    EXPECT_EQ(0, ImageList_GetImageCount(list));
    EXPECT_FALSE(ImageList_Draw(list, 0, canvas, 0, 0, ILD_NORMAL));
    EXPECT_EQ(0, AddHalf(colours[0]));
}

TEST_F(ImageList, EveryDepthHoldsThePureColours) {
    for (const UINT depth : {ILC_COLOR, ILC_COLORDDB, ILC_COLOR4, ILC_COLOR8, ILC_COLOR24, ILC_COLOR32}) {
        EXPECT_TRUE(ImageList_Destroy(list));
        list = ImageList_Create(8, 8, depth | ILC_MASK, 1, 1);
        ASSERT_NE(nullptr, list) << depth;
        AddHalf(RGB(255, 0, 0));
        AddHalf(RGB(0, 0, 255));
        canvas.Clear(kGround);
        ImageList_Draw(list, 0, canvas, 0, 0, ILD_NORMAL);
        ImageList_Draw(list, 1, canvas, 8, 0, ILD_NORMAL);
        EXPECT_EQ(32, canvas.Count(canvas.All(), kRed)) << depth;
        EXPECT_EQ(32, canvas.Count(canvas.All(), kBlue)) << depth;
        EXPECT_EQ(64, canvas.Count({0, 0, 16, 8}, kGround)) << depth;
    }
}

TEST_F(ImageList, MaskBitmapsAndSeveralPicturesAtOnce) {
    Canvas wide(20, 8);
    wide.Clear(kRed);
    const HBITMAP image = CopyOf(wide, 20);
    WORD rows[8][2] = {};
    for (auto& row : rows) {
        row[0] = 0x00F0;  // the first four pixels of the first picture
    }
    const HBITMAP mask = CreateBitmap(20, 8, 1, 1, rows);
    EXPECT_EQ(0, ImageList_Add(list, image, mask));
    EXPECT_EQ(2, ImageList_GetImageCount(list)) << "the rest of the width is too narrow for one more";
    ImageList_Draw(list, 0, canvas, 0, 0, ILD_NORMAL);
    EXPECT_EQ(32, canvas.Count({4, 0, 8, 8}, kRed));
    EXPECT_EQ(32, canvas.Count({0, 0, 4, 8}, kGround));
    ImageList_Draw(list, 1, canvas, 8, 0, ILD_NORMAL);
    EXPECT_EQ(64, canvas.Count({8, 0, 16, 8}, kRed));
    DeleteObject(image);
    DeleteObject(mask);
}

TEST_F(ImageList, IconsBecomePictures) {
    EXPECT_EQ(0, ImageList_AddIcon(list, LoadIconA(nullptr, IDI_ERROR)));
    EXPECT_EQ(-1, ImageList_ReplaceIcon(list, 3, LoadIconA(nullptr, IDI_ERROR)));
    ImageList_Draw(list, 0, canvas, 0, 0, ILD_NORMAL);
    EXPECT_EQ(kGround, canvas.At(0, 0)) << "the corner is see-through";
    EXPECT_GT(64 - canvas.Count({0, 0, 8, 8}, kGround), 30);
}

TEST(ImageListResource, StripIsCutIntoFrames) {
    const HIMAGELIST list =
        ImageList_LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(4000), 4, 0, kMagenta, IMAGE_BITMAP, 0);
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(2, ImageList_GetImageCount(list));
    int cx = 0;
    int cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list, &cx, &cy));
    EXPECT_EQ(4, cx);
    EXPECT_EQ(2, cy);
    Canvas canvas(8, 8);
    ImageList_Draw(list, 1, canvas, 0, 0, ILD_NORMAL);
    EXPECT_EQ(PixelOf(RGB(0, 0, 255)), canvas.At(1, 0));
    EXPECT_EQ(63, canvas.Count(canvas.All(), Canvas::kWhite));
    ImageList_Destroy(list);
    EXPECT_EQ(nullptr,
              ImageList_LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(4099), 4, 0, kMagenta, IMAGE_BITMAP, 0));
}

TEST(ImageListErrors, NothingAndTheDestroyedAreRefused) {
    EXPECT_EQ(nullptr, ImageList_Create(0, 8, ILC_COLOR, 1, 1));
    EXPECT_EQ(nullptr, ImageList_Create(8, -1, ILC_COLOR, 1, 1));
    const HIMAGELIST list = ImageList_Create(4, 4, ILC_COLOR, 0, 4);
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(-1, ImageList_Add(list, nullptr, nullptr));
    EXPECT_EQ(0, ImageList_GetImageCount(list));
    EXPECT_TRUE(ImageList_Destroy(list));
    EXPECT_FALSE(ImageList_Destroy(list));
    EXPECT_EQ(0, ImageList_GetImageCount(nullptr));
    EXPECT_FALSE(ImageList_Draw(nullptr, 0, nullptr, 0, 0, ILD_NORMAL));
}

}  // namespace
