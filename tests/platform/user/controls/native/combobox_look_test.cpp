// How combo boxes look where the documentation leaves it open and hosts differ.
#include <gtest/gtest.h>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/looking.h"

namespace {

bool ShowsHighlight(HWND window) {
    UpdateWindow(window);
    return tests::CountPixels(window, tests::ClientOf(window), GetSysColor(COLOR_HIGHLIGHT)) > 0;
}

TEST(ComboBoxLook, TheTextIsHighlightedOnlyWithTheFocus) {
    const HWND parent = tests::MakeOwner(DefWindowProcA);
    ShowWindow(parent, SW_SHOWNA);
    SetActiveWindow(parent);
    const HWND combo = CreateWindowExA(0, "combobox", "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, 10, 10, 120, 100,
                                       parent, nullptr, nullptr, nullptr);
    SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("ant"));
    SendMessageA(combo, CB_SETCURSEL, 0, 0);
    const HWND edit = tests::ComboField(combo);
    SetFocus(combo);
    EXPECT_TRUE(ShowsHighlight(edit));
    SetFocus(parent);
    EXPECT_FALSE(ShowsHighlight(edit));
    SetFocus(combo);
    EXPECT_TRUE(ShowsHighlight(edit));
    DestroyWindow(parent);
}

}  // namespace
