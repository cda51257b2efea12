// The arithmetic of the micro scroll bar.
#include "controls/scroll/layout.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using scroll::Arrow;
using scroll::Glyph;

std::string Describe(RECT const& r) {
    return std::to_string(r.left) + ' ' + std::to_string(r.top) + ' ' + std::to_string(r.right) + ' ' +
           std::to_string(r.bottom);
}

std::string Describe(std::array<scroll::Line, 4> const& lines) {
    std::string text;
    for (scroll::Line const& line : lines) {
        text += Describe(RECT{line.from.x, line.from.y, line.to.x, line.to.y}) + ';';
    }
    return text;
}

TEST(ScrollLayout, ArrowsShareTheClientArea) {
    RECT const client = {0, 0, 18, 21};
    EXPECT_EQ("0 10 17 20", Describe(scroll::ArrowRect(true, Arrow::kFirst, client)));
    EXPECT_EQ("0 0 17 10", Describe(scroll::ArrowRect(true, Arrow::kSecond, client)));
    RECT const wide = {0, 0, 21, 18};
    EXPECT_EQ("0 0 10 17", Describe(scroll::ArrowRect(false, Arrow::kFirst, wide)));
    EXPECT_EQ("10 0 20 17", Describe(scroll::ArrowRect(false, Arrow::kSecond, wide)));
}

TEST(ScrollLayout, AttachedWidthFollowsTheHeight) {
    EXPECT_EQ(18, scroll::AttachedWidth(true, 20));
    EXPECT_EQ(18, scroll::AttachedWidth(true, 21)) << "truncated";
    EXPECT_EQ(22, scroll::AttachedWidth(false, 20));
}

TEST(ScrollLayout, TrianglesGrowFromTheirTip) {
    // The centre of {0, 0, 17, 10} is (8, 5), that of {0, 10, 17, 19} is (8, 14).
    EXPECT_EQ("8 3 10 3;7 4 11 4;6 5 12 5;5 6 13 6;", Describe(scroll::GlyphLines(Glyph::kUp, {0, 0, 17, 10}, false)));
    EXPECT_EQ("8 15 10 15;7 14 11 14;6 13 12 13;5 12 13 12;",
              Describe(scroll::GlyphLines(Glyph::kDown, {0, 10, 17, 19}, false)));
    EXPECT_EQ("9 16 11 16;8 15 12 15;7 14 13 14;6 13 14 13;",
              Describe(scroll::GlyphLines(Glyph::kDown, {0, 10, 17, 19}, true)))
        << "one pixel right and down when pressed";
    // The centre of {0, 0, 10, 17} is (5, 8), that of {10, 0, 20, 17} is (15, 8).
    EXPECT_EQ("3 7 3 9;4 6 4 10;5 5 5 11;6 4 6 12;", Describe(scroll::GlyphLines(Glyph::kLeft, {0, 0, 10, 17}, false)));
    EXPECT_EQ("16 7 16 9;15 6 15 10;14 5 14 11;13 4 13 12;",
              Describe(scroll::GlyphLines(Glyph::kRight, {10, 0, 20, 17}, false)));
}

}  // namespace
