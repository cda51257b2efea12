#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(Station, FlagsFitTheirRecord) {
    USEROBJECTFLAGS flags;
    DWORD needed = 0;
    EXPECT_TRUE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &needed));
    EXPECT_EQ(DWORD{sizeof flags}, needed);
}

TEST(Station, ARecordTooSmallIsRefused) {
    USEROBJECTFLAGS flags;
    DWORD needed = 0;
    SetLastError(0);
    EXPECT_FALSE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, 2, &needed));
    EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER}, GetLastError());
    EXPECT_EQ(DWORD{sizeof flags}, needed);
}

TEST(Station, RefusesForeignHandlesAndUnknownQuestions) {
    char buffer[64];
    DWORD needed = 0;
    SetLastError(0);
    EXPECT_FALSE(GetUserObjectInformationA(nullptr, UOI_FLAGS, buffer, sizeof buffer, &needed));
    EXPECT_EQ(DWORD{ERROR_INVALID_HANDLE}, GetLastError());
    SetLastError(0);
    EXPECT_FALSE(GetUserObjectInformationA(GetProcessWindowStation(), 99, buffer, sizeof buffer, &needed));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, GetLastError());
}

}  // namespace
