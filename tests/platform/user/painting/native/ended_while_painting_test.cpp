// Windows that end while something is drawn in them: what was in use then goes too.
#include <gtest/gtest.h>
#include <windows.h>

#include "tests/platform/support/dialog_builder.h"

namespace {

INT_PTR CALLBACK EndWhenAsked(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_CTLCOLORSTATIC) {
        DestroyWindow(dialog);
    }
    return message == WM_INITDIALOG;
}

// The control has the dialog's font selected when it asks for its colours.
TEST(EndedWhilePainting, ADialogsFontGoesWithIt) {
    const auto open = [] {
        tests::DialogBuilder builder(WS_POPUP | WS_VISIBLE | DS_SETFONT);
        builder.Title("", "MS Sans Serif");
        builder.Item("static", "text", 1, WS_CHILD | WS_VISIBLE, 5, 5, 60, 10);
        const HWND dialog =
            CreateDialogIndirectParamA(GetModuleHandleA(nullptr), builder.Data(), nullptr, EndWhenAsked, 0);
        if (IsWindow(dialog)) {
            UpdateWindow(GetDlgItem(dialog, 1));
        }
        EXPECT_FALSE(IsWindow(dialog));
    };
    open();
    const DWORD before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    open();
    EXPECT_EQ(before, GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
}

TEST(EndedWhilePainting, AContextOfItChangesNothingForOthers) {
    const auto make = [] {
        return CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 10, 10, 50, 50, nullptr, nullptr, nullptr,
                               nullptr);
    };
    const HWND first = make();
    const HDC stale = GetDC(first);
    DestroyWindow(first);
    EXPECT_EQ(nullptr, SelectObject(stale, GetStockObject(ANSI_FIXED_FONT)));
    SetTextColor(stale, RGB(1, 2, 3));
    const HWND second = make();
    for (int i = 0; i < 16; ++i) {
        const HDC context = GetDC(second);
        EXPECT_EQ(GetStockObject(SYSTEM_FONT), SelectObject(context, GetStockObject(SYSTEM_FONT)));
        EXPECT_EQ(RGB(0, 0, 0), GetTextColor(context));
        EXPECT_EQ(0, ReleaseDC(first, stale));
    }
    DestroyWindow(second);
}

}  // namespace
