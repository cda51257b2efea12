// Error codes and messages that Windows documents, and not every host of these tests keeps to.
#include <gtest/gtest.h>

#include <windows.h>

#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Recorder;

class WindowErrors : public ::testing::Test {
  protected:
    void TearDown() override {
        Recorder::Get().Reset();
    }
};

TEST_F(WindowErrors, DeadHandlesAndUnknownClasses) {
    HWND window = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    DestroyWindow(window);
    SetLastError(0);
    EXPECT_FALSE(DestroyWindow(window));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
    SetLastError(0);
    EXPECT_EQ(CreateWindowExA(0, "NoSuchClass", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr),
              nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CANNOT_FIND_WND_CLASS));
    SetLastError(0);
    EXPECT_FALSE(DestroyWindow(GetDesktopWindow()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
}

TEST_F(WindowErrors, ARefusedCreationIsADestruction) {
    Recorder::Get().answer = [](const Heard& heard, LRESULT* result) {
        *result = -1;
        return heard.message == WM_CREATE;
    };
    EXPECT_EQ(Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10), nullptr);
    const std::vector<UINT> told{WM_NCCREATE, WM_CREATE, WM_DESTROY, WM_NCDESTROY};
    EXPECT_EQ(Recorder::Get().Numbers(told), told);
}

TEST_F(WindowErrors, NarrowLongsDoNotHoldPointers) {
    HWND window = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    SetLastError(0);
    EXPECT_EQ(GetWindowLongA(window, GWLP_WNDPROC), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_INDEX));
    DestroyWindow(window);
}

TEST_F(WindowErrors, APlacementSaysHowLongItIs) {
    HWND window = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    WINDOWPLACEMENT placement{};
    EXPECT_FALSE(GetWindowPlacement(window, &placement));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    SetLastError(0);
    EXPECT_FALSE(SetWindowPlacement(window, &placement));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    DestroyWindow(window);
}

}  // namespace
