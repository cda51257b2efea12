// Names as other compilers and languages look them up: without decoration.
#include <cvutil32.h>

#include <gtest/gtest.h>

namespace {

TEST(Exports, FlatNamesAreUndecorated) {
    HMODULE const library = GetModuleHandleA("CVUTIL32");
    ASSERT_NE(nullptr, library);
    EXPECT_EQ(UTIL_GetModuleInstance(), library);
    for (char const* name : {"ANIMATE_Initialize",
                             "ANIMATE_RegisterClass",
                             "ANIMATE_Start",
                             "ANIMATE_Stop",
                             "BUDDYFR_RegisterClass",
                             "GRBUTTON_DrawButtonFace",
                             "GRBUTTON_DrawButtonFrame",
                             "GRBUTTON_RegisterClass",
                             "GRBUTTON_SetBitmaps",
                             "GRBUTTON_SetHBitmaps",
                             "DATECTRL_CompareDate",
                             "DATECTRL_DecrementDate",
                             "DATECTRL_GetDate",
                             "DATECTRL_IncrementDate",
                             "DATECTRL_IsValidDate",
                             "DATECTRL_RegisterClass",
                             "DATECTRL_SetDate",
                             "SCROLL_RegisterClass",
                             "SCROLL_SetAssociateWindow",
                             "ABOUT_DisplayAboutBox",
                             "KVMB_MessageBoxError",
                             "KVMB_MessageBoxExtended",
                             "UTIL_GetModuleInstance",
                             "UTIL_SetModuleInstance",
                             "datectrl_EditDateWndProc"}) {
        EXPECT_NE(nullptr, GetProcAddress(library, name)) << name;
    }
}

}  // namespace
