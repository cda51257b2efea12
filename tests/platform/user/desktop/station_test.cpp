#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(Station, TellsItsNameAndHowLongItIs) {
    char name[32] = "";
    DWORD needed = 0;
    EXPECT_TRUE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_NAME, name, sizeof name, &needed));
    EXPECT_STREQ("WinSta0", name);

    needed = 0;
    SetLastError(0);
    EXPECT_FALSE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_NAME, name, 2, &needed));
    EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER}, GetLastError());
    EXPECT_GE(needed, DWORD{sizeof "WinSta0"});
}

TEST(Station, FlagsFitTheirRecord) {
    USEROBJECTFLAGS flags;
    DWORD needed = 0;
    EXPECT_TRUE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &needed));
    EXPECT_EQ(DWORD{sizeof flags}, needed);
}

TEST(Station, RefusesForeignHandlesAndUnknownQuestions) {
    char buffer[64];
    DWORD needed = 0;
    SetLastError(0);
    EXPECT_FALSE(GetUserObjectInformationA(nullptr, UOI_NAME, buffer, sizeof buffer, &needed));
    EXPECT_EQ(DWORD{ERROR_INVALID_HANDLE}, GetLastError());
    SetLastError(0);
    EXPECT_FALSE(GetUserObjectInformationA(GetProcessWindowStation(), 99, buffer, sizeof buffer, &needed));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, GetLastError());
}

}  // namespace
