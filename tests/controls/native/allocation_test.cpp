// What happens when global memory runs out, which only this host's platform layer can be told to pretend.
#include <cvutil32/browse.h>
#include <cvutil32/datectrl.h>
#include <cvutil32/grbutton.h>
#include <cvutil32/numfld.h>
#include <cvutil32/scroll.h>
#include <cvutil32/timectrl.h>

#include "core/globalblock.h"
#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <cvplatform.h>

#include <gtest/gtest.h>

namespace {

using namespace testing_support;

TEST(Allocation, ControlsWithoutMemoryAreNotCreated) {
    TestWindow const host;
    for (char const* name : {DATECTRL_CLASSNAME, SCROLL_CLASSNAME, TIMECTRL_CLASSNAME}) {
        LeakCheck const leaks;
        CvPlatformFailAllocation(1);
        HWND const control = MakeChild(host, name);
        CvPlatformFailAllocation(0);
        EXPECT_EQ(nullptr, control) << name;
    }
    HWND const control = MakeChild(host, DATECTRL_CLASSNAME);
    EXPECT_NE(nullptr, control) << "and are once there is memory again";
}

TEST(Allocation, BrowseButtonWithoutMemoryIsAGraphicButtonOnly) {
    TestWindow const host;
    LeakCheck const leaks;
    CvPlatformFailAllocation(1);
    HWND const button = MakeChild(host, BROWSE_CLASSNAME, BROWSE_AUTOBUDDY);
    CvPlatformFailAllocation(0);
    ASSERT_NE(nullptr, button);
    EXPECT_EQ(nullptr, GetPropA(button, "Browse_IsValid"));
    EXPECT_NE(nullptr, GetPropA(button, "GrButton_IsValid"));
    char const* specs = nullptr;
    EXPECT_FALSE(BROWSE_GetFileSpecs(button, &specs));
    EXPECT_EQ(0U, BROWSE_SetDialogOptions(button, BROWSE_FILEMODE));
    EXPECT_EQ(nullptr, BROWSE_SetBuddyWindow(button, host));
    SendMessageA(host, WM_COMMAND, MAKEWPARAM(1, BN_CLICKED), reinterpret_cast<LPARAM>(button));
    DestroyWindow(button);
}

TEST(Allocation, GraphicButtonWithoutMemoryStaysAPlainButton) {
    TestWindow const host;
    LeakCheck const leaks;
    CvPlatformFailAllocation(1);
    HWND const button = MakeChild(host, GRBUTTON_CLASSNAME, BS_DEFPUSHBUTTON);
    CvPlatformFailAllocation(0);
    ASSERT_NE(nullptr, button);
    EXPECT_EQ(BS_DEFPUSHBUTTON, GetWindowLongA(button, GWL_STYLE) & 0xFFFF);
    EXPECT_EQ(nullptr, GetPropA(button, "GrButton_IsValid"));
    EXPECT_EQ(nullptr, GetPropA(host, "GrButton_ParentWndProc"));
    HBITMAP const bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    EXPECT_FALSE(GRBUTTON_SetHBitmaps(button, bitmap, bitmap));
    DeleteObject(bitmap);
    UpdateWindow(button);
    DestroyWindow(button);
}

TEST(Allocation, NumericFieldWithoutMemoryTakesDigitsButHasNoLimits) {
    TestWindow const host;
    LeakCheck const leaks;
    LONG_PTR const procedure = GetWindowLongPtrA(host, GWLP_WNDPROC);
    CvPlatformFailAllocation(1);
    HWND const field = MakeChild(host, NUMFLD_CLASSNAME, ES_AUTOHSCROLL);
    CvPlatformFailAllocation(0);
    ASSERT_NE(nullptr, field);
    EXPECT_EQ(procedure, GetWindowLongPtrA(host, GWLP_WNDPROC)) << "the parent is left alone";
    NUMFLD_SetLimits(field, 0, 9);
    for (char const character : {'a', '1', '2'}) {
        SendMessageA(field, WM_CHAR, static_cast<WPARAM>(character), 1);
    }
    SendMessageA(field, WM_VSCROLL, SB_LINEUP, 0);
    EXPECT_EQ(12, NUMFLD_GetValue(field));
    DestroyWindow(field);
}

TEST(Allocation, BlockThatCannotGrowStaysAsItWas) {
    LeakCheck const leaks;
    auto* const block = static_cast<char*>(globalblock::Allocate(4));
    ASSERT_NE(nullptr, block);
    block[0] = 'x';
    CvPlatformFailAllocation(1);
    EXPECT_EQ(nullptr, globalblock::Resize(block, 1 << 20));
    EXPECT_EQ('x', block[0]);
    CvPlatformFailAllocation(1);
    EXPECT_EQ(nullptr, globalblock::Allocate(4));
    CvPlatformFailAllocation(0);
    globalblock::Release(block);
}

}  // namespace
