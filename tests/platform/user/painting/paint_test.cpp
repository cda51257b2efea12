#include "tests/platform/support/painted_window.h"

namespace {

using Painting = PaintedWindows;

TEST_F(Painting, FrameThenBackgroundThenClient) {
    HWND window = Make(kPlain | WS_CAPTION, 10, 10, 100, 80, ground, kRed);
    Settle();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    EXPECT_EQ(Of(window).Count(WM_PAINT), 0);
    UpdateWindow(window);
    const Painted& record = Of(window);
    EXPECT_EQ(record.Count(WM_NCPAINT), 1);
    EXPECT_EQ(record.Count(WM_ERASEBKGND), 1);
    EXPECT_EQ(record.Count(WM_PAINT), 1);
    EXPECT_LT(record.Position(WM_NCPAINT), record.Position(WM_ERASEBKGND));
    EXPECT_EQ(PixelAt(window, 5, 5), kRed);
    EXPECT_FALSE(record.eraseLeft[0]);
}

TEST_F(Painting, EraseOnlyWhenAskedFor) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
    EXPECT_EQ(Of(window).Count(WM_ERASEBKGND), 0);
    EXPECT_EQ(Of(window).Count(WM_NCPAINT), 0);
    // One request to erase counts for the whole region.
    const RECT part{0, 0, 10, 10};
    InvalidateRect(window, &part, TRUE);
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
    EXPECT_EQ(Of(window).Count(WM_ERASEBKGND), 1);
    // What is not erased then is left to the paint.
    Of(window).Forget();
    Of(window).erases = false;
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
    EXPECT_EQ(Of(window).eraseLeft, std::vector<BOOL>{TRUE});
}

TEST_F(Painting, DrawingIsHeldToTheUpdateRegion) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    Settle();
    Of(window).paints = false;
    const RECT due{10, 10, 30, 30};
    InvalidateRect(window, &due, FALSE);
    PAINTSTRUCT paint;
    HDC context = BeginPaint(window, &paint);
    ExpectRect(paint.rcPaint, 10, 10, 30, 30);
    RECT whole{0, 0, 100, 80};
    FillRect(context, &whole, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EndPaint(window, &paint);
    EXPECT_EQ(PixelAt(window, 15, 15), RGB(0, 0, 0));
    EXPECT_EQ(PixelAt(window, 40, 15), kRed);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(Painting, ContextsOfAWindowAreClippedToWhatIsSeenOfIt) {
    HWND parent = Make(kPlain | WS_CLIPCHILDREN, 10, 10, 100, 80, ground, kRed);
    HWND lower = Child(parent, 0, 0, 40, 40, kGreen, WS_CLIPSIBLINGS);
    HWND upper = Child(parent, 20, 20, 40, 40, kYellow);
    SetWindowPos(upper, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    Settle();
    const RECT huge{-500, -500, 500, 500};
    HBRUSH black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    HDC context = GetDC(lower);
    FillRect(context, &huge, black);
    ReleaseDC(lower, context);
    EXPECT_EQ(PixelAt(parent, 10, 10), RGB(0, 0, 0));
    EXPECT_EQ(PixelAt(parent, 30, 30), kYellow);
    EXPECT_EQ(PixelAt(parent, 50, 10), kRed);

    context = GetDC(parent);
    FillRect(context, &huge, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    ReleaseDC(parent, context);
    EXPECT_EQ(PixelAt(parent, 10, 10), RGB(0, 0, 0));
    EXPECT_EQ(PixelAt(parent, 50, 10), RGB(255, 255, 255));
    EXPECT_EQ(PixelAt(ground, 5, 5), RGB(0, 0, 128));
}

TEST_F(Painting, ReleasedContextsComeBackAtTheirDefaults) {
    HWND window = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    HDC context = GetDC(window);
    SetTextColor(context, kGreen);
    SetBkMode(context, TRANSPARENT);
    EXPECT_EQ(ReleaseDC(window, context), 1);
    context = GetDC(window);
    EXPECT_EQ(GetTextColor(context), RGB(0, 0, 0));
    EXPECT_EQ(GetBkMode(context), OPAQUE);
    ReleaseDC(window, context);
}

TEST_F(Painting, ValidatingAParentValidatesTheChildrenThatItPaintsOver) {
    HWND plain = Make(kPlain, 10, 10, 100, 80, ground, kRed);
    HWND clipping = Make(kPlain | WS_CLIPCHILDREN, 120, 10, 100, 80, ground, kRed);
    HWND inPlain = Child(plain, 10, 10, 40, 40, kGreen);
    HWND inClipping = Child(clipping, 10, 10, 40, 40, kGreen);
    Settle();
    for (HWND each : {plain, inPlain, clipping, inClipping}) {
        InvalidateRect(each, nullptr, FALSE);
    }
    for (HWND each : {plain, clipping}) {
        ValidateRect(each, nullptr);
        UpdateWindow(each);
    }
    EXPECT_EQ(Of(plain).Count(WM_PAINT), 0);
    EXPECT_EQ(Of(inPlain).Count(WM_PAINT), 0);
    EXPECT_EQ(Of(clipping).Count(WM_PAINT), 0);
    UpdateWindow(inClipping);
    EXPECT_EQ(Of(inClipping).Count(WM_PAINT), 1);
    // Only the part that is meant.
    InvalidateRect(inPlain, nullptr, FALSE);
    const RECT left{0, 0, 30, 80};
    ValidateRect(plain, &left);
    UpdateWindow(inPlain);
    ASSERT_EQ(Of(inPlain).updates.size(), 1U);
    ExpectRect(Of(inPlain).updates[0], 20, 0, 40, 40);
}

}  // namespace
