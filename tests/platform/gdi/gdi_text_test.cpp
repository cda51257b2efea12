#include "tests/platform/support/gdi_canvas.h"

#include <cstring>
#include <string>

namespace {

class GdiText : public ::testing::Test {
  protected:
    GdiText() : canvas(200, 80) {
        font = CreateFontA(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY,
                           0, "MS Sans Serif");
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
    EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent);
    EXPECT_LT(0, metrics.tmAveCharWidth);
    EXPECT_LE(metrics.tmAveCharWidth, metrics.tmMaxCharWidth);
    SIZE size;
    GetTextExtentPoint32A(canvas, "Wg", 2, &size);
    EXPECT_EQ(metrics.tmHeight, size.cy);
    INT widths[2];
    ASSERT_TRUE(GetCharWidth32A(canvas, 'A', 'B', widths));
    EXPECT_EQ(widths[0] + widths[1], Width("AB"));
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

TEST_F(GdiText, ExtentsTellWhatFits) {
    int fit = -1;
    int partial[5] = {};
    SIZE size;
    const int room = Width("Hel") + 1;
    ASSERT_TRUE(GetTextExtentExPointA(canvas, "Hello", 5, room, &fit, partial, &size));
    EXPECT_EQ(3, fit);
    EXPECT_EQ(Width("H"), partial[0]);
    EXPECT_EQ(Width("Hel"), partial[2]);
    EXPECT_EQ(Width("Hello"), size.cx);
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

TEST_F(GdiText, AlignmentMovesTheCell) {
    SetBkColor(canvas, RGB(255, 255, 0));
    const int width = Width("Text");
    SetTextAlign(canvas, TA_RIGHT | TA_BOTTOM);
    TextOutA(canvas, 100, 40, "Text", 4);
    ExpectRect(canvas.Inked(), 100 - width, 40 - metrics.tmHeight, 100, 40);
    canvas.Clear(Canvas::kWhite);
    SetTextAlign(canvas, TA_CENTER | TA_BASELINE);
    TextOutA(canvas, 100, 40, "Text", 4);
    EXPECT_EQ(40 - metrics.tmAscent, canvas.Inked().top);
    EXPECT_NEAR(100 - width / 2, canvas.Inked().left, 1);
    SetTextAlign(canvas, TA_UPDATECP);
    MoveToEx(canvas, 7, 3, nullptr);
    TextOutA(canvas, 99, 99, "Text", 4);
    POINT position;
    GetCurrentPositionEx(canvas, &position);
    EXPECT_EQ(7 + width, position.x);
    EXPECT_EQ(3, position.y);
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

TEST_F(GdiText, SpacingAndJustification) {
    const int plain = Width("a b c");
    SetTextCharacterExtra(canvas, 2);
    EXPECT_EQ(plain + 10, Width("a b c"));
    SetTextCharacterExtra(canvas, 0);
    SetTextJustification(canvas, 7, 2);
    EXPECT_EQ(plain + 7, Width("a b c"));
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
    DrawTextA(canvas, "end", -1, &rect, DT_SINGLELINE | DT_RIGHT | DT_BOTTOM);
    box = canvas.Inked();
    EXPECT_EQ(110, box.right);
    EXPECT_EQ(50, box.bottom);
    canvas.Clear(Canvas::kWhite);
    rect = {10, 10, 20, 15};
    DrawTextA(canvas, "clipped text", -1, &rect, DT_SINGLELINE);
    ExpectRect(canvas.Inked(), 10, 10, 20, 15);
    DrawTextA(canvas, "clipped text", -1, &rect, DT_SINGLELINE | DT_NOCLIP);
    EXPECT_EQ(10 + Width("clipped text"), canvas.Inked().right);
}

TEST_F(GdiText, DrawTextShortensWithDots) {
    char text[40] = "A text that is too long";
    RECT rect{0, 0, Width("A text that") + 5, 20};
    DrawTextExA(canvas, text, -1, &rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    const std::string shortened = text;
    ASSERT_LE(3u, shortened.size());
    EXPECT_EQ("...", shortened.substr(shortened.size() - 3));
    EXPECT_EQ(0u, std::string("A text that is too long").find(shortened.substr(0, shortened.size() - 3)));
    EXPECT_LE(Width(shortened), rect.right);
    char path[60] = "C:\\some folder\\another\\file.txt";
    rect.right = Width("C:\\some...\\file.txt") + 1;
    DrawTextExA(canvas, path, -1, &rect, DT_SINGLELINE | DT_PATH_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    const std::string cut = path;
    EXPECT_NE(std::string::npos, cut.find("...\\file.txt"));
    EXPECT_LE(Width(cut), rect.right);
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
    const INT stops[2] = {50, 90};
    EXPECT_EQ(90 + Width("c"), LOWORD(GetTabbedTextExtentA(canvas, "a\tb\tc", 5, 2, stops)));
    const INT every = 40;
    EXPECT_EQ(80 + Width("c"), LOWORD(GetTabbedTextExtentA(canvas, "a\tb\tc", 5, 1, &every)));
    const DWORD regular = GetTabbedTextExtentA(canvas, "\tc", 2, 0, nullptr);
    EXPECT_EQ(8 * metrics.tmAveCharWidth + Width("c"), LOWORD(regular));
    RECT rect{};
    DrawTextA(canvas, "a\tb", -1, &rect, DT_CALCRECT | DT_EXPANDTABS);
    EXPECT_EQ(8 * metrics.tmAveCharWidth + Width("b"), rect.right);
}

TEST_F(GdiText, GreyedTextIsThinner) {
    SetBkMode(canvas, TRANSPARENT);
    TextOutA(canvas, 0, 0, "Greyed out", 10);
    const int full = canvas.Count(canvas.All(), Canvas::kBlack);
    canvas.Clear(Canvas::kWhite);
    ASSERT_TRUE(GrayStringA(canvas, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)), nullptr,
                            reinterpret_cast<LPARAM>("Greyed out"), 10, 0, 0, 0, 0));
    const int grey = canvas.Count(canvas.All(), Canvas::kBlack);
    EXPECT_LT(0, grey);
    EXPECT_LT(grey, full);
}

}  // namespace
