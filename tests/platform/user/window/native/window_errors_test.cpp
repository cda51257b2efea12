// Error codes and messages that Windows documents, and not every host of these tests keeps to.
#include <gtest/gtest.h>

#include <windows.h>

#include "tests/platform/support/looking.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::Heard;
using tests::Recorder;

using WindowErrors = tests::RecordedTest;

TEST_F(WindowErrors, DeadHandlesAndUnknownClasses) {
    HWND window = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    DestroyWindow(window);
    EXPECT_EQ(DWORD{ERROR_INVALID_WINDOW_HANDLE}, tests::ErrorOf([&] { return DestroyWindow(window); }));
    EXPECT_EQ(DWORD{ERROR_CANNOT_FIND_WND_CLASS}, tests::ErrorOf([&] {
                  return CreateWindowExA(0, "NoSuchClass", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                                         nullptr);
              }));
    EXPECT_EQ(DWORD{ERROR_ACCESS_DENIED}, tests::ErrorOf([&] { return DestroyWindow(GetDesktopWindow()); }));
}

TEST_F(WindowErrors, NarrowLongsDoNotHoldPointers) {
    HWND window = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    EXPECT_EQ(DWORD{ERROR_INVALID_INDEX}, tests::ErrorOf([&] { return GetWindowLongA(window, GWLP_WNDPROC); }));
    EXPECT_EQ(DWORD{ERROR_INVALID_INDEX}, tests::ErrorOf([&] { return GetWindowLongPtrA(window, 0); }));
    EXPECT_EQ(DWORD{ERROR_INVALID_INDEX}, tests::ErrorOf([&] { return SetWindowLongPtrA(window, 1, 1); }));
    DestroyWindow(window);
}

TEST_F(WindowErrors, APlacementSaysHowLongItIs) {
    HWND made = Recorder::Get().Make(WS_POPUP, 0, 0, 10, 10);
    WINDOWPLACEMENT placement{};
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, tests::ErrorOf([&] { return GetWindowPlacement(made, &placement); }));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, tests::ErrorOf([&] { return SetWindowPlacement(made, &placement); }));
}

}  // namespace
