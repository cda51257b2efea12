// Names as other compilers and languages look them up: without decoration.
#include <cvutil32.h>

#include <gtest/gtest.h>

namespace {

TEST(Exports, FlatNamesAreUndecorated) {
    HMODULE const library = GetModuleHandleA("CVUTIL32");
    ASSERT_NE(nullptr, library);
    EXPECT_EQ(UTIL_GetModuleInstance(), library);
    for (char const* name : {"DATECTRL_CompareDate",     "DATECTRL_DecrementDate", "DATECTRL_GetDate",
                             "DATECTRL_IncrementDate",   "DATECTRL_IsValidDate",   "DATECTRL_RegisterClass",
                             "DATECTRL_SetDate",         "NUMFLD_GetValue",        "NUMFLD_RegisterClass",
                             "NUMFLD_SetLimits",         "NUMFLD_SetValue",        "TIMECTRL_CompareTime",
                             "TIMECTRL_DecrementTime",   "TIMECTRL_GetTime",       "TIMECTRL_IncrementTime",
                             "TIMECTRL_IsValidTime",     "TIMECTRL_RegisterClass", "TIMECTRL_SetTime",
                             "timectrl_EditTimeWndProc", "SCROLL_RegisterClass",   "SCROLL_SetAssociateWindow",
                             "UTIL_GetModuleInstance",   "UTIL_SetModuleInstance", "datectrl_EditDateWndProc"}) {
        EXPECT_NE(nullptr, GetProcAddress(library, name)) << name;
    }
}

}  // namespace
