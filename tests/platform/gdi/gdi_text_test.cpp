#include "tests/platform/support/gdi_canvas.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

class GdiText : public ::testing::Test {
  protected:
    GdiText() : canvas(200, 80) {
        font = CreateFontA(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "MS Sans Serif");
        previous = SelectObject(canvas, font);
        GetTextMetricsA(canvas, &metrics);
    }
    ~GdiText() override {
        SelectObject(canvas, previous);
        DeleteObject(font);
    }
    int Width(const std::string& text) {
        SIZE size{};
        EXPECT_TRUE(GetTextExtentPoint32A(canvas, text.c_str(), static_cast<int>(text.size()), &size));
        return size.cx;
    }
    Canvas canvas;
    HFONT font;
    HGDIOBJ previous;
    TEXTMETRICA metrics{};
};

TEST_F(GdiText, MetricsAgree) {
    LOGFONTA described{};
    EXPECT_NE(0, GetObjectA(font, sizeof described, &described));
    EXPECT_EQ(-11, described.lfHeight);
    EXPECT_STREQ("MS Sans Serif", described.lfFaceName);
    EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent);
    EXPECT_LT(0, metrics.tmAveCharWidth);
    EXPECT_LE(metrics.tmAveCharWidth, metrics.tmMaxCharWidth);
    SIZE size;
    GetTextExtentPoint32A(canvas, "Wg", 2, &size);
    EXPECT_EQ(metrics.tmHeight, size.cy);
    EXPECT_EQ(Width("A") + Width("B"), Width("AB"));
    EXPECT_EQ(0, Width(""));
}

TEST_F(GdiText, NoTextHasNoExtent) {
    for (const char* text : {"", static_cast<const char*>(nullptr)}) {
        SIZE size{7, 7};
        EXPECT_TRUE(GetTextExtentPoint32A(canvas, text, 0, &size));
        EXPECT_EQ(0, size.cx);
        EXPECT_EQ(0, size.cy);
    }
    SIZE size{7, 7};
    EXPECT_FALSE(GetTextExtentPoint32A(canvas, "abc", -1, &size));
    EXPECT_FALSE(GetTextExtentPoint32A(nullptr, "abc", 3, &size));
    EXPECT_EQ(7, size.cx);
}

TEST_F(GdiText, OpaqueTextFillsItsCell) {
    SetBkColor(canvas, RGB(255, 255, 0));
    TextOutA(canvas, 10, 5, "Hi", 2);
    const RECT box = canvas.Inked();
    ExpectRect(box, 10, 5, 10 + Width("Hi"), 5 + metrics.tmHeight);
    EXPECT_LT(0, canvas.Count(box, Canvas::kBlack));
    canvas.Clear(Canvas::kWhite);
    SetBkMode(canvas, TRANSPARENT);
    TextOutA(canvas, 10, 5, "Hi", 2);
    EXPECT_EQ(0, canvas.Count(canvas.All(), 0xFFFF00));
    EXPECT_LT(0, canvas.Count(canvas.All(), Canvas::kBlack));
}

TEST_F(GdiText, RectanglesFillAndClip) {
    const RECT rect{20, 10, 40, 18};
    SetBkColor(canvas, RGB(0, 255, 0));
    ASSERT_TRUE(ExtTextOutA(canvas, 10, 5, ETO_OPAQUE | ETO_CLIPPED, &rect, "WWWWWWWWWW", 10, nullptr));
    ExpectRect(canvas.Inked(), 20, 10, 40, 18);
    canvas.Clear(Canvas::kWhite);
    ASSERT_TRUE(ExtTextOutA(canvas, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr));
    EXPECT_EQ(20 * 8, canvas.Count(canvas.All(), 0x00FF00));
}

TEST_F(GdiText, GivenWidthsPlaceTheCharacters) {
    SetBkColor(canvas, RGB(255, 255, 0));
    const INT widths[2] = {30, 25};
    ExtTextOutA(canvas, 0, 0, 0, nullptr, "ll", 2, widths);
    ExpectRect(canvas.Inked(), 0, 0, 55, metrics.tmHeight);
    const RECT first{0, 0, 29, metrics.tmHeight};
    const RECT second{30, 0, 55, metrics.tmHeight};
    EXPECT_EQ(canvas.Count(first, Canvas::kBlack), canvas.Count(second, Canvas::kBlack));
}

TEST_F(GdiText, BoldIsWiderAndUnderlineShows) {
    const int plain = Width("The quick brown fox");
    const HFONT bold =
        CreateFontA(-11, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "MS Sans Serif");
    SelectObject(canvas, bold);
    EXPECT_LT(plain, Width("The quick brown fox"));
    const HFONT ruled =
        CreateFontA(-11, 0, 0, 0, FW_NORMAL, FALSE, TRUE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "MS Sans Serif");
    SelectObject(canvas, ruled);
    TextOutA(canvas, 0, 0, "        ", 8);
    EXPECT_LE(Width("        "), canvas.Count(canvas.All(), Canvas::kBlack));
    SelectObject(canvas, font);
    DeleteObject(bold);
    DeleteObject(ruled);
}

