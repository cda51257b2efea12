// Pictures of an image list with a colour mixed in.
#include "../gdi_canvas.h"
#include "comctl/imagelist.h"

namespace {

TEST(ImageBlend, OnlyThePictureIsMixed) {
    const HIMAGELIST list = ImageList_LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(4000), 4, 0,
                                                 RGB(255, 0, 255), IMAGE_BITMAP, 0);
    Canvas canvas(4, 2);
    canvas.Clear(0x3344CC);
    EXPECT_TRUE(platform::comctl::DrawBlended(list, 1, canvas, 0, 0, RGB(255, 0, 0)));
    EXPECT_EQ(0x7F007FU, canvas.At(1, 0));
    EXPECT_EQ(7, canvas.Count(canvas.All(), 0x3344CC));
    EXPECT_FALSE(platform::comctl::DrawBlended(list, 2, canvas, 0, 0, RGB(255, 0, 0)));
    ImageList_Destroy(list);
}

}  // namespace
