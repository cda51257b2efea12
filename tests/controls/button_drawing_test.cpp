// The graphic button's two drawing routines, pixel by pixel.
#include <cvutil32/grbutton.h>

#include "tests/controls/resource.h"
#include "tests/platform/support/gdi_canvas.h"
#include "tests/support/leaks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using testing_support::LeakCheck;

using Drawing = std::vector<std::string>;

/// A letter for each pixel: the frame's colour, shadow, light, face, or a dot for what was not drawn.
Drawing Letters(Canvas& canvas, RECT const& rect) {
    Drawing drawing;
    for (int y = rect.top; y < rect.bottom; ++y) {
        std::string row;
        for (int x = rect.left; x < rect.right; ++x) {
            std::uint32_t const pixel = canvas.At(x, y);
            auto const is = [=](int index) { return pixel == PixelOf(GetSysColor(index)); };
            row += is(COLOR_WINDOWFRAME)    ? 'k'
                   : is(COLOR_BTNSHADOW)    ? 's'
                   : is(COLOR_BTNHIGHLIGHT) ? 'h'
                   : is(COLOR_BTNFACE)      ? 'f'
                                            : '.';
        }
        drawing.push_back(row);
    }
    return drawing;
}

Drawing FrameOf(BOOL pressed, BOOL outline) {
    Canvas canvas(14, 12);
    canvas.Clear(0x123456);
    RECT const item = {2, 2, 12, 10};
    GRBUTTON_DrawButtonFrame(canvas, &item, nullptr, pressed, outline, nullptr, nullptr, nullptr, nullptr);
    int const inside = (item.right - item.left) * (item.bottom - item.top);
    EXPECT_EQ(14 * 12 - inside, canvas.Count(canvas.All(), 0x123456)) << "nothing outside the rectangle";
    return Letters(canvas, item);
}

TEST(ButtonFrame, EveryLookPixelByPixel) {
    FrameOf(FALSE, FALSE);  // the system makes its colours' brushes when a colour is first asked for
    LeakCheck const leaks;
    EXPECT_EQ((Drawing{"hhhhhhhhhk", "hfffffffsk", "hfffffffsk", "hfffffffsk", "hfffffffsk", "hfffffffsk", "hssssssssk",
                       "kkkkkkkkkk"}),
              FrameOf(FALSE, FALSE))
        << "raised";
    EXPECT_EQ((Drawing{"kkkkkkkkkh", "ksssssssfh", "ksfffffffh", "ksfffffffh", "ksfffffffh", "ksfffffffh", "kffffffffh",
                       "hhhhhhhhhh"}),
              FrameOf(TRUE, FALSE))
        << "sunken";
    EXPECT_EQ((Drawing{"kkkkkkkkkk", "khhhhhhhkk", "khfffffskk", "khfffffskk", "khfffffskk", "khsssssskk", "kkkkkkkkkk",
                       "kkkkkkkkkk"}),
              FrameOf(FALSE, TRUE))
        << "ring with the raised edge inside";
    EXPECT_EQ((Drawing{"kkkkkkkkkk", "kssssssssk", "ksffffffsk", "ksffffffsk", "ksffffffsk", "ksffffffsk", "kssssssssk",
                       "kkkkkkkkkk"}),
              FrameOf(TRUE, TRUE))
        << "flat";
}

TEST(ButtonFrame, GivenObjectsAreUsedAndKept) {
    Canvas canvas(10, 8);
    HPEN const frame = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    HPEN const shadow = CreatePen(PS_SOLID, 1, RGB(0, 255, 0));
    HPEN const light = CreatePen(PS_SOLID, 1, RGB(0, 0, 255));
    HBRUSH const fill = CreateSolidBrush(RGB(255, 255, 0));
    HGDIOBJ const pen = SelectObject(canvas, GetStockObject(NULL_PEN));
    RECT rect = {0, 0, 10, 8};
    GRBUTTON_DrawButtonFrame(canvas, &rect, &rect, FALSE, FALSE, frame, shadow, light, fill);
    ExpectRect(rect, 2, 2, 8, 6);
    EXPECT_EQ(0xFF0000u, canvas.At(9, 7));
    EXPECT_EQ(0x00FF00u, canvas.At(8, 6));
    EXPECT_EQ(0x0000FFu, canvas.At(0, 0));
    EXPECT_EQ(0xFFFF00u, canvas.At(4, 4));
    EXPECT_EQ(GetStockObject(NULL_PEN), SelectObject(canvas, pen)) << "what was selected is selected again";
    for (HGDIOBJ object : {static_cast<HGDIOBJ>(frame), static_cast<HGDIOBJ>(shadow), static_cast<HGDIOBJ>(light),
                           static_cast<HGDIOBJ>(fill)}) {
        EXPECT_TRUE(DeleteObject(object));
    }

    canvas.Clear(Canvas::kWhite);
    RECT face = {1, 2, 3, 4};
    GRBUTTON_DrawButtonFrame(nullptr, &rect, &face, FALSE, FALSE, nullptr, nullptr, nullptr, nullptr);
    GRBUTTON_DrawButtonFrame(canvas, nullptr, &face, FALSE, FALSE, nullptr, nullptr, nullptr, nullptr);
    ExpectRect(face, 1, 2, 3, 4);
    EXPECT_EQ(80, canvas.Count(canvas.All(), Canvas::kWhite));
}

// --- faces

constexpr std::uint32_t kGround = 0x808000;
constexpr std::uint32_t kBlue = 0x0000FF;

