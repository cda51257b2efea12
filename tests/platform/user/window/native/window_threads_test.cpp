// Windows of several threads that come to their end together. Nobody waits for a thread that takes no messages.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Pump;
using tests::Recorder;

std::atomic<int> destroyed{0};
std::atomic<int> ended{0};

LRESULT CALLBACK CountEnds(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    destroyed += message == WM_DESTROY;
    ended += message == WM_NCDESTROY;
    return DefWindowProcA(window, message, wParam, lParam);
}

class WindowThreads : public ::testing::Test {
  protected:
    void SetUp() override {
        destroyed = ended = 0;
        Recorder::Get().Reset();
        window_ = Recorder::Get().Make(WS_POPUP | WS_VISIBLE, 100, 100, 300, 200);
        go_ = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    }
    void TearDown() override {
        if (thread_.joinable()) {
            SetEvent(go_);
            thread_.join();
        }
        CloseHandle(go_);
        if (IsWindow(window_))
            DestroyWindow(window_);
        Recorder::Get().Reset();
    }
    /// A thread that makes a child of this thread's window and one of that, and then waits for nothing but the event.
    void MakeChildElsewhere(bool pumpsAtTheEnd) {
        std::atomic<bool> made{false};
        thread_ = std::thread([&made, pumpsAtTheEnd, this] {
            child_ = Make(window_);
            inner_ = Make(child_);
            SetFocus(inner_);
            made = true;
            WaitForSingleObject(go_, INFINITE);
            if (pumpsAtTheEnd)
                Pump();
        });
        while (!made) {
            Pump();
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
        }
    }
    static HWND Make(HWND parent) {
        const HWND window =
            CreateWindowExA(0, "static", "", WS_CHILD | WS_VISIBLE, 5, 5, 50, 50, parent, nullptr, nullptr, nullptr);
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountEnds));
        return window;
    }
    void LetGo() {
        SetEvent(go_);
        thread_.join();
    }
    HWND window_ = nullptr;
    HWND child_ = nullptr;
    HWND inner_ = nullptr;
    HANDLE go_ = nullptr;
    std::thread thread_;
};

TEST_F(WindowThreads, AChildIsEndedByItsOwnThreadWhenThatComesToIt) {
    MakeChildElsewhere(true);
    EXPECT_TRUE(DestroyWindow(window_));
    EXPECT_FALSE(IsWindow(window_));
    EXPECT_FALSE(IsWindowVisible(child_));
    EXPECT_EQ(nullptr, GetParent(child_));
    EXPECT_EQ(0, destroyed.load());
    LetGo();
    EXPECT_EQ(2, destroyed.load());
    EXPECT_EQ(2, ended.load());
    EXPECT_FALSE(IsWindow(child_));
    EXPECT_FALSE(IsWindow(inner_));
}

TEST_F(WindowThreads, AChildEndsWithItsThread) {
    MakeChildElsewhere(false);
    EXPECT_TRUE(DestroyWindow(window_));
    LetGo();
    EXPECT_FALSE(IsWindow(child_));
    EXPECT_FALSE(IsWindow(inner_));
}

TEST_F(WindowThreads, AThreadThatEndsDoesNotWaitForTheParents) {
    MakeChildElsewhere(false);
    // This thread waits for the other one, and takes no messages.
    LetGo();
    EXPECT_FALSE(IsWindow(child_));
    EXPECT_TRUE(IsWindow(window_));
}

TEST_F(WindowThreads, AWindowOfThisThreadInAForeignChildComesHome) {
    MakeChildElsewhere(true);
    const HWND own = CreateWindowExA(WS_EX_NOPARENTNOTIFY, "static", "", WS_CHILD | WS_VISIBLE, 0, 0, 9, 9, child_,
                                     nullptr, nullptr, nullptr);
    ASSERT_TRUE(DestroyWindow(window_));
    LetGo();
    EXPECT_FALSE(IsWindow(child_));
    EXPECT_TRUE(IsWindow(own));
    Pump();
    EXPECT_FALSE(IsWindow(own));
}

TEST(OwnedWindows, GoWithAnOwnerInsideAnotherWindow) {
    const auto make = [](DWORD style, HWND parent) {
        return CreateWindowExA(0, "static", "", style, 0, 0, 50, 50, parent, nullptr, nullptr, nullptr);
    };
    const HWND outer = make(WS_POPUP, nullptr);
    const HWND inner = make(WS_POPUP, nullptr);
    SetParent(inner, outer);
    const HWND owned = make(WS_POPUP, inner);
    EXPECT_EQ(inner, GetWindow(owned, GW_OWNER));
    // An owner cannot come under what it owns.
    EXPECT_EQ(nullptr, SetParent(outer, owned));
    DestroyWindow(outer);
    EXPECT_FALSE(IsWindow(inner));
    EXPECT_FALSE(IsWindow(owned));
}

TEST(OwnedWindows, OddArguments) {
    const HWND window = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    const HWND stale = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(stale);
    for (const HWND bad : {reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)), stale}) {
        EXPECT_EQ(nullptr, SetParent(window, bad));
        EXPECT_EQ(nullptr, SetParent(bad, window));
        EXPECT_FALSE(DestroyWindow(bad));
        EXPECT_FALSE(EnableWindow(bad, FALSE));
        EXPECT_FALSE(ValidateRect(bad, nullptr));
        EXPECT_EQ(nullptr, GetAncestor(bad, GA_ROOT));
        EXPECT_FALSE(SetWindowTextA(bad, reinterpret_cast<LPCSTR>(-1)));
        MSG message{bad, WM_PAINT, 0, 0, 0, {0, 0}};
        EXPECT_EQ(0, DispatchMessageA(&message));
    }
    EXPECT_EQ(nullptr, SetParent(GetDesktopWindow(), window));
    EXPECT_FALSE(SetWindowTextA(window, reinterpret_cast<LPCSTR>(-1)));
    EXPECT_EQ(DWORD{ERROR_NOACCESS}, tests::ErrorOf([&] {
                  return CreateWindowExA(0, "static", reinterpret_cast<LPCSTR>(8), WS_POPUP, 0, 0, 9, 9, nullptr,
                                         nullptr, nullptr, nullptr);
              }));
    for (const char* name : {"edit", "button", "combobox", "listbox", "scrollbar"}) {
        const HWND control =
            CreateWindowExA(0, name, "text", WS_POPUP, 0, 0, 90, 90, nullptr, nullptr, nullptr, nullptr);
        SetWindowTextA(control, reinterpret_cast<LPCSTR>(8));
        DestroyWindow(control);
    }
    DestroyWindow(window);
}

}  // namespace
