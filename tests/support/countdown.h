// Windows that end in the middle of things: what every message that somebody sends may lead to.
#pragma once

#include <windows.h>

#include <functional>

namespace testing_support {

/// Counts the messages that watched windows receive, and ends something at one of them.
class Countdown {
  public:
    /// @param at   the message at which it happens, counted from 1.
    /// @param end  what happens then; what is left of the message goes to nobody if its window is gone.
    Countdown(int at, std::function<void()> end);
    ~Countdown();
    Countdown(Countdown const&) = delete;
    Countdown& operator=(Countdown const&) = delete;

    /// Counts what a window receives from now on. A window is watched once, whatever is said.
    static void Watch(HWND window);

    /// Whether there were enough messages.
    bool HasHappened() const {
        return left_ == 0;
    }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static Countdown* running;

    int left_;
    std::function<void()> end_;
};

/// Calls @p run with 1, 2, 3 and so on, until it says that the count was too high. @return how often it was called.
int Sweep(std::function<bool(int at)> const& run);

}  // namespace testing_support
