// The arithmetic of the message box.
#include "dialogs/msgbox/layout.h"

#include <gtest/gtest.h>

namespace {

using msgbox::Measured;

/// The narrow template in pixels of a 6 by 13 font, with one button and an icon.
Measured Narrow(SIZE text, int iconHeight = 32, int buttons = 1) {
    Measured in = {};
    in.message = {60, 20, 216, 20};
    in.text = text;
    in.iconLeft = 21;
    in.iconHeight = iconHeight;
    in.panel = {216, 23};
    in.button = {234, 10, 306, 33};
    in.secondButton = 39;
    in.buttonCount = buttons;
    in.window = {321, 350};
    in.clientHeight = 325;
    return in;
}

TEST(MessageBoxLayout, ALowMessageStandsBesideTheIcon) {
    msgbox::Layout const out = msgbox::LayOut(Narrow({100, 13}));
    EXPECT_EQ(60 + 28, out.message.left);
    EXPECT_EQ(20 + 9, out.message.top) << "19 pixels are left over";
    EXPECT_EQ(100, out.message.right - out.message.left);
    EXPECT_EQ(13, out.message.bottom - out.message.top);
    EXPECT_EQ(23 + 32, out.panel.cy);
}

TEST(MessageBoxLayout, WithoutAnIconHalfItsSpaceIsUsed) {
    msgbox::Layout const out = msgbox::LayOut(Narrow({100, 13}, 0));
    EXPECT_EQ(60 + 28 - 19, out.message.left) << "half of 39, rounded down";
    EXPECT_EQ(20, out.message.top);
    EXPECT_EQ(20 + 13, out.panel.cy);
    EXPECT_EQ(60 - 19, msgbox::LayOut(Narrow({156, 26}, 0)).message.left);
}

TEST(MessageBoxLayout, HalvesAreRoundedDown) {
    EXPECT_EQ(60 + 77, msgbox::LayOut(Narrow({1, 13})).message.left);
    // An icon control right of the message, as a translated template might have it.
    Measured in = Narrow({156, 13}, 0);
    in.iconLeft = 63;
    EXPECT_EQ(60 + 2, msgbox::LayOut(in).message.left);
}

TEST(MessageBoxLayout, AWordTooWideMovesTheButtonsAndTheEdge) {
    msgbox::Layout const out = msgbox::LayOut(Narrow({200, 26}));
    EXPECT_EQ(60, out.message.left);
    EXPECT_EQ(260, out.message.right);
    EXPECT_EQ(216 + 44, out.panel.cx);
    EXPECT_EQ(234 + 44, out.button.left);
    EXPECT_EQ(306 + 44, out.button.right);
    EXPECT_EQ(321 + 44, out.window.cx);
}

TEST(MessageBoxLayout, TheHigherColumnDecides) {
    int const frame = 25;
    // The panel: 10 above and below.
    EXPECT_EQ(frame + 55 + 20, msgbox::LayOut(Narrow({100, 13})).window.cy);
    EXPECT_EQ(frame + 20 + 780 + 20, msgbox::LayOut(Narrow({100, 780})).window.cy);
    // The buttons: the last one's bottom and 10 below.
    msgbox::Layout const three = msgbox::LayOut(Narrow({100, 13}, 0, 3));
    EXPECT_EQ(29, three.step);
    EXPECT_EQ(frame + 10 + 2 * 29 + 23 + 10, three.window.cy);
    EXPECT_EQ(frame + 33 + 20, msgbox::LayOut(Narrow({100, 13}, 0, 0)).window.cy);
}

TEST(MessageBoxLayout, NothingTouchesAtAnySize) {
    for (int count = 0; count <= 8; ++count) {
        for (int iconHeight : {0, 32}) {
            for (int width = 0; width <= 400; width += 7) {
                for (int height = 0; height <= 800; height += 13) {
                    msgbox::Layout const out = msgbox::LayOut(Narrow({width, height}, iconHeight, count));
                    int const client = out.window.cy - 25;
                    int const lastButton = out.button.bottom + (count - 1) * out.step;
                    ASSERT_LE(iconHeight ? 60 : 21, out.message.left) << width << ' ' << height;
                    ASSERT_LT(out.message.right, out.button.left) << width << ' ' << height;
                    ASSERT_LE(out.message.bottom + 10, client) << width << ' ' << height;
                    ASSERT_LE(lastButton + 10, client) << width << ' ' << height;
                    ASSERT_LE(out.button.right, out.window.cx) << width << ' ' << height;
                }
            }
        }
    }
}

}  // namespace