class ButtonFace : public testing::Test {
  protected:
    ButtonFace() : image_(Load(IDB_PICTURE)), mask_(Load(IDB_MASK)), canvas_(30, 20) {
        canvas_.Clear(kGround);
    }
    ~ButtonFace() override {
        DeleteObject(image_);
        DeleteObject(mask_);
    }

    static HBITMAP Load(int id) {
        HBITMAP const bitmap = LoadBitmapA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id));
        EXPECT_NE(nullptr, bitmap);
        return bitmap;
    }
    /// Where blue is.
    RECT Blue() {
        RECT box = {30, 20, 0, 0};
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 30; ++x) {
                if (canvas_.At(x, y) == kBlue) {
                    box = {std::min<LONG>(box.left, x), std::min<LONG>(box.top, y), std::max<LONG>(box.right, x + 1),
                           std::max<LONG>(box.bottom, y + 1)};
                }
            }
        }
        return box;
    }

    static constexpr RECT kFace = {3, 2, 24, 13};  // 20 by 10 and the pixel that the pressed picture needs
    HBITMAP image_;
    HBITMAP mask_;
    Canvas canvas_;
};

TEST_F(ButtonFace, PictureIsCentredAndMovesWhenPressed) {
    GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, FALSE, FALSE, image_, nullptr, nullptr, FALSE);
    ExpectRect(Blue(), 10, 5, 16, 9);
    EXPECT_EQ(Canvas::kBlack, canvas_.At(10, 5)) << "without a mask the corners are as they are";
    EXPECT_EQ(30 * 20 - 24, canvas_.Count(canvas_.All(), kGround));
    canvas_.Clear(kGround);
    GRBUTTON_DrawButtonFace(canvas_, &kFace, TRUE, FALSE, TRUE, image_, nullptr, nullptr, FALSE);
    ExpectRect(Blue(), 11, 6, 17, 10);
}

TEST_F(ButtonFace, MaskLetsTheBackgroundShow) {
    {
        LeakCheck const leaks;
        GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, FALSE, FALSE, image_, mask_, nullptr, FALSE);
    }
    std::uint32_t const face = PixelOf(GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(4, canvas_.Count(canvas_.All(), face));
    EXPECT_EQ(face, canvas_.At(10, 5));
    EXPECT_EQ(face, canvas_.At(15, 8));
    EXPECT_EQ(20, canvas_.Count(canvas_.All(), kBlue));
    HBRUSH const brush = CreateSolidBrush(RGB(255, 0, 0));
    GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, FALSE, FALSE, image_, mask_, brush, FALSE);
    EXPECT_EQ(4, canvas_.Count(canvas_.All(), 0xFF0000));
    EXPECT_TRUE(DeleteObject(brush));
}

TEST_F(ButtonFace, LargePictureIsCut) {
    RECT const small = {3, 2, 8, 5};  // 4 by 2 for the picture of 6 by 4
    GRBUTTON_DrawButtonFace(canvas_, &small, FALSE, FALSE, FALSE, image_, nullptr, nullptr, FALSE);
    ExpectRect(Blue(), 3, 2, 7, 4);
    EXPECT_EQ(Canvas::kBlack, canvas_.At(3, 2)) << "its upper left corner shows";
    EXPECT_EQ(30 * 20 - 8, canvas_.Count(canvas_.All(), kGround));
}

TEST_F(ButtonFace, StretchedPictureFillsTheFace) {
    GRBUTTON_DrawButtonFace(canvas_, &kFace, TRUE, FALSE, FALSE, image_, mask_, nullptr, TRUE);
    ExpectRect(Blue(), 4, 3, 24, 13);
    EXPECT_EQ(PixelOf(GetSysColor(COLOR_BTNFACE)), canvas_.At(4, 3));
    EXPECT_EQ(30 * 20 - 200, canvas_.Count(canvas_.All(), kGround));
}

TEST_F(ButtonFace, FocusIsDottedAroundTheFaceUnlessDisabled) {
    GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, TRUE, TRUE, nullptr, nullptr, nullptr, FALSE);
    EXPECT_EQ(600, canvas_.Count(canvas_.All(), kGround));
    GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, TRUE, FALSE, nullptr, nullptr, nullptr, FALSE);
    Canvas expected(30, 20);
    expected.Clear(kGround);
    DrawFocusRect(expected, &kFace);
    ASSERT_LT(expected.Count(expected.All(), kGround), 600);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 30; ++x) {
            ASSERT_EQ(expected.At(x, y), canvas_.At(x, y)) << x << ' ' << y;
        }
    }
}

TEST_F(ButtonFace, BadObjectsDoNoHarm) {
    LeakCheck const leaks;
    HBITMAP const gone = Load(IDB_PICTURE);
    DeleteObject(gone);
    GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, FALSE, FALSE, image_, gone, nullptr, FALSE);
    GRBUTTON_DrawButtonFace(canvas_, &kFace, FALSE, FALSE, FALSE, gone, mask_, nullptr, TRUE);
    GRBUTTON_DrawButtonFace(canvas_, nullptr, FALSE, TRUE, FALSE, image_, nullptr, nullptr, FALSE);
    GRBUTTON_DrawButtonFace(nullptr, &kFace, FALSE, TRUE, FALSE, image_, nullptr, nullptr, FALSE);
    RECT const turned = {20, 10, 10, 5};
    GRBUTTON_DrawButtonFrame(canvas_, &turned, nullptr, FALSE, TRUE, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace
