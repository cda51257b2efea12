#include <windows.h>
#include <commctrl.h>

#include "tests/platform/support/gdi_canvas.h"

namespace {

constexpr std::uint32_t kListGround = 0x3344CC;
constexpr std::uint32_t kListBlue = 0x0000FF;
constexpr std::uint32_t kListMagentaPixel = 0xFF00FF;
constexpr COLORREF kListMagenta = RGB(255, 0, 255);

HIMAGELIST LoadList(COLORREF mask, int id = 4000, UINT type = IMAGE_BITMAP, int cx = 4) {
    return ImageList_LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), cx, 0, mask, type, 0);
}

TEST(ImageList, StripIsCutIntoFrames) {
    const HIMAGELIST list = LoadList(kListMagenta);
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(2, ImageList_GetImageCount(list));
    int cx = 0;
    int cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list, &cx, &cy));
    EXPECT_EQ(4, cx);
    EXPECT_EQ(2, cy);
    Canvas canvas(8, 8);
    canvas.Clear(kListGround);
    SetTextColor(canvas, RGB(1, 2, 3));
    EXPECT_TRUE(ImageList_Draw(list, 1, canvas, 0, 0, ILD_NORMAL));
    EXPECT_EQ(kListBlue, canvas.At(1, 0));
    EXPECT_EQ(63, canvas.Count(canvas.All(), kListGround)) << "the background shows through";
    EXPECT_EQ(RGB(1, 2, 3), GetTextColor(canvas)) << "the context's colours are its own again";
    EXPECT_FALSE(ImageList_Draw(list, 2, canvas, 0, 0, ILD_NORMAL));
    EXPECT_FALSE(ImageList_Draw(list, -1, canvas, 0, 0, ILD_NORMAL));
    EXPECT_TRUE(ImageList_Destroy(list));
}

TEST(ImageList, TheBackgroundIsAColourThatOfTheFirstPixelOrNone) {
    for (const COLORREF mask : {COLORREF{CLR_DEFAULT}, COLORREF{CLR_NONE}}) {
        const HIMAGELIST list = LoadList(mask);
        ASSERT_NE(nullptr, list);
        Canvas canvas(8, 8);
        canvas.Clear(kListGround);
        EXPECT_TRUE(ImageList_Draw(list, 1, canvas, 2, 3, ILD_TRANSPARENT));
        // The strip's first pixel is blue.
        EXPECT_EQ(mask == CLR_NONE ? kListBlue : kListGround, canvas.At(3, 3));
        EXPECT_EQ(7, canvas.Count(canvas.All(), kListMagentaPixel));
        EXPECT_EQ(mask == CLR_NONE ? 64 - 8 : 64 - 7, canvas.Count(canvas.All(), kListGround));
        EXPECT_TRUE(ImageList_Destroy(list));
    }
}

TEST(ImageList, NothingAndTheDestroyedAreRefused) {
    EXPECT_EQ(nullptr, LoadList(kListMagenta, 4099));
    EXPECT_EQ(nullptr, LoadList(kListMagenta, 4000, IMAGE_ICON));
    const HIMAGELIST list = LoadList(kListMagenta);
    EXPECT_TRUE(ImageList_Destroy(list));
    EXPECT_FALSE(ImageList_Destroy(list));
    EXPECT_EQ(0, ImageList_GetImageCount(nullptr));
    EXPECT_FALSE(ImageList_Draw(nullptr, 0, nullptr, 0, 0, ILD_NORMAL));
}

}  // namespace