TEST_F(GdiText, DrawTextMeasures) {
    RECT rect{10, 10, 20, 20};
    EXPECT_EQ(metrics.tmHeight, DrawTextA(canvas, "Hello", -1, &rect, DT_CALCRECT | DT_SINGLELINE));
    ExpectRect(rect, 10, 10, 10 + Width("Hello"), 10 + metrics.tmHeight);
    rect = {0, 0, 5, 5};
    EXPECT_EQ(3 * metrics.tmHeight, DrawTextA(canvas, "a\nlonger\r\nb", -1, &rect, DT_CALCRECT));
    ExpectRect(rect, 0, 0, Width("longer"), 3 * metrics.tmHeight);
    rect = {0, 0, 0, 0};
    DrawTextA(canvas, "&File && more", -1, &rect, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(Width("File & more"), rect.right);
    rect = {0, 0, 0, 0};
    DrawTextA(canvas, "&File", -1, &rect, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(Width("&File"), rect.right);
}

TEST_F(GdiText, DrawTextBreaksAtBlanks) {
    RECT rect{0, 0, Width("one two ") + 1, 0};
    EXPECT_EQ(2 * metrics.tmHeight, DrawTextA(canvas, "one two three", -1, &rect, DT_CALCRECT | DT_WORDBREAK));
    // Whether the blank at the break counts is not told.
    EXPECT_LE(Width("one two"), rect.right);
    EXPECT_GE(Width("one two "), rect.right);
    // Blanks that hang over the edge do not widen the text.
    rect = {0, 0, Width("three"), 0};
    DrawTextA(canvas, "three ", -1, &rect, DT_CALCRECT | DT_WORDBREAK);
    EXPECT_EQ(Width("three"), rect.right);
    // A word that is too long stays whole, unless it is drawn as an edit field would.
    rect = {0, 0, Width("mm"), 0};
    EXPECT_EQ(metrics.tmHeight, DrawTextA(canvas, "mmmmmm", -1, &rect, DT_CALCRECT | DT_WORDBREAK));
    EXPECT_EQ(Width("mmmmmm"), rect.right);
    rect = {0, 0, Width("mm"), 0};
    EXPECT_EQ(3 * metrics.tmHeight,
              DrawTextA(canvas, "mmmmmm", -1, &rect, DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL));
}

TEST_F(GdiText, DrawTextPlacesItsLines) {
    SetBkColor(canvas, RGB(255, 255, 0));
    RECT rect{10, 10, 110, 50};
    DrawTextA(canvas, "mid", -1, &rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    RECT box = canvas.Inked();
    EXPECT_NEAR(10 + (100 - Width("mid")) / 2, box.left, 1);
    EXPECT_NEAR(10 + (40 - metrics.tmHeight) / 2, box.top, 1);
    canvas.Clear(Canvas::kWhite);
    DrawTextA(canvas, "end", -1, &rect, DT_SINGLELINE | DT_RIGHT);
    box = canvas.Inked();
    EXPECT_EQ(110, box.right);
    EXPECT_EQ(10 + metrics.tmHeight, box.bottom);
    canvas.Clear(Canvas::kWhite);
    rect = {10, 10, 20, 15};
    DrawTextA(canvas, "clipped text", -1, &rect, DT_SINGLELINE);
    ExpectRect(canvas.Inked(), 10, 10, 20, 15);
    DrawTextA(canvas, "clipped text", -1, &rect, DT_SINGLELINE | DT_NOCLIP);
    EXPECT_EQ(10 + Width("clipped text"), canvas.Inked().right);
}

TEST_F(GdiText, DrawTextShortensWithDots) {
    // The picture of a shortened text is that of the text that it becomes.
    const auto looksLike = [&](const char* text, UINT how, int room, const char* shortened) {
        RECT rect{0, 0, room, 20};
        canvas.Clear(Canvas::kWhite);
        DrawTextA(canvas, shortened, -1, &rect, DT_SINGLELINE);
        const std::vector<std::uint32_t> wanted(canvas.Pixels(), canvas.Pixels() + 200 * 80);
        canvas.Clear(Canvas::kWhite);
        DrawTextA(canvas, text, -1, &rect, DT_SINGLELINE | how);
        return std::equal(wanted.begin(), wanted.end(), canvas.Pixels());
    };
    EXPECT_TRUE(looksLike("A text that is too long", DT_END_ELLIPSIS, Width("A text...") + 1, "A text..."));
}

TEST_F(GdiText, APrefixUnderlinesItsLetter) {
    SetBkMode(canvas, TRANSPARENT);
    RECT rect{0, 0, 100, 30};
    DrawTextA(canvas, "xx", -1, &rect, DT_SINGLELINE);
    const int plain = canvas.Count(canvas.All(), Canvas::kBlack);
    canvas.Clear(Canvas::kWhite);
    DrawTextA(canvas, "x&x", -1, &rect, DT_SINGLELINE);
    const int marked = canvas.Count(canvas.All(), Canvas::kBlack);
    EXPECT_NEAR(Width("x"), marked - plain, 2);
    // The mark lies below the baseline, under the second letter.
    const RECT below{Width("x"), metrics.tmAscent, 2 * Width("x"), metrics.tmHeight + 2};
    EXPECT_NEAR(Width("x"), canvas.Count(below, Canvas::kBlack), 2);
}

TEST_F(GdiText, TabsReachTheirStops) {
    RECT rect{};
    DrawTextA(canvas, "a\tb", -1, &rect, DT_CALCRECT | DT_EXPANDTABS);
    EXPECT_EQ(8 * metrics.tmAveCharWidth + Width("b"), rect.right);
}

}  // namespace
