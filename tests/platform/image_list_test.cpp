#include <windows.h>
#include <commctrl.h>

#include "gdi_canvas.h"

namespace {

constexpr std::uint32_t kGround = 0x3344CC;
constexpr std::uint32_t kBlue = 0x0000FF;
constexpr std::uint32_t kMagentaPixel = 0xFF00FF;
constexpr COLORREF kMagenta = RGB(255, 0, 255);

HIMAGELIST Load(COLORREF mask, int id = 4000, UINT type = IMAGE_BITMAP, int cx = 4) {
    return ImageList_LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), cx, 0, mask, type, 0);
}

TEST(ImageList, StripIsCutIntoFrames) {
    const HIMAGELIST list = Load(kMagenta);
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(2, ImageList_GetImageCount(list));
    int cx = 0;
    int cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list, &cx, &cy));
    EXPECT_EQ(4, cx);
    EXPECT_EQ(2, cy);
    Canvas canvas(8, 8);
    canvas.Clear(kGround);
    SetTextColor(canvas, RGB(1, 2, 3));
    EXPECT_TRUE(ImageList_Draw(list, 1, canvas, 0, 0, ILD_NORMAL));
    EXPECT_EQ(kBlue, canvas.At(1, 0));
    EXPECT_EQ(63, canvas.Count(canvas.All(), kGround)) << "the background shows through";
    EXPECT_EQ(RGB(1, 2, 3), GetTextColor(canvas)) << "the context's colours are its own again";
    EXPECT_FALSE(ImageList_Draw(list, 2, canvas, 0, 0, ILD_NORMAL));
    EXPECT_FALSE(ImageList_Draw(list, -1, canvas, 0, 0, ILD_NORMAL));
    EXPECT_TRUE(ImageList_Destroy(list));
}

TEST(ImageList, TheBackgroundIsAColourThatOfTheFirstPixelOrNone) {
    for (const COLORREF mask : {COLORREF{CLR_DEFAULT}, COLORREF{CLR_NONE}}) {
        const HIMAGELIST list = Load(mask);
        ASSERT_NE(nullptr, list);
        Canvas canvas(8, 8);
        canvas.Clear(kGround);
        EXPECT_TRUE(ImageList_Draw(list, 1, canvas, 2, 3, ILD_TRANSPARENT));
        // The strip's first pixel is blue.
        EXPECT_EQ(mask == CLR_NONE ? kBlue : kGround, canvas.At(3, 3));
        EXPECT_EQ(7, canvas.Count(canvas.All(), kMagentaPixel));
        EXPECT_EQ(mask == CLR_NONE ? 64 - 8 : 64 - 7, canvas.Count(canvas.All(), kGround));
        EXPECT_TRUE(ImageList_Destroy(list));
    }
}

TEST(ImageList, NothingAndTheDestroyedAreRefused) {
    EXPECT_EQ(nullptr, Load(kMagenta, 4099));
    EXPECT_EQ(nullptr, Load(kMagenta, 4000, IMAGE_ICON));
    const HIMAGELIST list = Load(kMagenta);
    EXPECT_TRUE(ImageList_Destroy(list));
    EXPECT_FALSE(ImageList_Destroy(list));
    EXPECT_EQ(0, ImageList_GetImageCount(nullptr));
    EXPECT_FALSE(ImageList_Draw(nullptr, 0, nullptr, 0, 0, ILD_NORMAL));
}

}  // namespace
