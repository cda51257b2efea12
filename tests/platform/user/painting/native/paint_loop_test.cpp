// Procedures that take messages while they answer WM_PAINT.
#include <gtest/gtest.h>
#include <windows.h>

#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Pump;
using tests::Recorder;

class PaintLoop : public ::testing::Test {
  protected:
    void SetUp() override {
        Recorder::Get().Reset();
        window_ = Recorder::Get().Make(WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 100, 100, 300, 200);
        other_ = Recorder::Get().Make(WS_CHILD | WS_VISIBLE, 200, 0, 50, 50, window_);
        Pump();
        Recorder::Get().Clear();
    }
    void TearDown() override {
        Recorder::Get().Reset();
        DestroyWindow(window_);
        Pump();
    }
    /// From now on the window runs `take` when it is to paint, and paints afterwards.
    template <class Take>
    void Answer(const Take& take) {
        Recorder::Get().answer = [this, take](const Heard& heard, LRESULT*) {
            if (heard.message != WM_PAINT || heard.window != window_)
                return false;
            if (++paints_ > 20) {
                ADD_FAILURE() << "WM_PAINT for ever";
                ValidateRect(window_, nullptr);
                return true;
            }
            take();
            PAINTSTRUCT paint{};
            BeginPaint(window_, &paint);
            painted_ = paint.rcPaint;
            EndPaint(window_, &paint);
            return true;
        };
    }
    int Paints(HWND window) const {
        return static_cast<int>(Recorder::Get().Numbers({WM_PAINT}, window).size());
    }
    HWND window_ = nullptr;
    HWND other_ = nullptr;
    int paints_ = 0;
    RECT painted_{};
};

TEST_F(PaintLoop, GetsWmPaintOnce) {
    Answer([] { Pump(); });
    InvalidateRect(window_, nullptr, FALSE);
    Pump();
    EXPECT_EQ(1, Paints(window_));
    EXPECT_EQ(300, painted_.right);
    InvalidateRect(window_, nullptr, FALSE);
    UpdateWindow(window_);
    EXPECT_EQ(2, Paints(window_));
    // Nor does it matter whether what is taken is dispatched.
    Answer([] {
        MSG message;
        while (PeekMessageA(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE)) {
        }
    });
    InvalidateRect(window_, nullptr, FALSE);
    Pump();
    EXPECT_EQ(3, Paints(window_));
}

TEST_F(PaintLoop, OtherWindowsPaintMeanwhile) {
    int inside = 0;
    Answer([&] {
        InvalidateRect(other_, nullptr, FALSE);
        Recorder::Get().Clear();
        Pump();
        inside = Paints(other_);
    });
    const RECT part{0, 0, 10, 10};
    InvalidateRect(window_, &part, FALSE);
    Pump();
    EXPECT_EQ(1, inside);
}

TEST_F(PaintLoop, WhatComesUpInTheLoopIsPaintedWithTheRest) {
    Answer([&] {
        const RECT more{50, 0, 60, 10};
        InvalidateRect(window_, &more, FALSE);
        Pump();
    });
    const RECT part{0, 0, 10, 10};
    InvalidateRect(window_, &part, FALSE);
    Pump();
    EXPECT_EQ(1, Paints(window_));
    EXPECT_EQ(60, painted_.right);
}

TEST_F(PaintLoop, WhatComesUpBehindBeginPaintIsPaintedInTheLoop) {
    int depth = 0;
    int deepest = 0;
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message != WM_PAINT || heard.window != window_)
            return false;
        PAINTSTRUCT paint{};
        BeginPaint(window_, &paint);
        deepest = ++depth > deepest ? depth : deepest;
        if (depth == 1) {
            InvalidateRect(window_, nullptr, FALSE);
            Pump();
        }
        --depth;
        EndPaint(window_, &paint);
        return true;
    };
    InvalidateRect(window_, nullptr, FALSE);
    Pump();
    EXPECT_EQ(2, deepest);
}

TEST_F(PaintLoop, WhoDoesNotPaintIsAskedAgain) {
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message != WM_PAINT || heard.window != window_)
            return false;
        Pump();
        return ++paints_ < 3;
    };
    InvalidateRect(window_, nullptr, FALSE);
    Pump();
    EXPECT_EQ(3, paints_);
    // A request that was made while the procedure ran is not lost.
    int asked = 0;
    Recorder::Get().answer = [&](const Heard& heard, LRESULT*) {
        if (heard.message == WM_PAINT && heard.window == window_ && ++asked == 1) {
            Pump();
            ValidateRect(window_, nullptr);
            RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE);
            return true;
        }
        return false;
    };
    InvalidateRect(window_, nullptr, FALSE);
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
