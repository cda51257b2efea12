// Names as other compilers and languages look them up: without decoration.
#include <cvutil32.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

TEST(Exports, FlatNamesAreUndecorated) {
    HMODULE const library = GetModuleHandleA("CVUTIL32");
    ASSERT_NE(nullptr, library);
    EXPECT_EQ(UTIL_GetModuleInstance(), library);
    std::istringstream names(
        "ABOUT_DisplayAboutBox ANIMATE_Initialize ANIMATE_RegisterClass ANIMATE_Start ANIMATE_Stop "
        "BROWSE_DisplayBrowseDialog BROWSE_GetDialogOptions BROWSE_GetFileSpecs BROWSE_RegisterClass "
        "BROWSE_SetBuddyWindow BROWSE_SetDialogOptions BROWSE_SetFileSpecs BUDDYFR_RegisterClass "
        "DATECTRL_CompareDate DATECTRL_DecrementDate DATECTRL_GetDate DATECTRL_IncrementDate "
        "DATECTRL_IsValidDate DATECTRL_RegisterClass DATECTRL_SetDate GRBUTTON_DrawButtonFace "
        "GRBUTTON_DrawButtonFrame GRBUTTON_RegisterClass GRBUTTON_SetBitmaps GRBUTTON_SetHBitmaps "
        "KVMB_MessageBoxError KVMB_MessageBoxExtended NUMFLD_GetValue NUMFLD_RegisterClass NUMFLD_SetLimits "
        "NUMFLD_SetValue SCROLL_RegisterClass SCROLL_SetAssociateWindow TIMECTRL_CompareTime "
        "TIMECTRL_DecrementTime TIMECTRL_GetTime TIMECTRL_IncrementTime TIMECTRL_IsValidTime "
        "TIMECTRL_RegisterClass TIMECTRL_SetTime TREELIST_GetFolder TREELIST_RegisterClass "
        "UTIL_GetModuleInstance UTIL_SetModuleInstance browse_DialogFileHookProc datectrl_EditDateWndProc "
        "timectrl_EditTimeWndProc ");
    for (std::string name; names >> name;) {
        EXPECT_NE(nullptr, GetProcAddress(library, name.c_str())) << name;
    }
}

}  // namespace
