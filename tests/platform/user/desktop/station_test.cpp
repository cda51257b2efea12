#include <gtest/gtest.h>

#include <windows.h>

#include "tests/platform/support/looking.h"

namespace {

TEST(Station, FlagsFitTheirRecordAndNoneThatIsTooSmall) {
    USEROBJECTFLAGS flags;
    DWORD needed = 0;
    EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER}, tests::ErrorOf([&] {
                  return GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, 2, &needed);
              }));
    EXPECT_EQ(DWORD{sizeof flags}, needed);
    EXPECT_TRUE(GetUserObjectInformationA(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &needed));
    EXPECT_EQ(DWORD{ERROR_INVALID_HANDLE}, tests::ErrorOf([&] {
                  return GetUserObjectInformationA(nullptr, UOI_FLAGS, &flags, sizeof flags, &needed);
              }));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, tests::ErrorOf([&] {
                  return GetUserObjectInformationA(GetProcessWindowStation(), 99, &flags, sizeof flags, &needed);
              }));
}

}  // namespace
