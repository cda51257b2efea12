// Procedures that take messages while they answer WM_PAINT.
#include <gtest/gtest.h>
#include <windows.h>

#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class PaintLoop : public tests::RecordedTest {
  protected:
    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 100, 100, 300, 200);
        other_ = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 200, 0, 50, 50, window);
        Pump();
        Recorder::Get().Clear();
    }
    /// From now on the window runs `take` when it is to paint, and paints afterwards.
    template <class Take>
    void Answer(const Take& take) {
        Recorder::Get().answer = [this, take](const Heard& heard, LRESULT*) {
            if (heard.message != WM_PAINT || heard.window != window)
                return false;
            if (++paints_ > 20) {
                ADD_FAILURE() << "WM_PAINT for ever";
                ValidateRect(window, nullptr);
                return true;
            }
            take();
            PAINTSTRUCT paint{};
            BeginPaint(window, &paint);
            painted_ = paint.rcPaint;
            EndPaint(window, &paint);
            return true;
        };
    }
    int Paints(HWND window) const {
        return static_cast<int>(Recorder::Get().Numbers({WM_PAINT}, window).size());
    }
    HWND other_ = nullptr;
    int paints_ = 0;
    RECT painted_{};
};

TEST_F(PaintLoop, GetsWmPaintOnce) {
    Answer([] { Pump(); });
    InvalidateRect(window, nullptr, FALSE);
    Pump();
    EXPECT_EQ(1, Paints(window));
    EXPECT_EQ(300, painted_.right);
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
    EXPECT_EQ(2, Paints(window));
    // Nor does it matter whether what is taken is dispatched.
    Answer([] {
        MSG message;
        while (PeekMessageA(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE)) {
        }
    });
    InvalidateRect(window, nullptr, FALSE);
    Pump();
    EXPECT_EQ(3, Paints(window));
}

TEST_F(PaintLoop, WhatComesUpInTheLoopIsPaintedWithTheRest) {
    int inside = 0;
    Answer([&] {
        const RECT more{50, 0, 60, 10};
        InvalidateRect(window, &more, FALSE);
        InvalidateRect(other_, nullptr, FALSE);
        const int before = Paints(other_);
        Pump();
        inside = Paints(other_) - before;
    });
    const RECT part{0, 0, 10, 10};
    InvalidateRect(window, &part, FALSE);
    Pump();
    EXPECT_EQ(1, Paints(window));
    EXPECT_EQ(60, painted_.right);
    EXPECT_EQ(1, inside) << "other windows paint meanwhile";
}

TEST_F(PaintLoop, WhatComesUpBehindBeginPaintIsPaintedInTheLoop) {
    int depth = 0;
    int deepest = 0;
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message != WM_PAINT || heard.window != window)
            return false;
        PAINTSTRUCT paint{};
        BeginPaint(window, &paint);
        deepest = ++depth > deepest ? depth : deepest;
        if (depth == 1) {
            InvalidateRect(window, nullptr, FALSE);
            Pump();
        }
        --depth;
        EndPaint(window, &paint);
        return true;
    };
    InvalidateRect(window, nullptr, FALSE);
    Pump();
    EXPECT_EQ(2, deepest);
}

TEST_F(PaintLoop, WhoDoesNotPaintIsAskedAgain) {
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message != WM_PAINT || heard.window != window)
            return false;
        Pump();
        return ++paints_ < 3;
    };
    InvalidateRect(window, nullptr, FALSE);
    Pump();
    EXPECT_EQ(3, paints_);
    // A request that was made while the procedure ran is not lost.
    int asked = 0;
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message == WM_PAINT && heard.window == window && ++asked == 1) {
            Pump();
            ValidateRect(window, nullptr);
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE);
            return true;
        }
        return false;
    };
    InvalidateRect(window, nullptr, FALSE);
    Pump();
    EXPECT_EQ(2, asked);
}

TEST_F(PaintLoop, TheWindowMayGo) {
    HWND gone = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 10, 10, 20, 20);
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message == WM_PAINT && heard.window == gone)
            DestroyWindow(gone);
        return heard.message == WM_PAINT && heard.window == gone;
    };
    InvalidateRect(gone, nullptr, FALSE);
    Pump();
    EXPECT_FALSE(IsWindow(gone));
}

}  // namespace
