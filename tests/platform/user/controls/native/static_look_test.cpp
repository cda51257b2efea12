// How texts lie in static controls here.
#include "tests/platform/support/controls.h"

namespace {

class StaticLookTest : public tests::Controls {
  protected:
    HWND Make(DWORD style, const char* text) {
        const HWND control = MakeControl("static", text, style, 80, 24);
        RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return control;
    }
    /// The smallest rectangle, in the parent, around all black pixels near a control.
    RECT Extent() const {
        RECT box{};
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 110; ++x) {
                const RECT pixel{x, y, x + 1, y + 1};
                if (tests::PixelOf(parent_, x, y) == RGB(0, 0, 0)) {
                    UnionRect(&box, &box, &pixel);
                }
            }
        }
        return box;
    }
};

TEST_F(StaticLookTest, TextIsCutOffOrCentred) {
    const HWND whole = Make(SS_SIMPLE, "MMMMMMMMMMMMMMMMMMMM");
    EXPECT_EQ(90, Extent().right);
    DestroyWindow(whole);
    Make(SS_CENTERIMAGE, "M");
    const RECT centred = Extent();
    EXPECT_NEAR(centred.top - 10, 34 - centred.bottom, 2);
}

}  // namespace
