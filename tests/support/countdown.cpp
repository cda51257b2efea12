#include "tests/support/countdown.h"

#include <gtest/gtest.h>

#include <utility>

namespace testing_support {

namespace {

constexpr char kFormer[] = "CvTestWatched";
constexpr int kMost = 20000;

}  // namespace

Countdown* Countdown::running = nullptr;

Countdown::Countdown(int at, std::function<void()> end) : left_(at), end_(std::move(end)) {
    running = this;
}

Countdown::~Countdown() {
    running = nullptr;
}

void Countdown::Watch(HWND window) {
    if (IsWindow(window) && !GetPropA(window, kFormer)) {
        SetPropA(window, kFormer, reinterpret_cast<HANDLE>(GetWindowLongPtrA(window, GWLP_WNDPROC)));
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
}

LRESULT CALLBACK Countdown::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto const former = reinterpret_cast<WNDPROC>(GetPropA(window, kFormer));
    if (message == WM_NCDESTROY) {
        RemovePropA(window, kFormer);
    } else if (running && running->left_ > 0 && --running->left_ == 0) {
        running->end_();
        if (!IsWindow(window)) {
            return 0;
        }
    }
    return former ? CallWindowProcA(former, window, message, wParam, lParam)
                  : DefWindowProcA(window, message, wParam, lParam);
}

int Sweep(std::function<bool(int)> const& run) {
    int at = 0;
    do {
        SCOPED_TRACE(testing::Message() << "message " << ++at);
        if (!run(at)) {
            return at;
        }
    } while (at < kMost && !testing::Test::HasFailure());
    ADD_FAILURE() << "it never comes to an end";
    return at;
}

}  // namespace testing_support
